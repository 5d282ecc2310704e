#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/character_formats.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosFontFamily : public CosPPTObjectClassInfo {
public:
    CosFontFamily() : CosPPTObjectClassInfo("FontFamily") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "f = deckforge.ppt.FontFamily('Arial', 'Mangal');\n"
            "t = deckforge.ppt.Text('sans');\n"
            "t.Font = f.Font;\n"
            "t.ComplexScriptFont = f.ComplexScriptFont;");
        cls.setHelp(
            "The Latin font and the complex-script font of the characters; an empty name writes nothing.");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addConstructor(
            {}, [](Call&) { return FontFamily(); }, "FontFamily(): Times New Roman.");
        cls.addConstructor(
            {words::String}, [](Call& c) { return FontFamily(c.text(0)); }, "FontFamily(font)");
        cls.addConstructor(
            {words::String, words::String}, [](Call& c) { return FontFamily(c.text(0), c.text(1)); },
            "FontFamily(font, complexScriptFont)");
        cls.addProperty("Font", "text", formatGetter(&FontFamily::getFont),
                        formatTextSetter(&FontFamily::setFont));
        cls.addProperty("ComplexScriptFont", "text", formatGetter(&FontFamily::getComplexScriptFont),
                        formatTextSetter(&FontFamily::setComplexScriptFont));
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosFontFamily() {
    return std::make_unique<CosFontFamily>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
