#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "messages/message.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosErrorMessage : public CosPPTObjectClassInfo {
public:
    CosErrorMessage() : CosPPTObjectClassInfo("ErrorMessage") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "d = deckforge.ppt.MessageDispatcher.getTheDispatcher();\n"
            "m = deckforge.ppt.ErrorMessage('no such layout', d);\n"
            "disp(class(m))");
        cls.setHelp("An error message.");
        cls.addSuperclass("deckforge.ppt.Message");
        cls.addConstructor(
            {words::String, "deckforge.ppt.Object"},
            [](Call& c) { return ErrorMessage(c.text(0), c.object(1)); },
            "ErrorMessage(text, source): a message about the object source.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosErrorMessage() {
    return std::make_unique<CosErrorMessage>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
