#include <set>

#include "engine/presentation.h"
#include "engine/presentation_fixture.h"

namespace deckforge {
namespace test {
namespace {

using ppt::PPTNodeList;
using ppt::Presentation;

// Every part of the package, and those that a chain of relationships
// reaches from the package's own.
struct PartGraph {
    std::set<u16string> parts, reached;
    std::set<u16string> dangling;  // internal targets that aren't parts
};

PartGraph partGraph(std::filesystem::path const& deck) {
    ppt::OPCPartReader reader(deck.u16string());
    PartGraph graph;
    for (auto const& name : reader.getPackage()->getPartNames()) graph.parts.insert(name.toString());
    std::vector<opc::model::Relationship> pending = reader.getRelationships();
    while (!pending.empty()) {
        auto const relationship = pending.back();
        pending.pop_back();
        if (relationship.getTargetMode() != opc::model::TargetModeInternal) continue;
        u16string const target = relationship.getTargetURI().getPath();
        if (!graph.parts.count(target)) {
            graph.dangling.insert(target);
            continue;
        }
        if (!graph.reached.insert(target).second) continue;
        for (auto const& next : reader.getPart(target).getRelationships()) pending.push_back(next);
    }
    return graph;
}

std::size_t countUnder(std::set<u16string> const& parts, u16string const& folder) {
    std::size_t n = 0;
    for (auto const& part : parts) n += part.rfind(folder, 0) == 0;
    return n;
}

class SlideOperations : public PresentationTest {};

// A template with notes, charts, embedded objects and pictures: with every
// slide removed, what only the slides reached is gone, and what the masters
// and layouts use stays.
TEST_F(SlideOperations, RemovingEverySlideLeavesNoOrphanPart) {
    auto const source = realTemplates() / "ppt2016_various2-everything.pptx";
    if (!std::filesystem::exists(source)) GTEST_SKIP() << source;
    PartGraph const before = partGraph(source);
    ASSERT_GT(countUnder(before.parts, u"/ppt/charts/"), 0u);
    ASSERT_GT(countUnder(before.parts, u"/ppt/embeddings/"), 0u);

    Presentation p(out("empty.pptx"), source.u16string());
    p.open();
    PPTNodeList const slides = p.getChildren();
    for (auto const& slide : slides) p.remove(*ppt::Slide::cast(slide));
    ASSERT_TRUE(p.close());

    PartGraph const after = partGraph(dir / "empty.pptx");
    EXPECT_EQ(after.parts, after.reached);
    EXPECT_TRUE(after.dangling.empty());
    for (u16string const folder : {u"/ppt/slides/", u"/ppt/notesSlides/", u"/ppt/charts/", u"/ppt/embeddings/"})
        EXPECT_EQ(0u, countUnder(after.parts, folder)) << toUtf8(folder);
    EXPECT_GT(countUnder(after.parts, u"/ppt/media/"), 0u);  // the layouts' pictures
    EXPECT_EQ(0, slideIdCount(dir / "empty.pptx"));
}

// Copies of template slides find their pictures (stored once) and get
// charts of their own; removing an original leaves its copy whole.
TEST_F(SlideOperations, CopiesShareMediaAndOwnTheirCharts) {
    auto const source = realTemplates() / "pythonpptx_default-generated.pptx";
    if (!std::filesystem::exists(source)) GTEST_SKIP() << source;
    PartGraph const before = partGraph(source);
    Presentation p(out("copies.pptx"), source.u16string());
    p.open();
    PPTNodeList const slides = p.getChildren();
    for (auto const& slide : slides) p.duplicate(*ppt::Slide::cast(slide));
    p.remove(*ppt::Slide::cast(slides.front()));
    ASSERT_TRUE(p.close());

    PartGraph const after = partGraph(dir / "copies.pptx");
    EXPECT_EQ(after.parts, after.reached);
    EXPECT_TRUE(after.dangling.empty());
    EXPECT_EQ(2 * slides.size() - 1, static_cast<std::size_t>(slideIdCount(dir / "copies.pptx")));
    EXPECT_EQ(countUnder(before.parts, u"/ppt/media/"), countUnder(after.parts, u"/ppt/media/"));
    EXPECT_EQ(2 * countUnder(before.parts, u"/ppt/charts/chart"), countUnder(after.parts, u"/ppt/charts/chart"));
    EXPECT_EQ(2 * countUnder(before.parts, u"/ppt/embeddings/"), countUnder(after.parts, u"/ppt/embeddings/"));
}

// Notes of template slides are read and kept; changed ones get a part of
// their own, '' removes them, and a template without a notes master gets one.
TEST_F(SlideOperations, NotesAreKeptChangedAndRemoved) {
    auto const source = realTemplates() / "pandoc_speaker-notes.pptx";
    if (!std::filesystem::exists(source)) GTEST_SKIP() << source;
    std::vector<u16string> original;
    {
        Presentation p(out("notes.pptx"), source.u16string());
        p.open();
        for (auto const& slide : p.getChildren()) original.push_back(ppt::Slide::cast(slide)->getNotes());
        ASSERT_GE(original.size(), 3u);
        ppt::Slide first = *ppt::Slide::cast(p.getChildren()[0]);
        ppt::Slide second = *ppt::Slide::cast(p.getChildren()[1]);
        first.setNotes(u"");
        second.setNotes(u"new\nnotes & <more>");
        ASSERT_TRUE(p.close());
    }
    Presentation again(out("reread.pptx"), out("notes.pptx"));
    again.open();
    auto notesOf = [&](std::size_t i) { return ppt::Slide::cast(again.getChildren()[i])->getNotes(); };
    EXPECT_EQ(u"", notesOf(0));
    EXPECT_EQ(u"new\nnotes & <more>", notesOf(1));
    EXPECT_EQ(original[2], notesOf(2));
    EXPECT_EQ(partGraph(dir / "notes.pptx").parts, partGraph(dir / "notes.pptx").reached);

    // The default template has no notes master.
    Presentation fresh(out("fresh.pptx"));
    fresh.add(u"Title Slide").setNotes(u"hello");
    ASSERT_TRUE(fresh.close());
    std::string const presentation = readPart(dir / "fresh.pptx", u"/ppt/presentation.xml");
    EXPECT_NE(std::string::npos, presentation.find("<p:notesMasterIdLst><p:notesMasterId r:id=")) << presentation;
    PartGraph const graph = partGraph(dir / "fresh.pptx");
    EXPECT_EQ(1u, countUnder(graph.reached, u"/ppt/notesMasters/notesMaster"));
    EXPECT_EQ(1u, countUnder(graph.reached, u"/ppt/notesSlides/"));
}

// LibreOffice relates its core properties with "officedocument" in lower
// case: they are read and changed in place, not made a second time.
TEST_F(SlideOperations, CorePropertiesOfLibreOfficeTemplatesAreChangedInPlace) {
    auto const source = sourceDir() / "tests" / "fixtures" / "templates" / "names_16x9.potx";
    {
        Presentation p(out("props.pptx"), source.u16string());
        auto const before = p.getProperties();
        ASSERT_EQ(u"Author", before[2].first);
        p.setProperty(u"Title", u"Kept");
        EXPECT_EQ("deckforge:ppt_error:unknownPropertiesField", errorOf([&] { p.setProperty(u"Owner", u"x"); }));
        EXPECT_EQ("deckforge:ppt_error:invalidPropertyValue", errorOf([&] { p.setProperty(u"Created", u"May"); }));
        ASSERT_TRUE(p.close());
    }
    std::size_t coreRelationships = 0;
    for (auto const& relationship : ppt::OPCPartReader(out("props.pptx")).getRelationships())
        coreRelationships += relationship.getType().find(u"core-properties") != u16string::npos;
    EXPECT_EQ(1u, coreRelationships);
    PartGraph const graph = partGraph(dir / "props.pptx");
    EXPECT_TRUE(graph.dangling.empty());
    Presentation again(out("again.pptx"), out("props.pptx"));
    EXPECT_EQ(u"Kept", again.getProperties()[0].second);
}

}  // namespace
}  // namespace test
}  // namespace deckforge
