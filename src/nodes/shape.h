// The base of everything that stands on a slide with a position and a size.
// A shape made from a template shape stays tied to it through templateShape;
// its unset attributes mean "as the template has it".
#pragma once

#include <boost/shared_ptr.hpp>

#include "common/dimension.h"
#include "engine/ppt_node.h"
#include "formats/attribute.h"

namespace deckforge {

// The host's typed view of a script value; made and read by the host layer.
class HvContent;

namespace ppt {

class TemplateShape;

class ShapeImpl : public ElementImpl {
public:
    ShapeImpl();
    explicit ShapeImpl(u16string const& name);
    // The form that the slide uses: the Id becomes "<Id>:<templateUid>" when
    // templateUid isn't empty, so that debug messages name the template shape.
    ShapeImpl(u16string const& name, u16string const& templateUid);
    ShapeImpl(ShapeImpl const& other);
    ~ShapeImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
    // Sets the Name attribute as well as the node's name.
    void setName(u16string const& name) override;

    // Replaces the shape's content by a host value. A plain shape or a group
    // has no content of its own, so the base refuses (invalidReplaceArg);
    // boxes, placeholders, pictures and tables override it.
    virtual void replace(boost::shared_ptr<HvContent> const& content);

    BaseAttribute<u16string> const& getNameAttribute() const { return mNameAttr; }
    BaseAttribute<Dimension> const& getX() const { return mX; }
    BaseAttribute<Dimension> const& getY() const { return mY; }
    BaseAttribute<Dimension> const& getWidth() const { return mWidth; }
    BaseAttribute<Dimension> const& getHeight() const { return mHeight; }
    // The text is parsed first, so a bad unit (invalidDimensionUnits) leaves
    // the old value in place.
    void setX(u16string const& value);
    void setY(u16string const& value);
    void setWidth(u16string const& value);
    void setHeight(u16string const& value);
    void unsetX() { mX.unsetValue(); }
    void unsetY() { mY.unsetValue(); }
    void unsetWidth() { mWidth.unsetValue(); }
    void unsetHeight() { mHeight.unsetValue(); }

    // Whether the template's paragraphs are to be dropped at writing.
    bool isReplaced() const { return mReplaced; }
    void setReplaced(bool replaced) { mReplaced = replaced; }

    // For a copy of a picture or table given to a placeholder: the copy takes
    // the placeholder's template tie, Name and geometry, then its own X, Y,
    // Width and Height win where they were set. The node name follows the
    // placeholder's only when its Name attribute is set.
    void takePlaceOf(ShapeImpl const& placeholder);

    u16string const& getTemplateUid() const { return mTemplateUid; }
    boost::shared_ptr<TemplateShape> const& getTemplateShape() const { return mTemplateShape; }
    void setTemplateShape(boost::shared_ptr<TemplateShape> const& shape) { mTemplateShape = shape; }

protected:
    // For an object that takes another shape's place (a picture or table in a
    // placeholder's stead): its template tie and the five attributes, then
    // the Id suffix. The node name is taken over only when the source's Name
    // attribute is set, unless `nameAlways`.
    void takeOverShape(ShapeImpl const& source, bool nameAlways);

private:
    void appendTemplateUidToId();

    bool mReplaced = false;
    u16string mTemplateUid;
    boost::shared_ptr<TemplateShape> mTemplateShape;
    BaseAttribute<u16string> mNameAttr;
    BaseAttribute<Dimension> mX;
    BaseAttribute<Dimension> mY;
    BaseAttribute<Dimension> mWidth;
    BaseAttribute<Dimension> mHeight;
};

class Shape : public Element {
public:
    Shape();
    explicit Shape(u16string const& name);
    explicit Shape(PPTObjectImpl* impl) : Element(impl) {}

    static boost::shared_ptr<Shape> cast(PPTNodePtr const& node) { return castNode<Shape>(node); }

    void setName(u16string const& name) { shapeImpl()->setName(name); }
    BaseAttribute<Dimension> const& getX() const { return shapeImpl()->getX(); }
    BaseAttribute<Dimension> const& getY() const { return shapeImpl()->getY(); }
    BaseAttribute<Dimension> const& getWidth() const { return shapeImpl()->getWidth(); }
    BaseAttribute<Dimension> const& getHeight() const { return shapeImpl()->getHeight(); }
    void setX(u16string const& value) { shapeImpl()->setX(value); }
    void setY(u16string const& value) { shapeImpl()->setY(value); }
    void setWidth(u16string const& value) { shapeImpl()->setWidth(value); }
    void setHeight(u16string const& value) { shapeImpl()->setHeight(value); }
    void unsetX() { shapeImpl()->unsetX(); }
    void unsetY() { shapeImpl()->unsetY(); }
    void unsetWidth() { shapeImpl()->unsetWidth(); }
    void unsetHeight() { shapeImpl()->unsetHeight(); }
    void replace(boost::shared_ptr<HvContent> const& content) { shapeImpl()->replace(content); }

    ShapeImpl* shapeImpl() const { return getImplAs<ShapeImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
