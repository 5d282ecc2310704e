// The members of a script class as its classdef file has them. Each class
// derives from handle directly and carries its package bases' members
// itself, the nearest declaration winning as in a subclass; every member
// names the class that declares it, where its calls are looked up. The
// classdef generator writes these members and the host's glue binds native
// calls to the same ones, so the two can't disagree.
#pragma once

#include <string>
#include <vector>

#include "binding/class_info.h"

namespace deckforge {
namespace ppt {
namespace mi {

struct ScriptMembers {
    struct Property {
        ClassDescription const* owner;
        PropertyInfo const* info;
    };
    struct Method {
        ClassDescription const* owner;
        std::string const* name;
    };
    // The class and its package superclasses, nearest first.
    std::vector<ClassDescription const*> lineage;
    std::vector<Property> readWrite;
    std::vector<Property> readOnly;
    std::vector<Method> methods;                   // instance methods, one per name
    std::vector<MethodInfo const*> statics;        // the class's own, one per name
    ClassDescription const* eventOwner = nullptr;  // the nearest class with events
};

// The nearest superclass in the package, if any; host bases are not script
// classes, `handle` stands for them.
std::string scriptBase(ClassDescription const& cls);

ScriptMembers scriptMembers(ClassDescription const& cls);

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
