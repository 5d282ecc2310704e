// Reads XML parts of an open package into DOM documents. It is the only way
// any part is parsed.
#pragma once

#include <boost/shared_ptr.hpp>
#include <xercesc/util/XercesDefs.hpp>

#include "common/strings.h"
#include "package/opc_package.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMLSParser;
XERCES_CPP_NAMESPACE_END

namespace deckforge {
namespace ppt {

// Parts are only checked for being well formed: no schema, no external DTD,
// and no namespace processing, so names keep their prefixes as written
// ("p:sp", "r:id") and namespace declarations are plain attributes.
//
// The documents belong to the parser and live as long as this builder; they
// may be changed freely meanwhile. A part that isn't well formed raises
// partDOMBuildError with the part's name and the reason.
class PartDOMBuilder : public OPCPartReader {
public:
    explicit PartDOMBuilder(boost::shared_ptr<OPCPackage> const& package);
    ~PartDOMBuilder() override;
    PartDOMBuilder(PartDOMBuilder const&) = delete;
    PartDOMBuilder& operator=(PartDOMBuilder const&) = delete;

    xercesc::DOMDocument* buildPartDOM(opc::model::Part const& part);
    // Null for an empty name or a part that the package doesn't have.
    xercesc::DOMDocument* buildPartDOM(u16string const& partName);
    // The part that the relationship `relationshipId` of the source part names.
    xercesc::DOMDocument* buildPartDOM(u16string const& sourcePartName, u16string const& relationshipId);

private:
    xercesc::DOMLSParser* parser = nullptr;
    u16string errorText;  // kept for the record's shape; nothing fills it
};

}  // namespace ppt
}  // namespace deckforge
