// The writer of a picture. A picture without a path, as a layout or template
// slide brings it, leaves its element as it stands.
#pragma once

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
    PictureImpl const* picture;
};

}  // namespace ppt
}  // namespace deckforge
