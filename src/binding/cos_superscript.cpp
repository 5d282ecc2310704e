#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/character_formats.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosSuperscript : public CosPPTObjectClassInfo {
public:
    CosSuperscript() : CosPPTObjectClassInfo("Superscript") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "para = deckforge.ppt.Paragraph('x');\n"
            "sup = para.append('2');\n"
            "sup.Superscript = deckforge.ppt.Superscript().Value;");
        cls.setHelp("Characters raised above the baseline; it wins over a Subscript on the same run.");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addConstructor(
            {}, [](Call&) { return Superscript(); }, "Superscript(): on.");
        cls.addConstructor(
            {words::Logical}, [](Call& c) { return Superscript(c.logical(0)); }, "Superscript(value)");
        cls.addProperty("Value", "logical", formatGetter(&Superscript::getValue),
                        formatLogicalSetter(&Superscript::setValue));
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosSuperscript() {
    return std::make_unique<CosSuperscript>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
