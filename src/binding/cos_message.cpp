#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "messages/message.h"
#include "messages/message_filter.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosMessage : public CosPPTObjectClassInfo {
public:
    CosMessage() : CosPPTObjectClassInfo("Message") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "d = deckforge.ppt.MessageDispatcher.getTheDispatcher();\n"
            "m = deckforge.ppt.WarningMessage('careful', d);\n"
            "disp(m.Text)");
        cls.setHelp("A message of the library: a text and the object it is about, if any.");
        cls.addSuperclass("deckforge.ppt.Object");
        cls.addProperty("Text", "text", getter(&Message::getText), nullptr, "The message text.");
        cls.addProperty("Source", "host array", getter(&Message::getSource), nullptr,
                        "The object the message is about, or [].");
        cls.addMethod(
            "formatAsHTML", words::String, {},
            [](Call& c) { return toScript(c.self<Message>().formatAsHTML()); },
            "The message as one HTML paragraph, nothing escaped.");
        cls.addMethod(
            "formatAsText", words::String, {},
            [](Call& c) { return toScript(c.self<Message>().formatAsText()); },
            "The source's tag, a blank and the text; the text alone without a source.");
        cls.addMethod(
            "passesFilter", words::Logical, {"deckforge.ppt.MessageFilter"},
            [](Call& c) { return toScript(c.self<Message>().passesFilter(c.object<MessageFilter>(0))); },
            "Whether the filter lets the message through.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosMessage() {
    return std::make_unique<CosMessage>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
