// Pictures in the output: free pictures on a blank slide, pictures in the
// picture placeholders of two layouts of the default template, and images
// that can't be used. The decks must be valid, carry their media with the
// right content types.
#include <cstdint>
#include <regex>

#include <gtest/gtest.h>
#include <zip.h>

#include "engine/presentation.h"
#include "nodes/picture_placeholder.h"
#include "platform/host_services.h"
#include "writers/writer_fixture.h"

namespace deckforge {
namespace test {
namespace {

using ppt::Picture;
using ppt::PicturePlaceholder;

std::string be32(std::uint32_t v) {
    return {char(v >> 24), char(v >> 16), char(v >> 8), char(v)};
}

// A PNG as far as a size is read from it: the header and the end chunk.
std::string png(std::uint32_t w, std::uint32_t h) {
    return std::string("\x89PNG\r\n\x1a\n", 8) + be32(13) + "IHDR" + be32(w) + be32(h) +
           std::string("\x01\x03\0\0\0", 5) + be32(0) + be32(0) + "IEND" + std::string("\xAE\x42\x60\x82", 4);
}

// The attributes of the a:off and a:ext of the i-th p:pic of a slide.
std::string geometry(std::string const& slide, std::size_t index) {
    std::size_t at = 0;
    for (std::size_t i = 0; i <= index; ++i) at = slide.find("<p:pic>", at + 1);
    if (at == std::string::npos) return "no picture";
    std::smatch m;
    std::string const rest = slide.substr(at, slide.find("</p:pic>", at) - at);
    if (!std::regex_search(rest, m,
                           std::regex(R"x(<a:off x="(-?\d+)" y="(-?\d+)"/><a:ext cx="(\d+)" cy="(\d+)"/>)x")))
        return "no xfrm";
    return m[1].str() + "," + m[2].str() + " " + m[3].str() + "x" + m[4].str();
}

std::vector<std::string> all(std::string const& text, std::string const& pattern) {
    std::vector<std::string> found;
    std::regex const re(pattern);
    for (auto it = std::sregex_iterator(text.begin(), text.end(), re); it != std::sregex_iterator(); ++it)
        found.push_back((*it)[1].str());
    return found;
}

// An item of the zip as it is stored; the package's own items too.
std::string zipItem(std::filesystem::path const& file, char const* name) {
    int error = 0;
    zip_t* archive = zip_open(file.c_str(), ZIP_RDONLY, &error);
    if (!archive) return "";
    std::string bytes;
    if (zip_file_t* item = zip_fopen(archive, name, 0)) {
        char buffer[4096];
        zip_int64_t n;
        while ((n = zip_fread(item, buffer, sizeof buffer)) > 0) bytes.append(buffer, std::size_t(n));
        zip_fclose(item);
    }
    zip_close(archive);
    return bytes;
}

class PictureDeck : public ::testing::Test {
protected:
    void SetUp() override { host::setQuorixRoot(binaryDir().u16string()); }
    void TearDown() override { host::setQuorixRoot(u""); }
    ScratchDir dir;
};

TEST_F(PictureDeck, BlankSlideAndPlaceholdersFittedValidAndShown) {
    writeFile(dir / "wide.png", png(600, 300));
    writeFile(dir / "tall.png", png(1000, 800));
    std::filesystem::path const deck = dir / "pictures.pptx";
    {
        ppt::Presentation p(deck.u16string());
        ppt::Slide blank = p.add(u"Blank");
        Picture placed((dir / "wide.png").u16string());  // 600 x 300 pixels
        placed.setX(u"1in");
        placed.setY(u"1in");
        blank.add(placed);
        Picture unsized((dir / "wide.png").u16string());
        unsized.unsetWidth();
        unsized.unsetHeight();
        unsized.setName(u"Unsized");
        blank.add(unsized);

        // Both pictures fit their boxes as they are: centred, never enlarged.
        ppt::Slide titled = p.add(u"Title and Picture");
        titled.replace(u"Title", u"Wide");
        PicturePlaceholder::cast(titled.find(u"Picture").at(0))
            ->replace(Picture((dir / "wide.png").u16string()));
        // Too tall for its box: scaled down with the aspect kept.
        ppt::Slide captioned = p.add(u"Picture with Caption");
        captioned.replace(u"Title", u"Tall");
        PicturePlaceholder::cast(captioned.find(u"Picture").at(0))
            ->replace(Picture((dir / "tall.png").u16string()));
        // A width from script code sets the height by the image's aspect, and
        // a position from script code wins over the centring.
        Picture narrow((dir / "wide.png").u16string());
        narrow.setWidth(u"2in");
        narrow.unsetHeight();
        narrow.setX(u"0.5in");
        ppt::Slide placedByScript = p.add(u"Title and Picture");
        PicturePlaceholder::cast(placedByScript.find(u"Picture").at(0))->replace(narrow);
        ASSERT_TRUE(p.close());
    }

    std::string const types = zipItem(deck, "[Content_Types].xml");
    EXPECT_NE(std::string::npos, types.find(R"(<Default Extension="png" ContentType="image/png"/>)"))
        << types;
    std::size_t media = 0;
    for (auto const& name : zipEntries(deck)) media += name.rfind("ppt/media/", 0) == 0;
    EXPECT_EQ(2u, media);  // one part for each image file, however often it is placed

    std::string const first = readPart(deck, u"/ppt/slides/slide1.xml");
    EXPECT_EQ("914400,914400 5715000x2857500", geometry(first, 0));  // 9525 EMU a pixel
    EXPECT_EQ("0,0 1234567x1234567", geometry(first, 1));
    EXPECT_NE(std::string::npos, first.find(R"(name="Unsized")"));
    std::vector<std::string> ids = all(first, R"x(<p:cNvPr id="(\d+)")x");
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(ids.end(), std::adjacent_find(ids.begin(), ids.end())) << first;
    // Each r:embed names an image relationship of the slide.
    std::string const rels = zipItem(deck, "ppt/slides/_rels/slide1.xml.rels");
    for (auto const& id : all(first, R"x(r:embed="([^"]*)")x")) {
        std::smatch m;
        ASSERT_TRUE(std::regex_search(rels, m, std::regex("<Relationship [^>]*Id=\"" + id + "\"[^>]*>")));
        EXPECT_NE(std::string::npos, m.str().find("relationships/image\"")) << m.str();
        EXPECT_NE(std::string::npos, m.str().find("../media/")) << m.str();
    }
    EXPECT_EQ(2u, countOf(first, "<a:blip r:embed="));

    // The placeholder's id, name and p:ph live on in the picture, and its box
    // from the layout decides where the image goes.
    std::string const second = readPart(deck, u"/ppt/slides/slide2.xml");
    EXPECT_NE(std::string::npos, second.find(R"(<p:nvPicPr><p:cNvPr id="6" name="Picture"/>)")) << second;
    EXPECT_TRUE(std::regex_search(second, std::regex(R"(<p:nvPr><p:ph [^>]*type="pic")"))) << second;
    EXPECT_EQ("3238500,2352294 5715000x2857500", geometry(second, 0));
    EXPECT_EQ(std::string::npos, second.find("data-uid"));
    EXPECT_EQ(std::string::npos, second.find("<p:sp><p:nvSpPr><p:cNvPr id=\"6\""));
    EXPECT_EQ("4787265,640080 6686550x5349240", geometry(readPart(deck, u"/ppt/slides/slide3.xml"), 0));
    EXPECT_EQ("457200,3323844 1828800x914400", geometry(readPart(deck, u"/ppt/slides/slide4.xml"), 0));

    if (std::filesystem::exists(schemaValidator())) {
        std::string const report = validate(deck);
        EXPECT_NE(std::string::npos, report.find(" 0 invalid")) << report;
    }
}

TEST_F(PictureDeck, ImagesThatCantBeUsedLeaveAValidDeck) {
    // Measured by their headers, but missing, of no known type, or empty.
    writeFile(dir / "image.xyz", png(40, 40));
    writeFile(dir / "empty.png", "");
    std::filesystem::path const deck = dir / "bad.pptx";
    {
        ppt::Presentation p(deck.u16string());
        ppt::Slide blank = p.add(u"Blank");
        for (auto name : {"missing.png", "image.xyz", "empty.png"})
            blank.add(Picture((dir / name).u16string()));
        ppt::Slide titled = p.add(u"Title and Picture");
        PicturePlaceholder::cast(titled.find(u"Picture").at(0))
            ->replace(Picture((dir / "missing.gif").u16string()));
        ASSERT_TRUE(p.close());
    }
    std::string const first = readPart(deck, u"/ppt/slides/slide1.xml");
    EXPECT_EQ(3u, countOf(first, "<p:pic>"));
    EXPECT_EQ("0,0 2857500x2857500", geometry(first, 0));  // 300 by 300 pixels
    EXPECT_EQ("0,0 381000x381000", geometry(first, 1));    // the header of a file of no known type
    // None holds an image to copy: no r:embed, no media part.
    EXPECT_EQ(0u, countOf(first, "r:embed="));
    std::size_t media = 0;
    for (auto const& name : zipEntries(deck)) media += name.rfind("ppt/media/", 0) == 0;
    EXPECT_EQ(0u, media);
    // The placeholder is fitted as for a 300 by 300 image.
    std::string const second = readPart(deck, u"/ppt/slides/slide2.xml");
    EXPECT_EQ("4667250,2352294 2857500x2857500", geometry(second, 0));
    if (std::filesystem::exists(schemaValidator())) {
        std::string const report = validate(deck);
        EXPECT_NE(std::string::npos, report.find(" 0 invalid")) << report;
    }
}

// An SVG goes in beside a PNG drawn from it, at the picture's resolution
// across its width; one that can't be drawn goes in as it stands.
TEST_F(PictureDeck, SvgPicturesCarryABitmapFallback) {
    writeFile(dir / "bar.svg",
              "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 200 100'>"
              "<rect width='200' height='100' fill='teal'/></svg>");
    writeFile(dir / "broken.svg", "<svg width='20' height='10'><rect");
    std::filesystem::path const deck = dir / "svg.pptx";
    {
        ppt::Presentation p(deck.u16string());
        ppt::Slide blank = p.add(u"Blank");
        Picture bar((dir / "bar.svg").u16string());
        bar.setWidth(u"2in");
        bar.setResolution(150);
        blank.add(bar);
        blank.add(Picture((dir / "broken.svg").u16string()));
        ASSERT_TRUE(p.close());
    }
    std::string const slide = readPart(deck, u"/ppt/slides/slide1.xml");
    std::vector<std::string> const embeds = all(slide, R"x(r:embed="([^"]*)")x");
    ASSERT_EQ(3u, embeds.size()) << slide;
    EXPECT_NE(std::string::npos,
              slide.find(
                  "<a:extLst><a:ext uri=\"{96DAC541-7B7A-43D3-8B79-37D633B846F1}\"><asvg:svgBlip r:embed=\"" +
                  embeds[1] + "\""))
        << slide;
    std::string const rels = zipItem(deck, "ppt/slides/_rels/slide1.xml.rels");
    std::vector<std::string> targets;
    for (auto const& id : embeds) {
        std::smatch m;
        ASSERT_TRUE(
            std::regex_search(rels, m, std::regex("Id=\"" + id + "\"[^>]*Target=\"../media/([^\"]*)\"")));
        targets.push_back(m[1].str());
    }
    EXPECT_EQ(".png", targets[0].substr(targets[0].size() - 4));
    EXPECT_EQ(".svg", targets[1].substr(targets[1].size() - 4));
    EXPECT_EQ(".svg", targets[2].substr(targets[2].size() - 4));
    // 2 inches at 150 dots per inch, with the drawing's aspect.
    std::string const fallback = zipItem(deck, ("ppt/media/" + targets[0]).c_str());
    ASSERT_GE(fallback.size(), 24u);
    EXPECT_EQ(be32(300) + be32(150), fallback.substr(16, 8));
    if (std::filesystem::exists(schemaValidator())) {
        std::string const report = validate(deck);
        EXPECT_NE(std::string::npos, report.find(" 0 invalid")) << report;
    }
}

TEST_F(PictureDeck, PicturesOfTemplateSlidesTakeANewImageInTheirOwnBox) {
    std::filesystem::path const framed = realTemplates() / "ppt2016_autoshape-case009-ja.pptx";
    std::filesystem::path const populated = realTemplates() / "ppt2011mac_ph-populated-placeholders.pptx";
    if (!std::filesystem::exists(framed) || !std::filesystem::exists(populated))
        GTEST_SKIP() << "real templates missing";
    writeFile(dir / "wide.png", png(600, 300));
    Picture const wide((dir / "wide.png").u16string());

    // A picture with a box of its own on the slide: scaled down into it,
    // centred across.
    {
        ppt::Presentation p((dir / "framed.pptx").u16string(), framed.u16string());
        ppt::PPTNodeList const found = p.find(u"Picture 2");
        ASSERT_EQ(1u, found.size());
        Picture::cast(found.at(0))->replace(wide);
        ASSERT_TRUE(p.close());
    }
    std::string const slide = readPart(dir / "framed.pptx", u"/ppt/slides/slide1.xml");
    EXPECT_EQ("4224587,1877137 4475326x2237663", geometry(slide, 0));
    EXPECT_TRUE(
        std::regex_search(slide, std::regex(R"x(<p:cNvPr [^>]*id="2050" name="Picture 2"/><p:cNvPicPr>)x")))
        << slide;

    // A picture placeholder filled in the template inherits its box: the new
    // image keeps the placeholder's id, name and p:ph and no geometry.
    {
        ppt::Presentation p((dir / "populated.pptx").u16string(), populated.u16string());
        ppt::PPTNodeList const found = p.find(u"Picture Placeholder 2");
        ASSERT_EQ(1u, found.size());
        Picture::cast(found.at(0))->replace(wide);
        ASSERT_TRUE(p.close());
    }
    std::string const filled = readPart(dir / "populated.pptx", u"/ppt/slides/slide1.xml");
    EXPECT_TRUE(std::regex_search(
        filled,
        std::regex(
            R"x(<p:cNvPr [^>]*id="3" name="Picture Placeholder 2"/><p:cNvPicPr>.*<p:ph [^>]*type="pic")x")))
        << filled;
    EXPECT_NE(std::string::npos, filled.find("<p:spPr/></p:pic>")) << filled;
    // Pictures of the other slides that nobody touched lose only the marker.
    EXPECT_EQ(std::string::npos,
              readPart(dir / "populated.pptx", u"/ppt/slides/slide2.xml").find("data-uid"));
    if (std::filesystem::exists(schemaValidator())) {
        std::string const report = validate(dir / "framed.pptx", "", framed);
        EXPECT_NE(std::string::npos, report.find(" 0 invalid")) << report;
        // Untouched groups, pictures and tables of the other slides too.
        std::string const populatedReport = validate(dir / "populated.pptx", "-e 0", populated);
        EXPECT_NE(std::string::npos, populatedReport.find(" 0 invalid")) << populatedReport;
    }
}

}  // namespace
}  // namespace test
}  // namespace deckforge
