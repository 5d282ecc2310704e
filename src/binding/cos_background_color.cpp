#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/color.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosBackgroundColor : public CosPPTObjectClassInfo {
public:
    CosBackgroundColor() : CosPPTObjectClassInfo("BackgroundColor") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "c = deckforge.ppt.BackgroundColor('#FFF2CC');\n"
            "disp(c.Value)");
        cls.setHelp(
            "The fill of a text box or a table cell.\n"
            "  box.Style = {deckforge.ppt.BackgroundColor('lightyellow')};");
        cls.addSuperclass("deckforge.ppt.Color");
        cls.addConstructor(
            {}, [](Call&) { return BackgroundColor(); }, "BackgroundColor(): white.");
        cls.addConstructor(
            {words::String}, [](Call& c) { return BackgroundColor(c.text(0)); }, "BackgroundColor(colour)");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosBackgroundColor() {
    return std::make_unique<CosBackgroundColor>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
