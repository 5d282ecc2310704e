#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "binding/style_properties.h"
#include "nodes/table_entry.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {
constexpr char const* kParagraph = "deckforge.ppt.Paragraph";

Value paragraphResult(Paragraph const& paragraph) {
    return toScript(static_cast<PPTObject const&>(paragraph));
}
}  // namespace

class CosTableEntry : public CosPPTObjectClassInfo {
public:
    CosTableEntry() : CosPPTObjectClassInfo("TableEntry") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "e = deckforge.ppt.TableEntry('42');\n"
            "e.HAlign = 'right';\n"
            "r = deckforge.ppt.TableRow();\n"
            "r.append(e);");
        cls.setHelp(
            "One cell of a table row, holding paragraphs.\n"
            "  e = deckforge.ppt.TableEntry('Total'); e.BackgroundColor = 'yellow'; row.append(e);");
        cls.addSuperclass("deckforge.ppt.Element");
        cls.addConstructor(
            {}, [](Call&) { return TableEntry(); }, "TableEntry()");
        cls.addConstructor(
            {words::String}, [](Call& c) { return TableEntry(c.text(0)); },
            "TableEntry(text): one paragraph of the text.");
        cls.addConstructor(
            {kParagraph}, [](Call& c) { return TableEntry(c.object<Paragraph>(0)); },
            "TableEntry(paragraph): the paragraph itself; refused if it stands elsewhere.");
        addFontProperties<TableEntry>(cls);
        addHAlignProperty<TableEntry>(cls);
        addBoxStyleProperties<TableEntry>(cls);
        cls.addMethod(
            "append", kParagraph, {kParagraph},
            [](Call& c) { return paragraphResult(c.self<TableEntry>().append(c.object<Paragraph>(0))); },
            "append(paragraph): the paragraph itself as the last; refused if it stands elsewhere.");
        cls.addMethod(
            "append", kParagraph, {words::String},
            [](Call& c) { return paragraphResult(c.self<TableEntry>().append(c.text(0))); },
            "append(text): a new paragraph of the text; returns it.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosTableEntry() {
    return std::make_unique<CosTableEntry>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
