// The PPTWriter of a Presentation node, apart from the rest so that the
// writer itself needs no more of the engine than the node core.
#include "engine/presentation.h"
#include "writers/ppt_writer.h"

namespace deckforge {
namespace ppt {

PPTWriter::PPTWriter(PresentationImpl* presentation_, boost::shared_ptr<OPCPackage> const& package)
    : presentation(presentation_), model(presentation_->getModel()) {
    init(package);
}

}  // namespace ppt
}  // namespace deckforge
