// The native form of a list for a text box: a vector of items, where an item
// that is itself a vector stands for the next outline level. A box turns it
// into a flat run of paragraphs: top-level items keep whatever level they
// have (none, for text), the items of a nested list get level 2, the next
// depth 3, and so on.
//
//   ListItems{u"a", ListItems{u"b", ListItems{u"c"}}, u"d"}
//
// gives a, b (level 2), c (level 3), d. The script layer fills one from a
// nested cell array: strings and numbers as themselves, a Paragraph object as
// that paragraph, a nested cell array as a nested list, and everything that
// has no text of its own (a boolean, an empty cell, an unknown kind) as a
// blank item, which becomes an empty paragraph.
//
// Beware of brace elision with one element: ListItems{ListItems{u"x"}} may
// copy the inner vector rather than nest it; write ListItem(ListItems{u"x"}).
#pragma once

#include <vector>

#include "engine/ppt_node.h"

namespace deckforge {
namespace ppt {

class Paragraph;
class ListItem;

using ListItems = std::vector<ListItem>;

class ListItem {
public:
    enum class Kind { Blank, Text, Number, Paragraph, List };

    ListItem() = default;
    ListItem(u16string text) : mKind(Kind::Text), mText(std::move(text)) {}
    ListItem(char16_t const* text) : mKind(Kind::Text), mText(text ? text : u"") {}
    ListItem(double number) : mKind(Kind::Number), mNumber(number) {}
    ListItem(int number) : mKind(Kind::Number), mNumber(number) {}
    // The paragraph object itself; the box takes a clone if it has a parent
    // by the time it is added.
    ListItem(Paragraph const& paragraph);
    ListItem(ListItems items) : mKind(Kind::List), mItems(std::move(items)) {}

    Kind getKind() const { return mKind; }
    u16string const& getText() const { return mText; }
    double getNumber() const { return mNumber; }
    PPTNodePtr const& getParagraph() const { return mParagraph; }
    ListItems const& getItems() const { return mItems; }

private:
    Kind mKind = Kind::Blank;
    u16string mText;
    double mNumber = 0.0;
    PPTNodePtr mParagraph;
    ListItems mItems;
};

}  // namespace ppt
}  // namespace deckforge
