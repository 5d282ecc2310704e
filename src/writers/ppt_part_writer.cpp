#include "writers/ppt_part_writer.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include <xercesc/dom/DOM.hpp>

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

char16_t const* const kPackageRelationship =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/package";
char16_t const* const kChartContentType =
    u"application/vnd.openxmlformats-officedocument.drawingml.chart+xml";
char16_t const* const kWorkbookContentType =
    u"application/vnd.openxmlformats-officedocument.spreadsheetml.sheet";

u16string slidePartName(std::uint64_t number) {
    return u"/ppt/slides/slide" + plainInteger(number) + u".xml";
}
}  // namespace

PPTPartWriter::PPTPartWriter(boost::shared_ptr<OPCPackage> const& package) : PartDOMWriter(package) {}

u16string PPTPartWriter::addSlide(boost::shared_ptr<TemplateSlide> const& slide) {
    // The count of the template's slides is where the search starts; a
    // template numbered with gaps is passed over up to the first free name.
    u16string name = slidePartName(++slideNumber);
    while (hasPart(name)) name = slidePartName(++slideNumber);
    opc::model::Part part = createPart(name, kSlideContentType);
    if (slide && slide->layout) {
        part.createInternalRelationship(kSlideLayoutRelationship, opc::model::URI(slide->layout->partName),
                                        u"");
        carryLayoutRelationships(part, *slide);
    }
    return name;
}

namespace {
char16_t const kRelationshipsNamespace[] =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships";
}  // namespace

// What a new slide keeps of its layout (chart frames, objects, footers with
// links) names relationships of the layout's part. The slide gets its own to
// the same targets, a chart a copy of its own, and the references follow;
// left alone they would name nothing, and readers repair the slide.
void PPTPartWriter::carryLayoutRelationships(opc::model::Part& part, TemplateSlide& slide) {
    xercesc::DOMElement* root = slide.document ? slide.document->getDocumentElement() : nullptr;
    if (!root || !hasPart(slide.layout->partName)) return;
    // Names carry their prefixes: the attributes of interest are those under
    // a prefix that the root binds to the relationships namespace.
    std::set<u16string> prefixes;
    xercesc::DOMNamedNodeMap* declarations = root->getAttributes();
    for (XMLSize_t i = 0, n = declarations ? declarations->getLength() : 0; i < n; ++i) {
        auto* attr = static_cast<xercesc::DOMAttr*>(declarations->item(i));
        u16string const attrName = attr->getName();
        if (attrName.rfind(u"xmlns:", 0) == 0 && u16string(attr->getValue()) == kRelationshipsNamespace)
            prefixes.insert(attrName.substr(6) + u":");
    }
    if (prefixes.empty()) return;

    std::vector<opc::model::Relationship> const layoutRelationships =
        getPart(slide.layout->partName).getRelationships();
    std::map<u16string, u16string> renamed;
    std::vector<xercesc::DOMElement*> pending{root};
    while (!pending.empty()) {
        xercesc::DOMElement* element = pending.back();
        pending.pop_back();
        for (auto* child = element->getFirstElementChild(); child; child = child->getNextElementSibling())
            pending.push_back(child);
        xercesc::DOMNamedNodeMap* attributes = element->getAttributes();
        for (XMLSize_t i = 0, n = attributes ? attributes->getLength() : 0; i < n; ++i) {
            auto* attr = static_cast<xercesc::DOMAttr*>(attributes->item(i));
            u16string const attrName = attr->getName();
            std::size_t const colon = attrName.find(u':');
            if (colon == u16string::npos || !prefixes.count(attrName.substr(0, colon + 1))) continue;
            u16string const id = attr->getValue();
            auto known = renamed.find(id);
            if (known == renamed.end()) {
                auto const source =
                    std::find_if(layoutRelationships.begin(), layoutRelationships.end(),
                                 [&](opc::model::Relationship const& r) { return r.getID() == id; });
                // An id the layout doesn't have stays as the template wrote it.
                if (source == layoutRelationships.end()) continue;
                u16string const& type = source->getType();
                opc::model::Relationship made;
                if (source->getTargetMode() == opc::model::TargetModeExternal) {
                    made = part.createExternalRelationship(type, source->getTarget(), u"");
                } else {
                    u16string target = source->getTargetURI().getPath();
                    if (type == kChartRelationship && hasPart(target)) target = copyPart(target, true);
                    made = part.createInternalRelationship(type, opc::model::URI(target), u"");
                }
                known = renamed.emplace(id, made.getID()).first;
            }
            attr->setValue(known->second.c_str());
        }
    }
}

