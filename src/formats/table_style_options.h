// The six switches of a table's style. The format is a table's own: the
// table writer keeps its options and writes them on a:tblPr.
#pragma once

#include <boost/shared_ptr.hpp>

#include "formats/format.h"
#include "template/template_records.h"

namespace deckforge {
namespace ppt {

class TableStyleOptionsImpl : public FormatImpl {
public:
    // First row and banded rows on, all else off.
    TableStyleOptionsImpl();
    // A copy has switches of its own.
    TableStyleOptionsImpl(TableStyleOptionsImpl const& other);

    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // No markup: hands the shared options to the writer.
    void applyToTable(TableWriter& writer) const override;
    boost::shared_ptr<Format> clone() const override;

    // Shared with the writer that renders the table.
    boost::shared_ptr<TemplateTableStyleOptions> const& getOptions() const { return mOptions; }

private:
    boost::shared_ptr<TemplateTableStyleOptions> mOptions;
};

class TableStyleOptions : public Format {
public:
    TableStyleOptions();
    explicit TableStyleOptions(FormatImpl* impl) : Format(impl) {}
    boost::shared_ptr<TableStyleOptions> clone() const;

    bool getFirstRow() const { return options().firstRow; }
    void setFirstRow(bool on) { options().firstRow = on; }
    bool getLastRow() const { return options().lastRow; }
    void setLastRow(bool on) { options().lastRow = on; }
    bool getBandedRows() const { return options().bandRow; }
    void setBandedRows(bool on) { options().bandRow = on; }
    bool getFirstColumn() const { return options().firstCol; }
    void setFirstColumn(bool on) { options().firstCol = on; }
    bool getLastColumn() const { return options().lastCol; }
    void setLastColumn(bool on) { options().lastCol = on; }
    bool getBandedColumns() const { return options().bandCol; }
    void setBandedColumns(bool on) { options().bandCol = on; }

private:
    TemplateTableStyleOptions& options() const { return *getImplAs<TableStyleOptionsImpl>()->getOptions(); }
};

}  // namespace ppt
}  // namespace deckforge
