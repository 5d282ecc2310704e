// The Octave side of the module: the gateway that every generated classdef
// method calls, the script host (objects, listeners), and the host services
// (root directory, current directory, calls into script code, warnings).
//
// Each gateway call runs one operation and lets nothing native escape: a
// message-id error becomes error(id, text); other C++ errors become an Octave
// error too. Octave's own errors (from a listener, say) pass through as they
// are.
#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <octave/oct.h>
#include <octave/cdef-class.h>
#include <octave/cdef-object.h>
#include <octave/cdef-utils.h>
#include <octave/interpreter.h>
#include <octave/oct-env.h>
#include <octave/ov-classdef.h>
#include <octave/parse.h>
#include <octave/quit.h>

#include "binding/invoke.h"
#include "common/image_info.h"
#include "binding/module.h"
#include "binding/script_host.h"
#include "binding/script_object.h"
#include "native_members.h"
#include "octave_values.h"
#include "platform/except.h"
#include "platform/host_services.h"
#include "platform/hv.h"
#include "platform/i18n.h"

namespace deckforge {
namespace octave_glue {

using namespace ppt::mi;

namespace {

constexpr char const* kListenerClass = "deckforge.Listener";
constexpr char const* kWrapMarker = "deckforge_wrap__";

// Listener objects of each script object. Never destroyed: holding Octave
// values past the interpreter's end must not run their destructors.
std::map<ScriptObject const*, std::vector<octave_value>>& listeners() {
    static auto* map = new std::map<ScriptObject const*, std::vector<octave_value>>();
    return *map;
}

octave_value listenerProperty(octave_value const& listener, char const* name) {
    return listener.classdef_object_value()->get_object().get(name);
}

octave_value_list memberOperation(Member const& member, octave_value_list const& args);
void attach(octave::cdef_object& obj, ScriptObject* object);

class OctaveScriptHost : public ScriptHost {
public:
    Value newObject(ScriptObject* object, std::string const& className) override {
        octave_value made;
        try {
            octave::cdef_object obj = newClassObject(className, &memberOperation);
            attach(obj, object);
            made = octave::to_ov(obj);
        } catch (...) {
            if (ScriptObject::isLive(object) && object->hostObjects().empty()) ScriptObject::destroy(object);
            throw;
        }
        ObjectRef ref;
        ref.state = ObjectRef::State::Live;
        ref.className = className;
        ref.object = object;
        ref.hostValue = std::make_shared<octave_value>(made);
        return Value(ref);
    }

    Value existingObject(ScriptObject& object) override {
        ObjectRef ref;
        ref.state = ObjectRef::State::Live;
        ref.className = object.impl() ? object.impl()->getFullyQualifiedHobjTypeName() : "";
        ref.object = &object;
        ref.hostValue = std::make_shared<octave_value>(objectFromIdentity(object.primaryHostObject()));
        return Value(ref);
    }

    void raiseEvent(ScriptObject& source, char const* event, Value const& data) override {
        auto it = listeners().find(&source);
        if (it == listeners().end() || it->second.empty()) return;
        // A listener may add or delete listeners: run those present now.
        std::vector<octave_value> current = it->second;
        octave_value src = objectFromIdentity(source.primaryHostObject());
        octave_value evt = toOctave(data);
        for (auto const& listener : current) {
            if (listenerProperty(listener, "EventName").string_value() != event) continue;
            if (!listenerProperty(listener, "Enabled").is_true()) continue;
            octave::feval(listenerProperty(listener, "Callback"), ovl(src, evt), 0);
        }
    }

