// What each format kind writes, read back from a closed deck: by a node's
// own format and by inheritance (run from paragraph and box, paragraph from
// box), with the children of a:rPr and p:spPr in the order the schema wants.
#include <cctype>
#include <locale>
#include <map>
#include <regex>

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>

#include "template/presentation_model.h"
#include "engine/presentation.h"
#include "engine/presentation_fixture.h"
#include "formats/alignment.h"
#include "formats/character_formats.h"
#include "formats/color.h"
#include "formats/dimension_formats.h"
#include "nodes/paragraph.h"
#include "nodes/text_box.h"
#include "template/template_records.h"
#include "writers/writer_fixture.h"

namespace deckforge {
namespace test {
namespace {

using namespace ppt;

u16string const kSlideRel = u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/slide";

template <class F, class... A>
void give(Element& element, A... args) {
    Formats style = element.getStyle();
    style.appendFormat(boost::make_shared<F>(args...));
    element.setStyle(style);
}

// An element's attributes, and its content as written.
struct Markup {
    std::map<std::string, std::string> attributes;
    std::string content;
};

// The n-th element of that name from `from` on; empty if there is none.
Markup element(std::string const& xml, std::string const& name, std::size_t n = 0, std::size_t from = 0) {
    Markup result;
    std::size_t at = from;
    for (std::size_t i = 0; i <= n; ++i) {
        at = xml.find("<" + name, i == 0 ? at : at + 1);
        while (at != std::string::npos && std::isalnum(static_cast<unsigned char>(xml[at + name.size() + 1])))
            at = xml.find("<" + name, at + 1);
        if (at == std::string::npos) return result;
    }
    std::size_t const end = xml.find('>', at);
    std::string const tag = xml.substr(at, end - at);
    std::regex const attribute("([A-Za-z:]+)=\"([^\"]*)\"");
    for (std::sregex_iterator it(tag.begin(), tag.end(), attribute), none; it != none; ++it)
        result.attributes[(*it)[1]] = (*it)[2];
    if (xml[end - 1] != '/') result.content = xml.substr(end + 1, xml.find("</" + name + ">", end) - end - 1);
    return result;
}

std::string fill(std::string const& hex) {
    return "<a:solidFill><a:srgbClr val=\"" + hex + "\"/></a:solidFill>";
}

using Attributes = std::map<std::string, std::string>;

class FormatRendering : public PresentationTest {
protected:
    void SetUp() override {
        PresentationTest::SetUp();
        file = out("formats.pptx");
    }
    // The first slide part of the closed deck.
    std::string firstSlide() const {
        ppt::OPCPartReader reader(file);
        auto const& main = reader.getPart(reader.getRelatedPartName(kOfficeDocument));
        return readPart(file, reader.getRelatedPartName(main, kSlideRel));
    }
    u16string file;
};

// Written under a host locale that groups digits, which markup must not show.
TEST_F(FormatRendering, OwnAndInheritedFormatsWriteTheirAttributesInSchemaOrder) {
    struct Thousands : std::numpunct<char> {
        char do_thousands_sep() const override { return ','; }
        std::string do_grouping() const override { return "\3"; }
    };
    struct GlobalLocale {
        std::locale previous = std::locale::global(std::locale(std::locale::classic(), new Thousands));
        ~GlobalLocale() { std::locale::global(previous); }
    } grouping;
    Presentation presentation(file);
    Slide slide = presentation.add(u"Blank");
    TextBox box(u"Box");
    give<VAlign>(box, u"bottomCentered");
    give<BackgroundColor>(box, u"#00ff00");
    give<HAlign>(box, u"right");
    give<FontSize>(box, u"20pt");
    give<Bold>(box, true);

    Paragraph first;
    give<FontColor>(first, u"Blue");
    give<HAlign>(first, u"ThaiDistributed");
    Text own = first.append(u"own");
    give<FontFamily>(own, u"Arial");
    Text plain = first.append(u"plain");
    give<Bold>(plain, false);
    give<Italic>(plain, true);
    give<Strike>(plain, u"DOUBLE");
    give<Underline>(plain, u"DotDotDashHeavy");
    give<FontSize>(plain, u"10.5pt");
    ExternalLink link = first.append(ExternalLink(u"http://example.com/", u"link"));
    give<FontFamily>(link, u"", u"Mangal");
    Text both = first.append(u"both");
    give<Subscript>(both, true);
    give<Superscript>(both, false);
    Text low = first.append(u"low");
    give<Subscript>(low, true);

    Paragraph second;
    Text high = second.append(u"high");
    give<Superscript>(high, true);
    // Formats a run can't show: they stay in its style and write nothing.
    Text ignored = second.append(u"ignored");
    give<HAlign>(ignored, u"left");
    give<BackgroundColor>(ignored, u"red");
    give<VAlign>(ignored, u"top");
    give<VAlign>(second, u"bottom");

    box.add(first);
    box.add(second);
    slide.nodeImpl()->appendChild(box.makeInterface());
    ASSERT_TRUE(presentation.close());

    std::string const xml = firstSlide();
    std::size_t const at = xml.find("name=\"Box\"");
    ASSERT_NE(std::string::npos, at);
    auto run = [&](std::size_t n) { return element(xml, "a:rPr", n, at); };

    // The run's own family, then the inherited fill: the fill still leads.
    EXPECT_EQ((Attributes{{"b", "1"}, {"sz", "2000"}}), run(0).attributes);
    EXPECT_EQ(fill("0000FF") + "<a:latin typeface=\"Arial\"/>", run(0).content);
    EXPECT_EQ((Attributes{
                  {"b", "0"}, {"i", "1"}, {"strike", "dblStrike"}, {"u", "dotDotDashHeavy"}, {"sz", "1050"}}),
              run(1).attributes);
    EXPECT_EQ(fill("0000FF"), run(1).content);
    // A link's click comes after the fill and the fonts; an empty Latin
    // font writes only a:cs.
    EXPECT_EQ(0u, run(2).content.find(fill("0000FF") + "<a:cs typeface=\"Mangal\"/><a:hlinkClick "))
        << run(2).content;
    EXPECT_EQ("0", run(3).attributes["baseline"]);  // the later Superscript false wins
    EXPECT_EQ("-25000", run(4).attributes["baseline"]);
    EXPECT_EQ("30000", run(5).attributes["baseline"]);
    EXPECT_EQ((Attributes{{"b", "1"}, {"sz", "2000"}}), run(6).attributes);
    EXPECT_EQ("", run(6).content);

    EXPECT_FALSE(std::regex_search(xml, std::regex("[0-9],[0-9]{3}"))) << xml;

    // The paragraph's own alignment, the box's for the other.
    EXPECT_EQ((Attributes{{"algn", "thaiDist"}}), element(xml, "a:pPr", 0, at).attributes);
    EXPECT_EQ((Attributes{{"algn", "r"}}), element(xml, "a:pPr", 1, at).attributes);
    Markup const body = element(xml, "a:bodyPr", 0, at);
    EXPECT_EQ("b", body.attributes.at("anchor"));
    EXPECT_EQ("1", body.attributes.at("anchorCtr"));
    // One fill, after the geometry.
    std::string const shape = element(xml, "p:spPr", 0, at).content;
    EXPECT_LT(shape.find("a:prstGeom"), shape.find(fill("00FF00"))) << shape;
    EXPECT_EQ(1u, countOf(shape, "<a:solidFill>"));
}

// One deck with every kind of format on a new box and on a layout's
// placeholder, validated against the schemas.
TEST_F(FormatRendering, EveryFormatKindGivesAValidDeck) {
    Presentation presentation(file);
    Slide slide = presentation.add(u"Title and Content");
    presentation.replace(u"Title", u"Title text");
    PPTNodeList const titles = presentation.find(u"Title");
    ASSERT_FALSE(titles.empty());
    auto title = BaseTextBox::cast(titles.at(0));
    ASSERT_TRUE(title);
    title->setBackgroundColor(u"navy");
    title->setVAlign(u"middle");
    title->setFontColor(u"white");
    title->setUnderlineStyle(u"wavydouble");
    // Shapes of the slide that have a fill and an outline already: the
    // title's fill gives way to its colour, before the outline.
    PresentationModel::buildSlideDocument(*slide.slideImpl()->getTemplateSlide());
    xercesc::DOMDocument* document = slide.slideImpl()->getTemplateSlide()->document;
    xercesc::DOMNodeList* shapes = document->getElementsByTagName(u"p:spPr");
    for (XMLSize_t i = 0; i < shapes->getLength(); ++i) {
        shapes->item(i)->appendChild(document->createElement(u"a:noFill"));
        shapes->item(i)->appendChild(document->createElement(u"a:ln"));
    }

    TextBox box(u"Box");
    box.setBackgroundColor(u"LightYellow");
    box.setVAlign(u"topCentered");
    box.setFont(u"Georgia");
    box.setComplexScriptFont(u"Mangal");
    box.setFontSize(u"1cm");
    Paragraph paragraph(u"every");
    paragraph.setHAlign(u"justified");
    paragraph.setBold(true);
    paragraph.setItalic(false);
    paragraph.setStrikeStyle(u"single");
    paragraph.setFontColor(u"#123abc");
    Text sub = paragraph.append(u" sub");
    sub.setSubscript(true);
    sub.setSuperscript(true);
    ExternalLink link = paragraph.append(ExternalLink(u"http://example.com/", u" link"));
    link.setFont(u"Courier New");
    link.setUnderlineStyle(u"dash");
    box.add(paragraph);
    slide.nodeImpl()->appendChild(box.makeInterface());
    ASSERT_TRUE(presentation.close());

    std::string const xml = firstSlide();
    std::size_t const at = xml.find("name=\"Box\"");
    ASSERT_NE(std::string::npos, at);
    Markup const linked = element(xml, "a:rPr", 2, at);
    EXPECT_EQ("30000", element(xml, "a:rPr", 1, at).attributes["baseline"]);
    EXPECT_EQ((Attributes{{"b", "1"}, {"i", "0"}, {"strike", "sngStrike"}, {"u", "dash"}, {"sz", "2834"}}),
              linked.attributes);
    // The link's own family replaces the box's as a whole: no a:cs.
    EXPECT_EQ(0u, linked.content.find(fill("123ABC") + "<a:latin typeface=\"Courier New\"/><a:hlinkClick "))
        << linked.content;
    EXPECT_NE(std::string::npos,
              element(xml, "a:rPr", 0, at)
                  .content.find("<a:latin typeface=\"Georgia\"/><a:cs typeface=\"Mangal\"/>"));
    Markup titleShape;
    for (std::size_t n = 0; titleShape.content.find("000080") == std::string::npos; ++n) {
        titleShape = element(xml, "p:spPr", n);
        ASSERT_FALSE(titleShape.content.empty() && titleShape.attributes.empty()) << xml;
    }
    EXPECT_EQ(std::string::npos, titleShape.content.find("a:noFill")) << titleShape.content;
    EXPECT_NE(std::string::npos, titleShape.content.find(fill("000080") + "<a:ln/>")) << titleShape.content;

    if (!std::filesystem::exists(schemaValidator())) GTEST_SKIP() << "no schema validator";
    std::string const report = validate(std::filesystem::path(file), "-e 0");
    EXPECT_NE(std::string::npos, report.find(", 0 invalid")) << report;
}

}  // namespace
}  // namespace test
}  // namespace deckforge
