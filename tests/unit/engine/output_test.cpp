// Whole decks written by a presentation, judged by the schemas and by a
// reader that renders them.
#include <regex>
#include <sstream>

#include "engine/presentation.h"
#include "engine/presentation_fixture.h"

namespace deckforge {
namespace test {
namespace {

using ppt::Presentation;
namespace fs = std::filesystem;

// The verdict line of validate-pptx -v for one part ("ok ..." or "INVALID ...").
std::string verdictOf(std::string const& report, std::string const& part) {
    std::istringstream lines(report);
    for (std::string line; std::getline(lines, line);)
        if (line.size() > part.size() && line.compare(line.size() - part.size(), part.size(), part) == 0)
            return line;
    return "no verdict for " + part;
}

int pdfPages(fs::path const& pdf) {
    std::smatch match;
    std::string const info = run("pdfinfo '" + pdf.string() + "'").first;
    return std::regex_search(info, match, std::regex("Pages:\\s+(\\d+)")) ? std::stoi(match[1]) : -1;
}

class WrittenDeckTest : public PresentationTest {
protected:
    // The default template with two new slides, and a real template that
    // brings three slides of its own, with one more.
    void SetUp() override {
        PresentationTest::SetUp();
        Presentation fresh(out("fresh.pptx"));
        fresh.add(u"Title Slide");
        fresh.add(u"Title and Content");
        ASSERT_TRUE(fresh.close());

        Presentation real(out("real"), (realTemplates() / "ppt2010_presentation.potx").u16string());
        real.add(u"Title and Content");
        ASSERT_TRUE(real.close());
    }
};

TEST_F(WrittenDeckTest, PassesTheSchemas) {
    if (!fs::exists(schemaValidator())) GTEST_SKIP() << "no schema validator";
    auto const fresh =
        run("'" + schemaValidator().string() + "' -e 0 '" + (dir / "fresh.pptx").string() + "'");
    EXPECT_EQ(fresh.second, 0) << fresh.first;

    // Of a real template, only what this system writes is ours to judge.
    auto const real = run("'" + schemaValidator().string() + "' -v '" + (dir / "real.pptx").string() + "'");
    for (std::string part : {"ppt/presentation.xml", "ppt/slides/slide4.xml", "[Content_Types].xml",
                             "ppt/_rels/presentation.xml.rels"})
        EXPECT_EQ(verdictOf(real.first, part).substr(0, 2), "ok") << real.first;
    EXPECT_EQ(slideIdCount(dir / "real.pptx"), 4);
}

TEST_F(WrittenDeckTest, RendersWithEverySlide) {
    if (!::deckforge::test::officeToolsAvailable())
        GTEST_SKIP() << "soffice or pdfinfo is not installed";
    // One run for both decks: starting the office suite costs seconds.
    auto const result =
        run("cd '" + dir.path().string() + "' && timeout 300 soffice -env:UserInstallation=file://" +
            (dir / "profile").string() + " --headless --convert-to pdf fresh.pptx real.pptx");
    EXPECT_EQ(pdfPages(dir / "fresh.pdf"), 2) << result.first;
    EXPECT_EQ(pdfPages(dir / "real.pdf"), 4) << result.first;
}

}  // namespace
}  // namespace test
}  // namespace deckforge
