// Messages: what the system tells script code while it works, at four
// levels. A message's text is complete when it is made, so a message made
// from an id is never translated again.
#pragma once

#include <boost/shared_ptr.hpp>

#include "engine/ppt_object.h"
#include "platform/except.h"

namespace deckforge {
namespace ppt {

class MessageFilter;
class MessageFilterImpl;

class MessageImpl : public PPTObjectImpl {
public:
    // A source without an implementation counts as no source.
    MessageImpl(u16string text, PPTObject const* source);
    MessageImpl(resource_core::BaseMsgID const& id, PPTObject const* source);

    char const* getFullyQualifiedHobjTypeName() const override;
    // Each kind tests its own switch of the filter.
    virtual bool passesFilter(MessageFilterImpl const& filter) const = 0;

    u16string const& getText() const { return mText; }
    boost::shared_ptr<PPTObject> const& getSource() const { return mSource; }
    u16string formatAsText() const;
    u16string formatAsHTML() const;

private:
    u16string mText;
    boost::shared_ptr<PPTObject> mSource;
};

class Message : public PPTObject {
public:
    explicit Message(PPTObjectImpl* impl) : PPTObject(impl) {}

    u16string const& getText() const { return messageImpl()->getText(); }
    boost::shared_ptr<PPTObject> getSource() const { return messageImpl()->getSource(); }
    // The source's tag, a blank and the text; the text alone without a source.
    u16string formatAsText() const { return messageImpl()->formatAsText(); }
    // As formatAsText, in "<p>" and "</p>". Nothing is escaped.
    u16string formatAsHTML() const { return messageImpl()->formatAsHTML(); }
    bool passesFilter(MessageFilter const& filter) const;

    MessageImpl* messageImpl() const { return getImplAs<MessageImpl>(); }
};

// The four kinds differ only in their script class and in the filter switch
// that lets them through.
class DebugMessageImpl : public MessageImpl {
public:
    using MessageImpl::MessageImpl;
    char const* getFullyQualifiedHobjTypeName() const override;
    bool passesFilter(MessageFilterImpl const& filter) const override;
};

class DebugMessage : public Message {
public:
    DebugMessage(u16string const& text, PPTObject const& source);
    explicit DebugMessage(u16string const& text);
    DebugMessage(resource_core::BaseMsgID const& id, PPTObject const& source);
    explicit DebugMessage(resource_core::BaseMsgID const& id);
    explicit DebugMessage(PPTObjectImpl* impl) : Message(impl) {}
};

class ErrorMessageImpl : public MessageImpl {
public:
    using MessageImpl::MessageImpl;
    char const* getFullyQualifiedHobjTypeName() const override;
    bool passesFilter(MessageFilterImpl const& filter) const override;
};

class ErrorMessage : public Message {
public:
    ErrorMessage(u16string const& text, PPTObject const& source);
    explicit ErrorMessage(u16string const& text);
    ErrorMessage(resource_core::BaseMsgID const& id, PPTObject const& source);
    explicit ErrorMessage(resource_core::BaseMsgID const& id);
    explicit ErrorMessage(PPTObjectImpl* impl) : Message(impl) {}
};

class ProgressMessageImpl : public MessageImpl {
public:
    using MessageImpl::MessageImpl;
    char const* getFullyQualifiedHobjTypeName() const override;
    bool passesFilter(MessageFilterImpl const& filter) const override;
};

class ProgressMessage : public Message {
public:
    ProgressMessage(u16string const& text, PPTObject const& source);
    explicit ProgressMessage(u16string const& text);
    ProgressMessage(resource_core::BaseMsgID const& id, PPTObject const& source);
    explicit ProgressMessage(resource_core::BaseMsgID const& id);
    explicit ProgressMessage(PPTObjectImpl* impl) : Message(impl) {}
};

class WarningMessageImpl : public MessageImpl {
public:
    using MessageImpl::MessageImpl;
    char const* getFullyQualifiedHobjTypeName() const override;
    bool passesFilter(MessageFilterImpl const& filter) const override;
};

class WarningMessage : public Message {
public:
    WarningMessage(u16string const& text, PPTObject const& source);
    explicit WarningMessage(u16string const& text);
    WarningMessage(resource_core::BaseMsgID const& id, PPTObject const& source);
    explicit WarningMessage(resource_core::BaseMsgID const& id);
    explicit WarningMessage(PPTObjectImpl* impl) : Message(impl) {}
};

}  // namespace ppt
}  // namespace deckforge
