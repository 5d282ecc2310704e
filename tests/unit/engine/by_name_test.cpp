// Text and paragraphs given by name to a presentation or to one slide.
#include "engine/presentation.h"
#include "engine/presentation_fixture.h"
#include "nodes/table_placeholder.h"
#include "nodes/text_box.h"

namespace deckforge {
namespace test {
namespace {

using ppt::Paragraph;
using ppt::PPTNodePtr;

// The first run of each paragraph of a box, joined by "|".
std::string textOf(PPTNodePtr const& box) {
    std::string text;
    for (auto const& paragraph : box->getChildren())
        text += (text.empty() ? "" : "|") +
                toUtf8(ppt::Text::cast(paragraph->getChildren().at(0))->getTextContent());
    return text;
}

TEST_F(PresentationTest, EveryBoxOfTheNameGetsTheTextAndOneParagraphGoesToTheFirst) {
    ppt::Presentation p(out("deck.pptx"));
    ppt::Slide first = p.add(u"Title and Content");
    ppt::Slide second = p.add(u"Title and Content");
    first.add(ppt::TextBox(u"Title"));
    // A table placeholder takes no text by name.
    second.slideImpl()->appendChild((new ppt::TablePlaceholderImpl(u"Title", u"", u""))->makeInterface());

    p.replace(u"Title", u"Sales");
    second.replace(u"Title", u"Costs");
    second.add(u"Title", u"and more");
    ppt::PPTNodeList const titles = p.find(u"Title");
    ASSERT_EQ(4u, titles.size());
    EXPECT_EQ((std::vector<std::string>{"Sales", "Sales", "Costs|and more", ""}),
              (std::vector<std::string>{textOf(titles[0]), textOf(titles[1]), textOf(titles[2]),
                                        textOf(titles[3])}));

    Paragraph added(u"Added");
    p.add(u"Content", added);
    EXPECT_EQ(added.getImpl(), first.getChildren().at(1)->getChildren().at(0)->getImpl());
    EXPECT_EQ("Added", textOf(second.getChildren().at(1)));
    EXPECT_NE(added.getImpl(), second.getChildren().at(1)->getChildren().at(0)->getImpl());
    // Once in a tree, every hit takes a copy.
    p.replace(u"Content", added);
    EXPECT_EQ(first.getChildren().at(1)->getImpl(), added.nodeImpl()->getParent());
    EXPECT_NE(added.getImpl(), first.getChildren().at(1)->getChildren().at(0)->getImpl());

    EXPECT_NO_THROW(p.replace(u"No such name", u"text"));
    EXPECT_NO_THROW(first.add(u"No such name", Paragraph(u"x")));
}

// Google Slides names its placeholders "Google Shape;18;p4" and gives its
// "Title and Body" layouts body placeholders: roles reach them, in the
// layout's order, and a shape of the name wins over the role.
TEST_F(PresentationTest, RolesReachPlaceholdersThatNoShapeNames) {
    auto const source = realTemplates() / "gslides_074.pptx";
    if (!std::filesystem::exists(source)) GTEST_SKIP() << source;
    ppt::Presentation p(out("roles.pptx"), source.u16string());
    ppt::Slide two = p.add(u"TITLE_AND_TWO_COLUMNS");
    ASSERT_EQ(1u, two.find(u"Content 2").size());
    EXPECT_EQ(two.getChildren().at(2)->getImpl(), two.find(u"Content 2")[0]->getImpl());
    EXPECT_EQ(two.getChildren().at(1)->getImpl(), two.find(u"Content")[0]->getImpl());
    EXPECT_TRUE(two.find(u"Content 3").empty() && two.find(u"content").empty() &&
                two.find(u"Content 02").empty());
    two.replace(u"Title", u"Heading");
    EXPECT_EQ("Heading", textOf(two.getChildren().at(0)));
    // Every slide's title, the template's own too, until a shape is named so.
    EXPECT_EQ(2u, p.find(u"Title").size());
    two.add(ppt::TextBox(u"Title"));
    EXPECT_EQ(1u, p.find(u"Title").size());
    EXPECT_EQ(1u, two.find(u"Title").size());

    std::vector<ppt::LayoutDescription> const layouts = p.describe();
    ASSERT_EQ(11u, layouts.size());
    ppt::LayoutDescription const& described = layouts[3];
    EXPECT_EQ(u"TITLE_AND_TWO_COLUMNS", described.layout);
    ASSERT_EQ(4u, described.placeholders.size());
    ppt::PlaceholderDescription const& right = described.placeholders[2];
    EXPECT_EQ((std::vector<u16string>{u"Google Shape;23;p5", u"Content", u"13.42cm", u"3.2cm", u"11.11cm"}),
              (std::vector<u16string>{right.name, right.role, right.x, right.y, right.width}));
    EXPECT_EQ(2u, right.index);
    EXPECT_EQ(u"SlideNumber", described.placeholders[3].role);
}

}  // namespace
}  // namespace test
}  // namespace deckforge
