#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "nodes/content_placeholder.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosContentPlaceholder : public CosPPTObjectClassInfo {
public:
    CosContentPlaceholder() : CosPPTObjectClassInfo("ContentPlaceholder") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setHelp(
            "A placeholder of a slide's layout for any content: text, lists, a picture or a table.\n"
            "  s = p.add('Title and Content');\n"
            "  s.replace('Content', {'Point', {'detail'}});   % by name, on the slide");
        cls.addSuperclass("deckforge.ppt.PicturePlaceholder");
        addBoxTextMethods(cls);
        // Before the "any" forms, which would take a picture as a value.
        addReplaceByPicture(cls);
        addBoxValueMethods(cls);
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosContentPlaceholder() {
    return std::make_unique<CosContentPlaceholder>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
