#include "nodes/text.h"

#include "writers/text_writer.h"

namespace deckforge {
namespace ppt {

TextImpl::TextImpl() {
    reportCreated();
}

TextImpl::TextImpl(u16string const& text) : mTextContent(text) {
    reportCreated();
}

TextImpl::TextImpl(double value) : mTextContent(num2str(value)), mNumContent(value), mIsNum(true) {
    reportCreated();
}

TextImpl::TextImpl(TextImpl const& other)
    : ElementImpl(other),
      mTextContent(other.mTextContent),
      mNumContent(other.mNumContent),
      mIsNum(other.mIsNum) {
    reportCreated();
}

TextImpl::~TextImpl() {
    reportDestroyed();
}

char const* TextImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Text";
}

void TextImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    TextWriter(this, writer, parent).write();
}

PPTNodePtr TextImpl::makeInterface() {
    return boost::make_shared<Text>(this);
}

PPTNodePtr TextImpl::clone() const {
    return (new TextImpl(*this))->makeInterface();
}

NodeType TextImpl::getNodeType() const {
    return NodeType::Text;
}

void TextImpl::setTextContent(u16string const& text) {
    mTextContent = text;
    mIsNum = false;
}

double TextImpl::getNumContent() const {
    return mIsNum ? mNumContent : str2double(mTextContent);
}

void TextImpl::setNumContent(double value) {
    mTextContent = num2str(value);
    mNumContent = value;
    mIsNum = true;
}

Text::Text() : Element(new TextImpl()) {}

Text::Text(u16string const& text) : Element(new TextImpl(text)) {}

Text::Text(double value) : Element(new TextImpl(value)) {}

}  // namespace ppt
}  // namespace deckforge
