// What the binding needs of the scripting host beyond plain values: making
// script objects for native objects, finding them again, and raising events.
// The host's glue implements it and installs it before the first call.
#pragma once

#include <string>

#include "binding/value.h"

namespace deckforge {
namespace ppt {
namespace mi {

class ScriptObject;

class ScriptHost {
public:
    virtual ~ScriptHost() = default;

    // Makes a script object of class `className` for `object`, which has no
    // host object yet, attaches it and returns it. Owns `object` from here:
    // on failure it frees it unless a host object took it.
    virtual Value newObject(ScriptObject* object, std::string const& className) = 0;
    // The script object already made for `object`.
    virtual Value existingObject(ScriptObject& object) = 0;
    // Runs the listeners of `event` on `source` with `data`, in order, before
    // returning. What a listener throws passes through.
    virtual void raiseEvent(ScriptObject& source, char const* event, Value const& data) = 0;
    // `object` is going away: drop what the host keeps for it.
    virtual void forget(ScriptObject& object) noexcept = 0;
};

// The installed host; throws std::logic_error if none.
ScriptHost& scriptHost();
// Returns the previous host. Null uninstalls.
ScriptHost* setScriptHost(ScriptHost* host);

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
