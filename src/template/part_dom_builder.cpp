#include "template/part_dom_builder.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {

using xercesc::XMLUni;

namespace {

[[noreturn]] void raiseBuildError(u16string const& partName, opc::Exception const& e) {
    raise<ppt_error::partDOMBuildError>(partName, toString(std::string(e.what())));
}

}  // namespace

PartDOMBuilder::PartDOMBuilder(boost::shared_ptr<OPCPackage> const& package)
    : OPCPartReader(package), parser(opc::model::XercesHelper::createParser()) {
    // Well-formedness only: the parts are trusted to follow their schemas,
    // and nothing outside the package may be fetched.
    xercesc::DOMConfiguration* config = parser->getDomConfig();
    config->setParameter(XMLUni::fgXercesScannerName, XMLUni::fgWFXMLScanner);
    config->setParameter(XMLUni::fgXercesSchema, false);
    config->setParameter(XMLUni::fgXercesLoadExternalDTD, false);
    config->setParameter(XMLUni::fgDOMNamespaces, false);
}

PartDOMBuilder::~PartDOMBuilder() {
    if (parser) parser->release();  // and with it every document it read
}

xercesc::DOMDocument* PartDOMBuilder::buildPartDOM(opc::model::Part const& part) {
    try {
        boost::shared_ptr<opc::InputStream> stream = part.getInputStream();
        if (!stream) throw opc::Exception("the part has no content");
        u16string errors;
        u16string warnings;
        return opc::model::XercesHelper::readDocumentFromStream(parser, *stream, false, errors, warnings);
    } catch (opc::Exception const& e) {
        raiseBuildError(part.getName().toString(), e);
    }
}

xercesc::DOMDocument* PartDOMBuilder::buildPartDOM(u16string const& partName) {
    if (partName.empty()) return nullptr;
    opc::model::Part part;
    try {
        if (!hasPart(partName)) return nullptr;
        part = getPart(partName);
    } catch (opc::Exception const& e) {
        raiseBuildError(partName, e);
    }
    return buildPartDOM(part);
}

xercesc::DOMDocument* PartDOMBuilder::buildPartDOM(u16string const& sourcePartName,
                                                   u16string const& relationshipId) {
    u16string targetName;
    try {
        targetName = getRelationshipTargetPath(sourcePartName, relationshipId);
    } catch (opc::Exception const& e) {
        raiseBuildError(sourcePartName, e);
    }
    return buildPartDOM(targetName);
}

}  // namespace ppt
}  // namespace deckforge
