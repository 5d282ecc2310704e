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

}  // namespace
}  // namespace test
}  // namespace deckforge
