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
            "box = deckforge.ppt.TextBox();\n"
            "box.Style = {deckforge.ppt.BackgroundColor('#FFF2CC')};\n"
            "box.add('on a pale yellow');");
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
