// Renders a table: the p:graphicFrame that takes the place of its template
// element or is appended as a new shape, the table's style and style
// options, and the grid. The rows and entries are written by their own
// writers into the a:tbl, sharing what they need to know about the table
// through the PPTWriter's table context.
#pragma once

#include <boost/shared_ptr.hpp>

#include "nodes/table.h"
#include "template/template_records.h"
#include "writers/shape_writer.h"

namespace deckforge {
namespace ppt {

class TableWriter : public ShapeWriter {
public:
    TableWriter(TableImpl const* table, PPTWriter* writer, xercesc::DOMNode* parent);

    // A table without rows writes no frame: a placeholder it stands for
    // stays a placeholder, with an empty paragraph.
    void write() override;
    void applyFormat(FormatImpl const* format) override;

    // For TableStyleOptions: the options that the table is written with;
    // without any, first row and banded rows are on.
    void setTableStyleOptions(boost::shared_ptr<TemplateTableStyleOptions> const& options) {
        tableStyleOptions = options;
    }

    TableImpl const* getTable() const { return table; }

private:
    // The warning for a style name that the template doesn't know.
    void reportUnknownStyle(u16string const& styleName) const;

    TableImpl const* table;
    boost::shared_ptr<TemplateTableStyleOptions> tableStyleOptions;
};

}  // namespace ppt
}  // namespace deckforge
