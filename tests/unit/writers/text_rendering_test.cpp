// Paragraphs, runs and links rendered through a real presentation: a text
// box of paragraphs on a new slide of the default template, closed, and read
// back from the file.
#include <chrono>
#include <climits>
#include <cstdlib>
#include <functional>
#include <map>
#include <regex>
#include <set>

#include <gtest/gtest.h>

#include "template/presentation_model.h"
#include "engine/presentation.h"
#include "engine/presentation_fixture.h"
#include "nodes/paragraph.h"
#include "nodes/text_box.h"
#include "template/template_records.h"
#include "writers/writer_fixture.h"

namespace deckforge {
namespace test {
namespace {

using namespace ppt;

u16string const kSlideRel = u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/slide";
u16string const kHyperlinkRel =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/hyperlink";

// Relationship ids are the package's to choose.
std::string withoutIds(std::string const& markup) {
    return std::regex_replace(markup, std::regex("r:id=\"rId[0-9]+\""), "r:id=\"ID\"");
}

class TextRendering : public PresentationTest {
protected:
    // Puts the paragraphs into a text box "Box" on a new blank slide, closes,
    // and keeps the slide part and the paragraphs' markup.
    void render(std::vector<Paragraph> const& paragraphs, std::function<void(TextBox&)> const& styleBox = {},
                std::function<void(Slide&)> const& editSlide = {}) {
        file = out("deck.pptx");
        Presentation presentation(file);
        Slide slide = presentation.add(u"Blank");
        if (editSlide) editSlide(slide);
        TextBox box(u"Box");
        if (styleBox) styleBox(box);
        for (auto const& paragraph : paragraphs) box.nodeImpl()->appendChild(paragraph.makeInterface());
        slide.nodeImpl()->appendChild(box.makeInterface());
        ASSERT_TRUE(presentation.close());

        ppt::OPCPartReader reader(file);
        u16string const main = reader.getRelatedPartName(kOfficeDocument);
        slidePart = reader.getRelatedPartName(reader.getPart(main), kSlideRel);
        xml = readPart(file, slidePart);
        auto const from = xml.find("<a:lstStyle/>", xml.find("name=\"Box\""));
        ASSERT_NE(std::string::npos, from);
        body = xml.substr(from + 13, xml.find("</p:txBody>", from) - from - 13);
    }
    // The slide's hyperlink relationships, id to target, all external.
    std::map<u16string, u16string> hyperlinks() const {
        std::map<u16string, u16string> links;
        ppt::OPCPartReader reader(file);
        for (auto const& r : reader.getPart(slidePart).getRelationships()) {
            if (r.getType() != kHyperlinkRel) continue;
            EXPECT_EQ(opc::model::TargetModeExternal, r.getTargetMode());
            links[r.getID()] = r.getTarget();
        }
        return links;
    }

