// The operations by name of a presentation and of a slide: what a search by
// name found gets text, a paragraph or a host value, hit by hit in order.
// Only the kinds that hold text take text; the others are passed over
// without a word, and so is a name that found nothing. Results are dropped.
#pragma once

#include <boost/shared_ptr.hpp>

#include "engine/ppt_node.h"

namespace deckforge {

class HvContent;

namespace ppt {

class Paragraph;

// Appends a paragraph of the text to each text box and placeholder.
void addTextToEach(PPTNodeList const& hits, u16string const& text);
// The first hit takes the paragraph itself, unless it stands in a tree
// already; every other hit takes a clone.
void addParagraphToEach(PPTNodeList const& hits, Paragraph const& paragraph);
void replaceTextInEach(PPTNodeList const& hits, u16string const& text);
// As replace(Paragraph) of a box: a hit takes a clone once the paragraph
// has a parent, so again the first hit takes the object.
void replaceParagraphInEach(PPTNodeList const& hits, Paragraph const& paragraph);
// Each shape that can hold content (boxes, placeholders, pictures, tables)
// gets ShapeImpl::replace(content).
void replaceContentInEach(PPTNodeList const& hits, boost::shared_ptr<HvContent> const& content);

}  // namespace ppt
}  // namespace deckforge
