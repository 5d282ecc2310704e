#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "messages/message.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosProgressMessage : public CosPPTObjectClassInfo {
public:
    CosProgressMessage() : CosPPTObjectClassInfo("ProgressMessage") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "d = deckforge.ppt.MessageDispatcher.getTheDispatcher();\n"
            "l = addlistener(d, 'Message', @(src, evt) disp(evt.Message.Text));\n"
            "d.dispatch(deckforge.ppt.ProgressMessage('halfway', d));\n"
            "delete(l);");
        cls.setHelp("A progress message: what the library is doing.");
        cls.addSuperclass("deckforge.ppt.Message");
        cls.addConstructor(
            {words::String, "deckforge.ppt.Object"},
            [](Call& c) { return ProgressMessage(c.text(0), c.object(1)); },
            "ProgressMessage(text, source): a message about the object source.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosProgressMessage() {
    return std::make_unique<CosProgressMessage>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
