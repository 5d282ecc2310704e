// Script values seen as the host's typed content (platform/hv_content.h):
// what a table is made of when script code gives a whole value.
//
// A value as a table (toHvTable):
//   - a cell array: its rows and columns, each element one cell;
//   - a numeric or logical matrix: one cell for each element;
//   - a character row: one cell; a character matrix: a column of its rows,
//     without the blanks that pad them;
//   - a struct array: one row for each element, one column for each field,
//     and the field names as headers. A dataframe reaches the library as the
//     struct array of its rows, so it shows the same way;
//   - one deckforge object: a table of one cell.
// Anything else (a function handle, an object of another class) has no table
// form.
//
// One element as a cell (toContent):
//   - a number: a whole number as itself, any other (3.14, NaN, Inf, 1e20)
//     as Octave's num2str prints it ("3.14", "NaN", "Inf", "1e+20");
//   - a logical: 1 or 0;
//   - text as itself, a character matrix its trimmed rows joined by blanks;
//   - a number or logical array: its elements as "[1 2;3 4]";
//   - an object: itself, so a Paragraph goes into the table as it is;
//   - a cell array: a list, which a table shows as an empty cell;
//   - [] or a struct: nothing, an empty cell.
//
// There is no categorical type in Octave; a cell array of strings, the
// nearest thing, is a table of its strings.
#pragma once

#include "binding/value.h"
#include "platform/hv_content.h"

namespace deckforge {
namespace ppt {
namespace mi {

HvContentPtr toContent(Value const& value);
boost::shared_ptr<HvTable> toHvTable(Value const& value);
// A cell array's elements in order, or one object as a list of one; null
// for anything else.
boost::shared_ptr<HvList> toHvList(Value const& value);
// Whether the value is a table of its own (a struct array, a dataframe)
// rather than a list: that is what a content placeholder turns into a table.
bool isHostTable(Value const& value);

// A number as Octave's num2str prints a scalar.
u16string shortNumberText(double value);

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
