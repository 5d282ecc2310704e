#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "binding/style_properties.h"
#include "nodes/base_text_box.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosBaseTextBox : public CosPPTObjectClassInfo {
public:
    CosBaseTextBox() : CosPPTObjectClassInfo("BaseTextBox") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "box = deckforge.ppt.TextBox();\n"
            "box.add('first');\n"
            "box.add('second');\n"
            "box.replace('only this');");
        cls.setHelp(
            "A shape that holds paragraphs: the base of text boxes and placeholders.\n"
            "add appends after what the box holds (for a placeholder, after the\n"
            "template's text too); replace makes the new content the only content.\n"
            "  box.add('One line');\n"
            "  box.replace({'Point', {'detail', 'detail'}, 'Point'});   % nested: a level deeper");
        cls.addSuperclass("deckforge.ppt.Shape");
        cls.addConstructor(
            {}, [](Call&) { return BaseTextBox(); }, "BaseTextBox()");
        addCharacterStyleProperties<BaseTextBox>(cls);
        addBoxStyleProperties<BaseTextBox>(cls);
        addBoxTextMethods(cls);
        addBoxValueMethods(cls);
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosBaseTextBox() {
    return std::make_unique<CosBaseTextBox>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
