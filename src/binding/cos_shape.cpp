#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "nodes/shape.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosShape : public CosPPTObjectClassInfo {
public:
    CosShape() : CosPPTObjectClassInfo("Shape") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "box = deckforge.ppt.TextBox();\n"
            "box.X = '1in';\n"
            "box.Y = '2in';\n"
            "box.Width = '12cm';\n"
            "box.Height = '1in';");
        cls.setHelp(
            "Something on a slide with a position and a size. Lengths are text with units\n"
            "(px, in, mm, cm, pt, ...); [] leaves a value to the template.\n"
            "  box.X = '1in'; box.Width = '12cm';");
        cls.addSuperclass("deckforge.ppt.Element");
        cls.addConstructor(
            {}, [](Call&) { return Shape(); }, "Shape()");
        cls.addProperty("Name", "text", getter(&PPTNode::getName), textSetter(&Shape::setName),
                        "The name that find, add and replace by name look for.");
        cls.addProperty("X", "dimension text or empty", getter(&Shape::getX),
                        optionalTextSetter(&Shape::setX, &Shape::unsetX), "Distance from the left edge.");
        cls.addProperty("Y", "dimension text or empty", getter(&Shape::getY),
                        optionalTextSetter(&Shape::setY, &Shape::unsetY), "Distance from the top edge.");
        cls.addProperty("Width", "dimension text or empty", getter(&Shape::getWidth),
                        optionalTextSetter(&Shape::setWidth, &Shape::unsetWidth), "The width.");
        cls.addProperty("Height", "dimension text or empty", getter(&Shape::getHeight),
                        optionalTextSetter(&Shape::setHeight, &Shape::unsetHeight), "The height.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosShape() {
    return std::make_unique<CosShape>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
