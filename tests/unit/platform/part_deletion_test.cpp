#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/opc_test_util.h"
#include "support/test_support.h"

using namespace opc;
using namespace opc_test;
using deckforge::test::ScratchDir;

namespace {

char const kTypes[] =
    "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
    "<Default Extension=\"rels\" ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
    "<Override PartName=\"/a.xml\" ContentType=\"text/a\"/><Override PartName=\"/b.xml\" ContentType=\"text/b\"/>"
    // as LibreOffice writes them: relationship parts with Overrides of their own
    "<Override PartName=\"/_rels/a.xml.rels\" "
    "ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
    "</Types>";
char const kRels[] =
    "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
    "<Relationship Id=\"rId1\" Type=\"t\" Target=\"b.xml\"/></Relationships>";

// Deleting a stored part drops its item, its relationships item and its
// content types; the rest is copied, and under SOURCE_DATE_EPOCH every entry,
// copied or new, carries that time in UTC.
TEST(PartDeletion, DeletedPartLeavesNothingBehindAndEntriesTakeTheFixedTime) {
    ScratchDir dir;
    auto const path = dir / "p.zip";
    makeZip(path, {{"[Content_Types].xml", kTypes}, {"a.xml", "<a/>"}, {"_rels/a.xml.rels", kRels},
                   {"b.xml", "<b/>"}});
    ::setenv("SOURCE_DATE_EPOCH", "1700000000", 1);  // 2023-11-14 22:13:20 UTC
    {
        zippackage::ZipPhysicalPackage physical(path.u16string(), true);
        model::Package package(physical);
        package.open(model::Package::OpenReadWrite);
        package.deletePart(model::PartName(u"/a.xml"));
        EXPECT_FALSE(package.hasPart(model::PartName(u"/a.xml")));
        EXPECT_THROW(package.deletePart(model::PartName(u"/a.xml")), Exception);
        writePart(package.createPart(model::PartName(u"/c.xml"), model::ContentType(u"text/c")), "<c/>");
        package.close(false);
    }
    ::unsetenv("SOURCE_DATE_EPOCH");
    EXPECT_EQ(run("unzip -Z1 '" + path.string() + "'").first, "[Content_Types].xml\nb.xml\nc.xml\n");
    std::string const types = run("unzip -p '" + path.string() + "' '\\[Content_Types\\].xml'").first;
    EXPECT_EQ(std::string::npos, types.find("/a.xml")) << types;
    EXPECT_NE(std::string::npos, types.find("/b.xml")) << types;
    std::string const listing = run("TZ=UTC unzip -l '" + path.string() + "'").first;
    EXPECT_EQ(3u, [&] {
        std::size_t n = 0;
        for (auto at = listing.find("2023-11-14 22:13"); at != std::string::npos;
             at = listing.find("2023-11-14 22:13", at + 1))
            ++n;
        return n;
    }()) << listing;
}

}  // namespace
