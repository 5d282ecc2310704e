#include "writers/part_dom_writer.h"

#include <utility>
#include <vector>

#include <xercesc/dom/DOM.hpp>

#include "platform/opc/opc.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

PartDOMWriter::PartDOMWriter() = default;

PartDOMWriter::PartDOMWriter(boost::shared_ptr<OPCPackage> const& package) : PartDocumentWriter(package) {}

void PartDOMWriter::createDocumentPart(u16string const& name, u16string const& contentType,
                                       xercesc::DOMDocument* document) {
    opc::model::Part part = createPart(name, contentType);
    writeTo(part, document);
}

void PartDOMWriter::writeDocument(u16string const& name, xercesc::DOMDocument* document) {
    opc::model::Part part = getPart(name);
    writeTo(part, document);
}

namespace {

// The model's marker ties its records to elements while the document lives;
// it is in no schema, and strict readers repair a part that carries it. It
// leaves the elements for the time of writing and comes back after, so the
// model keeps finding its shapes.
class MarkersAside {
public:
    explicit MarkersAside(xercesc::DOMDocument* document) {
        std::vector<xercesc::DOMElement*> pending;
        if (document && document->getDocumentElement()) pending.push_back(document->getDocumentElement());
        while (!pending.empty()) {
            xercesc::DOMElement* element = pending.back();
            pending.pop_back();
            if (xercesc::DOMAttr* marker = element->getAttributeNode(xml::kDataUid)) {
                set.emplace_back(element, marker->getValue());
                element->removeAttribute(xml::kDataUid);
            }
            for (xercesc::DOMElement* child = element->getFirstElementChild(); child;
                 child = child->getNextElementSibling())
                pending.push_back(child);
        }
    }
    ~MarkersAside() {
        for (auto const& [element, value] : set) element->setAttribute(xml::kDataUid, value.c_str());
    }
    MarkersAside(MarkersAside const&) = delete;
    MarkersAside& operator=(MarkersAside const&) = delete;

private:
    std::vector<std::pair<xercesc::DOMElement*, std::u16string>> set;
};

}  // namespace

void PartDOMWriter::writeTo(opc::model::Part& part, xercesc::DOMDocument* document) {
    MarkersAside const aside(document);
    boost::shared_ptr<opc::OutputStream> stream = part.getOutputStream();
    opc::model::XercesHelper::writeDocumentToStream(document, *stream);
    stream->close();
}

}  // namespace ppt
}  // namespace deckforge
