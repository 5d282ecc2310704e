// The document properties that script code reads and sets, and the elements
// of the core properties part (docProps/core.xml) that hold them.
#pragma once

#include <map>
#include <vector>

#include "common/strings.h"
#include "template/part_dom_builder.h"

namespace deckforge {
namespace ppt {

extern char16_t const kCorePropertiesRelationship[];
// The relationship types that name the core properties part: the standard
// one, and the one that LibreOffice writes, with "officedocument" in lower
// case.
std::vector<u16string> const& corePropertiesRelationships();
extern char16_t const kCorePropertiesContentType[];

class CorePropertyField {
public:
    char16_t const* field;         // the script name, as "Author"
    char16_t const* element;       // the usual qualified name, as "dc:creator"
    char16_t const* namespaceUri;  // of the element's prefix
    bool isDate;                   // W3CDTF text, marked with xsi:type
};

// In the order in which script code sees them.
std::vector<CorePropertyField> const& corePropertyFields();
// Null for a name that is no field.
CorePropertyField const* findCorePropertyField(u16string const& field);

// The local part of a qualified name: "creator" of "dc:creator". The part
// is read without namespace processing, so elements are matched by their
// local names whatever prefix the file gives them.
u16string localNameOf(u16string const& qualifiedName);

// The fields that the package's core properties part holds, by field name;
// empty if it has no such part.
std::map<u16string, u16string> readCoreProperties(PartDOMBuilder& builder);

}  // namespace ppt
}  // namespace deckforge
