// Editing the deck as a whole: removing, moving and copying slides, the
// slides' speaker notes, and the document's core properties. The parts that
// these change are settled at close: a slide that left the tree isn't
// written, and what only it reached is swept from the package.
#include <regex>

#include "engine/presentation.h"
#include "messages/message.h"
#include "platform/msg_ids.h"
#include "template/core_properties.h"
#include "template/presentation_model.h"
#include "template/slide_copy.h"

namespace deckforge {
namespace ppt {

namespace {

// The slide's implementation if it is a child of `presentation`; raises
// slideNotInPresentation otherwise.
SlideImpl* deckSlide(PresentationImpl& presentation, PPTNode const& slide) {
    auto* impl = dynamic_cast<SlideImpl*>(slide.getImpl());
    if (!impl || impl->getParent() != &presentation) raise<ppt_error::slideNotInPresentation>();
    return impl;
}

PPTNodeList withoutChild(PPTNodeList const& children, PPTObjectImpl const* child) {
    PPTNodeList rest;
    rest.reserve(children.size());
    for (auto const& node : children)
        if (node && node->getImpl() != child) rest.push_back(node);
    return rest;
}

// W3CDTF, the profile of ISO 8601 that the core properties hold: a year,
// optionally a month and day, and a time with a zone.
bool isW3cdtf(u16string const& text) {
    static std::regex const pattern(
        R"(\d{4}(-\d{2}(-\d{2}(T\d{2}:\d{2}(:\d{2}(\.\d+)?)?(Z|[+-]\d{2}:\d{2}))?)?)?)");
    return std::regex_match(toUtf8(text), pattern);
}

}  // namespace

// ---- Slides

void PresentationImpl::removeSlide(PPTNode const& slide) {
    open();
    SlideImpl* impl = deckSlide(*this, slide);
    PPTNodeList const rest = withoutChild(getChildren(), impl);
    // The handle keeps the slide alive while the parent lets it go.
    PPTNodePtr const keep = impl->makeInterface();
    clearChildren();
    setChildren(rest);
}

void PresentationImpl::moveSlide(PPTNode const& slide, std::size_t index) {
    open();
    SlideImpl* impl = deckSlide(*this, slide);
    PPTNodePtr const node = impl->makeInterface();
    PPTNodeList rest = withoutChild(getChildren(), impl);
    rest.insert(rest.begin() + static_cast<std::ptrdiff_t>(std::min(index, rest.size())), node);
    clearChildren();
    setChildren(rest);
}

Slide PresentationImpl::duplicateSlide(PPTNode const& slide, std::size_t const* index) {
    open();
    SlideImpl* impl = deckSlide(*this, slide);
    PPTNodePtr const copy = impl->clone();
    auto* copyImpl = static_cast<SlideImpl*>(copy->getImpl());
    copyImpl->setName(impl->getName());
    if (impl->getTemplateSlide() && mModel) {
        copyImpl->setTemplateSlide(copySlideRecord(*mModel, *impl->getTemplateSlide()));
    }
    std::size_t position = 0;
    if (index) {
        position = *index;
    } else {
        PPTNodeList const& children = getChildren();
        while (position < children.size() && children[position]->getImpl() != impl) ++position;
        ++position;
    }
    PPTNodeImpl::insertChild(copy, position);
    return Slide(copyImpl);
}

// ---- Core properties

std::vector<std::pair<u16string, u16string>> PresentationImpl::getProperties() {
    open();
    std::vector<std::pair<u16string, u16string>> result;
    for (auto const& field : corePropertyFields()) {
        auto assigned = mAssignedProperties.find(field.field);
        auto read = mCoreProperties.find(field.field);
        result.emplace_back(field.field, assigned != mAssignedProperties.end() ? assigned->second
                                         : read != mCoreProperties.end()       ? read->second
                                                                               : u16string());
    }
    return result;
}

void PresentationImpl::setProperty(u16string const& field, u16string const& value) {
    open();
    CorePropertyField const* known = findCorePropertyField(field);
    if (!known) raise<ppt_error::unknownPropertiesField>(field);
    if (known->isDate && !value.empty() && !isW3cdtf(value)) raise<ppt_error::invalidPropertyValue>(value);
    mAssignedProperties[field] = value;
}

// ---- Speaker notes

u16string SlideImpl::getNotes() const {
    u16string text;
    if (!mTemplateSlide) return text;
    for (std::size_t i = 0; i < mTemplateSlide->notes.size(); ++i) {
        if (i > 0) text += u'\n';
        text += mTemplateSlide->notes[i].text;
    }
    return text;
}

void SlideImpl::setNotes(u16string const& text) {
    std::vector<std::pair<std::uint32_t, u16string>> paragraphs;
    std::size_t start = 0;
    for (;;) {
        std::size_t const end = text.find(u'\n', start);
        paragraphs.emplace_back(1, text.substr(start, end == u16string::npos ? u16string::npos : end - start));
        if (end == u16string::npos) break;
        start = end + 1;
    }
    setNotes(paragraphs);
}

void SlideImpl::setNotes(std::vector<std::pair<std::uint32_t, u16string>> const& paragraphs) {
    if (!mTemplateSlide) return;
    NotesParagraphs notes;
    for (auto const& paragraph : paragraphs) {
        // A line feed inside an item starts a paragraph of the same level.
        std::size_t start = 0;
        for (;;) {
            std::size_t const end = paragraph.second.find(u'\n', start);
            NotesParagraph item;
            item.level = std::max<std::uint32_t>(paragraph.first, 1);
            item.text = paragraph.second.substr(start, end == u16string::npos ? u16string::npos : end - start);
            notes.push_back(std::move(item));
            if (end == u16string::npos) break;
            start = end + 1;
        }
    }
    if (notes.size() == 1 && notes.front().text.empty()) notes.clear();
    mTemplateSlide->notes = std::move(notes);
    mTemplateSlide->notesChanged = true;
}

}  // namespace ppt
}  // namespace deckforge
