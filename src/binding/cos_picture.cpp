#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "nodes/picture.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {

constexpr char const* kPicture = "deckforge.ppt.Picture";

// A real numeric scalar; anything else is no resolution.
void setResolution(PPTObject const& self, Value const& value) {
    bool const scalar = value.isArray() && value.numel() == 1 &&
                        (value.array().isNumeric() || value.array().classID() == hvClassID::Logical);
    if (!scalar) raise<ppt_error::invalidPropertyValue>(value.className());
    Picture(self.getImpl()).setResolution(value.array().number(0));
}

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
            "A picture from an image file (PNG, JPEG, GIF, BMP, TIFF, SVG, EMF), an\n"
            "image array, or an Octave figure, printed as SVG (hidden figures too, no display needed).\n"
            "Its size defaults to the image's own, a figure's paper size; set Width or\n"
            "Height to change it. SVG pictures carry a PNG for readers without SVG.\n"
            "  pic = deckforge.ppt.Picture('plot.png');\n"
            "  pic = deckforge.ppt.Picture(gcf);        % a figure (or axes) handle\n"
            "  pic = deckforge.ppt.Picture(imread('photo.jpg'));  % an image array, as PNG\n"
            "  slide.add(pic);                       % on a slide\n"
            "  deck.find('Picture'){1}.replace(pic); % in place of a picture placeholder");
        cls.addSuperclass("deckforge.ppt.Shape");
        cls.addConstructor(
            {}, [](Call&) { return Picture(); }, "Picture()");
        cls.addConstructor(
            {words::String}, [](Call& c) { return Picture(c.text(0)); }, "Picture(path)");
        cls.addConstructor(
            {words::Double},
            [](Call& c) {
                // Handles are doubles; a scalar of another class is a one-pixel image.
                hvArray const& value = c.raw(0).array();
                if (value.classID() == hvClassID::Logical || !value.hostClass().empty())
                    return Picture::fromImage(value);
                return Picture::fromFigure(c.number(0));
            },
            "Picture(figureHandle)");
        cls.addConstructor(
            {words::Any},
            [](Call& c) {
                Value const& image = c.raw(0);
                if (!image.isArray()) raise<ppt_error::invalidImageArg>();
                return Picture::fromImage(image.array());
            },
            "Picture(image): an m-by-n or m-by-n-by-3 array, as imread gives, written as PNG");
        cls.addProperty("Path", "text", getter(&Picture::getPath), nullptr, "The image file.");
        cls.addProperty("Resolution", "double", getter(&Picture::getResolution), &setResolution,
                        "Dots per inch of the PNG that stands beside an SVG picture (default 200).");
        cls.addMethod(
            "replace", kPicture, {kPicture},
            [](Call& c) {
                Picture picture = c.self<Picture>().replace(c.object<Picture>(0));
                return toScript(static_cast<PPTObject const&>(picture));
            },
            "replace(picture): a picture with this one's place, name and box shows the new image; returns "
            "it.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosPicture() {
    return std::make_unique<CosPicture>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
