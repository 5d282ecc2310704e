#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "nodes/text_box_placeholder.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosTextBoxPlaceholder : public CosPPTObjectClassInfo {
public:
    CosTextBoxPlaceholder() : CosPPTObjectClassInfo("TextBoxPlaceholder") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "f = [tempname() '.pptx'];\n"
            "p = deckforge.ppt.Presentation(f);\n"
            "s = p.add('Title Only');\n"
            "title = s.find('Title'){1};\n"
            "title.replace('Found by name');\n"
            "p.close();\n"
            "delete(f);");
        cls.setHelp(
            "A placeholder of a slide's layout that takes text. The slide makes it; find it by name.\n"
            "  s = p.add('Title Slide'); s.find('Title'){1}.replace('Quarterly review');");
        cls.addSuperclass("deckforge.ppt.BaseTextBox");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosTextBoxPlaceholder() {
    return std::make_unique<CosTextBoxPlaceholder>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
