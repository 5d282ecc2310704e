#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "binding/style_properties.h"
#include "nodes/text.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {

// A number while the run holds one, else its text.
Value getContent(PPTObject const& self) {
    Text text(self.getImpl());
    return text.isNumContent() ? toScript(text.getNumContent()) : toScript(text.getTextContent());
}

void setContent(PPTObject const& self, Value const& value) {
    Text text(self.getImpl());
    if (value.isArray()) {
        hvArray const& a = value.array();
        if (a.isEmpty()) return text.setTextContent(u"");
        if (a.classID() == hvClassID::Char) return text.setTextContent(toText(value));
        if (a.numel() == 1 && (a.isNumeric() || a.classID() == hvClassID::Logical))
            return text.setNumContent(a.number(0));
    }
    raise<ppt_error::invalidPropertyValue>(value.className());
}

}  // namespace

class CosText : public CosPPTObjectClassInfo {
public:
    CosText() : CosPPTObjectClassInfo("Text") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "t = deckforge.ppt.Text('important');\n"
            "t.Bold = true;\n"
            "t.FontColor = 'red';\n"
            "para = deckforge.ppt.Paragraph();\n"
            "para.append(t);");
        cls.setHelp(
            "A run of text, or of a number shown in its printed form, in a paragraph.\n"
            "  t = deckforge.ppt.Text('Sales'); n = deckforge.ppt.Text(42.5);");
        cls.addSuperclass("deckforge.ppt.Element");
        cls.addConstructor(
            {}, [](Call&) { return Text(); }, "Text()");
        cls.addConstructor(
            {words::String}, [](Call& c) { return Text(c.text(0)); }, "Text(text)");
        cls.addConstructor(
            {words::Double}, [](Call& c) { return Text(c.number(0)); }, "Text(number)");
        cls.addProperty("Content", "host array", getContent, setContent,
                        "The text, or a number; [] sets the empty text, a logical the number 1 or 0.");
        addCharacterStyleProperties<Text>(cls);
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosText() {
    return std::make_unique<CosText>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
