// Reading synthetic templates: names and their collisions, the search order of
// findLayout, shared layouts, shape records, table styles, odd packages.
#include <set>

#include <gtest/gtest.h>

#include "platform/msg_ids.h"
#include "support/test_support.h"
#include "template_fixture.h"

namespace deckforge {
namespace test {
namespace {

using ppt::ShapeKind;
using ppt::TemplateShape;

u16string const kM1 = u"/ppt/slideMasters/slideMaster1.xml";
u16string const kM2 = u"/ppt/slideMasters/slideMaster2.xml";
u16string const kM10 = u"/ppt/slideMasters/slideMaster10.xml";
u16string layoutPart(int n) {
    return u"/ppt/slideLayouts/slideLayout" + num2str(n) + u".xml";
}

TEST(PresentationModel, FindLayoutSearchesMastersInPartNameOrder) {
    ScratchDir dir;
    // Master 2 comes first in the presentation, but "...10.xml" sorts first.
    makeTemplate({{kM2, "Alpha", {layoutPart(1), layoutPart(2)}}, {kM10, "Beta", {layoutPart(3)}}},
                 {{layoutPart(1), "Title", kM2, ""},
                  {layoutPart(2), "Only2", kM2, ""},
                  {layoutPart(3), "Title", kM10, ""}})
        .write(dir / "t.pptx");
    LoadedModel m(dir / "t.pptx");
    ASSERT_TRUE(m.loaded);
    EXPECT_EQ(m.model->getMasterNames(), (std::vector<u16string>{u"Alpha", u"Beta"}));
    EXPECT_EQ(m.model->getLayoutNames(u"Alpha"), (std::vector<u16string>{u"Title", u"Only2"}));
    EXPECT_EQ(m.model->findLayout(u"Title")->partName, layoutPart(3));
    EXPECT_EQ(m.model->findLayout(u"Title", u"Alpha")->partName, layoutPart(1));
    EXPECT_EQ(m.model->findLayout(u"Only2")->partName, layoutPart(2));
    EXPECT_FALSE(m.model->findLayout(u"Missing"));
    EXPECT_FALSE(m.model->findLayout(u"Title", u"Gamma"));
    EXPECT_TRUE(m.model->getLayoutNames(u"Gamma").empty());
    EXPECT_EQ(m.model->findLayout(u"Title")->master, (*m.model->getMasters())[1]);
}

TEST(PresentationModel, CollidingNamesAreKeptAndTheFirstWins) {
    ScratchDir dir;
    makeTemplate(
        {{kM1, "Same", {layoutPart(1), layoutPart(2)}},
         {kM2, "Same", {layoutPart(3)}},
         {u"/ppt/slideMasters/slideMaster3.xml", "", {}}},
        {{layoutPart(1), "Dup", kM1, ""}, {layoutPart(2), "Dup", kM1, ""}, {layoutPart(3), "Other", kM2, ""}})
        .write(dir / "t.pptx");
    LoadedModel m(dir / "t.pptx");
    ASSERT_TRUE(m.loaded);
    EXPECT_EQ(m.model->getMasterNames(), (std::vector<u16string>{u"Same", u"Same", u""}));
    EXPECT_EQ(m.model->getLayoutNames(u"Same"), (std::vector<u16string>{u"Dup", u"Dup"}));
    EXPECT_EQ(m.model->findLayout(u"Dup", u"Same")->partName, layoutPart(1));
    // The second master can't be reached by name.
    EXPECT_FALSE(m.model->findLayout(u"Other", u"Same"));
    EXPECT_TRUE(m.model->getLayoutNames(u"").empty());
    EXPECT_FALSE((*m.model->getMasters())[2]->theme);
}

TEST(PresentationModel, LayoutSharedByTwoMastersIsReadOnceAndBelongsToTheMasterItNames) {
    ScratchDir dir;
    makeTemplate({{kM1, "A", {layoutPart(1)}}, {kM2, "B", {layoutPart(1), layoutPart(2)}}},
                 {{layoutPart(1), "Shared", kM2, placeholderXml("2", "Title 1", " type=\"title\"")},
                  {layoutPart(2), "Own", kM2, ""}})
        .write(dir / "t.pptx");
    LoadedModel m(dir / "t.pptx");
    ASSERT_TRUE(m.loaded);
    auto const& masters = *m.model->getMasters();
    ASSERT_EQ(masters[0]->layouts->size(), 1u);
    ASSERT_EQ(masters[1]->layouts->size(), 2u);
    auto const shared = (*masters[0]->layouts)[0];
    EXPECT_EQ(shared, (*masters[1]->layouts)[0]);
    EXPECT_EQ(shared->master, masters[1]);
    EXPECT_EQ(shared->shapes->size(), 1u);
    EXPECT_EQ((*shared->shapes)[0]->uid, attr(shared->shapeElementsByUid.begin()->second, u"data-uid"));
}

TEST(PresentationModel, RelationshipLoopsEndAndUnusablePartsAreSkipped) {
    ScratchDir dir;
    u16string const pres = u"/ppt/presentation.xml";
    PackageRecipe recipe;
    recipe.part(
        pres,
        "<p:presentation" + kNamespaces +
            "><p:sldMasterIdLst><p:sldMasterId id=\"1\" r:id=\"rSelf\"/><p:sldMasterId id=\"2\" r:id=\"rM\"/>"
            "</p:sldMasterIdLst><p:sldIdLst><p:sldId id=\"256\" "
            "r:id=\"rSelf\"/></p:sldIdLst></p:presentation>",
        kPresentationType);
    recipe.part(kM2, "<p:sldMaster" + kNamespaces + "/>");
    recipe.part(layoutPart(1), layoutXml("Loop", ""));
    recipe.rel(u"", u"rId1", u"officeDocument", pres)
        .rel(pres, u"rSelf", u"slideMaster", pres)
        .rel(pres, u"rM", u"slideMaster", kM2)
        .rel(kM2, u"r1", u"slideLayout", kM2)
        .rel(kM2, u"r2", u"slideLayout", pres)
        .rel(kM2, u"r3", u"slideLayout", layoutPart(1))
        .rel(layoutPart(1), u"r1", u"slideMaster", layoutPart(1))
        .rel(layoutPart(1), u"r2", u"slideLayout", layoutPart(1));
    recipe.write(dir / "t.pptx");
    LoadedModel m(dir / "t.pptx");
    ASSERT_TRUE(m.loaded);
    auto const& masters = *m.model->getMasters();
    ASSERT_EQ(masters.size(), 2u);
    EXPECT_EQ(masters[0]->partName, pres);
    EXPECT_TRUE(masters[0]->layouts->empty());
    ASSERT_EQ(masters[1]->layouts->size(), 1u);
    EXPECT_FALSE((*masters[1]->layouts)[0]->master);
    ASSERT_EQ(m.model->getSlides()->size(), 1u);
    EXPECT_FALSE((*m.model->getSlides())[0]->layout);
}

TEST(PresentationModel, PackagesWithoutAPresentationAreRefused) {
    ScratchDir dir;
    // The main part is there, but of another type.
    PackageRecipe wrongType;
    wrongType.part(u"/ppt/presentation.xml", "<p:presentation" + kNamespaces + "/>", u"application/xml")
        .rel(u"", u"rId1", u"officeDocument", u"/ppt/presentation.xml");
    wrongType.write(dir / "type.pptx");
    EXPECT_FALSE(LoadedModel(dir / "type.pptx").loaded);

    PackageRecipe noMain;
    noMain.part(u"/ppt/presentation.xml", "<p:presentation" + kNamespaces + "/>", kPresentationType);
    noMain.write(dir / "nomain.pptx");
    EXPECT_FALSE(LoadedModel(dir / "nomain.pptx").loaded);
}

TEST(PresentationModel, TemplateSlidesGetRecordsForEveryContentShape) {
    ScratchDir dir;
    std::string const layoutShapes =
        placeholderXml("2", "Title 1", " type=\"title\"") + placeholderXml("3", "Content 2", " idx=\"1\"") +
        placeholderXml("4", "Date 3", " type=\"dt\"") +
        "<p:sp><p:nvSpPr><p:cNvPr id=\"9\" name=\"Fixed\"/><p:cNvSpPr/><p:nvPr/></p:nvSpPr></p:sp>";
    std::string const group =
        "<p:grpSp><p:nvGrpSpPr><p:cNvPr id=\"6\" "
        "name=\"Group\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>"
        "<p:sp><p:nvSpPr><p:cNvPr id=\"7\" name=\"In1\"/><p:cNvSpPr/><p:nvPr/></p:nvSpPr></p:sp>"
        "<p:sp><p:nvSpPr><p:cNvPr id=\"8\" name=\"\"/><p:cNvSpPr/><p:nvPr/></p:nvSpPr></p:sp></p:grpSp>";
    std::string const slide =
        "<p:sld" + kNamespaces + "><p:cSld name=\"First\"><p:spTree><p:nvGrpSpPr/><p:grpSpPr/>" +
        placeholderXml("2", "Heading", " type=\"title\"") +
        "<p:sp><p:nvSpPr><p:cNvPr id=\"5\" name=\"Note\"/><p:cNvSpPr/><p:nvPr/></p:nvSpPr></p:sp>" + group +
        "<p:pic><p:nvPicPr><p:cNvPr id=\"10\" name=\"Photo\"/></p:nvPicPr></p:pic>"
        "<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id=\"11\" name=\"Chart\"/></p:nvGraphicFramePr>"
        "<a:graphic><a:graphicData><c:chart xmlns:c=\"urn:c\"/></a:graphicData></a:graphic></p:graphicFrame>"
        "<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id=\"12\" name=\"Grid\"/></p:nvGraphicFramePr>"
        "<a:graphic><a:graphicData><a:tbl/></a:graphicData></a:graphic></p:graphicFrame>"
        "</p:spTree></p:cSld></p:sld>";
    PackageRecipe recipe =
        makeTemplate({{kM1, "Theme", {layoutPart(1)}}}, {{layoutPart(1), "Title", kM1, layoutShapes}},
                     "<p:sldIdLst><p:sldId id=\"300\" r:id=\"rIdS1\"/></p:sldIdLst>");
    recipe.part(u"/ppt/slides/slide1.xml", slide)
        .rel(u"/ppt/presentation.xml", u"rIdS1", u"slide", u"/ppt/slides/slide1.xml")
        .rel(u"/ppt/slides/slide1.xml", u"rIdL", u"slideLayout", layoutPart(1));
    recipe.part(u"/ppt/tableStyles.xml",
              "<a:tblStyleLst xmlns:a=\"urn:a\"><a:tblStyle styleId=\"{A}\" styleName=\"Medium\"/>"
              "<a:tblStyle styleId=\"{B}\" styleName=\"{A}\"/></a:tblStyleLst>")
        .rel(u"/ppt/presentation.xml", u"rIdTS", u"tableStyles", u"/ppt/tableStyles.xml");
    recipe.write(dir / "t.pptx");
    LoadedModel m(dir / "t.pptx");
    ASSERT_TRUE(m.loaded);

    auto const layout = m.model->findLayout(u"Title");
    ASSERT_TRUE(layout);
    // A layout keeps its placeholders only; "dt" and fixed shapes are not ours.
    ASSERT_EQ(layout->shapes->size(), 2u);
    EXPECT_EQ((*layout->shapes)[0]->nodeType, ShapeKind::TextBoxPlaceholder);
    EXPECT_EQ((*layout->shapes)[0]->placeholderType, u"title");
    EXPECT_EQ((*layout->shapes)[1]->nodeType, ShapeKind::ContentPlaceholder);
    EXPECT_EQ(layout->maxShapeId, 3u);
    EXPECT_EQ(layout->shapeElementsByUid.size(), 2u);

    ASSERT_EQ(m.model->getSlides()->size(), 1u);
    auto const slideRecord = (*m.model->getSlides())[0];
    EXPECT_EQ(slideRecord->id, u"300");
    EXPECT_EQ(slideRecord->name, u"First");
    EXPECT_EQ(slideRecord->partName, u"/ppt/slides/slide1.xml");
    EXPECT_EQ(slideRecord->layout, layout);
    EXPECT_EQ(slideRecord->nextShapeId, 0u);
    auto const& shapes = *slideRecord->shapes;
    std::vector<ShapeKind> kinds;
    for (auto const& s : shapes) kinds.push_back(s->nodeType);
    EXPECT_EQ(kinds, (std::vector<ShapeKind>{ShapeKind::TextBoxPlaceholder, ShapeKind::TextBox,
                                             ShapeKind::Group, ShapeKind::Picture, ShapeKind::Table}));
    // Bound to the layout's placeholder by equal shape id.
    EXPECT_EQ(shapes[0]->layoutUid, (*layout->shapes)[0]->uid);
    EXPECT_EQ(shapes[0]->name, u16string(u"Heading"));
    EXPECT_TRUE(shapes[1]->layoutUid.empty());
    EXPECT_EQ(shapes[3]->id, u"10");
    ASSERT_TRUE(shapes[2]->children);
    ASSERT_EQ(shapes[2]->children->size(), 2u);
    EXPECT_EQ((*shapes[2]->children)[0]->name, u16string(u"In1"));
    EXPECT_FALSE((*shapes[2]->children)[1]->name);  // an empty name isn't set

    // Each record's element bears its uid; the chart frame has none.
    std::set<u16string> uids;
    std::vector<boost::shared_ptr<TemplateShape>> all(shapes.begin(), shapes.end());
    all.insert(all.end(), shapes[2]->children->begin(), shapes[2]->children->end());
    for (auto const& s : all) {
        uids.insert(s->uid);
        auto element = slideRecord->shapeElementsByUid.find(s->uid);
        ASSERT_NE(element, slideRecord->shapeElementsByUid.end());
        EXPECT_EQ(attr(element->second, u"data-uid"), s->uid);
    }
    EXPECT_EQ(uids.size(), 7u);
    EXPECT_EQ(slideRecord->shapeElementsByUid.size(), 7u);
    EXPECT_EQ(uids.count((*layout->shapes)[0]->uid), 0u);

    std::vector<std::pair<u16string, u16string>> styles{{u"stale", u"stale"}};
    m.model->getTableStyleNames(styles);
    EXPECT_EQ(styles, (std::vector<std::pair<u16string, u16string>>{{u"Medium", u"{A}"}, {u"{A}", u"{B}"}}));
    EXPECT_EQ(m.model->findTableStyle(u"{A}")->styleId, u"{A}");  // the id came first
    EXPECT_EQ(m.model->findTableStyle(u"Medium")->styleId, u"{A}");
    EXPECT_EQ(m.model->findTableStyle(u"{B}")->styleName, u"{A}");
}

TEST(PartDOMBuilder, ReadsWellFormedPartsAndNamesTheBrokenOne) {
    ScratchDir dir;
    PackageRecipe recipe;
    recipe.part(u"/a.xml", "<x:root xmlns:x=\"urn:x\"><x:child/></x:root>")
        .part(u"/bad.xml", "<a><b></a>")
        .part(u"/dtd.xml", "<!DOCTYPE a SYSTEM \"http://example.invalid/a.dtd\"><a>&#x41;</a>")
        .rel(u"/a.xml", u"rBad", u"other", u"/bad.xml")
        .rel(u"/a.xml", u"rNone", u"other", u"/none.xml");
    recipe.write(dir / "p.zip");
    auto package = boost::make_shared<OPCPackage>((dir / "p.zip").u16string());
    package->openForRead(false);
    PartDOMBuilder builder(package);

    EXPECT_EQ(builder.buildPartDOM(u16string()), nullptr);
    EXPECT_EQ(builder.buildPartDOM(u"/none.xml"), nullptr);
    EXPECT_EQ(builder.buildPartDOM(u"/a.xml", u"rNone"), nullptr);
    xercesc::DOMDocument* doc = builder.buildPartDOM(u"/a.xml");
    ASSERT_NE(doc, nullptr);
    // No namespace processing: names keep their prefixes.
    EXPECT_EQ(u16string(doc->getDocumentElement()->getTagName()), u"x:root");
    ASSERT_NE(builder.buildPartDOM(u"/dtd.xml"), nullptr);
    using BuildError = foundation::core::except::Exception<ppt_error::partDOMBuildError>;
    try {
        builder.buildPartDOM(u"/a.xml", u"rBad");
        FAIL() << "no error";
    } catch (BuildError const& e) {
        EXPECT_EQ(e.identifier(), "deckforge:ppt_error:partDOMBuildError");
        EXPECT_EQ(boost::get<u16string>(e.arguments().at(0)), u"/bad.xml");
    }
    try {
        builder.buildPartDOM(u"/a.xml", u"rMissing");
        FAIL() << "no error";
    } catch (BuildError const& e) {
        EXPECT_EQ(boost::get<u16string>(e.arguments().at(0)), u"/a.xml");
    }
    // Earlier documents survive later parses.
    EXPECT_EQ(u16string(doc->getDocumentElement()->getFirstElementChild()->getTagName()), u"x:child");
}

}  // namespace
}  // namespace test
}  // namespace deckforge
