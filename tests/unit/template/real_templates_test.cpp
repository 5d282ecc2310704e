// Every real template of the shared collection loads, with the masters,
// layouts and slides that its index lists, and stays unchanged on disk.
#include <fstream>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "platform/msg_ids.h"
#include "support/test_support.h"
#include "template_fixture.h"

namespace deckforge {
namespace test {
namespace {

struct IndexRow {
    std::string file;
    int slides = 0, layouts = 0, masters = 0;
};

// INDEX.csv: file,origin_repo,origin_path,commit,bytes,kind,slides,layouts,masters,...
std::vector<IndexRow> readIndex() {
    std::ifstream in(realTemplates() / "INDEX.csv");
    std::string line;
    std::getline(in, line);
    std::vector<IndexRow> rows;
    while (std::getline(in, line)) {
        std::vector<std::string> fields(1);
        bool quoted = false;
        for (char c : line) {
            if (c == '"')
                quoted = !quoted;
            else if (c == ',' && !quoted)
                fields.emplace_back();
            else
                fields.back() += c;
        }
        if (fields.size() < 9) continue;
        auto number = [](std::string const& s) { return s.empty() ? -1 : std::stoi(s); };
        rows.push_back({fields[0], number(fields[6]), number(fields[7]), number(fields[8])});
    }
    return rows;
}

void collectShapes(ppt::TemplateShapeList const& shapes,
                   std::vector<boost::shared_ptr<ppt::TemplateShape>>& out) {
    for (auto const& s : shapes) {
        out.push_back(s);
        if (s->children) collectShapes(*s->children, out);
    }
}

TEST(RealTemplates, AllLoadAsIndexedAndStayUnchanged) {
    std::vector<IndexRow> const rows = readIndex();
    ASSERT_GE(rows.size(), 30u);
    std::set<u16string> uids;
    for (IndexRow const& row : rows) {
        SCOPED_TRACE(row.file);
        std::filesystem::path const file = realTemplates() / row.file;
        std::string const before = readFile(file);
        if (row.file.rfind("corrupt_", 0) == 0) {
            try {
                LoadedModel m(file);
                ADD_FAILURE() << "a corrupt package loaded";
            } catch (foundation::core::except::IMsgIDException const& e) {
                EXPECT_EQ(e.identifier(), "deckforge:ppt_error:cannotOpenFile");
            }
            continue;
        }
        LoadedModel m(file);
        ASSERT_TRUE(m.loaded);
        auto const& masters = *m.model->getMasters();
        EXPECT_EQ(static_cast<int>(masters.size()), row.masters);
        EXPECT_EQ(static_cast<int>(m.model->getSlides()->size()), row.slides);
        EXPECT_EQ(m.model->getMasterNames().size(), masters.size());

        std::set<boost::shared_ptr<ppt::TemplateLayout>> layouts;
        for (auto const& master : masters) {
            EXPECT_EQ(master->layoutNames.size(), master->layouts->size());
            for (auto const& layout : *master->layouts) {
                layouts.insert(layout);
                EXPECT_TRUE(layout->master) << toUtf8(layout->partName);
            }
        }
        EXPECT_EQ(static_cast<int>(layouts.size()), row.layouts);

        std::vector<boost::shared_ptr<ppt::TemplateShape>> shapes;
        for (auto const& layout : layouts) {
            std::vector<boost::shared_ptr<ppt::TemplateShape>> own;
            collectShapes(*layout->shapes, own);
            for (auto const& s : own) {
                EXPECT_TRUE(ppt::isPlaceholderKind(s->nodeType));
                ASSERT_EQ(layout->shapeElementsByUid.count(s->uid), 1u);
                EXPECT_EQ(attr(layout->shapeElementsByUid.at(s->uid), u"data-uid"), s->uid);
            }
            shapes.insert(shapes.end(), own.begin(), own.end());
            auto slide = m.model->createSlide(layout);
            EXPECT_EQ(u16string(slide->document->getDocumentElement()->getTagName()), u"p:sld");
            EXPECT_EQ(slide->shapeElementsByUid.size(), layout->shapeElementsByUid.size());
        }
        for (auto const& slide : *m.model->getSlides()) {
            EXPECT_TRUE(slide->layout && slide->layout->master) << toUtf8(slide->partName);
            std::vector<boost::shared_ptr<ppt::TemplateShape>> own;
            collectShapes(*slide->shapes, own);
            for (auto const& s : own) EXPECT_EQ(slide->shapeElementsByUid.count(s->uid), 1u);
            shapes.insert(shapes.end(), own.begin(), own.end());
        }
        for (auto const& s : shapes) EXPECT_TRUE(uids.insert(s->uid).second) << "uid used twice";
        EXPECT_EQ(readFile(file), before);
    }
}

struct Expected {
    std::string file;
    std::vector<u16string> masterNames;
    u16string master, firstLayout;
    std::size_t layoutCount;
    u16string layoutToFind, layoutPartName;
};

TEST(RealTemplates, MasterAndLayoutNamesInManyLanguages) {
    std::vector<Expected> const cases = {
        {"ppt2007_ecodesign-vortrag-de.pptx",
         {u"Larissa-Design"},
         u"Larissa-Design",
         u"Inhalt mit Überschrift",
         13,
         u"Abschnittsüberschrift",
         u"/ppt/slideLayouts/slideLayout3.xml"},
        {"onlyoffice_new-ar.pptx",
         {u"Office Theme"},
         u"Office Theme",
         u"محتوى ذو تسمية توضيحية",
         11,
         u"شريحة عنوان",
         u"/ppt/slideLayouts/slideLayout1.xml"},
        {"ppt2013_template-ko.potx",
         {u"Office Theme"},
         u"Office Theme",
         u"Content with Caption",
         11,
         u"Title Only",
         u"/ppt/slideLayouts/slideLayout6.xml"},
        // Four masters; "Title Slide" is in masters 1 and 2, master 1 sorts first.
        {"ppt2016_autoshape-case009-ja.pptx",
         {u"ERI Master Template", u"3_Office Theme", u"4_Office Theme", u"Elsevier Content Slides"},
         u"4_Office Theme",
         u"Logo on right side",
         13,
         u"白紙",
         u"/ppt/slideLayouts/slideLayout46.xml"},
        {"ppt2013_bug64693-4masters.pptx",
         {u"封面页_图片版 ", u"目录页", u"章节页", u"结束页"},
         u"章节页",
         u"章节页",
         1,
         u"结束页",
         u"/ppt/slideLayouts/slideLayout6.xml"},
        {"ppt2007_aascu-leadership-6masters.pptx",
         {u"Concourse", u"3_CE_white_tonal_aqua", u"Office Theme", u"Default Design", u"2_Concourse",
          u"1_Office Theme"},
         u"Default Design",
         u"Content with Caption",
         14,
         u"Title and Table",
         u"/ppt/slideLayouts/slideLayout48.xml"},
    };
    for (Expected const& c : cases) {
        SCOPED_TRACE(c.file);
        LoadedModel m(realTemplates() / c.file);
        ASSERT_TRUE(m.loaded);
        EXPECT_EQ(m.model->getMasterNames(), c.masterNames);
        auto const& names = m.model->getLayoutNames(c.master);
        ASSERT_EQ(names.size(), c.layoutCount);
        EXPECT_EQ(names.front(), c.firstLayout);
        auto layout = m.model->findLayout(c.layoutToFind);
        ASSERT_TRUE(layout);
        EXPECT_EQ(layout->partName, c.layoutPartName);
    }

    LoadedModel ja(realTemplates() / "ppt2016_autoshape-case009-ja.pptx");
    EXPECT_EQ(ja.model->findLayout(u"Title Slide")->partName, u"/ppt/slideLayouts/slideLayout22.xml");
    EXPECT_EQ(ja.model->findLayout(u"Title Slide", u"3_Office Theme")->partName,
              u"/ppt/slideLayouts/slideLayout33.xml");
    LoadedModel cn(realTemplates() / "ppt2013_bug64693-4masters.pptx");
    EXPECT_TRUE(cn.model->getLayoutNames(u"目录页").empty());  // a master without layouts
}

}  // namespace
}  // namespace test
}  // namespace deckforge
