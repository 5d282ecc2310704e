// The shape classes as the rest of the system sees them: the casts that make
// a placeholder also a box, and what a copy and a template tie keep.
#include <gtest/gtest.h>

#include "nodes/body_placeholder.h"
#include "nodes/content_placeholder.h"
#include "nodes/group.h"
#include "nodes/picture.h"
#include "nodes/picture_placeholder.h"
#include "nodes/table.h"
#include "nodes/table_placeholder.h"
#include "nodes/text_box.h"
#include "nodes/text_box_placeholder.h"
#include "platform/msg_ids.h"
#include "template/template_records.h"

namespace deckforge {
namespace ppt {
namespace {

// A copy must be of the same concrete class, or its handle would cast and
// reach the script side as another class.
TEST(ShapeClasses, ClonesKeepTheirClass) {
    for (PPTNodePtr const& node :
         {BodyPlaceholder().makeInterface(), PicturePlaceholder().makeInterface(),
          TablePlaceholder().makeInterface(), ContentPlaceholder().makeInterface(), Group().makeInterface(),
          Picture().makeInterface(), Table().makeInterface(), TextBox().makeInterface()}) {
        PPTNodePtr copy = node->clone();
        EXPECT_EQ(node->getNodeType(), copy->getNodeType());
        EXPECT_STREQ(node->getFullyQualifiedHobjTypeName(), copy->getFullyQualifiedHobjTypeName());
    }
}

TEST(ShapeClasses, CastFollowsTheHandleHierarchy) {
    PPTNodePtr content = ContentPlaceholder().makeInterface();
    EXPECT_TRUE(PicturePlaceholder::cast(content));
    EXPECT_TRUE(BodyPlaceholder::cast(content));
    EXPECT_TRUE(BaseTextBox::cast(content));
    EXPECT_TRUE(Shape::cast(content));
    EXPECT_FALSE(TablePlaceholder::cast(content));
    EXPECT_FALSE(TextBox::cast(content));
    EXPECT_FALSE(Picture::cast(Table().makeInterface()));
    EXPECT_FALSE(Shape::cast(PPTNodePtr()));
}

TEST(ShapeClasses, TemplateUidExtendsTheIdAndCopiesKeepTheTie) {
    auto* impl = new ContentPlaceholderImpl(u"Content 2", u"17", u"obj");
    ContentPlaceholder handle(impl);
    u16string const id = handle.getId();
    ASSERT_GE(id.size(), 3u);
    EXPECT_EQ(u":17", id.substr(id.size() - 3));
    EXPECT_EQ(std::u16string::npos, id.find(u"::"));
    EXPECT_EQ(u"Content 2", handle.getName());
    EXPECT_TRUE(impl->getNameAttribute().isSet());
    EXPECT_EQ(u"17", impl->getTemplateUid());
    EXPECT_EQ(u"obj", impl->getPlaceholderType());
    // Born unset, so that the layout's geometry is inherited.
    EXPECT_FALSE(impl->getX().isSet() || impl->getY().isSet() || impl->getWidth().isSet() ||
                 impl->getHeight().isSet());

    auto templateShape = boost::make_shared<TemplateShape>();
    impl->setTemplateShape(templateShape);
    impl->setWidth(u"1in");
    impl->setReplaced(true);
    auto copy = ContentPlaceholder::cast(handle.clone());
    auto* copied = copy->contentPlaceholderImpl();
    EXPECT_NE(id, copy->getId());
    EXPECT_EQ(u"Content 2", copy->getName());
    EXPECT_EQ(u"obj", copied->getPlaceholderType());
    EXPECT_EQ(templateShape, copied->getTemplateShape());
    EXPECT_TRUE(copied->isReplaced());
    ASSERT_TRUE(copied->getWidth().isSet());
    EXPECT_EQ(914400, copied->getWidth().getValue().getEMUNumber());

    // Without a template uid the Id stays a plain number.
    EXPECT_EQ(std::u16string::npos, TextBox(u"Free").getId().find(u':'));
}

TEST(ShapeClasses, GeometrySettersParseFirstAndUnsetQuietly) {
    TextBox box(u"Box");
    box.setX(u"2in");
    EXPECT_THROW(box.setX(u"2 parsecs"),
                 foundation::core::except::Exception<dom_error::invalidDimensionUnits>);
    ASSERT_TRUE(box.getX().isSet());
    EXPECT_EQ(1828800, box.getX().getValue().getEMUNumber());
    box.unsetWidth();
    EXPECT_FALSE(box.getWidth().isSet());
    box.unsetX();
    EXPECT_FALSE(box.getX().isSet());
}

TEST(ShapeClasses, PlaceholderGuardsNeedAParent) {
    BodyPlaceholder loose;
    EXPECT_THROW(loose.textBoxPlaceholderImpl()->addGuard(),
                 foundation::core::except::Exception<ppt_error::placeholderWasReplacedByObject>);
    Group group(u"G");
    PPTNodePtr member = BodyPlaceholder().makeInterface();
    group.groupImpl()->appendChild(member);
    EXPECT_EQ(group.getImpl(), BodyPlaceholder::cast(member)->textBoxPlaceholderImpl()->replaceGuard());
}

}  // namespace
}  // namespace ppt
}  // namespace deckforge
