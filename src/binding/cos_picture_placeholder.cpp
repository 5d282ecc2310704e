#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "nodes/picture_placeholder.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosPicturePlaceholder : public CosPPTObjectClassInfo {
public:
    CosPicturePlaceholder() : CosPPTObjectClassInfo("PicturePlaceholder") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setHelp(
            "A placeholder of a slide's layout for a picture; until one takes its place it takes text.");
        cls.addSuperclass("deckforge.ppt.BodyPlaceholder");
        addBoxTextMethods(cls);
        addBoxValueMethods(cls);
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosPicturePlaceholder() {
    return std::make_unique<CosPicturePlaceholder>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
