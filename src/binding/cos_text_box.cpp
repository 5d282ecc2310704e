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
        cls.setExample(
            "f = [tempname() '.pptx'];\n"
            "p = deckforge.ppt.Presentation(f);\n"
            "s = p.add('Title Only');\n"
            "box = deckforge.ppt.TextBox();\n"
            "box.X = '1in';\n"
            "box.Y = '2in';\n"
            "box.Width = '4in';\n"
            "box.Height = '1in';\n"
            "box.add('A note');\n"
            "s.add(box);\n"
            "p.close();\n"
            "delete(f);");
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
