#include <gtest/gtest.h>

#include <fstream>

#include "platform/opc/text.h"
#include "platform/opc_test_util.h"
#include "support/test_support.h"

using namespace opc;
using namespace opc_test;
using deckforge::test::readFile;
using deckforge::test::ScratchDir;

namespace {

using Items = std::vector<std::pair<std::string, std::string>>;

std::vector<std::string> itemNames(std::filesystem::path const& path) {
    std::ifstream file(path, std::ios::binary);
    StdIStreamAdaptor in(file);
    zippackage::ZipPhysicalPackage zip(in);
    std::vector<std::string> names;
    for (auto const& name : zip.getItemNames()) names.push_back(detail::toUtf8(name));
    return names;
}

std::string readItem(std::filesystem::path const& path, std::string const& name) {
    std::ifstream file(path, std::ios::binary);
    StdIStreamAdaptor in(file);
    zippackage::ZipPhysicalPackage zip(in);
    return *zip.readItem(detail::fromUtf8(name));
}

// Stored bytes, method, time and attributes of an entry, as libzip sees
// them without inflating.
struct Stored {
    std::string bytes;
    std::uint16_t method;
    std::time_t mtime;
    std::uint32_t crc;
    std::uint32_t attributes;
    bool operator==(Stored const& o) const {
        return bytes == o.bytes && method == o.method && mtime == o.mtime && crc == o.crc &&
               attributes == o.attributes;
    }
};

Stored stored(std::filesystem::path const& path, std::string const& name) {
    int error = 0;
    zip_t* archive = zip_open(path.c_str(), ZIP_RDONLY, &error);
    zip_stat_t st;
    EXPECT_EQ(zip_stat(archive, name.c_str(), 0, &st), 0) << name;
    zip_file_t* file = zip_fopen(archive, name.c_str(), ZIP_FL_COMPRESSED);
    std::string bytes(st.comp_size, '\0');
    EXPECT_EQ(zip_fread(file, bytes.data(), bytes.size()), static_cast<zip_int64_t>(bytes.size()));
    zip_fclose(file);
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    zip_file_get_external_attributes(archive, st.index, 0, &system, &attributes);
    zip_discard(archive);
    return Stored{bytes, st.comp_method, st.mtime, st.crc, attributes};
}

}  // namespace

TEST(ZipWriter, NewArchiveReadsBackWithTheIntendedMethods) {
    ScratchDir dir;
    auto path = dir / "new.zip";
    std::string text;
    for (int i = 0; i < 2000; ++i) text += "<a:p>paragraph " + std::to_string(i) + "</a:p>";
    std::string binary;
    for (int i = 0; i < 70000; ++i) binary.push_back(static_cast<char>((i * 7919) >> 3));
    Items const items = {{"[Content_Types].xml", "<Types/>"},
                         {"ppt/slides/slide1.xml", text},
                         {"ppt/media/image1.png", binary},
                         {"ppt/media/bild-\xC3\xBC.xml", "umlaut"},
                         {"ppt/empty.xml", ""}};
    {
        zippackage::ZipPhysicalPackage zip(path.u16string(), false);
        for (auto const& item : items)
            zip.writeItem(detail::fromUtf8(item.first), std::make_shared<std::string const>(item.second),
                          item.first.find("media/image") == std::string::npos);
        zip.commit();
        EXPECT_THROW(zip.commit(), opc::Exception);
    }
    EXPECT_TRUE(unzipAccepts(path)) << run("unzip -t '" + path.string() + "'").first;
    std::vector<std::string> names;
    for (auto const& item : items) {
        names.push_back(item.first);
        EXPECT_EQ(readItem(path, item.first), item.second) << item.first;
    }
    EXPECT_EQ(itemNames(path), names);

    // One line per entry: method (defX: deflated at the strongest level), the fixed time, then the name.
    std::string listing = run("zipinfo -T '" + path.string() + "'").first;
    EXPECT_NE(listing.find("defX 19800101.000000 ppt/slides/slide1.xml"), std::string::npos) << listing;
    EXPECT_NE(listing.find("stor 19800101.000000 ppt/media/image1.png"), std::string::npos) << listing;
    EXPECT_NE(listing.find("defX 19800101.000000 ppt/media/bild-\xC3\xBC.xml"), std::string::npos) << listing;
    EXPECT_LT(std::filesystem::file_size(path), text.size() / 4 + binary.size() + 1000);
}

