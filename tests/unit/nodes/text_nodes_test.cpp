// Runs, links and paragraphs as script code builds them: what a run keeps of
// a number, which object a paragraph adopts, and what a clone owns.
#include <functional>

#include <gtest/gtest.h>

#include "nodes/paragraph.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {
namespace {

std::string errorOf(std::function<void()> const& f) {
    try {
        f();
    } catch (foundation::core::except::IMsgIDException const& e) {
        return e.identifier();
    }
    return "";
}

TEST(TextNodes, NumberAndTextContent) {
    Text number(2.5);
    EXPECT_TRUE(number.isNumContent());
    EXPECT_EQ(2.5, number.getNumContent());
    EXPECT_EQ(num2str(2.5), number.getTextContent());
    // Text displaces the number: the value read back comes from the text,
    // never the stale 2.5.
    number.setTextContent(u"7");
    EXPECT_FALSE(number.isNumContent());
    EXPECT_EQ(7.0, number.getNumContent());
    number.setTextContent(u"abc");
    EXPECT_EQ(str2double(u"abc"), number.getNumContent());
}

TEST(TextNodes, LinksAreRunsButNotOfTypeText) {
    u16string const odd = u"file:///C:\\My Docs/r\u00e9sum\u00e9.pdf#p 2";
    PPTNodePtr link = ExternalLink(odd, u"CV").makeInterface();
    EXPECT_FALSE(link->isA(NodeType::Text));
    ASSERT_TRUE(Text::cast(link));
    EXPECT_EQ(u"CV", Text::cast(link)->getTextContent());
    EXPECT_EQ(odd, ExternalLink::cast(link)->getTarget());  // verbatim
    EXPECT_FALSE(ExternalLink::cast(Text().makeInterface()));
}

TEST(TextNodes, ParagraphConstructorsAndAppend) {
    Paragraph numbered(2.0, 3u);
    EXPECT_EQ(1u, numbered.getNChildren());
    EXPECT_EQ(3u, numbered.getLevel().getValue());
    // An unsigned int alone is a level; a double is a run.
    EXPECT_EQ(0u, Paragraph(3u).getNChildren());
    EXPECT_FALSE(Paragraph(3.0).getLevel().isSet());

    Text run(u"a");
    Paragraph paragraph(run);
    EXPECT_EQ(run.getImpl(), paragraph.getChildren()[0]->getImpl());
    // The same run can't go into a second paragraph; that one isn't made.
    EXPECT_EQ("deckforge:ppt_error:failedToAppendChild", errorOf([&] { Paragraph second(run, 2u); }));

    // append gives back the very object, so changes through it show.
    Text appended = paragraph.append(u"b");
    appended.setTextContent(u"B");
    ExternalLink link = paragraph.append(ExternalLink(u"mailto:a@b.c", u"mail"));
    link.setTarget(u"mailto:x@y.z");
    EXPECT_EQ(u"B", Text::cast(paragraph.getChildren()[1])->getTextContent());
    EXPECT_EQ(u"mailto:x@y.z", ExternalLink::cast(paragraph.getChildren()[2])->getTarget());
    EXPECT_EQ("deckforge:ppt_error:failedToAppendChild", errorOf([&] { paragraph.append(appended); }));
    EXPECT_EQ(3u, paragraph.getNChildren());
}

TEST(TextNodes, CloneOwnsCopiesOfItsRuns) {
    Paragraph paragraph(u"one", 2u);
    paragraph.append(ExternalLink(u"http://example.com", u"two"));
    Formats style;
    style.appendFormat(boost::make_shared<Format>());
    paragraph.setStyle(style);

    auto copy = Paragraph::cast(paragraph.clone());
    ASSERT_TRUE(copy);
    EXPECT_EQ(2u, copy->getLevel().getValue());
    // Formats are shared, runs are new objects that belong to the copy.
    EXPECT_EQ(paragraph.getStyle().getFormat(FormatTypeNone), copy->getStyle().getFormat(FormatTypeNone));
    ASSERT_EQ(2u, copy->getNChildren());
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_NE(paragraph.getChildren()[i]->getImpl(), copy->getChildren()[i]->getImpl());
        EXPECT_EQ(copy->getImpl(), copy->getChildren()[i]->getParent()->getImpl());
    }
    EXPECT_EQ(u"http://example.com", ExternalLink::cast(copy->getChildren()[1])->getTarget());
    EXPECT_TRUE(Text::cast(Text(4.5).clone())->isNumContent());
    EXPECT_FALSE(Paragraph::cast(Paragraph().clone())->getLevel().isSet());
}

}  // namespace
}  // namespace ppt
}  // namespace deckforge
