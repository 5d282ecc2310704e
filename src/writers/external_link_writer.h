// Renders a hyperlink run: a run whose a:rPr ends with an a:hlinkClick that
// points at an external relationship of the slide part, one for each link.
#pragma once

#include "nodes/external_link.h"
#include "writers/text_writer.h"

namespace deckforge {
namespace ppt {

class ExternalLinkWriter : public TextWriter {
public:
    ExternalLinkWriter(ExternalLinkImpl const* link, PPTWriter* writer, xercesc::DOMNode* parent)
        : TextWriter(link, writer, parent), link(link) {}

    // The target goes into the relationship as a URI reference (see
    // uriReference). An empty target gives r:id="" and no relationship.
    void writeLink() override;

    ExternalLinkImpl const* getLink() const { return link; }

private:
    ExternalLinkImpl const* link;
};

}  // namespace ppt
}  // namespace deckforge
