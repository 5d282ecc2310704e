#include "writers/core_properties_writer.h"

#include <xercesc/dom/DOM.hpp>

#include "platform/opc/opc.h"
#include "template/core_properties.h"
#include "template/part_dom_builder.h"
#include "writers/part_dom_writer.h"

namespace deckforge {
namespace ppt {

namespace {

char16_t const kCorePartName[] = u"/docProps/core.xml";
char16_t const kXsi[] = u"http://www.w3.org/2001/XMLSchema-instance";

char const kEmptyCoreProperties[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n"
    "<cp:coreProperties"
    " xmlns:cp=\"http://schemas.openxmlformats.org/package/2006/metadata/core-properties\""
    " xmlns:dc=\"http://purl.org/dc/elements/1.1/\" xmlns:dcterms=\"http://purl.org/dc/terms/\""
    " xmlns:dcmitype=\"http://purl.org/dc/dcmitype/\""
    " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"></cp:coreProperties>";

// The prefix of a qualified name, "dc" of "dc:title".
u16string prefixOf(u16string const& qualifiedName) {
    std::size_t const colon = qualifiedName.find(u':');
    return colon == u16string::npos ? u16string() : qualifiedName.substr(0, colon);
}

// The root declares the prefix, for the namespace the file already gives it
// or else for `uri`.
void declare(xercesc::DOMElement* root, u16string const& prefix, char16_t const* uri) {
    u16string const attribute = u"xmlns:" + prefix;
    if (!root->hasAttribute(attribute.c_str())) root->setAttribute(attribute.c_str(), uri);
}

void setProperty(xercesc::DOMDocument* document, CorePropertyField const& field, u16string const& value) {
    xercesc::DOMElement* root = document->getDocumentElement();
    xercesc::DOMElement* element = nullptr;
    for (xercesc::DOMElement* child = root->getFirstElementChild(); child && !element;
         child = child->getNextElementSibling())
        if (localNameOf(child->getTagName()) == localNameOf(field.element)) element = child;
    if (field.isDate && value.empty()) {
        // A date can't be empty text: no date at all is what that means.
        if (element) root->removeChild(element);
        return;
    }
    if (!element) {
        declare(root, prefixOf(field.element), field.namespaceUri);
        element = document->createElement(field.element);
        root->appendChild(element);
    }
    while (xercesc::DOMNode* child = element->getFirstChild()) element->removeChild(child);
    element->appendChild(document->createTextNode(value.c_str()));
    if (field.isDate) {
        declare(root, u"xsi", kXsi);
        declare(root, u"dcterms", u"http://purl.org/dc/terms/");
        element->setAttribute(u"xsi:type", u"dcterms:W3CDTF");
    }
}

}  // namespace

u16string w3cdtf(std::time_t time) {
    std::tm tm{};
    gmtime_r(&time, &tm);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &tm);
    return toString(std::string(text));
}

void writeCoreProperties(boost::shared_ptr<OPCPackage> const& package,
                         std::map<u16string, u16string> const& assigned, std::optional<std::time_t> fixedTime) {
    PartDOMWriter parts(package);
    OPCPartReader reader(package);
    u16string partName = reader.getRelatedPartName(corePropertiesRelationships());
    bool const missing = partName.empty() || !parts.hasPart(partName);
    if (!missing && assigned.empty() && !fixedTime) return;

    std::map<u16string, u16string> values = assigned;
    if (missing) {
        // A part of that name that isn't related as core properties is
        // something else, and stays.
        partName = kCorePartName;
        for (unsigned int n = 2; parts.hasPart(partName); ++n)
            partName = u"/docProps/core" + plainInteger(n) + u".xml";
        opc::model::Part part = parts.createPart(partName, kCorePropertiesContentType);
        auto out = part.getOutputStream();
        out->write(kEmptyCoreProperties, sizeof kEmptyCoreProperties - 1);
        out->close();
        parts.createRelationship(kCorePropertiesRelationship, partName, u"");
        u16string const now = w3cdtf(fixedTime ? *fixedTime : std::time(nullptr));
        values.emplace(u"Created", now);
        values.emplace(u"Modified", now);
    } else if (fixedTime) {
        values.emplace(u"Modified", w3cdtf(*fixedTime));
    }

    PartDOMBuilder builder(package);
    xercesc::DOMDocument* document = builder.buildPartDOM(partName);
    if (!document || !document->getDocumentElement()) return;
    // In the order of the fields, so that the same values give the same bytes.
    for (auto const& field : corePropertyFields()) {
        auto const value = values.find(field.field);
        if (value != values.end()) setProperty(document, field, value->second);
    }
    parts.writeDocument(partName, document);
}

}  // namespace ppt
}  // namespace deckforge
