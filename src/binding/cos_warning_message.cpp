#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "messages/message.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosWarningMessage : public CosPPTObjectClassInfo {
public:
    CosWarningMessage() : CosPPTObjectClassInfo("WarningMessage") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "d = deckforge.ppt.MessageDispatcher.getTheDispatcher();\n"
            "m = deckforge.ppt.WarningMessage('the title is long', d);\n"
            "d.dispatch(m);");
        cls.setHelp("A warning message.");
        cls.addSuperclass("deckforge.ppt.Message");
        cls.addConstructor(
            {words::String, "deckforge.ppt.Object"},
            [](Call& c) { return WarningMessage(c.text(0), c.object(1)); },
            "WarningMessage(text, source): a message about the object source.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosWarningMessage() {
    return std::make_unique<CosWarningMessage>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
