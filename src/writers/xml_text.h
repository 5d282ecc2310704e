// Text made fit for the parts we write. The nodes keep what script code gave
// them; only at writing is it turned into what an XML 1.0 reader, and
// PowerPoint behind it, accepts. Every function is linear in its input.
#pragma once

#include <string>
#include <vector>

#include "common/strings.h"

namespace deckforge {
namespace ppt {

// The text without the characters that XML 1.0 can't hold at all, not even
// as a character reference: the C0 controls other than tab, line feed and
// carriage return, and U+FFFE and U+FFFF. Those are dropped: they have no
// visible form, and a part that held them would be refused whole. A lone
// surrogate stands for a character that was lost before it reached us; it
// becomes U+FFFD, so that the loss shows. Well-formed surrogate pairs
// (emoji, rarer CJK) pass untouched and are written as one UTF-8 character.
u16string xmlSafeText(u16string const& text);

// Appends the text, made XML-safe, to markup written by hand: escaped for
// element text and for attribute values in double quotes.
void appendEscaped(std::string& out, u16string const& text);

// The lines of a run, each made XML-safe. A line ends at a line feed, a
// carriage return, a CR LF pair, or a vertical tab, which is what the
// PowerPoint object model itself uses for a line break inside a paragraph.
// A text without breaks gives one line, an empty text one empty line.
std::vector<u16string> runLines(u16string const& text);

// A hyperlink target as a URI reference for the Target of a relationship.
// What a URI may hold passes as it is, an existing %XX escape too, so a
// target that is already a URI comes out unchanged. Everything else (spaces,
// quotes, angle brackets, backslashes, controls, a second '#', non-ASCII)
// is percent-encoded byte by byte from UTF-8. The scheme is not judged:
// mailto:, file: and javascript: go through like http:.
u16string uriReference(u16string const& target);

}  // namespace ppt
}  // namespace deckforge
