// Renders a table row as an a:tr of the shared row height. The row's formats
// write nothing of their own: its entries find them through findFormat.
#pragma once

#include "nodes/table_row.h"
#include "writers/element_writer.h"

namespace deckforge {
namespace ppt {

class TableRowWriter : public ElementWriter {
public:
    TableRowWriter(TableRowImpl const* row, PPTWriter* writer, xercesc::DOMNode* parent)
        : ElementWriter(row, writer, parent), row(row) {}

    void write() override;

    TableRowImpl const* getRow() const { return row; }

private:
    TableRowImpl const* row;
};

}  // namespace ppt
}  // namespace deckforge
