#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "binding/style_properties.h"
#include "nodes/table_column.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosColSpec : public CosPPTObjectClassInfo {
public:
    CosColSpec() : CosPPTObjectClassInfo("ColSpec") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "t = deckforge.ppt.Table({'name', 'value'; 'a', 1});\n"
            "t.ColSpecs = {deckforge.ppt.ColSpec('2in'), deckforge.ppt.ColSpec('1in')};");
        cls.setHelp(
            "The width and formats of one table column; its entries take the formats\n"
            "they and their row don't set themselves.\n"
            "  t.ColSpecs = {deckforge.ppt.ColSpec('3cm'), deckforge.ppt.ColSpec('5cm')};");
        cls.addSuperclass("deckforge.ppt.Element");
        cls.addConstructor(
            {}, [](Call&) { return ColSpec(); }, "ColSpec()");
        cls.addConstructor(
            {words::String}, [](Call& c) { return ColSpec(c.text(0)); }, "ColSpec(width)");
        cls.addProperty("Width", "text or empty",
                        style::value<ColSpec>(&ColSpec::getWidth, &ColWidth::getValue),
                        style::text<ColSpec>(&ColSpec::setWidth, &ColSpec::unsetWidth),
                        "The column's width, a length such as \"3cm\".");
        addCharacterStyleProperties<ColSpec>(cls);
        addHAlignProperty<ColSpec>(cls);
        addBoxStyleProperties<ColSpec>(cls);
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosColSpec() {
    return std::make_unique<CosColSpec>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
