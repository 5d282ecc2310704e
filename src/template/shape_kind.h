// What a shape element of a template becomes. The values are those of the
// engine's NodeType for the same classes, so the engine converts with a cast;
// this header exists because template reading sits below the engine and must
// not pull in the node headers.
#pragma once

#include <cstdint>

namespace deckforge {
namespace ppt {

enum class ShapeKind : std::int32_t {
    None = 0,  // not a content shape: left alone in the document
    BodyPlaceholder = 2,
    ContentPlaceholder = 4,
    Group = 6,
    Picture = 7,
    PicturePlaceholder = 8,
    Table = 13,
    TablePlaceholder = 15,
    TextBox = 18,
    TextBoxPlaceholder = 19,
    ChartPlaceholder = 21
};

// The kinds that a layout contributes to a new slide.
inline bool isPlaceholderKind(ShapeKind kind) {
    return kind == ShapeKind::BodyPlaceholder || kind == ShapeKind::ContentPlaceholder ||
           kind == ShapeKind::PicturePlaceholder || kind == ShapeKind::TablePlaceholder ||
           kind == ShapeKind::ChartPlaceholder || kind == ShapeKind::TextBoxPlaceholder;
}

}  // namespace ppt
}  // namespace deckforge
