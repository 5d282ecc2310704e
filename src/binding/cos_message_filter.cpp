#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "messages/message_filter.h"

namespace deckforge {
namespace ppt {
namespace mi {

// The one class without a superclass of the package.
class CosMessageFilter : public CosPPTObjectClassInfo {
public:
    CosMessageFilter() : CosPPTObjectClassInfo("MessageFilter") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "f = deckforge.ppt.MessageFilter();\n"
            "f.DebugMessagesPass = true;\n"
            "f.WarningMessagesPass = false;\n"
            "disp(f.ErrorMessagesPass)");
        cls.setHelp(
            "Decides which messages reach listeners. A set SourceFilter stops messages about\n"
            "other objects; a set GlobalFilter then decides alone ('pass' lets all through,\n"
            "any other text none); otherwise each kind has its switch, all on but debug.");
        cls.addConstructor(
            {}, [](Call&) { return MessageFilter(); }, "MessageFilter(): the default filter.");
        cls.addProperty(
            "GlobalFilter", "text or empty", getter(&MessageFilter::getGlobalFilter),
            optionalTextSetter(&MessageFilter::setGlobalFilter, &MessageFilter::unsetGlobalFilter),
            "'pass' lets every message through, any other text none; [] unsets.");
        cls.addProperty("SourceFilter", "host array", getter(&MessageFilter::getSourceFilter),
                        optionalObjectSetter(&MessageFilter::setSourceFilter,
                                             &MessageFilter::unsetSourceFilter, "deckforge.ppt.Object"),
                        "Only messages about this object, or without a source, pass; [] unsets.");
        cls.addProperty("ErrorMessagesPass", "logical", getter(&MessageFilter::getErrorMessagesPass),
                        logicalSetter(&MessageFilter::setErrorMessagesPass), "Whether error messages pass.");
        cls.addProperty("WarningMessagesPass", "logical", getter(&MessageFilter::getWarningMessagesPass),
                        logicalSetter(&MessageFilter::setWarningMessagesPass), "Whether warnings pass.");
        cls.addProperty("ProgressMessagesPass", "logical", getter(&MessageFilter::getProgressMessagesPass),
                        logicalSetter(&MessageFilter::setProgressMessagesPass),
                        "Whether progress messages pass.");
        cls.addProperty("DebugMessagesPass", "logical", getter(&MessageFilter::getDebugMessagesPass),
                        logicalSetter(&MessageFilter::setDebugMessagesPass),
                        "Whether debug messages (object creation and destruction) pass.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosMessageFilter() {
    return std::make_unique<CosMessageFilter>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
