#include "platform/opc/text.h"

#include <unicode/unistr.h>

namespace opc {
namespace detail {

std::string toUtf8(std::u16string const& text) {
    std::string out;
    icu::UnicodeString(false, text.data(), static_cast<int32_t>(text.size())).toUTF8String(out);
    return out;
}

std::u16string fromUtf8(std::string const& text) {
    auto u = icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
    return std::u16string(reinterpret_cast<char16_t const*>(u.getBuffer()),
                          static_cast<std::size_t>(u.length()));
}

std::string asciiLower(std::string text) {
    for (auto& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return text;
}

std::u16string asciiLower(std::u16string text) {
    for (auto& c : text)
        if (c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c - u'A' + u'a');
    return text;
}

namespace {
int hexValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}
}  // namespace

std::string partKey(std::u16string const& name) {
    std::string utf8 = toUtf8(name);
    std::string key;
    key.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        char c = utf8[i];
        if (c == '%' && i + 2 < utf8.size()) {
            int hi = hexValue(utf8[i + 1]), lo = hexValue(utf8[i + 2]);
            if (hi >= 0 && lo >= 0) {
                c = static_cast<char>(hi * 16 + lo);
                i += 2;
            }
        }
        key.push_back(c);
    }
    return asciiLower(std::move(key));
}

void appendXmlAttribute(std::string& out, std::u16string const& value) {
    for (char c : toUtf8(value)) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            case '\t':
                out += "&#9;";
                break;
            case '\n':
                out += "&#10;";
                break;
            case '\r':
                out += "&#13;";
                break;
            default:
                out.push_back(c);
        }
    }
}

}  // namespace detail
}  // namespace opc

namespace opc {
namespace detail {

std::string itemNameProblem(std::string const& name) {
    if (name.empty()) return "empty name";
    if (name[0] == '/' || name[0] == '\\') return "absolute path";
    if (name.size() >= 2 && name[1] == ':') return "drive letter";
    for (unsigned char c : name)
        if (c < 0x20) return "control character";
    std::size_t start = 0;
    while (start <= name.size()) {
        std::size_t end = name.find_first_of("/\\", start);
        if (end == std::string::npos) end = name.size();
        std::string segment = name.substr(start, end - start);
        if (segment == ".." || segment == ".") return "\"" + segment + "\" segment";
        start = end + 1;
    }
    return {};
}

}  // namespace detail
}  // namespace opc
