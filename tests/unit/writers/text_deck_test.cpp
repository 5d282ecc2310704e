// Two decks filled the way script code fills them: the default template with
// placeholders replaced by name, nested lists and a link in free boxes; and a
// real template whose own slides are changed by name. Both must be valid, and
// a real reader must show every text in order and none that replace dropped.
#include <cctype>
#include <cstdlib>

#include <gtest/gtest.h>

#include "engine/presentation.h"
#include "nodes/content_placeholder.h"
#include "nodes/text_box.h"
#include "platform/host_services.h"
#include "writers/writer_fixture.h"

namespace deckforge {
namespace test {
namespace {

using ppt::ListItems;
using ppt::Paragraph;

struct Expected {
    std::filesystem::path deck;
    std::vector<std::string> inOrder, absent;
};

Expected defaultDeck(std::filesystem::path const& file) {
    Expected e{file, {"Quarterly Review", "Prepared for the board"}, {"lost"}};
    ppt::Presentation p(file.u16string());
    ppt::Slide opening = p.add(u"Title Slide");
    opening.replace(u"Title", u"Quarterly Review");
    opening.replace(u"Subtitle", Paragraph(u"Prepared for the board"));
    for (std::string n : {"1", "2"}) {
        u16string const u = toString(n);
        ppt::Slide slide = p.add(u"Title and Content");
        slide.replace(u"Title", u"Topic " + u);
        ppt::ContentPlaceholder::cast(slide.find(u"Content").at(0))
            ->replace(ListItems{u"Point " + u, ListItems{u"Detail " + u, ListItems{u"Fine print " + u}}});
        e.inOrder.insert(e.inOrder.end(), {"Topic " + n, "Point " + n, "Detail " + n, "Fine print " + n});
    }
    // Free boxes below the content: one placed and sized, with a link; one
    // given only its y, so of the default size.
    ppt::TextBox notes;
    notes.setX(u"1in");
    notes.setY(u"4in");
    notes.setWidth(u"8in");
    notes.setHeight(u"0.8in");
    Paragraph read(u"Read ");
    read.append(ppt::ExternalLink(u"https://example.com/q3", u"the full report"));
    notes.add(ListItems{read, ppt::ListItem(ListItems{u"Appendix A"})});
    ppt::TextBox corner;
    corner.setY(u"6.5in");
    corner.add(u"Corner");
    ppt::Slide closing = p.add(u"Title and Content");  // its content stays unfilled
    closing.replace(u"Title", u"Questions");
    closing.add(notes);
    closing.add(corner);
    e.inOrder.insert(e.inOrder.end(), {"Questions", "Read the full report", "Appendix A", "Corner"});
    p.replace(u"No such shape", u"lost");
    EXPECT_TRUE(p.close());
    return e;
}

Expected realDeck(std::filesystem::path const& templateFile, std::filesystem::path const& file) {
    ppt::Presentation p(file.u16string(), templateFile.u16string());
    p.add(u"Title and Content");
    // The template's own slides answer to these names too.
    p.replace(u"Title 1", u"Renamed");
    p.add(u"Content Placeholder 2", Paragraph(u"Appended line"));
    EXPECT_TRUE(p.close());
    return {file,
            {"Renamed", "Renamed", "This is some text on a template slide", "Appended line",
             "Slide based on custom layout", "Renamed", "Appended line"},
            {"Test Template", "First Page"}};
}

TEST(TextDeck, FilledByNameValidAndReadableInOrder) {
    host::setQuorixRoot(binaryDir().u16string());
    ScratchDir dir;
    std::vector<Expected> decks{defaultDeck(dir / "filled.pptx")};
    std::filesystem::path const real = realTemplates() / "ppt2010_presentation.potx";
    if (std::filesystem::exists(real)) decks.push_back(realDeck(real, dir / "real.pptx"));
    host::setQuorixRoot(u"");

    std::string const last = readPart(dir / "filled.pptx", u"/ppt/slides/slide4.xml");
    EXPECT_NE(std::string::npos, last.find("a:hlinkClick"));
    EXPECT_NE(std::string::npos, last.find("<a:pPr lvl=\"1\"/>"));  // level 2 of the list
    for (auto const& deck : decks) {
        if (!std::filesystem::exists(schemaValidator())) break;
        std::string const report = validate(deck.deck);
        EXPECT_NE(std::string::npos, report.find(" 0 invalid")) << report;
    }

    // One run of the office suite for all decks: each start costs seconds.
    if (!::deckforge::test::officeToolsAvailable())
        GTEST_SKIP() << "soffice or pdftotext missing";
    std::string command = "cd '" + dir.path().string() + "' && HOME='" + dir.path().string() +
                          "' soffice --headless --convert-to pdf --outdir pdf";
    for (auto const& deck : decks) command += " '" + deck.deck.string() + "'";
    ASSERT_EQ(0, std::system((command + " > /dev/null 2>&1").c_str()));
    for (auto const& deck : decks) {
        std::string const stem = deck.deck.stem().string();
        std::string const pdf = (dir / "pdf" / (stem + ".pdf")).string(),
                          txt = (dir / (stem + ".txt")).string();
        ASSERT_EQ(0, std::system(("pdftotext '" + pdf + "' '" + txt + "'").c_str())) << pdf;
        // Words only: the reader wraps lines where it likes.
        std::string shown;
        for (char c : readFile(txt))
            if (!std::isspace(static_cast<unsigned char>(c)))
                shown += c;
            else if (!shown.empty() && shown.back() != ' ')
                shown += ' ';
        std::size_t at = 0;
        for (auto const& text : deck.inOrder) {
            at = shown.find(text, at);
            ASSERT_NE(std::string::npos, at) << stem << ": \"" << text << "\" missing or out of order in\n"
                                             << shown;
        }
        for (auto const& gone : deck.absent)
            EXPECT_EQ(std::string::npos, shown.find(gone)) << stem << ": " << gone;
    }
}

}  // namespace
}  // namespace test
}  // namespace deckforge
