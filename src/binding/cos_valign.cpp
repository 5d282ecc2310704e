#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/alignment.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosVAlign : public CosPPTObjectClassInfo {
public:
    CosVAlign() : CosPPTObjectClassInfo("VAlign") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "a = deckforge.ppt.VAlign('middle');\n"
            "box = deckforge.ppt.TextBox();\n"
            "box.VAlign = a.Value;\n"
            "box.add('in the middle');");
        cls.setHelp(
            "The anchor of the text in a box or a cell: top, middle, bottom, or one of them \"Centered\".");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addConstructor(
            {}, [](Call&) { return VAlign(); }, "VAlign(): top.");
        cls.addConstructor(
            {words::String}, [](Call& c) { return VAlign(c.text(0)); }, "VAlign(anchor)");
        cls.addProperty("Value", "text", formatGetter(&VAlign::getValue),
                        formatTextSetter(&VAlign::setValue));
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosVAlign() {
    return std::make_unique<CosVAlign>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
