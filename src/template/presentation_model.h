// What a template package becomes when it is read: masters with their layouts
// and themes, the template's own slides, the table styles, and the parts' DOM
// documents. It answers the questions of script code, gives each new slide
// its document, and rewrites presentation.xml at the end.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include <boost/shared_ptr.hpp>
#include <xercesc/util/XercesDefs.hpp>

#include "common/strings.h"
#include "template/part_document_writer.h"
#include "template/part_dom_builder.h"
#include "template/shape_kind.h"
#include "template/template_records.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMElement;
XERCES_CPP_NAMESPACE_END

namespace opc {
namespace model {
class Part;
}
}  // namespace opc

namespace deckforge {
namespace ppt {

class PresentationModel {
public:
    explicit PresentationModel(boost::shared_ptr<PartDOMBuilder> partBuilder);
    // Breaks the layout/master cycle and hands the template slides' documents
    // back to the parser before anything is dropped.
    virtual ~PresentationModel();
    PresentationModel(PresentationModel const&) = delete;
    PresentationModel& operator=(PresentationModel const&) = delete;

    // Reads the package: presentation part, masters with themes and layouts,
    // slides, table styles. False when the package has no presentation part
    // or its main part has a content type of no presentation; the caller
    // turns that into invalidTemplate. partDOMBuildError and the package
    // library's exceptions (a relationship id or a target part that doesn't
    // exist) pass through.
    bool load();

    // --- Queries ---
    boost::shared_ptr<TemplateSlideList> const& getSlides() const { return slides; }
    std::vector<u16string> const& getMasterNames() const { return masterNames; }
    // A shared empty vector for an unknown master.
    std::vector<u16string> const& getLayoutNames(u16string const& masterName) const;
    // (styleName, styleId) for each table style in document order.
    void getTableStyleNames(std::vector<std::pair<u16string, u16string>>& names) const;
    // Searches the masters in the order of their part names as strings, so
    // "/ppt/slideMasters/slideMaster10.xml" comes before "...slideMaster2.xml".
    boost::shared_ptr<TemplateLayout> findLayout(u16string const& layoutName) const;
    boost::shared_ptr<TemplateLayout> findLayout(u16string const& layoutName,
                                                 u16string const& masterName) const;
    // By style id or by style name; the first style of a key holds it.
    boost::shared_ptr<TemplateTableStyle> findTableStyle(u16string const& key) const;

    boost::shared_ptr<TemplateMasterList> const& getMasters() const { return masters; }
    u16string const& getPresentationPartName() const { return presentationPartName; }
    xercesc::DOMDocument* getPresentationDocument() const { return presentationDocument; }
    boost::shared_ptr<PartDOMBuilder> const& getPartBuilder() const { return partBuilder; }

    // --- Building a slide ---
    // A new slide whose document is a clone of the layout's with the
    // content taken out: the root becomes p:sld, only the p:cSld is kept,
    // placeholders lose their geometry and text, and the layout's fixed
    // shapes go (the layout draws them). Empty for an empty layout pointer.
    boost::shared_ptr<TemplateSlide> createSlide(boost::shared_ptr<TemplateLayout> const& layout) const;
    // The same slide without its document yet: a deck of thousands of
    // slides holds one document at a time, made when the slide is written.
    boost::shared_ptr<TemplateSlide> createSlideRecord(boost::shared_ptr<TemplateLayout> const& layout) const;
    // Gives a slide made from a layout its document, if it has none.
    static void buildSlideDocument(TemplateSlide& slide);
    // Drops the document of a slide made from a layout once it is written.
    static void releaseSlideDocument(TemplateSlide& slide);
    // Sets "name" on the p:cSld of the slide's document, if there is one.
    void setSlideName(boost::shared_ptr<TemplateSlide> const& slide, u16string const& name) const;

    // --- Closing ---
    // Rewrites p:sldIdLst for `slides`, in that order, with ids from 256,
    // creates the presentation's relationships to slides that have none, and
    // stores presentation.xml through the writer.
    void writePresentationPart(PartDocumentWriter& partWriter, TemplateSlideList const& writtenSlides);

    // --- Small DOM helpers; all names are compared whole, prefix included ---
    static xercesc::DOMElement* findChildElement(xercesc::DOMElement const* element,
                                                 u16string const& tagName);
    // The p:spTree under the p:cSld of the root.
    static xercesc::DOMElement* getShapeTree(xercesc::DOMDocument const* document);
    static xercesc::DOMElement* getFirstShapeElement(xercesc::DOMDocument const* document);
    // p:nvSpPr / p:nvPr / p:ph, or null.
    static xercesc::DOMElement* getPlaceholderElement(xercesc::DOMElement const* shape);
    static u16string getPlaceholderType(xercesc::DOMElement const* shape);
    // The kind of node that a shape element becomes; None for what isn't a
    // content shape (a connector, a chart frame, a date placeholder...).
    static ShapeKind classifyShape(xercesc::DOMElement const* element);
    // Enters every element of the slide's document with a "data-uid".
    static void indexShapeElements(TemplateSlide& slide);

private:
    // A clone of the layout's document made into a slide's, with the
    // content taken out as createSlide says.
    static xercesc::DOMDocument* deriveSlidePrototype(xercesc::DOMDocument const* layoutDocument);

    void readMasters(opc::model::Part const& presentationPart);
    boost::shared_ptr<TemplateTheme> readTheme(opc::model::Part const& part);
    boost::shared_ptr<TemplateLayout> readLayout(opc::model::Part const& part);
    void readSlides(opc::model::Part const& presentationPart);
    void readTableStyles(opc::model::Part const& part);
    static void readShape(xercesc::DOMElement* element, TemplateShapeList& shapes,
                          boost::shared_ptr<TemplateLayout> const& layout);

    boost::shared_ptr<PartDOMBuilder> partBuilder;
    u16string presentationPartName;
    boost::shared_ptr<TemplateMasterList> masters;
    boost::shared_ptr<TemplateSlideList> slides;
    std::map<u16string, boost::shared_ptr<TemplateMaster>> mastersByPartName;
    std::map<u16string, boost::shared_ptr<TemplateSlide>> slidesByPartName;
    std::map<u16string, boost::shared_ptr<TemplateLayout>> layoutsByPartName;
    std::map<u16string, boost::shared_ptr<TemplateMaster>> mastersByName;
    std::map<u16string, boost::shared_ptr<TemplateTableStyle>> tableStylesByKey;
    xercesc::DOMDocument* presentationDocument = nullptr;
    std::vector<u16string> masterNames;
    std::vector<boost::shared_ptr<TemplateTableStyle>> tableStyles;
};

}  // namespace ppt
}  // namespace deckforge
