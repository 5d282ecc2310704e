#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "platform/i18n.h"
#include "platform/msg_ids.h"
#include "support/test_support.h"

using fl::i18n::CatalogEntry;
using fl::i18n::MessageCatalog;

namespace {

std::set<int> slotsOf(std::string const& text) {
    std::set<int> slots;
    static std::regex const slot(R"(\{([0-9]+)\})");
    for (std::sregex_iterator it(text.begin(), text.end(), slot), end; it != end; ++it) {
        slots.insert(std::stoi((*it)[1].str()));
    }
    return slots;
}

}  // namespace

TEST(Catalog, EveryTextIsUsableWithItsArguments) {
    auto const& entries = MessageCatalog::entries();
    ASSERT_GT(entries.size(), 40u);
    std::set<std::pair<std::string, std::string>> seen;
    for (CatalogEntry const& e : entries) {
        std::string const where = std::string(e.catalog) + ":" + e.id;
        EXPECT_TRUE(seen.emplace(e.catalog, e.id).second) << "duplicate id " << where;
        EXPECT_FALSE(std::string(e.text).empty()) << where;
        std::set<int> expected;
        for (int i = 0; i < e.argCount; ++i) expected.insert(i);
        // Every argument shows, and no slot waits for an argument that never comes.
        EXPECT_EQ(slotsOf(e.text), expected) << where << ": " << e.text;
    }
}

TEST(Catalog, SameIdMayLiveInTwoCatalogues) {
    EXPECT_TRUE(MessageCatalog::hasMessage("deckforge:ppt_error", "cannotOpenFile"));
    EXPECT_TRUE(MessageCatalog::hasMessage("deckforge:dom_error", "cannotOpenFile"));
    EXPECT_TRUE(MessageCatalog::hasMessage("QUORIX:class", "InvalidHandle"));
    EXPECT_FALSE(MessageCatalog::hasMessage("deckforge:ppt_error", "InvalidHandle"));
    EXPECT_NE(
        MessageCatalog::get_message(resource_core::makeMsgID<deckforge::ppt_error::cannotOpenFile>(u"f")),
        MessageCatalog::get_message(resource_core::makeMsgID<deckforge::dom_error::cannotOpenFile>(u"f")));
}

// Every id that source code raises must have a catalogue text. Files that don't
// compile yet are scanned too, so a new id is caught before its first build.
TEST(Catalog, EveryIdRaisedInTheSourcesHasAText) {
    std::map<std::string, std::string> const catalogOf = {
        {"ppt_error", "deckforge:ppt_error"},     {"dom_error", "deckforge:dom_error"},
        {"ppt_warning", "deckforge:ppt_warning"}, {"ppt_progress", "deckforge:ppt_progress"},
        {"ppt_debug", "deckforge:ppt_debug"},     {"class_ids", "QUORIX:class"},
        {"string_ids", "QUORIX:string"}};
    std::regex const use(
        R"((?:raise|makeMsgID|Exception)\s*<\s*(?:::)?(?:deckforge::|quorix::)?(\w+)::(\w+)\s*[,>])");
    int uses = 0;
    for (auto const& file :
         std::filesystem::recursive_directory_iterator(deckforge::test::sourceDir() / "src")) {
        auto const ext = file.path().extension();
        if (ext != ".cpp" && ext != ".h") continue;
        std::string const text = deckforge::test::readFile(file.path());
        for (std::sregex_iterator it(text.begin(), text.end(), use), end; it != end; ++it) {
            auto const catalog = catalogOf.find((*it)[1].str());
            if (catalog == catalogOf.end()) continue;
            ++uses;
            EXPECT_TRUE(MessageCatalog::hasMessage(catalog->second.c_str(), (*it)[2].str().c_str()))
                << file.path() << " raises " << it->str() << " which has no text";
        }
    }
    EXPECT_GT(uses, 0);
}

TEST(Catalog, MessageFillsArgumentsOfEveryKind) {
    using resource_core::BaseMsgID;
    using resource_core::MsgArgument;
    BaseMsgID id("deckforge:ppt_error", "badSlideSubscript",
                 {MsgArgument(std::int64_t(-7)), MsgArgument(u"Ä𝄞")});
    auto const text = MessageCatalog::get_message(id);
    EXPECT_NE(text.find(u"-7"), std::u16string::npos);
    EXPECT_NE(text.find(u"Ä𝄞"), std::u16string::npos);
    EXPECT_EQ(text.find(u"{"), std::u16string::npos);

    EXPECT_EQ(fl::i18n::format_message(u"{0}-{1}-{x}-{", {MsgArgument(std::string("\xC3\xA9"))}),
              u"é-{1}-{x}-{");
    // An unknown id keeps what the raiser said.
    EXPECT_EQ(MessageCatalog::get_message(BaseMsgID("a:b", "c", {MsgArgument(std::int64_t(3))})), u"a:b:c 3");
}

TEST(Catalog, ExceptionShowsIdentifierAndText) {
    try {
        deckforge::raise<deckforge::ppt_error::invalidLayoutName>(u"Titel ü");
        FAIL();
    } catch (std::exception const& e) {
        EXPECT_STREQ(e.what(),
                     "deckforge:ppt_error:invalidLayoutName: The template has no slide layout named "
                     "\"Titel \xC3\xBC\".");
        auto const& withId = dynamic_cast<foundation::core::except::IMsgIDException const&>(e);
        EXPECT_EQ(foundation::core::except::messageAsUtf8(withId), fl::i18n::to_utf8(withId.message()));
    }
}
