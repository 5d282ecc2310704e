#include "binding/invoke.h"

#include <cmath>
#include <limits>

#include "binding/package.h"
#include "binding/script_object.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {

bool isNumericScalar(Value const& value) {
    if (!value.isArray() || value.numel() != 1) return false;
    hvArray const& a = value.array();
    return a.isNumeric() || a.classID() == hvClassID::Logical;
}

bool isScalarWord(std::string const& word) {
    return word == words::Logical || word == words::UInt32 || word == words::UInt64 || word == words::Double;
}

// The host's conversion of a number to an unsigned integer: rounded to the
// nearest, saturated at both ends.
std::uint64_t toUnsigned(double x, std::uint64_t max) {
    if (std::isnan(x) || x <= 0) return 0;
    double r = std::round(x);
    if (r >= static_cast<double>(max)) return max;
    return static_cast<std::uint64_t>(r);
}

ClassDescription const& classNamed(std::string const& className) {
    ClassDescription const* cls = PackageTree::findClass(className);
    if (!cls) raise<quorix::class_ids::NoMatchingSignature>(className, className);
    return *cls;
}

// The first overload whose inputs all fit; failing that, the first of the
// right arity, whose conversion then tells what is wrong with the arguments.
MethodInfo const* pick(std::vector<MethodInfo const*> const& candidates, std::vector<Value> const& args) {
    MethodInfo const* sameArity = nullptr;
    for (MethodInfo const* m : candidates) {
        std::vector<std::string> inputs = m->callerInputs();
        if (inputs.size() != args.size()) continue;
        if (!sameArity) sameArity = m;
        bool fits = true;
        for (std::size_t i = 0; i < args.size() && fits; ++i) fits = fitsWord(args[i], inputs[i]);
        if (fits) return m;
    }
    return sameArity;
}

// Overloads of `name` in the class or, if it declares none, the nearest
// superclass that does.
std::vector<MethodInfo const*> findOverloads(std::string const& className, std::string const& name,
                                             MethodInfo::Kind kind) {
    ClassDescription const* cls = PackageTree::findClass(className);
    if (!cls) return {};
    std::vector<MethodInfo const*> found;
    for (MethodInfo const* m : cls->methodOverloads(name))
        if (m->kind == kind) found.push_back(m);
    if (!found.empty()) return found;
    for (auto const& super : cls->superclasses()) {
        found = findOverloads(super, name, kind);
        if (!found.empty()) return found;
    }
    return {};
}

PropertyInfo const* findProperty(std::string const& className, std::string const& name) {
    ClassDescription const* cls = PackageTree::findClass(className);
    if (!cls) return nullptr;
    if (PropertyInfo const* p = cls->ownProperty(name)) return p;
    for (auto const& super : cls->superclasses())
        if (PropertyInfo const* p = findProperty(super, name)) return p;
    return nullptr;
}

}  // namespace

bool fitsWord(Value const& value, std::string const& word) {
    if (word == words::Any) return true;
    if (word == words::String) return value.isArray() && value.array().classID() == hvClassID::Char;
    if (isScalarWord(word)) return isNumericScalar(value);
    // A class name: one object of it, or a cell holding one.
    Value const* one = &value;
    if (value.isCell() && value.numel() == 1) one = &value.elements().front();
    if (!one->isObject()) return false;
    ObjectRef const& ref = one->object();
    if (ref.state == ObjectRef::State::Live && ScriptObject::isLive(ref.object) && ref.object->impl())
        return PackageTree::isA(ref.object->impl()->getFullyQualifiedHobjTypeName(), word);
    return PackageTree::isA(ref.className, word);
}

