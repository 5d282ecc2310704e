#include "writers/slide_writer.h"

#include "template/presentation_model.h"
#include "writers/notes_writer.h"
#include "writers/ppt_part_writer.h"
#include "writers/shape_markup.h"

namespace deckforge {
namespace ppt {

SlideWriter::SlideWriter(SlideImpl const* slide_, PPTWriter* writer, xercesc::DOMNode* parent)
    : ElementWriter(slide_, writer, parent), slide(slide_) {}

void SlideWriter::write() {
    boost::shared_ptr<TemplateSlide> const templateSlide = slide->getTemplateSlide();
    if (!templateSlide) return;

    PresentationModel::buildSlideDocument(*templateSlide);
    // Also for an empty name, so that the p:cSld always says it.
    getModel()->setSlideName(templateSlide, slide->getName());
    // A template slide keeps its part; a new one gets the next free name.
    if (templateSlide->partName.empty())
        templateSlide->partName = templateSlide->copiedFromPartName.empty()
                                      ? getPartWriter()->addSlide(templateSlide)
                                      : getPartWriter()->addSlideCopy(templateSlide);
    getWriter()->setCurrentSlide(templateSlide);

    // The shape writers find or create their own elements; new ones take ids
    // above all that the document holds.
    reserveShapeIds(*templateSlide);
    writeChildren(nullptr);

    getPartWriter()->writeDocument(templateSlide->partName, templateSlide->document);
    NotesWriter(getWriter()).write(*templateSlide);
    PresentationModel::releaseSlideDocument(*templateSlide);
}

}  // namespace ppt
}  // namespace deckforge