u16string PPTPartWriter::newPartName(u16string const& prefix, u16string const& suffix) {
    std::uint64_t& number = partNumbers[prefix];
    u16string name;
    do name = prefix + plainInteger(++number) + suffix;
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
    do name = u"/ppt/media/image" + plainInteger(++mediaNumber) + u"." + extension;
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

namespace {
// The extension and content type that an image's first bytes show, for the
// raster kinds and EMF; none for anything else (an SVG among them).
std::optional<std::pair<u16string, u16string>> rasterTypeOf(std::string const& bytes) {
    auto const starts = [&](char const* magic, std::size_t size) {
        return bytes.compare(0, size, magic, size) == 0;
    };
    if (starts("\x89PNG\r\n\x1a\n", 8)) return std::make_pair(u16string(u"png"), u16string(u"image/png"));
    if (starts("\xff\xd8\xff", 3)) return std::make_pair(u16string(u"jpeg"), u16string(u"image/jpeg"));
    if (starts("GIF87a", 6) || starts("GIF89a", 6))
        return std::make_pair(u16string(u"gif"), u16string(u"image/gif"));
    if (starts("BM", 2)) return std::make_pair(u16string(u"bmp"), u16string(u"image/bmp"));
    if (starts("II*\0", 4) || starts("MM\0*", 4))
        return std::make_pair(u16string(u"tiff"), u16string(u"image/tiff"));
    if (starts("\x01\0\0\0", 4) && bytes.size() >= 44 && bytes.compare(40, 4, " EMF") == 0)
        return std::make_pair(u16string(u"emf"), u16string(u"image/x-emf"));
    return std::nullopt;
}
}  // namespace

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
                                      u16string const& givenExtension) {
    // An empty file holds no image, and an empty image part is one that
    // strict readers repair: it goes like an unreadable one.
    if (bytes.empty()) return u16string();
    u16string extension = givenExtension;
    u16string type = FileUtils::getContentType(u"image." + extension);
    if (type.empty()) return u16string();
    // The bytes decide over the name: a PNG saved as ".jpg" is packaged as
    // a PNG, since a part whose bytes belong to another type is repaired.
    if (auto const known = rasterTypeOf(bytes)) {
        if (type != known->second) {
            extension = known->first;
            type = known->second;
        }
    }
    getPart(slidePartName);
    u16string const name = mediaPartFor(bytes, extension, type);

    if (!hasPart(slidePartName)) return u16string();
    opc::model::Part slide = getPart(slidePartName);
    return slide.createInternalRelationship(kImageRelationship, opc::model::URI(name), u"").getID();
}

char16_t const* const PPTPartWriter::kChartWorkbookId = u"rId1";

u16string PPTPartWriter::addChart(u16string const& slidePartName, std::string const& chartXml,
                                  std::string const& workbook) {
    if (!hasPart(slidePartName)) return u16string();
    auto const write = [](opc::model::Part& part, std::string const& bytes) {
        boost::shared_ptr<opc::OutputStream> output = part.getOutputStream();
        output->write(bytes.data(), bytes.size());
        output->close();
    };
    u16string const workbookName = newPartName(u"/ppt/embeddings/chartData", u".xlsx");
    opc::model::Part data = createPart(workbookName, kWorkbookContentType);
    write(data, workbook);
    u16string const chartName = newPartName(u"/ppt/charts/chart", u".xml");
    opc::model::Part chart = createPart(chartName, kChartContentType);
    write(chart, chartXml);
    chart.createInternalRelationship(kPackageRelationship, opc::model::URI(workbookName), kChartWorkbookId);
    opc::model::Part slide = getPart(slidePartName);
    return slide.createInternalRelationship(kChartRelationship, opc::model::URI(chartName), u"").getID();
}

u16string PPTPartWriter::addHyperlink(u16string const& slidePartName, u16string const& target) {
    if (target.empty() || !hasPart(slidePartName)) return u16string();
    opc::model::Part slide = getPart(slidePartName);
    return slide.createExternalRelationship(kHyperlinkRelationship, target, u"").getID();
}

}  // namespace ppt
}  // namespace deckforge
