#include "writers/table_row_writer.h"

#include <xercesc/dom/DOM.hpp>

#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

namespace {
xml::Name const kTr{u"a:tr"};
xml::Name const kH{u"h"};
}  // namespace

void TableRowWriter::write() {
    xercesc::DOMElement* tr = createElement(kTr);
    if (!tr) return;
    auto const& context = getWriter()->getTableContext();
    tr->setAttribute(kH, context->getRowHeight().c_str());
    writeChildren(tr);
    if (xercesc::DOMNode* parent = getParent()) parent->appendChild(tr);
    context->nextRow();
}

}  // namespace ppt
}  // namespace deckforge
