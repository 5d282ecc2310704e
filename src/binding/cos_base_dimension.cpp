#include "binding/format_accessors.h"
#include "binding/ppt_classes.h"
#include "formats/dimension_formats.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosBaseDimension : public CosPPTObjectClassInfo {
public:
    CosBaseDimension() : CosPPTObjectClassInfo("BaseDimension") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "s = deckforge.ppt.FontSize('18pt');\n"
            "disp(s.Value)");
        cls.setHelp("A format whose value is a length with its units, such as \"2.5cm\".");
        cls.addSuperclass("deckforge.ppt.Format");
        cls.addConstructor(
            {}, [](Call&) { return BaseDimension(); }, "BaseDimension(): 0px.");
        cls.addConstructor(
            {words::String}, [](Call& c) { return BaseDimension(c.text(0)); },
            "BaseDimension(length): refused without a known unit.");
        cls.addProperty("Value", "text", formatGetter(&BaseDimension::getValue),
                        formatTextSetter(&BaseDimension::setValue), "The length, normalised.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosBaseDimension() {
    return std::make_unique<CosBaseDimension>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
