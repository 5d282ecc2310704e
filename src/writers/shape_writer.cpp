#include "writers/shape_writer.h"

#include "template/template_records.h"

namespace deckforge {
namespace ppt {

ShapeWriter::ShapeWriter(ShapeImpl const* shape_, PPTWriter* writer, xercesc::DOMNode* parent)
    : ElementWriter(shape_, writer, parent), shape(shape_) {}

std::int32_t ShapeWriter::getTemplateNodeType() const {
    auto const& templateShape = getTemplateShape();
    return templateShape ? static_cast<std::int32_t>(templateShape->nodeType) : 0;
}

xercesc::DOMElement* ShapeWriter::findShapeElement() const {
    auto const& templateShape = getTemplateShape();
    return templateShape ? findSlideElement(templateShape->uid) : nullptr;
}

xercesc::DOMElement* ShapeWriter::findLayoutShapeElement() const {
    auto const& templateShape = getTemplateShape();
    if (!templateShape) return nullptr;
    if (templateShape->layoutUid.empty()) templateShape->layoutUid = templateShape->uid;
    return findLayoutElement(templateShape->layoutUid);
}

}  // namespace ppt
}  // namespace deckforge
