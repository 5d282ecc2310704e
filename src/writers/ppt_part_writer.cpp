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
char16_t const* const kNotesSlideRelationship =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/notesSlide";
char16_t const* const kChartRelationship =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/chart";

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

u16string PPTPartWriter::newPartName(u16string const& prefix, u16string const& suffix) {
    std::uint64_t& number = partNumbers[prefix];
    u16string name;
    do name = prefix + num2str(static_cast<unsigned long>(++number)) + suffix;
    while (hasPart(name));
    return name;
}

u16string PPTPartWriter::copyPart(u16string const& source, bool ownParts) {
    opc::model::Part from = getPart(source);
    // "/ppt/charts/chart3.xml" gives the prefix "/ppt/charts/chart" and the suffix ".xml".
    std::size_t const dot = source.rfind(u'.') > source.rfind(u'/') ? source.rfind(u'.') : source.size();
    std::size_t stem = dot;
    while (stem > 0 && source[stem - 1] >= u'0' && source[stem - 1] <= u'9') --stem;
    u16string const copyName = newPartName(source.substr(0, stem), source.substr(dot));
    opc::model::Part to = createPart(copyName, from.getContentType().toString());
    auto in = from.getInputStream();
    auto out = to.getOutputStream();
    opc::StreamHelper::copyStreamToStream(*in, *out);
    out->close();
    for (auto const& relationship : from.getRelationships()) {
        if (relationship.getTargetMode() == opc::model::TargetModeExternal)
            to.createExternalRelationship(relationship.getType(), relationship.getTarget(),
                                          relationship.getID());
        else if (ownParts && relationship.getType() != kImageRelationship &&
                 hasPart(relationship.getTargetURI().getPath()))
            to.createInternalRelationship(
                relationship.getType(),
                opc::model::URI(copyPart(relationship.getTargetURI().getPath(), false)),
                relationship.getID());
        else
            to.createInternalRelationship(relationship.getType(), relationship.getTargetURI(),
                                          relationship.getID());
    }
    return copyName;
}

u16string PPTPartWriter::addSlideCopy(boost::shared_ptr<TemplateSlide> const& slide) {
    u16string name = slidePartName(++slideNumber);
    while (hasPart(name)) name = slidePartName(++slideNumber);
    opc::model::Part part = createPart(name, kSlideContentType);
    if (!slide || !hasPart(slide->copiedFromPartName)) return name;
    for (auto const& relationship : getPart(slide->copiedFromPartName).getRelationships()) {
        u16string const& type = relationship.getType();
        if (type == kNotesSlideRelationship) continue;
        if (relationship.getTargetMode() == opc::model::TargetModeExternal) {
            part.createExternalRelationship(type, relationship.getTarget(), relationship.getID());
            continue;
        }
        u16string target = relationship.getTargetURI().getPath();
        if (type == kChartRelationship && hasPart(target)) target = copyPart(target, true);
        part.createInternalRelationship(type, opc::model::URI(target), relationship.getID());
    }
    return name;
}

u16string PPTPartWriter::newMediaName(u16string const& extension) {
    // Names follow from the order of writing alone, so that one script
    // writes the same package every time. The counter only grows: the
    // search never starts again from the first taken name.
    u16string name;
    do name = u"/ppt/media/image" + num2str(static_cast<unsigned long>(++mediaNumber)) + u"." + extension;
    while (hasPart(name));
    return name;
}

u16string PPTPartWriter::mediaPartFor(std::string const& bytes, u16string const& extension,
                                      u16string const& contentType) {
    // A picture placed on many slides, or a slide duplicated, stores its
    // image once.
    std::size_t const hash = std::hash<std::string>()(bytes);
    auto const range = mediaByHash.equal_range(hash);
    for (auto it = range.first; it != range.second; ++it) {
        if (!hasPart(it->second)) continue;
        auto stored = getPart(it->second).getInputStream();
        if (opc::StreamHelper::readAll(*stored, opc::interfaces::IPhysicalPackage::kMaxItemSize) == bytes)
            return it->second;
    }

    u16string const name = newMediaName(extension);
    opc::model::Part media = createPart(name, contentType);
    boost::shared_ptr<opc::OutputStream> output = media.getOutputStream();
    output->write(bytes.data(), bytes.size());
    output->close();
    mediaByHash.emplace(hash, name);
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
    std::string bytes;
    char buffer[16384];
    while (*input) {
        input->read(buffer, sizeof buffer);
        std::streamsize const count = input->gcount();
        if (count > 0) bytes.append(buffer, static_cast<std::size_t>(count));
    }
    return addImageData(slidePartName, bytes, FileUtils::getFileNameExtension(imagePath));
}

u16string PPTPartWriter::addImageData(u16string const& slidePartName, std::string const& bytes,
                                      u16string const& extension) {
    u16string const contentType = FileUtils::getContentType(u"image." + extension);
    if (contentType.empty()) return u16string();
    getPart(slidePartName);
    u16string const name = mediaPartFor(bytes, extension, contentType);

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