// Untouched entries keep their stored form, time and place; a replaced one
// keeps its place; new ones follow.
TEST(ZipWriter, UpdateCopiesUntouchedEntriesAsTheyAreStored) {
    ScratchDir dir;
    auto path = dir / "old.zip";
    std::string const big(50000, 'x');
    makeZip(path,
            {{"[Content_Types].xml", "<Types/>"},
             {"ppt/", ""},
             {"a.xml", big},
             {"b.xml", "old b"},
             {"e.sigs", ""}},
            true);
    {  // b.xml private: its replacement keeps that
        int error = 0;
        zip_t* archive = zip_open(path.c_str(), 0, &error);
        zip_file_set_external_attributes(archive, 3, 0, ZIP_OPSYS_UNIX, 0100600u << 16);
        // e.sigs empty but deflated: an empty deflate stream of 2 bytes
        zip_set_file_compression(archive, 4, ZIP_CM_DEFLATE, 0);
        ASSERT_EQ(zip_close(archive), 0);
    }
    auto const before = path.string() + ".before";
    std::filesystem::copy_file(path, before);
    ASSERT_EQ(stored(before, "e.sigs").bytes.size(), 2u);
    std::filesystem::permissions(path, std::filesystem::perms(0640));
    {
        zippackage::ZipPhysicalPackage zip(path.u16string(), true);
        zip.writeItem(u"c.xml", std::make_shared<std::string const>(big), true);
        zip.writeItem(u"b.xml", std::make_shared<std::string const>("new b"), true);
        zip.commit();
    }
    EXPECT_TRUE(unzipAccepts(path));
    EXPECT_EQ(run("unzip -Z1 '" + path.string() + "'").first,
              "[Content_Types].xml\nppt/\na.xml\nb.xml\ne.sigs\nc.xml\n");
    EXPECT_EQ(readItem(path, "e.sigs"), "");
    EXPECT_EQ(stored(path, "a.xml"), stored(before, "a.xml"));
    EXPECT_EQ(stored(path, "[Content_Types].xml"), stored(before, "[Content_Types].xml"));
    EXPECT_EQ(stored(path, "a.xml").method, ZIP_CM_STORE);
    EXPECT_EQ(stored(path, "c.xml").method, ZIP_CM_DEFLATE);
    EXPECT_EQ(stored(path, "b.xml").attributes, 0100600u << 16);
    EXPECT_EQ(stored(path, "c.xml").attributes, 0100666u << 16);
    EXPECT_EQ(readItem(path, "b.xml"), "new b");
    EXPECT_EQ(readItem(path, "c.xml"), big);
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0640));

    // An update that changes nothing doesn't rewrite the file.
    auto const written = std::filesystem::last_write_time(path);
    zippackage::ZipPhysicalPackage(path.u16string(), true).commit();
    EXPECT_EQ(std::filesystem::last_write_time(path), written);
}

// More entries than a zip without zip64 can count: refused partway through
// the commit, with the file as it was and no temporary file left over.
TEST(ZipWriter, RefusedCommitLeavesTheFileAsItWas) {
    ScratchDir dir;
    auto path = dir / "old.zip";
    makeZip(path, {{"[Content_Types].xml", "<Types/>"}, {"a.xml", "a"}});
    std::string const original = readFile(path);
    {
        zippackage::ZipPhysicalPackage zip(path.u16string(), true);
        auto content = std::make_shared<std::string const>("x");
        for (int i = 0; i < 65535; ++i)
            zip.writeItem(u"p/" + detail::fromUtf8(std::to_string(i)), content, false);
        try {
            zip.commit();
            ADD_FAILURE() << "65,537 entries were written without zip64";
        } catch (opc::Exception const& e) {
            EXPECT_NE(std::string(e.what()).find("zip64"), std::string::npos) << e.what();
        }
    }
    EXPECT_EQ(readFile(path), original);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1);
}
