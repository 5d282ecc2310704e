#include <gtest/gtest.h>

#include <deque>
#include <set>

#include <boost/make_shared.hpp>

#include "package/opc_package.h"
#include "platform/msg_ids.h"
#include "platform/opc_test_util.h"
#include "support/test_support.h"

using namespace deckforge;
using namespace deckforge::ppt;
using deckforge::test::ScratchDir;
using deckforge::test::writeFile;
using CannotOpenFile = foundation::core::except::Exception<ppt_error::cannotOpenFile>;

namespace {

char16_t const kRel[] = u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
char16_t const kPml[] = u"application/vnd.openxmlformats-officedocument.presentationml.";

u16string rel(char16_t const* kind) {
    return kRel + u16string(kind);
}

std::u16string argumentOf(CannotOpenFile const& e) {
    return boost::get<std::u16string>(e.arguments().at(0));
}

}  // namespace

TEST(OPCPackage, RealTemplatesOpenForReadingAndUpdate) {
    ScratchDir dir;
    auto parser = opc::model::XercesHelper::createParser();
    for (auto const& entry : std::filesystem::directory_iterator(test::realTemplates())) {
        auto file = entry.path().filename().string();
        auto extension = entry.path().extension();
        if (extension != ".pptx" && extension != ".potx") continue;
        u16string path = entry.path().u16string();
        if (file.rfind("corrupt_", 0) == 0) {
            EXPECT_THROW(OPCPartReader reader(path), CannotOpenFile) << file;
            continue;
        }
        OPCPartReader reader(path);
        u16string main = reader.getRelatedPartName(rel(u"officeDocument"));
        ASSERT_TRUE(reader.hasPart(main)) << file;
        EXPECT_EQ(reader.getPart(main).getContentType().toString().rfind(kPml, 0), 0u) << file;

        // Every part that relationships reach, and every XML part among them parses.
        std::set<u16string> seen{main};
        std::deque<opc::model::Part> queue{reader.getPart(main)};
        while (!queue.empty()) {
            opc::model::Part part = queue.front();
            queue.pop_front();
            u16string type = part.getContentType().toString();
            if (type.size() > 3 && type.compare(type.size() - 3, 3, u"xml") == 0) {
                std::u16string errors, warnings;
                EXPECT_NO_THROW(opc::model::XercesHelper::readDocumentFromStream(
                    parser, *part.getInputStream(), false, errors, warnings))
                    << file << " " << toUtf8(part.getName().toString());
                parser->resetDocumentPool();
            }
            for (auto const& r : part.getRelationships()) {
                u16string target = r.getTargetURI().getPath();
                if (r.getTargetMode() == opc::model::TargetModeInternal && reader.hasPart(target) &&
                    seen.insert(target).second)
                    queue.push_back(reader.getPart(target));
            }
        }
        EXPECT_GT(seen.size(), 5u) << file;

        // Updated in place as the output is at close, the package stays whole.
        auto copy = dir / file;
        std::filesystem::copy_file(entry.path(), copy);
        std::filesystem::permissions(copy, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
        {
            auto package = boost::make_shared<OPCPackage>(copy.u16string());
            package->openForUpdate(false);
            OPCPartWriter writer(package);
            opc_test::writePart(writer.createPart(u"/ppt/slides/added.xml", kPml + u16string(u"slide+xml")),
                                "<p:sld/>");
            writer.getPart(main).createInternalRelationship(rel(u"slide"),
                                                            opc::model::URI(u"slides/added.xml"), u"");
        }
        EXPECT_TRUE(opc_test::unzipAccepts(copy)) << file;
        OPCPartReader updated(copy.u16string());
        EXPECT_EQ(
            updated.getRelatedParts(updated.getPart(main), rel(u"slide")).back().getTargetURI().toString(),
            u"/ppt/slides/added.xml");
        EXPECT_EQ(updated.getPart(u"/ppt/slides/added.xml").getContentType().toString(),
                  kPml + u16string(u"slide+xml"));
    }
    parser->release();
}

TEST(OPCPackage, FailuresToOpenRaiseCannotOpenFileWithReasonAndPath) {
    ScratchDir dir;
    u16string text = (dir / "text.pptx").u16string();
    writeFile(dir / "text.pptx", "no zip");
    try {
        OPCPackage(text).openForRead(false);
        FAIL();
    } catch (CannotOpenFile const& e) {
        u16string argument = argumentOf(e);
        EXPECT_GT(argument.size(), text.size() + 1);
        EXPECT_EQ(argument.substr(argument.size() - text.size() - 1), u" " + text);
    }
    EXPECT_THROW(OPCPackage((dir / "missing.pptx").u16string()).openForUpdate(false), CannotOpenFile);
    EXPECT_THROW(OPCPackage(dir.path().u16string()).openForRead(false), CannotOpenFile);

    OPCPackage never(text);
    never.close();
    never.close();
}

TEST(OPCPartReader, FollowsAndRetargetsRelationships) {
    ScratchDir dir;
    u16string folder = (dir / "unpacked").u16string();
    {
        OPCPartWriter writer(folder, true);
        auto main = writer.createPart(u"/ppt/presentation.xml", kPml + u16string(u"presentation.main+xml"));
        writer.createPart(u"/ppt/slides/slide1.xml", kPml + u16string(u"slide+xml"));
        writer.createPart(u"/ppt/slides/slide2.xml", kPml + u16string(u"slide+xml"));
        EXPECT_FALSE(
            writer.createRelationship(rel(u"officeDocument"), u"/ppt/presentation.xml", u"").getID().empty());
        main.createInternalRelationship(rel(u"slide"), opc::model::URI(u"/ppt/slides/slide1.xml"), u"rId5");
        main.createInternalRelationship(rel(u"slide"), opc::model::URI(u"/ppt/slides/slide2.xml"), u"");
        main.createInternalRelationship(rel(u"theme"), opc::model::URI(u"/ppt/theme/theme1.xml"), u"");
    }  // dropping the writer's package writes it

    OPCPartReader reader(folder);  // a folder is read as a package
    EXPECT_EQ(reader.getRelatedPartName(u"no such type"), u"");
    EXPECT_EQ(reader.getRelatedPartName(std::vector<u16string>{u"no such type", rel(u"officeDocument")}),
              u"/ppt/presentation.xml");
    auto main = reader.getPart(u"/ppt/presentation.xml");
    EXPECT_EQ(reader.getRelatedParts(main, rel(u"slide")).size(), 2u);
    EXPECT_EQ(reader.getRelatedParts(main, std::vector<u16string>{rel(u"theme"), rel(u"slide")}).size(), 3u);
    EXPECT_EQ(reader.getRelationshipTargetPath(u"/ppt/presentation.xml", u"rId5"), u"/ppt/slides/slide1.xml");
    EXPECT_EQ(reader.getPart(reader.getRelationships().at(0)).getName().toString(), u"/ppt/presentation.xml");

    auto package = boost::make_shared<OPCPackage>(folder);
    package->openForUpdate(true);
    OPCPartReader updater(package);
    auto part = updater.getPart(u"/ppt/presentation.xml");
    updater.setRelatedPartName(part, rel(u"slide"), u"/ppt/slides/slide2.xml");
    EXPECT_EQ(updater.getRelationshipTargetPath(u"/ppt/presentation.xml", u"rId5"),
              u"/ppt/slides/slide2.xml");
    EXPECT_EQ(updater.getRelatedPartName(part, rel(u"slide")), u"/ppt/slides/slide2.xml");
}
