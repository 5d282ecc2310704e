// What a rendering pass leaves in the output: a new slide's document with
// its placeholders in place, a template slide kept, new text boxes at the
// end, and presentation.xml numbering the slides from 256.
#include <gtest/gtest.h>

#include "nodes/text_box.h"
#include "nodes/text_box_placeholder.h"
#include "writers/writer_fixture.h"

namespace deckforge {
namespace test {
namespace {

using xercesc::DOMElement;

class SlideWriting : public ::testing::Test {
protected:
    void SetUp() override {
        deckTemplate().write(dir / "template.pptx");
        parser = opc::model::XercesHelper::createParser();
    }
    void TearDown() override { parser->release(); }

    DOMElement* root(u16string const& partName) {
        return parseXml(parser, readPart(out(), partName))->getDocumentElement();
    }
    std::filesystem::path out() const { return dir / "out.pptx"; }
    static DOMElement* child(DOMElement const* element, char16_t const* name) {
        return ppt::PresentationModel::findChildElement(element, name);
    }
    static DOMElement* shapeTree(DOMElement const* sld) { return child(child(sld, u"p:cSld"), u"p:spTree"); }
    // The shapes of the tree, by their p:cNvPr name.
    static DOMElement* shapeNamed(DOMElement const* sld, u16string const& name) {
        for (auto* shape = shapeTree(sld)->getFirstElementChild(); shape;
             shape = shape->getNextElementSibling()) {
            DOMElement* cNvPr = child(shape->getFirstElementChild(), u"p:cNvPr");
            if (cNvPr && attr(cNvPr, u"name") == name) return shape;
        }
        return nullptr;
    }

