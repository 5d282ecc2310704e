#include "writers/unwritten_slides.h"

#include <set>
#include <vector>

#include <xercesc/dom/DOM.hpp>

#include "template/presentation_model.h"
#include "writers/ppt_part_writer.h"

namespace deckforge {
namespace ppt {

namespace {

std::vector<xercesc::DOMElement*> elementsNamed(xercesc::DOMDocument* document, char16_t const* name) {
    std::vector<xercesc::DOMElement*> result;
    xercesc::DOMNodeList* list = document->getElementsByTagName(name);
    for (XMLSize_t i = 0, n = list ? list->getLength() : 0; i < n; ++i)
        result.push_back(static_cast<xercesc::DOMElement*>(list->item(i)));
    return result;
}

void removeElement(xercesc::DOMElement* element) {
    if (xercesc::DOMNode* parent = element->getParentNode()) parent->removeChild(element);
}

}  // namespace

void dropUnwrittenSlides(PPTPartWriter& parts, PresentationModel& model, TemplateSlideList const& written) {
    std::set<TemplateSlide const*> kept;
    for (auto const& slide : written) kept.insert(slide.get());
    std::set<u16string> droppedIds;
    opc::model::Part presentation;
    bool havePart = false;
    for (auto const& slide : *model.getSlides()) {
        if (!slide || kept.count(slide.get()) || slide->relationshipId.empty()) continue;
        if (!havePart) {
            presentation = parts.getPart(model.getPresentationPartName());
            havePart = true;
        }
        try {
            presentation.deleteRelationship(slide->relationshipId);
        } catch (opc::Exception const&) {
            // Gone already, or never there: the model read it, so the former.
        }
        droppedIds.insert(slide->relationshipId);
        // Should the slide be written by a later pass after all, it gets a
        // new relationship then.
        slide->relationshipId.clear();
    }
    xercesc::DOMDocument* document = model.getPresentationDocument();
    if (droppedIds.empty() || !document) return;

    // A custom show lists its slides by relationship id.
    for (xercesc::DOMElement* entry : elementsNamed(document, u"p:sld"))
        if (droppedIds.count(u16string(entry->getAttribute(u"r:id")))) removeElement(entry);
    // Sections list slides by the ids of p:sldIdLst, which the presentation
    // part renumbers when it is written: the sections can't follow, and
    // PowerPoint repairs a file whose sections name missing slides.
    for (xercesc::DOMElement* sections : elementsNamed(document, u"p14:sectionLst"))
        if (xercesc::DOMNode* ext = sections->getParentNode())
            if (xercesc::DOMNode* list = ext->getParentNode()) list->removeChild(ext);
}

}  // namespace ppt
}  // namespace deckforge
