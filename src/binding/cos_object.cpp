#include "binding/accessors.h"
#include "binding/ppt_classes.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosObject : public CosPPTObjectClassInfo {
public:
    CosObject() : CosPPTObjectClassInfo("Object") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "t = deckforge.ppt.Text('hello');\n"
            "isa(t, 'deckforge.ppt.Object')");
        cls.setHelp(
            "Base of every object of the library: an Id unique in the session and a Tag for messages.");
        cls.addSuperclass("deckforge.ppt.Null");
        cls.addProperty("Tag", "text", getter(&PPTObject::getTag), textSetter(&PPTObject::setTag),
                        "Name of the object in messages; \"<class>:<Id>\" until set.");
        cls.addProperty("Id", "text", getter(&PPTObject::getId), textSetter(&PPTObject::setId),
                        "Identifier of the object, unique in the session until changed.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosObject() {
    return std::make_unique<CosObject>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
