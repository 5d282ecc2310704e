#include "template/slide_copy.h"

#include <algorithm>

#include <xercesc/dom/DOM.hpp>

namespace deckforge {
namespace ppt {

boost::shared_ptr<TemplateSlide> copySlideRecord(PresentationModel const& model, TemplateSlide const& source) {
    boost::shared_ptr<TemplateSlide> copy;
    if (source.fromLayout) {
        copy = model.createSlideRecord(source.layout);
        if (!copy) return copy;
        copy->nextShapeId = std::max(copy->nextShapeId, source.nextShapeId);
    } else {
        copy = boost::make_shared<TemplateSlide>();
        copy->layout = source.layout;
        copy->shapes = source.shapes;
        copy->name = source.name;
        copy->nextShapeId = source.nextShapeId;
        copy->copiedFromPartName = source.partName.empty() ? source.copiedFromPartName : source.partName;
        if (source.document) {
            copy->setDocument(static_cast<xercesc::DOMDocument*>(source.document->cloneNode(true)));
            PresentationModel::indexShapeElements(*copy);
        }
    }
    // The copy writes its own notes part, even of notes nobody changed.
    copy->notes = source.notes;
    copy->notesChanged = !source.notes.empty();
    return copy;
}

}  // namespace ppt
}  // namespace deckforge
