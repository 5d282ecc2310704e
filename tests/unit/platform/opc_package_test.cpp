#include <gtest/gtest.h>

#include <chrono>
#include <fstream>

#include "platform/opc_test_util.h"
#include "support/test_support.h"

using namespace opc;
using namespace opc::model;
using namespace opc_test;
using deckforge::test::readFile;
using deckforge::test::ScratchDir;

namespace {

char16_t const kOfficeDocument[] =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument";
char16_t const kImage[] = u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/image";
char16_t const kLink[] = u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/hyperlink";
char16_t const kSlide[] = u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/slide";
char16_t const kMain[] =
    u"application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml";
char16_t const kSlideType[] = u"application/vnd.openxmlformats-officedocument.presentationml.slide+xml";

std::string const kLargePart = "<p:sld>" + std::string(5000, 'x') + "</p:sld>";

// A package with a main part, a large part, a stored image, and internal
// and external relationships, written new through a stream.
void writeSample(std::filesystem::path const& path) {
    std::ofstream file(path, std::ios::binary);
    StdOStreamAdaptor out(file);
    zippackage::ZipPhysicalPackage zip(out, false);
    Package package(zip);
    package.open(Package::OpenWrite);
    Part main = package.createPart(PartName(u"/ppt/presentation.xml"), ContentType(kMain));
    writePart(main, "<p:presentation/>");
    Part image = package.createPart(PartName(u"/ppt/media/image1.png"), ContentType(u"image/png"),
                                    StandardPartInfo(0, 0));
    writePart(image, std::string(1000, '\x89'));
    // A large part waits deflated until the close, and still reads back.
    Part large = package.createPart(PartName(u"/ppt/large.xml"), ContentType(u"application/xml"));
    writePart(large, kLargePart);
    EXPECT_EQ(readPart(large), kLargePart);
    EXPECT_EQ(package.createInternalRelationship(kOfficeDocument, URI(u"/ppt/presentation.xml"), u"").getID(),
              u"rId1");
    main.createInternalRelationship(kImage, URI(u"/ppt/media/image1.png"), u"rId7");
    main.createExternalRelationship(kLink, u"https://example.com/a?b=1&c=\"2\"", u"");
    package.close(false);
}

struct ReadPackage {
    explicit ReadPackage(std::filesystem::path const& path)
        : file(path, std::ios::binary), in(file), zip(in), package(zip) {
        package.open(Package::OpenRead);
    }
    std::ifstream file;
    StdIStreamAdaptor in;
    zippackage::ZipPhysicalPackage zip;
    Package package;
};

}  // namespace

TEST(OpcPackage, WrittenPackageReadsBack) {
    ScratchDir dir;
    auto path = dir / "sample.pptx";
    writeSample(path);
    EXPECT_TRUE(unzipAccepts(path));
    EXPECT_EQ(firstEntry(path), "[Content_Types].xml");

    ReadPackage read(path);
    Package& package = read.package;
    EXPECT_TRUE(package.hasPart(PartName(u"/PPT/Presentation.XML")));
    EXPECT_FALSE(package.hasPart(PartName(u"/ppt/_rels/presentation.xml.rels")));
    EXPECT_FALSE(package.hasPart(PartName(u"/[Content_Types].xml")));
    Part main = package.getPart(PartName(u"/ppt/presentation.xml"));
    EXPECT_EQ(main.getContentType().toString(), kMain);
    EXPECT_EQ(readPart(main), "<p:presentation/>");
    Part image = package.getPart(PartName(u"/ppt/media/image1.png"));
    EXPECT_EQ(image.getContentType().toString(), u"image/png");
    EXPECT_EQ(readPart(image), std::string(1000, '\x89'));
    EXPECT_EQ(readPart(package.getPart(PartName(u"/ppt/large.xml"))), kLargePart);

    auto root = package.getRelationships();
    ASSERT_EQ(root.size(), 1u);
    EXPECT_EQ(root[0].getTarget(), u"ppt/presentation.xml");
    EXPECT_EQ(root[0].getTargetURI().toString(), u"/ppt/presentation.xml");

    auto rels = main.getRelationships();
    ASSERT_EQ(rels.size(), 2u);
    EXPECT_EQ(rels[0].getID(), u"rId7");
    EXPECT_EQ(rels[0].getTarget(), u"media/image1.png");
    EXPECT_EQ(rels[0].getTargetURI().getPath(), u"/ppt/media/image1.png");
    EXPECT_EQ(rels[0].getTargetMode(), TargetModeInternal);
    EXPECT_EQ(rels[1].getID(), u"rId1");
    EXPECT_EQ(rels[1].getTargetMode(), TargetModeExternal);
    EXPECT_EQ(main.getRelationshipByID(u"rId1").getTarget(), u"https://example.com/a?b=1&c=\"2\"");
    EXPECT_THROW(main.getRelationshipByID(u"rId404"), opc::Exception);
    EXPECT_THROW(package.getPart(PartName(u"/ppt/none.xml")), opc::Exception);
    EXPECT_THROW(package.createPart(PartName(u"/x.xml"), ContentType(u"application/xml")), opc::Exception);
    EXPECT_THROW(main.getOutputStream(), opc::Exception);
}

