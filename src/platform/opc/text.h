// Small text helpers shared by the package library. Not part of its public
// face: callers of the library use deckforge's own string functions.
#pragma once

#include <string>

namespace opc {
namespace detail {

std::string toUtf8(std::u16string const& text);
std::u16string fromUtf8(std::string const& text);

// Lower-cases A-Z only: part names and extensions compare ASCII-wise without
// regard to case, whatever the locale.
std::string asciiLower(std::string text);
std::u16string asciiLower(std::u16string text);

// The form under which a part name is looked up: %XX escapes decoded, A-Z
// lower-cased. Two names that OPC counts as equal have the same key.
std::string partKey(std::u16string const& name);

// Text escaped for an XML attribute value in double quotes.
void appendXmlAttribute(std::string& out, std::u16string const& value);

}  // namespace detail
}  // namespace opc

namespace opc {
namespace detail {
// Why an item name stored in a package must not be used, or empty text if it
// may. Refused: absolute names, drive letters, "." and ".." segments and
// control characters, which could lead a careless unpacker out of its folder.
std::string itemNameProblem(std::string const& utf8Name);
}  // namespace detail
}  // namespace opc
