#include "template/core_properties.h"

#include <xercesc/dom/DOM.hpp>

namespace deckforge {
namespace ppt {

char16_t const kCorePropertiesRelationship[] =
    u"http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties";
std::vector<u16string> const& corePropertiesRelationships() {
    static std::vector<u16string> const types = {
        kCorePropertiesRelationship,
        u"http://schemas.openxmlformats.org/officedocument/2006/relationships/metadata/core-properties"};
    return types;
}

char16_t const kCorePropertiesContentType[] = u"application/vnd.openxmlformats-package.core-properties+xml";

namespace {
char16_t const kDc[] = u"http://purl.org/dc/elements/1.1/";
char16_t const kCp[] = u"http://schemas.openxmlformats.org/package/2006/metadata/core-properties";
char16_t const kDcTerms[] = u"http://purl.org/dc/terms/";
}  // namespace

std::vector<CorePropertyField> const& corePropertyFields() {
    static std::vector<CorePropertyField> const fields = {
        {u"Title", u"dc:title", kDc, false},
        {u"Subject", u"dc:subject", kDc, false},
        {u"Author", u"dc:creator", kDc, false},
        {u"Keywords", u"cp:keywords", kCp, false},
        {u"Description", u"dc:description", kDc, false},
        {u"Category", u"cp:category", kCp, false},
        {u"LastModifiedBy", u"cp:lastModifiedBy", kCp, false},
        {u"Created", u"dcterms:created", kDcTerms, true},
        {u"Modified", u"dcterms:modified", kDcTerms, true},
    };
    return fields;
}

CorePropertyField const* findCorePropertyField(u16string const& field) {
    for (auto const& candidate : corePropertyFields())
        if (field == candidate.field) return &candidate;
    return nullptr;
}

u16string localNameOf(u16string const& qualifiedName) {
    std::size_t const colon = qualifiedName.find(u':');
    return colon == u16string::npos ? qualifiedName : qualifiedName.substr(colon + 1);
}

std::map<u16string, u16string> readCoreProperties(PartDOMBuilder& builder) {
    std::map<u16string, u16string> values;
    u16string const partName = builder.getRelatedPartName(corePropertiesRelationships());
    if (partName.empty() || !builder.hasPart(partName)) return values;
    xercesc::DOMDocument* document = builder.buildPartDOM(partName);
    xercesc::DOMElement* root = document ? document->getDocumentElement() : nullptr;
    if (!root) return values;
    for (xercesc::DOMElement* child = root->getFirstElementChild(); child;
         child = child->getNextElementSibling()) {
        u16string const local = localNameOf(child->getTagName());
        for (auto const& field : corePropertyFields()) {
            if (local != localNameOf(field.element)) continue;
            XMLCh const* text = child->getTextContent();
            values[field.field] = text ? u16string(text) : u16string();
        }
    }
    return values;
}

}  // namespace ppt
}  // namespace deckforge
