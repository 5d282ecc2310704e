#include "messages/message_filter.h"

#include "messages/message.h"

namespace deckforge {
namespace ppt {

char const* MessageFilterImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.MessageFilter";
}

bool MessageFilterImpl::passes(MessageImpl const& message, bool kindPasses) const {
    // The source beats the global filter, which beats the switches. Objects
    // are the same when their implementations are.
    if (sourceFilter.isSet()) {
        PPTObjectImpl const* wanted = sourceFilter.getValue().getImpl();
        auto const& source = message.getSource();
        if (wanted && source && source->getImpl() != wanted) return false;
    }
    if (globalFilter.isSet()) return globalFilter.getValue() == u"pass";
    return kindPasses;
}

MessageFilter::MessageFilter() : PPTObject(new MessageFilterImpl()) {}

}  // namespace ppt
}  // namespace deckforge
