#include "writers/picture_writer.h"

#include <xercesc/dom/DOM.hpp>

#include <cmath>

#include "common/file_utils.h"
#include "common/image_info.h"
#include "writers/ppt_part_writer.h"
#include "writers/shape_markup.h"
#include "writers/svg_fallback.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

namespace {

double const kEmuPerInch = 914400.0;
double const kCssPixelsPerInch = 96.0;

}  // namespace

u16string PictureWriter::embedImage(ImageInfo const& info, u16string& svgRelationshipId) {
    u16string const& path = picture->getPath();
    u16string const slidePart = getCurrentSlidePartName();
    if (toLowerString(FileUtils::getFileNameExtension(path)) != u"svg")
        return getPartWriter()->addImage(slidePart, path);
    // The bitmap fallback has the resolution asked for at the picture's
    // width on the slide, and the drawing's own aspect.
    double const inches = picture->getWidth().isSet()
                              ? picture->getWidth().getValue().getEMUNumber() / kEmuPerInch
                              : info.width / kCssPixelsPerInch;
    double const pixelsWide = std::round(inches * picture->getResolution());
    double const pixelsHigh = std::round(pixelsWide * info.height / info.width);
    std::string png;
    if (pixelsWide >= 1.0 && pixelsHigh >= 1.0 && pixelsWide < 1e6 && pixelsHigh < 1e6)
        png = renderSvgToPng(path, static_cast<unsigned>(pixelsWide), static_cast<unsigned>(pixelsHigh));
    // A drawing that librsvg can't read goes in as it stands, which readers
    // with SVG still show.
    if (png.empty()) return getPartWriter()->addImage(slidePart, path);
    u16string const pngId = getPartWriter()->addImageData(slidePart, png, u"png");
    svgRelationshipId = getPartWriter()->addImage(slidePart, path);
    return pngId;
}

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

    u16string svgRelationshipId;
    if (!element) {
        u16string const relationshipId = embedImage(info, svgRelationshipId);
        addSvgBlip(createPicture(relationshipId, *slide, *picture), svgRelationshipId);
        return;
    }

    xercesc::DOMNode* parent = element->getParentNode();
    u16string const relationshipId = embedImage(info, svgRelationshipId);
    xercesc::DOMElement* created =
        getTemplateNodeType() == static_cast<std::int32_t>(NodeType::Picture)
            ? createPictureFromPicture(relationshipId, *slide, element, layoutElement, *picture, info.width,
                                       info.height)
            : createPictureFromPlaceholder(relationshipId, *slide, element, layoutElement, *picture,
                                           info.width, info.height);
    addSvgBlip(created, svgRelationshipId);
    // The old element goes, and its marker with it; its shape properties,
    // text and fill are not carried over.
    if (created && parent) parent->replaceChild(created, element);
}

}  // namespace ppt
}  // namespace deckforge
