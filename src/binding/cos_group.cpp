#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "nodes/group.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosGroup : public CosPPTObjectClassInfo {
public:
    CosGroup() : CosPPTObjectClassInfo("Group") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "g = deckforge.ppt.Group();\n"
            "isa(g, 'deckforge.ppt.Shape')");
        cls.setHelp(
            "A group of shapes that a template brought. Its members can be found by name;\n"
            "the group itself takes no content.");
        cls.addSuperclass("deckforge.ppt.Shape");
        cls.addConstructor(
            {}, [](Call&) { return Group(); }, "Group()");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosGroup() {
    return std::make_unique<CosGroup>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
