// What every shape writer starts from: the lookups that lead from a node to
// its template shape and to that shape's elements in the slide and in the
// layout. A plain Shape or a Group writes nothing.
#pragma once

#include <cstdint>

#include "nodes/shape.h"
#include "writers/element_writer.h"

namespace deckforge {
namespace ppt {

class ShapeWriter : public ElementWriter {
public:
    ShapeWriter(ShapeImpl const* shape, PPTWriter* writer, xercesc::DOMNode* parent);

    boost::shared_ptr<TemplateShape> const& getTemplateShape() const { return shape->getTemplateShape(); }
    // The NodeType number of the template shape; 0 without one.
    std::int32_t getTemplateNodeType() const;
    // The node's element in the current slide; null for a node of script code.
    xercesc::DOMElement* findShapeElement() const;
    // Its element in the slide's layout. A placeholder of a new slide has the
    // layout's own record, so an empty layoutUid is taken to be the uid.
    xercesc::DOMElement* findLayoutShapeElement() const;

    ShapeImpl const* getShape() const { return shape; }

private:
    ShapeImpl const* shape;
};

}  // namespace ppt
}  // namespace deckforge
