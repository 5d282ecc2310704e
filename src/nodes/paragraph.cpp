#include "nodes/paragraph.h"

#include "writers/paragraph_writer.h"

namespace deckforge {
namespace ppt {

ParagraphImpl::ParagraphImpl() {
    reportCreated();
}

ParagraphImpl::ParagraphImpl(ParagraphImpl const& other) : ElementImpl(other) {
    if (other.mLevel.isSet()) mLevel.setValue(other.mLevel.getValue());
    reportCreated();
}

ParagraphImpl::~ParagraphImpl() {
    reportDestroyed();
}

char const* ParagraphImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Paragraph";
}

void ParagraphImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    ParagraphWriter(this, writer, parent).write();
}

PPTNodePtr ParagraphImpl::makeInterface() {
    return boost::make_shared<Paragraph>(this);
}

PPTNodePtr ParagraphImpl::clone() const {
    return (new ParagraphImpl(*this))->makeInterface();
}

NodeType ParagraphImpl::getNodeType() const {
    return NodeType::Paragraph;
}

namespace {
// A handle of the run's own class over the same object, as the child list
// holds it.
PPTNodePtr childHandle(Text const& text) {
    return text.textImpl()->makeInterface();
}
}  // namespace

Paragraph::Paragraph() : Element(new ParagraphImpl()) {}

Paragraph::Paragraph(u16string const& text) : Paragraph() {
    append(text);
}

Paragraph::Paragraph(double value) : Paragraph() {
    paragraphImpl()->appendChild(boost::make_shared<Text>(value));
}

Paragraph::Paragraph(Text const& text) : Paragraph() {
    append(text);
}

Paragraph::Paragraph(unsigned int level) : Paragraph() {
    setLevel(level);
}

Paragraph::Paragraph(u16string const& text, unsigned int level) : Paragraph(text) {
    setLevel(level);
}

Paragraph::Paragraph(double value, unsigned int level) : Paragraph(value) {
    setLevel(level);
}

Paragraph::Paragraph(Text const& text, unsigned int level) : Paragraph(text) {
    setLevel(level);
}

Text Paragraph::append(u16string const& text) {
    auto run = boost::make_shared<Text>(text);
    paragraphImpl()->appendChild(run);
    return *run;
}

Text Paragraph::append(Text const& text) {
    paragraphImpl()->appendChild(childHandle(text));
    return text;
}

ExternalLink Paragraph::append(ExternalLink const& link) {
    paragraphImpl()->appendChild(childHandle(link));
    return link;
}

}  // namespace ppt
}  // namespace deckforge
