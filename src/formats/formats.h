// The formats of one node: at most one of each kind, kept in FormatType order.
// Copies share the format objects, so changing a format's value shows in
// every node that holds it. Every element of the object core holds one by
// value, so this stays header-only: the core uses it without linking the
// format classes.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "formats/format.h"
#include "formats/format_type.h"

namespace deckforge {
namespace ppt {

class Formats {
public:
    // A sorted vector rather than a map: most nodes have no format and the
    // rest a few, and every element of a deck holds one of these.
    using Map = std::vector<std::pair<FormatType, boost::shared_ptr<Format>>>;

    Formats() = default;
    Formats(Formats const& other) = default;
    Formats& operator=(Formats const& other) {
        if (this == &other) return *this;
        mMap.clear();
        mMap = other.mMap;
        return *this;
    }

    // Keyed by the format's type: a later format of a kind replaces the
    // earlier one, and the order never depends on when it was added. An
    // empty pointer is ignored.
    void appendFormat(boost::shared_ptr<Format> format) {
        if (!format) return;
        FormatType type = format->getFormatType();
        auto it = lowerBound(type);
        if (it != mMap.end() && it->first == type)
            it->second = std::move(format);
        else
            mMap.emplace(it, type, std::move(format));
    }
    // Empty if the node has no format of that kind.
    boost::shared_ptr<Format> getFormat(FormatType type) const {
        auto it = lowerBound(type);
        return it == mMap.end() || it->first != type ? boost::shared_ptr<Format>() : it->second;
    }
    void unsetFormat(FormatType type) {
        auto it = lowerBound(type);
        if (it != mMap.end() && it->first == type) mMap.erase(it);
    }
    Map const& getMap() const { return mMap; }

private:
    static bool before(Map::value_type const& entry, FormatType type) { return entry.first < type; }
    Map::const_iterator lowerBound(FormatType type) const {
        return std::lower_bound(mMap.begin(), mMap.end(), type, before);
    }
    Map::iterator lowerBound(FormatType type) {
        return std::lower_bound(mMap.begin(), mMap.end(), type, before);
    }

    Map mMap;
};

}  // namespace ppt
}  // namespace deckforge
