#include "binding/class_info.h"

#include <algorithm>

namespace deckforge {
namespace ppt {
namespace mi {

Signature Signature::create(std::string attributes, std::string result, std::string self,
                            std::vector<std::string> inputs) {
    return Signature{std::move(attributes), std::move(result), std::move(self), std::move(inputs)};
}

std::string Signature::text() const {
    std::string s = "(";
    for (std::size_t i = 0; i < inputs.size(); ++i) s += (i ? ", " : "") + inputs[i];
    return s + ") -> " + result;
}

std::vector<std::string> MethodInfo::callerInputs() const {
    // The untyped form carries the class as its first input.
    if (kind == Kind::Instance && signature.self.empty() && !signature.inputs.empty())
        return std::vector<std::string>(signature.inputs.begin() + 1, signature.inputs.end());
    return signature.inputs;
}

ClassDescription::ClassDescription(std::string packageName, std::string name)
    : mPackage(std::move(packageName)), mName(std::move(name)) {}

void ClassDescription::addConstructor(std::vector<std::string> inputs, ConstructorInvoker construct,
                                      std::string help) {
    MethodInfo m;
    m.name = mName;
    m.kind = MethodInfo::Kind::Constructor;
    m.signature = Signature::create("", fullName(), "", std::move(inputs));
    m.help = std::move(help);
    m.construct = std::move(construct);
    mConstructors.push_back(std::move(m));
}

void ClassDescription::addMethod(std::string name, std::string result, std::vector<std::string> inputs,
                                 Invoker invoke, std::string help) {
    MethodInfo m;
    m.name = std::move(name);
    m.kind = MethodInfo::Kind::Instance;
    bool untyped = !inputs.empty() && std::all_of(inputs.begin(), inputs.end(),
                                                  [](std::string const& w) { return w == words::Any; });
    if (untyped) {
        inputs.insert(inputs.begin(), fullName());
        m.signature = Signature::create("", std::move(result), "", std::move(inputs));
    } else {
        m.signature = Signature::create("", std::move(result), fullName(), std::move(inputs));
    }
    m.help = std::move(help);
    m.invoke = std::move(invoke);
    mMethods.push_back(std::move(m));
}

void ClassDescription::addStaticMethod(std::string name, std::string result, std::vector<std::string> inputs,
                                       Invoker invoke, std::string help) {
    MethodInfo m;
    m.name = std::move(name);
    m.kind = MethodInfo::Kind::Static;
    m.signature = Signature::create("", std::move(result), "", std::move(inputs));
    m.help = std::move(help);
    m.invoke = std::move(invoke);
    mMethods.push_back(std::move(m));
}

void ClassDescription::addProperty(std::string name, std::string type, Getter get, Setter set,
                                   std::string help) {
    mProperties.push_back(
        PropertyInfo{std::move(name), std::move(type), std::move(help), std::move(get), std::move(set)});
}

void ClassDescription::addEvent(std::string name, std::string dataClass, std::string help) {
    mEvents.push_back(EventInfo{std::move(name), std::move(help), std::move(dataClass)});
}

std::vector<MethodInfo const*> ClassDescription::methodOverloads(std::string const& name) const {
    std::vector<MethodInfo const*> result;
    for (auto const& m : mMethods)
        if (m.name == name) result.push_back(&m);
    return result;
}

PropertyInfo const* ClassDescription::ownProperty(std::string const& name) const {
    for (auto const& p : mProperties)
        if (p.name == name) return &p;
    return nullptr;
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
