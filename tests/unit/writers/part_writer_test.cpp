// The parts and relationships that the part writer adds to the output:
// numbering of new slides, image parts, hyperlinks.
#include <gtest/gtest.h>

#include "writers/ppt_part_writer.h"
#include "writers/writer_fixture.h"

namespace deckforge {
namespace test {
namespace {

using ppt::PPTPartWriter;
using ppt::TemplateLayout;
using ppt::TemplateSlide;

class PartWriter : public ::testing::Test {
protected:
    // A package holding the template and the slide parts named.
    boost::shared_ptr<OPCPackage> open(std::vector<u16string> const& slideParts) {
        PackageRecipe recipe = deckTemplate(true);
        for (auto const& name : slideParts) recipe.part(name, "<p:sld" + kNamespaces + "/>", kSlideType);
        recipe.write(dir / "deck.pptx");
        auto package = boost::make_shared<OPCPackage>((dir / "deck.pptx").u16string());
        package->openForUpdate(false);
        return package;
    }
    ScratchDir dir;
};

TEST_F(PartWriter, NewSlidesAreNumberedAfterTheTemplatesAndSkipTakenNames) {
    struct Case {
        std::vector<u16string> existing;
        std::vector<u16string> expected;
    };
    std::vector<Case> const cases = {
        {{u"/ppt/slides/slide1.xml", u"/ppt/slides/slide2.xml"},
         {u"/ppt/slides/slide3.xml", u"/ppt/slides/slide4.xml"}},
        // A gap: two slides, and "slide3" is taken.
        {{u"/ppt/slides/slide2.xml", u"/ppt/slides/slide3.xml"},
         {u"/ppt/slides/slide4.xml", u"/ppt/slides/slide5.xml"}},
        {{}, {u"/ppt/slides/slide1.xml", u"/ppt/slides/slide2.xml"}},
    };
    for (auto const& c : cases) {
        auto package = open(c.existing);
        PPTPartWriter writer(package);
        writer.setSlideNumber(c.existing.size());
        auto layout = boost::make_shared<TemplateLayout>();
        layout->partName = kLayout;
        auto slide = boost::make_shared<TemplateSlide>();
        slide->layout = layout;
        EXPECT_EQ(c.expected[0], writer.addSlide(slide));
        // Without a layout the part exists with no relationship.
        EXPECT_EQ(c.expected[1], writer.addSlide(boost::make_shared<TemplateSlide>()));

        auto rels = writer.getPart(c.expected[0]).getRelationships();
        ASSERT_EQ(1u, rels.size());
        EXPECT_EQ(kRelBase + u"slideLayout", rels[0].getType());
        EXPECT_EQ(kLayout, rels[0].getTargetURI().toString());
        EXPECT_TRUE(writer.getPart(c.expected[1]).getRelationships().empty());
        EXPECT_EQ(kSlideType, writer.getPart(c.expected[0]).getContentType().toString());
    }
}

TEST_F(PartWriter, HyperlinksNeedATargetAndAnExistingSlide) {
    auto package = open({u"/ppt/slides/slide1.xml"});
    PPTPartWriter writer(package);
    EXPECT_EQ(u"", writer.addHyperlink(u"/ppt/slides/slide1.xml", u""));
    EXPECT_EQ(u"", writer.addHyperlink(u"/ppt/slides/slide9.xml", u"https://example.com"));
    EXPECT_TRUE(writer.getPart(u"/ppt/slides/slide1.xml").getRelationships().empty());

    u16string const first = writer.addHyperlink(u"/ppt/slides/slide1.xml", u"https://example.com");
    u16string const second = writer.addHyperlink(u"/ppt/slides/slide1.xml", u"https://example.com");
    EXPECT_FALSE(first.empty());
    EXPECT_NE(first, second);  // no sharing of relationships
    auto rel = writer.getPart(u"/ppt/slides/slide1.xml").getRelationshipByID(first);
    EXPECT_EQ(opc::model::TargetModeExternal, rel.getTargetMode());
    EXPECT_EQ(u"https://example.com", rel.getTarget());
}

TEST_F(PartWriter, EqualImagesShareOnePartAndUnreadableImagesMakeNone) {
    // Larger than one copy buffer, so the copy loop runs more than once.
    std::string image(3000, '\0');
    for (std::size_t i = 0; i < image.size(); ++i) image[i] = static_cast<char>(i * 7);
    writeFile(dir / "logo.PNG", image);
    u16string const slidePart = u"/ppt/slides/slide1.xml";
    {
        auto package = open({slidePart});
        PPTPartWriter writer(package);
        EXPECT_EQ(u"", writer.addImage(slidePart, (dir / "missing.png").u16string()));
        u16string const first = writer.addImage(slidePart, (dir / "logo.PNG").u16string());
        u16string const second = writer.addImage(slidePart, (dir / "logo.PNG").u16string());
        ASSERT_FALSE(first.empty());
        EXPECT_NE(first, second);
        auto slide = writer.getPart(slidePart);
        auto a = slide.getRelationshipByID(first).getTargetURI().toString();
        auto b = slide.getRelationshipByID(second).getTargetURI().toString();
        EXPECT_EQ(a, b);  // equal bytes are stored once
        EXPECT_EQ(u"/ppt/media/image1.PNG", a);
        EXPECT_EQ(kRelBase + u"image", slide.getRelationshipByID(first).getType());
        EXPECT_EQ(0u, a.find(u"/ppt/media/"));
        EXPECT_EQ(u".PNG", a.substr(a.size() - 4));  // the extension as the file has it
        EXPECT_EQ(u"image/png", writer.getPart(a).getContentType().toString());
        package->close();
    }
    std::vector<std::string> media;
    for (auto const& name : zipEntries(dir / "deck.pptx"))
        if (name.rfind("ppt/media/", 0) == 0) media.push_back(name);
    ASSERT_EQ(1u, media.size());
    EXPECT_EQ(image, readPart(dir / "deck.pptx", u"/" + toString(media[0])));
}

}  // namespace
}  // namespace test
}  // namespace deckforge
