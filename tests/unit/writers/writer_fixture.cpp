#include "writers/writer_fixture.h"

#include <cstdio>

#include <gtest/gtest.h>
#include <zip.h>

#include "template/presentation_model.h"
#include "writers/ppt_writer.h"

// The template tests' package builders, compiled into this program too.
#include "template/template_fixture.cpp"

namespace deckforge {
namespace test {

namespace {
std::string const kTitle =
    "<p:sp><p:nvSpPr><p:cNvPr id=\"2\" name=\"Title 1\"/><p:cNvSpPr><a:spLocks noGrp=\"1\"/></p:cNvSpPr>"
    "<p:nvPr><p:ph type=\"title\"/></p:nvPr></p:nvSpPr>"
    "<p:spPr><a:xfrm><a:off x=\"457200\" y=\"274638\"/><a:ext cx=\"8229600\" cy=\"1143000\"/></a:xfrm>"
    "<a:prstGeom prst=\"rect\"><a:avLst/></a:prstGeom></p:spPr>"
    "<p:txBody><a:bodyPr/><a:lstStyle><a:lvl1pPr><a:defRPr sz=\"4400\"/></a:lvl1pPr></a:lstStyle>"
    "<a:p><a:r><a:rPr lang=\"en-US\"/><a:t>Click to edit the title</a:t></a:r></a:p></p:txBody></p:sp>";
std::string const kFixedText =
    "<p:sp><p:nvSpPr><p:cNvPr id=\"4\" name=\"Logo text\"/><p:cNvSpPr txBox=\"1\"/><p:nvPr/></p:nvSpPr>"
    "<p:spPr><a:xfrm><a:off x=\"0\" y=\"0\"/><a:ext cx=\"100\" cy=\"100\"/></a:xfrm></p:spPr>"
    "<p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:r><a:t>ACME</a:t></a:r></a:p></p:txBody></p:sp>";
std::string const kFooter =
    "<p:sp><p:nvSpPr><p:cNvPr id=\"5\" name=\"Footer 4\"/><p:cNvSpPr/><p:nvPr><p:ph type=\"ftr\" "
    "sz=\"quarter\" "
    "idx=\"11\"/></p:nvPr></p:nvSpPr><p:spPr/><p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:r><a:t>Confidential"
    "</a:t></a:r></a:p></p:txBody></p:sp>";
std::string const kConnector =
    "<p:cxnSp><p:nvCxnSpPr><p:cNvPr id=\"6\" name=\"Line\"/><p:cNvCxnSpPr/><p:nvPr/></p:nvCxnSpPr>"
    "<p:spPr/></p:cxnSp>";
std::string const kSlide =
    "<p:sld" + kNamespaces +
    "><p:cSld><p:spTree><p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr>"
    "<p:grpSpPr/>"
    "<p:sp><p:nvSpPr><p:cNvPr id=\"2\" name=\"Title 1\"/><p:cNvSpPr/><p:nvPr><p:ph type=\"title\"/></p:nvPr>"
    "</p:nvSpPr><p:spPr/><p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:r><a:t>Kept title</a:t></a:r></a:p>"
    "</p:txBody></p:sp>"
    "<p:sp><p:nvSpPr><p:cNvPr id=\"7\" name=\"Note\"/><p:cNvSpPr txBox=\"1\"/><p:nvPr/></p:nvSpPr>"
    "<p:spPr><a:xfrm><a:off x=\"1\" y=\"2\"/><a:ext cx=\"3\" cy=\"4\"/></a:xfrm></p:spPr>"
    "<p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:r><a:t>Kept note</a:t></a:r></a:p></p:txBody></p:sp>"
    "</p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sld>";
}  // namespace

PackageRecipe deckTemplate(bool withoutSlides) {
    std::string const shapes = kTitle + placeholderXml("3", "Content Placeholder 2", " idx=\"1\"") +
                               kFixedText + kFooter + kConnector;
    PackageRecipe recipe = makeTemplate(
        {{kMaster, "Office Theme", {kLayout}}}, {{kLayout, "Title and Content", kMaster, shapes}},
        withoutSlides ? "" : "<p:sldIdLst><p:sldId id=\"300\" r:id=\"rIdS1\"/></p:sldIdLst>");
    for (auto& part : recipe.parts)
        if (part.name == kLayout)
            part.xml =
                layoutXml("Title and Content", shapes, " type=\"obj\" preserve=\"1\" showMasterSp=\"0\"",
                          "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr>");
    if (!withoutSlides) {
        recipe.part(u"/ppt/slides/slide1.xml", kSlide, kSlideType);
        recipe.rel(u"/ppt/slides/slide1.xml", u"rId1", u"slideLayout", kLayout);
        recipe.rel(u"/ppt/presentation.xml", u"rIdS1", u"slide", u"/ppt/slides/slide1.xml");
    }
    return recipe;
}

RenderedDeck::RenderedDeck(std::filesystem::path const& templateFile, std::filesystem::path const& outFile,
                           Builder const& build)
    : out(outFile) {
    std::filesystem::copy_file(templateFile, outFile);
    LoadedModel m(templateFile);
    if (!m.loaded) throw std::runtime_error("template not loaded");
    std::vector<PPTNodePtr> const slides = build(*m.model);
    auto package = boost::make_shared<OPCPackage>(outFile.u16string());
    package->openForUpdate(false);
    {
        ppt::PPTWriter writer(m.model, package);
        for (auto const& slide : slides) writer.write(slide);
    }
    package->close();
}

PPTNodePtr newSlide(ppt::PresentationModel& model, u16string const& layoutName) {
    return ppt::SlideImpl::createFromLayout(model, model.findLayout(layoutName));
}

PPTNodePtr templateSlide(ppt::PresentationModel& model, std::size_t index) {
    auto* impl = new ppt::SlideImpl();
    PPTNodePtr slide = impl->makeInterface();
    impl->setTemplateSlide(model.getSlides()->at(index));
    impl->makeChildNodes();
    return slide;
}

std::vector<std::string> zipEntries(std::filesystem::path const& file) {
    std::vector<std::string> names;
    int error = 0;
    zip_t* archive = zip_open(file.c_str(), ZIP_RDONLY, &error);
    if (!archive) throw std::runtime_error("cannot open zip " + file.string());
    zip_int64_t const n = zip_get_num_entries(archive, 0);
    for (zip_int64_t i = 0; i < n; ++i)
        names.emplace_back(zip_get_name(archive, static_cast<zip_uint64_t>(i), 0));
    zip_close(archive);
    return names;
}

std::string validate(std::filesystem::path const& file, std::string const& options,
                     std::filesystem::path const& templateFile) {
    std::string const compatibility = checkCompatibility(file, templateFile);
    EXPECT_NE(std::string::npos, compatibility.find(" 0 problems")) << file << ":\n" << compatibility;
    return schemaReport(file, options);
}

std::string schemaReport(std::filesystem::path const& file, std::string const& options) {
    std::string const command = schemaValidator().string() + " " + options + " '" + file.string() + "' 2>&1";
    std::string report;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return report;
    char buffer[4096];
    while (std::size_t n = fread(buffer, 1, sizeof buffer, pipe)) report.append(buffer, n);
    pclose(pipe);
    return report;
}

std::size_t countOf(std::string const& text, std::string const& needle) {
    std::size_t count = 0;
    for (auto at = text.find(needle); at != std::string::npos; at = text.find(needle, at + needle.size()))
        ++count;
    return count;
}

}  // namespace test
}  // namespace deckforge
