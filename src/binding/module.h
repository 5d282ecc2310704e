// The module's entry into the host. The host finds three plain-named
// functions in libdeckforge_ppt.so: the module table first, then initialise
// and terminate, each of which does its work once.
#pragma once

extern "C" {

// The constant table the host's loader reads.
struct deckforge_host_fcn_table {
    unsigned version;
    char const* moduleName;   // "deckforge_ppt"
    char const* libraryName;  // "libdeckforge_ppt.so"
    void (*initialize)(void);
    void (*terminate)(void);
    // The glue of the named host built into the module ("octave"), or null.
    void* (*hostGlue)(char const* hostName);
};

__attribute__((visibility("default"))) deckforge_host_fcn_table const* QueryHostFcnTable_deckforge_ppt(void);
__attribute__((visibility("default"))) void HostInitialize_deckforge_ppt(void);
__attribute__((visibility("default"))) void HostTerminate_deckforge_ppt(void);
}

namespace deckforge {
namespace ppt {
namespace mi {

// Registers "deckforge" and "deckforge.ppt" with the package tree, whatever
// of them a sister module registered already.
void registerPackages();

// A host's glue linked into the module announces itself here.
void registerHostGlue(char const* hostName, void* glue);

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
