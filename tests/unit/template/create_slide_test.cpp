// Shape classification, and the document of a new slide cloned from a layout.
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "template_fixture.h"

namespace deckforge {
namespace test {
namespace {

using ppt::ShapeKind;
using xercesc::DOMElement;

std::string spWithPh(std::string const& ph) {
    return "<p:sp><p:nvSpPr><p:cNvPr id=\"2\" name=\"x\"/><p:cNvSpPr/><p:nvPr>" + ph +
           "</p:nvPr></p:nvSpPr></p:sp>";
}

TEST(ClassifyShape, FollowsElementNameAndPlaceholderType) {
    std::vector<std::pair<std::string, ShapeKind>> const cases = {
        {spWithPh(""), ShapeKind::TextBox},
        {"<p:sp><p:ph type=\"title\"/></p:sp>", ShapeKind::TextBox},  // p:ph in the wrong place
        {spWithPh("<p:ph idx=\"1\"/>"), ShapeKind::ContentPlaceholder},
        {spWithPh("<p:ph type=\"\"/>"), ShapeKind::ContentPlaceholder},
        {spWithPh("<p:ph type=\"body\"/>"), ShapeKind::BodyPlaceholder},
        {spWithPh("<p:ph type=\"ctrTitle\"/>"), ShapeKind::TextBoxPlaceholder},
        {spWithPh("<p:ph type=\"subTitle\"/>"), ShapeKind::TextBoxPlaceholder},
        {spWithPh("<p:ph type=\"title\"/>"), ShapeKind::TextBoxPlaceholder},
        {spWithPh("<p:ph type=\"tbl\"/>"), ShapeKind::TablePlaceholder},
        {spWithPh("<p:ph type=\"pic\"/>"), ShapeKind::PicturePlaceholder},
        {spWithPh("<p:ph type=\"clipArt\"/>"), ShapeKind::PicturePlaceholder},
        {spWithPh("<p:ph type=\"obj\"/>"), ShapeKind::None},
        {spWithPh("<p:ph type=\"dt\"/>"), ShapeKind::None},
        {spWithPh("<p:ph type=\"sldNum\"/>"), ShapeKind::None},
        {spWithPh("<p:ph type=\"Title\"/>"), ShapeKind::None},
        {"<p:pic><p:nvPicPr><p:nvPr><p:ph type=\"pic\"/></p:nvPr></p:nvPicPr></p:pic>", ShapeKind::Picture},
        {"<p:grpSp/>", ShapeKind::Group},
        {"<p:graphicFrame><a:graphic><a:graphicData><a:tbl/></a:graphicData></a:graphic></p:graphicFrame>",
         ShapeKind::Table},
        {"<p:graphicFrame><a:graphic><a:tbl/></a:graphic></p:graphicFrame>", ShapeKind::None},
        {"<p:graphicFrame><a:graphic><a:graphicData><c:chart xmlns:c=\"urn:c\"/></a:graphicData></a:graphic>"
         "</p:graphicFrame>",
         ShapeKind::None},
        {"<p:cxnSp/>", ShapeKind::None},
        {"<sp><p:nvSpPr><p:nvPr/></p:nvSpPr></sp>", ShapeKind::None},
    };
    std::string xml = "<root" + kNamespaces + ">";
    for (auto const& c : cases) xml += c.first;
    xml += "</root>";
    xercesc::DOMLSParser* parser = opc::model::XercesHelper::createParser();
    xercesc::DOMDocument* doc = parseXml(parser, xml);
    std::size_t i = 0;
    for (DOMElement* e = doc->getDocumentElement()->getFirstElementChild(); e;
         e = e->getNextElementSibling(), ++i) {
        ASSERT_LT(i, cases.size());
        EXPECT_EQ(PresentationModel::classifyShape(e), cases[i].second) << cases[i].first;
    }
    EXPECT_EQ(i, cases.size());
    EXPECT_EQ(PresentationModel::classifyShape(nullptr), ShapeKind::None);
    parser->release();
}

class CreateSlide : public ::testing::Test {
protected:
    void SetUp() override {
        std::string const title =
            "<p:sp><p:nvSpPr><p:cNvPr id=\"2\" name=\"Title 1\"/><p:cNvSpPr/><p:nvPr><p:ph "
            "type=\"title\"/></p:nvPr>"
            "</p:nvSpPr><p:spPr><a:xfrm><a:off x=\"1\" y=\"2\"/><a:ext cx=\"3\" cy=\"4\"/></a:xfrm>"
            "<a:prstGeom prst=\"rect\"/></p:spPr><p:txBody><a:bodyPr anchor=\"b\"/><a:lstStyle> <a:lvl1pPr/> "
            "</a:lstStyle><a:p><a:r><a:t>Click</a:t></a:r></a:p><a:p/></p:txBody></p:sp>";
        std::string const date =
            "<p:sp><p:nvSpPr><p:cNvPr id=\"4\" name=\"Date 3\"/><p:cNvSpPr/><p:nvPr><p:ph "
            "type=\"dt\"/></p:nvPr>"
            "</p:nvSpPr><p:spPr><a:xfrm/></p:spPr><p:txBody><a:bodyPr/><a:p><a:r><a:t>today</a:t></a:r></a:p>"
            "</p:txBody></p:sp>";
        std::string const fixed =
            "<p:sp><p:nvSpPr><p:cNvPr id=\"9\" name=\"Logo text\"/><p:cNvSpPr/><p:nvPr/></p:nvSpPr></p:sp>"
            "<p:pic><p:nvPicPr><p:cNvPr id=\"10\" name=\"Logo\"/></p:nvPicPr></p:pic>"
            "<p:cxnSp><p:nvCxnSpPr><p:cNvPr id=\"11\" name=\"Line\"/></p:nvCxnSpPr></p:cxnSp>"
            "<p:grpSp><p:nvGrpSpPr><p:cNvPr id=\"12\" name=\"Group\"/></p:nvGrpSpPr></p:grpSp>"
            "<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id=\"13\" name=\"Chart\"/></p:nvGraphicFramePr>"
            "<a:graphic><a:graphicData><c:chart "
            "xmlns:c=\"urn:c\"/></a:graphicData></a:graphic></p:graphicFrame>"
            "<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id=\"14\" name=\"Grid\"/></p:nvGraphicFramePr>"
            "<a:graphic><a:graphicData><a:tbl/></a:graphicData></a:graphic></p:graphicFrame>";
        PackageRecipe recipe = makeTemplate({{u"/ppt/slideMasters/slideMaster1.xml", "Theme", {kLayout}}}, {});
        recipe.part(kLayout,
                  layoutXml(
                      "Title Slide", title + placeholderXml("5", "Content 2", " idx=\"1\"") + date + fixed,
                      " preserve=\"1\" type=\"title\" showMasterSp=\"0\" userDrawn=\"1\" matchingName=\"x\" showMasterPhAnim=\"0\"",
                      "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr><p:transition/><p:hf sldNum=\"0\"/>"))
            .rel(kLayout, u"rIdM", u"slideMaster", u"/ppt/slideMasters/slideMaster1.xml");
        recipe.write(dir / "t.pptx");
        loaded = std::make_unique<LoadedModel>(dir / "t.pptx");
        ASSERT_TRUE(loaded->loaded);
        model = loaded->model.get();
        layout = model->findLayout(u"Title Slide");
        ASSERT_TRUE(layout);
    }

