// Conversions between script values and native values.
//
// Native objects cross as their one script object: found again if the
// implementation has one, made (through the host) if not. Empty handles
// cross as []. Script objects cross back only after the checks script code
// relies on: one element, not deleted, of the expected class, constructed.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "binding/value.h"
#include "common/dimension.h"
#include "engine/ppt_node.h"
#include "engine/ppt_object.h"
#include "formats/attribute.h"

namespace deckforge {
namespace ppt {
namespace mi {

// Native to script.
Value toScript(PPTObject const& object);
template <class T>
Value toScript(boost::shared_ptr<T> const& object) {
    return object ? toScript(static_cast<PPTObject const&>(*object)) : Value();
}
// A cell row of the nodes, each as its own most specific class; [] if none.
Value toScript(PPTNodeList const& nodes);
Value toScript(u16string const& text);
Value toScript(std::vector<u16string> const& texts);  // a cell row of texts
Value toScript(bool value);
Value toScript(std::uint32_t value);
Value toScript(std::uint64_t value);
Value toScript(double value);

// Optional values: [] while unset.
template <class T>
Value toScript(BaseAttribute<T> const& attribute) {
    return attribute.isSet() ? toScript(attribute.getValue()) : Value();
}
inline Value toScript(Dimension const& dimension) {
    return toScript(dimension.getText());
}

// Script to native.

// Text by the host's rules: a character row or a 0-by-0 character array;
// with `anyShape`, any character array, all its characters in column order.
// Anything else raises QUORIX:string:MustBeStringScalarOrCharacterVector.
u16string toText(Value const& value, bool anyShape = false);

// The logical adapter: a logical scalar, or the first element of any
// non-empty numeric array, non-zero (NaN too) being true. Anything else
// raises invalidLogicalPropertyValue.
bool toLogical(Value const& value);

// One object of class `className` (full name) or a subclass.
PPTObject toObject(Value const& value, std::string const& className);
template <class T>
T toObject(Value const& value, std::string const& className) {
    return T(toObject(value, className).getImpl());
}

// The native object behind a method's self; raises InvalidHandle for a
// deleted object and missingImplementationError for an unconstructed one.
PPTObject selfObject(Value const& self, std::string const& className);

// Whether two script values are the same native object.
bool sameObject(Value const& a, Value const& b);

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
