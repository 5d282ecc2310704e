// Rewriting presentation.xml at the end: the slide id list, the relationships
// of new slides, and where a missing list goes.
#include <cstdio>
#include <filesystem>

#include <gtest/gtest.h>

#include "support/test_support.h"
#include "template_fixture.h"

namespace deckforge {
namespace test {
namespace {

using xercesc::DOMElement;

u16string const kSlideType = u"application/vnd.openxmlformats-officedocument.presentationml.slide+xml";
u16string const kMaster = u"/ppt/slideMasters/slideMaster1.xml";
u16string const kLayout = u"/ppt/slideLayouts/slideLayout1.xml";

// Loads `templateFile`, writes a copy with one new slide of `layoutName` put
// where `order` says among the template's slides, and gives the new slide.
struct Rewrite {
    Rewrite(std::filesystem::path const& templateFile, std::filesystem::path const& outFile,
            u16string const& layoutName, bool newSlideFirst) {
        std::filesystem::copy_file(templateFile, outFile);
        LoadedModel m(templateFile);
        EXPECT_TRUE(m.loaded);
        auto package = boost::make_shared<OPCPackage>(outFile.u16string());
        package->openForUpdate(false);
        TestDocumentWriter writer(package);
        newSlide = m.model->createSlide(m.model->findLayout(layoutName));
        newSlide->partName = u"/ppt/slides/slide99.xml";
        opc::model::Part part = writer.createPart(newSlide->partName, kSlideType);
        part.createInternalRelationship(kRelBase + u"slideLayout", opc::model::URI(kLayout), u"");
        writer.writeDocument(newSlide->partName, newSlide->document);

        ppt::TemplateSlideList slides(m.model->getSlides()->begin(), m.model->getSlides()->end());
        slides.insert(newSlideFirst ? slides.begin() : slides.end(), newSlide);
        m.model->writePresentationPart(writer, slides);
        written = writer.written;
    }
    boost::shared_ptr<ppt::TemplateSlide> newSlide;
    std::vector<u16string> written;
};

class WritePresentationPart : public ::testing::Test {
protected:
    void SetUp() override { parser = opc::model::XercesHelper::createParser(); }
    void TearDown() override { parser->release(); }
    DOMElement* presentationRoot(std::filesystem::path const& file) {
        return parseXml(parser, readPart(file, u"/ppt/presentation.xml"))->getDocumentElement();
    }
    xercesc::DOMLSParser* parser = nullptr;
    ScratchDir dir;
};

TEST_F(WritePresentationPart, RenumbersFrom256AndRelatesNewSlides) {
    PackageRecipe recipe = makeTemplate({{kMaster, "Theme", {kLayout}}}, {{kLayout, "Title", kMaster, ""}},
                                    "<p:sldIdLst><p:sldId id=\"300\" r:id=\"rIdS1\"/>"
                                    "<p:sldId id=\"301\" r:id=\"rIdS2\"/></p:sldIdLst>");
    for (int n = 1; n <= 2; ++n) {
        u16string const name = u"/ppt/slides/slide" + num2str(n) + u".xml";
        recipe.part(name, "<p:sld" + kNamespaces + "><p:cSld><p:spTree/></p:cSld></p:sld>", kSlideType)
            .rel(u"/ppt/presentation.xml", u"rIdS" + num2str(n), u"slide", name)
            .rel(name, u"rIdL", u"slideLayout", kLayout);
    }
    recipe.write(dir / "t.pptx");
    std::string const before = readFile(dir / "t.pptx");

    Rewrite rewrite(dir / "t.pptx", dir / "out.pptx", u"Title", true);
    EXPECT_EQ(rewrite.written,
              std::vector<u16string>({u"/ppt/slides/slide99.xml", u"/ppt/presentation.xml"}));
    ASSERT_FALSE(rewrite.newSlide->relationshipId.empty());

    DOMElement* root = presentationRoot(dir / "out.pptx");
    EXPECT_EQ(childNames(root),
              (std::vector<u16string>{u"p:sldMasterIdLst", u"p:sldIdLst", u"p:sldSz", u"p:notesSz"}));
    DOMElement* list = PresentationModel::findChildElement(root, u"p:sldIdLst");
    std::vector<std::pair<u16string, u16string>> ids;
    for (DOMElement* e = list->getFirstElementChild(); e; e = e->getNextElementSibling())
        ids.emplace_back(attr(e, u"id"), attr(e, u"r:id"));
    EXPECT_EQ(ids, (std::vector<std::pair<u16string, u16string>>{
                       {u"256", rewrite.newSlide->relationshipId}, {u"257", u"rIdS1"}, {u"258", u"rIdS2"}}));

    ppt::OPCPartReader reader((dir / "out.pptx").u16string());
    auto const rel =
        reader.getPart(u"/ppt/presentation.xml").getRelationshipByID(rewrite.newSlide->relationshipId);
    EXPECT_EQ(rel.getType(), kRelBase + u"slide");
    EXPECT_EQ(rel.getTargetURI().toString(), u"/ppt/slides/slide99.xml");
    // The template slides' relationships stay as they were.
    EXPECT_EQ(
        reader.getPart(u"/ppt/presentation.xml").getRelationshipByID(u"rIdS2").getTargetURI().toString(),
        u"/ppt/slides/slide2.xml");
    EXPECT_EQ(readFile(dir / "t.pptx"), before);
}

TEST_F(WritePresentationPart, AMissingListFollowsTheMasterLists) {
    makeTemplate({{kMaster, "Theme", {kLayout}}}, {{kLayout, "Title", kMaster, ""}})
        .write(dir / "plain.pptx");
    Rewrite(dir / "plain.pptx", dir / "plain-out.pptx", u"Title", true);
    DOMElement* root = presentationRoot(dir / "plain-out.pptx");
    EXPECT_EQ(childNames(root),
              (std::vector<u16string>{u"p:sldMasterIdLst", u"p:sldIdLst", u"p:sldSz", u"p:notesSz"}));
    EXPECT_EQ(attr(PresentationModel::findChildElement(root, u"p:sldIdLst")->getFirstElementChild(), u"id"),
              u"256");
}

// Notes and handout master lists stand before the slide list, as the schema wants.
TEST_F(WritePresentationPart, RealTemplateWithoutSlidesGetsASchemaValidList) {
    std::filesystem::path const source = realTemplates() / "ppt2013_dbconf-template-pl.potx";
    std::string const before = readFile(source);
    Rewrite(source, dir / "out.potx", u"Slajd tytułowy", false);
    EXPECT_EQ(readFile(source), before);

    std::string const command = schemaValidator().string() + " -v '" + (dir / "out.potx").string() +
                                "' 2>&1 | grep 'ppt/presentation.xml$'";
    FILE* pipe = ::popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    char line[512] = {0};
    std::string verdict = std::fgets(line, sizeof line, pipe) ? line : "";
    ::pclose(pipe);
    EXPECT_EQ(verdict.substr(0, 2), "ok") << verdict;
}

}  // namespace
}  // namespace test
}  // namespace deckforge
