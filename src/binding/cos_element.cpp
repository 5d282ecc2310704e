#include "binding/ppt_classes.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosElement : public CosPPTObjectClassInfo {
public:
    CosElement() : CosPPTObjectClassInfo("Element") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "t = deckforge.ppt.Text('an element');\n"
            "t.Bold = true;\n"
            "t.FontSize = '18pt';\n"
            "isa(t, 'deckforge.ppt.Element')");
        cls.setHelp("A node that carries formats.");
        cls.addSuperclass("deckforge.ppt.Node");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosElement() {
    return std::make_unique<CosElement>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
