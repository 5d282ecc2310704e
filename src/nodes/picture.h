// A shape that shows one image file. Only the path and the geometry are
// kept; the image is copied into the package when the slide is written. A
// picture that a layout or template slide brought has an empty path and
// leaves its element as it stands.
#pragma once

#include "nodes/shape.h"

namespace deckforge {
namespace ppt {

class PictureImpl : public ShapeImpl {
public:
    PictureImpl();
    explicit PictureImpl(u16string const& name);
    PictureImpl(u16string const& name, u16string const& templateUid);
    PictureImpl(PictureImpl const& other);
    ~PictureImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;

    // As the caller wrote it; empty for a picture from the template.
    u16string const& getPath() const { return mPath; }

protected:
    u16string mPath;
};

class Picture : public Shape {
public:
    Picture();
    explicit Picture(PPTObjectImpl* impl) : Shape(impl) {}

    static boost::shared_ptr<Picture> cast(PPTNodePtr const& node) { return castNode<Picture>(node); }

    u16string const& getPath() const { return pictureImpl()->getPath(); }

    PictureImpl* pictureImpl() const { return getImplAs<PictureImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
