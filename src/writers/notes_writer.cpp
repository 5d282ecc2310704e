#include "writers/notes_writer.h"

#include <algorithm>

#include <xercesc/dom/DOM.hpp>

#include "platform/opc/opc.h"
#include "template/presentation_model.h"
#include "writers/ppt_part_writer.h"
#include "writers/ppt_writer.h"
#include "writers/xml_text.h"

namespace deckforge {
namespace ppt {

namespace {

char16_t const kRelationshipBase[] = u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
char16_t const kNotesSlideType[] = u"application/vnd.openxmlformats-officedocument.presentationml.notesSlide+xml";
char16_t const kNotesMasterType[] =
    u"application/vnd.openxmlformats-officedocument.presentationml.notesMaster+xml";
char16_t const kThemeType[] = u"application/vnd.openxmlformats-officedocument.theme+xml";

u16string relationshipType(char16_t const* kind) {
    return kRelationshipBase + u16string(kind);
}

char const kNamespaces[] =
    " xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\""
    " xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\""
    " xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\"";

char const kGroupProperties[] =
    "<p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr>"
    "<p:grpSpPr><a:xfrm><a:off x=\"0\" y=\"0\"/><a:ext cx=\"0\" cy=\"0\"/>"
    "<a:chOff x=\"0\" y=\"0\"/><a:chExt cx=\"0\" cy=\"0\"/></a:xfrm></p:grpSpPr>";

// A placeholder shape; `geometry` is the spPr content, `body` the txBody or nothing.
std::string placeholder(int id, char const* name, char const* ph, char const* locks, std::string const& geometry,
                        std::string const& body) {
    return "<p:sp><p:nvSpPr><p:cNvPr id=\"" + std::to_string(id) + "\" name=\"" + name +
           "\"/><p:cNvSpPr><a:spLocks " + locks + "/></p:cNvSpPr><p:nvPr>" + ph + "</p:nvPr></p:nvSpPr><p:spPr>" +
           geometry + "</p:spPr>" + body + "</p:sp>";
}

std::string rectangle(long x, long y, long cx, long cy) {
    return "<a:xfrm><a:off x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) + "\"/><a:ext cx=\"" +
           std::to_string(cx) + "\" cy=\"" + std::to_string(cy) + "\"/></a:xfrm><a:prstGeom prst=\"rect\"><a:avLst/></a:prstGeom>";
}

void writePart(opc::model::Part part, std::string const& xml) {
    boost::shared_ptr<opc::OutputStream> out = part.getOutputStream();
    std::string const declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n";
    out->write(declaration.data(), declaration.size());
    out->write(xml.data(), xml.size());
    out->close();
}

}  // namespace

std::string NotesWriter::notesSlideXml(NotesParagraphs const& paragraphs) {
    std::string text = "<p:txBody><a:bodyPr/><a:lstStyle/>";
    for (auto const& paragraph : paragraphs) {
        text += "<a:p>";
        if (paragraph.level > 1) text += "<a:pPr lvl=\"" + std::to_string(std::min(paragraph.level, 9u) - 1) + "\"/>";
        // A line feed ends a paragraph when notes are set; a vertical tab
        // is a line break inside one, as PowerPoint keeps it.
        std::vector<u16string> const lines = runLines(paragraph.text);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (i > 0) text += "<a:br><a:rPr lang=\"en-US\"/></a:br>";
            if (lines[i].empty()) continue;
            text += "<a:r><a:rPr lang=\"en-US\" dirty=\"0\"/><a:t>";
            appendEscaped(text, lines[i]);
            text += "</a:t></a:r>";
        }
        text += "</a:p>";
    }
    if (paragraphs.empty()) text += "<a:p/>";
    text += "</p:txBody>";
    return std::string("<p:notes") + kNamespaces + "><p:cSld><p:spTree>" + kGroupProperties +
           placeholder(2, "Slide Image Placeholder 1", "<p:ph type=\"sldImg\"/>",
                       "noGrp=\"1\" noRot=\"1\" noChangeAspect=\"1\"", "", "") +
           placeholder(3, "Notes Placeholder 2", "<p:ph type=\"body\" idx=\"1\"/>", "noGrp=\"1\"", "", text) +
           "</p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:notes>";
}

std::string NotesWriter::notesMasterXml(long slideWidth, long slideHeight) {
    // A portrait page of 7.5 by 10 inches, the usual notes size: the slide
    // image above, 3.75 inches high and centred, the notes below.
    long const imageHeight = 3429000;
    long imageWidth = slideWidth > 0 && slideHeight > 0 ? imageHeight * slideWidth / slideHeight : 4572000;
    imageWidth = std::min(imageWidth, 6858000L - 2 * 228600);
    std::string const style =
        "<a:defRPr sz=\"1200\" kern=\"1200\"><a:solidFill><a:schemeClr val=\"tx1\"/></a:solidFill>"
        "<a:latin typeface=\"+mn-lt\"/><a:ea typeface=\"+mn-ea\"/><a:cs typeface=\"+mn-cs\"/></a:defRPr>";
    std::string levels;
    for (int level = 1; level <= 9; ++level)
        levels += "<a:lvl" + std::to_string(level) + "pPr marL=\"" + std::to_string((level - 1) * 457200) +
                  "\" algn=\"l\" defTabSz=\"914400\" rtl=\"0\" eaLnBrk=\"1\" latinLnBrk=\"0\" hangingPunct=\"1\">" +
                  style + "</a:lvl" + std::to_string(level) + "pPr>";
    std::string const body =
        "<p:txBody><a:bodyPr vert=\"horz\" lIns=\"91440\" tIns=\"45720\" rIns=\"91440\" bIns=\"45720\" rtlCol=\"0\"/>"
        "<a:lstStyle/><a:p><a:pPr lvl=\"0\"/><a:r><a:rPr lang=\"en-US\"/><a:t>Notes</a:t></a:r></a:p></p:txBody>";
    return std::string("<p:notesMaster") + kNamespaces +
           "><p:cSld><p:bg><p:bgRef idx=\"1001\"><a:schemeClr val=\"bg1\"/></p:bgRef></p:bg><p:spTree>" +
           kGroupProperties +
           placeholder(2, "Slide Image Placeholder 1", "<p:ph type=\"sldImg\" idx=\"2\"/>",
                       "noGrp=\"1\" noRot=\"1\" noChangeAspect=\"1\"",
                       rectangle((6858000 - imageWidth) / 2, 685800, imageWidth, imageHeight) +
                           "<a:noFill/><a:ln w=\"12700\"><a:solidFill><a:prstClr val=\"black\"/></a:solidFill></a:ln>",
                       "") +
           placeholder(3, "Notes Placeholder 2", "<p:ph type=\"body\" sz=\"quarter\" idx=\"3\"/>", "noGrp=\"1\"",
                       rectangle(685800, 4343400, 5486400, 4114800), body) +
           "</p:spTree></p:cSld>"
           "<p:clrMap bg1=\"lt1\" tx1=\"dk1\" bg2=\"lt2\" tx2=\"dk2\" accent1=\"accent1\" accent2=\"accent2\""
           " accent3=\"accent3\" accent4=\"accent4\" accent5=\"accent5\" accent6=\"accent6\" hlink=\"hlink\""
           " folHlink=\"folHlink\"/><p:notesStyle>" +
           levels + "</p:notesStyle></p:notesMaster>";
}

u16string NotesWriter::notesMaster() {
    PPTPartWriter& parts = *writer->getPartWriter();
    PresentationModel& model = *writer->getModel();
    opc::model::Part presentation = parts.getPart(model.getPresentationPartName());
    u16string const masterType = relationshipType(u"notesMaster");
    for (auto const& relationship : presentation.getRelationships()) {
        u16string const target = relationship.getTargetURI().getPath();
        if (relationship.getType() == masterType && parts.hasPart(target)) return target;
    }

    // The notes master's theme starts as a copy of the first slide master's.
    u16string sourceTheme;
    for (auto const& master : *model.getMasters())
        if (master && master->theme && parts.hasPart(master->theme->partName)) {
            sourceTheme = master->theme->partName;
            break;
        }
    if (sourceTheme.empty()) return u16string();
    u16string const themeName = parts.newPartName(u"/ppt/theme/theme", u".xml");
    opc::model::Part theme = parts.createPart(themeName, kThemeType);
    {
        auto in = parts.getPart(sourceTheme).getInputStream();
        auto out = theme.getOutputStream();
        opc::StreamHelper::copyStreamToStream(*in, *out);
        out->close();
    }

    u16string const masterName = parts.newPartName(u"/ppt/notesMasters/notesMaster", u".xml");
    opc::model::Part master = parts.createPart(masterName, kNotesMasterType);
    long width = 0, height = 0;
    if (xercesc::DOMDocument* document = model.getPresentationDocument()) {
        xercesc::DOMElement* size =
            PresentationModel::findChildElement(document->getDocumentElement(), u"p:sldSz");
        try {
            if (size) {
                width = str2long(u16string(size->getAttribute(u"cx")));
                height = str2long(u16string(size->getAttribute(u"cy")));
            }
        } catch (...) {
            width = height = 0;  // a size that is no number: the 4:3 image
        }
    }
    writePart(master, notesMasterXml(width, height));
    master.createInternalRelationship(relationshipType(u"theme"), opc::model::URI(themeName), u"");
    u16string const id =
        presentation.createInternalRelationship(masterType, opc::model::URI(masterName), u"").getID();

    // p:notesMasterIdLst comes right after p:sldMasterIdLst.
    xercesc::DOMDocument* document = model.getPresentationDocument();
    xercesc::DOMElement* root = document ? document->getDocumentElement() : nullptr;
    if (root) {
        xercesc::DOMElement* list = PresentationModel::findChildElement(root, u"p:notesMasterIdLst");
        if (!list) {
            list = document->createElement(u"p:notesMasterIdLst");
            xercesc::DOMElement* masters = PresentationModel::findChildElement(root, u"p:sldMasterIdLst");
            root->insertBefore(list, masters ? masters->getNextElementSibling() : root->getFirstElementChild());
        }
        while (xercesc::DOMNode* old = list->getFirstChild()) list->removeChild(old);
        xercesc::DOMElement* entry = document->createElement(u"p:notesMasterId");
        entry->setAttribute(u"r:id", id.c_str());
        list->appendChild(entry);
    }
    return masterName;
}

void NotesWriter::write(TemplateSlide const& slide) {
    if (!slide.notesChanged || slide.partName.empty()) return;
    PPTPartWriter& parts = *writer->getPartWriter();
    opc::model::Part slidePart = parts.getPart(slide.partName);
    u16string const notesType = relationshipType(u"notesSlide");
    // The old notes part is left to the sweep at close, which drops parts
    // that nothing reaches any more.
    for (auto const& relationship : slidePart.getRelationships())
        if (relationship.getType() == notesType) slidePart.deleteRelationship(relationship.getID());
    if (slide.notes.empty()) return;

    u16string const master = notesMaster();
    if (master.empty()) return;
    u16string const name = parts.newPartName(u"/ppt/notesSlides/notesSlide", u".xml");
    opc::model::Part notes = parts.createPart(name, kNotesSlideType);
    writePart(notes, notesSlideXml(slide.notes));
    notes.createInternalRelationship(relationshipType(u"notesMaster"), opc::model::URI(master), u"");
    notes.createInternalRelationship(relationshipType(u"slide"), opc::model::URI(slide.partName), u"");
    slidePart.createInternalRelationship(notesType, opc::model::URI(name), u"");
}

}  // namespace ppt
}  // namespace deckforge
