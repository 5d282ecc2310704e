#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "nodes/picture.h"
#include "nodes/table.h"
#include "engine/slide.h"
#include "nodes/paragraph.h"
#include "nodes/text.h"
#include "nodes/text_box.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {
constexpr char const* kTextBox = "deckforge.ppt.TextBox";

// A list of notes paragraphs as a text box would take it: nested cells a
// level deeper, numbers as their text, Paragraph objects by their text.
void flattenNotes(ListItems const& items, std::uint32_t level,
                  std::vector<std::pair<std::uint32_t, u16string>>& paragraphs) {
    for (auto const& item : items) {
        switch (item.getKind()) {
            case ListItem::Kind::List:
                flattenNotes(item.getItems(), level + 1, paragraphs);
                break;
            case ListItem::Kind::Text:
                paragraphs.emplace_back(level, item.getText());
                break;
            case ListItem::Kind::Number:
                paragraphs.emplace_back(level, num2str(item.getNumber()));
                break;
            case ListItem::Kind::Paragraph: {
                u16string text;
                if (item.getParagraph())
                    for (auto const& child : item.getParagraph()->getChildren())
                        if (auto run = Text::cast(child)) text += run->getTextContent();
                paragraphs.emplace_back(level, text);
                break;
            }
            case ListItem::Kind::Blank:
                paragraphs.emplace_back(level, u16string());
                break;
        }
    }
}

void setNotes(PPTObject const& self, Value const& value) {
    Slide slide(self.getImpl());
    if (value.isCell()) {
        std::vector<std::pair<std::uint32_t, u16string>> paragraphs;
        flattenNotes(toListItems(value), 1, paragraphs);
        slide.slideImpl()->setNotes(paragraphs);
    } else if (value.isArray() && value.isEmpty()) {
        slide.setNotes(u16string());
    } else {
        slide.setNotes(toText(value));
    }
}
constexpr char const* kPicture = "deckforge.ppt.Picture";
constexpr char const* kTable = "deckforge.ppt.Table";
}  // namespace

class CosSlide : public CosPPTObjectClassInfo {
public:
    CosSlide() : CosPPTObjectClassInfo("Slide") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "f = [tempname() '.pptx'];\n"
            "p = deckforge.ppt.Presentation(f);\n"
            "s = p.add('Title and Content');\n"
            "s.replace('Title', 'Regions');\n"
            "s.replace('Content', struct('Region', {'North', 'South'}, 'Q1', {1200, 950.5}));\n"
            "p.close();\n"
            "delete(f);");
        cls.setHelp("A slide of a presentation, made by the presentation's add or duplicate.");
        cls.addSuperclass("deckforge.ppt.Element");
        cls.addProperty("Layout", "text", getter(&Slide::getLayoutName), nullptr, "The slide's layout.");
        cls.addProperty("SlideMaster", "text", getter(&Slide::getSlideMasterName), nullptr,
                        "The slide master of the layout.");
        cls.addProperty("Name", "text", getter(&PPTNode::getName), textSetter(&Slide::setName),
                        "The slide's name.");
        cls.addProperty("Notes", "text", getter(&Slide::getNotes), setNotes,
                        "The speaker notes, paragraphs joined by newlines. Set text (a newline starts a "
                        "paragraph), or a cell array of paragraphs as replace takes it (nested cells a "
                        "level deeper); '' removes the notes. Notes of template slides are kept.");
        cls.addMethod(
            "find", words::NodeVector, {words::String},
            [](Call& c) { return toScript(c.self<Slide>().find(c.text(0))); },
            "The nodes of that name on the slide, as a cell row; [] if none. Where no shape bears the "
            "name, a role gives the layout's placeholder of that role: Title (title or centred "
            "title), Subtitle, Content (object placeholders, and body placeholders of a content "
            "slot), Text (other body placeholders), Picture, Table, Chart, Date, Footer, SlideNumber; "
            "'Content 2' the second of its role, in the layout's order. An exact name always wins. "
            "Chart, date, footer and slide number placeholders keep the template's content and are "
            "no nodes, so their roles find nothing on a slide. Presentation.describe lists the names "
            "and roles of every layout.");
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
            "add(name, text): a paragraph of the text after the others in each box of that name, or "
            "in the placeholder of that role (see find).");
        addContentByNameMethods<Slide>(cls);
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosSlide() {
    return std::make_unique<CosSlide>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
