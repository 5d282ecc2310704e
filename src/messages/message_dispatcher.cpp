#include "messages/message_dispatcher.h"

#include <boost/make_shared.hpp>

#include "platform/hobj.h"

namespace deckforge {
namespace ppt {

MessageEventDataImpl::MessageEventDataImpl(Message const& message)
    : mMessage(boost::make_shared<Message>(message)) {}

char const* MessageEventDataImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.MessageEventData";
}

MessageEventData::MessageEventData(Message const& message) : PPTObject(new MessageEventDataImpl(message)) {}

char const* MessageDispatcherImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.MessageDispatcher";
}

MessageDispatcher::MessageDispatcher() : PPTObject(new MessageDispatcherImpl()) {}

MessageDispatcher& MessageDispatcher::getTheDispatcher() {
    static MessageDispatcher* const theDispatcher = new MessageDispatcher();
    return *theDispatcher;
}

void MessageDispatcher::dispatch(Message const& message) const {
    auto* self = getImplAs<MessageDispatcherImpl>();
    if (!message.passesFilter(self->getFilter())) return;
    hobj::COSInterface* scriptObject = hobj::factory::basic::BindingRegistry::lookup(*self);
    if (!scriptObject || scriptObject->isBeingDestroyed()) return;
    MessageEventData data(message);
    scriptObject->notify(kMessageEventName, *data.getImpl());
}

}  // namespace ppt
}  // namespace deckforge
