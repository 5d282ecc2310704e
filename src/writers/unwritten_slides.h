// Template slides that a pass didn't write have left the deck.
#pragma once

#include "template/template_records.h"

namespace deckforge {
namespace ppt {

class PPTPartWriter;
class PresentationModel;

// Drops the presentation's relationships to the template's slides that are
// not among `written`, and their entries in custom shows and sections, so
// that nothing in presentation.xml names them. Their parts become
// unreachable and go in the package's sweep.
void dropUnwrittenSlides(PPTPartWriter& parts, PresentationModel& model, TemplateSlideList const& written);

}  // namespace ppt
}  // namespace deckforge
