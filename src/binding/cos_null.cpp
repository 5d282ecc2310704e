#include "binding/ppt_classes.h"

namespace deckforge {
namespace ppt {
namespace mi {

// The root of the package's classes. Its two host bases give objects
// get/set access and let objects of different classes share one array.
class CosNull : public CosPPTObjectClassInfo {
public:
    CosNull() : CosPPTObjectClassInfo("Null") {}
    bool isAbstract() const override { return true; }
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "a = deckforge.ppt.Paragraph('one');\n"
            "b = a;              % a copy is the same object\n"
            "b.Bold = true;\n"
            "assert(a.Bold && a == b);");
        cls.setHelp(
            "Root of the deckforge.ppt classes. Its objects are handles: copies refer to one object.");
        cls.addSuperclass("attrbase");
        cls.addSuperclass("quorix.mixin.Heterogeneous");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosNull() {
    return std::make_unique<CosNull>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
