// Hostile packages opened as templates. Each must end in a message id, or
// open where the package is harmless after all, quickly and in little
// memory; the template stays as it was, and nothing is written but the
// output and the temporary copy, which goes again.
#include <chrono>
#include <cstdlib>
#include <functional>
#include <set>

#include "engine/presentation.h"
#include "engine/presentation_fixture.h"
#include "platform/opc_test_util.h"

namespace deckforge {
namespace test {
namespace {

namespace fs = std::filesystem;
using Entries = std::vector<std::pair<std::string, std::string>>;

Entries entriesOf(fs::path const& zipFile) {
    int error = 0;
    zip_t* archive = zip_open(zipFile.c_str(), ZIP_RDONLY, &error);
    Entries entries;
    for (zip_int64_t i = 0; archive && i < zip_get_num_entries(archive, 0); ++i) {
        zip_stat_t st;
        zip_stat_index(archive, static_cast<zip_uint64_t>(i), 0, &st);
        std::string content(st.size, '\0');
        zip_file_t* file = zip_fopen_index(archive, static_cast<zip_uint64_t>(i), 0);
        zip_fread(file, &content[0], st.size);
        zip_fclose(file);
        entries.emplace_back(st.name, content);
    }
    if (archive) zip_discard(archive);
    return entries;
}

std::string& entry(Entries& entries, std::string const& name) {
    for (auto& e : entries)
        if (e.first == name) return e.second;
    throw std::runtime_error("no entry " + name);
}

// Sets the uncompressed size of the named entry in its local header and in
// the central directory, as a crafted file would.
void patchDeclaredSize(std::string& zip, std::string const& name, std::uint32_t size) {
    auto patch = [&](char const* signature, std::size_t nameAt, std::size_t sizeAt) {
        for (auto at = zip.find(signature); at != std::string::npos; at = zip.find(signature, at + 4)) {
            if (zip.compare(at + nameAt, name.size(), name) != 0) continue;
            for (int i = 0; i < 4; ++i) zip[at + sizeAt + i] = static_cast<char>((size >> (8 * i)) & 0xff);
        }
    };
    patch("PK\3\4", 30, 22);  // local header
    patch("PK\1\2", 46, 24);  // central directory
}

std::string const kPresentation = "ppt/presentation.xml";
std::string const kRel = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";

// The declaration and everything else before the root element of a part.
std::string withPrologue(std::string const& xml, std::string const& prologue) {
    auto root = xml.find("<p:");
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + prologue + xml.substr(root);
}

std::string billionLaughs() {
    std::string dtd = "<!DOCTYPE p:presentation [<!ENTITY l0 \"lol\">";
    for (int level = 1; level <= 9; ++level) {
        dtd += "<!ENTITY l" + std::to_string(level) + " \"";
        for (int i = 0; i < 10; ++i) dtd += "&l" + std::to_string(level - 1) + ";";
        dtd += "\">";
    }
    return dtd + "]>";
}

// Every relationship of the given type in the rels item points at `target`.
void retarget(std::string& rels, std::string const& type, std::string const& target) {
    std::string const marker = "Type=\"" + kRel + type + "\" Target=\"";
    for (auto at = rels.find(marker); at != std::string::npos; at = rels.find(marker, at + 1)) {
        auto begin = at + marker.size();
        rels.replace(begin, rels.find('"', begin) - begin, target);
    }
}

struct Hostile {
    char const* name;
    std::string expected;  // the message id, or "" where the template opens
    // Makes the template's bytes from the fixture's entries in `dir`.
    std::function<std::string(Entries, fs::path const& dir)> make;
};

std::string zipOf(Entries const& entries, fs::path const& dir, bool store = false) {
    opc_test::makeZip(dir / "made.zip", entries, store);
    std::string bytes = readFile(dir / "made.zip");
    fs::remove(dir / "made.zip");
    return bytes;
}

std::string const kCannotOpen = "deckforge:ppt_error:cannotOpenFile";
std::string const kBuildError = "deckforge:ppt_error:partDOMBuildError";
std::string const kInvalid = "deckforge:ppt_error:invalidTemplate";

Hostile const kHostile[] = {
    {"ExternalEntity", kBuildError,
     [](Entries e, fs::path const& dir) {
         writeFile(dir / "secret.txt", "SECRET");
         auto& xml = entry(e, kPresentation);
         xml = withPrologue(xml, "<!DOCTYPE p:presentation [<!ENTITY x SYSTEM \"file://" +
                                     (dir / "secret.txt").string() + "\">]>");
         xml.replace(xml.find("<p:sldSz"), 0, "<p:custShowLst>&x;</p:custShowLst>");
         return zipOf(e, dir);
     }},
    // Loading the DTD would fail the parse: it isn't well formed.
    {"ExternalDtd", "",
     [](Entries e, fs::path const& dir) {
         writeFile(dir / "evil.dtd", "<!ELEMENT oops");
         auto& xml = entry(e, kPresentation);
         xml = withPrologue(
             xml, "<!DOCTYPE p:presentation SYSTEM \"file://" + (dir / "evil.dtd").string() + "\">");
         return zipOf(e, dir);
     }},
    {"EntityExpansionBomb", kBuildError,
     [](Entries e, fs::path const& dir) {
         auto& xml = entry(e, kPresentation);
         xml = withPrologue(xml, billionLaughs());
         xml.replace(xml.find("<p:sldSz"), 0, "<p:custShowLst>&l9;</p:custShowLst>");
         return zipOf(e, dir);
     }},
    // 32 MiB of blanks after the root inflate from 32 kB, and would parse.
    {"ZipBomb", kCannotOpen,
     [](Entries e, fs::path const& dir) {
         entry(e, kPresentation) += std::string(std::size_t(32) << 20, ' ');
         return zipOf(e, dir);
     }},
    {"EntryNameLeavingThePackage", kCannotOpen,
     [](Entries e, fs::path const& dir) {
         e.emplace_back("../../hostile-escape.xml", "<x/>");
         return zipOf(e, dir);
     }},
    {"PartNamedTwice", kCannotOpen,
     [](Entries e, fs::path const& dir) {
         std::string const twin = kPresentation.substr(0, kPresentation.size() - 1) + "!";
         e.emplace_back(twin, withPrologue(entry(e, kPresentation), "<!-- the other one -->"));
         std::string zip = zipOf(e, dir, true);
         for (auto at = zip.find(twin); at != std::string::npos; at = zip.find(twin, at + 1))
             zip.replace(at, twin.size(), kPresentation);
         return zip;
     }},
    // Each layout names itself as its master, the master names itself as a
    // layout, and each slide is its own layout.
    {"RelationshipLoops", kInvalid,
     [](Entries e, fs::path const& dir) {
         for (auto& [name, content] : e) {
             if (name.find("slideLayouts/_rels/") != std::string::npos)
                 retarget(content, "slideMaster",
                          "../slideLayouts/" +
                              name.substr(name.rfind('/') + 1, name.size() - name.rfind('/') - 6));
             if (name.find("slideMasters/_rels/") != std::string::npos)
                 retarget(content, "slideLayout", "slideMaster1.xml");
             if (name.find("slides/_rels/") != std::string::npos)
                 retarget(content, "slideLayout",
                          name.substr(name.rfind('/') + 1, name.size() - name.rfind('/') - 6));
         }
         return zipOf(e, dir);
     }},
    // A template, so that the output is copied part by part along the
    // relationships, with a cycle among them: presentation, theme,
    // presentation.
    {"RelationshipCycleInACopiedTemplate", "",
     [](Entries e, fs::path const& dir) {
         auto& types = entry(e, "[Content_Types].xml");
         types.replace(types.find("presentation.main+xml"), 21, "template.main+xml");
         e.emplace_back(
             "ppt/theme/_rels/theme1.xml.rels",
             "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
             "<Relationship Id=\"rId1\" Type=\"" +
                 kRel +
                 "officeDocument\" Target=\"../presentation.xml\"/>"
                 "</Relationships>");
         return zipOf(e, dir);
     }},
    // Read as a master, the presentation part has no layouts; the slides'
    // layouts then have no master that the presentation knows.
    {"PresentationIsItsOwnMaster", kInvalid,
     [](Entries e, fs::path const& dir) {
         retarget(entry(e, "ppt/_rels/presentation.xml.rels"), "slideMaster", "presentation.xml");
         return zipOf(e, dir);
     }},
    // Groups in groups: what reads, clones or writes a tree does so by
    // recursion, one call per level.
    {"DeeplyNestedGroups", kBuildError,
     [](Entries e, fs::path const& dir) {
         auto& xml = entry(e, "ppt/slides/slide1.xml");
         std::string nested;
         for (int i = 0; i < 100000; ++i) nested += "<p:grpSp>";
         for (int i = 0; i < 100000; ++i) nested += "</p:grpSp>";
         xml.replace(xml.find("</p:spTree>"), 0, nested);
         return zipOf(e, dir);
     }},
    {"HundredThousandTinyParts", kCannotOpen,
     [](Entries e, fs::path const& dir) {
         for (int i = 0; i < 100000; ++i) e.emplace_back("ppt/tiny/" + std::to_string(i) + ".xml", "<t/>");
         return zipOf(e, dir, true);
     }},
    {"TwoGigabytesDeclared", kCannotOpen,
     [](Entries e, fs::path const& dir) {
         std::string zip = zipOf(e, dir);
         patchDeclaredSize(zip, kPresentation, 0x80000000u);
         return zip;
     }},
};

void PrintTo(Hostile const& hostile, std::ostream* out) {
    *out << hostile.name;
}

class HostileTemplateTest : public PresentationTest, public testing::WithParamInterface<Hostile> {};

TEST_P(HostileTemplateTest, EndsInAnIdOrOpensAndLeavesNothingBehind) {
    Hostile const& hostile = GetParam();
    fs::path const work = dir / "work";
    fs::path const tmp = dir / "tmp";
    fs::create_directories(work);
    fs::create_directories(tmp);
    std::string const bytes =
        hostile.make(entriesOf(sourceDir() / "tests/fixtures/templates/three_slides.pptx"), dir.path());
    writeFile(work / "template.pptx", bytes);

    char const* oldTmp = std::getenv("TMPDIR");
    std::string const savedTmp = oldTmp ? oldTmp : "";
    ::setenv("TMPDIR", tmp.c_str(), 1);
    auto const start = std::chrono::steady_clock::now();
    std::string error;
    {
        ppt::Presentation p((work / "out.pptx").u16string(), (work / "template.pptx").u16string());
        error = errorOf([&] { p.open(); });
    }
    auto const seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    oldTmp ? ::setenv("TMPDIR", savedTmp.c_str(), 1) : ::unsetenv("TMPDIR");

    EXPECT_EQ(error, hostile.expected);
    EXPECT_LT(seconds, 20.0);
    EXPECT_EQ(readFile(work / "template.pptx"), bytes);
    EXPECT_TRUE(fs::is_empty(tmp));
    std::set<std::string> written;
    for (auto const& f : fs::directory_iterator(work)) written.insert(f.path().filename().string());
    std::set<std::string> expected{"template.pptx"};
    if (hostile.expected.empty()) expected.insert("out.pptx");
    EXPECT_EQ(written, expected);
    EXPECT_FALSE(fs::exists(dir.path().parent_path() / "hostile-escape.xml"));
}

INSTANTIATE_TEST_SUITE_P(Packages, HostileTemplateTest, testing::ValuesIn(kHostile),
                         [](testing::TestParamInfo<Hostile> const& info) {
                             return std::string(info.param.name);
                         });

}  // namespace
}  // namespace test
}  // namespace deckforge
