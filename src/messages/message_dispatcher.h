// The one sink of messages. A message that passes the filter is raised as
// the script event "Message" on the dispatcher's script object; without a
// script object, or when it is being destroyed, nothing happens. Listeners
// run inside dispatch, and what they throw passes through.
#pragma once

#include <boost/shared_ptr.hpp>

#include "engine/ppt_object.h"
#include "messages/message.h"
#include "messages/message_filter.h"

namespace deckforge {
namespace ppt {

class MessageEventDataImpl : public PPTObjectImpl {
public:
    explicit MessageEventDataImpl(Message const& message);
    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Message> const& getMessage() const { return mMessage; }

private:
    boost::shared_ptr<Message> mMessage;
};

// The data of one "Message" event.
class MessageEventData : public PPTObject {
public:
    explicit MessageEventData(Message const& message);
    explicit MessageEventData(PPTObjectImpl* impl) : PPTObject(impl) {}
    boost::shared_ptr<Message> getMessage() const { return getImplAs<MessageEventDataImpl>()->getMessage(); }
};

class MessageDispatcherImpl : public PPTObjectImpl {
public:
    char const* getFullyQualifiedHobjTypeName() const override;
    MessageFilter const& getFilter() const { return mFilter; }

private:
    MessageFilter mFilter;
};

class MessageDispatcher : public PPTObject {
public:
    explicit MessageDispatcher(PPTObjectImpl* impl) : PPTObject(impl) {}

    // Made on first use and never destroyed, so that objects that die during
    // the library's unloading can still ask it whether to report.
    static MessageDispatcher& getTheDispatcher();

    void dispatch(Message const& message) const;
    // A handle over the live filter: changing it changes the dispatcher.
    MessageFilter getMessageFilter() const { return getImplAs<MessageDispatcherImpl>()->getFilter(); }

private:
    MessageDispatcher();
};

// The name of the script event that carries messages.
constexpr char const* kMessageEventName = "Message";

}  // namespace ppt
}  // namespace deckforge
