#include "engine/ppt_object.h"

#include "messages/message.h"
#include "messages/message_dispatcher.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {

namespace {
// Process-wide and never reset; the host calls on one thread only.
std::uint64_t gIdCounter = 0;

std::uint64_t nextSerial() {
    return ++gIdCounter;
}

// Asked by every reporting constructor and destructor, so it reads the live
// filter in place rather than through a new handle.
bool debugMessagesPass() {
    auto* dispatcher = MessageDispatcher::getTheDispatcher().getImplAs<MessageDispatcherImpl>();
    return dispatcher->getFilter().getDebugMessagesPass();
}
}  // namespace

PPTClientImpl::~PPTClientImpl() = default;

PPTObjectImpl::PPTObjectImpl() : mSerial(nextSerial()) {}

PPTObjectImpl::PPTObjectImpl(PPTObjectImpl const& other) : Wrappable(other), mSerial(nextSerial()) {
    if (other.mRare && other.mRare->client) setPPTClientImpl(other.mRare->client->clone());
}

PPTObjectImpl::~PPTObjectImpl() {
    if (mRare) {
        mRare->proxy.reset();
        mRare->client.reset();
    }
    hobj::factory::basic::BindingRegistry::retract(this);
}

PPTObjectImpl::Rare& PPTObjectImpl::rare() {
    if (!mRare) mRare = std::make_unique<Rare>();
    return *mRare;
}

u16string PPTObjectImpl::getId() const {
    if (mRare && mRare->idSet) return mRare->id;
    return num2str(static_cast<unsigned long>(mSerial));
}

void PPTObjectImpl::setId(u16string const& id) {
    Rare& fields = rare();
    fields.id = id;
    fields.idSet = true;
}

boost::shared_ptr<PPTObject> const& PPTObjectImpl::getProxy() const {
    static boost::shared_ptr<PPTObject> const none;
    return mRare ? mRare->proxy : none;
}

u16string const& PPTObjectImpl::nameText() const {
    static u16string const none;
    return mRare ? mRare->name : none;
}

char const* PPTObjectImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Object";
}

u16string PPTObjectImpl::getTag() const {
    if (mRare && !mRare->tag.empty()) return mRare->tag;
    std::string name = getFullyQualifiedHobjTypeName();
    auto dot = name.find('.');
    if (dot != std::string::npos) name.erase(0, dot + 1);
    return toString(name) + u":" + getId();
}

void PPTObjectImpl::setPPTClientImpl(boost::shared_ptr<PPTClientImpl> client) {
    client->setOwner(this);
    rare().client = std::move(client);
}

void PPTObjectImpl::setProxy(boost::shared_ptr<PPTObject> proxy) {
    rare().proxy = std::move(proxy);
}

void PPTObjectImpl::reportCreated() const {
    if (!debugMessagesPass()) return;
    MessageDispatcher::getTheDispatcher().dispatch(
        DebugMessage(resource_core::makeMsgID<ppt_debug::objCreated>(getTag())));
}

void PPTObjectImpl::reportDestroyed() const noexcept {
    try {
        if (!debugMessagesPass()) return;
        MessageDispatcher::getTheDispatcher().dispatch(
            DebugMessage(resource_core::makeMsgID<ppt_debug::objDestroyed>(getTag())));
    } catch (...) {
        // A destructor must finish; a listener's failure is not worth a crash.
    }
}

void intrusive_ptr_add_ref(PPTObjectImpl* p) {
    ++p->mRefCount;
}

void intrusive_ptr_release(PPTObjectImpl* p) {
    if (p && --p->mRefCount == 0) delete p;
}

PPTObject::PPTObject() : impl(new PPTObjectImpl()) {}

PPTObject::PPTObject(PPTObjectImpl* p) : impl(p) {}

PPTObject::~PPTObject() = default;

}  // namespace ppt
}  // namespace deckforge
