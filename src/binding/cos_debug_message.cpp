#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "messages/message.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosDebugMessage : public CosPPTObjectClassInfo {
public:
    CosDebugMessage() : CosPPTObjectClassInfo("DebugMessage") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "d = deckforge.ppt.MessageDispatcher.getTheDispatcher();\n"
            "m = deckforge.ppt.DebugMessage('step 1', d);\n"
            "disp(m.Text)");
        cls.setHelp("A debug message: off unless the filter lets debug messages pass.");
        cls.addSuperclass("deckforge.ppt.Message");
        cls.addConstructor(
            {words::String, "deckforge.ppt.Object"},
            [](Call& c) { return DebugMessage(c.text(0), c.object(1)); },
            "DebugMessage(text, source): a message about the object source.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosDebugMessage() {
    return std::make_unique<CosDebugMessage>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
