// The record of a copy of a slide.
#pragma once

#include <boost/shared_ptr.hpp>

#include "template/presentation_model.h"
#include "template/template_records.h"

namespace deckforge {
namespace ppt {

// A new record for a copy of `source`, with its notes. A slide made from a
// layout is made again from it at close, so its copy needs only a record
// of its own. A template slide's copy takes a clone of its document now,
// before any writer changes the original, and at close the relationships of
// the original's part (see copiedFromPartName).
boost::shared_ptr<TemplateSlide> copySlideRecord(PresentationModel const& model, TemplateSlide const& source);

}  // namespace ppt
}  // namespace deckforge
