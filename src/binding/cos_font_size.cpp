#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/dimension_formats.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosFontSize : public CosPPTObjectClassInfo {
public:
    CosFontSize() : CosPPTObjectClassInfo("FontSize") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "s = deckforge.ppt.FontSize('28pt');\n"
            "t = deckforge.ppt.Text('large');\n"
            "t.FontSize = s.Value;");
        cls.setHelp("The size of the characters, from 1pt to 4000pt.");
        cls.addSuperclass("deckforge.ppt.BaseDimension");
        cls.addConstructor(
            {}, [](Call&) { return FontSize(); }, "FontSize(): 12pt.");
        cls.addConstructor(
            {words::String}, [](Call& c) { return FontSize(c.text(0)); }, "FontSize(length)");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosFontSize() {
    return std::make_unique<CosFontSize>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
