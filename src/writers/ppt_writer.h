// The visitor of one rendering pass. It lives for one close of a
// presentation: it knows the model, the part writer, the slide and the table
// being written, and offers them to the short-lived ElementWriters that each
// node's acceptWriter makes. When it is dropped, the model rewrites the
// presentation part with the slides in the order they were written.
#pragma once

#include <cstdint>
#include <vector>

#include <boost/noncopyable.hpp>
#include <boost/shared_ptr.hpp>
#include <xercesc/util/XercesDefs.hpp>

#include "common/strings.h"
#include "engine/ppt_node.h"
#include "formats/attribute.h"
#include "formats/formats.h"
#include "template/template_records.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMElement;
class DOMNode;
XERCES_CPP_NAMESPACE_END

namespace deckforge {
namespace ppt {

class OPCPackage;
class PPTPartWriter;
class PresentationImpl;
class PresentationModel;
class PictureImpl;
class TableImpl;
class ChartImpl;

class PPTWriter : private boost::noncopyable {
public:
    // What the writers of a table's rows and entries need to know about the
    // table being written. A neutral context (no rows, no columns) stands in
    // while no table is open.
    class TableContext {
    public:
        TableContext() = default;
        // heightText is the table's Height as a length ("5cm"), or empty.
        // Each row gets an even share of it in EMU, truncated; "0" without
        // rows or height.
        TableContext(std::uint64_t rowCount, std::uint64_t columnCount, u16string const& heightText);

        std::uint64_t getRowCount() const { return rowCount; }
        std::uint64_t getColumnCount() const { return columnCount; }
        std::uint64_t getCurrentRow() const { return currentRow; }
        std::uint64_t getCurrentColumn() const { return currentColumn; }
        u16string const& getRowHeight() const { return rowHeight; }

        void nextRow();
        void nextColumn() { ++currentColumn; }
        // A shared empty Formats beyond the columns or the ColSpecs given.
        Formats const& getCurrentColumnFormats() const { return getColumnFormats(currentColumn); }
        Formats const& getColumnFormats(std::uint64_t index) const;
        std::vector<Formats>& getColumnFormatsList() { return columnFormats; }
        std::vector<BaseAttribute<unsigned int>>& getColumnWidths() { return columnWidths; }
        // Keeps the widest width asked for the current column.
        void widenCurrentColumn(double emus);

    private:
        std::uint64_t rowCount = 0;
        std::uint64_t columnCount = 0;
        std::uint64_t currentRow = 0;
        std::uint64_t currentColumn = 0;
        u16string rowHeight = u"0";
        std::vector<Formats> columnFormats;
        std::vector<BaseAttribute<unsigned int>> columnWidths;
    };

    // The part writer works on `package`, which must be open for update and
    // hold the template; new slide parts are numbered after the template's.
    PPTWriter(PresentationImpl* presentation, boost::shared_ptr<OPCPackage> const& package);
    // The same without a Presentation node, for a model held elsewhere.
    PPTWriter(boost::shared_ptr<PresentationModel> const& model,
              boost::shared_ptr<OPCPackage> const& package);
    // Rewrites presentation.xml, unless an exception is on its way: a pass
    // that failed leaves the presentation part as it was.
    ~PPTWriter() noexcept(false);

    // Renders one node (a slide) into its part.
    void write(PPTNodePtr const& node);

    PresentationImpl* getPresentation() const { return presentation; }
    boost::shared_ptr<PresentationModel> const& getModel() const { return model; }
    boost::shared_ptr<PPTPartWriter> const& getPartWriter() const { return partWriter; }
    boost::shared_ptr<TemplateSlide> const& getCurrentSlide() const { return currentSlide; }
    // Makes the slide current and appends it to the slides written.
    void setCurrentSlide(boost::shared_ptr<TemplateSlide> const& slide);
    boost::shared_ptr<TemplateSlideList> const& getWrittenSlides() const { return writtenSlides; }
    // Empty text before the first slide.
    u16string getCurrentSlidePartName() const;

    // A new element of the current slide's document; null without a slide.
    xercesc::DOMElement* createElement(XMLCh const* name) const;
    // The element of the current slide, or of its layout, that bears the
    // uid; null if there is none.
    xercesc::DOMElement* findSlideElement(u16string const& uid) const;
    xercesc::DOMElement* findLayoutElement(u16string const& uid) const;

    boost::shared_ptr<TableContext> const& getTableContext() const { return tableContext; }
    void setTableContext(boost::shared_ptr<TableContext> const& context) { tableContext = context; }
    // A new context for the table: its rows and columns, the row height, and
    // the formats and widths of its ColSpecs by column.
    void beginTable(TableImpl const* table);
    void endTable();

    void writePicture(PictureImpl const* picture, xercesc::DOMNode* parent);
    void writeChart(ChartImpl const* chart, xercesc::DOMNode* parent);

private:
    void init(boost::shared_ptr<OPCPackage> const& package);

    PresentationImpl* presentation = nullptr;
    boost::shared_ptr<PresentationModel> model;
    boost::shared_ptr<PPTPartWriter> partWriter;
    boost::shared_ptr<TemplateSlideList> writtenSlides;
    boost::shared_ptr<TemplateSlide> currentSlide;
    boost::shared_ptr<TableContext> tableContext;
    int uncaughtAtStart = 0;
};

}  // namespace ppt
}  // namespace deckforge
