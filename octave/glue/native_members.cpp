#include "native_members.h"

#include <unordered_map>
#include <vector>

#include <octave/cdef-method.h>
#include <octave/cdef-property.h>
#include <octave/cdef-utils.h>
#include <octave/ov-builtin.h>
#include <octave/ov-classdef.h>
#include <octave/ov-fcn-handle.h>
#include <octave/ov-struct.h>
#include <octave/parse.h>

#include "binding/invoke.h"
#include "binding/package.h"
#include "binding/script_members.h"
#include "octave_values.h"

namespace deckforge {
namespace octave_glue {

using ppt::mi::ClassDescription;
using ppt::mi::PackageTree;
using ppt::mi::ScriptMembers;

#if DECKFORGE_NATIVE_MEMBERS

namespace {

// A member as Octave calls it. It pushes no stack frame: it runs no script
// code of its own, and script code that it calls back (listeners) runs in
// frames of its own.
class NativeMember : public octave_builtin {
public:
    NativeMember(Member member, MemberOperation operation, std::string const& doc, std::string const& file)
        : octave_builtin(static_cast<octave_builtin::fcn>(nullptr), member.name, doc),
          mMember(std::move(member)),
          mOperation(operation),
          mFile(file) {
        stash_dispatch_class(mMember.className);
    }

    // The classdef file of the member it stands for: help and which name
    // that file instead of a built-in function.
    std::string fcn_file_name() const override { return mFile; }

    octave_value_list call(octave::tree_evaluator&, int, octave_value_list const& args) override {
        return run(args);
    }
    octave_value_list execute(octave::tree_evaluator&, int, octave_value_list const& args) override {
        return run(args);
    }
    // What the script constructor said of itself, so that methods() still
    // leaves it out.
    bool is_classdef_constructor(std::string const& cname) const override {
        return mMember.kind == Member::Kind::Constructor && (cname.empty() || cname == mMember.className);
    }

private:
    octave_value_list run(octave_value_list const& args) const {
        if (args.has_magic_colon()) error("invalid use of colon in function argument list");
        return mOperation(mMember, args);
    }

    Member mMember;
    MemberOperation mOperation;
    std::string mFile;
};

// Functions swapped out, which may be running at the swap (the script
// constructor that asked for it is), and the native members, whose code
// Octave may no longer reach when it frees its classes at exit. Never freed.
std::vector<octave_value>& keptFunctions() {
    static auto* kept = new std::vector<octave_value>();
    return *kept;
}

struct BoundClass {
    void const* identity = nullptr;  // the meta class bound; a reloaded class is another
    octave::cdef_class cls;          // held, so that the identity is not reused
    octave::cdef_object prototype;
};

// Never freed: the values must not outlive the interpreter's tear-down.
std::unordered_map<std::string, BoundClass>& boundClasses() {
    static auto* bound = new std::unordered_map<std::string, BoundClass>();
    return *bound;
}

void const* identityOf(octave::cdef_class const& cls) {
    return static_cast<octave::cdef_object const&>(cls).get_rep();
}

octave_value nativeMember(Member member, MemberOperation operation, octave_value const& replaced) {
    octave_function* old = replaced.function_value(true);
    octave_value fn(new NativeMember(std::move(member), operation, old ? old->doc_string() : std::string(),
                                     old ? old->fcn_file_name() : std::string()));
    keptFunctions().push_back(replaced);
    keptFunctions().push_back(fn);
    return fn;
}

void swapMethod(octave::cdef_class& cls, Member member, MemberOperation operation) {
    octave::cdef_method method = cls.find_method(member.name, true);
    if (!method.ok()) return;
    octave_value const old = method.get_function();
    if (!old.is_defined()) return;
    method.set_function(nativeMember(std::move(member), operation, old));
}

void swapAccessor(octave::cdef_class& cls, Member member, MemberOperation operation) {
    octave::cdef_property property = cls.find_property(member.name);
    if (!property.ok()) return;
    bool const get = member.kind == Member::Kind::Get;
    char const* slot = get ? "GetMethod" : "SetMethod";
    octave_value const old = property.get(slot);
    if (!old.is_function_handle()) return;
    std::string const accessor = (get ? "get." : "set.") + member.name;
    std::string const className = member.className;
    // A property reads an empty accessor as none: it must stay a handle.
    property.put(slot, octave_value(new octave_fcn_handle(nativeMember(std::move(member), operation, old),
                                                          className, accessor)));
}

void swapMembers(octave::cdef_class& cls, ClassDescription const& description, MemberOperation operation) {
    using Kind = Member::Kind;
    std::string const className = description.fullName();
    ScriptMembers const members = ppt::mi::scriptMembers(description);
    swapMethod(cls, {Kind::Constructor, className, className, description.getName(), {}}, operation);
    swapMethod(cls, {Kind::Delete, className, className, "delete", {}}, operation);
    for (auto const& m : members.methods) {
        std::string const owner = m.owner->fullName();
        swapMethod(cls, {Kind::Method, className, owner, *m.name, ppt::mi::instanceOverloads(owner, *m.name)},
                   operation);
    }
    for (auto const* m : members.statics)
        swapMethod(cls, {Kind::Static, className, className, m->name, {}}, operation);
    for (auto const& p : members.readWrite) {
        swapAccessor(cls, {Kind::Get, className, p.owner->fullName(), p.info->name, {}}, operation);
        swapAccessor(cls, {Kind::Set, className, p.owner->fullName(), p.info->name, {}}, operation);
    }
    for (auto const& p : members.readOnly)
        swapAccessor(cls, {Kind::Get, className, p.owner->fullName(), p.info->name, {}}, operation);
}

BoundClass& bindClass(octave::cdef_class const& cls, std::string const& className,
                      MemberOperation operation) {
    BoundClass& bound = boundClasses()[className];
    if (bound.identity == identityOf(cls)) return bound;
    bound = BoundClass();
    if (ClassDescription const* description = PackageTree::findClass(className)) {
        octave::cdef_class target = cls;
        swapMembers(target, *description, operation);
    }
    bound.identity = identityOf(cls);
    bound.cls = cls;
    return bound;
}

}  // namespace

void bindNativeMembers(octave::cdef_class const& cls, MemberOperation operation) {
    bindClass(cls, cls.get_name(), operation);
}

octave::cdef_object newClassObject(std::string const& className, MemberOperation operation) {
    octave::cdef_class cls = octave::lookup_class(className);
    if (!cls.is_handle_class()) error("deckforge: %s is not a handle class", className.c_str());
    BoundClass& bound = bindClass(cls, className, operation);
    if (!bound.prototype.ok()) {
        // Constructed as Octave constructs an object, with no constructor
        // to run: the generated one only attaches the native object, which
        // the caller does to each copy.
        octave::cdef_object prototype(new octave::handle_cdef_object());
        prototype.set_class(cls);
        cls.initialize_object(prototype);
        prototype.mark_as_constructed(cls);
        bound.prototype = prototype;
    }
    return bound.prototype.copy();
}

#else  // the plain script classes

void bindNativeMembers(octave::cdef_class const&, MemberOperation) {}

octave::cdef_object newClassObject(std::string const& className, MemberOperation) {
    octave_scalar_map marker;
    marker.assign(kBaseMarker, true);
    octave_value_list made = octave::feval(className, ovl(marker), 1);
    if (made.length() < 1 || !made(0).is_classdef_object())
        error("deckforge: the constructor of %s made no object", className.c_str());
    return made(0).classdef_object_value()->get_object();
}

#endif

}  // namespace octave_glue
}  // namespace deckforge
