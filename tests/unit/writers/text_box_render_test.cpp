// New shapes take ids that no shape of their slide has.
#include <gtest/gtest.h>

#include "nodes/text_box.h"
#include "writers/writer_fixture.h"

namespace deckforge {
namespace test {
namespace {

// Every p:cNvPr id of the slide, in document order.
std::vector<u16string> shapeIds(std::string const& xml) {
    std::vector<u16string> ids;
    std::string const tag = "<p:cNvPr id=\"";
    for (auto at = xml.find(tag); at != std::string::npos; at = xml.find(tag, at + 1)) {
        auto const begin = at + tag.size();
        ids.push_back(toString(xml.substr(begin, xml.find('"', begin) - begin)));
    }
    return ids;
}

TEST(TextBoxRendering, NewShapesTakeIdsAboveEveryIdOfTheirSlide) {
    ScratchDir dir;
    deckTemplate().write(dir / "template.pptx");
    RenderedDeck deck(dir / "template.pptx", dir / "out.pptx", [](ppt::PresentationModel& model) {
        std::vector<PPTNodePtr> slides{templateSlide(model, 0), newSlide(model, u"Title and Content")};
        for (auto const& slide : slides)
            for (char16_t const* name : {u"First", u"Second"})
                slide->nodeImpl()->appendChild(ppt::TextBox(name).makeInterface());
        return slides;
    });
    // The template slide's highest id is 7; the new slide keeps the footer's
    // 5, while the counter of its layout would have started at 3, the id of
    // the content placeholder.
    std::vector<std::pair<u16string, std::vector<u16string>>> const expected{
        {u"/ppt/slides/slide1.xml", {u"1", u"2", u"7", u"8", u"9"}},
        {u"/ppt/slides/slide2.xml", {u"1", u"2", u"3", u"5", u"6", u"7"}}};
    for (auto const& [part, ids] : expected) {
        EXPECT_EQ(ids, shapeIds(readPart(deck.out, part))) << toUtf8(part);
    }
}

}  // namespace
}  // namespace test
}  // namespace deckforge
