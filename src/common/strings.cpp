#include "common/strings.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <locale>
#include <random>
#include <sstream>

#include <boost/lexical_cast.hpp>
#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid.hpp>
#include <boost/uuid/uuid_io.hpp>

#include "platform/i18n.h"

namespace deckforge {

u16string toString(std::string const& utf8) {
    return fl::i18n::to_string(utf8);
}

u16string toString(std::wstring const& wide) {
    return fl::i18n::to_string(wide);
}

u16string toStringFromASCIIStringLiteral(char const* ascii) {
    return fl::i18n::from_ascii(ascii);
}

std::string toUtf8(u16string const& text) {
    return fl::i18n::to_utf8(text);
}

std::wstring toWide(u16string const& text) {
    return fl::i18n::to_wide(text);
}

u16string toLowerString(u16string const& text) {
    return fl::i18n::to_lower(text);
}

u16string toUpperString(u16string const& text) {
    return fl::i18n::to_upper(text);
}

u16string const& bool2str(bool value) {
    static u16string const trueText(u"TRUE");
    static u16string const falseText(u"FALSE");
    return value ? trueText : falseText;
}

void replaceAll(u16string& text, u16string const& from, u16string const& to) {
    if (from.empty()) return;
    std::size_t pos = 0;
    while ((pos = text.find(from, pos)) != u16string::npos) {
        text.replace(pos, from.size(), to);
        // Continue behind the inserted text, so `to` containing `from` can't loop.
        pos += to.size();
    }
}

namespace {

// Integers go through a default stream so that a global locale with digit
// grouping shows in the output, as the rest of the host's text does. Without
// grouping the digits are the same, and every object's id is made here: a
// stream costs more than the rest of making a small object.
template <class T>
u16string integerText(T value) {
    if (std::use_facet<std::numpunct<char>>(std::locale()).grouping().empty()) {
        char digits[24];
        char const* end = std::to_chars(digits, digits + sizeof digits, value).ptr;
        return u16string(static_cast<char const*>(digits), end);
    }
    std::ostringstream out;
    out << value;
    return toString(out.str());
}

// Whole-text conversion first; when that fails, whatever a stream reads from
// the start of the text (0 when nothing), out-of-range values clamped.
template <class T>
T parseNumber(u16string const& text) {
    if (text.empty()) return T(0);
    std::string const narrow = toUtf8(text);
    try {
        return boost::lexical_cast<T>(narrow);
    } catch (boost::bad_lexical_cast const&) {
        std::istringstream in(narrow);
        T value = T(0);
        in >> value;
        return value;
    }
}

}  // namespace

u16string num2str(unsigned int value) {
    return integerText(value);
}
u16string num2str(int value) {
    return integerText(value);
}
u16string num2str(unsigned long value) {
    return integerText(value);
}

u16string plainInteger(long long value) {
    char digits[24];
    char const* end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    return u16string(static_cast<char const*>(digits), end);
}

u16string num2str(double value) {
    if (std::isnan(value)) return std::signbit(value) ? u"-nan" : u"nan";
    if (std::isinf(value)) return value < 0 ? u"-inf" : u"inf";
    // 17 significant digits read back as the same double.
    char buffer[64];
    int const n = std::snprintf(buffer, sizeof buffer, "%.*g", 17, value);
    if (n < 0 || static_cast<std::size_t>(n) >= sizeof buffer) {
        std::ostringstream out;
        out << value;
        return toString(out.str());
    }
    return toString(std::string(buffer, static_cast<std::size_t>(n)));
}

long str2long(u16string const& text) {
    return parseNumber<long>(text);
}
int str2int(u16string const& text) {
    return parseNumber<int>(text);
}
unsigned int str2uint(u16string const& text) {
    return parseNumber<unsigned int>(text);
}
double str2double(u16string const& text) {
    return parseNumber<double>(text);
}

u16string uuid_gen() {
    // A fresh generator seeded with the time in seconds: calls within one
    // second give the same id, which callers accept.
    std::mt19937 engine(static_cast<std::mt19937::result_type>(std::time(nullptr)));
    boost::uuids::basic_random_generator<std::mt19937> generate(engine);
    boost::uuids::uuid const id = generate();
    if (id.is_nil()) return u16string();
    return toString(boost::uuids::to_string(id));
}

}  // namespace deckforge