    u16string file, slidePart;
    std::string xml, body;
};

TEST_F(TextRendering, ParagraphLevelsAndRunOrder) {
    Paragraph mixed(u"one");
    mixed.append(ExternalLink(u"http://example.com/", u"two"));
    mixed.append(Text(3.0));
    render({Paragraph(), Paragraph(u"none"), Paragraph(u"zero", 0u), Paragraph(u"l1", 1u),
            Paragraph(u"l2", 2u), Paragraph(u"deep", 9u), Paragraph(u"max", UINT_MAX), mixed});

    // No level and level 0 give no a:pPr; a level past DrawingML's nine
    // stays at the deepest one; an empty paragraph has no a:endParaRPr.
    EXPECT_EQ(
        "<a:p/>"
        "<a:p><a:r><a:t>none</a:t></a:r></a:p>"
        "<a:p><a:r><a:t>zero</a:t></a:r></a:p>"
        "<a:p><a:pPr lvl=\"0\"/><a:r><a:t>l1</a:t></a:r></a:p>"
        "<a:p><a:pPr lvl=\"1\"/><a:r><a:t>l2</a:t></a:r></a:p>"
        "<a:p><a:pPr lvl=\"8\"/><a:r><a:t>deep</a:t></a:r></a:p>"
        "<a:p><a:pPr lvl=\"8\"/><a:r><a:t>max</a:t></a:r></a:p>"
        "<a:p><a:r><a:t>one</a:t></a:r><a:r><a:rPr><a:hlinkClick r:id=\"ID\"/></a:rPr><a:t>two</a:t></a:r>"
        "<a:r><a:t>3</a:t></a:r></a:p>",
        withoutIds(body));
}

// One deck with all the input that could break a part: every case is
// written, the close succeeds, and the schemas accept the slide (namespaces
// too) and its relationships.
TEST_F(TextRendering, HostileTextAndTargetsStayValid) {
    u16string const rtl = u"\u05E9\u05DC\u05D5\u05DD \u0645\u0631\u062D\u0628\u0627";
    Paragraph links;
    for (u16string target : {u"http://example.com/a b", u"http://example.com/a b",
                             u"mailto:Zo\u00eb@x.org?subject=Hi all", u"file:///C:/My Docs/\u65e5\u672c.pdf",
                             u"javascript:alert(\"<&>\")", u"https://x.org/?q=%41\u0001"})
        links.append(ExternalLink(target, u"L"));
    links.append(ExternalLink(u"http://example.com/", u"one\ntwo"));
    links.append(ExternalLink(u"", u"nowhere"));

    render({Paragraph(u"\U0001F600 \u4e2d\u6587 \U00020BB7"), Paragraph(rtl), Paragraph(u""),
            Paragraph(u"a\u0001b\u001F\uFFFEc" + u16string(1, 0xD800)), Paragraph(u"  <tab>\there"),
            Paragraph(u"one\ntwo\r\nthree\vfour\n"), links},
           {}, [](Slide& slide) {
               // Make the links declare the prefix of r:id themselves.
               PresentationModel::buildSlideDocument(*slide.slideImpl()->getTemplateSlide());
               slide.slideImpl()->getTemplateSlide()->document->getDocumentElement()->removeAttribute(
                   u"xmlns:r");
           });

    // Supplementary characters as single UTF-8 sequences, right-to-left text
    // in logical order, forbidden controls dropped and a lone surrogate
    // marked, each line end a break; a link broken over two lines links both
    // pieces but not the break, and an empty target gives r:id="".
    std::string const link = "<a:r><a:rPr><a:hlinkClick r:id=\"ID\"/></a:rPr><a:t>";
    EXPECT_EQ(
        "<a:p><a:r><a:t>\xF0\x9F\x98\x80 \xE4\xB8\xAD\xE6\x96\x87 \xF0\xA0\xAE\xB7</a:t></a:r></a:p>"
        "<a:p><a:r><a:t>" +
            toUtf8(rtl) +
            "</a:t></a:r></a:p>"
            "<a:p><a:r><a:t></a:t></a:r></a:p>"
            "<a:p><a:r><a:t>abc\xEF\xBF\xBD</a:t></a:r></a:p>"
            "<a:p><a:r><a:t>  &lt;tab&gt;\there</a:t></a:r></a:p>"
            "<a:p><a:r><a:t>one</a:t></a:r><a:br/><a:r><a:t>two</a:t></a:r><a:br/>"
            "<a:r><a:t>three</a:t></a:r><a:br/><a:r><a:t>four</a:t></a:r><a:br/></a:p>"
            "<a:p>" +
            link + "L</a:t></a:r>" + link + "L</a:t></a:r>" + link + "L</a:t></a:r>" + link +
            "L</a:t></a:r>" + link + "L</a:t></a:r>" + link + "L</a:t></a:r>" + link +
            "one</a:t></a:r><a:br><a:rPr/></a:br>" + link +
            "two</a:t></a:r>"
            "<a:r><a:rPr><a:hlinkClick r:id=\"\"/></a:rPr><a:t>nowhere</a:t></a:r></a:p>",
        withoutIds(body));

    // One external relationship for each link with a target, percent-encoded.
    std::multiset<u16string> targets;
    for (auto const& r : hyperlinks()) targets.insert(r.second);
    EXPECT_EQ((std::multiset<u16string>{
                  u"http://example.com/a%20b", u"http://example.com/a%20b",
                  u"mailto:Zo%C3%AB@x.org?subject=Hi%20all", u"file:///C:/My%20Docs/%E6%97%A5%E6%9C%AC.pdf",
                  u"javascript:alert(%22%3C&%3E%22)", u"https://x.org/?q=%41%01", u"http://example.com/"}),
              targets);

    EXPECT_NE(std::string::npos, xml.substr(0, xml.find("<p:cSld")).find("xmlns:r="));
    if (!std::filesystem::exists(schemaValidator())) GTEST_SKIP() << "no schema validator";
    std::string const report = validate(std::filesystem::path(file), "-e 0");
    EXPECT_NE(std::string::npos, report.find(", 0 invalid")) << report;
}

TEST_F(TextRendering, MegabyteRunIsWrittenInLinearTime) {
    u16string big;
    big.reserve(1u << 20);
    while (big.size() < (1u << 20)) big += u"lorem \u00e9\U0001F600 ipsum\t";
    auto const start = std::chrono::steady_clock::now();
    render({Paragraph(big)});
    auto const seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    // Generous for a debug build on a shared machine; quadratic work on a
    // megabyte would take minutes.
    EXPECT_LT(seconds, 30.0);
    EXPECT_EQ("<a:p><a:r><a:t>" + toUtf8(big) + "</a:t></a:r></a:p>", body);
}

}  // namespace
}  // namespace test
}  // namespace deckforge
