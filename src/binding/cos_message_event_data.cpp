#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "messages/message_dispatcher.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosMessageEventData : public CosPPTObjectClassInfo {
public:
    CosMessageEventData() : CosPPTObjectClassInfo("MessageEventData") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "d = deckforge.ppt.MessageDispatcher.getTheDispatcher();\n"
            "e = deckforge.ppt.MessageEventData(deckforge.ppt.ProgressMessage('done', d));\n"
            "disp(e.Message.Text)");
        cls.setHelp("The data of a \"Message\" event of the dispatcher.");
        cls.addSuperclass("deckforge.ppt.Object");
        cls.addConstructor(
            {"deckforge.ppt.Message"}, [](Call& c) { return MessageEventData(c.object<Message>(0)); },
            "MessageEventData(message)");
        cls.addProperty("Message", "deckforge.ppt.Message", getter(&MessageEventData::getMessage), nullptr,
                        "The message of the event.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosMessageEventData() {
    return std::make_unique<CosMessageEventData>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
