// Nodes of a presentation tree. A node holds its children through shared
// pointers to handles and its parent through a raw pointer, so the tree keeps
// its children alive while a child doesn't keep its parent alive. Nodes
// compare by implementation, never by handle.
//
// A concrete node class X (say Slide) comes as a pair:
//   class SlideImpl : public ElementImpl   (copy constructor, makeInterface,
//       clone, getNodeType, getFullyQualifiedHobjTypeName, acceptWriter)
//   class Slide : public Element           (Slide(), explicit Slide(PPTObjectImpl*),
//       static cast(boost::shared_ptr<PPTNode>))
// with makeInterface() returning boost::make_shared<Slide>(this) and clone()
// returning (new SlideImpl(*this))->makeInterface().
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <xercesc/util/XercesDefs.hpp>

#include "engine/ppt_object.h"
#include "formats/formats.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMNode;
XERCES_CPP_NAMESPACE_END

namespace deckforge {
namespace ppt {

class PPTWriter;
class PPTNode;

// One value per concrete node class; the numbers are fixed.
enum class NodeType : std::int32_t {
    BaseTextBox = 1,
    BodyPlaceholder = 2,
    ColSpec = 3,
    ContentPlaceholder = 4,
    ExternalLink = 5,
    Group = 6,
    Picture = 7,
    PicturePlaceholder = 8,
    Paragraph = 9,
    Presentation = 10,
    Shape = 11,
    Slide = 12,
    Table = 13,
    TableEntry = 14,
    TablePlaceholder = 15,
    TableRow = 16,
    Text = 17,
    TextBox = 18,
    TextBoxPlaceholder = 19,
    Chart = 20,
    ChartPlaceholder = 21
};

using PPTNodePtr = boost::shared_ptr<PPTNode>;
using PPTNodeList = std::vector<PPTNodePtr>;

class ElementImpl;

class PPTNodeImpl : public PPTObjectImpl {
public:
    PPTNodeImpl() = default;
    // A free node with clones of the children; the Name is not copied here.
    PPTNodeImpl(PPTNodeImpl const& other);
    // Frees the children first, so that those kept elsewhere lose their parent.
    ~PPTNodeImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    // Hands the node to its writer; a node without a writer writes nothing.
    virtual void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const;
    // A new handle of the concrete class over this object. Not while the
    // count is 0: the temporary handle would destroy the object.
    virtual PPTNodePtr makeInterface() = 0;
    // A deep copy, as a handle of the concrete class.
    virtual PPTNodePtr clone() const = 0;
    virtual NodeType getNodeType() const = 0;
    virtual bool isA(NodeType type) const { return getNodeType() == type; }
    // The node as an element, or null; the writers ask it of every parent
    // when they look for inherited formats, where a dynamic_cast costs more.
    virtual ElementImpl const* asElement() const { return nullptr; }
    virtual void setName(u16string const& name) { setNameText(name); }

    // These three refuse a child that has a parent (failedToAppendChild).
    virtual void appendChild(PPTNodePtr child);
    // Appends if index is at or past the end.
    virtual void insertChild(PPTNodePtr child, std::size_t index);
    // Appends if `before` is no child.
    virtual void insertChild(PPTNodePtr child, PPTNode const& before);
    // Puts `replacement` in the place of `old`, or at the end if `old` is no
    // child, and frees `old`. Unlike the inserts it takes a replacement that
    // has a parent, without taking it out of that parent's children.
    virtual void replaceChild(PPTNodePtr old, PPTNodePtr replacement);

    void clearChildren();
    // Adopts the children that have no parent; the others keep theirs.
    void setChildren(PPTNodeList const& children);

    // Appends to `result`, depth first, the nodes under `root` named `name`
    // (exact code units) among the shape classes. Groups and slides are also
    // searched inside; nothing else is entered.
    static void findNodes(u16string const& name, PPTNodePtr const& root, PPTNodeList& result);

    PPTNodeImpl* getParent() const { return mParent; }
    PPTNodeList const& getChildren() const { return mChildren; }
    u16string const& getName() const { return nameText(); }

protected:
    void setParentOf(PPTNodePtr const& child);

private:
    void checkFree(PPTNodePtr const& child) const;

    PPTNodeImpl* mParent = nullptr;
    PPTNodeList mChildren;
};

class PPTNode : public PPTObject {
public:
    explicit PPTNode(PPTObjectImpl* impl) : PPTObject(impl) {}

    virtual PPTNodePtr clone() const { return nodeImpl()->clone(); }
    PPTNodePtr makeInterface() const { return nodeImpl()->makeInterface(); }
    // A new handle over the parent, of the parent's class; empty for a free node.
    PPTNodePtr getParent() const;
    std::uint64_t getNChildren() const { return nodeImpl()->getChildren().size(); }
    PPTNodeList const& getChildren() const { return nodeImpl()->getChildren(); }
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
        nodeImpl()->acceptWriter(writer, parent);
    }
    NodeType getNodeType() const { return nodeImpl()->getNodeType(); }
    bool isA(NodeType type) const { return nodeImpl()->isA(type); }
    u16string const& getName() const { return nodeImpl()->getName(); }

    PPTNodeImpl* nodeImpl() const { return getImplAs<PPTNodeImpl>(); }
};

// A node that carries formats.
class ElementImpl : public PPTNodeImpl {
public:
    ElementImpl() = default;
    // Shares the format objects with the original.
    ElementImpl(ElementImpl const& other) = default;

    char const* getFullyQualifiedHobjTypeName() const override;
    ElementImpl const* asElement() const override { return this; }

    Formats const& getStyle() const { return mStyle; }
    void setStyle(Formats const& style) { mStyle = style; }
    boost::shared_ptr<Format> getFormat(FormatType type) const { return mStyle.getFormat(type); }
    void appendFormat(boost::shared_ptr<Format> format) { mStyle.appendFormat(std::move(format)); }
    void unsetFormat(FormatType type) { mStyle.unsetFormat(type); }

private:
    Formats mStyle;
};

class Element : public PPTNode {
public:
    explicit Element(PPTObjectImpl* impl) : PPTNode(impl) {}

    void setStyle(Formats const& style) { elementImpl()->setStyle(style); }
    Formats const& getStyle() const { return elementImpl()->getStyle(); }

    ElementImpl* elementImpl() const { return getImplAs<ElementImpl>(); }
};

// Downcast of a handle for a concrete class X; empty if `node` is empty or
// of another class. Shares ownership with `node`.
template <class X>
boost::shared_ptr<X> castNode(PPTNodePtr const& node) {
    return boost::dynamic_pointer_cast<X>(node);
}

}  // namespace ppt
}  // namespace deckforge
