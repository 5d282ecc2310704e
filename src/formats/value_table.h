// The fixed vocabularies of the formats whose value is a word (Strike,
// Underline, HAlign, VAlign): a lower-case key leads to the canonical name
// that script code reads back and to the attribute value that is written.
#pragma once

#include <map>

#include "common/strings.h"

namespace deckforge {
namespace ppt {

struct ValueEntry {
    u16string name;
    u16string markup;
};

class ValueTable {
public:
    using Map = std::map<u16string, ValueEntry>;

    explicit ValueTable(Map entries) : mEntries(std::move(entries)) {}

    // Folds the text to lower case; the shared empty entry for a miss, whose
    // empty name is the test for validity.
    ValueEntry const& lookup(u16string const& text) const;
    // The canonical name for the text; raises invalidPropertyValue with the
    // text as given when it is no key.
    u16string const& canonicalName(u16string const& text) const;
    // The attribute value of a stored canonical name. Found by the name,
    // not as a key: "wavyDbl" folds to no key of its table.
    u16string const& markup(u16string const& name) const;

private:
    Map mEntries;
};

}  // namespace ppt
}  // namespace deckforge
