// One page of a presentation. A presentation makes its slides, from a slide
// of the template while it opens or from a layout on `add`; either way the
// slide turns the template's shape records into nodes that script code can
// find by name and fill. A slide without a template record is never written.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "engine/ppt_node.h"

namespace deckforge {

class HvContent;

namespace ppt {

class Paragraph;
class Picture;
class PresentationModel;
class Slide;
class Table;
class Chart;
class TextBox;
class TemplateLayout;
class TemplateShape;
class TemplateSlide;

class SlideImpl : public ElementImpl {
public:
    SlideImpl();
    // Shares the template record, so the clone and its source stand for one
    // document and one part.
    SlideImpl(SlideImpl const& other);
    ~SlideImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
    void setName(u16string const& name) override;

    u16string const& getSlideMasterName() const { return mMasterName; }
    void setSlideMasterName(u16string const& name) { mMasterName = name; }
    u16string const& getLayoutName() const { return mLayoutName; }
    void setLayoutName(u16string const& name) { mLayoutName = name; }
    boost::shared_ptr<TemplateSlide> const& getTemplateSlide() const { return mTemplateSlide; }
    void setTemplateSlide(boost::shared_ptr<TemplateSlide> const& slide) { mTemplateSlide = slide; }

    // A new slide whose document the model derives from the layout, with a
    // node for each of the layout's placeholders. Empty for a layout without
    // a shape list.
    static boost::shared_ptr<Slide> createFromLayout(PresentationModel const& model,
                                                     boost::shared_ptr<TemplateLayout> const& layout);
    // Appends a node for each shape record of the template slide, of the
    // class that the record names; records of other kinds are skipped.
    void makeChildNodes();
    // The same for any parent: a group's members go into the group.
    static void appendShapeNodes(PPTNodeImpl& parent,
                                 std::vector<boost::shared_ptr<TemplateShape>> const& shapes);

    // Nodes of that name below this slide; the slide itself is no hit.
    // When no shape bears the name, a role name ("Title", "Content 2", see
    // engine/placeholder_roles.h) gives the placeholder of that role.
    PPTNodeList find(u16string const& name);
    // Appends the placeholder that a role name stands for, if any.
    void findRole(u16string const& name, PPTNodeList& result);

    // The operations by name over find(name), as on a presentation (see
    // engine/named_content.h). A name that finds nothing is no error.
    void add(u16string const& name, u16string const& text);
    void add(u16string const& name, Paragraph const& paragraph);
    void replace(u16string const& name, u16string const& text);
    void replace(u16string const& name, Paragraph const& paragraph);
    void replace(u16string const& name, boost::shared_ptr<HvContent> const& content);

    // How a placeholder gives up its place to a picture or a table: `successor`
    // goes in at the index of `old`, which is left without a parent. Returns
    // `successor`.
    PPTNodePtr putInPlaceOf(PPTNodeImpl* old, PPTNodePtr const& successor);

    // The speaker notes (engine/slide_operations.cpp): their paragraphs
    // joined by line feeds, and set from text (a line feed starts a
    // paragraph) or from a list as a text box takes one. No paragraphs, or
    // one empty one, remove the notes. A slide without a template record
    // has none and keeps none.
    u16string getNotes() const;
    void setNotes(u16string const& text);
    void setNotes(std::vector<std::pair<std::uint32_t, u16string>> const& paragraphs);

private:
    u16string mMasterName;
    u16string mLayoutName;
    boost::shared_ptr<TemplateSlide> mTemplateSlide;
};

class Slide : public Element {
public:
    // A free slide with no template record: it can be filled but is never written.
    Slide();
    explicit Slide(PPTObjectImpl* impl) : Element(impl) {}

    static boost::shared_ptr<Slide> cast(PPTNodePtr const& node) { return castNode<Slide>(node); }

    u16string const& getSlideMasterName() const { return slideImpl()->getSlideMasterName(); }
    u16string const& getLayoutName() const { return slideImpl()->getLayoutName(); }
    void setName(u16string const& name) { slideImpl()->setName(name); }
    PPTNodeList find(u16string const& name) { return slideImpl()->find(name); }
    void add(u16string const& name, u16string const& text) { slideImpl()->add(name, text); }
    void add(u16string const& name, Paragraph const& paragraph) { slideImpl()->add(name, paragraph); }
    void replace(u16string const& name, u16string const& text) { slideImpl()->replace(name, text); }
    void replace(u16string const& name, Paragraph const& paragraph) { slideImpl()->replace(name, paragraph); }
    void replace(u16string const& name, boost::shared_ptr<HvContent> const& content) {
        slideImpl()->replace(name, content);
    }
    // Appends the object and returns a handle over it; failedToAppendChild if
    // it stands in a tree already.
    Picture add(Picture const& picture);
    Table add(Table const& table);
    Chart add(Chart const& chart);
    TextBox add(TextBox const& textBox);

    u16string getNotes() const { return slideImpl()->getNotes(); }
    void setNotes(u16string const& text) { slideImpl()->setNotes(text); }

    SlideImpl* slideImpl() const { return getImplAs<SlideImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
