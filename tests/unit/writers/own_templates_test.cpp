// Templates through the whole road: the default one, real ones, four made by
// LibreOffice Impress from the flat-ODF sources in tests/fixtures/templates
// (see make.sh there), and one written here whose parts lie where no
// convention would look. Each gets a slide of every layout of every master,
// by name; the outputs must validate and open in an office suite with the
// right number of pages.
#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "engine/presentation.h"
#include "platform/host_services.h"
#include "writers/writer_fixture.h"

namespace deckforge {
namespace test {
namespace {

using ppt::Presentation;
namespace fs = std::filesystem;

u16string const kContentTypeBase = u"application/vnd.openxmlformats-officedocument.";
u16string const kTemplateType = kContentTypeBase + u"presentationml.template.main+xml";

// The layouts that Impress writes for every master page, in this order and
// in English, whatever the document calls its layouts.
std::vector<std::string> const kImpressLayouts = {"Blank Slide",
                                                  "Title Slide",
                                                  "Title, Content",
                                                  "Title, 2 Content",
                                                  "Title Only",
                                                  "Centered Text",
                                                  "Title, 2 Content and Content",
                                                  "Title Content and 2 Content",
                                                  "Title, 2 Content over Content",
                                                  "Title, Content over Content",
                                                  "Title, 4 Content",
                                                  "Title, 6 Content"};

fs::path fixtures() {
    return sourceDir() / "tests/fixtures/templates";
}

std::vector<std::string> utf8(std::vector<u16string> const& texts) {
    std::vector<std::string> out;
    for (auto const& t : texts) out.push_back(toUtf8(t));
    return out;
}

// The parts that the validator calls invalid.
std::set<std::string> invalidParts(fs::path const& file) {
    std::set<std::string> parts;
    std::istringstream report(schemaReport(file, "-e 0"));
    for (std::string line; std::getline(report, line);) {
        if (line.rfind("INVALID ", 0) == 0) parts.insert(line.substr(8, line.find(':') - 8));
    }
    return parts;
}

std::string themeXml(std::string const& name) {
    std::string xml = readFile(sourceDir() / "resources/templates/pptx/src/ppt/theme/theme1.xml");
    auto const at = xml.find("name=\"Deckforge\"");
    return xml.replace(at, 16, "name=\"" + name + "\"");
}

std::string masterXml(std::vector<std::pair<std::string, std::string>> const& layoutIds) {
    std::string ids;
    for (auto const& [id, rid] : layoutIds) ids += "<p:sldLayoutId id=\"" + id + "\" r:id=\"" + rid + "\"/>";
    auto const placeholder = [](char const* id, char const* name, char const* ph, char const* y,
                                char const* cy) {
        return std::string("<p:sp><p:nvSpPr><p:cNvPr id=\"") + id + "\" name=\"" + name +
               "\"/><p:cNvSpPr/><p:nvPr><p:ph" + ph +
               "/></p:nvPr></p:nvSpPr><p:spPr><a:xfrm><a:off x=\"457200\" y=\"" + y +
               "\"/><a:ext cx=\"8229600\" cy=\"" + cy +
               "\"/></a:xfrm></p:spPr><p:txBody><a:bodyPr/><a:lstStyle/><a:p/></p:txBody></p:sp>";
    };
    return "<p:sldMaster" + kNamespaces +
           "><p:cSld><p:spTree><p:nvGrpSpPr><p:cNvPr id=\"1\" "
           "name=\"\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr>"
           "<p:grpSpPr/>" +
           placeholder("2", "Titel", " type=\"title\"", "274638", "1143000") +
           placeholder("3", "Text", " type=\"body\" idx=\"1\"", "1600200", "4525963") +
           "</p:spTree></p:cSld><p:clrMap bg1=\"lt1\" tx1=\"dk1\" bg2=\"lt2\" tx2=\"dk2\" "
           "accent1=\"accent1\" "
           "accent2=\"accent2\" accent3=\"accent3\" accent4=\"accent4\" accent5=\"accent5\" "
           "accent6=\"accent6\" "
           "hlink=\"hlink\" folHlink=\"folHlink\"/><p:sldLayoutIdLst>" +
           ids + "</p:sldLayoutIdLst></p:sldMaster>";
}

// A template (of the template content type, so that opening copies it part by
// part) whose presentation part is /content/deck.xml, masters under /m/,
// layouts under /l/, themes under /looks/, reached by relative targets with
// "..", and relationship ids that aren't "rIdN". Decoys stand at the usual
// places, unrelated to anything: whoever guesses a path meets them.
PackageRecipe unusualPlaces() {
    u16string const pml = kContentTypeBase + u"presentationml.";
    std::string const title = placeholderXml("2", "Titel", " type=\"title\"");
    PackageRecipe r;
    r.part(u"/content/deck.xml",
           "<p:presentation" + kNamespaces +
               "><p:sldMasterIdLst><p:sldMasterId id=\"2147483648\" r:id=\"master-one\"/>"
               "<p:sldMasterId id=\"2147483651\" r:id=\"master-two\"/></p:sldMasterIdLst>"
               "<p:sldIdLst><p:sldId id=\"300\" r:id=\"page-one\"/></p:sldIdLst>"
               "<p:sldSz cx=\"9144000\" cy=\"6858000\"/><p:notesSz cx=\"6858000\" "
               "cy=\"9144000\"/></p:presentation>",
           kTemplateType);
    r.part(u"/m/first.xml", masterXml({{"2147483649", "layout-a"}, {"2147483650", "layout-b"}}),
           pml + u"slideMaster+xml");
    r.part(u"/m/second.xml", masterXml({{"2147483652", "layout-c"}}), pml + u"slideMaster+xml");
    r.part(u"/looks/night.xml", themeXml("Grün &amp; Blau"), kContentTypeBase + u"theme+xml");
    r.part(u"/looks/day.xml", themeXml("昼"), kContentTypeBase + u"theme+xml");
    r.part(u"/l/a.xml",
           layoutXml("Überschrift und Inhalt", title + placeholderXml("3", "Inhalt", " idx=\"1\"")),
           pml + u"slideLayout+xml");
    r.part(u"/l/b.xml",
           layoutXml("タイトルとコンテンツ", title + placeholderXml("3", "本文", " type=\"body\" idx=\"1\"")),
           pml + u"slideLayout+xml");
    r.part(u"/l/c.xml", layoutXml("Nur Titel", title), pml + u"slideLayout+xml");
    r.part(
        u"/content/pages/one.xml",
        "<p:sld" + kNamespaces +
            "><p:cSld><p:spTree><p:nvGrpSpPr><p:cNvPr id=\"1\" "
            "name=\"\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr>"
            "<p:grpSpPr/><p:sp><p:nvSpPr><p:cNvPr id=\"2\" name=\"Titel\"/><p:cNvSpPr/><p:nvPr>"
            "<p:ph type=\"title\"/></p:nvPr></p:nvSpPr><p:spPr/><p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:r>"
            "<a:rPr lang=\"de-DE\"/><a:t>Auftakt</a:t></a:r></a:p></p:txBody></p:sp></p:spTree></p:cSld>"
            "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sld>",
        pml + u"slide+xml");
    r.part(u"/content/looks/tables.xml",
           "<a:tblStyleLst xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\" "
           "def=\"{9D1E2C4B-6A35-4F0E-9B7A-2C51D8E4F6A0}\"><a:tblStyle "
           "styleId=\"{9D1E2C4B-6A35-4F0E-9B7A-2C51D8E4F6A0}\" styleName=\"Schlichtes "
           "Gitter\"/></a:tblStyleLst>",
           pml + u"tableStyles+xml");
    // Decoys.
    r.part(u"/ppt/presentation.xml",
           "<p:presentation" + kNamespaces + "><p:notesSz cx=\"6858000\" cy=\"9144000\"/></p:presentation>",
           kTemplateType);
    r.part(u"/ppt/theme/theme1.xml", themeXml("Decoy"), kContentTypeBase + u"theme+xml");
    r.part(u"/ppt/slideLayouts/slideLayout1.xml", layoutXml("Decoy", title), pml + u"slideLayout+xml");

    r.rel(u"", u"start", u"officeDocument", u"content/deck.xml");
    r.rel(u"/content/deck.xml", u"master-one", u"slideMaster", u"../m/first.xml");
    r.rel(u"/content/deck.xml", u"master-two", u"slideMaster", u"../m/second.xml");
    r.rel(u"/content/deck.xml", u"page-one", u"slide", u"pages/one.xml");
    r.rel(u"/content/deck.xml", u"grid", u"tableStyles", u"looks/tables.xml");
    r.rel(u"/m/first.xml", u"layout-a", u"slideLayout", u"../l/a.xml");
    r.rel(u"/m/first.xml", u"layout-b", u"slideLayout", u"../l/b.xml");
    r.rel(u"/m/first.xml", u"look", u"theme", u"../looks/night.xml");
    r.rel(u"/m/second.xml", u"look", u"theme", u"../looks/day.xml");
    r.rel(u"/m/second.xml", u"layout-c", u"slideLayout", u"../l/c.xml");
    for (char16_t const* layout : {u"/l/a.xml", u"/l/b.xml"})
        r.rel(layout, u"owner", u"slideMaster", u"../m/first.xml");
    r.rel(u"/l/c.xml", u"owner", u"slideMaster", u"../m/second.xml");
    r.rel(u"/content/pages/one.xml", u"layout", u"slideLayout", u"../../l/b.xml");
    return r;
}

struct Rendered {
    fs::path templateFile, out;
    std::size_t pages = 0;
    std::map<std::string, std::vector<std::string>> layoutsByMaster;
    std::vector<std::string> masters;
    std::size_t templateSlides = 0;
    std::vector<std::string> layouts(std::string const& master) const {
        auto const found = layoutsByMaster.find(master);
        return found == layoutsByMaster.end() ? std::vector<std::string>() : found->second;
    }
};

// Adds a slide of each layout of each master, by name, and closes; checks on
// the way that the template's bytes stay as they were.
Rendered renderEveryLayout(fs::path const& templateFile, fs::path const& out) {
    std::string const before = readFile(templateFile);
    Rendered r;
    r.templateFile = templateFile;
    r.out = out;
    Presentation presentation(out.u16string(), templateFile.u16string());
    EXPECT_TRUE(presentation.open());
    r.templateSlides = presentation.getChildren().size();
    r.masters = utf8(presentation.getMasterNames());
    std::size_t added = 0;
    for (auto const& master : std::vector<u16string>(presentation.getMasterNames())) {
        auto const layouts = std::vector<u16string>(presentation.getLayoutNames(master));
        r.layoutsByMaster[toUtf8(master)] = utf8(layouts);
        for (auto const& layout : layouts) {
            presentation.add(layout, master);
            ++added;
        }
    }
    EXPECT_TRUE(presentation.close());
    r.pages = r.templateSlides + added;
    EXPECT_EQ(before, readFile(templateFile)) << templateFile << " changed";
    return r;
}

class OwnTemplates : public ::testing::Test {
protected:
    ScratchDir dir;
};

TEST_F(OwnTemplates, UnusualPlacesAreReachedByRelationshipsAlone) {
    fs::path const file = dir / "unusual.potx";
    unusualPlaces().write(file);
    Rendered const r = renderEveryLayout(file, dir / "unusual.pptx");

    EXPECT_EQ((std::vector<std::string>{"Grün & Blau", "昼"}), r.masters);
    EXPECT_EQ((std::vector<std::string>{"Überschrift und Inhalt", "タイトルとコンテンツ"}),
              r.layouts("Grün & Blau"));
    EXPECT_EQ(std::vector<std::string>{"Nur Titel"}, r.layouts("昼"));
    EXPECT_EQ(1u, r.templateSlides);
    {
        Presentation presentation((dir / "again.pptx").u16string(), file.u16string());
        auto const& styles = presentation.getTableStyleNames();
        ASSERT_EQ(1u, styles.size());
        EXPECT_EQ(u"Schlichtes Gitter", styles[0].first);
    }

    ppt::OPCPartReader reader(r.out.u16string());
    ASSERT_EQ(u"/content/deck.xml", reader.getRelatedPartName(kRelBase + u"officeDocument"));
    EXPECT_EQ(kContentTypeBase + u"presentationml.presentation.main+xml",
              reader.getPart(u"/content/deck.xml").getContentType().toString());
    // Only what a relationship reaches is carried over from a template.
    for (char16_t const* decoy :
         {u"/ppt/presentation.xml", u"/ppt/theme/theme1.xml", u"/ppt/slideLayouts/slideLayout1.xml"})
        EXPECT_FALSE(reader.hasPart(decoy)) << toUtf8(decoy);

    std::string const deck = readPart(r.out, u"/content/deck.xml");
    EXPECT_EQ(4u, countOf(deck, "<p:sldId "));
    EXPECT_NE(std::string::npos, readPart(r.out, u"/content/pages/one.xml").find("Auftakt"));
    // The new slides in their layouts' order, each related to its layout by
    // the layout's real name.
    std::vector<u16string> targets;
    for (auto const& rel : reader.getPart(u"/content/deck.xml").getRelationships())
        if (rel.getType() == kRelBase + u"slide") {
            auto const slide = reader.getPart(rel);
            u16string const layout = reader.getRelatedPartName(slide, kRelBase + u"slideLayout");
            targets.push_back(slide.getName().toString() + u" " + layout);
        }
    EXPECT_EQ(
        (std::vector<u16string>{u"/content/pages/one.xml /l/b.xml", u"/ppt/slides/slide2.xml /l/a.xml",
                                u"/ppt/slides/slide3.xml /l/b.xml", u"/ppt/slides/slide4.xml /l/c.xml"}),
        targets);
}

// Every well-formed real template: a slide of every layout beside the
// template's own slides. What the deck adds must pass the schemas and the
// compatibility checker, and no part carries the model's marker.
TEST_F(OwnTemplates, EveryRealTemplateGivesADeckThatStrictReadersOpen) {
    if (!fs::exists(realTemplates())) GTEST_SKIP() << "real templates missing";
    std::vector<fs::path> files;
    for (auto const& entry : fs::directory_iterator(realTemplates())) {
        std::string const name = entry.path().filename().string();
        if (name.rfind("corrupt_", 0) == 0) continue;
        if (entry.path().extension() == ".pptx" || entry.path().extension() == ".potx")
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    // One checker run for all decks: it reads the schemas once.
    std::vector<std::pair<fs::path, fs::path>> decks;
    for (fs::path const& file : files) {
        SCOPED_TRACE(file.filename().string());
        Rendered const deck = renderEveryLayout(file, dir / (file.stem().string() + ".pptx"));
        for (auto const& name : zipEntries(deck.out)) {
            if (name.size() < 4 || name[0] == '[' || name.compare(name.size() - 4, 4, ".xml") != 0) continue;
            EXPECT_EQ(std::string::npos, readPart(deck.out, u"/" + toString(name)).find("data-uid")) << name;
        }
        if (fs::exists(schemaValidator())) {
            std::set<std::string> const before = invalidParts(file);
            for (auto const& part : invalidParts(deck.out))
                EXPECT_TRUE(before.count(part)) << part << " became invalid";
        }
        decks.emplace_back(deck.out, file);
    }
    std::string const report = checkCompatibility(decks);
    EXPECT_NE(std::string::npos, report.find(" 0 problems")) << report;
}

// A template saved as Strict Open XML gives a transitional deck: no Strict
// namespace or relationship type is left, and an office suite shows it whole.
TEST_F(OwnTemplates, StrictTemplateGivesATransitionalDeck) {
    fs::path const strict = fs::path(DECKFORGE_SHARED_DIR) / "strict-templates" / "strict_bg-photo.pptx";
    if (!fs::exists(strict)) GTEST_SKIP() << "strict template missing";
    Rendered const deck = renderEveryLayout(strict, dir / "strict.pptx");
    EXPECT_EQ(1u, deck.templateSlides);
    EXPECT_EQ(11u, deck.layouts(deck.masters.at(0)).size());
    // Relationship parts included.
    EXPECT_NE(0, std::system(("unzip -p '" + deck.out.string() + "' | grep -q purl.oclc.org").c_str()));
    if (fs::exists(schemaValidator())) {
        EXPECT_TRUE(invalidParts(deck.out).empty());
    }
    std::string const report = checkCompatibility(deck.out);
    EXPECT_NE(std::string::npos, report.find(" 0 problems")) << report;

    if (!::deckforge::test::officeToolsAvailable()) GTEST_SKIP() << "soffice or pdfinfo missing";
    std::string const d = dir.path().string();
    ASSERT_EQ(
        0, std::system(("cd '" + d + "' && soffice -env:UserInstallation=file://" + d +
                        "/profile --headless --convert-to pdf --outdir pdf strict.pptx > /dev/null 2>&1 && "
                        "pdfinfo pdf/strict.pdf > strict.info")
                           .c_str()));
    std::string const info = readFile(dir / "strict.info");
    auto const at = info.find("Pages:");
    ASSERT_NE(std::string::npos, at);
    EXPECT_EQ(deck.pages, std::stoul(info.substr(at + 6)));
}

TEST_F(OwnTemplates, EveryLayoutOfEveryMasterValidatesAndOpensInAnOfficeSuite) {
    struct Case {
        char const* file;
        std::vector<std::string> masters;
        std::size_t templateSlides;
    };
    std::vector<Case> const cases = {
        {"two_masters_4x3.pptx", {"Harbour", "Meadow"}, 1},
        {"names_16x9.pptx", {"Überschrift und Inhalt", "タイトルとコンテンツ"}, 1},
        {"names_16x9.potx", {"Überschrift und Inhalt", "タイトルとコンテンツ"}, 1},
        // Without a theme of its own Impress calls every theme "Office Theme".
        {"three_slides.pptx", {"Office Theme"}, 3},
    };
    std::vector<Rendered> decks;
    for (Case const& c : cases) {
        SCOPED_TRACE(c.file);
        fs::path const file = fixtures() / c.file;
        ASSERT_TRUE(fs::exists(file)) << file;
        // Distinct stems: the office suite names each PDF after its input.
        std::string const stem =
            fs::path(c.file).stem().string() + "-" + fs::path(c.file).extension().string().substr(1);
        decks.push_back(renderEveryLayout(file, dir / (stem + ".pptx")));
        Rendered const& r = decks.back();
        EXPECT_EQ(c.masters, r.masters);
        for (auto const& master : c.masters) EXPECT_EQ(kImpressLayouts, r.layouts(master)) << master;
        EXPECT_EQ(c.templateSlides, r.templateSlides);
    }
    // The template's own slides keep their text through rendering.
    fs::path const threeSlides = decks.back().out;
    EXPECT_NE(std::string::npos, readPart(threeSlides, u"/ppt/slides/slide1.xml").find("Quarterly review"));
    EXPECT_NE(std::string::npos, readPart(threeSlides, u"/ppt/slides/slide2.xml").find("Sales by region"));
    EXPECT_NE(std::string::npos,
              readPart(threeSlides, u"/ppt/slides/slide3.xml").find("Figures are preliminary."));

    fs::path const unusual = dir / "unusual.potx";
    unusualPlaces().write(unusual);
    decks.push_back(renderEveryLayout(unusual, dir / "unusual.pptx"));

    // The default template, found under the host's root, and real ones.
    host::setQuorixRoot(binaryDir().u16string());
    {
        ppt::Presentation presentation((dir / "default.pptx").u16string());
        fs::path const defaultTemplate = toUtf8(presentation.getTemplatePath());
        ASSERT_TRUE(fs::exists(defaultTemplate)) << defaultTemplate;
        decks.push_back(renderEveryLayout(defaultTemplate, dir / "default.pptx"));
    }
    host::setQuorixRoot(u"");
    for (char const* name : {"potxkit_base.potx", "ppt2013_dbconf-template-pl.potx",
                             "ppt2010_presentation.potx", "ppt2016mac_mecanon-2masters.potx"}) {
        fs::path const file = realTemplates() / name;
        if (fs::exists(file))
            decks.push_back(renderEveryLayout(file, dir / (fs::path(name).stem().string() + ".pptx")));
    }

    for (Rendered const& deck : decks) {
        SCOPED_TRACE(deck.out.filename().string());
        for (auto const& name : zipEntries(deck.out)) {
            if (name.size() < 4 || name[0] == '[' || name.compare(name.size() - 4, 4, ".xml") != 0) continue;
            EXPECT_EQ(std::string::npos, readPart(deck.out, u"/" + toString(name)).find("data-uid")) << name;
        }
        // Only what we wrote must be valid: a template's own flaws stay its own.
        if (fs::exists(schemaValidator())) {
            std::set<std::string> const before = invalidParts(deck.templateFile);
            for (auto const& part : invalidParts(deck.out))
                EXPECT_TRUE(before.count(part)) << part << " became invalid";
        }
    }

    if (!::deckforge::test::officeToolsAvailable()) GTEST_SKIP() << "soffice or pdfinfo missing";
    // One run for all decks, with a profile of its own: each start costs seconds.
    std::string command = "cd '" + dir.path().string() + "' && soffice -env:UserInstallation=file://" +
                          dir.path().string() + "/profile --headless --convert-to pdf --outdir pdf";
    for (Rendered const& deck : decks) command += " '" + deck.out.string() + "'";
    command += " > /dev/null 2>&1";
    ASSERT_EQ(0, std::system(command.c_str()));
    for (Rendered const& deck : decks) {
        fs::path const pdf = dir / "pdf" / (deck.out.stem().string() + ".pdf");
        SCOPED_TRACE(pdf.string());
        ASSERT_TRUE(fs::exists(pdf));
        fs::path const info = dir / (deck.out.stem().string() + ".info");
        ASSERT_EQ(0, std::system(("pdfinfo '" + pdf.string() + "' > '" + info.string() + "'").c_str()));
        std::string const text = readFile(info);
        auto const at = text.find("Pages:");
        ASSERT_NE(std::string::npos, at);
        EXPECT_EQ(deck.pages, std::stoul(text.substr(at + 6)));
    }
}

}  // namespace
}  // namespace test
}  // namespace deckforge
