#include <gtest/gtest.h>

#include <filesystem>

#include "common/file_utils.h"
#include "platform/host_services.h"
#include "platform/hv.h"
#include "platform/msg_ids.h"
#include "support/test_support.h"

using namespace deckforge;
using foundation::core::except::IMsgIDException;
namespace stdfs = std::filesystem;

namespace {

u16string u16(stdfs::path const& p) {
    return toString(p.string());
}

// The id that `f` raised, or "" if it raised none.
template <class F>
std::string raisedId(F f) {
    try {
        f();
    } catch (IMsgIDException const& e) {
        return e.id();
    }
    return "";
}

}  // namespace

TEST(FileUtils, ContentTypeByExtension) {
    EXPECT_EQ(toUtf8(FileUtils::getContentType(u"a.PNG")), "image/png");
    EXPECT_EQ(toUtf8(FileUtils::getContentType(u"dir.d/x.JPE")), "image/jpeg");
    EXPECT_EQ(toUtf8(FileUtils::getContentType(u"Präsentation_日本.tiff")), "image/tiff");
    for (auto none : {u"a.docx", u"a", u".png", u"png"}) {
        EXPECT_TRUE(FileUtils::getContentType(none).empty()) << toUtf8(none);
    }
}

TEST(FileUtils, NameParts) {
    u16string const name = u"/tmp/dir/Präsentation_日本.pptx";
    EXPECT_EQ(FileUtils::extractFilename(name), u"Präsentation_日本.pptx");
    EXPECT_EQ(FileUtils::getFileNameStem(name), u"Präsentation_日本");
    EXPECT_EQ(FileUtils::getFileNameExtension(name), u"pptx");
    EXPECT_EQ(FileUtils::extractPath(name, false), u"/tmp/dir");
    EXPECT_EQ(FileUtils::getFileNameExtension(u"dir/README"), u"");
    EXPECT_EQ(FileUtils::getFileNameStem(u"archive.tar.gz"), u"archive.tar");
    EXPECT_EQ(FileUtils::appendPath(u"a/b", u""), u"a/b");
    EXPECT_EQ(FileUtils::appendPath(u"a/b", u"c.pptx"), u"a/b/c.pptx");
    EXPECT_EQ(FileUtils::normalizePath(u"\\\\server\\share\\x.pptx"), u"\\\\server\\share\\x.pptx");
    EXPECT_EQ(FileUtils::resolvePath(u"\\\\server\\share"), u"\\\\server\\share");
}

TEST(FileUtils, ValidateFileNameTestsOnlyTheStem) {
    for (auto reserved : {u"LPT3.pptx", u"con", u"dir/AUX.pptx", u"Nul.potx", u"com9.x"}) {
        EXPECT_EQ(raisedId([&] { FileUtils::validateFileName(reserved); }), "reservedWindowsFileName")
            << toUtf8(reserved);
    }
    for (auto bad : {u"a?b.pptx", u"a|b", u"a*b", u"x<y", u"q\"uote", u"a>b.pptx"}) {
        EXPECT_EQ(raisedId([&] { FileUtils::validateFileName(bad); }), "reservedWindowsFileNameChar")
            << toUtf8(bad);
    }
    for (auto fine : {u"lpt0.pptx", u"lpt31.pptx", u"console.pptx", u"auxiliary", u"com0.pptx", u"nul.tar.gz",
                      u"dir:x/report.pptx", u"back\\slash.pptx", u"Präsentation_日本.pptx"}) {
        EXPECT_EQ(raisedId([&] { FileUtils::validateFileName(fine); }), "") << toUtf8(fine);
    }
    try {
        FileUtils::validateFileName(u"out/a?b.pptx");
        FAIL();
    } catch (IMsgIDException const& e) {
        ASSERT_EQ(e.arguments().size(), 1u);
        EXPECT_EQ(boost::get<u16string>(e.arguments()[0]), u"a?b");
    }
}

TEST(FileUtils, ExtractPathCompletesMissingTail) {
    test::ScratchDir dir;
    stdfs::path const real = stdfs::canonical(dir.path());
    stdfs::create_directories(real / "sub");
    stdfs::create_directory_symlink(real / "sub", real / "link");

    // The existing head is made canonical; the rest is appended as written,
    // "." skipped and ".." undoing the previous element.
    EXPECT_EQ(FileUtils::extractPath(u16(real / "link/new/./gone/../out.pptx"), true), u16(real / "sub/new"));
    EXPECT_EQ(FileUtils::extractPath(u16(real / "sub/../Präsentation_日本.pptx"), true), u16(real));
    EXPECT_EQ(FileUtils::extractPath(u16(real / "link/../x/y"), true), u16(real / "x"));
}

