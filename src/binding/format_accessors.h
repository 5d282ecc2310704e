// Property accessors of the format classes. Format handles wrap a
// FormatImpl, not any object, so these build the handle from the script
// object's implementation as a format; otherwise they are those of
// accessors.h.
#pragma once

#include "binding/accessors.h"
#include "formats/format.h"

namespace deckforge {
namespace ppt {
namespace mi {

template <class T, class R>
Getter formatGetter(R (T::*get)() const) {
    return [get](PPTObject const& self) { return toScript((T(self.getImplAs<FormatImpl>()).*get)()); };
}

template <class T, class A>
Setter formatTextSetter(void (T::*set)(A)) {
    return [set](PPTObject const& self, Value const& value) {
        T target(self.getImplAs<FormatImpl>());
        (target.*set)(toText(value));
    };
}

template <class T>
Setter formatLogicalSetter(void (T::*set)(bool)) {
    return [set](PPTObject const& self, Value const& value) {
        T target(self.getImplAs<FormatImpl>());
        (target.*set)(toLogical(value));
    };
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
