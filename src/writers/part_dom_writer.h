// Stores DOM documents into parts of the output package. The documents stay
// their owners'.
#pragma once

#include "template/part_document_writer.h"

namespace deckforge {
namespace ppt {

class PartDOMWriter : public PartDocumentWriter {
public:
    // No package.
    PartDOMWriter();
    explicit PartDOMWriter(boost::shared_ptr<OPCPackage> const& package);

    // A new part holding the document.
    void createDocumentPart(u16string const& name, u16string const& contentType,
                            xercesc::DOMDocument* document);
    // Replaces the content of an existing part; the package library's error
    // passes through if there is no such part.
    void writeDocument(u16string const& name, xercesc::DOMDocument* document) override;

private:
    void writeTo(opc::model::Part& part, xercesc::DOMDocument* document);
};

}  // namespace ppt
}  // namespace deckforge