TEST(FileUtils, ResolvePath) {
    test::ScratchDir dir;
    stdfs::path const real = stdfs::canonical(dir.path());
    stdfs::create_directories(real / "sub");
    stdfs::create_directory_symlink(real / "sub", real / "link");
    test::writeFile(real / "sub/f.txt", "x");

    EXPECT_EQ(FileUtils::resolvePath(u16(real / "link/../sub/./f.txt")), u16(real / "sub/f.txt"));

    try {
        FileUtils::resolvePath(u16(real / "missing.pptx"));
        FAIL();
    } catch (PathNotFound const& e) {
        EXPECT_EQ(e.code().value(), 2);
        EXPECT_EQ(e.code().category(), boost::system::generic_category());
        EXPECT_EQ(e.path(), u16(real / "missing.pptx"));
    }
    // Through a file: a failure, but not "not found".
    try {
        FileUtils::resolvePath(u16(real / "sub/f.txt/x"));
        FAIL();
    } catch (PathNotFound const&) {
        FAIL() << "ENOTDIR reported as not found";
    } catch (FileSystem const& e) {
        EXPECT_EQ(e.code().value(), 0);
        EXPECT_EQ(e.code().category(), boost::system::system_category());
    }
}

TEST(FileUtils, CopyReplacesReadOnlyTarget) {
    test::ScratchDir dir;
    test::writeFile(dir / "src.bin", "new bytes");
    test::writeFile(dir / "dst.bin", "old");
    stdfs::permissions(dir / "src.bin", stdfs::perms::owner_read);
    stdfs::permissions(dir / "dst.bin", stdfs::perms::owner_read);
    EXPECT_TRUE(FileUtils::isReadOnlyFile(u16(dir / "dst.bin")));

    EXPECT_TRUE(FileUtils::copyFile(u16(dir / "src.bin"), u16(dir / "dst.bin"), false));
    EXPECT_EQ(test::readFile(dir / "dst.bin"), "new bytes");
    EXPECT_TRUE(FileUtils::isReadOnlyFile(u16(dir / "dst.bin")));

    EXPECT_TRUE(FileUtils::copyFile(u16(dir / "src.bin"), u16(dir / "dst.bin"), true));
    EXPECT_FALSE(FileUtils::isReadOnlyFile(u16(dir / "dst.bin")));

    stdfs::create_directory(dir / "Ordner_日本");
    EXPECT_TRUE(FileUtils::copyFileToFolder(u16(dir / "src.bin"), u16(dir / "Ordner_日本"), true));
    EXPECT_EQ(test::readFile(dir / "Ordner_日本" / "src.bin"), "new bytes");

    EXPECT_EQ(raisedId([&] { FileUtils::copyFile(u16(dir / "none"), u16(dir / "dst.bin"), false); }),
              "failedToCopyFile");
}

TEST(FileUtils, DirectoriesAndRemoval) {
    test::ScratchDir dir;
    EXPECT_FALSE(FileUtils::isReadOnlyFile(u16(dir / "missing")));
    EXPECT_TRUE(FileUtils::removeFile(u16(dir / "missing")));

    u16string const sub = u16(dir / "Präsentation_日本");
    EXPECT_FALSE(FileUtils::fileExists(sub));
    EXPECT_TRUE(FileUtils::createDirectory(sub));
    test::writeFile(dir / "Präsentation_日本" / "f", "x");
    EXPECT_TRUE(FileUtils::createDirectory(sub));  // exists: untouched
    EXPECT_TRUE(FileUtils::fileExists(FileUtils::appendPath(sub, u"f")));
    EXPECT_EQ(raisedId([&] { FileUtils::createDirectory(u16(dir / "a/b")); }), "failedToCreateDirectory");

    EXPECT_TRUE(FileUtils::removeFile(sub));  // a directory goes with its contents
    EXPECT_FALSE(stdfs::exists(dir / "Präsentation_日本"));
}

namespace {

// Answers "toolboxdir" with a fixed folder; fails every other call.
class ToolboxHost : public hv::Host {
public:
    bool call(std::string const& fn, std::vector<hvArray const*> const& args, int,
              std::vector<std::unique_ptr<hvArray>>& results) override {
        if (fn != "toolboxdir" || args.size() != 1) return false;
        results.emplace_back(hvCreateString_UTF16(u"/opt/tb/" + hvGetString(args[0])));
        return true;
    }
    void warning(resource_core::BaseMsgID const&) override {}
};

}  // namespace

TEST(FileUtils, UsesTheHostsDirectoriesNotTheProcesss) {
    test::ScratchDir dir;
    stdfs::path const real = stdfs::canonical(dir.path());
    test::writeFile(real / "f.txt", "x");
    host::setCurrentDirectoryProvider([&] { return u16(real); });
    EXPECT_EQ(FileUtils::resolvePath(u"./f.txt"), u16(real / "f.txt"));
    EXPECT_EQ(FileUtils::extractPath(u"new/../out.pptx", true), u16(real));
    host::setCurrentDirectoryProvider(nullptr);

    u16string const temp = FileUtils::makeTempDirectory();
    EXPECT_TRUE(stdfs::is_directory(toUtf8(temp)));
    EXPECT_NE(FileUtils::getTempName(), temp);
    FileUtils::removeDirectory(temp);

    // Without a host answering "toolboxdir", the standard location.
    EXPECT_EQ(FileUtils::getToolboxdir(u"deckforge"),
              FileUtils::appendPath(host::getToolboxPrefix(), u"deckforge"));
    auto previous = hv::setHost(std::make_shared<ToolboxHost>());
    EXPECT_EQ(FileUtils::getToolboxdir(u"deckforge"), u"/opt/tb/deckforge");
    hv::setHost(previous);
}
