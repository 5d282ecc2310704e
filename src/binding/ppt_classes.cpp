#include "binding/ppt_classes.h"

#include "binding/package.h"

namespace deckforge {
namespace ppt {
namespace mi {

void pptPackage::addClasses(Package& package) {
#define DECKFORGE_ADD_CLASS(COS) package.addClass(make##COS());
    DECKFORGE_PPT_CLASSES(DECKFORGE_ADD_CLASS)
#undef DECKFORGE_ADD_CLASS
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
