// Calls from script code: pick the overload whose signature fits the
// arguments, convert the arguments by its words, run the invoker, and hand
// back the result. Errors are raised as message-id exceptions and pass
// through to the host's glue, which shows them to script code.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "binding/class_info.h"
#include "binding/marshal.h"
#include "binding/value.h"

namespace deckforge {
namespace ppt {
namespace mi {

class ScriptObject;

// The converted arguments of one call, as its invoker reads them.
class Call {
public:
    Call(MethodInfo const& method, std::optional<PPTObject> self, std::vector<Value> const& args);

    template <class T>
    T self() const {
        return T(mSelf->getImpl());
    }
    PPTObject const& selfObject() const { return *mSelf; }

    std::size_t size() const { return mArgs.size(); }
    u16string const& text(std::size_t i) const { return mArgs.at(i).text; }
    bool logical(std::size_t i) const { return mArgs.at(i).flag; }
    std::uint32_t uint32(std::size_t i) const { return static_cast<std::uint32_t>(mArgs.at(i).integer); }
    std::uint64_t uint64(std::size_t i) const { return mArgs.at(i).integer; }
    double number(std::size_t i) const { return mArgs.at(i).number; }
    PPTObject const& object(std::size_t i) const { return *mArgs.at(i).object; }
    template <class T>
    T object(std::size_t i) const {
        return T(object(i).getImpl());
    }
    // The argument as script code gave it, for "any" inputs and for checks
    // the words don't make (such as 1-based indexes).
    Value const& raw(std::size_t i) const { return *mArgs.at(i).raw; }

    // A 1-based index given as "uint64 scalar", checked and made 0-based:
    // positiveSubscript unless a positive whole number; `badIndex` (given
    // the index) when it is past `count`.
    template <class BadIndex>
    std::size_t index(std::size_t i, std::uint64_t count) const;

private:
    struct Arg {
        Value const* raw = nullptr;
        u16string text;
        bool flag = false;
        std::uint64_t integer = 0;
        double number = 0;
        std::optional<PPTObject> object;
    };
    std::optional<PPTObject> mSelf;
    std::vector<Arg> mArgs;
};

// Whether `value` fits the word `word` well enough to pick an overload.
bool fitsWord(Value const& value, std::string const& word);

// The operations of the gateway. `className` is the full name of the class
// whose script code makes the call; members are looked up there and then in
// its superclasses.
ScriptObject* construct(std::string const& className, std::vector<Value> const& args);
// Methods give no value when the chosen overload's result is "void".
std::optional<Value> callMethod(Value const& self, std::string const& className, std::string const& name,
                                std::vector<Value> const& args);
// The same with the overloads of `name` that `className` sees, as
// instanceOverloads found them, for callers that call one member often.
std::vector<MethodInfo const*> instanceOverloads(std::string const& className, std::string const& name);
std::optional<Value> callMethod(Value const& self, std::string const& className, std::string const& name,
                                std::vector<MethodInfo const*> const& overloads,
                                std::vector<Value> const& args);
std::optional<Value> callStatic(std::string const& className, std::string const& name,
                                std::vector<Value> const& args);
Value getProperty(Value const& self, std::string const& className, std::string const& name);
void setProperty(Value const& self, std::string const& className, std::string const& name,
                 Value const& value);

// Whether the class or a superclass declares the event.
bool hasEvent(std::string const& className, std::string const& event);

// The index check of Call::index, for invokers that read raw values.
double checkedSubscript(Value const& value);

template <class BadIndex>
std::size_t Call::index(std::size_t i, std::uint64_t count) const {
    double n = checkedSubscript(raw(i));
    if (n > static_cast<double>(count))
        raise<BadIndex>(static_cast<std::int64_t>(n), static_cast<std::int64_t>(count));
    return static_cast<std::size_t>(n) - 1;
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
