#include <gtest/gtest.h>

#include <deque>
#include <map>

#include "common/file_utils.h"
#include "platform/opc/opc.h"
#include "support/test_support.h"

using namespace deckforge;
namespace stdfs = std::filesystem;
namespace model = opc::model;

namespace {

u16string const kPresentationType =
    u"application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml";
u16string const kTemplateType =
    u"application/vnd.openxmlformats-officedocument.presentationml.template.main+xml";

struct PartRecord {
    u16string contentType;
    std::string bytes;
    std::vector<std::string> relationships;  // "id type target mode"
};

std::string describe(model::Relationship const& r) {
    return toUtf8(r.getID() + u" " + r.getType() + u" " + r.getTarget() + u" ") +
           std::to_string(r.getTargetMode());
}

std::vector<std::string> describeAll(model::RelationshipSource const& source) {
    std::vector<std::string> out;
    for (auto const& r : source.getRelationships()) out.push_back(describe(r));
    return out;
}

// Everything reachable from the package root: its relationships and each
// part found through internal ones, keyed by part name.
struct Snapshot {
    std::vector<std::string> rootRelationships;
    std::map<u16string, PartRecord> parts;
};

Snapshot snapshot(stdfs::path const& file) {
    auto stream =
        opc::LocalFileSystemOps().createInputStream(toString(file.string()), std::ios::in | std::ios::binary);
    opc::StdIStreamAdaptor adaptor(*stream);
    opc::zippackage::ZipPhysicalPackage physical(adaptor);
    model::Package package(physical);
    package.open(model::Package::OpenRead);

    Snapshot snap;
    snap.rootRelationships = describeAll(package);
    std::deque<model::Relationship> queue;
    for (auto const& r : package.getRelationships()) queue.push_back(r);
    while (!queue.empty()) {
        model::Relationship const r = queue.front();
        queue.pop_front();
        model::PartName const name(r.getTargetURI().getPath());
        if (r.getTargetMode() != model::TargetModeInternal || !package.hasPart(name)) continue;
        model::Part part = package.getPart(name);
        if (snap.parts.count(part.getName().toString())) continue;
        PartRecord& record = snap.parts[part.getName().toString()];
        record.contentType = part.getContentType().toString();
        record.bytes = opc::StreamHelper::readAll(*part.getInputStream(), std::size_t(1) << 30);
        record.relationships = describeAll(part);
        for (auto const& next : part.getRelationships()) queue.push_back(next);
    }
    package.close(false);
    return snap;
}

}  // namespace

TEST(CopyPackage, TemplateBecomesPresentationPartByPart) {
    test::ScratchDir dir;
    int templates = 0;
    for (auto const& entry : stdfs::directory_iterator(test::realTemplates())) {
        if (entry.path().extension() != ".potx") continue;
        ++templates;
        SCOPED_TRACE(entry.path().filename().string());
        std::string const sourceBytes = test::readFile(entry.path());
        stdfs::path const target = dir / (entry.path().stem().string() + "_日本.pptx");

        FileUtils::copyPackage(toString(entry.path().string()), toString(target.string()), kPresentationType);

        EXPECT_EQ(test::readFile(entry.path()), sourceBytes);
        Snapshot const before = snapshot(entry.path());
        Snapshot const after = snapshot(target);
        EXPECT_EQ(after.rootRelationships, before.rootRelationships);
        ASSERT_EQ(after.parts.size(), before.parts.size());
        int mainParts = 0;
        for (auto const& part : before.parts) {
            SCOPED_TRACE(toUtf8(part.first));
            auto const it = after.parts.find(part.first);
            ASSERT_NE(it, after.parts.end());
            if (part.second.contentType == kTemplateType) {
                ++mainParts;
                EXPECT_EQ(toUtf8(it->second.contentType), toUtf8(kPresentationType));
            } else {
                EXPECT_EQ(toUtf8(it->second.contentType), toUtf8(part.second.contentType));
            }
            EXPECT_TRUE(it->second.bytes == part.second.bytes);
            EXPECT_EQ(it->second.relationships, part.second.relationships);
        }
        EXPECT_EQ(mainParts, 1);
    }
    EXPECT_GE(templates, 1);
}

TEST(CopyPackage, SameMainTypeIsAByteCopy) {
    test::ScratchDir dir;
    stdfs::path const source = test::realTemplates() / "potxkit_base.potx";
    test::writeFile(dir / "out.potx", "stale");
    stdfs::permissions(dir / "out.potx", stdfs::perms::owner_read);
    FileUtils::copyPackage(toString(source.string()), toString((dir / "out.potx").string()), kTemplateType);
    EXPECT_TRUE(test::readFile(dir / "out.potx") == test::readFile(source));
}

TEST(CopyPackage, NotAPackageFails) {
    test::ScratchDir dir;
    test::writeFile(dir / "plain.pptx", "not a zip");
    EXPECT_THROW(FileUtils::copyPackage(toString((dir / "plain.pptx").string()),
                                        toString((dir / "out.pptx").string()), kPresentationType),
                 opc::Exception);
}
