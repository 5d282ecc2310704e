// Helpers for the presentation tests: the build tree as the host's root (so
// the default template is found), a scratch directory as the host's current
// directory, and recorders for what script code would be told.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "messages/message_dispatcher.h"
#include "package/opc_package.h"
#include "platform/hobj.h"
#include "platform/host_services.h"
#include "platform/hv.h"
#include "support/test_support.h"

namespace deckforge {
namespace test {

inline u16string const kOfficeDocument =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument";

// The identifier of the message-id exception that `f` raised, or "".
inline std::string errorOf(std::function<void()> const& f) {
    try {
        f();
    } catch (foundation::core::except::IMsgIDException const& e) {
        return e.identifier();
    }
    return "";
}

inline std::filesystem::path defaultTemplate() {
    return binaryDir() / "toolbox/shared/deckforge/ppt/resources/templates/pptx/default.pptx";
}

inline u16string mainContentType(std::filesystem::path const& package) {
    ppt::OPCPartReader reader(package.u16string());
    return reader.getPart(reader.getRelatedPartName(kOfficeDocument)).getContentType().toString();
}

inline std::string readPart(std::filesystem::path const& package, u16string const& partName) {
    ppt::OPCPartReader reader(package.u16string());
    return opc::StreamHelper::readAll(*reader.getPart(partName).getInputStream(), std::size_t(1) << 28);
}

inline int slideIdCount(std::filesystem::path const& package) {
    std::string const xml = readPart(package, u"/ppt/presentation.xml");
    int n = 0;
    for (auto at = xml.find("<p:sldId "); at != std::string::npos; at = xml.find("<p:sldId ", at + 1)) ++n;
    return n;
}

// Copies `source` to `target` and lets `edit` change the copy's parts.
inline void editPackage(std::filesystem::path const& source, std::filesystem::path const& target,
                        std::function<void(ppt::OPCPartWriter&)> const& edit) {
    std::filesystem::copy_file(source, target, std::filesystem::copy_options::overwrite_existing);
    auto package = boost::make_shared<ppt::OPCPackage>(target.u16string());
    package->openForUpdate(false);
    ppt::OPCPartWriter writer(package);
    edit(writer);
    package->close();
}

// A shell command's output and exit status.
inline std::pair<std::string, int> run(std::string const& command) {
    std::string output;
    FILE* pipe = ::popen((command + " 2>&1").c_str(), "r");
    char buffer[4096];
    while (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe)) output.append(buffer, n);
    int const status = ::pclose(pipe);
    return {output, WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

class PresentationTest : public testing::Test {
protected:
    struct Host : hv::Host {
        bool call(std::string const&, std::vector<hvArray const*> const&, int,
                  std::vector<std::unique_ptr<hvArray>>&) override {
            return false;
        }
        void warning(resource_core::BaseMsgID const& id) override { warnings.push_back(id.identifier()); }
        std::vector<std::string> warnings;
    };
    // The dispatcher's script object: "<message class> <text>" for each event.
    struct Listener : hobj::COSInterface {
        bool isBeingDestroyed() const override { return false; }
        void notify(char const*, hobj::factory::full::Wrappable& data) override {
            auto const& message = dynamic_cast<ppt::MessageEventDataImpl&>(data).getMessage();
            dispatched.push_back(std::string(message->getFullyQualifiedHobjTypeName()) + " " +
                                 toUtf8(message->getText()));
        }
        void retracted() noexcept override {}
        std::vector<std::string> dispatched;
    };

    void SetUp() override {
        host::setQuorixRoot(binaryDir().u16string());
        std::u16string const cwd = dir.path().generic_u16string();
        host::setCurrentDirectoryProvider([cwd] { return cwd; });
        hv::setHost(host);
        hobj::factory::basic::BindingRegistry::bind(*dispatcher().getImpl(), &listener);
    }
    void TearDown() override {
        hobj::factory::basic::BindingRegistry::remove(*dispatcher().getImpl());
        hv::setHost(nullptr);
        host::setCurrentDirectoryProvider(nullptr);
        host::setQuorixRoot(u"");
    }
    static ppt::MessageDispatcher& dispatcher() { return ppt::MessageDispatcher::getTheDispatcher(); }
    std::vector<std::string> const& dispatched() const { return listener.dispatched; }
    u16string out(std::string const& name) const { return (dir / name).generic_u16string(); }

    ScratchDir dir;
    std::shared_ptr<Host> host = std::make_shared<Host>();
    Listener listener;
};

}  // namespace test
}  // namespace deckforge
