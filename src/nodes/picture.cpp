#include "nodes/picture.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include "common/image_info.h"
#include "common/png_encoder.h"
#include "engine/slide.h"
#include "platform/host_services.h"
#include "platform/hv.h"
#include "platform/i18n.h"
#include "platform/msg_ids.h"
#include "writers/ppt_writer.h"

namespace deckforge {
namespace ppt {

PictureImpl::PictureImpl() {
    reportCreated();
}

PictureImpl::PictureImpl(u16string const& name) : ShapeImpl(name) {
    reportCreated();
}

PictureImpl::PictureImpl(u16string const& name, u16string const& templateUid) : ShapeImpl(name, templateUid) {
    reportCreated();
}

PictureImpl::PictureImpl(PictureImpl const& other)
    : ShapeImpl(other), mPath(other.mPath), mResolution(other.mResolution), mOwnedFile(other.mOwnedFile) {
    reportCreated();
}

PictureImpl::PictureImpl(ShapeImpl const& replaced, PictureImpl const& given)
    : mPath(given.mPath), mResolution(given.mResolution), mOwnedFile(given.mOwnedFile) {
    // The old picture's name stays in every case, so a lookup by name finds
    // the new one.
    takeOverShape(replaced, true);
    if (given.getWidth().isSet()) setWidth(given.getWidth().getValue().getText());
    if (given.getHeight().isSet()) setHeight(given.getHeight().getValue().getText());
    if (given.getX().isSet()) setX(given.getX().getValue().getText());
    if (given.getY().isSet()) setY(given.getY().getValue().getText());
    reportCreated();
}

PictureImpl::~PictureImpl() {
    reportDestroyed();
}

char const* PictureImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Picture";
}

void PictureImpl::acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const {
    writer->writePicture(this, parent);
}

PPTNodePtr PictureImpl::makeInterface() {
    return boost::make_shared<Picture>(this);
}

PPTNodePtr PictureImpl::clone() const {
    return (new PictureImpl(*this))->makeInterface();
}

NodeType PictureImpl::getNodeType() const {
    return NodeType::Picture;
}

void PictureImpl::setPath(u16string const& path) {
    ImageInfo const info = InfoUtils::getImageInfo(path);
    mPath = path;
    // Plain numbers, which a Dimension reads as pixels.
    setWidth(num2str(info.width));
    setHeight(num2str(info.height));
}

namespace {

// A fresh temporary file name with the extension, and its owner, which
// removes the file with its last copy: whatever happens after, the file
// goes with the last picture that holds it, or at once when none does.
boost::shared_ptr<void> ownedTempFile(char const* extension, std::string& file) {
    char buffer[4096];
    host::utTmpnam(buffer, sizeof buffer);
    file = std::string(buffer) + extension;
    return boost::shared_ptr<void>(static_cast<void*>(nullptr), [path = file](void*) {
        std::error_code ignored;
        std::filesystem::remove(std::filesystem::u8path(path), ignored);
    });
}

// The scale of an image array by its host class: the value that means full
// intensity, and the bits a PNG sample needs for it; 0 for a class that is
// no image.
double fullScale(hvArray const& image, unsigned& bitDepth) {
    bitDepth = 8;
    if (image.classID() == hvClassID::Logical) return 1.0;
    if (image.classID() != hvClassID::Double) return 0.0;
    std::string const& kind = image.hostClass();
    if (kind.empty() || kind == "single") return 1.0;
    if (kind == "uint8") return 255.0;
    if (kind == "uint16") {
        bitDepth = 16;
        return 65535.0;
    }
    return 0.0;
}

}  // namespace

void PictureImpl::setImage(hvArray const& image) {
    unsigned bitDepth = 8;
    double const scale = fullScale(image, bitDepth);
    std::size_t const pages = image.pages();
    if (scale == 0.0 || image.isEmpty() || (pages != 1 && pages != 3))
        deckforge::raise<ppt_error::invalidImageArg>();
    std::size_t const rows = image.rows(), cols = image.cols() / pages;
    if (rows > 0xFFFFFFFFu || cols > 0xFFFFFFFFu) deckforge::raise<ppt_error::invalidImageArg>();

    // Column-major with the colour planes last, to PNG's rows of
    // interleaved samples; values past the scale are clipped, NaN is dark.
    double const top = bitDepth == 16 ? 65535.0 : 255.0;
    std::vector<std::uint16_t> samples(rows * cols * pages);
    std::size_t k = 0;
    for (std::size_t r = 0; r < rows; ++r)
        for (std::size_t c = 0; c < cols; ++c)
            for (std::size_t p = 0; p < pages; ++p) {
                double const v = image.number(r + rows * (c + cols * p)) / scale;
                samples[k++] = static_cast<std::uint16_t>(
                    std::isnan(v) ? 0.0 : std::round(std::clamp(v, 0.0, 1.0) * top));
            }
    std::string const png = encodePng(static_cast<std::uint32_t>(cols), static_cast<std::uint32_t>(rows),
                                      static_cast<unsigned>(pages), bitDepth, samples);
    if (png.empty()) deckforge::raise<ppt_error::invalidImageArg>();

    std::string file;
    boost::shared_ptr<void> owned = ownedTempFile(".png", file);
    {
        std::ofstream out(std::filesystem::u8path(file), std::ios::binary);
        out.write(png.data(), static_cast<std::streamsize>(png.size()));
        if (!out) deckforge::raise<ppt_error::invalidImageArg>();
    }
    setPath(fl::i18n::to_string(file));
    mOwnedFile = owned;
}

void PictureImpl::setFigure(double handle) {
    std::string file;
    boost::shared_ptr<void> owned = ownedTempFile(".svg", file);

    hv::ArrayPtr figure(hvCreateDoubleScalar(handle));
    hv::ArrayPtr path(hvCreateString(file.c_str()));
    hvArray* args[2] = {figure.get(), path.get()};
    hvArray* results[1] = {nullptr};
    int const status = hvCallHost("picfigure", 1, results, 2, args);
    hv::ArrayPtr result(results[0]);
    if (status != 0) deckforge::raise<ppt_error::figureNotPrinted>();
    if (!result || hvIsEmpty(result.get())) deckforge::raise<ppt_error::invalidFigureHandle>();
    double const inchesWide = hvGetScalar(hvGetField(result.get(), 0, "Width"));
    double const inchesHigh = hvGetScalar(hvGetField(result.get(), 0, "Height"));
    std::error_code missing;
    if (!std::filesystem::is_regular_file(std::filesystem::u8path(file), missing))
        deckforge::raise<ppt_error::figureNotPrinted>();

    setPath(fl::i18n::to_string(file));
    mOwnedFile = owned;
    // The paper size, where there is one; the drawing's own otherwise.
    if (std::isfinite(inchesWide) && std::isfinite(inchesHigh) && inchesWide > 0.0 && inchesHigh > 0.0) {
        setWidth(num2str(inchesWide) + u"in");
        setHeight(num2str(inchesHigh) + u"in");
    }
}

void PictureImpl::setResolution(double dotsPerInch) {
    if (!std::isfinite(dotsPerInch) || dotsPerInch <= 0.0)
        deckforge::raise<ppt_error::invalidPropertyValue>(num2str(dotsPerInch));
    mResolution = dotsPerInch;
}

PPTNodeImpl* PictureImpl::replaceGuard() const {
    if (!getParent()) deckforge::raise<ppt_error::pictureCannotBeReplaced>();
    return getParent();
}

Picture PictureImpl::replace(Picture const& picture) {
    auto* slide = dynamic_cast<SlideImpl*>(replaceGuard());
    if (!slide) return picture;
    bool found = false;
    for (auto const& child : slide->getChildren()) found = found || (child && child->getImpl() == this);
    if (!found) return picture;
    PPTNodePtr const successor = (new PictureImpl(*this, *picture.pictureImpl()))->makeInterface();
    slide->putInPlaceOf(this, successor);
    return Picture(successor->getImpl());
}

Picture::Picture() : Shape(new PictureImpl()) {}

Picture::Picture(u16string const& path) : Shape(new PictureImpl()) {
    setPath(path);
}

Picture Picture::fromFigure(double handle) {
    Picture picture;
    picture.pictureImpl()->setFigure(handle);
    return picture;
}

Picture Picture::fromImage(hvArray const& image) {
    Picture picture;
    picture.pictureImpl()->setImage(image);
    return picture;
}

}  // namespace ppt
}  // namespace deckforge
