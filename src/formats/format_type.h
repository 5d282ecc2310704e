// The kinds of format. The order is the order in which a node holds, renders
// and reports its formats, so where two formats write the same attribute the
// later kind wins.
#pragma once

#include <cstdint>

namespace deckforge {
namespace ppt {

enum FormatType : std::int32_t {
    FormatTypeNone = 0,
    FormatTypeBold = 1,
    FormatTypeBackgroundColor = 2,
    FormatTypeColWidth = 3,
    FormatTypeHAlign = 4,
    FormatTypeItalic = 5,
    FormatTypeFontColor = 6,
    FormatTypeFontFamily = 7,
    FormatTypeFontSize = 8,
    FormatTypeStrike = 9,
    FormatTypeSubscript = 10,
    FormatTypeSuperscript = 11,
    FormatTypeTableStyleOptions = 12,
    FormatTypeUnderline = 13,
    FormatTypeVAlign = 14
};

}
}  // namespace deckforge
