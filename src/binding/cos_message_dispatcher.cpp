#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "messages/message_dispatcher.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosMessageDispatcher : public CosPPTObjectClassInfo {
public:
    CosMessageDispatcher() : CosPPTObjectClassInfo("MessageDispatcher") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "d = deckforge.ppt.MessageDispatcher.getTheDispatcher();\n"
            "l = addlistener(d, 'Message', @(src, evt) disp(evt.Message.Text));\n"
            "d.dispatch(deckforge.ppt.ProgressMessage('hello', d));\n"
            "delete(l);");
        cls.setHelp(
            "The one sink of the library's messages. Listen to its \"Message\" event with\n"
            "addlistener(d, 'Message', @(src, evt) disp(evt.Message.Text)); its Filter decides\n"
            "which messages pass.");
        cls.addSuperclass("deckforge.ppt.Object");
        cls.addConstructor(
            {}, [](Call&) -> PPTObject { return MessageDispatcher::getTheDispatcher(); },
            "MessageDispatcher(): the dispatcher; there is only one.");
        cls.addProperty("Filter", "deckforge.ppt.MessageFilter", getter(&MessageDispatcher::getMessageFilter),
                        nullptr, "The live filter: changing it changes what the dispatcher passes.");
        cls.addStaticMethod(
            "getTheDispatcher", "deckforge.ppt.MessageDispatcher", {},
            [](Call&) { return toScript(MessageDispatcher::getTheDispatcher()); },
            "The dispatcher; there is only one.");
        cls.addMethod(
            "dispatch", words::Void, {"deckforge.ppt.Message"},
            [](Call& c) {
                c.self<MessageDispatcher>().dispatch(c.object<Message>(0));
                return Value();
            },
            "Sends a message to the listeners if it passes the filter.");
        cls.addEvent(kMessageEventName, "deckforge.ppt.MessageEventData",
                     "Fired when a message is appended to the Reporter Message Log");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosMessageDispatcher() {
    return std::make_unique<CosMessageDispatcher>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
