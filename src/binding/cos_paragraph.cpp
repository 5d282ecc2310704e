#include <cmath>
#include <limits>

#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "binding/style_properties.h"
#include "nodes/paragraph.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {

constexpr char const* kText = "deckforge.ppt.Text";
constexpr char const* kExternalLink = "deckforge.ppt.ExternalLink";

// [] unsets; a number is rounded and held to the range of a uint32, as the
// host converts it.
void setLevel(PPTObject const& self, Value const& value) {
    Paragraph paragraph(self.getImpl());
    if (value.isArray()) {
        hvArray const& a = value.array();
        if (a.isEmpty() && a.classID() != hvClassID::Char) return paragraph.unsetLevel();
        if (a.numel() == 1 && (a.isNumeric() || a.classID() == hvClassID::Logical)) {
            double x = a.number(0);
            if (std::isnan(x) || x <= 0) return paragraph.setLevel(0);
            double const max = std::numeric_limits<unsigned int>::max();
            return paragraph.setLevel(static_cast<unsigned int>(std::min(std::round(x), max)));
        }
    }
    raise<ppt_error::invalidPropertyValue>(value.className());
}

Value run(Text const& text) {
    return toScript(static_cast<PPTObject const&>(text));
}

}  // namespace

class CosParagraph : public CosPPTObjectClassInfo {
public:
    CosParagraph() : CosPPTObjectClassInfo("Paragraph") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "para = deckforge.ppt.Paragraph('Hello ');\n"
            "para.append(deckforge.ppt.Text('world'));\n"
            "para.HAlign = 'center';");
        cls.setHelp(
            "A paragraph: runs of text and links, with an outline level.\n"
            "  p = deckforge.ppt.Paragraph('Read more at ');\n"
            "  p.append(deckforge.ppt.ExternalLink('https://example.com', 'example.com'));\n"
            "  box.add(p);");
        cls.addSuperclass("deckforge.ppt.Element");
        cls.addConstructor(
            {}, [](Call&) { return Paragraph(); }, "Paragraph()");
        cls.addConstructor(
            {words::String}, [](Call& c) { return Paragraph(c.text(0)); }, "Paragraph(text)");
        cls.addConstructor(
            {words::String, words::UInt32}, [](Call& c) { return Paragraph(c.text(0), c.uint32(1)); },
            "Paragraph(text, level)");
        cls.addConstructor(
            {words::Double}, [](Call& c) { return Paragraph(c.number(0)); }, "Paragraph(number)");
        cls.addConstructor(
            {words::Double, words::UInt32}, [](Call& c) { return Paragraph(c.number(0), c.uint32(1)); },
            "Paragraph(number, level)");
        cls.addConstructor(
            {kText}, [](Call& c) { return Paragraph(c.object<Text>(0)); },
            "Paragraph(run): the run itself becomes the first; refused if it stands elsewhere.");
        cls.addConstructor(
            {kText, words::UInt32}, [](Call& c) { return Paragraph(c.object<Text>(0), c.uint32(1)); },
            "Paragraph(run, level)");

        addCharacterStyleProperties<Paragraph>(cls);
        addHAlignProperty<Paragraph>(cls);
        cls.addProperty("Level", "uint32 or empty", getter(&Paragraph::getLevel), setLevel,
                        "The outline level, 1 the outermost; [] for none.");

        cls.addMethod(
            "append", kText, {words::String},
            [](Call& c) { return run(c.self<Paragraph>().append(c.text(0))); },
            "append(text): a new run of the text; returns it.");
        // The link form before the run form: a link is a Text too.
        cls.addMethod(
            "append", kExternalLink, {kExternalLink},
            [](Call& c) { return run(c.self<Paragraph>().append(c.object<ExternalLink>(0))); },
            "append(link): the link itself as the last run; returns it.");
        cls.addMethod(
            "append", kText, {kText},
            [](Call& c) { return run(c.self<Paragraph>().append(c.object<Text>(0))); },
            "append(run): the run itself as the last; refused if it stands elsewhere.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosParagraph() {
    return std::make_unique<CosParagraph>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
