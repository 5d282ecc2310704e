#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/character_formats.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosStrike : public CosPPTObjectClassInfo {
public:
    CosStrike() : CosPPTObjectClassInfo("Strike") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "s = deckforge.ppt.Strike('single');\n"
            "t = deckforge.ppt.Text('struck');\n"
            "t.Strike = s.Style;");
        cls.setHelp("Struck-through characters: none, single or double.");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addConstructor(
            {}, [](Call&) { return Strike(); }, "Strike(): single.");
        cls.addConstructor(
            {words::String}, [](Call& c) { return Strike(c.text(0)); }, "Strike(style)");
        cls.addProperty("Style", "text", formatGetter(&Strike::getValue),
                        formatTextSetter(&Strike::setValue));
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosStrike() {
    return std::make_unique<CosStrike>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
