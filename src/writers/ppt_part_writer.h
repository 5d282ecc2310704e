// Puts PresentationML into the output package: new slide parts related to
// their layouts, image parts and hyperlinks related to their slides.
// Relationship ids are the package library's to allocate.
#pragma once

#include <cstdint>

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
    // layout, and gives its name.
    u16string addSlide(boost::shared_ptr<TemplateSlide> const& slide);
    // Copies the image into a new media part and relates the slide to it; a
    // new part for every call. Empty text, and no part, if the file can't be
    // read or its extension names no known media type. The slide part must
    // exist: the package library's error passes through otherwise.
    u16string addImage(u16string const& slidePartName, u16string const& imagePath);
    // An external hyperlink relationship of the slide; empty text for an empty
    // target or a slide part that doesn't exist.
    u16string addHyperlink(u16string const& slidePartName, u16string const& target);

private:
    u16string newMediaName(u16string const& extension);

    std::uint64_t slideNumber = 0;
    // Told apart names of media that came out with the same UUID.
    std::uint64_t mediaSuffix = 0;
};

}  // namespace ppt
}  // namespace deckforge
