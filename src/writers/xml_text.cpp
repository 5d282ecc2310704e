#include "writers/xml_text.h"

namespace deckforge {
namespace ppt {

namespace {

bool isHighSurrogate(char16_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}
bool isLowSurrogate(char16_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}
bool forbiddenInXml(char16_t c) {
    return (c < 0x20 && c != u'\t' && c != u'\n' && c != u'\r') || c == 0xFFFE || c == 0xFFFF;
}

// Appends text[i] (and its low half, if it is a pair's high half) to `out`,
// fixed as xmlSafeText says; returns the index of the last unit consumed.
std::size_t appendSafe(u16string const& text, std::size_t i, u16string& out) {
    char16_t const c = text[i];
    if (isHighSurrogate(c)) {
        if (i + 1 < text.size() && isLowSurrogate(text[i + 1])) {
            out.push_back(c);
            out.push_back(text[i + 1]);
            return i + 1;
        }
        out.push_back(0xFFFD);
    } else if (isLowSurrogate(c)) {
        out.push_back(0xFFFD);
    } else if (!forbiddenInXml(c)) {
        out.push_back(c);
    }
    return i;
}

bool allowedInUri(char16_t c) {
    if ((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9')) return true;
    switch (c) {
        // unreserved
        case u'-':
        case u'.':
        case u'_':
        case u'~':
        // gen-delims but '#', which is counted apart
        case u':':
        case u'/':
        case u'?':
        case u'[':
        case u']':
        case u'@':
        // sub-delims
        case u'!':
        case u'$':
        case u'&':
        case u'\'':
        case u'(':
        case u')':
        case u'*':
        case u'+':
        case u',':
        case u';':
        case u'=':
            return true;
        default:
            return false;
    }
}

bool isHexDigit(char16_t c) {
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

void appendPercentEncoded(char32_t code, u16string& out) {
    unsigned char bytes[4];
    int n;
    if (code < 0x80) {
        bytes[0] = static_cast<unsigned char>(code);
        n = 1;
    } else if (code < 0x800) {
        bytes[0] = static_cast<unsigned char>(0xC0 | (code >> 6));
        bytes[1] = static_cast<unsigned char>(0x80 | (code & 0x3F));
        n = 2;
    } else if (code < 0x10000) {
        bytes[0] = static_cast<unsigned char>(0xE0 | (code >> 12));
        bytes[1] = static_cast<unsigned char>(0x80 | ((code >> 6) & 0x3F));
        bytes[2] = static_cast<unsigned char>(0x80 | (code & 0x3F));
        n = 3;
    } else {
        bytes[0] = static_cast<unsigned char>(0xF0 | (code >> 18));
        bytes[1] = static_cast<unsigned char>(0x80 | ((code >> 12) & 0x3F));
        bytes[2] = static_cast<unsigned char>(0x80 | ((code >> 6) & 0x3F));
        bytes[3] = static_cast<unsigned char>(0x80 | (code & 0x3F));
        n = 4;
    }
    static char16_t const digits[] = u"0123456789ABCDEF";
    for (int k = 0; k < n; ++k) {
        out.push_back(u'%');
        out.push_back(digits[bytes[k] >> 4]);
        out.push_back(digits[bytes[k] & 0x0F]);
    }
}

}  // namespace

u16string xmlSafeText(u16string const& text) {
    u16string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) i = appendSafe(text, i, out);
    return out;
}

void appendEscaped(std::string& out, u16string const& text) {
    for (char c : toUtf8(xmlSafeText(text))) {
        switch (c) {
            case '&': out += "&amp;"; break;
            case '<': out += "&lt;"; break;
            case '>': out += "&gt;"; break;
            case '"': out += "&quot;"; break;
            default: out += c;
        }
    }
}

std::vector<u16string> runLines(u16string const& text) {
    std::vector<u16string> lines(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        char16_t const c = text[i];
        if (c == u'\r' || c == u'\n' || c == u'\v') {
            if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
            lines.emplace_back();
            continue;
        }
        i = appendSafe(text, i, lines.back());
    }
    return lines;
}

u16string uriReference(u16string const& target) {
    u16string out;
    out.reserve(target.size());
    bool fragment = false;
    for (std::size_t i = 0; i < target.size(); ++i) {
        char16_t const c = target[i];
        if (allowedInUri(c)) {
            out.push_back(c);
        } else if (c == u'%' && i + 2 < target.size() && isHexDigit(target[i + 1]) &&
                   isHexDigit(target[i + 2])) {
            out.push_back(c);  // an escape already made; the two digits follow as allowed characters
        } else if (c == u'#' && !fragment) {
            fragment = true;
            out.push_back(c);
        } else if (isHighSurrogate(c) && i + 1 < target.size() && isLowSurrogate(target[i + 1])) {
            char32_t const code =
                0x10000 + ((char32_t(c) - 0xD800) << 10) + (char32_t(target[i + 1]) - 0xDC00);
            appendPercentEncoded(code, out);
            ++i;
        } else if (isHighSurrogate(c) || isLowSurrogate(c)) {
            appendPercentEncoded(0xFFFD, out);
        } else {
            appendPercentEncoded(c, out);
        }
    }
    return out;
}

}  // namespace ppt
}  // namespace deckforge
