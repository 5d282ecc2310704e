#include "binding/ppt_classes.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosElement : public CosPPTObjectClassInfo {
public:
    CosElement() : CosPPTObjectClassInfo("Element") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "t = deckforge.ppt.Text('styled');\n"
            "t.Style = {deckforge.ppt.Bold(), deckforge.ppt.FontColor('blue')};");
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
