#include "messages/message.h"

#include <boost/make_shared.hpp>

#include "messages/message_filter.h"
#include "platform/i18n.h"

namespace deckforge {
namespace ppt {

namespace {
boost::shared_ptr<PPTObject> sourceOf(PPTObject const* source) {
    if (!source || !source->getImpl()) return {};
    return boost::make_shared<PPTObject>(*source);
}
}  // namespace

MessageImpl::MessageImpl(u16string text, PPTObject const* source)
    : mText(std::move(text)), mSource(sourceOf(source)) {}

MessageImpl::MessageImpl(resource_core::BaseMsgID const& id, PPTObject const* source)
    : mText(fl::i18n::MessageCatalog::get_message(id)), mSource(sourceOf(source)) {}

char const* MessageImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Message";
}

u16string MessageImpl::formatAsText() const {
    if (!mSource) return mText;
    return mSource->getTag() + u" " + mText;
}

u16string MessageImpl::formatAsHTML() const {
    return u"<p>" + formatAsText() + u"</p>";
}

bool Message::passesFilter(MessageFilter const& filter) const {
    return messageImpl()->passesFilter(*filter.filterImpl());
}

char const* DebugMessageImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.DebugMessage";
}
bool DebugMessageImpl::passesFilter(MessageFilterImpl const& filter) const {
    return filter.passes(*this, filter.debugPass);
}

char const* ErrorMessageImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.ErrorMessage";
}
bool ErrorMessageImpl::passesFilter(MessageFilterImpl const& filter) const {
    return filter.passes(*this, filter.errorsPass);
}

char const* ProgressMessageImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.ProgressMessage";
}
bool ProgressMessageImpl::passesFilter(MessageFilterImpl const& filter) const {
    return filter.passes(*this, filter.progressPass);
}

char const* WarningMessageImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.WarningMessage";
}
bool WarningMessageImpl::passesFilter(MessageFilterImpl const& filter) const {
    return filter.passes(*this, filter.warningsPass);
}

DebugMessage::DebugMessage(u16string const& text, PPTObject const& source)
    : Message(new DebugMessageImpl(text, &source)) {}
DebugMessage::DebugMessage(u16string const& text) : Message(new DebugMessageImpl(text, nullptr)) {}
DebugMessage::DebugMessage(resource_core::BaseMsgID const& id, PPTObject const& source)
    : Message(new DebugMessageImpl(id, &source)) {}
DebugMessage::DebugMessage(resource_core::BaseMsgID const& id) : Message(new DebugMessageImpl(id, nullptr)) {}

ErrorMessage::ErrorMessage(u16string const& text, PPTObject const& source)
    : Message(new ErrorMessageImpl(text, &source)) {}
ErrorMessage::ErrorMessage(u16string const& text) : Message(new ErrorMessageImpl(text, nullptr)) {}
ErrorMessage::ErrorMessage(resource_core::BaseMsgID const& id, PPTObject const& source)
    : Message(new ErrorMessageImpl(id, &source)) {}
ErrorMessage::ErrorMessage(resource_core::BaseMsgID const& id) : Message(new ErrorMessageImpl(id, nullptr)) {}

ProgressMessage::ProgressMessage(u16string const& text, PPTObject const& source)
    : Message(new ProgressMessageImpl(text, &source)) {}
ProgressMessage::ProgressMessage(u16string const& text) : Message(new ProgressMessageImpl(text, nullptr)) {}
ProgressMessage::ProgressMessage(resource_core::BaseMsgID const& id, PPTObject const& source)
    : Message(new ProgressMessageImpl(id, &source)) {}
ProgressMessage::ProgressMessage(resource_core::BaseMsgID const& id)
    : Message(new ProgressMessageImpl(id, nullptr)) {}

WarningMessage::WarningMessage(u16string const& text, PPTObject const& source)
    : Message(new WarningMessageImpl(text, &source)) {}
WarningMessage::WarningMessage(u16string const& text) : Message(new WarningMessageImpl(text, nullptr)) {}
WarningMessage::WarningMessage(resource_core::BaseMsgID const& id, PPTObject const& source)
    : Message(new WarningMessageImpl(id, &source)) {}
WarningMessage::WarningMessage(resource_core::BaseMsgID const& id)
    : Message(new WarningMessageImpl(id, nullptr)) {}

}  // namespace ppt
}  // namespace deckforge
