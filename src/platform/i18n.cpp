#include "platform/i18n.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

#include <cstring>
#include <map>
#include <string_view>
#include <utility>

namespace fl {
namespace i18n {

namespace {

constexpr UChar32 kReplacement = 0xFFFD;

static_assert(sizeof(UChar) == sizeof(char16_t), "ICU UChar must be 16 bits");
static_assert(sizeof(wchar_t) == sizeof(UChar32), "wide text is expected to be UTF-32");

UChar const* uchars(std::u16string const& s) {
    return reinterpret_cast<UChar const*>(s.data());
}

// ICU's pre-flight pattern: ask for the length, then convert into a buffer of
// that size. The substitution variants never fail on malformed input.
template <class Out, class Convert>
Out convert(Convert&& run) {
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = 0;
    run(nullptr, 0, &length, &status);
    if (status != U_BUFFER_OVERFLOW_ERROR && U_FAILURE(status)) return Out();
    Out out(static_cast<std::size_t>(length), typename Out::value_type());
    if (length == 0) return out;
    status = U_ZERO_ERROR;
    run(&out[0], length, &length, &status);
    if (U_FAILURE(status)) return Out();
    out.resize(static_cast<std::size_t>(length));
    return out;
}

template <class Map>
std::u16string mapCase(std::u16string const& text, Map map) {
    std::u16string out;
    out.reserve(text.size());
    int32_t const length = static_cast<int32_t>(text.size());
    int32_t i = 0;
    while (i < length) {
        UChar32 c;
        U16_NEXT(uchars(text), i, length, c);
        // Unpaired surrogates pass through unchanged.
        UChar32 const mapped = U_IS_SURROGATE(c) ? c : map(c);
        if (U_IS_BMP(mapped)) {
            out.push_back(static_cast<char16_t>(mapped));
        } else {
            out.push_back(static_cast<char16_t>(U16_LEAD(mapped)));
            out.push_back(static_cast<char16_t>(U16_TRAIL(mapped)));
        }
    }
    return out;
}

}  // namespace

std::u16string to_string(std::string const& utf8) {
    if (utf8.empty()) return {};
    return convert<std::u16string>(
        [&](char16_t* dest, int32_t capacity, int32_t* length, UErrorCode* status) {
            u_strFromUTF8WithSub(reinterpret_cast<UChar*>(dest), capacity, length, utf8.data(),
                                 static_cast<int32_t>(utf8.size()), kReplacement, nullptr, status);
        });
}

std::u16string to_string(std::wstring const& wide) {
    if (wide.empty()) return {};
    return convert<std::u16string>(
        [&](char16_t* dest, int32_t capacity, int32_t* length, UErrorCode* status) {
            u_strFromUTF32WithSub(reinterpret_cast<UChar*>(dest), capacity, length,
                                  reinterpret_cast<UChar32 const*>(wide.data()),
                                  static_cast<int32_t>(wide.size()), kReplacement, nullptr, status);
        });
}

std::u16string from_ascii(char const* ascii) {
    std::u16string out;
    if (!ascii) return out;
    for (; *ascii; ++ascii) out.push_back(static_cast<char16_t>(static_cast<unsigned char>(*ascii)));
    return out;
}

std::string to_utf8(std::u16string const& text) {
    if (text.empty()) return {};
    return convert<std::string>([&](char* dest, int32_t capacity, int32_t* length, UErrorCode* status) {
        u_strToUTF8WithSub(dest, capacity, length, uchars(text), static_cast<int32_t>(text.size()),
                           kReplacement, nullptr, status);
    });
}

std::wstring to_wide(std::u16string const& text) {
    if (text.empty()) return {};
    return convert<std::wstring>([&](wchar_t* dest, int32_t capacity, int32_t* length, UErrorCode* status) {
        u_strToUTF32WithSub(reinterpret_cast<UChar32*>(dest), capacity, length, uchars(text),
                            static_cast<int32_t>(text.size()), kReplacement, nullptr, status);
    });
}

std::u16string to_lower(std::u16string const& text) {
    return mapCase(text, [](UChar32 c) { return u_tolower(c); });
}

std::u16string to_upper(std::u16string const& text) {
    return mapCase(text, [](UChar32 c) { return u_toupper(c); });
}

// ---------------------------------------------------------------- catalogue

namespace {

#define DECKFORGE_CATALOG_ENTRY(NAME, NARGS, TEXT) \
    entries.push_back(CatalogEntry{kCatalog, #NAME, NARGS, TEXT});

std::vector<CatalogEntry> buildEntries() {
    std::vector<CatalogEntry> entries;
#define DECKFORGE_MSG DECKFORGE_CATALOG_ENTRY
    {
        char const* kCatalog = "deckforge:ppt_error";
#include "messages/resources/ppt_error.def"
    }
    {
        char const* kCatalog = "deckforge:dom_error";
#include "messages/resources/dom_error.def"
    }
    {
        char const* kCatalog = "deckforge:ppt_warning";
#include "messages/resources/ppt_warning.def"
    }
    {
        char const* kCatalog = "deckforge:ppt_progress";
#include "messages/resources/ppt_progress.def"
    }
    {
        char const* kCatalog = "deckforge:ppt_debug";
#include "messages/resources/ppt_debug.def"
    }
    {
        char const* kCatalog = "QUORIX:class";
#include "messages/resources/quorix_class.def"
    }
    {
        char const* kCatalog = "QUORIX:string";
#include "messages/resources/quorix_string.def"
    }
#undef DECKFORGE_MSG
    return entries;
}

#undef DECKFORGE_CATALOG_ENTRY

using Key = std::pair<std::string_view, std::string_view>;

std::map<Key, CatalogEntry const*> const& catalogIndex() {
    static std::map<Key, CatalogEntry const*> const byKey = [] {
        std::map<Key, CatalogEntry const*> m;
        for (auto const& entry : MessageCatalog::entries()) m.emplace(Key(entry.catalog, entry.id), &entry);
        return m;
    }();
    return byKey;
}

CatalogEntry const* find(char const* catalog, char const* id) {
    if (!catalog || !id) return nullptr;
    auto const& m = catalogIndex();
    auto it = m.find(Key(catalog, id));
    return it == m.end() ? nullptr : it->second;
}

struct ArgumentText : boost::static_visitor<std::u16string> {
    std::u16string operator()(std::int64_t value) const { return from_ascii(std::to_string(value).c_str()); }
    std::u16string operator()(std::string const& value) const { return to_string(value); }
    std::u16string operator()(std::u16string const& value) const { return value; }
};

}  // namespace

std::vector<CatalogEntry> const& MessageCatalog::entries() {
    static std::vector<CatalogEntry> const all = buildEntries();
    return all;
}

bool MessageCatalog::hasMessage(char const* catalog, char const* id) {
    return find(catalog, id) != nullptr;
}

std::u16string MessageCatalog::get_message(resource_core::BaseMsgID const& id) {
    if (CatalogEntry const* entry = find(id.catalog(), id.id())) {
        return format_message(to_string(std::string(entry->text)), id.arguments());
    }
    std::u16string text = to_string(id.identifier());
    for (auto const& arg : id.arguments()) text += u" " + boost::apply_visitor(ArgumentText(), arg);
    return text;
}

std::u16string format_message(std::u16string const& text,
                              std::vector<resource_core::MsgArgument> const& args) {
    std::u16string out;
    out.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        if (text[i] == u'{') {
            std::size_t j = i + 1;
            std::size_t slot = 0;
            while (j < text.size() && text[j] >= u'0' && text[j] <= u'9' && j - i <= 9) {
                slot = slot * 10 + static_cast<std::size_t>(text[j] - u'0');
                ++j;
            }
            if (j > i + 1 && j < text.size() && text[j] == u'}' && slot < args.size()) {
                out += boost::apply_visitor(ArgumentText(), args[slot]);
                i = j + 1;
                continue;
            }
        }
        out.push_back(text[i]);
        ++i;
    }
    return out;
}

}  // namespace i18n
}  // namespace fl
