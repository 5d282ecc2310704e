#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/character_formats.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosBold : public CosPPTObjectClassInfo {
public:
    CosBold() : CosPPTObjectClassInfo("Bold") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "b = deckforge.ppt.Bold(false);\n"
            "b.Value = true;\n"
            "t = deckforge.ppt.Text('bold');\n"
            "t.Bold = b.Value;");
        cls.setHelp("Bold characters; Bold(false) switches off a bold set higher up.");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addConstructor(
            {}, [](Call&) { return Bold(); }, "Bold(): on.");
        cls.addConstructor(
            {words::Logical}, [](Call& c) { return Bold(c.logical(0)); }, "Bold(value)");
        cls.addProperty("Value", "logical", formatGetter(&Bold::getValue),
                        formatLogicalSetter(&Bold::setValue));
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosBold() {
    return std::make_unique<CosBold>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
