#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "nodes/picture.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {
constexpr char const* kPicture = "deckforge.ppt.Picture";
}  // namespace

class CosPicture : public CosPPTObjectClassInfo {
public:
    CosPicture() : CosPPTObjectClassInfo("Picture") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "f = [tempname() '.png'];\n"
            "imwrite(uint8(255 * rand(30, 40, 3)), f);\n"
            "pic = deckforge.ppt.Picture(f);\n"
            "pic.Width = '2in';\n"
            "pic.Height = '1.5in';\n"
            "delete(f);");
        cls.setHelp(
            "A picture from an image file (PNG, JPEG, GIF, BMP, TIFF, SVG, EMF).\n"
            "Its size defaults to the image's own; set Width or Height to change it.\n"
            "  pic = deckforge.ppt.Picture('plot.png');\n"
            "  slide.add(pic);                       % on a slide\n"
            "  deck.find('Picture'){1}.replace(pic); % in place of a picture placeholder");
        cls.addSuperclass("deckforge.ppt.Shape");
        cls.addConstructor(
            {}, [](Call&) { return Picture(); }, "Picture()");
        cls.addConstructor(
            {words::String}, [](Call& c) { return Picture(c.text(0)); }, "Picture(path)");
        cls.addProperty("Path", "text", getter(&Picture::getPath), nullptr, "The image file.");
        cls.addMethod(
            "replace", kPicture, {kPicture},
            [](Call& c) {
                Picture picture = c.self<Picture>().replace(c.object<Picture>(0));
                return toScript(static_cast<PPTObject const&>(picture));
            },
            "replace(picture): a picture with this one's place, name and box shows the new image; returns it.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosPicture() {
    return std::make_unique<CosPicture>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
