// The classes of "deckforge.ppt", in the order the package adds them. Each
// has its own source cos_<name>.cpp defining make<Cos class>(). To bind a new
// class: write its source and add one line here.
#pragma once

#include <memory>

#include "binding/class_info.h"

#define DECKFORGE_PPT_CLASSES(X) \
    X(CosNull)                   \
    X(CosObject)                 \
    X(CosFormat)                 \
    X(CosBaseDimension)          \
    X(CosColor)                  \
    X(CosBackgroundColor)        \
    X(CosBold)                   \
    X(CosColWidth)               \
    X(CosFontColor)              \
    X(CosFontFamily)             \
    X(CosFontSize)               \
    X(CosHAlign)                 \
    X(CosItalic)                 \
    X(CosSubscript)              \
    X(CosSuperscript)            \
    X(CosStrike)                 \
    X(CosTableStyleOptions)      \
    X(CosUnderline)              \
    X(CosVAlign)                 \
    X(CosDebugMessage)           \
    X(CosErrorMessage)           \
    X(CosMessage)                \
    X(CosMessageDispatcher)      \
    X(CosMessageEventData)       \
    X(CosMessageFilter)          \
    X(CosProgressMessage)        \
    X(CosWarningMessage)         \
    X(CosNode)                   \
    X(CosElement)                \
    X(CosPresentation)           \
    X(CosSlide)                  \
    X(CosShape)                  \
    X(CosBaseTextBox)            \
    X(CosTextBox)                \
    X(CosTextBoxPlaceholder)     \
    X(CosBodyPlaceholder)        \
    X(CosPicturePlaceholder)     \
    X(CosTablePlaceholder)       \
    X(CosChartPlaceholder)       \
    X(CosContentPlaceholder)     \
    X(CosGroup)                  \
    X(CosPicture)                \
    X(CosTable)                  \
    X(CosChart)                  \
    X(CosColSpec)                \
    X(CosText)                   \
    X(CosExternalLink)           \
    X(CosParagraph)              \
    X(CosTableEntry)             \
    X(CosTableRow)

namespace deckforge {
namespace ppt {
namespace mi {

#define DECKFORGE_DECLARE_MAKE(COS) std::unique_ptr<CosPPTObjectClassInfo> make##COS();
DECKFORGE_PPT_CLASSES(DECKFORGE_DECLARE_MAKE)
#undef DECKFORGE_DECLARE_MAKE

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
