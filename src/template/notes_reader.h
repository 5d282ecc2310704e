// The speaker notes of a slide part, as the model reads them with the slide.
#pragma once

#include "template/part_dom_builder.h"
#include "template/template_records.h"

namespace deckforge {
namespace ppt {

// Fills the slide's notes from the body placeholder of the notes part that
// the slide part relates to; leaves them empty when there is none. A notes
// part that can't be parsed raises partDOMBuildError like any other part.
void readSlideNotes(PartDOMBuilder& builder, opc::model::Part const& slidePart, TemplateSlide& slide);

// The notes placeholder of a notes document: the p:sp whose p:ph has type
// "body"; null if there is none.
xercesc::DOMElement* findNotesBody(xercesc::DOMDocument const* notesDocument);

}  // namespace ppt
}  // namespace deckforge
