// Renders a table entry as an a:tc, followed by the filler cells of its span
// so that the row's cells keep step with the grid. The cell's fill and
// anchor come from the entry, else its row, else the ColSpec of its column,
// else the table and on up; they go into an a:tcPr made on first use.
#pragma once

#include <vector>

#include "nodes/table_entry.h"
#include "writers/element_writer.h"

namespace deckforge {
namespace ppt {

class TableEntryWriter : public ElementWriter {
public:
    TableEntryWriter(TableEntryImpl const* entry, PPTWriter* writer, xercesc::DOMNode* parent)
        : ElementWriter(entry, writer, parent), entry(entry) {}

    void write() override;
    void applyFormat(FormatImpl const* format) override;
    // BackgroundColor, VAlign.
    std::vector<FormatType> const& getInheritableFormatTypes() const override;

    // For the formats. a:tcPr is created on first use and attached by write().
    xercesc::DOMElement* ensureCellProperties();
    // Always appends a new child of that name to a:tcPr.
    xercesc::DOMElement* addCellProperty(XMLCh const* name);
    // "1" or "0".
    void setCellAttribute(XMLCh const* name, bool value);
    void setCellAttribute(XMLCh const* name, XMLCh const* value);
    // For ColWidth: the column being written is at least this wide.
    void widenColumn(double emus);

    TableEntryImpl const* getEntry() const { return entry; }
    xercesc::DOMElement* getCellProperties() const { return cellProperties; }

private:
    TableEntryImpl const* entry;
    xercesc::DOMElement* cellProperties = nullptr;
};

}  // namespace ppt
}  // namespace deckforge
