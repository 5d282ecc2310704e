// Octave values <-> the binding's values. Octave has no string objects:
// text is a char row (UTF-8); collections of objects are cell arrays.
#pragma once

#include <octave/oct.h>
#include <octave/cdef-class.h>
#include <octave/cdef-object.h>

#include "binding/value.h"
#include "platform/hv.h"

namespace deckforge {
namespace octave_glue {

// The private property of every script object that holds its native record.
constexpr char const* kNativeProperty = "NativePtr_";
// What the property holds once script code deleted the object.
constexpr std::uint64_t kDeletedPointer = ~std::uint64_t(0);

ppt::mi::Value fromOctave(octave_value const& value);
octave_value toOctave(ppt::mi::Value const& value);

hvArray hvFromOctave(octave_value const& value);
octave_value hvToOctave(hvArray const& array);

// The shared representation of a classdef object, which is its identity.
inline void* repOf(octave::cdef_object const& object) {
    return const_cast<octave::cdef_object_rep*>(object.get_rep());
}

// The identity of a classdef object: its shared representation.
void* objectIdentity(octave_value const& object);
// A counted Octave value of an object known only by its identity, which
// must still be alive.
octave_value objectFromIdentity(void* identity);

}  // namespace octave_glue
}  // namespace deckforge
