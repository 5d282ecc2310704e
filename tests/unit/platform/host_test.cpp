#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <set>

#include "platform/host_services.h"
#include "platform/hv.h"
#include "platform/i18n.h"
#include "platform/msg_ids.h"

namespace {

// Answers "picmeta" with a Width/Height struct and records warnings.
class FakeHost : public hv::Host {
public:
    bool call(std::string const& fn, std::vector<hvArray const*> const& args, int nlhs,
              std::vector<std::unique_ptr<hvArray>>& results) override {
        if (fn != "picmeta" || args.size() != 1 || nlhs != 1) return false;
        lastArgument = hvGetString(args[0]);
        auto result = std::make_unique<hvArray>(hvClassID::Struct, 1, 1);
        result->setField(0, "Width", hvArray(hvClassID::Double, 0, 0));
        hvSetField(result.get(), 0, "Height", hvCreateDoubleScalar(480));
        hvSetField(result.get(), 0, "Width", hvCreateDoubleScalar(640));  // replaces the empty value
        results.push_back(std::move(result));
        return true;
    }
    void warning(resource_core::BaseMsgID const& id) override { warnings.push_back(id.identifier()); }

    std::u16string lastArgument;
    std::vector<std::string> warnings;
};

struct HostGuard {
    std::shared_ptr<hv::Host> previous;
    explicit HostGuard(std::shared_ptr<hv::Host> host) : previous(hv::setHost(std::move(host))) {}
    ~HostGuard() { hv::setHost(previous); }
};

}  // namespace

TEST(Hv, DefaultHostFailsEveryCallAndIgnoresWarnings) {
    hv::ArrayPtr arg(hvCreateString("x.png"));
    hvArray* args[] = {arg.get()};
    hvArray sentinel(hvClassID::Double, 0, 0);
    hvArray* result = &sentinel;  // must be cleared
    EXPECT_NE(hvCallHost("picmeta", 1, &result, 1, args), 0);
    EXPECT_EQ(result, nullptr);
    hvWarningMsgId(resource_core::makeMsgID<deckforge::ppt_warning::cannotChangeOutputPath>());
}

TEST(Hv, CallsReachAnInstalledHost) {
    auto host = std::make_shared<FakeHost>();
    HostGuard guard(host);
    hv::ArrayPtr arg(hvCreateString("bild\xC3\xA4.png"));
    hvArray* args[] = {arg.get()};
    hvArray* raw = nullptr;
    ASSERT_EQ(hvCallHost("picmeta", 1, &raw, 1, args), 0);
    hv::ArrayPtr result(raw);
    EXPECT_EQ(host->lastArgument, u"bildä.png");
    EXPECT_EQ(hvGetScalar(hvGetField(result.get(), 0, "Width")), 640);
    EXPECT_EQ(hvGetScalar(hvGetField(result.get(), 0, "Height")), 480);
    EXPECT_EQ(hvGetField(result.get(), 1, "Width"), nullptr);

    hvWarningMsgId(resource_core::makeMsgID<deckforge::ppt_warning::cannotChangeTemplatePath>());
    EXPECT_EQ(host->warnings, std::vector<std::string>{"deckforge:ppt_warning:cannotChangeTemplatePath"});
}

TEST(Hv, ContainersOwnWhatTheyAreGiven) {
    hv::ArrayPtr cell(hvCreateCellMatrix(1, 3));
    hvSetCell(cell.get(), 0, hvCreateString_UTF16(u"𝄞"));
    hvSetCell(cell.get(), 1, hvCreateLogicalScalar(true));
    hvSetCell(cell.get(), 2, nullptr);
    EXPECT_EQ(hvGetNumberOfElements(cell.get()), 3u);
    EXPECT_EQ(hvGetString(hvGetCell(cell.get(), 0)), u"𝄞");
    EXPECT_EQ(hvGetScalar(hvGetCell(cell.get(), 1)), 1.0);
    EXPECT_TRUE(hvIsEmpty(hvGetCell(cell.get(), 2)));
    EXPECT_EQ(hvGetCell(cell.get(), 3), nullptr);
    EXPECT_THROW(hvSetCell(cell.get(), 3, hvCreateDoubleScalar(1)), std::out_of_range);

    // A field added later widens every element of a struct array.
    hv::ArrayPtr s(hvCreateStructMatrix(1, 2, {"a"}));
    hvSetField(s.get(), 1, "a", hvCreateDoubleScalar(2));
    hvSetField(s.get(), 0, "b", hvCreateDoubleScalar(3));
    EXPECT_EQ(hvGetScalar(hvGetField(s.get(), 1, "a")), 2);
    EXPECT_EQ(hvGetScalar(hvGetField(s.get(), 0, "b")), 3);
    EXPECT_TRUE(hvIsEmpty(hvGetField(s.get(), 1, "b")));

    hv::ArrayPtr u(hvCreateNumericMatrix(1, 1, hvClassID::UInt32));
    u->setNumber(0, 5e9);
    EXPECT_EQ(u->integer(0), 4294967295u);
    hv::ArrayPtr empty(hvCreateString(""));
    EXPECT_TRUE(hvIsEmpty(empty.get()));
    EXPECT_EQ(hvGetScalar(empty.get()), 0);
}

TEST(HostServices, TemporaryNamesAreFreshAndSafe) {
    std::set<std::string> names;
    for (int i = 0; i < 20; ++i) {
        char buffer[4096] = {0};
        host::utTmpnam(buffer, sizeof buffer);
        std::filesystem::path p(buffer);
        EXPECT_EQ(p.parent_path(), std::filesystem::temp_directory_path());
        EXPECT_FALSE(std::filesystem::exists(p));
        names.insert(buffer);
    }
    EXPECT_EQ(names.size(), 20u);
    char tiny[8];
    std::memset(tiny, 'x', sizeof tiny);
    host::utTmpnam(tiny, sizeof tiny);
    EXPECT_EQ(std::strlen(tiny), sizeof tiny - 1);
}