Call::Call(MethodInfo const& method, std::optional<PPTObject> self, std::vector<Value> const& args)
    : mSelf(std::move(self)) {
    std::vector<std::string> inputs = method.callerInputs();
    mArgs.resize(args.size());
    for (std::size_t i = 0; i < args.size(); ++i) {
        Arg& arg = mArgs[i];
        Value const& value = args[i];
        std::string const& word = inputs.at(i);
        arg.raw = &value;
        if (word == words::Any) continue;
        if (word == words::String) {
            arg.text = toText(value);
        } else if (isScalarWord(word)) {
            if (!isNumericScalar(value))
                raise<quorix::class_ids::NoMatchingSignature>(method.name, method.signature.text());
            double x = value.array().number(0);
            arg.number = x;
            arg.flag = std::isnan(x) || x != 0;
            if (word == words::UInt32) arg.integer = toUnsigned(x, std::numeric_limits<std::uint32_t>::max());
            if (word == words::UInt64) {
                // Large uint64 values don't survive a trip through double.
                arg.integer = value.array().classID() == hvClassID::UInt64
                                  ? value.array().integer(0)
                                  : toUnsigned(x, std::numeric_limits<std::uint64_t>::max());
            }
        } else {
            arg.object = toObject(value, word);
        }
    }
}

bool hasEvent(std::string const& className, std::string const& event) {
    ClassDescription const* cls = PackageTree::findClass(className);
    if (!cls) return false;
    for (auto const& e : cls->events())
        if (e.name == event) return true;
    for (auto const& super : cls->superclasses())
        if (hasEvent(super, event)) return true;
    return false;
}

double checkedSubscript(Value const& value) {
    if (!isNumericScalar(value)) raise<ppt_error::positiveSubscript>();
    double n = value.array().number(0);
    if (!(n >= 1) || n != std::floor(n)) raise<ppt_error::positiveSubscript>();
    return n;
}

ScriptObject* construct(std::string const& className, std::vector<Value> const& args) {
    ClassDescription const& cls = classNamed(className);
    std::vector<MethodInfo const*> candidates;
    for (auto const& c : cls.constructors()) candidates.push_back(&c);
    if (candidates.empty()) raise<quorix::class_ids::NoPublicConstructor>(className);
    MethodInfo const* chosen = pick(candidates, args);
    if (!chosen) raise<quorix::class_ids::NoMatchingSignature>(cls.getName(), className);
    Call call(*chosen, std::nullopt, args);
    PPTObject made = chosen->construct(call);
    if (!made.getImpl()) raise<quorix::class_ids::NoPublicConstructor>(className);
    // A constructor may hand back an object that script code already has
    // (the dispatcher): the new host object then joins its record.
    if (ScriptObject* existing = ScriptObject::find(*made.getImpl())) return existing;
    return new ScriptObject(made);
}

namespace {
std::optional<Value> run(MethodInfo const& method, Call& call) {
    Value result = method.invoke(call);
    if (method.signature.result == words::Void) return std::nullopt;
    return result;
}
}  // namespace

std::optional<Value> callMethod(Value const& self, std::string const& className, std::string const& name,
                                std::vector<Value> const& args) {
    return callMethod(self, className, name, instanceOverloads(className, name), args);
}

std::vector<MethodInfo const*> instanceOverloads(std::string const& className, std::string const& name) {
    return findOverloads(className, name, MethodInfo::Kind::Instance);
}

std::optional<Value> callMethod(Value const& self, std::string const& className, std::string const& name,
                                std::vector<MethodInfo const*> const& overloads,
                                std::vector<Value> const& args) {
    PPTObject target = selfObject(self, className);
    MethodInfo const* chosen = pick(overloads, args);
    if (!chosen) raise<quorix::class_ids::NoMatchingSignature>(name, className);
    Call call(*chosen, target, args);
    return run(*chosen, call);
}

std::optional<Value> callStatic(std::string const& className, std::string const& name,
                                std::vector<Value> const& args) {
    auto candidates = findOverloads(className, name, MethodInfo::Kind::Static);
    MethodInfo const* chosen = pick(candidates, args);
    if (!chosen) raise<quorix::class_ids::NoMatchingSignature>(name, className);
    Call call(*chosen, std::nullopt, args);
    return run(*chosen, call);
}

Value getProperty(Value const& self, std::string const& className, std::string const& name) {
    PPTObject target = selfObject(self, className);
    PropertyInfo const* p = findProperty(className, name);
    if (!p) raise<quorix::class_ids::NoMatchingSignature>(name, className);
    return p->get(target);
}

void setProperty(Value const& self, std::string const& className, std::string const& name,
                 Value const& value) {
    PPTObject target = selfObject(self, className);
    PropertyInfo const* p = findProperty(className, name);
    if (!p || p->isReadOnly()) raise<quorix::class_ids::NoMatchingSignature>(name, className);
    p->set(target, value);
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
