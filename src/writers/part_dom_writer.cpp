#include "writers/part_dom_writer.h"

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

void PartDOMWriter::writeTo(opc::model::Part& part, xercesc::DOMDocument* document) {
    boost::shared_ptr<opc::OutputStream> stream = part.getOutputStream();
    // The model's marker ties its records to elements while the document
    // lives; it is in no schema, and strict readers repair a part that
    // carries it, so it stays in the DOM and out of the part.
    opc::model::XercesHelper::writeDocumentToStream(document, *stream, xml::kDataUid);
    stream->close();
}

}  // namespace ppt
}  // namespace deckforge
