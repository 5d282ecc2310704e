// The records of a read template: masters, layouts, slides, their shapes,
// themes and table styles. Plain classes, held by boost::shared_ptr.
//
// A record points into DOM documents. Documents read from the package belong
// to the parser of the PartDOMBuilder; only a document cloned for a new slide
// belongs to its TemplateSlide. A shape record is tied to its element by the
// attribute "data-uid", whose value is the record's uid.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include <boost/noncopyable.hpp>
#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <xercesc/util/XercesDefs.hpp>

#include "common/strings.h"
#include "template/shape_kind.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMElement;
XERCES_CPP_NAMESPACE_END

namespace deckforge {
namespace ppt {

class TemplateShape;
class TemplateLayout;
class TemplateMaster;

using TemplateShapeList = std::vector<boost::shared_ptr<TemplateShape>>;
using ElementMap = std::map<u16string, xercesc::DOMElement*>;

class TemplateShape {
public:
    // Takes the next uid of the process-wide counter: "1" for the first
    // shape, never reused, shared by all presentations of the process.
    explicit TemplateShape(ShapeKind nodeType = ShapeKind::None);

    u16string uid;
    ShapeKind nodeType;
    u16string id;                   // "id" of the p:cNvPr
    std::optional<u16string> name;  // "name" of the p:cNvPr, when not empty
    u16string placeholderType;      // "type" of the p:ph, for title, table and picture placeholders
    u16string layoutUid;            // the layout placeholder of the same shape id, if any
    boost::shared_ptr<TemplateShapeList> children;  // members of a group
};

class TemplateTheme {
public:
    u16string partName;
    u16string name;
};

class TemplateTableStyle {
public:
    u16string styleId;
    u16string styleName;
};

class TemplateTableStyleOptions {
public:
    bool firstRow = true;
    bool lastRow = false;
    bool bandRow = true;
    bool firstCol = false;
    bool lastCol = false;
    bool bandCol = false;
};

class TemplateLayout : private boost::noncopyable {
public:
    ~TemplateLayout();

    u16string partName;
    u16string type;            // "type" of the p:sldLayout
    u16string masterPartName;  // target of the layout's slideMaster relationship
    u16string name;            // "name" of the p:cSld
    xercesc::DOMDocument* document = nullptr;
    ElementMap shapeElementsByUid;
    std::map<u16string, u16string> uidsByShapeId;
    boost::shared_ptr<TemplateShapeList> shapes;  // the placeholders, in document order
    // The master that the layout names. Points back at a master that holds
    // the layout: PresentationModel breaks that cycle when it dies.
    boost::shared_ptr<TemplateMaster> master;
    std::uint32_t maxShapeId = 1;
    // The document a new slide of this layout starts from, made on first
    // use and owned here: cloning it is cheaper than deriving every slide
    // from the layout again.
    xercesc::DOMDocument* slidePrototype = nullptr;
};

using TemplateLayoutList = std::vector<boost::shared_ptr<TemplateLayout>>;

// One paragraph of speaker notes: its text and outline level, 1 at the top.
class NotesParagraph {
public:
    std::uint32_t level = 1;
    u16string text;
};

using NotesParagraphs = std::vector<NotesParagraph>;

class TemplateMaster : private boost::noncopyable {
public:
    u16string id;              // "id" of the p:sldMasterId
    u16string relationshipId;  // "r:id" of the p:sldMasterId
    u16string partName;
    boost::shared_ptr<TemplateTheme> theme;
    u16string name;  // the theme's name: a master has none of its own
    xercesc::DOMDocument* document = nullptr;
    ElementMap shapeElementsById;
    boost::shared_ptr<TemplateLayoutList> layouts;  // in relationship order
    std::map<u16string, boost::shared_ptr<TemplateLayout>> layoutsByName;
    std::vector<u16string> layoutNames;
};

class TemplateSlide : private boost::noncopyable {
public:
    TemplateSlide() = default;
    // Releases the document if it is still set: a slide of the template has
    // it cleared by the model first, since that one is the parser's.
    ~TemplateSlide();

    // Takes the document, releasing the one held before.
    void setDocument(xercesc::DOMDocument* newDocument);

    u16string id;              // "id" of the p:sldId; empty on a new slide
    u16string relationshipId;  // "r:id"; a new slide gets one when presentation.xml is written
    u16string name;            // "name" of the p:cSld
    u16string partName;        // empty on a new slide until it is first written
    boost::shared_ptr<TemplateLayout> layout;
    xercesc::DOMDocument* document = nullptr;
    ElementMap shapeElementsByUid;
    // A new slide shares its layout's vector; a template slide has its own.
    boost::shared_ptr<TemplateShapeList> shapes;
    // The "id" of the next shape created on the slide.
    std::uint32_t nextShapeId = 0;
    // A slide made from a layout owns its document, and has one only while
    // it is being written: until then everything it holds is in the nodes.
    bool fromLayout = false;

    // The speaker notes: read from the template's notes part, or set by
    // script code. A template slide whose notes nobody set keeps its notes
    // part as it is; changed notes get a new part at close.
    NotesParagraphs notes;
    bool notesChanged = false;
    // A copy of another slide takes the relationships (pictures, charts,
    // links) of the part of that slide, named here.
    u16string copiedFromPartName;
};

using TemplateSlideList = std::vector<boost::shared_ptr<TemplateSlide>>;
using TemplateMasterList = std::vector<boost::shared_ptr<TemplateMaster>>;

}  // namespace ppt
}  // namespace deckforge
