// The writer of a picture. A picture without a path, as a layout or template
// slide brings it, leaves its element as it stands.
#pragma once

#include "common/image_info.h"
#include "nodes/picture.h"
#include "writers/shape_writer.h"

namespace deckforge {
namespace ppt {

class PictureWriter : public ShapeWriter {
public:
    PictureWriter(PictureImpl const* picture, PPTWriter* writer, xercesc::DOMNode* parent)
        : ShapeWriter(picture, writer, parent), picture(picture) {}

    void write() override;

    PictureImpl const* getPicture() const { return picture; }

private:
    // Relates the slide to the image and gives the id for r:embed. An SVG
    // gets a PNG drawn from it there, and its own part's id in
    // `svgRelationshipId`.
    u16string embedImage(ImageInfo const& info, u16string& svgRelationshipId);

    PictureImpl const* picture;
};

}  // namespace ppt
}  // namespace deckforge
