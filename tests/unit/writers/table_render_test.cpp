// Tables in the output: the frame and grid of new tables, styles and their
// options, spans, the formats a cell takes from its entry, row, column and
// table, tables in the placeholders of the default template and on a
// template slide. The decks must be valid and show every cell in a real reader.
#include <algorithm>
#include <regex>

#include <gtest/gtest.h>

#include "engine/presentation.h"
#include "engine/presentation_fixture.h"
#include "formats/table_style_options.h"
#include "nodes/content_placeholder.h"
#include "nodes/table_placeholder.h"
#include "platform/i18n.h"
#include "platform/msg_ids.h"
#include "writers/writer_fixture.h"

namespace deckforge {
namespace test {
namespace {

using namespace ppt;

// The p:graphicFrame whose p:cNvPr has that name; empty if there is none.
std::string frame(std::string const& slide, std::string const& name) {
    std::size_t const at = slide.find("name=\"" + name + "\"");
    if (at == std::string::npos) return "";
    std::size_t const begin = slide.rfind("<p:graphicFrame>", at);
    return slide.substr(begin, slide.find("</p:graphicFrame>", at) + 17 - begin);
}

std::vector<std::string> all(std::string const& text, std::string const& pattern) {
    std::vector<std::string> found;
    std::regex const re(pattern);
    for (auto it = std::sregex_iterator(text.begin(), text.end(), re); it != std::sregex_iterator(); ++it)
        found.push_back((*it)[1].str());
    return found;
}

std::vector<std::string> gridWidths(std::string const& xml) {
    return all(xml, R"x(<a:gridCol w="(\d+)"/>)x");
}

// Each a:tc as "fill/anchor/anchorCtr", "-" for what it lacks.
std::vector<std::string> cellFormats(std::string const& xml) {
    std::vector<std::string> cells;
    for (auto const& tc : all(xml, R"x((<a:tc[ >].*?</a:tc>))x")) {
        std::smatch m;
        std::string fill =
            std::regex_search(tc, m, std::regex(R"x(srgbClr val="(\w+)")x")) ? m[1].str() : "-";
        std::string anchor = std::regex_search(tc, m, std::regex(R"x(anchor="(\w+)" anchorCtr="(\d)")x"))
                                 ? m[1].str() + "/" + m[2].str()
                                 : "-";
        cells.push_back(fill + "/" + anchor);
    }
    return cells;
}

Table table(std::string const& name, std::vector<std::vector<u16string>> const& rows) {
    Table result;
    result.setName(toString(name));
    for (auto const& texts : rows) {
        TableRow row;
        for (auto const& text : texts) row.append(text.empty() ? TableEntry() : TableEntry(text));
        result.append(row);
    }
    return result;
}

// Each table of a slide in a band of its own, so that a reader's text comes
// table by table.
Table at(Table table, u16string const& y) {
    table.setX(u"0.3in");
    table.setY(y);
    return table;
}

boost::shared_ptr<ColSpec> columnSpec(u16string const& width = u"") {
    return width.empty() ? boost::make_shared<ColSpec>() : boost::make_shared<ColSpec>(width);
}

class TableRendering : public PresentationTest {
protected:
    std::string slide(int n) const {
        return readPart(std::filesystem::path(file), u"/ppt/slides/slide" + num2str(n) + u".xml");
    }
    u16string file = out("tables.pptx");
};

TEST_F(TableRendering, FramesGridsStylesSpansAndCellFormats) {
    {
        Presentation presentation(file);
        Slide blank = presentation.add(u"Blank");

        Table plain = table("Plain", {{u"p1", u""}});
        blank.add(at(plain, u"0.2in"));

        Table tall = table("Tall", {{u"t1", u"t2", u"t3"}, {u"t4"}, {u"t5"}, {u"t6"}});
        tall.setHeight(u"2in");
        tall.setWidth(u"3000000emus");
        tall.setColSpecs({columnSpec(), columnSpec(u"600000emus")});
        tall.setStyleName(u"{2620452E-346E-4BD8-AF7F-B6E0B8F9AD9E}");
        auto none = boost::make_shared<TableStyleOptions>();
        none->setFirstRow(false);
        none->setBandedRows(false);
        tall.elementImpl()->appendFormat(none);
        blank.add(at(tall, u"1in"));

        Table named = table("Named", {{u"n1"}});
        named.setStyleName(u"Accent Header");
        auto columns = boost::make_shared<TableStyleOptions>();
        columns->setLastColumn(true);
        columns->setBandedColumns(true);
        named.elementImpl()->appendFormat(columns);
        blank.add(at(named, u"3.3in"));
        Table unknown = table("Unknown", {{u"u1"}});
        unknown.setStyleName(u"accent header");
        blank.add(at(unknown, u"4in"));

        // Every column given: the grid is theirs. An entry's width only widens.
        Table widths = table("Widths", {{u"w1", u"w2", u"w3"}, {u"w4", u"w5", u"w6"}});
        widths.setColSpecs(
            {columnSpec(u"1000000emus"), columnSpec(u"1000000emus"), columnSpec(u"1000000emus")});
        widths.entry(0, 0)->elementImpl()->appendFormat(boost::make_shared<ColWidth>(u"500000emus"));
        widths.entry(1, 1)->elementImpl()->appendFormat(boost::make_shared<ColWidth>(u"2000000emus"));
        blank.add(at(widths, u"4.8in"));

        Slide second = presentation.add(u"Blank");
        Table span = table("Span", {{u"s1", u"s2", u"s3", u"s4"}});
        TableEntry wide(u"wide");
        wide.setColSpan(3);
        TableRow first;
        first.append(wide);
        first.append(TableEntry(u"last"));
        span.tableImpl()->insertChild(first.makeInterface(), 0);
        auto red = columnSpec();
        red->setBackgroundColor(u"red");
        span.setColSpecs({columnSpec(), columnSpec(), columnSpec(), red});
        second.add(at(span, u"0.3in"));

        // Fill and anchor: entry, then row, then column, then table.
        Table layered = table("Layered", {{u"l1", u"l2", u"l3"}, {u"l4", u"l5", u"l6"}});
        layered.tableImpl()->appendFormat(boost::make_shared<BackgroundColor>(u"white"));
        layered.tableImpl()->appendFormat(boost::make_shared<VAlign>(u"bottom"));
        auto green = columnSpec();
        green->setBackgroundColor(u"green");
        green->setBold(true);
        auto centred = columnSpec();
        centred->setVAlign(u"middleCentered");
        layered.setColSpecs({green, centred});
        layered.row(0)->setBackgroundColor(u"yellow");
        layered.entry(0, 0)->setBackgroundColor(u"blue");
        layered.entry(1, 2)->setVAlign(u"top");
        second.add(at(layered, u"2in"));
        ASSERT_TRUE(presentation.close());
    }
    std::string const first = slide(1);
    std::string const plain = frame(first, "Plain");
    EXPECT_NE(std::string::npos,
              plain.find(R"(<p:xfrm><a:off x="274320" y="182880"/><a:ext cx="3234567" cy="3234567"/>)"))
        << plain;
    EXPECT_EQ((std::vector<std::string>{"1617283", "1617283"}), gridWidths(plain));
    // Attributes come out in the order of their names.
    EXPECT_NE(std::string::npos, plain.find(R"(<a:tblPr bandRow="1" firstRow="1"/><a:tblGrid>)"));
    EXPECT_NE(std::string::npos, plain.find(R"(<a:tr h="0">)"));
    // An entry without paragraphs gets an empty one, without a list style.
    EXPECT_NE(std::string::npos,
              plain.find("<a:txBody><a:bodyPr/><a:p><a:endParaRPr/></a:p></a:txBody></a:tc>"));
    EXPECT_EQ(std::string::npos, plain.find("a:lstStyle"));

    std::string const tall = frame(first, "Tall");
    EXPECT_EQ(4u, countOf(tall, R"(<a:tr h="457200">)"));
    EXPECT_EQ((std::vector<std::string>{"1200000", "600000", "1200000"}), gridWidths(tall));
    EXPECT_NE(std::string::npos, tall.find(R"(cx="3000000")"));
    // By id and by name, the same style; options all off write no flag.
    std::string const styleId = "<a:tableStyleId>{2620452E-346E-4BD8-AF7F-B6E0B8F9AD9E}</a:tableStyleId>";
    EXPECT_NE(std::string::npos, tall.find("<a:tblPr>" + styleId + "</a:tblPr>")) << tall;
    std::string const named = frame(first, "Named");
    EXPECT_NE(std::string::npos,
              named.find(R"(<a:tblPr bandCol="1" bandRow="1" firstRow="1" lastCol="1">)" + styleId));
    EXPECT_EQ(std::string::npos, frame(first, "Unknown").find("tableStyleId"));
    // Style names are exact; the warning travels as an error.
    std::string const warning = toUtf8(fl::i18n::MessageCatalog::get_message(
        resource_core::makeMsgID<ppt_warning::invalidTableStyle>(u16string(u"accent header"))));
    EXPECT_EQ(1,
              std::count(dispatched().begin(), dispatched().end(), "deckforge.ppt.ErrorMessage " + warning));
    std::string const widths = frame(first, "Widths");
    EXPECT_EQ((std::vector<std::string>{"1000000", "2000000", "1000000"}), gridWidths(widths));
    EXPECT_NE(std::string::npos, widths.find(R"(cx="3234567")"));

    std::string const second = slide(2);
    std::string const span = frame(second, "Span");
    std::string const filler =
        R"(<a:tc hMerge="1"><a:txBody><a:bodyPr/><a:lstStyle/><a:p><a:endParaRPr/></a:p></a:txBody></a:tc>)";
    EXPECT_NE(std::string::npos,
              span.find(R"(<a:tc gridSpan="3"><a:txBody><a:bodyPr/><a:p><a:r><a:t>wide</a:t>)"
                        "</a:r></a:p></a:txBody></a:tc>" +
                        filler + filler + "<a:tc><a:txBody>"))
        << span;
    // After the span the entry stands in the fourth column, and takes its fill.
    EXPECT_EQ((std::vector<std::string>{"-/-", "-/-", "-/-", "FF0000/-", "-/-", "-/-", "-/-", "FF0000/-"}),
              cellFormats(span));

    std::string const layered = frame(second, "Layered");
    EXPECT_EQ((std::vector<std::string>{"0000FF/b/0", "FFFF00/ctr/1", "FFFF00/b/0", "008000/b/0",
                                        "FFFFFF/ctr/1", "FFFFFF/t/0"}),
              cellFormats(layered));
    // Run formats go the same way: the first column's runs are bold.
    EXPECT_EQ((std::vector<std::string>{"l1", "l4"}), all(layered, R"x(<a:rPr b="1"/><a:t>(\w+)</a:t>)x"));

    if (std::filesystem::exists(schemaValidator())) {
        std::string const report = validate(std::filesystem::path(file), "-e 0");
        EXPECT_NE(std::string::npos, report.find(", 0 invalid")) << report;
    }

    if (!officeToolsAvailable()) GTEST_SKIP() << "soffice or pdftotext missing";
    std::string const d = dir.path().string();
    ASSERT_EQ(0, run("cd '" + d + "' && HOME='" + d + "' soffice -env:UserInstallation=file://" + d +
                     "/lo --headless --convert-to pdf --outdir pdf tables.pptx")
                     .second);
    std::string const text = run("pdftotext -layout '" + d + "/pdf/tables.pdf' -").first;
    std::size_t from = 0;
    for (char const* cell :
         {"p1", "t1",   "t2",   "t3", "t4", "t5", "t6", "n1", "u1", "w1", "w2", "w3", "w4", "w5",
          "w6", "wide", "last", "s1", "s2", "s3", "s4", "l1", "l2", "l3", "l4", "l5", "l6"}) {
        std::size_t const found = text.find(cell, from);
        ASSERT_NE(std::string::npos, found) << cell << " after " << from << " in\n" << text;
        from = found + 1;
    }
}

TEST_F(TableRendering, PlaceholdersOfTheDefaultTemplate) {
    {
        Presentation presentation(file);
        Slide titled = presentation.add(u"Title and Table");
        titled.replace(u"Title", u"Tables");
        TablePlaceholder::cast(titled.find(u"Table").at(0))
            ->replace(table("Given", {{u"h1", u"h2"}, {u"r1", u"r2"}}));
        Slide content = presentation.add(u"Title and Content");
        Table sized = table("", {{u"c1", u"c2", u"c3"}});
        sized.setColSpecs({columnSpec(u"2in"), columnSpec(u"3in")});
        ContentPlaceholder::cast(content.find(u"Content").at(0))->replace(sized);
        Slide empty = presentation.add(u"Title and Content");
        ContentPlaceholder::cast(empty.find(u"Content").at(0))->replace(Table(2));
        ASSERT_TRUE(presentation.close());
    }
    // The frame takes over the placeholder's id, name and p:ph, and the box
    // of the layout's placeholder: a graphic frame without p:xfrm is refused
    // by the schema and drawn as a sliver.
    std::string const first = slide(1);
    std::string const given = frame(first, "Table");
    EXPECT_NE(std::string::npos, given.find(R"(<p:cNvPr id="6" name="Table"/><p:cNvGraphicFramePr>)"))
        << given;
    EXPECT_TRUE(std::regex_search(given, std::regex(R"(<p:nvPr><p:ph [^>]*type="tbl")"))) << given;
    EXPECT_NE(std::string::npos,
              given.find(R"(<p:xfrm><a:off x="685800" y="1572768"/><a:ext cx="10820400" cy="4416552"/>)"))
        << given;
    EXPECT_EQ((std::vector<std::string>{"5410200", "5410200"}), gridWidths(given));
    EXPECT_EQ(2u, countOf(given, "<a:tr "));
    EXPECT_EQ(std::string::npos, first.find("Click icon to add table"));
    std::string const second = slide(2);
    // The column without a width takes what remains of the frame.
    EXPECT_EQ((std::vector<std::string>{"1828800", "2743200", "6248400"}),
              gridWidths(frame(second, "Content")));
    // An empty table leaves the placeholder, with an empty paragraph.
    std::string const third = slide(3);
    EXPECT_EQ(std::string::npos, third.find("p:graphicFrame"));
    std::size_t const content = third.find(R"(name="Content")");
    ASSERT_NE(std::string::npos, content);
    EXPECT_NE(std::string::npos, third.find("<a:p><a:endParaRPr/></a:p></p:txBody>", content));
    for (std::string const& xml : {first, second, third}) EXPECT_EQ(std::string::npos, xml.find("data-uid"));
    if (std::filesystem::exists(schemaValidator())) {
        std::string const report = validate(std::filesystem::path(file), "-e 0");
        EXPECT_NE(std::string::npos, report.find(", 0 invalid")) << report;
    }
}

TEST_F(TableRendering, BoxesFromTheMasterAndFromATemplateSlidesFrame) {
    // A layout placeholder without a box of its own: the master's shape of
    // the same id gives it; the table's own Y wins.
    PackageRecipe recipe = deckTemplate(true);
    for (auto& part : recipe.parts)
        if (part.name == kMaster)
            part.xml.insert(
                part.xml.find("</p:spTree>"),
                "<p:sp><p:nvSpPr><p:cNvPr id=\"3\" name=\"Body\"/><p:cNvSpPr/><p:nvPr>"
                "<p:ph type=\"body\" idx=\"1\"/></p:nvPr></p:nvSpPr><p:spPr><a:xfrm>"
                "<a:off x=\"100\" y=\"200\"/><a:ext cx=\"3000\" cy=\"4000\"/></a:xfrm></p:spPr></p:sp>");
    recipe.write(dir / "template.pptx");
    RenderedDeck deck(dir / "template.pptx", dir / "master.pptx", [](PresentationModel& model) {
        PPTNodePtr slide = newSlide(model, u"Title and Content");
        PPTNodeList found;
        PPTNodeImpl::findNodes(u"Content Placeholder 2", slide, found);
        Table given = table("", {{u"a", u"b"}});
        given.setY(u"500emus");
        ContentPlaceholder::cast(found.at(0))->replace(given);
        return std::vector<PPTNodePtr>{slide};
    });
    std::string const fromMaster =
        frame(readPart(deck.out, u"/ppt/slides/slide1.xml"), "Content Placeholder 2");
    EXPECT_NE(std::string::npos,
              fromMaster.find(R"(<p:xfrm><a:off x="100" y="500"/><a:ext cx="3000" cy="4000"/>)"))
        << fromMaster;
    EXPECT_EQ((std::vector<std::string>{"1500", "1500"}), gridWidths(fromMaster));

    std::filesystem::path const populated = realTemplates() / "ppt2011mac_ph-populated-placeholders.pptx";
    if (!std::filesystem::exists(populated)) GTEST_SKIP() << "real templates missing";
    // Untouched, a template slide's table stays as it is, but for the marker.
    {
        Presentation untouched(out("untouched.pptx"), populated.u16string());
        untouched.find(u"");  // opens it
        ASSERT_TRUE(untouched.close());
    }
    std::string const kept = readPart(dir / "untouched.pptx", u"/ppt/slides/slide3.xml");
    EXPECT_NE(std::string::npos, kept.find("<a:gridCol w=\"1828800\"/>"));
    EXPECT_EQ(std::string::npos, kept.find("data-uid"));
    // Replaced, it keeps its frame's box and gets a grid of the new table's columns.
    {
        Presentation replaced(out("replaced.pptx"), populated.u16string());
        Table::cast(replaced.find(u"Table Placeholder 2").at(0))->replace(table("", {{u"x", u"y", u"z"}}));
        ASSERT_TRUE(replaced.close());
    }
    std::string const framed =
        frame(readPart(dir / "replaced.pptx", u"/ppt/slides/slide3.xml"), "Table Placeholder 2");
    EXPECT_NE(std::string::npos,
              framed.find(R"(<p:xfrm><a:off x="2743200" y="2057400"/><a:ext cx="3657600" cy="1112520"/>)"))
        << framed;
    EXPECT_EQ((std::vector<std::string>{"1219200", "1219200", "1219200"}), gridWidths(framed));
    if (std::filesystem::exists(schemaValidator())) {
        for (char const* name : {"untouched.pptx", "replaced.pptx"}) {
            std::string const report = validate(dir / name, "-e 0", populated);
            EXPECT_NE(std::string::npos, report.find(" 0 invalid")) << report;
        }
    }
}

}  // namespace
}  // namespace test
}  // namespace deckforge
