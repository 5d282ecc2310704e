#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/color.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosColor : public CosPPTObjectClassInfo {
public:
    CosColor() : CosPPTObjectClassInfo("Color") {}
    bool isAbstract() const override { return true; }
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "c = deckforge.ppt.FontColor('#1F77B4');\n"
            "disp(c.Value)");
        cls.setHelp("A colour: a name such as \"red\" or \"#\" and six hex digits.");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addProperty("Value", "text", formatGetter(&Color::getValue), formatTextSetter(&Color::setValue),
                        "The colour, trimmed and in lower case.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosColor() {
    return std::make_unique<CosColor>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
