// PNG files made from pixel values, for pictures of image arrays that
// script code hands over: grey or RGB, 8 or 16 bits a sample, no
// interlacing and no filtering.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace deckforge {

// The bytes of a PNG file of `width` by `height` pixels. `samples` holds
// them row by row, each pixel's `channels` (1 grey, 3 RGB) samples in
// turn; each sample is below 256 at 8 bits, below 65536 at 16. Empty when
// the sizes don't fit the samples or compression fails.
std::string encodePng(std::uint32_t width, std::uint32_t height, unsigned channels, unsigned bitDepth,
                      std::vector<std::uint16_t> const& samples);

}  // namespace deckforge
