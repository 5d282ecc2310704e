#include "nodes/list_item.h"

#include "nodes/paragraph.h"

namespace deckforge {
namespace ppt {

ListItem::ListItem(Paragraph const& paragraph)
    : mKind(Kind::Paragraph), mParagraph(paragraph.makeInterface()) {}

}  // namespace ppt
}  // namespace deckforge
