// A shape that shows one image file. Only the path and the geometry are
// kept; the image is copied into the package when the slide is written. A
// picture that a layout or template slide brought has an empty path and
// leaves its element as it stands.
#pragma once

#include "nodes/shape.h"

class hvArray;

namespace deckforge {
namespace ppt {

class Picture;

class PictureImpl : public ShapeImpl {
public:
    PictureImpl();
    explicit PictureImpl(u16string const& name);
    PictureImpl(u16string const& name, u16string const& templateUid);
    PictureImpl(PictureImpl const& other);
    // The picture that takes `replaced`'s place with the image of `given`:
    // identity, Name and geometry of `replaced`, then whatever of Width,
    // Height, X and Y `given` sets. The file isn't looked at again.
    PictureImpl(ShapeImpl const& replaced, PictureImpl const& given);
    ~PictureImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;

    // As the caller wrote it; empty for a picture from the template.
    u16string const& getPath() const { return mPath; }
    // Measures the image and stores the path; Width and Height become the
    // image's size in pixels, overwriting what was set. An error of the
    // measuring (the host's, or failedToDetermineFilename) leaves the
    // picture as it was.
    void setPath(u16string const& path);
    // Prints the figure of a host figure or axes handle to an SVG file of
    // the picture's own, removed when no picture holds it any more; Width
    // and Height become the figure's paper size. invalidFigureHandle for
    // any other value, figureNotPrinted when no file came of it; the
    // host's own errors pass through. The picture is unchanged on error.
    void setFigure(double handle);
    // Writes an image array (m-by-n grey or m-by-n-by-3 RGB; uint8, uint16,
    // double or single from 0 to 1, or logical) to a PNG file of the
    // picture's own and takes it as the path; invalidImageArg for any other
    // array.
    void setImage(hvArray const& image);

    // Dots per inch of the bitmap that stands beside an SVG picture, at the
    // picture's width; invalidPropertyValue unless positive and finite.
    double getResolution() const { return mResolution; }
    void setResolution(double dotsPerInch);

    // A copy of `picture`'s image takes this picture's place among the
    // slide's children and is returned. A picture in a group, or not among
    // its slide's children, changes nothing: the argument comes back.
    virtual Picture replace(Picture const& picture);
    using ShapeImpl::replace;
    // The parent, or pictureCannotBeReplaced: a free picture, or one that
    // was replaced already.
    virtual PPTNodeImpl* replaceGuard() const;

protected:
    u16string mPath;
    double mResolution = 200.0;
    // The file printed from a figure, shared with copies and successors.
    boost::shared_ptr<void> mOwnedFile;
};

class Picture : public Shape {
public:
    // A picture without an image; a layout's pictures are of this kind.
    Picture();
    // Sized to the image in pixels; see PictureImpl::setPath.
    explicit Picture(u16string const& path);
    explicit Picture(PPTObjectImpl* impl) : Shape(impl) {}

    static boost::shared_ptr<Picture> cast(PPTNodePtr const& node) { return castNode<Picture>(node); }

    u16string const& getPath() const { return pictureImpl()->getPath(); }
    void setPath(u16string const& path) { pictureImpl()->setPath(path); }
    // A picture of the figure of a host figure or axes handle, as SVG.
    static Picture fromFigure(double handle);
    // A picture of an image array, as PNG.
    static Picture fromImage(hvArray const& image);
    double getResolution() const { return pictureImpl()->getResolution(); }
    void setResolution(double dotsPerInch) { pictureImpl()->setResolution(dotsPerInch); }
    Picture replace(Picture const& picture) { return pictureImpl()->replace(picture); }
    using Shape::replace;

    PictureImpl* pictureImpl() const { return getImplAs<PictureImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
