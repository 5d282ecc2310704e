// Building the markup of a table in a slide's document: the p:graphicFrame
// that holds an a:tbl, its style and style options, and its grid. The frame
// takes the place, ids and p:ph of a placeholder or of a template slide's
// table frame, or is appended to the p:spTree as a new shape.
#pragma once

#include <cstdint>
#include <vector>

#include <xercesc/util/XercesDefs.hpp>

#include "common/strings.h"
#include "formats/attribute.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMElement;
XERCES_CPP_NAMESPACE_END

namespace deckforge {
namespace ppt {

class PresentationModel;
class ShapeImpl;
class TemplateSlide;
class TemplateTableStyleOptions;

// The size of a new table whose width or height nobody gave.
extern char16_t const* const kDefaultTableExtent;

// A new frame appended to the slide's p:spTree with the slide's next shape
// id, at the shape's position and size or the defaults, with `nCols` grid
// columns sharing the width. Null if the document has no p:spTree.
xercesc::DOMElement* createTable(TemplateSlide& slide, ShapeImpl const& shape, std::uint64_t nCols);
// A frame to stand in the place of the placeholder `element` (a p:sp): it
// takes over the p:cNvPr and p:nvPr of its p:nvSpPr, so id, name and p:ph
// stay. Its box is the placeholder's own a:xfrm, or, when the layout's
// placeholder has none either, the master's shape of the same id; the
// shape's set X, Y, Width and Height win. A layout placeholder with a box of
// its own gives none: the frame then has no position and no grid columns of
// its own. Not put into the tree: the caller swaps it for `element`.
xercesc::DOMElement* createTableFromPlaceholder(TemplateSlide& slide, xercesc::DOMElement* element,
                                                xercesc::DOMElement const* layoutElement, std::uint64_t nCols,
                                                ShapeImpl const& shape);
// The same for a p:graphicFrame of a template slide, from its
// p:nvGraphicFramePr and its p:xfrm.
xercesc::DOMElement* createTableFromGraphicFrame(TemplateSlide& slide, xercesc::DOMElement* element,
                                                 xercesc::DOMElement const* layoutElement,
                                                 std::uint64_t nCols, ShapeImpl const& shape);
// The a:tbl under a:graphic and a:graphicData of a frame, or null.
xercesc::DOMElement* findTableElement(xercesc::DOMElement const* frame);

// Looks the name up among the template's table styles, by style name or by
// style id, exactly; for a known style writes its id as the a:tableStyleId
// of the table and gives true. An unknown name changes nothing.
bool applyTableStyle(PresentationModel const& model, xercesc::DOMElement* tbl, u16string const& styleName);
// The switches that are on, as "1" on a:tblPr; an off switch writes nothing.
void applyTableStyleOptions(xercesc::DOMElement* tbl, TemplateTableStyleOptions const& options);
// Rewrites the a:tblGrid when any column has a width: the columns without
// one share what is left of the grid's width, or get a narrow default when
// nothing is left. The frame's width isn't changed.
void applyColumnWidths(xercesc::DOMElement* tbl,
                       std::vector<BaseAttribute<unsigned int>> const& columnWidths);

}  // namespace ppt
}  // namespace deckforge
