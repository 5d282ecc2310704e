// The bitmap that stands beside an SVG picture for readers that can't draw
// SVG: the file drawn by librsvg into a PNG.
#pragma once

#include <string>

#include "common/strings.h"

namespace deckforge {
namespace ppt {

// The PNG bytes of the SVG file drawn to fill `width` by `height` pixels
// (its aspect kept, centred); empty when librsvg can't read the file or the
// size is out of reason.
std::string renderSvgToPng(u16string const& path, unsigned width, unsigned height);

}  // namespace ppt
}  // namespace deckforge