    ScratchDir dir;
    xercesc::DOMLSParser* parser = nullptr;
};

TEST_F(SlideWriting, NewSlideKeepsUnfilledPlaceholdersWithOneEmptyParagraph) {
    RenderedDeck deck(dir / "template.pptx", out(), [](ppt::PresentationModel& model) {
        return std::vector<PPTNodePtr>{newSlide(model, u"Title and Content")};
    });
    std::string const xml = readPart(out(), u"/ppt/slides/slide2.xml");
    EXPECT_EQ(std::string::npos, xml.find("data-uid"));

    DOMElement* sld = root(u"/ppt/slides/slide2.xml");
    EXPECT_EQ(u"p:sld", u16string(sld->getTagName()));
    EXPECT_FALSE(sld->hasAttribute(u"type"));
    EXPECT_FALSE(sld->hasAttribute(u"showMasterSp"));
    EXPECT_FALSE(sld->hasAttribute(u"preserve"));
    EXPECT_TRUE(sld->hasAttribute(u"xmlns:p"));
    EXPECT_EQ(std::vector<u16string>{u"p:cSld"}, childNames(sld));
    // A slide without a name says so.
    EXPECT_TRUE(child(sld, u"p:cSld")->hasAttribute(u"name"));

    for (char16_t const* name : {u"Title 1", u"Content Placeholder 2"}) {
        SCOPED_TRACE(toUtf8(name));
        DOMElement* shape = shapeNamed(sld, name);
        ASSERT_TRUE(shape);
        // No position of its own: the geometry comes from the layout.
        EXPECT_FALSE(child(child(shape, u"p:spPr"), u"a:xfrm"));
        DOMElement* body = child(shape, u"p:txBody");
        std::vector<u16string> const expectedBody{u"a:bodyPr", u"a:lstStyle", u"a:p"};
        EXPECT_EQ(expectedBody, childNames(body));
        EXPECT_EQ(std::vector<u16string>{u"a:endParaRPr"}, childNames(child(body, u"a:p")));
        EXPECT_TRUE(childNames(child(body, u"a:lstStyle")).empty());
    }
    // The footer stays with its text; the layout's fixed shapes don't come over.
    EXPECT_NE(std::string::npos, xml.find("Confidential"));
    EXPECT_FALSE(shapeNamed(sld, u"Logo text"));
    EXPECT_FALSE(shapeNamed(sld, u"Line"));
}

TEST_F(SlideWriting, SlidesAreListedFrom256InWrittenOrderAndTemplateSlidesKeepTheirParts) {
    RenderedDeck deck(dir / "template.pptx", out(), [](ppt::PresentationModel& model) {
        PPTNodePtr kept = templateSlide(model, 0);
        PPTNodePtr added = newSlide(model, u"Title and Content");
        // A slide without a template record writes nothing.
        return std::vector<PPTNodePtr>{added, ppt::Slide().makeInterface(), kept,
                                       newSlide(model, u"Title and Content")};
    });
    DOMElement* list = child(root(u"/ppt/presentation.xml"), u"p:sldIdLst");
    ASSERT_TRUE(list);
    std::vector<u16string> ids, targets;
    ppt::OPCPartReader reader(out().u16string());
    opc::model::Part presentation = reader.getPart(u"/ppt/presentation.xml");
    for (auto* id = list->getFirstElementChild(); id; id = id->getNextElementSibling()) {
        ids.push_back(attr(id, u"id"));
        targets.push_back(presentation.getRelationshipByID(attr(id, u"r:id")).getTargetURI().toString());
    }
    EXPECT_EQ((std::vector<u16string>{u"256", u"257", u"258"}), ids);
    EXPECT_EQ((std::vector<u16string>{u"/ppt/slides/slide2.xml", u"/ppt/slides/slide1.xml",
                                      u"/ppt/slides/slide3.xml"}),
              targets);

    // The template slide: its shapes are rendered in place, text kept.
    std::string const kept = readPart(out(), u"/ppt/slides/slide1.xml");
    EXPECT_EQ(std::string::npos, kept.find("data-uid"));
    EXPECT_NE(std::string::npos, kept.find("Kept title"));
    EXPECT_NE(std::string::npos, kept.find("Kept note"));
    EXPECT_NE(std::string::npos, kept.find("<a:off x=\"1\" y=\"2\"/>"));
    EXPECT_NE(std::string::npos, kept.find("p:clrMapOvr"));
    EXPECT_EQ(2u, countOf(kept, "<a:p>"));  // no empty paragraph added where text is
}

TEST_F(SlideWriting, GeometryIsWrittenOnlyForShapesThatHaveSome) {
    RenderedDeck deck(dir / "template.pptx", out(), [](ppt::PresentationModel& model) {
        PPTNodePtr slide = newSlide(model, u"Title and Content");
        auto title = ppt::TextBoxPlaceholder::cast(slide->getChildren().at(0));
        title->setX(u"1in");
        ppt::TextBox box(u"Added");
        box.setWidth(u"1in");
        slide->nodeImpl()->appendChild(box.makeInterface());
        slide->nodeImpl()->appendChild(ppt::TextBox().makeInterface());
        return std::vector<PPTNodePtr>{slide};
    });
    DOMElement* sld = root(u"/ppt/slides/slide2.xml");

    // Only X given: the layout's y, the default size, and a:xfrm leading
    // the shape properties.
    DOMElement* spPr = child(shapeNamed(sld, u"Title 1"), u"p:spPr");
    DOMElement* xfrm = spPr->getFirstElementChild();
    ASSERT_EQ(u"a:xfrm", u16string(xfrm->getTagName()));
    EXPECT_EQ(u"914400", attr(child(xfrm, u"a:off"), u"x"));
    EXPECT_EQ(u"274638", attr(child(xfrm, u"a:off"), u"y"));
    EXPECT_EQ(u"1234567", attr(child(xfrm, u"a:ext"), u"cx"));
    EXPECT_EQ(u"1234567", attr(child(xfrm, u"a:ext"), u"cy"));
    EXPECT_TRUE(child(spPr, u"a:prstGeom"));

    // New boxes follow everything else, in order, with the next shape ids.
    DOMElement* last = shapeTree(sld)->getLastElementChild();
    DOMElement* added = last->getPreviousElementSibling();
    ASSERT_EQ(added, shapeNamed(sld, u"Added"));
    DOMElement* cNvPr = child(child(added, u"p:nvSpPr"), u"p:cNvPr");
    // Ids are the slide's counter, taken in order.
    EXPECT_EQ(str2int(attr(cNvPr, u"id")) + 1,
              str2int(attr(child(child(last, u"p:nvSpPr"), u"p:cNvPr"), u"id")));
    // Unnamed: named after its id, so that the same script writes the same markup.
    DOMElement* lastName = child(child(last, u"p:nvSpPr"), u"p:cNvPr");
    EXPECT_EQ(u"TextBox " + attr(lastName, u"id"), attr(lastName, u"name"));
    DOMElement* ext = child(child(child(added, u"p:spPr"), u"a:xfrm"), u"a:ext");
    EXPECT_EQ(u"914400", attr(ext, u"cx"));
    EXPECT_EQ(u"1234567", attr(ext, u"cy"));
    EXPECT_EQ(u"0", attr(child(child(child(added, u"p:spPr"), u"a:xfrm"), u"a:off"), u"x"));
    std::vector<u16string> const expectedBody{u"a:bodyPr", u"a:lstStyle", u"a:p"};
    EXPECT_EQ(expectedBody, childNames(child(added, u"p:txBody")));
}

}  // namespace
}  // namespace test
}  // namespace deckforge
