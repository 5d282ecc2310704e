#include "engine/ppt_node.h"

#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {

namespace {
PPTObjectImpl* implOf(PPTNodePtr const& node) {
    return node ? node->getImpl() : nullptr;
}
}  // namespace

PPTNodeImpl::PPTNodeImpl(PPTNodeImpl const& other) : PPTObjectImpl(other) {
    mChildren.reserve(other.mChildren.size());
    for (auto const& child : other.mChildren) {
        if (!child) continue;
        PPTNodePtr copy = child->clone();
        setParentOf(copy);
        mChildren.push_back(std::move(copy));
    }
}

PPTNodeImpl::~PPTNodeImpl() {
    clearChildren();
}

char const* PPTNodeImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Node";
}

void PPTNodeImpl::acceptWriter(PPTWriter*, XERCES_CPP_NAMESPACE::DOMNode*) const {}

void PPTNodeImpl::setParentOf(PPTNodePtr const& child) {
    if (child) child->nodeImpl()->mParent = this;
}

void PPTNodeImpl::checkFree(PPTNodePtr const& child) const {
    if (child && child->nodeImpl()->mParent) deckforge::raise<ppt_error::failedToAppendChild>();
}

void PPTNodeImpl::appendChild(PPTNodePtr child) {
    checkFree(child);
    setParentOf(child);
    mChildren.push_back(std::move(child));
}

void PPTNodeImpl::insertChild(PPTNodePtr child, std::size_t index) {
    checkFree(child);
    setParentOf(child);
    if (index < mChildren.size())
        mChildren.insert(mChildren.begin() + static_cast<std::ptrdiff_t>(index), std::move(child));
    else
        mChildren.push_back(std::move(child));
}

void PPTNodeImpl::insertChild(PPTNodePtr child, PPTNode const& before) {
    checkFree(child);
    auto it = mChildren.begin();
    while (it != mChildren.end() && implOf(*it) != before.getImpl()) ++it;
    setParentOf(child);
    mChildren.insert(it, std::move(child));
}

void PPTNodeImpl::replaceChild(PPTNodePtr old, PPTNodePtr replacement) {
    // No test of the replacement's parent: a placeholder hands its place to a
    // picture or table this way, and callers rely on it taking any node.
    auto it = mChildren.begin();
    while (it != mChildren.end() && implOf(*it) != implOf(old)) ++it;
    setParentOf(replacement);
    if (it != mChildren.end())
        *it = replacement;
    else
        mChildren.push_back(replacement);
    if (old) old->nodeImpl()->mParent = nullptr;
}

void PPTNodeImpl::clearChildren() {
    for (auto const& child : mChildren)
        if (child) child->nodeImpl()->mParent = nullptr;
    mChildren.clear();
}

void PPTNodeImpl::setChildren(PPTNodeList const& children) {
    for (auto const& child : children)
        if (child && !child->nodeImpl()->mParent) setParentOf(child);
    mChildren = children;
}

void PPTNodeImpl::findNodes(u16string const& name, PPTNodePtr const& root, PPTNodeList& result) {
    if (!root) return;
    for (auto const& child : root->getChildren()) {
        if (!child) continue;
        switch (child->getNodeType()) {
            case NodeType::BaseTextBox:
            case NodeType::BodyPlaceholder:
            case NodeType::Chart:
            case NodeType::ContentPlaceholder:
            case NodeType::Picture:
            case NodeType::PicturePlaceholder:
            case NodeType::Table:
            case NodeType::TablePlaceholder:
            case NodeType::ChartPlaceholder:
            case NodeType::TextBox:
            case NodeType::TextBoxPlaceholder:
                if (child->getName() == name) result.push_back(child);
                break;
            case NodeType::Group:
            case NodeType::Slide:
                if (child->getName() == name) result.push_back(child);
                findNodes(name, child, result);
                break;
            default:
                // Text, paragraphs, table rows and cells, column specs and
                // plain shapes are never hits, and a table is not entered.
                break;
        }
    }
}

PPTNodePtr PPTNode::getParent() const {
    PPTNodeImpl* parent = nodeImpl()->getParent();
    return parent ? parent->makeInterface() : PPTNodePtr();
}

char const* ElementImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Element";
}

}  // namespace ppt
}  // namespace deckforge
