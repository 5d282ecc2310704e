#include <gtest/gtest.h>

#include "engine/fake_nodes.h"
#include "platform/msg_ids.h"

using namespace deckforge;
using namespace deckforge::ppt;
using namespace deckforge::ppt::test;

namespace {

using AppendRefused = foundation::core::except::Exception<ppt_error::failedToAppendChild>;

std::vector<PPTObjectImpl*> implsOf(PPTNodeList const& nodes) {
    std::vector<PPTObjectImpl*> out;
    for (auto const& n : nodes) out.push_back(n ? n->getImpl() : nullptr);
    return out;
}

PPTNodeImpl* parentOf(PPTNodePtr const& node) {
    return implOf(node)->getParent();
}
PPTNodePtr box(u16string const& name = u"") {
    return makeNode<NodeType::TextBox>(name);
}
PPTNodePtr slide(u16string const& name = u"") {
    return makeNode<NodeType::Slide>(name);
}

TEST(TreeTest, AppendAndInsertSetParentAndRefuseAttachedChildren) {
    PPTNodePtr root = slide(), other = slide();
    PPTNodePtr a = box(), b = box(), c = box(), d = box(), e = box(), stranger = box();
    PPTNodeImpl* r = implOf(root);
    EXPECT_FALSE(b->getParent());

    r->appendChild(b);
    PPTNodePtr parent = b->getParent();
    EXPECT_NE(parent.get(), root.get());            // a new handle ...
    EXPECT_EQ(parent->getImpl(), root->getImpl());  // ... over the same object, of its class
    EXPECT_TRUE(FakeSlide::cast(parent));
    EXPECT_EQ(b->getImpl()->getRefCount(), 1u);  // the tree's handle only

    r->insertChild(a, 0);
    r->insertChild(d, 2);                    // exactly at the end
    r->insertChild(c, *d->makeInterface());  // the sibling, found through another handle
    r->insertChild(e, *stranger);            // no sibling: appended
    EXPECT_EQ(implsOf(root->getChildren()), implsOf({a, b, c, d, e}));
    for (auto const& n : {a, c, d, e}) EXPECT_EQ(parentOf(n), r);
    implOf(other)->insertChild(stranger, 99);
    EXPECT_EQ(implsOf(other->getChildren()), implsOf({stranger}));

    EXPECT_THROW(implOf(other)->appendChild(b), AppendRefused);
    EXPECT_THROW(r->appendChild(b), AppendRefused);
    EXPECT_THROW(implOf(other)->insertChild(b, 0), AppendRefused);
    EXPECT_THROW(implOf(other)->insertChild(b, *stranger), AppendRefused);
    EXPECT_EQ(root->getNChildren(), 5u);
    EXPECT_EQ(other->getNChildren(), 1u);
    EXPECT_EQ(parentOf(b), r);
}

TEST(TreeTest, ReplaceChildTakesAnyReplacementAndAlwaysFreesOld) {
    PPTNodePtr root = slide(), elsewhere = slide(), a = box(), b = box(), moved = box(), outsider = box();
    PPTNodePtr fresh = makeNode<NodeType::Table>();
    implOf(root)->setChildren({a, b});
    implOf(elsewhere)->setChildren({moved, outsider});

    // In place; unlike the inserts, a replacement with a parent is taken and
    // its former parent still lists it.
    implOf(root)->replaceChild(a->makeInterface(), moved);
    EXPECT_EQ(implsOf(root->getChildren()), implsOf({moved, b}));
    EXPECT_EQ(parentOf(moved), implOf(root));
    EXPECT_EQ(elsewhere->getNChildren(), 2u);
    EXPECT_FALSE(a->getParent());

    // An old that is no child: the replacement is appended, old freed anyway.
    implOf(root)->replaceChild(outsider, fresh);
    EXPECT_EQ(implsOf(root->getChildren()), implsOf({moved, b, fresh}));
    EXPECT_FALSE(outsider->getParent());
}

TEST(TreeTest, SetClearAndDestructionManageParents) {
    PPTNodePtr root = slide(), other = slide(), a = box(), b = box();
    implOf(other)->appendChild(b);
    implOf(root)->setChildren({a, b, PPTNodePtr()});  // adopts only the free ones
    EXPECT_EQ(root->getNChildren(), 3u);
    EXPECT_EQ(parentOf(a), implOf(root));
    EXPECT_EQ(parentOf(b), implOf(other));

    // Skips the empty entry and frees every listed child, even one whose
    // parent is elsewhere, so no child is left pointing at a dead parent.
    implOf(root)->clearChildren();
    EXPECT_EQ(root->getNChildren(), 0u);
    EXPECT_FALSE(a->getParent() || b->getParent());

    // The tree keeps its children alive; a child doesn't keep its parent.
    int const alive = FakeTextBoxImpl::alive;
    implOf(root)->appendChild(a);
    implOf(root)->appendChild(box());
    EXPECT_EQ(FakeTextBoxImpl::alive, alive + 1);
    root.reset();
    EXPECT_EQ(FakeTextBoxImpl::alive, alive);
    EXPECT_FALSE(a->getParent());
    EXPECT_EQ(a->getImpl()->getRefCount(), 1u);
}

TEST(TreeTest, CloneIsDeepAndFree) {
    PPTNodePtr parent = slide(), root = slide(u"s"), child = box(u"box");
    implOf(parent)->appendChild(root);
    implOf(root)->appendChild(child);
    implOf(child)->appendChild(makeNode<NodeType::Paragraph>());

    PPTNodePtr copy = root->clone();
    EXPECT_EQ(copy->getImpl()->getRefCount(), 1u);
    EXPECT_FALSE(copy->getParent());
    ASSERT_EQ(copy->getNChildren(), 1u);
    PPTNodePtr childCopy = copy->getChildren()[0];
    EXPECT_NE(childCopy->getImpl(), child->getImpl());
    EXPECT_EQ(parentOf(childCopy), implOf(copy));
    EXPECT_EQ(parentOf(childCopy->getChildren()[0]), implOf(childCopy));
    EXPECT_EQ(childCopy->getImpl()->getRefCount(), 1u);
    EXPECT_EQ(parentOf(child->getChildren()[0]), implOf(child));  // the original keeps its own
}

TEST(TreeTest, FindNodesMatchesShapeKindsAndEntersOnlyGroupsAndSlides) {
    PPTNodePtr root = makeNode<NodeType::Presentation>(u"a"), s1 = slide(u"a"), s2 = slide(u"x");
    PPTNodePtr hit = box(u"a"), table = makeNode<NodeType::Table>(u"a"),
               group = makeNode<NodeType::Group>(u"g");
    PPTNodePtr picture = makeNode<NodeType::Picture>(u"a"),
               content = makeNode<NodeType::ContentPlaceholder>(u"a");
    implOf(root)->setChildren({s1, s2});
    implOf(hit)->appendChild(makeNode<NodeType::Paragraph>(u"a"));  // a hit is not entered
    implOf(table)->appendChild(box(u"a"));                          // nor is a table
    implOf(group)->appendChild(picture);
    implOf(s1)->setChildren({hit, table, group, makeNode<NodeType::Shape>(u"a"),
                             makeNode<NodeType::Text>(u"a"), makeNode<NodeType::TableRow>(u"a"),
                             makeNode<NodeType::ColSpec>(u"a"), makeNode<NodeType::ExternalLink>(u"a"),
                             makeNode<static_cast<NodeType>(42)>(u"a"),
                             makeNode<NodeType::TextBoxPlaceholder>(u"A")});
    implOf(s2)->setChildren({PPTNodePtr(), content, hit});  // the same box a second time

    PPTNodeList result;
    PPTNodeImpl::findNodes(u"a", root, result);
    EXPECT_EQ(implsOf(result), implsOf({s1, hit, table, picture, content, hit}));

    result.clear();
    PPTNodeImpl::findNodes(u"g", group, result);  // the root itself is no hit
    EXPECT_TRUE(result.empty());
    implOf(picture)->setName(u"");
    PPTNodeImpl::findNodes(u"", root, result);  // an empty name is a name
    PPTNodeImpl::findNodes(u"a", PPTNodePtr(), result);
    EXPECT_EQ(implsOf(result), implsOf({picture}));
}

}  // namespace
