// Puts PresentationML into the output package: new slide parts related to
// their layouts, image parts and hyperlinks related to their slides.
// Relationship ids are the package library's to allocate.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "template/template_records.h"
#include "writers/part_dom_writer.h"

namespace deckforge {
namespace ppt {

class PPTPartWriter : public PartDOMWriter {
public:
    explicit PPTPartWriter(boost::shared_ptr<OPCPackage> const& package);

    // The number last used in a slide part name; new slides count on from it.
    void setSlideNumber(std::uint64_t number) { slideNumber = number; }
    std::uint64_t getSlideNumber() const { return slideNumber; }

    // Creates the next free "/ppt/slides/slideN.xml", related to the slide's
    // layout and to what the markup it keeps of the layout refers to, and
    // gives its name.
    u16string addSlide(boost::shared_ptr<TemplateSlide> const& slide);
    // The same for a copy of a slide: the new part takes the relationships
    // of the slide copied, with their ids, so that the copied markup finds
    // its pictures and links. Its notes are the copy's own; a chart gets
    // parts of its own (its workbook too), as editing one copy's data must
    // not change the other.
    u16string addSlideCopy(boost::shared_ptr<TemplateSlide> const& slide);
    // The first free "<prefix>N<suffix>", counting on from the last one
    // given for that prefix.
    u16string newPartName(u16string const& prefix, u16string const& suffix);
    // Relates the slide to a media part holding the image's bytes: the part
    // of an earlier call with the same bytes, or a new "imageN" part. Empty
    // text, and no part, if the file can't be
    // read or its extension names no known media type. The slide part must
    // exist: the package library's error passes through otherwise.
    u16string addImage(u16string const& slidePartName, u16string const& imagePath);
    // The same for an image made in memory, of the type that `extension`
    // names; empty text for an unknown type.
    u16string addImageData(u16string const& slidePartName, std::string const& bytes,
                           u16string const& extension);
    // An external hyperlink relationship of the slide; empty text for an empty
    // target or a slide part that doesn't exist.
    u16string addHyperlink(u16string const& slidePartName, u16string const& target);
    // A new chart part of the markup, related from the slide, and beside
    // it the workbook that holds its data, related from the chart as
    // kChartWorkbookId. Gives the slide's relationship id; empty text, and
    // no part, for a slide part that doesn't exist.
    u16string addChart(u16string const& slidePartName, std::string const& chartXml,
                       std::string const& workbook);
    static char16_t const* const kChartWorkbookId;

private:
    u16string newMediaName(u16string const& extension);

    // The media part for the image's bytes, made if there is none yet.
    u16string mediaPartFor(std::string const& bytes, u16string const& extension,
                           u16string const& contentType);

    // A new part with the content and relationships of `source`, named as
    // it is with the next free number. With `ownParts`, the parts it
    // relates to are copied as well (a chart's workbook, style and
    // colours), except pictures, which stay shared.
    u16string copyPart(u16string const& source, bool ownParts);
    void carryLayoutRelationships(opc::model::Part& part, TemplateSlide& slide);

    std::uint64_t slideNumber = 0;
    std::uint64_t mediaNumber = 0;
    std::map<u16string, std::uint64_t> partNumbers;
    // Media parts written in this pass, by the hash of their bytes; a hit
    // is compared with the part's bytes, so that no image stays in memory.
    std::multimap<std::size_t, u16string> mediaByHash;
};

}  // namespace ppt
}  // namespace deckforge