    u16string const kLayout = u"/ppt/slideLayouts/slideLayout1.xml";
    ScratchDir dir;
    std::unique_ptr<LoadedModel> loaded;
    PresentationModel* model = nullptr;
    boost::shared_ptr<ppt::TemplateLayout> layout;
};

TEST_F(CreateSlide, MakesASlideRootWithTheLayoutsAttributesAndOnlyItsCSld) {
    auto slide = model->createSlide(layout);
    ASSERT_TRUE(slide);
    DOMElement* root = slide->document->getDocumentElement();
    EXPECT_EQ(u16string(root->getTagName()), u"p:sld");
    EXPECT_EQ(attr(root, u"xmlns:p"), u"http://schemas.openxmlformats.org/presentationml/2006/main");
    EXPECT_EQ(attr(root, u"xmlns:a"), u"http://schemas.openxmlformats.org/drawingml/2006/main");
    EXPECT_EQ(attr(root, u"showMasterPhAnim"), u"0");
    EXPECT_FALSE(root->hasAttribute(u"userDrawn"));
    EXPECT_FALSE(root->hasAttribute(u"matchingName"));
    EXPECT_FALSE(root->hasAttribute(u"preserve"));
    EXPECT_FALSE(root->hasAttribute(u"type"));
    EXPECT_FALSE(root->hasAttribute(u"showMasterSp"));
    EXPECT_EQ(childNames(root), std::vector<u16string>{u"p:cSld"});
    EXPECT_FALSE(root->getFirstElementChild()->hasAttribute(u"name"));

    EXPECT_EQ(slide->layout, layout);
    EXPECT_EQ(slide->shapes, layout->shapes);  // shared, not copied
    EXPECT_EQ(slide->nextShapeId, 5u);
    EXPECT_TRUE(slide->id.empty());
    EXPECT_TRUE(slide->partName.empty());

    model->setSlideName(slide, u"Agenda");
    EXPECT_EQ(attr(root->getFirstElementChild(), u"name"), u"Agenda");
    model->setSlideName(slide, u"");
    EXPECT_TRUE(root->getFirstElementChild()->hasAttribute(u"name"));

    // The layout's document is untouched.
    EXPECT_EQ(u16string(layout->document->getDocumentElement()->getTagName()), u"p:sldLayout");
    EXPECT_EQ(
        attr(PresentationModel::findChildElement(layout->document->getDocumentElement(), u"p:cSld"), u"name"),
        u"Title Slide");
}

TEST_F(CreateSlide, StripsPlaceholdersAndDropsTheLayoutsFixedShapes) {
    auto slide = model->createSlide(layout);
    DOMElement* tree = PresentationModel::getShapeTree(slide->document);
    ASSERT_NE(tree, nullptr);
    EXPECT_EQ(childNames(tree), (std::vector<u16string>{u"p:nvGrpSpPr", u"p:grpSpPr", u"p:sp", u"p:sp",
                                                        u"p:sp", u"p:graphicFrame"}));
    EXPECT_EQ(PresentationModel::getFirstShapeElement(slide->document), tree->getFirstElementChild());

    // The placeholders are found by uid in the clone, stripped.
    ASSERT_EQ(slide->shapeElementsByUid.size(), 2u);
    DOMElement* title = slide->shapeElementsByUid.at((*layout->shapes)[0]->uid);
    EXPECT_EQ(title->getOwnerDocument(), slide->document);
    EXPECT_EQ(PresentationModel::getPlaceholderType(title), u"title");
    DOMElement* spPr = PresentationModel::findChildElement(title, u"p:spPr");
    EXPECT_EQ(childNames(spPr), std::vector<u16string>{u"a:prstGeom"});
    DOMElement* txBody = PresentationModel::findChildElement(title, u"p:txBody");
    EXPECT_EQ(childNames(txBody), (std::vector<u16string>{u"a:bodyPr", u"a:lstStyle"}));
    EXPECT_EQ(attr(txBody->getFirstElementChild(), u"anchor"), u"b");
    EXPECT_EQ(PresentationModel::findChildElement(txBody, u"a:lstStyle")->getFirstChild(), nullptr);
    EXPECT_NE(slide->shapeElementsByUid.find((*layout->shapes)[1]->uid), slide->shapeElementsByUid.end());

    // The date placeholder isn't ours: it keeps its geometry and text.
    DOMElement* date = title->getNextElementSibling()->getNextElementSibling();
    EXPECT_EQ(PresentationModel::getPlaceholderType(date), u"dt");
    EXPECT_NE(
        PresentationModel::findChildElement(PresentationModel::findChildElement(date, u"p:spPr"), u"a:xfrm"),
        nullptr);
    EXPECT_EQ(date->getElementsByTagName(u"a:p")->getLength(), 1u);

    // The layout still has its text.
    DOMElement* layoutTitle = layout->shapeElementsByUid.at((*layout->shapes)[0]->uid);
    EXPECT_EQ(layoutTitle->getElementsByTagName(u"a:p")->getLength(), 2u);
}

TEST_F(CreateSlide, EachSlideHasItsOwnDocument) {
    auto first = model->createSlide(layout);
    auto second = model->createSlide(layout);
    EXPECT_NE(first->document, second->document);
    EXPECT_EQ(first->shapes, second->shapes);
    model->setSlideName(first, u"One");
    EXPECT_FALSE(PresentationModel::findChildElement(second->document->getDocumentElement(), u"p:cSld")
                     ->hasAttribute(u"name"));
    EXPECT_FALSE(model->createSlide(nullptr));
    model->setSlideName(nullptr, u"ignored");
}

TEST_F(CreateSlide, NewSlidesOutliveTheModel) {
    auto slide = model->createSlide(layout);
    loaded.reset();
    layout.reset();
    // The clone is the slide's own and is released with it.
    EXPECT_EQ(u16string(slide->document->getDocumentElement()->getTagName()), u"p:sld");
}

}  // namespace
}  // namespace test
}  // namespace deckforge
