#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "nodes/body_placeholder.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosBodyPlaceholder : public CosPPTObjectClassInfo {
public:
    CosBodyPlaceholder() : CosPPTObjectClassInfo("BodyPlaceholder") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "f = [tempname() '.pptx'];\n"
            "p = deckforge.ppt.Presentation(f);\n"
            "s = p.add('Section Header');\n"
            "s.replace('Text', 'A body placeholder, filled by name');\n"
            "p.close();\n"
            "delete(f);");
        cls.setHelp("A body placeholder of a slide's layout: it takes text, and lists given as cell arrays.");
        cls.addSuperclass("deckforge.ppt.TextBoxPlaceholder");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosBodyPlaceholder() {
    return std::make_unique<CosBodyPlaceholder>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
