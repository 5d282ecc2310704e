#include "template/notes_reader.h"

#include <xercesc/dom/DOM.hpp>

#include "template/presentation_model.h"

namespace deckforge {
namespace ppt {

using xercesc::DOMElement;

namespace {

u16string const kNotesSlideRel =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/notesSlide";

bool hasName(DOMElement const* element, char16_t const* name) {
    XMLCh const* tag = element->getTagName();
    return tag && u16string(tag) == name;
}

// The text of one a:p: its runs and fields in order, a line break as a
// vertical tab, as PowerPoint copies it to the clipboard.
u16string paragraphText(DOMElement const* paragraph) {
    u16string text;
    for (DOMElement* child = paragraph->getFirstElementChild(); child; child = child->getNextElementSibling()) {
        if (hasName(child, u"a:br")) {
            text += u'\v';
        } else if (hasName(child, u"a:r") || hasName(child, u"a:fld")) {
            if (DOMElement* t = PresentationModel::findChildElement(child, u"a:t"))
                if (XMLCh const* content = t->getTextContent()) text += content;
        }
    }
    return text;
}

}  // namespace

DOMElement* findNotesBody(xercesc::DOMDocument const* notesDocument) {
    DOMElement* tree = PresentationModel::getShapeTree(notesDocument);
    if (!tree) return nullptr;
    for (DOMElement* shape = tree->getFirstElementChild(); shape; shape = shape->getNextElementSibling())
        if (hasName(shape, u"p:sp") && PresentationModel::getPlaceholderType(shape) == u"body") return shape;
    return nullptr;
}

void readSlideNotes(PartDOMBuilder& builder, opc::model::Part const& slidePart, TemplateSlide& slide) {
    slide.notes.clear();
    u16string const notesPart = builder.getRelatedPartName(slidePart, kNotesSlideRel);
    if (notesPart.empty() || !builder.hasPart(notesPart)) return;
    DOMElement* body = findNotesBody(builder.buildPartDOM(notesPart));
    DOMElement* txBody = PresentationModel::findChildElement(body, u"p:txBody");
    if (!txBody) return;
    for (DOMElement* p = txBody->getFirstElementChild(); p; p = p->getNextElementSibling()) {
        if (!hasName(p, u"a:p")) continue;
        NotesParagraph paragraph;
        if (DOMElement* pPr = PresentationModel::findChildElement(p, u"a:pPr")) {
            XMLCh const* lvl = pPr->getAttribute(u"lvl");
            try {
                if (lvl && *lvl) paragraph.level = str2uint(u16string(lvl)) + 1;
            } catch (...) {
                // A level that is no number reads as the top level.
            }
        }
        paragraph.text = paragraphText(p);
        slide.notes.push_back(std::move(paragraph));
    }
    // PowerPoint leaves one empty paragraph in a notes placeholder that was
    // cleared: that is no notes.
    if (slide.notes.size() == 1 && slide.notes.front().text.empty()) slide.notes.clear();
}

}  // namespace ppt
}  // namespace deckforge
