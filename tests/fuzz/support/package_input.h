// How a fuzz input becomes a package file.
//
// Mutating a real zip mostly breaks its deflate streams and CRCs, so the
// fuzzer would rarely get past libzip into the XML. An input is therefore
// either a zip as it stands (it starts with "PK") or a list of items, each
//   <item name> '\n' <content> '\0'
// (the last may end without '\0'), which is zipped before use. Mutations of
// the second form land in the part names, content types, relationships and
// part XML themselves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace deckforge {
namespace fuzz {

using Items = std::vector<std::pair<std::string, std::string>>;

bool isZip(std::uint8_t const* data, std::size_t size);

Items splitItems(std::uint8_t const* data, std::size_t size);
std::string joinItems(Items const& items);

// A zip of the items, stored uncompressed, in their order. Items that libzip
// won't take (an empty name, a name seen before) are left out.
std::string zipItems(Items const& items);
// Every entry of a zip that isn't a directory, in stored order.
Items unzipItems(std::string const& zip);

// The bytes of the package file for an input of either form.
std::string packageBytes(std::uint8_t const* data, std::size_t size);

}  // namespace fuzz
}  // namespace deckforge
