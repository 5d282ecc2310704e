#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "nodes/picture.h"
#include "nodes/table.h"
#include "engine/slide.h"
#include "nodes/paragraph.h"
#include "nodes/text_box.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {
constexpr char const* kTextBox = "deckforge.ppt.TextBox";
constexpr char const* kPicture = "deckforge.ppt.Picture";
constexpr char const* kTable = "deckforge.ppt.Table";
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
        cls.addMethod(
            "add", kTable, {kTable},
            [](Call& c) {
                Table table = c.self<Slide>().add(c.object<Table>(0));
                return toScript(static_cast<PPTObject const&>(table));
            },
            "add(table): the table itself on the slide, above what is there; returns it.");
        // By name, on this slide.
        cls.addMethod(
            "add", words::Void, {words::String, words::String},
            [](Call& c) {
                c.self<Slide>().add(c.text(0), c.text(1));
                return Value();
            },
            "add(name, text): a paragraph of the text after the others in each box of that name.");
        addContentByNameMethods<Slide>(cls);
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosSlide() {
    return std::make_unique<CosSlide>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
