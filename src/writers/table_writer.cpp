#include "writers/table_writer.h"

#include <xercesc/dom/DOM.hpp>

#include "messages/message_dispatcher.h"
#include "platform/msg_ids.h"
#include "template/presentation_model.h"
#include "writers/table_markup.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

TableWriter::TableWriter(TableImpl const* table_, PPTWriter* writer, xercesc::DOMNode* parent)
    : ShapeWriter(table_, writer, parent), table(table_) {}

void TableWriter::write() {
    auto const& slide = getCurrentSlide();
    if (!slide) return;
    getWriter()->beginTable(table);

    if (table->getChildren().empty()) {
        // No frame: the element of the template stays as it is, a
        // placeholder with an empty paragraph, but for the marker, which is
        // in no schema: a reader that validates would refuse the slide.
        xercesc::DOMElement* element = findShapeElement();
        if (element) element->removeAttribute(xml::kDataUid);
        if (getTemplateNodeType() != static_cast<std::int32_t>(NodeType::Picture)) addEmptyParagraph(element);
        return;
    }

    xercesc::DOMElement* element = findShapeElement();
    xercesc::DOMElement* frame = nullptr;
    if (element) {
        xercesc::DOMNode* parent = element->getParentNode();
        xercesc::DOMElement const* layoutElement = findLayoutShapeElement();
        frame = getTemplateNodeType() == static_cast<std::int32_t>(NodeType::Table)
                    ? createTableFromGraphicFrame(*slide, element, layoutElement, table->getNCols(), *table)
                    : createTableFromPlaceholder(*slide, element, layoutElement, table->getNCols(), *table);
        // The old element goes, and its marker with it.
        if (frame && parent) parent->replaceChild(frame, element);
    } else {
        frame = createTable(*slide, *table, table->getNCols());
    }
    if (!frame) {
        getWriter()->endTable();
        return;
    }

    xercesc::DOMElement* tbl = findTableElement(frame);
    BaseAttribute<u16string> const& styleName = table->getStyleName();
    if (styleName.isSet() && !(getModel() && applyTableStyle(*getModel(), tbl, styleName.getValue())))
        reportUnknownStyle(styleName.getValue());
    applyFormats(table, getInheritableFormatTypes());
    if (!tableStyleOptions) tableStyleOptions = boost::make_shared<TemplateTableStyleOptions>();
    applyTableStyleOptions(tbl, *tableStyleOptions);
    if (tbl) writeChildren(tbl);
    applyColumnWidths(tbl, getWriter()->getTableContext()->getColumnWidths());
    getWriter()->endTable();
}

void TableWriter::applyFormat(FormatImpl const* format) {
    if (format) format->applyToTable(*this);
}

void TableWriter::reportUnknownStyle(u16string const& styleName) const {
    // A warning's id that travels as an error: it passes or stops with the
    // errors, as script code that asked for a style expects to hear of it.
    MessageDispatcher const& dispatcher = MessageDispatcher::getTheDispatcher();
    if (!dispatcher.getMessageFilter().getErrorMessagesPass()) return;
    dispatcher.dispatch(ErrorMessage(resource_core::makeMsgID<ppt_warning::invalidTableStyle>(styleName)));
}

}  // namespace ppt
}  // namespace deckforge
