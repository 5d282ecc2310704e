// Native functions in place of the generated members of a class. Each
// generated member is one line of script code into the gateway, and a call
// through it costs Octave a script function frame, the evaluation of its
// arguments and a search for __deckforge_gw__ by name on every call: more
// than everything the library does for most calls. Once a class is in use,
// its constructor, delete, methods and property accessors are swapped for
// functions that run the gateway's operation directly; the script code
// stays in the file, for help and for calls made before the swap.
//
// Objects that the library hands out are copies of one constructed object
// of their class instead of the product of a script constructor.
#pragma once

#include <string>
#include <vector>

#include <octave/oct.h>
#include <octave/version.h>
#include <octave/cdef-class.h>
#include <octave/cdef-object.h>

#include "binding/class_info.h"

namespace deckforge {
namespace octave_glue {

// The swap reaches into Octave's classdef internals, which change between
// releases: it is built only for the releases it was tried on. Elsewhere the
// script members stay in place and objects come from the script
// constructor: slower, never broken.
#if !defined(DECKFORGE_NO_NATIVE_MEMBERS) && OCTAVE_MAJOR_VERSION >= 7 && OCTAVE_MAJOR_VERSION <= 9
#define DECKFORGE_NATIVE_MEMBERS 1
#else
#define DECKFORGE_NATIVE_MEMBERS 0
#endif

// The argument of a script constructor that makes an object with no native
// object, for the caller to attach one.
constexpr char const* kBaseMarker = "deckforge_base__";

// One generated member, as its script code calls the gateway.
struct Member {
    enum class Kind { Constructor, Delete, Method, Static, Get, Set };
    Kind kind;
    std::string className;  // the script class
    std::string owner;      // the class whose member is looked up, as the script code names it
    std::string name;       // method or property
    // A method's overloads, found once: the class registry does not change.
    std::vector<ppt::mi::MethodInfo const*> overloads;
};

// Runs the gateway's operation for `member` on the arguments Octave gives
// the member (the object first, but for static methods).
using MemberOperation = octave_value_list (*)(Member const& member, octave_value_list const& args);

// Swaps the members of `cls`, a class of the package, unless done already
// (or not at all, see DECKFORGE_NATIVE_MEMBERS).
void bindNativeMembers(octave::cdef_class const& cls, MemberOperation operation);

// A new constructed object of the class with no native object yet, its
// members bound.
octave::cdef_object newClassObject(std::string const& className, MemberOperation operation);

}  // namespace octave_glue
}  // namespace deckforge
