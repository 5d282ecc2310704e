#include "writers/picture_writer.h"

#include <xercesc/dom/DOM.hpp>

#include "common/image_info.h"
#include "writers/ppt_part_writer.h"
#include "writers/shape_markup.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

void PictureWriter::write() {
    auto const& slide = getCurrentSlide();
    if (!slide) return;
    if (picture->getPath().empty()) {
        // The template's element stays as it is, but for the marker, which
        // is in no schema: a reader that validates would refuse the slide.
        if (xercesc::DOMElement* element = findShapeElement()) element->removeAttribute(xml::kDataUid);
        return;
    }

    u16string const& path = picture->getPath();
    // Measured again: the file may have changed since the picture was made,
    // and a picture in a placeholder takes its aspect from the file.
    ImageInfo const info = InfoUtils::getImageInfo(path);
    xercesc::DOMElement* element = findShapeElement();
    xercesc::DOMElement* layoutElement = findLayoutShapeElement();

    if (!element) {
        u16string const relationshipId = getPartWriter()->addImage(getCurrentSlidePartName(), path);
        createPicture(relationshipId, *slide, *picture);
        return;
    }

    xercesc::DOMNode* parent = element->getParentNode();
    u16string const relationshipId = getPartWriter()->addImage(getCurrentSlidePartName(), path);
    xercesc::DOMElement* created =
        getTemplateNodeType() == static_cast<std::int32_t>(NodeType::Picture)
            ? createPictureFromPicture(relationshipId, *slide, element, layoutElement, *picture, info.width,
                                       info.height)
            : createPictureFromPlaceholder(relationshipId, *slide, element, layoutElement, *picture,
                                           info.width, info.height);
    // The old element goes, and its marker with it; its shape properties,
    // text and fill are not carried over.
    if (created && parent) parent->replaceChild(created, element);
}

}  // namespace ppt
}  // namespace deckforge
