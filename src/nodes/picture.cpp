#include "nodes/picture.h"

#include <cmath>
#include <filesystem>
#include <string>
#include <system_error>

#include "common/image_info.h"
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

void PictureImpl::setFigure(double handle) {
    char buffer[4096];
    host::utTmpnam(buffer, sizeof buffer);
    std::string const file = std::string(buffer) + ".svg";
    // Whatever happens below, the file goes with the last picture that
    // holds it, or at once when none does.
    boost::shared_ptr<void> owned(static_cast<void*>(nullptr), [file](void*) {
        std::error_code ignored;
        std::filesystem::remove(std::filesystem::u8path(file), ignored);
    });

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

}  // namespace ppt
}  // namespace deckforge
