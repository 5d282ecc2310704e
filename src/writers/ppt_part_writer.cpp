#include "writers/ppt_part_writer.h"

#include "common/file_utils.h"
#include "platform/opc/opc.h"

namespace deckforge {
namespace ppt {

namespace {
char16_t const* const kSlideContentType =
    u"application/vnd.openxmlformats-officedocument.presentationml.slide+xml";
char16_t const* const kSlideLayoutRelationship =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/slideLayout";
char16_t const* const kImageRelationship =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/image";
char16_t const* const kHyperlinkRelationship =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/hyperlink";

u16string slidePartName(std::uint64_t number) {
    return u"/ppt/slides/slide" + num2str(static_cast<unsigned long>(number)) + u".xml";
}
}  // namespace

PPTPartWriter::PPTPartWriter(boost::shared_ptr<OPCPackage> const& package) : PartDOMWriter(package) {}

u16string PPTPartWriter::addSlide(boost::shared_ptr<TemplateSlide> const& slide) {
    // The count of the template's slides is where the search starts; a
    // template numbered with gaps is passed over up to the first free name.
    u16string name = slidePartName(++slideNumber);
    while (hasPart(name)) name = slidePartName(++slideNumber);
    opc::model::Part part = createPart(name, kSlideContentType);
    if (slide && slide->layout)
        part.createInternalRelationship(kSlideLayoutRelationship, opc::model::URI(slide->layout->partName),
                                        u"");
    return name;
}

u16string PPTPartWriter::newMediaName(u16string const& extension) {
    // uuid_gen is seeded by the time in seconds, so images written within one
    // second get one UUID: a counter that only grows tells them apart, and
    // the search never starts again from the first taken name.
    u16string const stem = u"/ppt/media/" + uuid_gen();
    u16string name = stem + u"." + extension;
    while (hasPart(name))
        name = stem + u"-" + num2str(static_cast<unsigned long>(++mediaSuffix)) + u"." + extension;
    return name;
}

u16string PPTPartWriter::addImage(u16string const& slidePartName, u16string const& imagePath) {
    boost::shared_ptr<std::istream> input;
    try {
        input = createInputStream(imagePath);
    } catch (opc::Exception const&) {
        return u16string();  // an unreadable image gives no part and no relationship
    }
    if (!input || !*input) return u16string();
    // A file of no known image type would make a part without a content
    // type, which the package refuses at close; it is treated as unreadable.
    u16string const contentType = FileUtils::getContentType(imagePath);
    if (contentType.empty()) return u16string();

    getPart(slidePartName);  // the slide's part must exist by now
    u16string const name = newMediaName(FileUtils::getFileNameExtension(imagePath));
    opc::model::Part media = createPart(name, contentType);
    boost::shared_ptr<opc::OutputStream> output = media.getOutputStream();
    char buffer[1024];
    while (*input) {
        input->read(buffer, sizeof buffer);
        std::streamsize const count = input->gcount();
        if (count > 0) output->write(buffer, static_cast<std::size_t>(count));
    }
    output->close();

    if (!hasPart(slidePartName)) return u16string();
    opc::model::Part slide = getPart(slidePartName);
    return slide.createInternalRelationship(kImageRelationship, opc::model::URI(name), u"").getID();
}

u16string PPTPartWriter::addHyperlink(u16string const& slidePartName, u16string const& target) {
    if (target.empty() || !hasPart(slidePartName)) return u16string();
    opc::model::Part slide = getPart(slidePartName);
    return slide.createExternalRelationship(kHyperlinkRelationship, target, u"").getID();
}

}  // namespace ppt
}  // namespace deckforge
