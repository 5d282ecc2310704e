#include "writers/picture_writer.h"

namespace deckforge {
namespace ppt {

void PictureWriter::write() {
    if (picture->getPath().empty()) return;
    // Copying the image and building the p:pic come with picture paths.
}

}  // namespace ppt
}  // namespace deckforge
