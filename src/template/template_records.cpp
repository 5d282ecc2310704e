#include "template/template_records.h"

#include <xercesc/dom/DOMDocument.hpp>

namespace deckforge {
namespace ppt {

namespace {
// One thread only, as everything in the model; no lock.
std::uint64_t gShapeUidCounter = 0;
}  // namespace

TemplateShape::TemplateShape(ShapeKind kind) : nodeType(kind) {
    uid = num2str(static_cast<unsigned long>(++gShapeUidCounter));
}

TemplateLayout::~TemplateLayout() {
    if (slidePrototype) slidePrototype->release();
}

TemplateSlide::~TemplateSlide() {
    if (document) document->release();
}

void TemplateSlide::setDocument(xercesc::DOMDocument* newDocument) {
    if (document && document != newDocument) document->release();
    document = newDocument;
}

}  // namespace ppt
}  // namespace deckforge
