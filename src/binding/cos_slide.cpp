#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "engine/slide.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosSlide : public CosPPTObjectClassInfo {
public:
    CosSlide() : CosPPTObjectClassInfo("Slide") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setHelp("A slide of a presentation, made by the presentation's add.");
        cls.addSuperclass("deckforge.ppt.Element");
        cls.addProperty("Layout", "text", getter(&Slide::getLayoutName), nullptr, "The slide's layout.");
        cls.addProperty("SlideMaster", "text", getter(&Slide::getSlideMasterName), nullptr,
                        "The slide master of the layout.");
        cls.addProperty("Name", "text", getter(&PPTNode::getName), textSetter(&Slide::setName),
                        "The slide's name.");
        cls.addMethod(
            "find", words::NodeVector, {words::String},
            [](Call& c) { return toScript(c.self<Slide>().find(c.text(0))); },
            "The nodes of that name on the slide, as a cell row; [] if none.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosSlide() {
    return std::make_unique<CosSlide>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