    void forget(ScriptObject& object) noexcept override {
        auto it = listeners().find(&object);
        if (it == listeners().end()) return;
        // Move out first: releasing a listener may run its delete, which
        // looks at this map.
        std::vector<octave_value> gone = std::move(it->second);
        listeners().erase(it);
        try {
            gone.clear();
        } catch (...) {
        }
    }
};

class OctaveHvHost : public hv::Host {
public:
    bool call(std::string const& fn, std::vector<hvArray const*> const& args, int nlhs,
              std::vector<std::unique_ptr<hvArray>>& results) override {
        octave::interpreter* interp = octave::interpreter::the_interpreter();
        if (!interp) return false;
        octave_value f = interp->get_symbol_table().find_function(fn);
        if (f.is_undefined()) return false;
        octave_value_list in;
        for (hvArray const* a : args) in.append(a ? hvToOctave(*a) : octave_value(Matrix()));
        octave_value_list out = octave::feval(f, in, nlhs);
        results.clear();
        for (int i = 0; i < nlhs; ++i) {
            if (i < out.length() && out(i).is_defined())
                results.push_back(std::make_unique<hvArray>(hvFromOctave(out(i))));
            else
                results.push_back(nullptr);
        }
        return true;
    }

    void warning(resource_core::BaseMsgID const& id) override {
        std::string text = fl::i18n::to_utf8(fl::i18n::MessageCatalog::get_message(id));
        warning_with_id(id.identifier().c_str(), "%s", text.c_str());
    }
};

std::string directoryOf(std::string const& path) {
    std::string::size_type slash = path.rfind('/');
    return slash == std::string::npos ? std::string(".") : path.substr(0, slash);
}

// Where this library lies.
std::string moduleDirectory() {
    Dl_info info{};
    if (!dladdr(reinterpret_cast<void*>(&moduleDirectory), &info) || !info.dli_fname) return {};
    return directoryOf(info.dli_fname);
}

bool holdsScripts(std::string const& dir) {
    return ::access((dir + "/toolboxdir.m").c_str(), F_OK) == 0;
}

// The host root, that the default template's path hangs from, or "" while
// it can't be told: the library's folder in a build tree. An installed
// package keeps the library in a folder of its architecture, apart from the
// script files and the template, which lie beside toolboxdir.m: in the
// folder above for a user's install, elsewhere for a system-wide one. The
// package's PKG_ADD may run before that folder joins the path.
std::string hostRoot() {
    std::string const module = moduleDirectory();
    if (holdsScripts(module)) return module;
    if (holdsScripts(directoryOf(module))) return directoryOf(module);
    if (octave::interpreter* interp = octave::interpreter::the_interpreter()) {
        octave_value f = interp->get_symbol_table().find_function("toolboxdir");
        if (octave_function* fn = f.function_value(true)) {
            std::string const file = fn->fcn_file_name();
            if (!file.empty()) return directoryOf(file);
        }
    }
    return {};
}

void installHost() {
    static bool rootKnown = false;
    if (!rootKnown) {
        std::string root = hostRoot();
        rootKnown = !root.empty();
        host::setQuorixRoot(fl::i18n::to_string(rootKnown ? root : moduleDirectory()));
    }
    static bool installed = false;
    if (installed) return;
    installed = true;
    static OctaveScriptHost scriptHost;
    setScriptHost(&scriptHost);
    hv::setHost(std::make_shared<OctaveHvHost>());
    host::setCurrentDirectoryProvider(
        [] { return fl::i18n::to_string(octave::sys::env::get_current_directory()); });
}

std::string stringArg(octave_value_list const& args, int i) {
    if (i >= args.length() || !args(i).is_string())
        error("__deckforge_gw__: argument %d must be text", i + 1);
    return args(i).string_value();
}

std::vector<Value> values(octave_value_list const& args, int from) {
    std::vector<Value> result;
    for (int i = from; i < args.length(); ++i) result.push_back(fromOctave(args(i)));
    return result;
}

bool isMarker(octave_value const& v, char const* field) {
    return v.isstruct() && v.numel() == 1 && v.scalar_map_value().contains(field);
}

octave::cdef_object objectOf(octave_value const& v) {
    if (!v.is_classdef_object()) error("__deckforge_gw__: expected a deckforge object");
    return v.classdef_object_value()->get_object();
}

void attach(octave::cdef_object& obj, ScriptObject* object) {
    object->attachHostObject(repOf(obj));
    obj.put(kNativeProperty, octave_value(octave_uint64(reinterpret_cast<std::uintptr_t>(object))));
}

void attach(octave_value const& self, ScriptObject* object) {
    octave::cdef_object obj = objectOf(self);
    attach(obj, object);
}

// The object's record if the object is attached to it, else null.
ScriptObject* recordOf(octave_value const& self) {
    Value v = fromOctave(self);
    if (!v.isObject() || v.object().state != ObjectRef::State::Live) return nullptr;
    return v.object().object;
}

// Gives `self`, an object of `className` under construction, its native
// object: a new one made of args(first...), or the one a marker names.
void constructOp(octave_value const& self, std::string const& className, octave_value_list const& args,
                 int first) {
    bool const one = args.length() == first + 1;
    if (one && isMarker(args(first), kBaseMarker)) return;
    if (one && isMarker(args(first), kWrapMarker)) {
        std::uint64_t p = args(first).scalar_map_value().getfield(kWrapMarker).uint64_scalar_value().value();
        auto* object = reinterpret_cast<ScriptObject*>(static_cast<std::uintptr_t>(p));
        if (!ScriptObject::isLive(object)) error("__deckforge_gw__: no such native object");
        attach(self, object);
        return;
    }
    attach(self, construct(className, values(args, first)));
}

octave_value_list opNew(octave_value_list const& args) {
    std::string className = stringArg(args, 2);
    constructOp(args(1), className, args, 3);
    // The class is in use: its next calls skip the script code.
    bindNativeMembers(octave::lookup_class(className), &memberOperation);
    return {};
}

void deleteOp(octave_value const& self) {
    if (!self.is_classdef_object()) return;
    octave::cdef_object obj = objectOf(self);
    octave_value ptr = obj.get(kNativeProperty);
    if (ptr.is_undefined()) return;
    std::uint64_t p = ptr.uint64_scalar_value().value();
    if (p == 0 || p == kDeletedPointer) return;
    obj.put(kNativeProperty, octave_value(octave_uint64(kDeletedPointer)));
    auto* object = reinterpret_cast<ScriptObject*>(static_cast<std::uintptr_t>(p));
    if (ScriptObject::isLive(object) && object->detachHostObject(repOf(obj))) ScriptObject::destroy(object);
}

octave_value_list results(std::optional<Value> const& result) {
    // A cell of the results: empty for a void method, so that the generated
    // method can hand back varargout unchanged.
    Cell c(dim_vector(1, result ? 1 : 0));
    if (result) c(0) = toOctave(*result);
    return octave_value_list(octave_value(c));
}

// The results themselves, for a native member.
octave_value_list resultList(std::optional<Value> const& result) {
    if (!result) return {};
    return octave_value_list(toOctave(*result));
}

octave_value_list opAddListener(octave_value_list const& args) {
    // obj, declaring class, event name, callback
    if (args.length() != 5) error("addlistener: use addlistener(obj, eventName, callback)");
    Value self = fromOctave(args(1));
    std::string className = stringArg(args, 2);
    selfObject(self, className);
    std::string event = stringArg(args, 3);
    if (!hasEvent(className, event))
        error_with_id("deckforge:noSuchEvent", "Class %s has no event %s.", className.c_str(), event.c_str());
    if (!args(4).is_function_handle()) error("addlistener: the callback must be a function handle");
    octave_value_list made = octave::feval(kListenerClass, ovl(args(3), args(4)), 1);
    listeners()[self.object().object].push_back(made(0));
    return made;
}

octave_value_list opRemoveListener(octave_value_list const& args) {
    void* identity = objectIdentity(args(1));
    for (auto& entry : listeners()) {
        auto& list = entry.second;
        auto it = std::find_if(list.begin(), list.end(),
                               [&](octave_value const& l) { return objectIdentity(l) == identity; });
        if (it != list.end()) {
            octave_value gone = *it;  // released after the erase, outside the list
            list.erase(it);
            return {};
        }
    }
    return {};
}

octave_value_list dispatchOp(octave_value_list const& args) {
    std::string op = stringArg(args, 0);
    if (op == "new") return opNew(args);
    if (op == "delete") {
        deleteOp(args(1));
        return {};
    }
    if (op == "call")
        return results(
            callMethod(fromOctave(args(1)), stringArg(args, 2), stringArg(args, 3), values(args, 4)));
    if (op == "static") return results(callStatic(stringArg(args, 1), stringArg(args, 2), values(args, 3)));
    if (op == "get")
        return octave_value_list(
            toOctave(getProperty(fromOctave(args(1)), stringArg(args, 2), stringArg(args, 3))));
    if (op == "set") {
        setProperty(fromOctave(args(1)), stringArg(args, 2), stringArg(args, 3), fromOctave(args(4)));
        return {};
    }
    if (op == "eq")
        return octave_value_list(octave_value(sameObject(fromOctave(args(1)), fromOctave(args(2)))));
    if (op == "isvalid") return octave_value_list(octave_value(recordOf(args(1)) != nullptr));
    if (op == "imagesize") {
        double width = 0, height = 0;
        if (!InfoUtils::readHeaderSize(toString(stringArg(args, 1)), width, height))
            return octave_value_list(octave_value(Matrix()));
        RowVector size(2);
        size(0) = width;
        size(1) = height;
        return octave_value_list(octave_value(size));
    }
    if (op == "addlistener") return opAddListener(args);
    if (op == "removelistener") return opRemoveListener(args);
    if (op == "initialize") {
        HostInitialize_deckforge_ppt();
        return {};
    }
    if (op == "terminate") {
        HostTerminate_deckforge_ppt();
        return {};
    }
    error("__deckforge_gw__: unknown operation '%s'", op.c_str());
}

// Runs `operation`, letting nothing native escape.
template <class Operation>
octave_value_list guarded(Operation&& operation) {
    try {
        installHost();
        return operation();
    } catch (octave::execution_exception&) {
        throw;
    } catch (octave::interrupt_exception&) {
        throw;
    } catch (octave::exit_exception&) {
        throw;
    } catch (foundation::core::except::IMsgIDException const& e) {
        std::string text = fl::i18n::to_utf8(e.message());
        error_with_id(e.identifier().c_str(), "%s", text.c_str());
    } catch (std::exception const& e) {
        error_with_id("deckforge:nativeError", "%s", e.what());
    } catch (...) {
        error_with_id("deckforge:nativeError", "unknown native error");
    }
}

octave_value_list gateway(octave_value_list const& args, int /*nargout*/) {
    return guarded([&] {
        if (args.length() < 1) error("__deckforge_gw__: no operation");
        return dispatchOp(args);
    });
}

// The operation of a generated member, as its script code would call the
// gateway.
octave_value_list memberOperation(Member const& member, octave_value_list const& args) {
    return guarded([&]() -> octave_value_list {
        using Kind = Member::Kind;
        if (member.kind == Kind::Static)
            return resultList(callStatic(member.className, member.name, values(args, 0)));
        if (args.length() < 1) error("Invalid call to %s", member.name.c_str());
        switch (member.kind) {
            case Kind::Constructor:
                constructOp(args(0), member.className, args, 1);
                return octave_value_list(args(0));
            case Kind::Delete:
                deleteOp(args(0));
                return {};
            case Kind::Method:
                return resultList(callMethod(fromOctave(args(0)), member.owner, member.name, member.overloads,
                                             values(args, 1)));
            case Kind::Get:
                return octave_value_list(
                    toOctave(getProperty(fromOctave(args(0)), member.owner, member.name)));
            case Kind::Set:
                setProperty(fromOctave(args(0)), member.owner, member.name,
                            fromOctave(args.length() > 1 ? args(1) : octave_value()));
                return {};
            case Kind::Static:
                break;
        }
        return {};
    });
}

struct Registration {
    Registration() { registerHostGlue("octave", reinterpret_cast<void*>(&gateway)); }
} registration;

}  // namespace
}  // namespace octave_glue
}  // namespace deckforge
