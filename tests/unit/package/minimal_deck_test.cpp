#include <gtest/gtest.h>

#include "common/strings.h"
#include "package/opc_package.h"
#include "platform/opc_test_util.h"
#include "support/test_support.h"

using namespace deckforge;
using namespace deckforge::ppt;
using opc_test::run;
using opc_test::writePart;

namespace {

std::string const kNs =
    " xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\""
    " xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\""
    " xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\"";
std::string const kDecl = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
std::string const kEmptyTree =
    "<p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>";

std::string themeXml() {
    std::string colours;
    char const* names[] = {"dk2",     "lt2",     "accent1", "accent2", "accent3",
                           "accent4", "accent5", "accent6", "hlink",   "folHlink"};
    for (auto name : names)
        colours += std::string("<a:") + name + "><a:srgbClr val=\"4F81BD\"/></a:" + name + ">";
    std::string fill = "<a:solidFill><a:schemeClr val=\"phClr\"/></a:solidFill>";
    std::string line = "<a:ln w=\"9525\">" + fill + "</a:ln>";
    std::string effect = "<a:effectStyle><a:effectLst/></a:effectStyle>";
    std::string font = "<a:latin typeface=\"Arial\"/><a:ea typeface=\"\"/><a:cs typeface=\"\"/>";
    return kDecl +
           "<a:theme xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\" name=\"Plain\">"
           "<a:themeElements><a:clrScheme name=\"Plain\"><a:dk1><a:sysClr val=\"windowText\" "
           "lastClr=\"000000\"/></a:dk1>"
           "<a:lt1><a:sysClr val=\"window\" lastClr=\"FFFFFF\"/></a:lt1>" +
           colours +
           "</a:clrScheme>"
           "<a:fontScheme name=\"Plain\"><a:majorFont>" +
           font + "</a:majorFont><a:minorFont>" + font +
           "</a:minorFont></a:fontScheme><a:fmtScheme name=\"Plain\"><a:fillStyleLst>" + fill + fill + fill +
           "</a:fillStyleLst><a:lnStyleLst>" + line + line + line + "</a:lnStyleLst><a:effectStyleLst>" +
           effect + effect + effect + "</a:effectStyleLst><a:bgFillStyleLst>" + fill + fill + fill +
           "</a:bgFillStyleLst></a:fmtScheme></a:themeElements></a:theme>";
}

// Parts and relationships of the smallest deck that PowerPoint opens: one
// master with its theme, one layout, one slide with a text box.
void writeMinimalDeck(u16string const& path) {
    OPCPartWriter writer(path, false);
    u16string pml = u"application/vnd.openxmlformats-officedocument.presentationml.";
    u16string rel = u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
    auto main = writer.createPart(u"/ppt/presentation.xml", pml + u"presentation.main+xml");
    auto master = writer.createPart(u"/ppt/slideMasters/slideMaster1.xml", pml + u"slideMaster+xml");
    auto layout = writer.createPart(u"/ppt/slideLayouts/slideLayout1.xml", pml + u"slideLayout+xml");
    auto slide = writer.createPart(u"/ppt/slides/slide1.xml", pml + u"slide+xml");
    auto theme = writer.createPart(u"/ppt/theme/theme1.xml",
                                   u"application/vnd.openxmlformats-officedocument.theme+xml");
    writer.createRelationship(rel + u"officeDocument", u"/ppt/presentation.xml", u"");
    auto relate = [&](opc::model::Part& from, opc::model::Part const& to, char16_t const* kind) {
        return toUtf8(
            from.createInternalRelationship(rel + kind, opc::model::URI(to.getName().toString()), u"")
                .getID());
    };
    std::string masterId = relate(main, master, u"slideMaster"), slideId = relate(main, slide, u"slide");
    relate(main, theme, u"theme");
    std::string layoutId = relate(master, layout, u"slideLayout");
    relate(master, theme, u"theme");
    relate(layout, master, u"slideMaster");
    relate(slide, layout, u"slideLayout");

    writePart(main, kDecl + "<p:presentation" + kNs +
                        "><p:sldMasterIdLst><p:sldMasterId id=\"2147483648\" r:id=\"" + masterId +
                        "\"/></p:sldMasterIdLst><p:sldIdLst><p:sldId id=\"256\" r:id=\"" + slideId +
                        "\"/></p:sldIdLst><p:sldSz cx=\"9144000\" cy=\"6858000\"/><p:notesSz cx=\"6858000\" "
                        "cy=\"9144000\"/></p:presentation>");
    writePart(master, kDecl + "<p:sldMaster" + kNs + "><p:cSld><p:spTree>" + kEmptyTree +
                          "</p:spTree></p:cSld><p:clrMap bg1=\"lt1\" tx1=\"dk1\" bg2=\"lt2\" tx2=\"dk2\" "
                          "accent1=\"accent1\" "
                          "accent2=\"accent2\" accent3=\"accent3\" accent4=\"accent4\" accent5=\"accent5\" "
                          "accent6=\"accent6\" "
                          "hlink=\"hlink\" folHlink=\"folHlink\"/><p:sldLayoutIdLst><p:sldLayoutId "
                          "id=\"2147483649\" r:id=\"" +
                          layoutId + "\"/></p:sldLayoutIdLst></p:sldMaster>");
    writePart(layout,
              kDecl + "<p:sldLayout" + kNs + " type=\"blank\"><p:cSld name=\"Blank\"><p:spTree>" +
                  kEmptyTree +
                  "</p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sldLayout>");
    writePart(
        slide,
        kDecl + "<p:sld" + kNs + "><p:cSld><p:spTree>" + kEmptyTree +
            "<p:sp><p:nvSpPr><p:cNvPr id=\"2\" name=\"Text\"/><p:cNvSpPr txBox=\"1\"/><p:nvPr/></p:nvSpPr>"
            "<p:spPr><a:xfrm><a:off x=\"914400\" y=\"914400\"/><a:ext cx=\"7315200\" cy=\"914400\"/></a:xfrm>"
            "<a:prstGeom prst=\"rect\"><a:avLst/></a:prstGeom></p:spPr><p:txBody><a:bodyPr/><a:lstStyle/>"
            "<a:p><a:r><a:rPr lang=\"en-US\"/><a:t>Hello from deckforge</a:t></a:r></a:p></p:txBody></p:sp>"
            "</p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sld>");
    writePart(theme, themeXml());
}

}  // namespace

