// A real template whose own slides are changed by name, the way script code
// does it. The deck must be valid, and a real reader must show every text in
// order and none that replace dropped.
#include <cctype>
#include <cstdlib>

#include <gtest/gtest.h>

#include "engine/presentation.h"
#include "nodes/paragraph.h"
#include "writers/writer_fixture.h"

namespace deckforge {
namespace test {
namespace {

TEST(TextDeck, TemplateSlidesFilledByNameValidAndReadableInOrder) {
    ScratchDir dir;
    std::filesystem::path const real = realTemplates() / "ppt2010_presentation.potx";
    if (!std::filesystem::exists(real)) GTEST_SKIP() << "real templates missing";
    std::filesystem::path const deck = dir / "real.pptx";
    {
        ppt::Presentation p(deck.u16string(), real.u16string());
        p.add(u"Title and Content");
        // The template's own slides answer to these names too.
        p.replace(u"Title 1", u"Renamed");
        p.add(u"Content Placeholder 2", ppt::Paragraph(u"Appended line"));
        ASSERT_TRUE(p.close());
    }
    if (std::filesystem::exists(schemaValidator())) {
        std::string const report = validate(deck, "", real);
        EXPECT_NE(std::string::npos, report.find(" 0 invalid")) << report;
    }

    if (!::deckforge::test::officeToolsAvailable()) GTEST_SKIP() << "soffice or pdftotext missing";
    std::string const d = dir.path().string();
    ASSERT_EQ(0, std::system(("cd '" + d + "' && HOME='" + d +
                              "' soffice --headless --convert-to pdf --outdir pdf '" + deck.string() +
                              "' > /dev/null 2>&1 && pdftotext pdf/real.pdf real.txt")
                                 .c_str()));
    // Words only: the reader wraps lines where it likes.
    std::string shown;
    for (char c : readFile(dir / "real.txt"))
        if (!std::isspace(static_cast<unsigned char>(c)))
            shown += c;
        else if (!shown.empty() && shown.back() != ' ')
            shown += ' ';
    std::size_t at = 0;
    for (char const* text : {"Renamed", "Renamed", "This is some text on a template slide", "Appended line",
                             "Slide based on custom layout", "Renamed", "Appended line"}) {
        at = shown.find(text, at);
        ASSERT_NE(std::string::npos, at) << "\"" << text << "\" missing or out of order in\n" << shown;
    }
    for (char const* gone : {"Test Template", "First Page"})
        EXPECT_EQ(std::string::npos, shown.find(gone)) << gone;
}

}  // namespace
}  // namespace test
}  // namespace deckforge
