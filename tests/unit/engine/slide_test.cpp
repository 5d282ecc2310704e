#include "engine/presentation.h"
#include "engine/presentation_fixture.h"
#include "nodes/group.h"
#include "nodes/text_box.h"
#include "template/template_records.h"

namespace deckforge {
namespace test {
namespace {

using ppt::NodeType;
using ppt::Presentation;
using ppt::Slide;
namespace fs = std::filesystem;

std::vector<NodeType> typesOf(ppt::PPTNodeList const& nodes) {
    std::vector<NodeType> types;
    for (auto const& node : nodes) types.push_back(node->getNodeType());
    return types;
}

std::vector<u16string> namesOf(ppt::PPTNodeList const& nodes) {
    std::vector<u16string> names;
    for (auto const& node : nodes) names.push_back(node->getName());
    return names;
}

TEST_F(PresentationTest, ANewSlideHasANodeForEachPlaceholderOfItsLayout) {
    Presentation p(out("deck.pptx"));
    Slide slide = p.add(u"Title and Content");
    EXPECT_EQ(slide.getLayoutName(), u"Title and Content");
    EXPECT_EQ(slide.getSlideMasterName(), u"Deckforge");
    EXPECT_EQ(slide.getName(), u"");
    EXPECT_EQ(typesOf(slide.getChildren()),
              (std::vector<NodeType>{NodeType::TextBoxPlaceholder, NodeType::ContentPlaceholder}));
    EXPECT_EQ(namesOf(slide.getChildren()), (std::vector<u16string>{u"Title", u"Content"}));
    auto const& records = *slide.slideImpl()->getTemplateSlide()->shapes;
    auto title = ppt::Shape::cast(slide.getChildren()[0]);
    EXPECT_EQ(title->shapeImpl()->getTemplateShape(), records[0]);
    EXPECT_FALSE(title->getX().isSet());

    EXPECT_EQ(slide.find(u"Content").size(), 1u);
    EXPECT_EQ(p.find(u"Content").size(), 1u);
    p.add(u"Title and Content");
    EXPECT_EQ(p.find(u"Content").size(), 2u);

    // A clone stands for the same document and part.
    auto copy = Slide::cast(slide.clone());
    EXPECT_EQ(copy->slideImpl()->getTemplateSlide(), slide.slideImpl()->getTemplateSlide());
    EXPECT_EQ(copy->getLayoutName(), u"Title and Content");
    EXPECT_EQ(copy->getNChildren(), 2u);
}

TEST_F(PresentationTest, SlidesGoWhereTheyAreAsked) {
    Presentation p(out("deck.pptx"));
    Slide first = p.add(u"Title Slide");
    Slide last = p.add(u"Blank", u"Deckforge");
    Slide second = p.add(u"Title Only", last);
    Slide front = p.add(u"Section Header", 0ul);
    Slide beyond = p.add(u"Two Content", u"Deckforge", 99ul);
    Slide stranger;
    Slide appended = p.add(u"Comparison", u"Deckforge", stranger);
    std::vector<ppt::PPTObjectImpl*> expected{front.getImpl(), first.getImpl(),  second.getImpl(),
                                              last.getImpl(),  beyond.getImpl(), appended.getImpl()};
    std::vector<ppt::PPTObjectImpl*> actual;
    for (auto const& child : p.getChildren()) actual.push_back(child->getImpl());
    EXPECT_EQ(actual, expected);
    EXPECT_EQ(first.getParent()->getImpl(), p.getImpl());

    EXPECT_EQ(errorOf([&] { p.add(u"No Such Layout"); }), "deckforge:ppt_error:invalidLayoutName");
    EXPECT_EQ(errorOf([&] { p.add(u"Blank", u"No Such Master", 0ul); }),
              "deckforge:ppt_error:invalidLayoutOrSlideMasterName");
    EXPECT_EQ(p.getNChildren(), expected.size());
}

TEST(Slide, AFreeSlideTakesAnObjectThatNoOtherTreeHolds) {
    Slide free, other;
    ppt::TextBox box(u"Note");
    EXPECT_EQ(free.add(box).getImpl(), box.getImpl());
    EXPECT_EQ(free.find(u"Note").size(), 1u);
    EXPECT_EQ(errorOf([&] { other.add(box); }), "deckforge:ppt_error:failedToAppendChild");
    EXPECT_EQ(free.getLayoutName(), u"");
}

TEST_F(PresentationTest, AGroupOfATemplateSlideKeepsItsMembers) {
    std::string const group =
        "<p:grpSp><p:nvGrpSpPr><p:cNvPr id=\"10\" name=\"Pair\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr>"
        "<p:grpSpPr/>"
        "<p:sp><p:nvSpPr><p:cNvPr id=\"11\" name=\"Inner\"/><p:cNvSpPr txBox=\"1\"/><p:nvPr/></p:nvSpPr>"
        "<p:spPr/><p:txBody><a:bodyPr/><a:lstStyle/><a:p/></p:txBody></p:sp>"
        "<p:cxnSp><p:nvCxnSpPr><p:cNvPr id=\"12\" name=\"Line\"/><p:cNvCxnSpPr/><p:nvPr/></p:nvCxnSpPr>"
        "<p:spPr/></p:cxnSp></p:grpSp>";
    fs::path const source = realTemplates() / "ppt2010_presentation.potx";
    std::string xml = readPart(source, u"/ppt/slides/slide1.xml");
    xml.insert(xml.find("</p:spTree>"), group);
    editPackage(source, out("grouped.potx"), [&](ppt::OPCPartWriter& w) {
        auto stream = w.getPart(u"/ppt/slides/slide1.xml").getOutputStream();
        stream->write(xml.data(), xml.size());
        stream->close();
    });

    Presentation p(out("deck.pptx"), out("grouped.potx"));
    p.open();
    auto const& shapes = p.getChildren()[0]->getChildren();
    ASSERT_EQ(typesOf(shapes), (std::vector<NodeType>{NodeType::TextBoxPlaceholder,
                                                      NodeType::TextBoxPlaceholder, NodeType::Group}));
    EXPECT_EQ(namesOf(shapes[2]->getChildren()), std::vector<u16string>{u"Inner"});
    EXPECT_EQ(p.find(u"Inner").size(), 1u);
    EXPECT_EQ(ppt::Group::cast(shapes[2])->getName(), u"Pair");
}

}  // namespace
}  // namespace test
}  // namespace deckforge
