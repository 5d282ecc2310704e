#include "formats/element_style.h"

namespace deckforge {
namespace ppt {

namespace {

// The element's format of the type, copied and put in its place; empty if
// the element has none.
template <class F>
boost::shared_ptr<F> replaceByCopy(ElementImpl& element, FormatType type) {
    boost::shared_ptr<Format> own = element.getFormat(type);
    if (!own || !own->formatImpl()) return {};
    auto copy = boost::dynamic_pointer_cast<F>(own->formatImpl()->clone());
    if (copy) element.appendFormat(copy);
    return copy;
}

}  // namespace

void ElementStyle::setFont(ElementImpl& element, u16string const& font) {
    if (auto family = replaceByCopy<FontFamily>(element, FormatTypeFontFamily)) {
        family->setFont(font);
        return;
    }
    auto family = boost::make_shared<FontFamily>();
    family->setFont(font);
    element.appendFormat(family);
}

void ElementStyle::setComplexScriptFont(ElementImpl& element, u16string const& font) {
    if (auto family = replaceByCopy<FontFamily>(element, FormatTypeFontFamily)) {
        family->setComplexScriptFont(font);
        return;
    }
    auto family = boost::make_shared<FontFamily>();
    family->setComplexScriptFont(font);
    element.appendFormat(family);
}

void ElementStyle::unsetFont(ElementImpl& element) {
    auto family = get<FontFamily>(element, FormatTypeFontFamily);
    if (!family) return;
    family->setFont(u16string());
    if (family->getComplexScriptFont().empty()) element.unsetFormat(FormatTypeFontFamily);
}

void ElementStyle::unsetComplexScriptFont(ElementImpl& element) {
    auto family = get<FontFamily>(element, FormatTypeFontFamily);
    if (!family) return;
    family->setComplexScriptFont(u16string());
    if (family->getFont().empty()) element.unsetFormat(FormatTypeFontFamily);
}

void ElementStyle::setStrikeStyle(ElementImpl& element, u16string const& style) {
    // Checked before anything changes, so a refused style leaves the element as it was.
    auto fresh = boost::make_shared<Strike>(style);
    if (auto strike = replaceByCopy<Strike>(element, FormatTypeStrike)) {
        strike->setValue(style);
        return;
    }
    element.appendFormat(fresh);
}

void ElementStyle::setUnderlineStyle(ElementImpl& element, u16string const& style) {
    // Checked before anything changes, so a refused style leaves the element as it was.
    auto fresh = boost::make_shared<Underline>(style);
    if (auto underline = replaceByCopy<Underline>(element, FormatTypeUnderline)) {
        underline->setValue(style);
        return;
    }
    element.appendFormat(fresh);
}

}  // namespace ppt
}  // namespace deckforge
