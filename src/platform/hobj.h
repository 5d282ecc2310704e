// The host's class-object layer, as far as the native core needs it: the base
// class of every implementation object, the registry that ties an
// implementation to its one script object, and the one thing the core asks of
// a script object, raising an event on it. The binding implements
// COSInterface over the real host; without a binding no implementation has a
// script object and nothing is raised.
#pragma once

namespace hobj {

namespace factory {
namespace full {
class Wrappable;
}
}  // namespace factory

// A script object of the host that wraps a native implementation.
class COSInterface {
public:
    virtual ~COSInterface();

    // True while the host tears the object down; events are not raised then.
    virtual bool isBeingDestroyed() const = 0;
    // Raises the event `name` with `data` as its event data. `data` is the
    // implementation of a native object, which the binding wraps into a
    // script object of its own. Listeners run before this returns.
    virtual void notify(char const* name, factory::full::Wrappable& data) = 0;
    // The implementation died before its script object: drop the native side.
    virtual void retracted() noexcept = 0;
};

using COSInterfacePtr = COSInterface*;

namespace factory {

namespace basic {
class BindingRegistry;
}

namespace full {

// Base of every implementation object. It carries only the binding to the
// script object, which the core never looks at.
class Wrappable {
public:
    Wrappable() = default;
    // A copy is a new native object: it has no script object yet.
    Wrappable(Wrappable const&) {}
    Wrappable& operator=(Wrappable const&) { return *this; }
    virtual ~Wrappable() = default;

private:
    friend class basic::BindingRegistry;
    COSInterface* mScriptObject = nullptr;
};

}  // namespace full

namespace basic {

// One implementation has at most one script object. The binding binds it
// when it makes the script object and removes it when the host destroys it
// first; an implementation that dies first retracts it.
class BindingRegistry {
public:
    static void bind(full::Wrappable& impl, COSInterface* scriptObject);
    // Null if the implementation has no script object.
    static COSInterface* lookup(full::Wrappable const& impl);
    // The script object is going away: forget it without telling it.
    static void remove(full::Wrappable& impl);
    // The implementation is going away: tell its script object, if any.
    static void retract(full::Wrappable* impl) noexcept;
};

}  // namespace basic
}  // namespace factory
}  // namespace hobj
