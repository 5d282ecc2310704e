#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "nodes/picture.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosPicture : public CosPPTObjectClassInfo {
public:
    CosPicture() : CosPPTObjectClassInfo("Picture") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setHelp("A picture on a slide.");
        cls.addSuperclass("deckforge.ppt.Shape");
        cls.addConstructor(
            {}, [](Call&) { return Picture(); }, "Picture()");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosPicture() {
    return std::make_unique<CosPicture>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
