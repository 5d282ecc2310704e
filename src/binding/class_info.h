// Descriptions of the script classes: the host's class-object layer as far
// as this library uses it. A class is described by a CosX whose
// initializeClass fills a ClassDescription the first time the class is
// needed: superclasses by full name, constructors, methods (overloads are
// separate entries of one name), properties with getter and setter, events,
// and help text. Signatures are made of the host's words (see `words`).
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "binding/value.h"
#include "engine/ppt_object.h"

namespace deckforge {
namespace ppt {
namespace mi {

// The words of signatures, besides full class names.
namespace words {
constexpr char const* String = "HobjFactoryString scalar";
constexpr char const* Logical = "logical scalar";
constexpr char const* UInt32 = "uint32 scalar";
constexpr char const* UInt64 = "uint64 scalar";
constexpr char const* Double = "double scalar";
constexpr char const* Any = "any";
constexpr char const* Void = "void";
constexpr char const* NodeVector = "deckforge.ppt.Node vector";
}  // namespace words

class Call;

// Result, self and inputs, in the host's words. Instance methods name their
// class as self; constructors and static methods have none; instance methods
// with untyped inputs have none either and take the class as first input.
struct Signature {
    std::string attributes;  // always empty
    std::string result;
    std::string self;
    std::vector<std::string> inputs;

    static Signature create(std::string attributes, std::string result, std::string self,
                            std::vector<std::string> inputs);
    // "(in1, in2) -> result", for help and error texts.
    std::string text() const;
};

using Invoker = std::function<Value(Call&)>;
using ConstructorInvoker = std::function<PPTObject(Call&)>;
using Getter = std::function<Value(PPTObject const& self)>;
using Setter = std::function<void(PPTObject const& self, Value const& value)>;

struct MethodInfo {
    enum class Kind { Constructor, Instance, Static };
    std::string name;
    Kind kind = Kind::Instance;
    Signature signature;
    std::string help;
    Invoker invoke;                // Instance and Static
    ConstructorInvoker construct;  // Constructor

    // The inputs the caller gives, without self or the class word.
    std::vector<std::string> callerInputs() const;
};

struct PropertyInfo {
    std::string name;
    std::string type;  // as the class table words it: "text", "logical or empty", ...
    std::string help;
    Getter get;
    Setter set;  // empty for a read-only property
    bool isReadOnly() const { return !set; }
};

struct EventInfo {
    std::string name;
    std::string help;
    std::string dataClass;  // full class name of the event data
};

// One script class, as initializeClass fills it.
class ClassDescription {
public:
    ClassDescription(std::string packageName, std::string name);

    std::string const& getName() const { return mName; }
    std::string const& getPackageName() const { return mPackage; }
    std::string fullName() const { return mPackage + "." + mName; }

    void setHelp(std::string help) { mHelp = std::move(help); }
    std::string const& help() const { return mHelp; }
    // Script lines that use the class, run as they stand; help ends with them.
    void setExample(std::string example) { mExample = std::move(example); }
    std::string const& example() const { return mExample; }

    void addSuperclass(std::string fullName) { mSuperclasses.push_back(std::move(fullName)); }
    void addConstructor(std::vector<std::string> inputs, ConstructorInvoker construct, std::string help = {});
    // An instance method; inputs that are all "any" make the untyped form.
    void addMethod(std::string name, std::string result, std::vector<std::string> inputs, Invoker invoke,
                   std::string help = {});
    void addStaticMethod(std::string name, std::string result, std::vector<std::string> inputs,
                         Invoker invoke, std::string help = {});
    void addProperty(std::string name, std::string type, Getter get, Setter set, std::string help = {});
    void addEvent(std::string name, std::string dataClass, std::string help = {});

    std::vector<std::string> const& superclasses() const { return mSuperclasses; }
    std::vector<MethodInfo> const& constructors() const { return mConstructors; }
    std::vector<MethodInfo> const& methods() const { return mMethods; }
    std::vector<PropertyInfo> const& properties() const { return mProperties; }
    std::vector<EventInfo> const& events() const { return mEvents; }

    // Overloads of `name` declared by this class itself, in order.
    std::vector<MethodInfo const*> methodOverloads(std::string const& name) const;
    PropertyInfo const* ownProperty(std::string const& name) const;

private:
    std::string mPackage;
    std::string mName;
    std::string mHelp;
    std::string mExample;
    std::vector<std::string> mSuperclasses;
    std::vector<MethodInfo> mConstructors;
    std::vector<MethodInfo> mMethods;
    std::vector<PropertyInfo> mProperties;
    std::vector<EventInfo> mEvents;
};

// Base of every class of the package: holds the short name; the host calls
// initializeClass on first use.
class CosPPTObjectClassInfo {
public:
    explicit CosPPTObjectClassInfo(char const* name) : mName(name) {}
    virtual ~CosPPTObjectClassInfo() = default;

    char const* getName() const { return mName; }
    virtual bool isAbstract() const { return false; }
    virtual void initializeClass(ClassDescription& cls) const = 0;

private:
    char const* mName;
};

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
