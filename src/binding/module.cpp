#include "binding/module.h"

#include <cstring>
#include <map>
#include <string>

#include "binding/package.h"
#include "messages/message_dispatcher.h"
#include "platform/host_services.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {
std::map<std::string, void*>& glues() {
    static auto* map = new std::map<std::string, void*>();
    return *map;
}

void* hostGlue(char const* hostName) {
    auto it = glues().find(hostName ? hostName : "");
    return it == glues().end() ? nullptr : it->second;
}

// Plain bytes: the host calls the entries on one thread.
bool gInitialized = false;
bool gTerminated = false;
}  // namespace

void registerHostGlue(char const* hostName, void* glue) {
    glues()[hostName] = glue;
}

void registerPackages() {
    Package* deckforge = PackageTree::getPackage("deckforge");
    if (!deckforge) {
        PackageTree::addPackage(std::make_unique<deckforgePackage>());
        return;
    }
    if (Package* ppt = PackageTree::getPackage("deckforge.ppt"))
        pptPackage::addClasses(*ppt);
    else
        deckforge->addSubPackage(std::make_unique<pptPackage>());
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge

extern "C" {

deckforge_host_fcn_table const* QueryHostFcnTable_deckforge_ppt(void) {
    static deckforge_host_fcn_table const table = {
        1u,
        "deckforge_ppt",
        "libdeckforge_ppt.so",
        &HostInitialize_deckforge_ppt,
        &HostTerminate_deckforge_ppt,
        &deckforge::ppt::mi::hostGlue,
    };
    return &table;
}

void HostInitialize_deckforge_ppt(void) {
    using namespace deckforge::ppt::mi;
    if (gInitialized) return;
    gInitialized = true;
    registerPackages();
    // Hold a reference to ourselves, so that the host unloading its loader
    // doesn't take the library with it. The status isn't looked at.
    int status = 0;
    host::utLoadLibrary("libdeckforge_ppt.so", status);
}

void HostTerminate_deckforge_ppt(void) {
    using namespace deckforge::ppt::mi;
    if (gTerminated) return;
    gTerminated = true;
    // Drop the filter's hold on an object that script code can see.
    deckforge::ppt::MessageDispatcher::getTheDispatcher().getMessageFilter().unsetSourceFilter();
}
}
