// How large an image is, in pixels. The size gives a Picture its default
// Width and Height and the aspect of a picture fitted into a placeholder.
// Raster files are measured by the host's "picmeta" script function, an EMF
// by its header, and an SVG by the width, height and viewBox of its root.
#pragma once

#include <boost/noncopyable.hpp>

#include "common/strings.h"

namespace deckforge {

// A size in pixels. The objects of the measuring classes only supply the
// default size (300 by 300) and the way of measuring; `make` gives the
// measured size as a plain ImageInfo.
class ImageInfo : private boost::noncopyable {
public:
    ImageInfo(double width_, double height_) : width(width_), height(height_) {}
    virtual ~ImageInfo();

    // The host's way: "picmeta" gives a structure with the fields Width and
    // Height. Without a host that answers, the file's own header is read for
    // PNG, JPEG, GIF and BMP, so that C++ users and tests get real sizes too.
    // An answer of no size, or of more pixels than a picture can be written
    // with, counts as none. An unreadable, truncated or implausible file
    // gives this object's size.
    // Errors that the host raises pass through.
    virtual ImageInfo make(u16string const& path) const;

    double getWidth() const { return width; }
    double getHeight() const { return height; }

    double width;
    double height;
};

// Reads the frame of the EMF header (in 0.01 mm) and converts it to pixels
// at the screen's resolution.
class ImageInfoEMF : public ImageInfo {
public:
    using ImageInfo::ImageInfo;
    ImageInfo make(u16string const& path) const override;
};

// The size that the root element's width and height give, in CSS pixels;
// a side left open or given in percent follows from the viewBox. A file
// that says neither, or can't be read, measures as the default size.
class ImageInfoSVG : public ImageInfo {
public:
    using ImageInfo::ImageInfo;
    ImageInfo make(u16string const& path) const override;
};

class InfoUtils {
public:
    InfoUtils() = delete;

    // The size of the image, by the measuring object of its extension (in
    // any letter case); the host's way for every other extension.
    static ImageInfo getImageInfo(u16string const& path);
    // The host's "brieflet.utils.getScreenPixelsPerInch", asked once; 96
    // when it fails or answers nothing useful, and that answer is kept too.
    static double getScreenPixelsPerInch();
    // Lets the next call ask the host again, as after the host changed.
    static void forgetScreenPixelsPerInch();
    // The size that a PNG, JPEG, GIF or BMP file's header gives, found by
    // the file's content; false for other files, implausible sizes and
    // files that don't end as their kind must.
    // The host's "picmeta" asks this first: it costs a few reads, where a
    // general image library costs milliseconds and, in Octave, leaves
    // worker threads spinning after each call.
    static bool readHeaderSize(u16string const& path, double& width, double& height);
};

}  // namespace deckforge