TEST(OpcPackage, UpdateInPlaceChangesOnlyWhatItTouches) {
    ScratchDir dir;
    auto path = dir / "sample.pptx";
    writeSample(path);
    std::string before = readFile(path);
    {
        zippackage::ZipPhysicalPackage zip(path.u16string(), true);
        Package package(zip);
        package.open(Package::OpenReadWrite);
        package.createPart(PartName(u"/ppt/x.xml"), ContentType(u"application/xml"));
        package.close(true);  // dropped: the file must stay as it was
    }
    EXPECT_EQ(readFile(path), before);
    {
        zippackage::ZipPhysicalPackage zip(path.u16string(), true);
        Package package(zip);
        package.open(Package::OpenReadWrite);
        Part slide = package.createPart(PartName(u"/ppt/slides/slide1.xml"), ContentType(kSlideType));
        writePart(slide, "<p:sld/>");
        slide.createInternalRelationship(kImage, URI(u"/ppt/media/image1.png"), u"");
        Part main = package.getPart(PartName(u"/ppt/presentation.xml"));
        EXPECT_EQ(main.createInternalRelationship(kSlide, URI(u"slides/slide1.xml"), u"").getID(), u"rId2");
        main.deleteRelationship(u"rId1");
        writePart(main, "<p:presentation>new</p:presentation>");
        package.close(false);
        package.close(false);
    }
    EXPECT_TRUE(unzipAccepts(path));
    ReadPackage read(path);
    Part main = read.package.getPart(PartName(u"/ppt/presentation.xml"));
    EXPECT_EQ(readPart(main), "<p:presentation>new</p:presentation>");
    auto rels = main.getRelationships();
    ASSERT_EQ(rels.size(), 2u);
    EXPECT_EQ(rels[0].getID(), u"rId7");
    EXPECT_EQ(rels[1].getTargetURI().toString(), u"/ppt/slides/slide1.xml");
    Part slide = read.package.getPart(PartName(u"/ppt/slides/slide1.xml"));
    EXPECT_EQ(slide.getContentType().toString(), kSlideType);
    EXPECT_EQ(slide.getRelationships().at(0).getTarget(), u"../media/image1.png");
    EXPECT_EQ(readPart(read.package.getPart(PartName(u"/ppt/media/image1.png"))), std::string(1000, '\x89'));
}

// What other tools write: BOMs, stored entries, directory entries, the
// content types last, escaped and relative targets, upper-case extensions.
TEST(OpcPackage, ReadsPackagesAsOtherToolsWriteThem) {
    ScratchDir dir;
    auto path = dir / "foreign.pptx";
    std::string bom = "\xEF\xBB\xBF";
    makeZip(path,
            {{"ppt/", ""},
             {"_rels/.rels",
              bom + "<?xml version=\"1.0\" encoding=\"UTF-8\"?><Relationships "
                    "xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
                    "<Relationship Id=\"r1\" Type=\"t\" Target=\"/ppt/presentation.xml\"/></Relationships>"},
             {"ppt/_rels/presentation.xml.rels",
              "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
              "<Relationship Id=\"a\" Type=\"t\" Target=\"media/a%20b.PNG\"/>"
              "<Relationship Id=\"b\" Type=\"t\" Target=\"../docProps/app.xml#frag\"/>"
              "<Relationship Id=\"c\" Type=\"t\" Target=\"./slides/../theme/theme1.xml\"/>"
              "<Relationship Id=\"a\" Type=\"dup\" Target=\"x\"/></Relationships>"},
             {"ppt/presentation.xml", bom + "<p:presentation/>"},
             {"ppt/media/a b.PNG", "png"},
             {"ppt/theme/theme1.xml", "<a:theme/>"},
             {"docProps/app.xml", "<Properties/>"},
             {"[Content_Types].xml",
              bom + "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
                    "<Default Extension=\"png\" ContentType=\"image/png\"/><Default Extension=\"xml\" "
                    "ContentType=\"application/xml\"/>"
                    "<Override PartName=\"/PPT/presentation.xml\" ContentType=\"main\"/></Types>"}},
            true);
    ReadPackage read(path);
    Package& package = read.package;
    EXPECT_EQ(package.getPart(PartName(u"/ppt/presentation.xml")).getContentType().toString(), u"main");
    auto rels = package.getPart(PartName(u"/ppt/presentation.xml")).getRelationships();
    ASSERT_EQ(rels.size(), 3u);  // the repeated id counts once
    Part image = package.getPart(PartName(rels[0].getTargetURI().getPath()));
    EXPECT_EQ(image.getContentType().toString(), u"image/png");
    EXPECT_EQ(readPart(image), "png");
    EXPECT_EQ(rels[1].getTargetURI().getPath(), u"/docProps/app.xml");
    EXPECT_EQ(rels[2].getTargetURI().toString(), u"/ppt/theme/theme1.xml");
    for (auto const& r : rels) EXPECT_TRUE(package.hasPart(PartName(r.getTargetURI().getPath())));
}

