// Stand-ins for the concrete node classes, one per NodeType, built the way a
// real class is: an ElementImpl subclass with makeInterface, clone and
// getNodeType, and a handle with the wrapping constructor and cast.
#pragma once

#include <boost/make_shared.hpp>

#include "engine/ppt_node.h"

namespace deckforge {
namespace ppt {
namespace test {

template <NodeType T>
class FakeNode;

template <NodeType T>
class FakeNodeImpl : public ElementImpl {
public:
    FakeNodeImpl() {
        ++alive;
        reportCreated();
    }
    // Real classes that keep their Name on copy do it themselves, as here.
    FakeNodeImpl(FakeNodeImpl const& other) : ElementImpl(other) {
        setName(other.getName());
        ++alive;
        reportCreated();
    }
    ~FakeNodeImpl() override {
        reportDestroyed();
        --alive;
    }

    char const* getFullyQualifiedHobjTypeName() const override {
        return T == NodeType::Slide ? "deckforge.ppt.Slide" : "deckforge.ppt.FakeNode";
    }
    PPTNodePtr makeInterface() override { return boost::make_shared<FakeNode<T>>(this); }
    PPTNodePtr clone() const override { return (new FakeNodeImpl(*this))->makeInterface(); }
    NodeType getNodeType() const override { return T; }

    static inline int alive = 0;
};

template <NodeType T>
class FakeNode : public Element {
public:
    explicit FakeNode(u16string const& name = u"") : Element(new FakeNodeImpl<T>()) {
        nodeImpl()->setName(name);
    }
    explicit FakeNode(PPTObjectImpl* impl) : Element(impl) {}
    static boost::shared_ptr<FakeNode> cast(PPTNodePtr const& node) { return castNode<FakeNode>(node); }
};

using FakeSlide = FakeNode<NodeType::Slide>;
using FakeTextBox = FakeNode<NodeType::TextBox>;
using FakeSlideImpl = FakeNodeImpl<NodeType::Slide>;
using FakeTextBoxImpl = FakeNodeImpl<NodeType::TextBox>;

// A new node of type T, as the tree holds it.
template <NodeType T>
PPTNodePtr makeNode(u16string const& name = u"") {
    return FakeNode<T>(name).makeInterface();
}

inline PPTNodeImpl* implOf(PPTNodePtr const& node) {
    return node->nodeImpl();
}

}  // namespace test
}  // namespace ppt
}  // namespace deckforge
