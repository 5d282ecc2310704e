// The writing half that the model needs at the end of a close: a part writer
// on the output package that can also store a DOM document into an existing
// part. The model creates the presentation's slide relationships itself
// through the OPCPartWriter operations; storing a document is left to the
// concrete writer (PartDOMWriter).
#pragma once

#include <boost/shared_ptr.hpp>
#include <xercesc/util/XercesDefs.hpp>

#include "common/strings.h"
#include "package/opc_package.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
XERCES_CPP_NAMESPACE_END

namespace deckforge {
namespace ppt {

class PartDocumentWriter : public OPCPartWriter {
public:
    PartDocumentWriter() = default;
    explicit PartDocumentWriter(boost::shared_ptr<OPCPackage> const& package) : OPCPartWriter(package) {}
    PartDocumentWriter(u16string const& path, bool asFolder) : OPCPartWriter(path, asFolder) {}

    // Replaces the content of the existing part `partName` with the
    // serialised document. The document stays its owner's.
    virtual void writeDocument(u16string const& partName, xercesc::DOMDocument* document) = 0;
};

}  // namespace ppt
}  // namespace deckforge
