// The message ids of every catalogue, one type per id. The lists live in
// messages/resources/*.def beside their English texts, so an id cannot exist
// without a text.
#pragma once

#include "platform/except.h"

#define DECKFORGE_DECLARE_MSG(NAME, NARGS, TEXT)                 \
    struct NAME {                                                \
        static constexpr int argCount = NARGS;                   \
        static constexpr char const* name() { return #NAME; }    \
        static constexpr char const* catalog() { return kCatalog; } \
    };

namespace deckforge {
namespace ppt_error {
constexpr char const* kCatalog = "deckforge:ppt_error";
#define DECKFORGE_MSG DECKFORGE_DECLARE_MSG
#include "messages/resources/ppt_error.def"
#undef DECKFORGE_MSG
}  // namespace ppt_error
namespace dom_error {
constexpr char const* kCatalog = "deckforge:dom_error";
#define DECKFORGE_MSG DECKFORGE_DECLARE_MSG
#include "messages/resources/dom_error.def"
#undef DECKFORGE_MSG
}  // namespace dom_error
namespace ppt_warning {
constexpr char const* kCatalog = "deckforge:ppt_warning";
#define DECKFORGE_MSG DECKFORGE_DECLARE_MSG
#include "messages/resources/ppt_warning.def"
#undef DECKFORGE_MSG
}  // namespace ppt_warning
namespace ppt_progress {
constexpr char const* kCatalog = "deckforge:ppt_progress";
#define DECKFORGE_MSG DECKFORGE_DECLARE_MSG
#include "messages/resources/ppt_progress.def"
#undef DECKFORGE_MSG
}  // namespace ppt_progress
namespace ppt_debug {
constexpr char const* kCatalog = "deckforge:ppt_debug";
#define DECKFORGE_MSG DECKFORGE_DECLARE_MSG
#include "messages/resources/ppt_debug.def"
#undef DECKFORGE_MSG
}  // namespace ppt_debug
}  // namespace deckforge

// The host's own catalogues, whose ids script code sees as "QUORIX:class:..."
// and "QUORIX:string:...".
namespace quorix {
namespace class_ids {
constexpr char const* kCatalog = "QUORIX:class";
#define DECKFORGE_MSG DECKFORGE_DECLARE_MSG
#include "messages/resources/quorix_class.def"
#undef DECKFORGE_MSG
}  // namespace class_ids
namespace string_ids {
constexpr char const* kCatalog = "QUORIX:string";
#define DECKFORGE_MSG DECKFORGE_DECLARE_MSG
#include "messages/resources/quorix_string.def"
#undef DECKFORGE_MSG
}  // namespace string_ids
}  // namespace quorix

#undef DECKFORGE_DECLARE_MSG
