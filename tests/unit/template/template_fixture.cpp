#include "template_fixture.h"

#include <memory>

namespace deckforge {
namespace test {

void PackageRecipe::write(std::filesystem::path const& file) const {
    ppt::OPCPartWriter writer(file.u16string(), false);
    for (Part const& p : parts) {
        opc::model::Part part = writer.createPart(p.name, p.contentType);
        boost::shared_ptr<opc::OutputStream> out = part.getOutputStream();
        out->write(p.xml.data(), p.xml.size());
        out->close();
    }
    for (Rel const& r : rels) {
        if (r.source.empty())
            writer.createRelationship(r.type, r.target, r.id);
        else
            writer.getPart(r.source).createInternalRelationship(r.type, opc::model::URI(r.target), r.id);
    }
}

std::string layoutXml(std::string const& name, std::string const& shapes, std::string const& rootAttributes,
                      std::string const& afterCSld) {
    return "<p:sldLayout" + kNamespaces + rootAttributes + "><p:cSld name=\"" + name +
           "\"><p:spTree><p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr>"
           "<p:grpSpPr/>" +
           shapes + "</p:spTree></p:cSld>" + afterCSld + "</p:sldLayout>";
}

std::string placeholderXml(std::string const& id, std::string const& name, std::string const& phAttributes) {
    return "<p:sp><p:nvSpPr><p:cNvPr id=\"" + id + "\" name=\"" + name + "\"/><p:cNvSpPr/><p:nvPr><p:ph" +
           phAttributes +
           "/></p:nvPr></p:nvSpPr><p:spPr/><p:txBody><a:bodyPr/><a:lstStyle/><a:p/></p:txBody></p:sp>";
}

PackageRecipe makeTemplate(std::vector<Master> const& masters, std::vector<Layout> const& layouts,
                           std::string const& presentationExtra) {
    PackageRecipe recipe;
    std::string ids;
    int n = 0;
    for (Master const& m : masters) {
        ++n;
        u16string const rid = u"rIdM" + num2str(n);
        ids +=
            "<p:sldMasterId id=\"" + std::to_string(2147483647LL + n) + "\" r:id=\"" + toUtf8(rid) + "\"/>";
        recipe.rel(u"/ppt/presentation.xml", rid, u"slideMaster", m.partName);
        recipe.part(m.partName,
                    "<p:sldMaster" + kNamespaces +
                        "><p:cSld><p:spTree><p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/></p:nvGrpSpPr>" +
                        placeholderXml("2", "Title Placeholder 1", " type=\"title\"") +
                        "</p:spTree></p:cSld></p:sldMaster>");
        if (!m.themeName.empty()) {
            u16string const theme = u"/ppt/theme/theme" + num2str(n) + u".xml";
            recipe.part(theme,
                        "<a:theme xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\" name=\"" +
                            m.themeName + "\"/>");
            recipe.rel(m.partName, u"rIdT", u"theme", theme);
        }
        int k = 0;
        for (u16string const& layout : m.layoutPartNames)
            recipe.rel(m.partName, u"rIdL" + num2str(++k), u"slideLayout", layout);
    }
    for (Layout const& l : layouts) {
        recipe.part(l.partName, layoutXml(l.name, l.shapes));
        if (!l.masterPartName.empty()) recipe.rel(l.partName, u"rIdM", u"slideMaster", l.masterPartName);
    }
    recipe.part(u"/ppt/presentation.xml",
                "<p:presentation" + kNamespaces + "><p:sldMasterIdLst>" + ids + "</p:sldMasterIdLst>" +
                    presentationExtra +
                    "<p:sldSz cx=\"9144000\" cy=\"6858000\"/><p:notesSz cx=\"6858000\" "
                    "cy=\"9144000\"/></p:presentation>",
                kPresentationType);
    recipe.rel(u"", u"rId1", u"officeDocument", u"/ppt/presentation.xml");
    return recipe;
}

LoadedModel::LoadedModel(std::filesystem::path const& file) {
    package = boost::make_shared<OPCPackage>(file.u16string());
    package->openForRead(false);
    builder = boost::make_shared<PartDOMBuilder>(package);
    model = boost::make_shared<PresentationModel>(builder);
    loaded = model->load();
}

TestDocumentWriter::TestDocumentWriter(boost::shared_ptr<OPCPackage> const& package)
    : PartDocumentWriter(package) {}

void TestDocumentWriter::writeDocument(u16string const& partName, xercesc::DOMDocument* document) {
    opc::model::Part part = getPart(partName);
    boost::shared_ptr<opc::OutputStream> out = part.getOutputStream();
    opc::model::XercesHelper::writeDocumentToStream(document, *out);
    out->close();
}

xercesc::DOMDocument* parseXml(xercesc::DOMLSParser* parser, std::string const& xml) {
    opc::MemoryInputStream in(std::make_shared<std::string const>(xml));
    u16string errors, warnings;
    return opc::model::XercesHelper::readDocumentFromStream(parser, in, false, errors, warnings);
}

std::vector<u16string> childNames(xercesc::DOMElement const* element) {
    std::vector<u16string> names;
    for (auto* child = element ? element->getFirstElementChild() : nullptr; child;
         child = child->getNextElementSibling())
        names.push_back(child->getTagName());
    return names;
}

u16string attr(xercesc::DOMElement const* element, char16_t const* name) {
    return element->getAttribute(name);
}

std::string readPart(std::filesystem::path const& file, u16string const& partName) {
    ppt::OPCPartReader reader(file.u16string());
    boost::shared_ptr<opc::InputStream> in = reader.getPart(partName).getInputStream();
    return opc::StreamHelper::readAll(*in, std::size_t(1) << 28);
}

}  // namespace test
}  // namespace deckforge
