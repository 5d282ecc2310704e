// A script host without a script engine: each script object is a number,
// events are recorded, and a listener can be made to throw.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "binding/script_host.h"
#include "binding/script_object.h"

namespace deckforge {
namespace ppt {
namespace mi {

class FakeHost : public ScriptHost {
public:
    FakeHost() { previous_ = setScriptHost(this); }
    ~FakeHost() override { setScriptHost(previous_); }

    Value newObject(ScriptObject* object, std::string const& className) override {
        ++made;
        object->attachHostObject(reinterpret_cast<void*>(static_cast<std::uintptr_t>(made)));
        return live(*object, className);
    }
    Value existingObject(ScriptObject& object) override { return live(object, "found"); }
    void raiseEvent(ScriptObject&, char const* event, Value const& data) override {
        events.push_back(event);
        eventData.push_back(data);
        if (listenerThrows) throw std::runtime_error("listener failed");
    }
    void forget(ScriptObject&) noexcept override { ++forgotten; }

    static Value live(ScriptObject& object, std::string const& className) {
        ObjectRef ref;
        ref.state = ObjectRef::State::Live;
        ref.className = className;
        ref.object = &object;
        return Value(ref);
    }

    int made = 0;
    int forgotten = 0;
    bool listenerThrows = false;
    std::vector<std::string> events;
    std::vector<Value> eventData;

private:
    ScriptHost* previous_ = nullptr;
};

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
