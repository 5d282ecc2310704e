#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/character_formats.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosSubscript : public CosPPTObjectClassInfo {
public:
    CosSubscript() : CosPPTObjectClassInfo("Subscript") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "para = deckforge.ppt.Paragraph('H');\n"
            "sub = para.append('2');\n"
            "sub.Subscript = deckforge.ppt.Subscript().Value;\n"
            "para.append('O');");
        cls.setHelp("Characters lowered below the baseline.");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addConstructor(
            {}, [](Call&) { return Subscript(); }, "Subscript(): on.");
        cls.addConstructor(
            {words::Logical}, [](Call& c) { return Subscript(c.logical(0)); }, "Subscript(value)");
        cls.addProperty("Value", "logical", formatGetter(&Subscript::getValue),
                        formatLogicalSetter(&Subscript::setValue));
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosSubscript() {
    return std::make_unique<CosSubscript>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
