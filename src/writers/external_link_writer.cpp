#include "writers/external_link_writer.h"

#include <xercesc/dom/DOM.hpp>

#include "writers/ppt_part_writer.h"
#include "writers/xml_names.h"
#include "writers/xml_text.h"

namespace deckforge {
namespace ppt {

namespace {
xml::Name const kHlinkClick{u"a:hlinkClick"};
xml::Name const kRId{u"r:id"};
xml::Name const kXmlnsR{u"xmlns:r"};
xml::Name const kRelationshipsNamespace{
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships"};

// The parser keeps namespace declarations as plain attributes. Slides cloned
// from a layout declare r: already; one that doesn't would make r:id an
// unbound prefix, and the part would not be namespace-well-formed.
void declareRelationshipPrefix(xercesc::DOMElement* element) {
    xercesc::DOMElement* root = element->getOwnerDocument()->getDocumentElement();
    if (root && !root->hasAttribute(kXmlnsR)) root->setAttribute(kXmlnsR, kRelationshipsNamespace);
}
}  // namespace

void ExternalLinkWriter::writeLink() {
    u16string const id =
        getPartWriter()->addHyperlink(getCurrentSlidePartName(), uriReference(link->getTarget()));
    xercesc::DOMElement* click = addRunProperty(kHlinkClick);
    if (!click) return;
    click->setAttribute(kRId, id.c_str());
    declareRelationshipPrefix(click);
}

}  // namespace ppt
}  // namespace deckforge
