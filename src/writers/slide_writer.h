// Renders one slide into its part. The slide's document exists already: a
// new slide's is its layout's clone, a template slide's is its own. The
// writer names it, gives a new slide its part, lets the child shapes change
// the document in place and stores it.
#pragma once

#include "engine/slide.h"
#include "writers/element_writer.h"

namespace deckforge {
namespace ppt {

class SlideWriter : public ElementWriter {
public:
    // The parent isn't used: a slide is the top of its document.
    SlideWriter(SlideImpl const* slide, PPTWriter* writer, xercesc::DOMNode* parent);

    // A slide without a template record is skipped: it has no part and no
    // p:sldId.
    void write() override;

    SlideImpl const* getSlide() const { return slide; }

private:
    SlideImpl const* slide;
};

}  // namespace ppt
}  // namespace deckforge
