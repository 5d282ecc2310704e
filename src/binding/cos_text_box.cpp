#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "nodes/text_box.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosTextBox : public CosPPTObjectClassInfo {
public:
    CosTextBox() : CosPPTObjectClassInfo("TextBox") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setHelp(
            "A free text box, placed on a slide with the slide's add.\n"
            "  b = deckforge.ppt.TextBox(); b.X = '1in'; b.Y = '2in'; b.Width = '4in'; b.Height = '1in';\n"
            "  b.add('Note'); slide.add(b);");
        cls.addSuperclass("deckforge.ppt.BaseTextBox");
        cls.addConstructor(
            {}, [](Call&) { return TextBox(); }, "TextBox()");
        addBoxTextMethods(cls);
        addBoxValueMethods(cls);
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosTextBox() {
    return std::make_unique<CosTextBox>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
