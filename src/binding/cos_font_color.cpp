#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/color.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosFontColor : public CosPPTObjectClassInfo {
public:
    CosFontColor() : CosPPTObjectClassInfo("FontColor") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "c = deckforge.ppt.FontColor('  Red ');\n"
            "disp(c.Value)\n"
            "t = deckforge.ppt.Text('red text');\n"
            "t.FontColor = c.Value;");
        cls.setHelp("The colour of the characters.");
        cls.addSuperclass("deckforge.ppt.Color");
        cls.addConstructor(
            {}, [](Call&) { return FontColor(); }, "FontColor(): black.");
        cls.addConstructor(
            {words::String}, [](Call& c) { return FontColor(c.text(0)); }, "FontColor(colour)");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosFontColor() {
    return std::make_unique<CosFontColor>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
