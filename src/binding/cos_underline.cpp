#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/character_formats.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosUnderline : public CosPPTObjectClassInfo {
public:
    CosUnderline() : CosPPTObjectClassInfo("Underline") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "u = deckforge.ppt.Underline('double');\n"
            "t = deckforge.ppt.Text('underlined');\n"
            "t.Underline = u.Style;");
        cls.setHelp(
            "Underlined characters: none, words, single, double, heavy, dotted, dash, wavy and their "
            "variants.");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addConstructor(
            {}, [](Call&) { return Underline(); }, "Underline(): single.");
        cls.addConstructor(
            {words::String}, [](Call& c) { return Underline(c.text(0)); }, "Underline(style)");
        cls.addProperty("Style", "text", formatGetter(&Underline::getValue),
                        formatTextSetter(&Underline::setValue));
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosUnderline() {
    return std::make_unique<CosUnderline>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
