// docProps/core.xml at close.
#pragma once

#include <ctime>
#include <map>
#include <optional>

#include <boost/shared_ptr.hpp>

#include "common/strings.h"

namespace deckforge {
namespace ppt {

class OPCPackage;

// Sets the fields that script code assigned (by field name, see
// template/core_properties.h) in the package's core properties part, and
// Modified to `fixedTime` unless assigned. A package without the part gets
// one, created and modified now (or at `fixedTime`). With nothing assigned,
// no fixed time and the part there, the part stays as it is.
void writeCoreProperties(boost::shared_ptr<OPCPackage> const& package,
                         std::map<u16string, u16string> const& assigned, std::optional<std::time_t> fixedTime);

// The time as W3CDTF text in UTC, as "2024-03-01T12:00:00Z".
u16string w3cdtf(std::time_t time);

}  // namespace ppt
}  // namespace deckforge
