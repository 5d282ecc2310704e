// What boxes and placeholders hold after add and replace, and how a table or
// picture takes a placeholder's place on its slide.
#include <gtest/gtest.h>

#include "engine/slide.h"
#include "nodes/content_placeholder.h"
#include "nodes/group.h"
#include "nodes/text_box.h"
#include "platform/msg_ids.h"
#include "template/template_records.h"

namespace deckforge {
namespace ppt {
namespace {

using foundation::core::except::Exception;
using Refused = Exception<ppt_error::placeholderWasReplacedByObject>;

// Each paragraph of the box as "text" or "text@level".
std::vector<std::string> outline(PPTNode const& box) {
    std::vector<std::string> lines;
    for (auto const& child : box.getChildren()) {
        auto paragraph = Paragraph::cast(child);
        std::string line;
        for (auto const& run : paragraph->getChildren()) line += toUtf8(Text::cast(run)->getTextContent());
        if (paragraph->getLevel().isSet()) line += "@" + std::to_string(paragraph->getLevel().getValue());
        lines.push_back(line);
    }
    return lines;
}

TEST(TextBoxContent, AddAppendsReplaceTakesOverAndOnlyReplaceCopies) {
    TextBox box;
    box.add(u"one");
    Paragraph kept = box.replace(u"two");
    box.add(Paragraph(u"three"));
    EXPECT_EQ((std::vector<std::string>{"two", "three"}), outline(box));
    EXPECT_TRUE(box.shapeImpl()->isReplaced());

    TextBox other;
    EXPECT_THROW(other.add(kept), Exception<ppt_error::failedToAppendChild>);
    Paragraph copy = other.replace(kept);
    EXPECT_NE(kept.getImpl(), copy.getImpl());
    EXPECT_EQ(box.getImpl(), kept.nodeImpl()->getParent());
    // Even the box's own paragraph comes back as a copy, the only child.
    box.replace(kept);
    EXPECT_EQ((std::vector<std::string>{"two"}), outline(box));
    EXPECT_NE(kept.getImpl(), box.getChildren().at(0)->getImpl());
}

TEST(TextBoxContent, NestedListsBecomeLevelledParagraphs) {
    TextBox box, elsewhere;
    Paragraph placed = elsewhere.add(u"placed");
    box.add(ListItems{u"a", ListItems{u"b", ListItems{u"c"}}, 2.5, ListItem()});
    // Own levels count at the top only; one that stands elsewhere comes as a copy.
    box.add(ListItems{Paragraph(u"own", 5u), ListItem(ListItems{Paragraph(u"deep", 5u), placed})});
    EXPECT_EQ((std::vector<std::string>{"a", "b@2", "c@3", "2.5", "", "own@5", "deep@2", "placed@2"}),
              outline(box));
    EXPECT_EQ(elsewhere.getImpl(), placed.nodeImpl()->getParent());
    EXPECT_FALSE(box.shapeImpl()->isReplaced());
    box.replace(ListItems{});
    EXPECT_TRUE(box.getChildren().empty());
    EXPECT_TRUE(box.shapeImpl()->isReplaced());
}

TEST(TextBoxContent, ATableTakesThePlaceholdersPlaceAndTheGuardsHoldAfterwards) {
    Slide slide;
    slide.add(TextBox(u"Before"));
    auto* impl = new ContentPlaceholderImpl(u"Content 2", u"77", u"");
    auto placeholder = boost::make_shared<ContentPlaceholder>(impl);
    auto templateShape = boost::make_shared<TemplateShape>();
    impl->setTemplateShape(templateShape);
    slide.slideImpl()->appendChild(placeholder);
    slide.add(TextBox(u"After"));
    placeholder->setX(u"1in");
    placeholder->setWidth(u"3in");

    Table given(3);
    given.setName(u"Given");
    given.setWidth(u"2in");
    Table result = placeholder->replace(given);
    // At the same index, with the placeholder's identity and the table's
    // content and own geometry; the given table is only read.
    EXPECT_EQ(result.getImpl(), slide.getChildren().at(1)->getImpl());
    EXPECT_EQ(result.getImpl(), slide.find(u"Content 2").at(0)->getImpl());
    EXPECT_EQ(3u, result.getNCols());
    EXPECT_EQ(templateShape, result.shapeImpl()->getTemplateShape());
    EXPECT_EQ(u":77", result.getId().substr(result.getId().size() - 3));
    EXPECT_EQ(914400, result.getX().getValue().getEMUNumber());
    EXPECT_EQ(2 * 914400, result.getWidth().getValue().getEMUNumber());
    EXPECT_FALSE(given.nodeImpl()->getParent());

    EXPECT_THROW(placeholder->replace(given), Refused);
    EXPECT_THROW(placeholder->replace(Picture()), Refused);
    EXPECT_THROW(placeholder->add(u"x"), Refused);
    EXPECT_THROW(placeholder->replace(Paragraph(u"x")), Refused);
    // A list stops at its first paragraph.
    EXPECT_THROW(placeholder->add(ListItems{u"a", u"b"}), Refused);
    EXPECT_TRUE(placeholder->getChildren().empty());
}

TEST(TextBoxContent, InAGroupAPlaceholderKeepsItsPlaceAndTakesText) {
    Group group(u"Group");
    PPTNodePtr member = (new ContentPlaceholderImpl(u"Member", u"", u""))->makeInterface();
    group.groupImpl()->appendChild(member);
    Table given(2);
    EXPECT_EQ(given.getImpl(), ContentPlaceholder::cast(member)->replace(given).getImpl());
    EXPECT_EQ(member->getImpl(), group.getChildren().at(0)->getImpl());
    ContentPlaceholder::cast(member)->add(u"still a box");
    EXPECT_EQ(1u, member->getNChildren());
}

}  // namespace
}  // namespace ppt
}  // namespace deckforge
