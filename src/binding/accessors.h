// Getters, setters and invokers made from native member functions, so that a
// class's registry entry names the native operation and the conversion and
// nothing else.
#pragma once

#include "binding/class_info.h"
#include "binding/invoke.h"
#include "binding/marshal.h"

namespace deckforge {
namespace ppt {
namespace mi {

// Reads a property through a const member function of the handle class T.
template <class T, class R>
Getter getter(R (T::*get)() const) {
    return [get](PPTObject const& self) { return toScript((T(self.getImpl()).*get)()); };
}

// Text by the host's string rules.
template <class T, class A>
Setter textSetter(void (T::*set)(A)) {
    return [set](PPTObject const& self, Value const& value) {
        T target(self.getImpl());
        (target.*set)(toText(value));
    };
}

// Logical by the adapter's rules (numbers count, NaN is true).
template <class T>
Setter logicalSetter(void (T::*set)(bool)) {
    return [set](PPTObject const& self, Value const& value) {
        T target(self.getImpl());
        (target.*set)(toLogical(value));
    };
}

// Text or empty: [] unsets.
template <class T, class A>
Setter optionalTextSetter(void (T::*set)(A), void (T::*unset)()) {
    return [set, unset](PPTObject const& self, Value const& value) {
        T target(self.getImpl());
        if (value.isEmpty() && !(value.isArray() && value.array().classID() == hvClassID::Char))
            (target.*unset)();
        else
            (target.*set)(toText(value));
    };
}

// One object of class `className` or empty: [] unsets.
template <class T, class A>
Setter optionalObjectSetter(void (T::*set)(A), void (T::*unset)(), std::string className) {
    return [set, unset, className](PPTObject const& self, Value const& value) {
        T target(self.getImpl());
        if (value.isArray() && value.isEmpty())
            (target.*unset)();
        else
            (target.*set)(toObject(value, className));
    };
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
