#include "formats/value_table.h"

#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {

ValueEntry const& ValueTable::lookup(u16string const& text) const {
    static ValueEntry const none;
    auto it = mEntries.find(toLowerString(text));
    return it == mEntries.end() ? none : it->second;
}

u16string const& ValueTable::canonicalName(u16string const& text) const {
    ValueEntry const& entry = lookup(text);
    if (entry.name.empty()) deckforge::raise<ppt_error::invalidPropertyValue>(text);
    return entry.name;
}

u16string const& ValueTable::markup(u16string const& name) const {
    for (auto const& entry : mEntries)
        if (entry.second.name == name) return entry.second.markup;
    static u16string const none;
    return none;
}

}  // namespace ppt
}  // namespace deckforge
