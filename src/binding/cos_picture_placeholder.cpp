#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "nodes/picture.h"
#include "nodes/picture_placeholder.h"

namespace deckforge {
namespace ppt {
namespace mi {

// A picture takes the placeholder's place and position; the placeholder
// leaves the slide. Content placeholders share this.
void addReplaceByPicture(ClassDescription& cls) {
    constexpr char const* kPicture = "deckforge.ppt.Picture";
    cls.addMethod(
        "replace", kPicture, {kPicture},
        [](Call& c) {
            Picture picture = c.self<PicturePlaceholder>().replace(c.object<Picture>(0));
            return toScript(static_cast<PPTObject const&>(picture));
        },
        "replace(picture): the picture stands where the placeholder stood; returns it.");
}

class CosPicturePlaceholder : public CosPPTObjectClassInfo {
public:
    CosPicturePlaceholder() : CosPPTObjectClassInfo("PicturePlaceholder") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "img = [tempname() '.png'];\n"
            "imwrite(uint8(255 * rand(30, 40, 3)), img);\n"
            "f = [tempname() '.pptx'];\n"
            "p = deckforge.ppt.Presentation(f);\n"
            "s = p.add('Title and Picture');\n"
            "ph = s.find('Picture'){1};\n"
            "ph.replace(deckforge.ppt.Picture(img));\n"
            "p.close();\n"
            "delete(f);\n"
            "delete(img);");
        cls.setHelp(
            "A placeholder of a slide's layout for a picture; until one takes its place it takes text.");
        cls.addSuperclass("deckforge.ppt.BodyPlaceholder");
        addBoxTextMethods(cls);
        // Before the "any" forms, which would take a picture as a value.
        addReplaceByPicture(cls);
        addBoxValueMethods(cls);
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosPicturePlaceholder() {
    return std::make_unique<CosPicturePlaceholder>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
