#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/alignment.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosHAlign : public CosPPTObjectClassInfo {
public:
    CosHAlign() : CosPPTObjectClassInfo("HAlign") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "a = deckforge.ppt.HAlign('right');\n"
            "para = deckforge.ppt.Paragraph('to the right');\n"
            "para.HAlign = a.Value;");
        cls.setHelp(
            "The alignment of a paragraph: left, right, center, justified, justifiedLow, distributed or "
            "thaiDistributed.");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addConstructor(
            {}, [](Call&) { return HAlign(); }, "HAlign(): left.");
        cls.addConstructor(
            {words::String}, [](Call& c) { return HAlign(c.text(0)); }, "HAlign(alignment)");
        cls.addProperty("Value", "text", formatGetter(&HAlign::getValue),
                        formatTextSetter(&HAlign::setValue));
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosHAlign() {
    return std::make_unique<CosHAlign>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
