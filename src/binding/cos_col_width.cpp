#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/dimension_formats.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosColWidth : public CosPPTObjectClassInfo {
public:
    CosColWidth() : CosPPTObjectClassInfo("ColWidth") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "w = deckforge.ppt.ColWidth('3cm');\n"
            "disp(w.Value)");
        cls.setHelp("The width of a table column; the widest of a column's entries wins.");
        cls.addSuperclass("deckforge.ppt.BaseDimension");
        cls.addConstructor(
            {}, [](Call&) { return ColWidth(); }, "ColWidth(): 0.25in.");
        cls.addConstructor(
            {words::String}, [](Call& c) { return ColWidth(c.text(0)); }, "ColWidth(length)");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosColWidth() {
    return std::make_unique<CosColWidth>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
