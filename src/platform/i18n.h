// Text encodings, case mapping and the message catalogue. The system's text
// is UTF-16; 8-bit text is always UTF-8, and wide text is UTF-32 (Linux).
// Malformed input never throws: each bad sequence becomes U+FFFD.
#pragma once

#include <string>
#include <vector>

#include "platform/except.h"

namespace fl {
namespace i18n {

std::u16string to_string(std::string const& utf8);
std::u16string to_string(std::wstring const& wide);
// Each byte is taken as one character; meant for ASCII literals.
std::u16string from_ascii(char const* ascii);
std::string to_utf8(std::u16string const& text);
std::wstring to_wide(std::u16string const& text);

// Simple (one character to one character) case mappings of Unicode,
// independent of any locale, so "ß" stays "ß" in upper case.
std::u16string to_lower(std::u16string const& text);
std::u16string to_upper(std::u16string const& text);

// One message of the catalogue, as compiled from messages/resources/*.def.
struct CatalogEntry {
    char const* catalog;  // "deckforge:ppt_error"
    char const* id;       // "invalidLayoutName"
    int argCount;
    char const* text;  // UTF-8 with {0}, {1}... slots
};

class MessageCatalog {
public:
    // The catalogue text with the arguments in its slots: integers in
    // decimal, 8-bit text decoded as UTF-8. A slot without an argument stays
    // as written. An unknown id gives "<catalogue>:<id>" followed by its
    // arguments, so nothing the raiser said is lost.
    static std::u16string get_message(resource_core::BaseMsgID const& id);
    static bool hasMessage(char const* catalog, char const* id);
    static std::vector<CatalogEntry> const& entries();
};

// Fills {N} slots of `text` from `args`; shared by the catalogue and tests.
std::u16string format_message(std::u16string const& text,
                              std::vector<resource_core::MsgArgument> const& args);

}  // namespace i18n
}  // namespace fl
