// A table built in one pass from the host's view of a value: a header row
// when the value has headers, then one row per body row with one entry per
// column, each entry holding one paragraph.
#include <boost/make_shared.hpp>

#include "nodes/table.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {

namespace {

// One run for what the host gives: the number or text itself, the display
// form of display kinds and of objects, and an empty run for everything a
// cell can't show (nothing, a list, a table).
Paragraph paragraphOf(HvContentPtr const& content) {
    if (!content) return Paragraph(u16string());
    switch (content->getType()) {
        case hv_type::Boolean:
            return Paragraph(BooleanContent::getValue(content) ? 1.0 : 0.0);
        case hv_type::Integer:
            return Paragraph(static_cast<double>(IntegerContent::getValue(content)));
        case hv_type::Double:
            return Paragraph(DoubleContent::getValue(content));
        case hv_type::String:
            return Paragraph(StringContent::getValue(content));
        case hv_type::DisplayNumber:
        case hv_type::DisplayText:
        case hv_type::DisplayOther:
        case hv_type::Object: {
            boost::shared_ptr<HvData> const data = DataContent::getValue(content);
            return Paragraph(data ? data->getDispl() : u16string());
        }
        default:
            return Paragraph(u16string());
    }
}

// Numbers, also those a host gives in display form (a dataframe's column);
// logicals show as 1 and 0 but are no quantities.
bool isNumber(HvContentPtr const& content) {
    if (!content) return false;
    int const type = content->getType();
    return type == hv_type::Integer || type == hv_type::Double || type == hv_type::DisplayNumber;
}

// The paragraph of a cell: a Paragraph object itself, or a new one from the
// content. Null for a cell that names a paragraph with no native object.
boost::shared_ptr<Paragraph> cellParagraph(HvContentPtr const& content) {
    if (ObjectContent const* object = ObjectContent::getValue(content)) {
        if (object->isA("deckforge.ppt.Paragraph")) {
            auto* impl = dynamic_cast<ParagraphImpl*>(object->getNative());
            return impl ? boost::make_shared<Paragraph>(impl) : boost::shared_ptr<Paragraph>();
        }
    }
    return boost::make_shared<Paragraph>(paragraphOf(content));
}

}  // namespace

// Rows go in through append, which a row's entries widen nCols by; entries
// are complete before their row joins the table. A failure leaves nothing:
// the object under construction goes with its rows, and a Paragraph taken
// from a cell loses its parent again.
TableImpl::TableImpl(boost::shared_ptr<HvTable> const& table) {
    if (table->getContentType() == hv_type::HeaderTable) {
        boost::shared_ptr<HvQUORIXTable> const headed = HvQUORIXTable::cast(table);
        if (headed && !headed->getHeadersSpan().empty()) {
            TableRow header;
            for (auto const& [text, span] : headed->getHeadersSpan()) {
                TableEntry entry;
                entry.setColSpan(static_cast<int>(span));
                entry.append(Paragraph(text));
                // One for the header and one for each column under it: more
                // than the columns, which the writer ignores past the count.
                for (unsigned int i = 0; i <= span; ++i) mColSpecs.push_back(boost::make_shared<ColSpec>());
                header.append(entry);
            }
            append(header);
        }
    }

    std::size_t const rows = table->getRowCount();
    std::size_t const cols = table->getColumnCount();
    mNCols = cols;
    for (std::size_t r = 0; r < rows; ++r) {
        TableRow row;
        for (std::size_t c = 0; c < cols; ++c) {
            HvContentPtr const& content = table->getCell(r, c);
            boost::shared_ptr<Paragraph> paragraph = cellParagraph(content);
            TableEntry entry;
            entry.tableEntryImpl()->setFromNumber(isNumber(content));
            if (paragraph) {
                if (paragraph->nodeImpl()->getParent())
                    paragraph = boost::make_shared<Paragraph>(paragraph->clone()->getImpl());
                entry.append(*paragraph);
            } else if (!table->isCellPermitted(r, c)) {
                deckforge::raise<ppt_error::invalidObjectForTable>(
                    num2str(static_cast<unsigned long>(c + 1)), num2str(static_cast<unsigned long>(r + 1)));
            }
            row.append(entry);
        }
        append(row);
    }
    reportCreated();
}

Table::Table(boost::shared_ptr<HvTable> const& table) : Shape(new TableImpl(table)) {}

}  // namespace ppt
}  // namespace deckforge
