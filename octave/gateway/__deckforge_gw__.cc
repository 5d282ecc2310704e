// Octave's door into the module: finds the module table of
// libdeckforge_ppt.so, initialises the module once, and hands every call to
// the module's Octave glue.
#include <octave/oct.h>

#include "binding/module.h"

namespace {
using Gateway = octave_value_list (*)(octave_value_list const&, int);

Gateway gateway() {
    static Gateway const gw = [] {
        deckforge_host_fcn_table const* table = QueryHostFcnTable_deckforge_ppt();
        table->initialize();
        return reinterpret_cast<Gateway>(table->hostGlue("octave"));
    }();
    return gw;
}
}  // namespace

DEFUN_DLD(__deckforge_gw__, args, nargout,
          "-*- texinfo -*-\n@deftypefn {} {@dots{} =} __deckforge_gw__ (@var{op}, @dots{})\n"
          "Internal gateway of the deckforge.ppt classes.\n@end deftypefn") {
    Gateway gw = gateway();
    if (!gw) error("deckforge: libdeckforge_ppt.so has no Octave glue");
    return gw(args, nargout);
}
