#include "binding/ppt_classes.h"
#include "formats/format.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosFormat : public CosPPTObjectClassInfo {
public:
    CosFormat() : CosPPTObjectClassInfo("Format") {}
    bool isAbstract() const override { return true; }
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "b = deckforge.ppt.Bold();\n"
            "isa(b, 'deckforge.ppt.Format')");
        cls.setHelp("A styling object that a node holds in its Style; at most one of each kind per node.");
        cls.addSuperclass("deckforge.ppt.Object");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosFormat() {
    return std::make_unique<CosFormat>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
