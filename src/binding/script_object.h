// The binding's side of one native object that script code can see. It owns
// one handle over the implementation, so the implementation lives at least
// as long as script code holds it, and it is the implementation's entry in
// the binding registry, so the same native object is always shown to script
// code as the same script object.
//
// The host may show one native object through more than one host object when
// a script constructor hands back an object that already has one (the
// dispatcher singleton). They all share this record; the first is the one
// the library hands out, and the record dies with the last.
#pragma once

#include <memory>
#include <vector>

#include "engine/ppt_object.h"
#include "platform/hobj.h"

namespace deckforge {
namespace ppt {
namespace mi {

class ScriptObject : public hobj::COSInterface {
public:
    // Binds `proxy`'s implementation, which must have no script object yet.
    explicit ScriptObject(PPTObject const& proxy);
    ~ScriptObject() override;
    ScriptObject(ScriptObject const&) = delete;
    ScriptObject& operator=(ScriptObject const&) = delete;

    // The script object of an implementation, or null.
    static ScriptObject* find(PPTObjectImpl const& impl);
    // Whether `object` is a record that exists now; guards pointers that come
    // back from script code.
    static bool isLive(ScriptObject const* object);

    // Null once the implementation has been retracted.
    PPTObjectImpl* impl() const { return mProxy ? mProxy->getImpl() : nullptr; }
    PPTObject const& proxy() const { return *mProxy; }

    std::vector<void*> const& hostObjects() const { return mHostObjects; }
    void* primaryHostObject() const { return mHostObjects.empty() ? nullptr : mHostObjects.front(); }
    void attachHostObject(void* hostObject);
    // True when no host object is left.
    bool detachHostObject(void* hostObject);

    bool isBeingDestroyed() const override { return mDestroying; }
    void notify(char const* name, hobj::factory::full::Wrappable& data) override;
    void retracted() noexcept override;

    // Called by the host when its last object goes: unbinds, forgets what
    // the host kept, and frees the record.
    static void destroy(ScriptObject* object) noexcept;

private:
    std::unique_ptr<PPTObject> mProxy;
    std::vector<void*> mHostObjects;
    bool mDestroying = false;
};

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
