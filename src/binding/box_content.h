// Script values as the content of text boxes: the "any" forms of a box's
// add and replace, and replace by name on a presentation or a slide.
//
// A cell array is a list, one paragraph per element in column order; a
// nested cell array is the next outline level:
//
//   box.replace({'a', {'a1', 'a2'}, 'b'})   % a, a1 and a2 at level 2, b
//
// Text and numbers make a paragraph of one run, a Paragraph object is taken
// itself (a copy if it stands in a tree already), and anything else without
// text of its own (a logical, [], a struct, a number array) a blank line.
#pragma once

#include "binding/class_info.h"
#include "binding/value.h"
#include "engine/ppt_node.h"
#include "binding/invoke.h"
#include "binding/marshal.h"
#include "nodes/list_item.h"
#include "nodes/paragraph.h"
#include "nodes/table.h"

namespace deckforge {
namespace ppt {

class BaseTextBox;

namespace mi {

// The list of a cell array. A character matrix raises
// MustBeStringScalarOrCharacterVector and a deleted object InvalidHandle,
// rather than turning silently into blank lines.
ListItems toListItems(Value const& cell);

// "add" with "any": an empty value does nothing, a cell array appends its
// list, any other value the library can read changes nothing. A value it
// can't read (a function handle, a foreign object) raises invalidAddArg.
void addValue(BaseTextBox const& box, Value const& value);

// "replace" with "any": a non-empty cell array replaces the paragraphs by
// its list; anything else raises invalidReplaceArg. A content placeholder
// takes an empty value as "nothing to do", and gives its place to a table
// made of a struct array or dataframe; it and a table placeholder give it
// to a Table object too. Placeholders that other objects may replace check
// first that they still stand on a slide.
void replaceValue(BaseTextBox const& box, Value const& value);

// Replace by name: each box and placeholder among the hits as replaceValue;
// a table among them takes a Table object and nothing else, a picture
// nothing (invalidReplaceArg); other hits are passed over.
void replaceValueInEach(PPTNodeList const& hits, Value const& value);

// The overloads of "add" and "replace" of a box class. A class that
// declares "add" or "replace" hides its bases' overloads, so each box class
// with members of its own declares them all, in this order: the text forms
// (string, Paragraph; each returns the Paragraph), then its object forms,
// then the "any" forms, which would otherwise catch every argument.
void addBoxTextMethods(ClassDescription& cls);
void addBoxValueMethods(ClassDescription& cls);
// replace(Picture) of picture and content placeholders.
void addReplaceByPicture(ClassDescription& cls);
// replace(Table) of table and content placeholders.
template <class Placeholder>
void addReplaceByTable(ClassDescription& cls) {
    constexpr char const* kTable = "deckforge.ppt.Table";
    cls.addMethod(
        "replace", kTable, {kTable},
        [](Call& c) {
            Table const table = c.self<Placeholder>().replace(c.object<Table>(0));
            return toScript(static_cast<PPTObject const&>(table));
        },
        "replace(table): a copy of the table stands where the placeholder stood; returns it.");
}

// The operations by name that a presentation and a slide share: add of a
// paragraph, replace by text, by a paragraph and by a list, in each node of
// that name below `Root`.
template <class Root>
void addContentByNameMethods(ClassDescription& cls) {
    constexpr char const* kParagraph = "deckforge.ppt.Paragraph";
    cls.addMethod(
        "add", words::Void, {words::String, kParagraph},
        [](Call& c) {
            c.self<Root>().add(c.text(0), c.object<Paragraph>(1));
            return Value();
        },
        "add(name, paragraph): the paragraph (copies after the first) to each box of that name."
        " A role (Title, Subtitle, Content, Text, 'Content 2'...) names the placeholder of that role"
        " where no shape bears the name; see find.");
    cls.addMethod(
        "replace", words::Void, {words::String, words::String},
        [](Call& c) {
            c.self<Root>().replace(c.text(0), c.text(1));
            return Value();
        },
        "replace(name, text): the text becomes the only content of each box of that name."
        " A role (Title, Subtitle, Content, Text, 'Content 2'...) names the placeholder of that role"
        " where no shape bears the name; see find.");
    cls.addMethod(
        "replace", words::Void, {words::String, kParagraph},
        [](Call& c) {
            c.self<Root>().replace(c.text(0), c.object<Paragraph>(1));
            return Value();
        },
        "replace(name, paragraph): the same with a paragraph (copies after the first).");
    cls.addMethod(
        "replace", words::Void, {words::Any, words::Any},
        [](Call& c) {
            u16string const name = toText(c.raw(0));
            replaceValueInEach(c.self<Root>().find(name), c.raw(1));
            return Value();
        },
        "replace(name, list): a cell array's paragraphs, nested cells a level deeper, in each box.");
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