TEST(OpcPackage, RelationshipIdsAreUniqueAndFolderPackagesRoundTrip) {
    ScratchDir dir;
    auto folder = (dir / "unpacked").u16string();
    {
        fspackage::FileSystemPhysicalPackage physical(folder);
        Package package(physical);
        package.open(Package::OpenWrite);
        writePart(package.createPart(PartName(u"/a.xml"), ContentType(u"application/xml")), "<a/>");
        package.createInternalRelationship(u"t", URI(u"/a.xml"), u"rId2");
        EXPECT_EQ(package.createInternalRelationship(u"t", URI(u"/a.xml"), u"").getID(), u"rId1");
        EXPECT_EQ(package.createInternalRelationship(u"t", URI(u"/a.xml"), u"").getID(), u"rId3");
        EXPECT_THROW(package.createInternalRelationship(u"t", URI(u"/a.xml"), u"rId2"), opc::Exception);
        EXPECT_THROW(package.createInternalRelationship(u"t", URI(u"/a.xml"), u"1st"), opc::Exception);
        EXPECT_THROW(package.deleteRelationship(u"rId9"), opc::Exception);
        EXPECT_THROW(package.createPart(PartName(u"/A.XML"), ContentType(u"x")), opc::Exception);
        EXPECT_THROW(package.createPart(PartName(u"/_rels/.rels"), ContentType(u"x")), opc::Exception);
        EXPECT_THROW(package.createPart(PartName(u"/b/../../c.xml"), ContentType(u"x")), opc::Exception);
        package.close(false);
    }
    fspackage::FileSystemPhysicalPackage physical(folder);
    Package package(physical);
    package.open(Package::OpenRead);
    EXPECT_EQ(readPart(package.getPart(PartName(u"/a.xml"))), "<a/>");
    EXPECT_EQ(package.getRelationships().size(), 3u);
}

// Many parts with one relationship each, as a large deck has: every part and
// relationship must survive the round trip. (Speed is measured in bench/.)
TEST(OpcPackage, ThousandsOfPartsAndRelationshipsRoundTrip) {
    ScratchDir dir;
    auto path = dir / "big.pptx";
    {
        zippackage::ZipPhysicalPackage zip(path.u16string(), false);
        Package package(zip);
        package.open(Package::OpenWrite);
        Part main = package.createPart(PartName(u"/ppt/presentation.xml"), ContentType(kMain));
        for (int i = 1; i <= 3000; ++i) {
            std::string digits = std::to_string(i);
            std::u16string name =
                u"/ppt/slides/slide" + std::u16string(digits.begin(), digits.end()) + u".xml";
            ASSERT_FALSE(package.hasPart(PartName(name)));
            writePart(package.createPart(PartName(name), ContentType(kSlideType)), "<p:sld/>");
            main.createInternalRelationship(kSlide, URI(name), u"");
        }
        package.close(false);
    }
    ReadPackage read(path);
    auto rels = read.package.getPart(PartName(u"/ppt/presentation.xml")).getRelationships();
    ASSERT_EQ(rels.size(), 3000u);
    for (auto const& r : rels)
        ASSERT_EQ(readPart(read.package.getPart(PartName(r.getTargetURI().toString()))), "<p:sld/>");
}
