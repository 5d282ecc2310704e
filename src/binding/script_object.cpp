#include "binding/script_object.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_set>

#include "binding/marshal.h"
#include "binding/script_host.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {
// Never destroyed: records may outlive static destruction when the host
// tears down its objects late.
std::unordered_set<ScriptObject const*>& liveObjects() {
    static auto* live = new std::unordered_set<ScriptObject const*>();
    return *live;
}

ScriptHost* gHost = nullptr;
}  // namespace

ScriptHost& scriptHost() {
    if (!gHost) throw std::logic_error("no script host is installed");
    return *gHost;
}

ScriptHost* setScriptHost(ScriptHost* host) {
    std::swap(gHost, host);
    return host;
}

ScriptObject::ScriptObject(PPTObject const& proxy) : mProxy(new PPTObject(proxy)) {
    if (!proxy.getImpl()) throw std::invalid_argument("a script object needs a native object");
    if (hobj::factory::basic::BindingRegistry::lookup(*proxy.getImpl()))
        throw std::logic_error("native object already has a script object");
    hobj::factory::basic::BindingRegistry::bind(*proxy.getImpl(), this);
    liveObjects().insert(this);
}

ScriptObject::~ScriptObject() {
    liveObjects().erase(this);
    mDestroying = true;
    if (PPTObjectImpl* p = impl()) hobj::factory::basic::BindingRegistry::remove(*p);
    // Dropping the handle may destroy the implementation, which may report
    // its end; by now nothing finds this record any more.
    mProxy.reset();
}

ScriptObject* ScriptObject::find(PPTObjectImpl const& impl) {
    return static_cast<ScriptObject*>(hobj::factory::basic::BindingRegistry::lookup(impl));
}

bool ScriptObject::isLive(ScriptObject const* object) {
    return object && liveObjects().count(object) != 0;
}

void ScriptObject::attachHostObject(void* hostObject) {
    if (std::find(mHostObjects.begin(), mHostObjects.end(), hostObject) == mHostObjects.end())
        mHostObjects.push_back(hostObject);
}

bool ScriptObject::detachHostObject(void* hostObject) {
    mHostObjects.erase(std::remove(mHostObjects.begin(), mHostObjects.end(), hostObject), mHostObjects.end());
    return mHostObjects.empty();
}

void ScriptObject::notify(char const* name, hobj::factory::full::Wrappable& data) {
    auto* impl = dynamic_cast<PPTObjectImpl*>(&data);
    if (!impl) return;
    Value eventData = toScript(PPTObject(impl));
    scriptHost().raiseEvent(*this, name, eventData);
}

void ScriptObject::retracted() noexcept {
    // The implementation is dying under us: its count is spent, so the
    // handle must not release it again. Leave the handle behind.
    (void)mProxy.release();
}

void ScriptObject::destroy(ScriptObject* object) noexcept {
    if (!isLive(object)) return;
    object->mDestroying = true;
    if (gHost) gHost->forget(*object);
    delete object;
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
