// Building and changing the elements of shapes in a slide's document from a
// shape's five optional attributes (Name, X, Y, Width, Height). An unset
// attribute leaves the value to the template or to the system's defaults.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include "common/strings.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMElement;
XERCES_CPP_NAMESPACE_END

namespace deckforge {
namespace ppt {

class ShapeImpl;
class TemplateSlide;

// The size written for a shape whose width or height nobody gave. The odd
// number is deliberate: it marks a size that came from nowhere.
extern char16_t const* const kDefaultShapeExtent;

// Makes the slide's next shape id one above the highest p:cNvPr id in its
// document. The model starts a new slide's counter at its layout's highest
// placeholder id, which the slide's copy of that placeholder still bears, and
// a template slide's at 0; either way the first new shape would repeat an id
// in use, which readers take for a broken file. Called once per slide, before
// its shapes are written, so a slide costs one walk of its tree however many
// shapes it gets. The counter never goes down.
void reserveShapeIds(TemplateSlide& slide);

// The a:xfrm that gives the box of a shape: its own, or for a placeholder
// that inherits, the master's shape of the same id; null if neither has one.
xercesc::DOMElement const* boxTransform(TemplateSlide const& slide, xercesc::DOMElement const* spPr,
                                        xercesc::DOMElement const* nvSpPr);

// A new p:sp with an empty text body, appended to the slide's p:spTree; it
// takes the slide's next shape id. Null if the document has no p:spTree.
xercesc::DOMElement* createTextBoxShape(TemplateSlide& slide, ShapeImpl const& shape);

// Gives a placeholder an a:xfrm of its own when the shape has a position or
// size; otherwise leaves it to inherit all of its geometry from the layout.
// Missing values come from the layout's a:off, else "0", and the size is
// never the layout's: an a:xfrm must hold both a:off and a:ext.
void applyShapeGeometry(xercesc::DOMElement* shapeElement, TemplateSlide& slide,
                        xercesc::DOMElement const* layoutElement, ShapeImpl const& shape);

// A new p:pic for an image of the slide part's relationship
// `relationshipId`, appended to the slide's p:spTree with the slide's next
// shape id, at the shape's position and size or the defaults: the image's
// own aspect isn't used outside a placeholder. Null without p:spTree. An
// empty relationship id (an image that couldn't be read) gives an a:blip
// without r:embed, which readers show as an empty picture frame.
xercesc::DOMElement* createPicture(u16string const& relationshipId, TemplateSlide& slide,
                                   ShapeImpl const& shape);

// Names the SVG part `relationshipId` in the a:blip of `pic` through the
// extension that SVG-aware readers know; r:embed keeps naming the bitmap
// that the others show.
void addSvgBlip(xercesc::DOMElement* pic, u16string const& relationshipId);

// A p:pic to stand in the place of the placeholder `element` (a p:sp): it
// takes over the p:cNvPr and p:nvPr of its p:nvSpPr, so id, name and p:ph
// stay, and is fitted into the box of `layoutElement` (see fitPicture).
// Not put into the tree: the caller swaps it for `element`.
xercesc::DOMElement* createPictureFromPlaceholder(u16string const& relationshipId, TemplateSlide& slide,
                                                  xercesc::DOMElement* element,
                                                  xercesc::DOMElement const* layoutElement,
                                                  ShapeImpl const& shape, double width, double height);
// The same for a p:pic of a template slide, from its p:nvPicPr, fitted into
// its own box.
xercesc::DOMElement* createPictureFromPicture(u16string const& relationshipId, TemplateSlide& slide,
                                              xercesc::DOMElement* element,
                                              xercesc::DOMElement const* layoutElement,
                                              ShapeImpl const& shape, double width, double height);

}  // namespace ppt
}  // namespace deckforge
