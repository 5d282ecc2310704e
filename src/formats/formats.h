// The formats of one node: at most one of each kind, kept in FormatType order.
// Copies share the format objects, so changing a format's value shows in
// every node that holds it. Every element of the object core holds one by
// value, so this stays header-only: the core uses it without linking the
// format classes.
#pragma once

#include <map>

#include <boost/shared_ptr.hpp>

#include "formats/format.h"
#include "formats/format_type.h"

namespace deckforge {
namespace ppt {

class Formats {
public:
    using Map = std::map<FormatType, boost::shared_ptr<Format>>;

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
        mMap[type] = std::move(format);
    }
    // Empty if the node has no format of that kind.
    boost::shared_ptr<Format> getFormat(FormatType type) const {
        auto it = mMap.find(type);
        return it == mMap.end() ? boost::shared_ptr<Format>() : it->second;
    }
    void unsetFormat(FormatType type) { mMap.erase(type); }
    Map const& getMap() const { return mMap; }

private:
    Map mMap;
};

}  // namespace ppt
}  // namespace deckforge
