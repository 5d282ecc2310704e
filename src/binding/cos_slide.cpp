#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "nodes/picture.h"
#include "engine/slide.h"
#include "nodes/paragraph.h"
#include "nodes/text_box.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {
constexpr char const* kParagraph = "deckforge.ppt.Paragraph";
constexpr char const* kTextBox = "deckforge.ppt.TextBox";
constexpr char const* kPicture = "deckforge.ppt.Picture";
}  // namespace

class CosSlide : public CosPPTObjectClassInfo {
public:
    CosSlide() : CosPPTObjectClassInfo("Slide") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setHelp("A slide of a presentation, made by the presentation's add.");
        cls.addSuperclass("deckforge.ppt.Element");
        cls.addProperty("Layout", "text", getter(&Slide::getLayoutName), nullptr, "The slide's layout.");
        cls.addProperty("SlideMaster", "text", getter(&Slide::getSlideMasterName), nullptr,
                        "The slide master of the layout.");
        cls.addProperty("Name", "text", getter(&PPTNode::getName), textSetter(&Slide::setName),
                        "The slide's name.");
        cls.addMethod(
            "find", words::NodeVector, {words::String},
            [](Call& c) { return toScript(c.self<Slide>().find(c.text(0))); },
            "The nodes of that name on the slide, as a cell row; [] if none.");
        cls.addMethod(
            "add", kTextBox, {kTextBox},
            [](Call& c) {
                TextBox box = c.self<Slide>().add(c.object<TextBox>(0));
                return toScript(static_cast<PPTObject const&>(box));
            },
            "add(textBox): the box itself on the slide, above what is there; returns it.");
        cls.addMethod(
            "add", kPicture, {kPicture},
            [](Call& c) {
                Picture picture = c.self<Slide>().add(c.object<Picture>(0));
                return toScript(static_cast<PPTObject const&>(picture));
            },
            "add(picture): the picture itself on the slide, above what is there; returns it.");
        // By name, on this slide.
        cls.addMethod(
            "add", words::Void, {words::String, words::String},
            [](Call& c) {
                c.self<Slide>().add(c.text(0), c.text(1));
                return Value();
            },
            "add(name, text): a paragraph of the text after the others in each box of that name.");
        cls.addMethod(
            "add", words::Void, {words::String, kParagraph},
            [](Call& c) {
                c.self<Slide>().add(c.text(0), c.object<Paragraph>(1));
                return Value();
            },
            "add(name, paragraph): the paragraph (copies after the first) to each box of that name.");
        cls.addMethod(
            "replace", words::Void, {words::String, words::String},
            [](Call& c) {
                c.self<Slide>().replace(c.text(0), c.text(1));
                return Value();
            },
            "replace(name, text): the text becomes the only content of each box of that name.");
        cls.addMethod(
            "replace", words::Void, {words::String, kParagraph},
            [](Call& c) {
                c.self<Slide>().replace(c.text(0), c.object<Paragraph>(1));
                return Value();
            },
            "replace(name, paragraph): the same with a paragraph (copies after the first).");
        cls.addMethod(
            "replace", words::Void, {words::Any, words::Any},
            [](Call& c) {
                u16string const name = toText(c.raw(0));
                replaceValueInEach(c.self<Slide>().find(name), c.raw(1));
                return Value();
            },
            "replace(name, list): a cell array's paragraphs, nested cells a level deeper, in each box.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosSlide() {
    return std::make_unique<CosSlide>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
