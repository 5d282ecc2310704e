#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/character_formats.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosItalic : public CosPPTObjectClassInfo {
public:
    CosItalic() : CosPPTObjectClassInfo("Italic") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "i = deckforge.ppt.Italic(true);\n"
            "t = deckforge.ppt.Text('slanted');\n"
            "t.Italic = i.Value;");
        cls.setHelp("Italic characters.");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addConstructor(
            {}, [](Call&) { return Italic(); }, "Italic(): on.");
        cls.addConstructor(
            {words::Logical}, [](Call& c) { return Italic(c.logical(0)); }, "Italic(value)");
        cls.addProperty("Value", "logical", formatGetter(&Italic::getValue),
                        formatLogicalSetter(&Italic::setValue));
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosItalic() {
    return std::make_unique<CosItalic>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