TEST(OPCPartWriter, MinimalDeckIsAValidPackage) {
    test::ScratchDir dir;
    auto deck = dir / "minimal.pptx";
    writeMinimalDeck(deck.u16string());
    EXPECT_TRUE(opc_test::unzipAccepts(deck));
    EXPECT_EQ(opc_test::firstEntry(deck), "[Content_Types].xml");
    if (std::filesystem::exists(test::schemaValidator())) {
        auto result = run("'" + test::schemaValidator().string() + "' '" + deck.string() + "'");
        EXPECT_EQ(result.second, 0) << result.first;
    }
}

TEST(OPCPartWriter, MinimalDeckConvertsWithLibreOffice) {
    if (!::deckforge::test::officeToolsAvailable()) {
        GTEST_SKIP() << "soffice is not installed";
    }
    test::ScratchDir dir;
    auto deck = dir / "minimal.pptx";
    writeMinimalDeck(deck.u16string());
    auto result =
        run("cd '" + dir.path().string() + "' && timeout 300 soffice -env:UserInstallation=file://" +
            (dir / "profile").string() + " --headless --convert-to pdf minimal.pptx");
    ASSERT_TRUE(std::filesystem::exists(dir / "minimal.pdf")) << result.first;
    if (run("command -v pdftotext").second == 0) {
        EXPECT_NE(
            run("pdftotext '" + (dir / "minimal.pdf").string() + "' -").first.find("Hello from deckforge"),
            std::string::npos);
    }
}
