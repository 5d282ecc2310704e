// The root of every public object. A public class X is a handle holding one
// counted reference to its implementation XImpl, which holds all state; two
// handles over one implementation are one object. Implementations are
// counted intrusively and die with their last reference.
#pragma once

#include <cstdint>
#include <memory>

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "common/strings.h"
#include "platform/hobj.h"

namespace deckforge {
namespace ppt {

class PPTObject;
class PPTObjectImpl;

// Where a client of the library hangs its own data on an object. Owner is the
// object it hangs on; it is not owned.
class PPTClientImpl {
public:
    PPTClientImpl() = default;
    PPTClientImpl(PPTClientImpl const& other) = default;
    virtual ~PPTClientImpl();
    // A copied object gets its client's clone, which therefore must not be empty.
    virtual boost::shared_ptr<PPTClientImpl> clone() const = 0;

    PPTObjectImpl* getOwner() const { return mOwner; }
    void setOwner(PPTObjectImpl* owner) { mOwner = owner; }

private:
    PPTObjectImpl* mOwner = nullptr;
};

class PPTObjectImpl : public hobj::factory::full::Wrappable {
public:
    // Both take a fresh Id; a copy inherits neither Tag nor script binding.
    PPTObjectImpl();
    PPTObjectImpl(PPTObjectImpl const& other);
    PPTObjectImpl& operator=(PPTObjectImpl const&) = delete;
    ~PPTObjectImpl() override;

    virtual char const* getFullyQualifiedHobjTypeName() const;

    // The Id is the object's serial number in decimal until one is set.
    u16string getId() const;
    void setId(u16string const& id);
    // The Tag, or while it is empty "<type name after its first dot>:<Id>".
    u16string getTag() const;
    void setTag(u16string const& tag) {
        if (mRare || !tag.empty()) rare().tag = tag;
    }

    boost::shared_ptr<PPTClientImpl> getPPTClientImpl() const {
        return mRare ? mRare->client : boost::shared_ptr<PPTClientImpl>();
    }
    void setPPTClientImpl(boost::shared_ptr<PPTClientImpl> client);

    // The binding's plain handle over this object and the host's object;
    // the core only keeps them.
    boost::shared_ptr<PPTObject> const& getProxy() const;
    void setProxy(boost::shared_ptr<PPTObject> proxy);
    void* getHostObject() const { return mRare ? mRare->hostObject : nullptr; }
    void setHostObject(void* hostObject) { rare().hostObject = hostObject; }

    std::uint32_t getRefCount() const { return mRefCount; }

protected:
    // Concrete node classes call these at the end of each constructor and at
    // the start of their destructor. Nothing is built unless debug messages
    // pass the dispatcher's filter. The object is reported by its tag, never
    // by a handle: the count is 0 in both places, and a handle's release
    // would destroy the object under construction or destroy it twice.
    void reportCreated() const;
    void reportDestroyed() const noexcept;

    // A node's name, kept with the other rare fields.
    u16string const& nameText() const;
    void setNameText(u16string const& name) {
        if (mRare || !name.empty()) rare().name = name;
    }

private:
    friend void intrusive_ptr_add_ref(PPTObjectImpl* p);
    friend void intrusive_ptr_release(PPTObjectImpl* p);

    // What most objects never have, made on first use: a deck holds tens of
    // thousands of runs, paragraphs and cells, and each field here would
    // cost every one of them.
    struct Rare {
        boost::shared_ptr<PPTObject> proxy;
        boost::shared_ptr<PPTClientImpl> client;
        void* hostObject = nullptr;
        u16string id;
        bool idSet = false;
        u16string tag;
        u16string name;
    };
    Rare& rare();

    std::unique_ptr<Rare> mRare;
    std::uint64_t mSerial;
    std::uint32_t mRefCount = 0;
};

void intrusive_ptr_add_ref(PPTObjectImpl* p);
void intrusive_ptr_release(PPTObjectImpl* p);

class PPTObject {
public:
    // A plain PPTObjectImpl.
    PPTObject();
    // Wraps an existing implementation; null makes an empty handle.
    explicit PPTObject(PPTObjectImpl* impl);
    PPTObject(PPTObject const& other) = default;
    PPTObject& operator=(PPTObject const& other) = default;
    virtual ~PPTObject();

    char const* getFullyQualifiedHobjTypeName() const { return impl->getFullyQualifiedHobjTypeName(); }
    u16string getId() const { return impl->getId(); }
    void setId(u16string const& id) { impl->setId(id); }
    u16string getTag() const { return impl->getTag(); }
    void setTag(u16string const& tag) { impl->setTag(tag); }
    void setPPTClientImpl(boost::shared_ptr<PPTClientImpl> client) {
        impl->setPPTClientImpl(std::move(client));
    }
    boost::shared_ptr<PPTClientImpl> getPPTClientImpl() const { return impl->getPPTClientImpl(); }

    // The identity of the object.
    PPTObjectImpl* getImpl() const { return impl.get(); }
    template <class T>
    T* getImplAs() const {
        return static_cast<T*>(impl.get());
    }

protected:
    boost::intrusive_ptr<PPTObjectImpl> impl;
};

}  // namespace ppt
}  // namespace deckforge
