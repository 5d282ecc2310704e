#include "writers/element_writer.h"

#include <xercesc/dom/DOM.hpp>

#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

ElementWriter::ElementWriter(ElementImpl const* node_, PPTWriter* writer_, xercesc::DOMNode* parent_)
    : node(node_), writer(writer_), parent(parent_) {}

ElementWriter::~ElementWriter() = default;

void ElementWriter::write() {}

void ElementWriter::applyFormat(FormatImpl const*) {}

boost::shared_ptr<Format> ElementWriter::findFormat(ElementImpl const* element, FormatType type) const {
    if (!element) return boost::shared_ptr<Format>();
    if (auto own = element->getFormat(type)) return own;
    if (element->getNodeType() == NodeType::TableRow) {
        if (auto column = writer->getTableContext()->getCurrentColumnFormats().getFormat(type)) return column;
    }
    if (PPTNodeImpl const* parent = element->getParent()) return findFormat(parent->asElement(), type);
    return boost::shared_ptr<Format>();
}

bool ElementWriter::acceptsFormat(Format const&) const {
    return true;
}

std::vector<FormatType> const& ElementWriter::getInheritableFormatTypes() const {
    static std::vector<FormatType> const none;
    return none;
}

void ElementWriter::applyFormats(ElementImpl const* element, std::vector<FormatType> const& types) {
    Formats const& own = element->getStyle();
    for (auto const& entry : own.getMap()) {
        if (entry.second && acceptsFormat(*entry.second)) applyFormat(entry.second->formatImpl());
    }
    for (FormatType type : types) {
        if (own.getFormat(type)) continue;
        auto inherited = findFormat(element, type);
        if (inherited && acceptsFormat(*inherited)) applyFormat(inherited->formatImpl());
    }
}

xercesc::DOMElement* ElementWriter::findChildElement(xercesc::DOMElement const* element, XMLCh const* name) {
    if (!element) return nullptr;
    for (auto* child = element->getFirstElementChild(); child; child = child->getNextElementSibling())
        if (xercesc::XMLString::equals(child->getTagName(), name)) return child;
    return nullptr;
}

void ElementWriter::removeChildElements(xercesc::DOMElement* element, XMLCh const* name) {
    if (!element) return;
    std::vector<xercesc::DOMElement*> doomed;
    for (auto* child = element->getFirstElementChild(); child; child = child->getNextElementSibling())
        if (xercesc::XMLString::equals(child->getTagName(), name)) doomed.push_back(child);
    for (auto* child : doomed) element->removeChild(child);
}

void ElementWriter::addEmptyParagraph(xercesc::DOMElement* element) const {
    xercesc::DOMElement* body = findChildElement(element, xml::kTxBody);
    if (!body) body = findChildElement(element, xml::kDrawingTxBody);
    if (!body || findChildElement(body, xml::kP)) return;
    xercesc::DOMDocument* document = body->getOwnerDocument();
    xercesc::DOMElement* paragraph = document->createElement(xml::kP);
    paragraph->appendChild(document->createElement(xml::kEndParaRPr));
    body->appendChild(paragraph);
}

void ElementWriter::writeChildren(xercesc::DOMNode* childParent) {
    for (auto const& child : node->getChildren())
        if (child) child->acceptWriter(writer, childParent);
}

}  // namespace ppt
}  // namespace deckforge
