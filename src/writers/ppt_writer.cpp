#include "writers/ppt_writer.h"

#include <exception>

#include <xercesc/dom/DOM.hpp>

#include "common/dimension.h"
#include "formats/dimension_formats.h"
#include "nodes/table.h"
#include "template/presentation_model.h"
#include "writers/chart_writer.h"
#include "writers/picture_writer.h"
#include "writers/ppt_part_writer.h"
#include "writers/unwritten_slides.h"

namespace deckforge {
namespace ppt {

// ---- TableContext

PPTWriter::TableContext::TableContext(std::uint64_t rows, std::uint64_t columns, u16string const& heightText)
    : rowCount(rows), columnCount(columns), columnFormats(columns), columnWidths(columns) {
    if (rowCount != 0 && !heightText.empty()) {
        long long const emus = Dimension(heightText).getEMUNumber();
        rowHeight = toString(std::to_string(emus / static_cast<long long>(rowCount)));
    }
}

void PPTWriter::TableContext::nextRow() {
    ++currentRow;
    currentColumn = 0;
}

Formats const& PPTWriter::TableContext::getColumnFormats(std::uint64_t index) const {
    static Formats const none;
    if (index >= columnCount || index >= columnFormats.size()) return none;
    return columnFormats[index];
}

void PPTWriter::TableContext::widenCurrentColumn(double emus) {
    if (currentColumn >= columnWidths.size()) return;
    auto& width = columnWidths[currentColumn];
    if (width.isSet() && !(emus > static_cast<double>(width.getValue()))) return;
    width.setValue(static_cast<unsigned int>(static_cast<std::int32_t>(emus)));
}

// ---- PPTWriter

PPTWriter::PPTWriter(boost::shared_ptr<PresentationModel> const& model_,
                     boost::shared_ptr<OPCPackage> const& package)
    : model(model_) {
    init(package);
}

void PPTWriter::init(boost::shared_ptr<OPCPackage> const& package) {
    partWriter = boost::make_shared<PPTPartWriter>(package);
    writtenSlides = boost::make_shared<TemplateSlideList>();
    tableContext = boost::make_shared<TableContext>();
    // New slide parts are numbered on from the template's slides.
    if (model && model->getSlides()) partWriter->setSlideNumber(model->getSlides()->size());
    uncaughtAtStart = std::uncaught_exceptions();
}

PPTWriter::~PPTWriter() noexcept(false) {
    if (std::uncaught_exceptions() > uncaughtAtStart) return;
    if (!writtenSlides || !model) return;
    dropUnwrittenSlides(*partWriter, *model, *writtenSlides);
    model->writePresentationPart(*partWriter, *writtenSlides);
    // Last, when every part that stays has its relationships: what only a
    // dropped slide reached goes with it.
    partWriter->deleteUnreachableParts();
}

void PPTWriter::write(PPTNodePtr const& node) {
    if (node) node->acceptWriter(this, nullptr);
}

void PPTWriter::setCurrentSlide(boost::shared_ptr<TemplateSlide> const& slide) {
    currentSlide = slide;
    writtenSlides->push_back(slide);
}

u16string PPTWriter::getCurrentSlidePartName() const {
    return currentSlide ? currentSlide->partName : u16string();
}

xercesc::DOMElement* PPTWriter::createElement(XMLCh const* name) const {
    if (!currentSlide || !currentSlide->document) return nullptr;
    return currentSlide->document->createElement(name);
}

namespace {
xercesc::DOMElement* findIn(ElementMap const& elements, u16string const& uid) {
    auto it = elements.find(uid);
    return it == elements.end() ? nullptr : it->second;
}
}  // namespace

xercesc::DOMElement* PPTWriter::findSlideElement(u16string const& uid) const {
    if (!currentSlide) return nullptr;
    return findIn(currentSlide->shapeElementsByUid, uid);
}

xercesc::DOMElement* PPTWriter::findLayoutElement(u16string const& uid) const {
    if (!currentSlide || !currentSlide->layout) return nullptr;
    return findIn(currentSlide->layout->shapeElementsByUid, uid);
}

void PPTWriter::beginTable(TableImpl const* table) {
    BaseAttribute<Dimension> const& height = table->getHeight();
    tableContext =
        boost::make_shared<TableContext>(table->getChildren().size(), table->getNCols(),
                                         height.isSet() ? height.getValue().getText() : u16string());
    // Only the specs given have formats: the columns past them have none.
    auto& formats = tableContext->getColumnFormatsList();
    auto& widths = tableContext->getColumnWidths();
    formats.clear();
    auto const& specs = table->getColSpecs();
    for (std::size_t i = 0; i < specs.size(); ++i) {
        formats.push_back(specs[i] ? specs[i]->getStyle() : Formats());
        if (!specs[i]) continue;
        auto const width =
            boost::dynamic_pointer_cast<BaseDimension>(specs[i]->getStyle().getFormat(FormatTypeColWidth));
        if (width && i < widths.size())
            widths[i].setValue(static_cast<unsigned int>(width->getDimension().getEMUNumber()));
    }
}

void PPTWriter::endTable() {
    tableContext = boost::make_shared<TableContext>();
}

void PPTWriter::writePicture(PictureImpl const* picture, xercesc::DOMNode* parent) {
    PictureWriter(picture, this, parent).write();
}

void PPTWriter::writeChart(ChartImpl const* chart, xercesc::DOMNode* parent) {
    ChartWriter(chart, this, parent).write();
}

}  // namespace ppt
}  // namespace deckforge
