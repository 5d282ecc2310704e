#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/table_style_options.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosTableStyleOptions : public CosPPTObjectClassInfo {
public:
    CosTableStyleOptions() : CosPPTObjectClassInfo("TableStyleOptions") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "o = deckforge.ppt.TableStyleOptions();\n"
            "o.BandedRows = false;\n"
            "o.FirstColumn = true;\n"
            "disp(o.FirstRow)");
        cls.setHelp("The switches of a table's style; first row and banded rows are on at first.");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addConstructor(
            {}, [](Call&) { return TableStyleOptions(); }, "TableStyleOptions()");
        cls.addProperty("FirstRow", "logical", formatGetter(&TableStyleOptions::getFirstRow),
                        formatLogicalSetter(&TableStyleOptions::setFirstRow));
        cls.addProperty("LastRow", "logical", formatGetter(&TableStyleOptions::getLastRow),
                        formatLogicalSetter(&TableStyleOptions::setLastRow));
        cls.addProperty("FirstColumn", "logical", formatGetter(&TableStyleOptions::getFirstColumn),
                        formatLogicalSetter(&TableStyleOptions::setFirstColumn));
        cls.addProperty("LastColumn", "logical", formatGetter(&TableStyleOptions::getLastColumn),
                        formatLogicalSetter(&TableStyleOptions::setLastColumn));
        cls.addProperty("BandedRows", "logical", formatGetter(&TableStyleOptions::getBandedRows),
                        formatLogicalSetter(&TableStyleOptions::setBandedRows));
        cls.addProperty("BandedColumns", "logical", formatGetter(&TableStyleOptions::getBandedColumns),
                        formatLogicalSetter(&TableStyleOptions::setBandedColumns));
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosTableStyleOptions() {
    return std::make_unique<CosTableStyleOptions>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
