#include "template/presentation_model.h"

#include <algorithm>
#include <set>
#include <string_view>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/dom/impl/DOMCasts.hpp>
#include <xercesc/dom/impl/DOMParentNode.hpp>

#include "template/notes_reader.h"

namespace deckforge {
namespace ppt {

using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::DOMNodeList;

namespace {

u16string const kOfficeDocumentRel =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument";
u16string const kTableStylesRel =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/tableStyles";
u16string const kThemeRel = u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/theme";
u16string const kSlideLayoutRel =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/slideLayout";
u16string const kSlideMasterRel =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/slideMaster";
u16string const kSlideRel = u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/slide";

char16_t const kDataUid[] = u"data-uid";

// The main parts that make a presentation: presentations, templates and
// shows, each with or without macros.
bool isPresentationContentType(u16string const& type) {
    static std::set<u16string> const types = {
        u"application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml",
        u"application/vnd.ms-powerpoint.presentation.macroEnabled.main+xml",
        u"application/vnd.openxmlformats-officedocument.presentationml.template.main+xml",
        u"application/vnd.ms-powerpoint.template.macroEnabled.main+xml",
        u"application/vnd.openxmlformats-officedocument.presentationml.slideshow.main+xml",
        u"application/vnd.ms-powerpoint.slideshow.macroEnabled.main+xml",
    };
    return types.count(type) != 0;
}

// A missing attribute reads as empty text.
u16string attribute(DOMElement const* element, char16_t const* name) {
    XMLCh const* value = element->getAttribute(name);
    return value ? u16string(value) : u16string();
}

bool hasName(DOMElement const* element, std::u16string_view name) {
    XMLCh const* tag = element->getTagName();
    return tag && std::u16string_view(tag) == name;
}

DOMElement* firstElementByTagName(DOMNode const* scope, char16_t const* name) {
    DOMNodeList* list = nullptr;
    if (scope->getNodeType() == DOMNode::DOCUMENT_NODE)
        list = static_cast<DOMDocument const*>(scope)->getElementsByTagName(name);
    else
        list = static_cast<DOMElement const*>(scope)->getElementsByTagName(name);
    return list && list->getLength() > 0 ? static_cast<DOMElement*>(list->item(0)) : nullptr;
}

// A snapshot of a by-name search, so the tree may change while it is used.
std::vector<DOMElement*> elementsByTagName(DOMDocument const* document, char16_t const* name) {
    std::vector<DOMElement*> result;
    DOMNodeList* list = document->getElementsByTagName(name);
    XMLSize_t const count = list ? list->getLength() : 0;
    result.reserve(count);
    for (XMLSize_t i = 0; i < count; ++i) result.push_back(static_cast<DOMElement*>(list->item(i)));
    return result;
}

void indexElementsWithUid(DOMDocument* document, ElementMap& index) {
    if (!document || !document->getDocumentElement()) return;
    xercesc::DOMTreeWalker* walker = document->createTreeWalker(
        document->getDocumentElement(), xercesc::DOMNodeFilter::SHOW_ELEMENT, nullptr, false);
    for (DOMNode* node = walker->getCurrentNode(); node; node = walker->nextNode()) {
        u16string uid = attribute(static_cast<DOMElement*>(node), kDataUid);
        if (!uid.empty()) index.emplace(std::move(uid), static_cast<DOMElement*>(node));
    }
    walker->release();
}

// Whitespace between elements: a template written by hand or pretty-printed
// indents its markup, and every slide made from a layout would copy, clone
// and write that indentation again. Text in an element that holds no
// elements (a run's a:t) is content and stays, blank or not.
void collectIndentation(DOMElement* root, std::vector<DOMNode*>& blanks) {
    auto blank = [](XMLCh const* text) {
        for (; text && *text; ++text)
            if (*text != u' ' && *text != u'\t' && *text != u'\n' && *text != u'\r') return false;
        return true;
    };
    std::vector<DOMElement*> pending{root};
    while (!pending.empty()) {
        DOMElement* element = pending.back();
        pending.pop_back();
        if (!element || !element->getFirstElementChild()) continue;
        for (DOMNode* child = element->getFirstChild(); child; child = child->getNextSibling()) {
            if (child->getNodeType() == DOMNode::ELEMENT_NODE)
                pending.push_back(static_cast<DOMElement*>(child));
            else if (child->getNodeType() == DOMNode::TEXT_NODE && blank(child->getNodeValue()))
                blanks.push_back(child);
        }
    }
}

// A copy of a document. Xerces' own clone attaches every node with the
// checks of a DOM insertion (a dozen casts across the library's classes, and
// a walk up the tree); a slide's copy is made for every slide written, so it
// attaches nodes the way Xerces' parser does, and sets attributes by value
// instead of importing each as a node with a text child. That is sound
// here: each copy is new, childless, of the same document, and put where
// the original was.
DOMDocument* cloneDocument(DOMDocument const* source) {
    auto* copy = static_cast<DOMDocument*>(source->cloneNode(false));
    std::vector<std::pair<DOMNode const*, DOMNode*>> pending;
    for (DOMNode const* top = source->getFirstChild(); top; top = top->getNextSibling()) {
        DOMNode* topCopy = copy->importNode(top, false);
        pending.emplace_back(top, topCopy);
        while (!pending.empty()) {
            auto const from = pending.back();
            pending.pop_back();
            DOMNode const* child = from.first->getFirstChild();
            if (!child) continue;
            xercesc::DOMParentNode* parent = xercesc::castToParentImpl(from.second);
            for (; child; child = child->getNextSibling()) {
                DOMNode* childCopy;
                if (child->getNodeType() == DOMNode::ELEMENT_NODE) {
                    DOMElement* element =
                        copy->createElement(static_cast<DOMElement const*>(child)->getTagName());
                    xercesc::DOMNamedNodeMap const* attributes = child->getAttributes();
                    for (XMLSize_t i = 0, n = attributes->getLength(); i < n; ++i) {
                        DOMNode const* attr = attributes->item(i);
                        element->setAttribute(attr->getNodeName(), attr->getNodeValue());
                    }
                    childCopy = element;
                } else {
                    childCopy = copy->importNode(child, false);
                }
                parent->appendChildFast(childCopy);
                if (child->hasChildNodes()) pending.emplace_back(child, childCopy);
            }
        }
        // The document learns of its root element only through its own insert.
        copy->appendChild(topCopy);
    }
    return copy;
}
}  // namespace

PresentationModel::PresentationModel(boost::shared_ptr<PartDOMBuilder> builder)
    : partBuilder(std::move(builder)),
      masters(boost::make_shared<TemplateMasterList>()),
      slides(boost::make_shared<TemplateSlideList>()) {}

PresentationModel::~PresentationModel() {
    // A layout and its master hold each other. Layouts reached only through
    // a slide are cleared as well.
    for (auto const& master : *masters) {
        if (!master || !master->layouts) continue;
        for (auto const& layout : *master->layouts)
            if (layout) layout->master.reset();
    }
    for (auto const& entry : layoutsByPartName)
        if (entry.second) entry.second->master.reset();
    // The template slides' documents are the parser's: a slide record must
    // not release them, even if it outlives the model.
    for (auto const& slide : *slides)
        if (slide) slide->document = nullptr;
}

// ---------------------------------------------------------------------------
// Reading

bool PresentationModel::load() {
    presentationPartName = partBuilder->getRelatedPartName(kOfficeDocumentRel);
    if (presentationPartName.empty() || !partBuilder->hasPart(presentationPartName)) return false;

    opc::model::Part presentationPart = partBuilder->getPart(presentationPartName);
    bool const accepted = isPresentationContentType(presentationPart.getContentType().toString());
    if (accepted) {
        presentationDocument = partBuilder->buildPartDOM(presentationPart);
        readMasters(presentationPart);
        readSlides(presentationPart);
    }
    u16string const tableStylesName = partBuilder->getRelatedPartName(presentationPart, kTableStylesRel);
    if (!tableStylesName.empty()) readTableStyles(partBuilder->getPart(tableStylesName));
    return accepted;
}

void PresentationModel::readMasters(opc::model::Part const& presentationPart) {
    if (!presentationDocument) return;
    for (DOMElement* element : elementsByTagName(presentationDocument, u"p:sldMasterId")) {
        auto master = boost::make_shared<TemplateMaster>();
        master->id = attribute(element, u"id");
        master->relationshipId = attribute(element, u"r:id");
        master->layouts = boost::make_shared<TemplateLayoutList>();
        masters->push_back(master);
    }

    // All part names first: a layout read under one master may name a master
    // that comes later in the list, and must find it.
    std::vector<opc::model::Part> masterParts;
    masterParts.reserve(masters->size());
    for (auto const& master : *masters) {
        opc::model::Relationship const rel = presentationPart.getRelationshipByID(master->relationshipId);
        masterParts.push_back(partBuilder->getPart(rel));
        master->partName = masterParts.back().getName().toString();
        mastersByPartName.emplace(master->partName, master);
    }

    for (std::size_t i = 0; i < masters->size(); ++i) {
        TemplateMaster& master = *(*masters)[i];
        opc::model::Part const& part = masterParts[i];
        master.document = partBuilder->buildPartDOM(part);
        if (master.document) {
            for (DOMElement* cNvPr : elementsByTagName(master.document, u"p:cNvPr")) {
                u16string id = attribute(cNvPr, u"id");
                DOMNode* parent = cNvPr->getParentNode();
                DOMNode* shape = parent ? parent->getParentNode() : nullptr;
                if (!id.empty() && shape && shape->getNodeType() == DOMNode::ELEMENT_NODE)
                    master.shapeElementsById.emplace(std::move(id), static_cast<DOMElement*>(shape));
            }
        }

        u16string const themeName = partBuilder->getRelatedPartName(part, kThemeRel);
        if (!themeName.empty()) {
            master.theme = readTheme(partBuilder->getPart(themeName));
            master.name = master.theme->name;
        }
        masterNames.push_back(master.name);
        mastersByName.emplace(master.name, (*masters)[i]);

        for (opc::model::Relationship const& rel : partBuilder->getRelatedParts(part, kSlideLayoutRel)) {
            boost::shared_ptr<TemplateLayout> layout = readLayout(partBuilder->getPart(rel));
            // A related part that is no layout has nothing to be entered under.
            if (!layout) continue;
            master.layouts->push_back(layout);
            master.layoutsByName.emplace(layout->name, layout);
            master.layoutNames.push_back(layout->name);
        }
    }
}

boost::shared_ptr<TemplateTheme> PresentationModel::readTheme(opc::model::Part const& part) {
    auto theme = boost::make_shared<TemplateTheme>();
    theme->partName = part.getName().toString();
    if (DOMDocument* document = partBuilder->buildPartDOM(part)) {
        if (DOMElement* element = firstElementByTagName(document, u"a:theme"))
            theme->name = attribute(element, u"name");
    }
    return theme;
}

boost::shared_ptr<TemplateLayout> PresentationModel::readLayout(opc::model::Part const& part) {
    u16string const partName = part.getName().toString();
    auto known = layoutsByPartName.find(partName);
    if (known != layoutsByPartName.end()) return known->second;

    DOMDocument* document = partBuilder->buildPartDOM(part);
    if (!document || !firstElementByTagName(document, u"p:sldLayout")) return {};

    auto layout = boost::make_shared<TemplateLayout>();
    layout->partName = partName;
    layout->document = document;
    layout->maxShapeId = 1;
    layout->shapes = boost::make_shared<TemplateShapeList>();

    // With no layout given, only placeholders are taken.
    if (DOMElement* tree = getShapeTree(document)) {
        for (DOMElement* child = tree->getFirstElementChild(); child; child = child->getNextElementSibling())
            readShape(child, *layout->shapes, nullptr);
    }
    indexElementsWithUid(document, layout->shapeElementsByUid);
    for (auto const& shape : *layout->shapes) {
        if (shape->id.empty()) continue;
        if (!shape->uid.empty()) layout->uidsByShapeId.emplace(shape->id, shape->uid);
        layout->maxShapeId = std::max<std::uint32_t>(layout->maxShapeId, str2uint(shape->id));
    }

    DOMElement* root = document->getDocumentElement();
    layout->type = attribute(root, u"type");
    layout->masterPartName = partBuilder->getRelatedPartName(part, kSlideMasterRel);
    if (DOMElement* cSld = firstElementByTagName(root, u"p:cSld")) layout->name = attribute(cSld, u"name");

    layoutsByPartName.emplace(partName, layout);
    // The layout's own relationship decides its master, whichever master led
    // here: a layout shared by two masters belongs to the one it names.
    auto master = mastersByPartName.find(layout->masterPartName);
    if (master != mastersByPartName.end()) layout->master = master->second;
    return layout;
}

void PresentationModel::readSlides(opc::model::Part const& presentationPart) {
    if (!presentationDocument) return;
    std::size_t const first = slides->size();
    for (DOMElement* element : elementsByTagName(presentationDocument, u"p:sldId")) {
        auto slide = boost::make_shared<TemplateSlide>();
        slide->id = attribute(element, u"id");
        slide->relationshipId = attribute(element, u"r:id");
        slides->push_back(slide);
    }

    for (std::size_t i = first; i < slides->size(); ++i) {
        boost::shared_ptr<TemplateSlide> const& slide = (*slides)[i];
        opc::model::Relationship const rel = presentationPart.getRelationshipByID(slide->relationshipId);
        opc::model::Part const part = partBuilder->getPart(rel);
        slide->partName = part.getName().toString();
        slidesByPartName.emplace(slide->partName, slide);

        u16string const layoutName = partBuilder->getRelatedPartName(part, kSlideLayoutRel);
        if (!layoutName.empty()) slide->layout = readLayout(partBuilder->getPart(layoutName));

        slide->shapes = boost::make_shared<TemplateShapeList>();
        slide->setDocument(partBuilder->buildPartDOM(part));
        if (!slide->document) continue;
        DOMElement* root = slide->document->getDocumentElement();
        if (DOMElement* cSld = findChildElement(root, u"p:cSld")) slide->name = attribute(cSld, u"name");
        // Without a layout only the placeholders are read; such a slide is
        // refused later anyway.
        if (DOMElement* tree = getShapeTree(slide->document)) {
            for (DOMElement* child = tree->getFirstElementChild(); child;
                 child = child->getNextElementSibling())
                readShape(child, *slide->shapes, slide->layout);
        }
        indexShapeElements(*slide);
        readSlideNotes(*partBuilder, part, *slide);
    }
}

void PresentationModel::readTableStyles(opc::model::Part const& part) {
    DOMDocument* document = partBuilder->buildPartDOM(part);
    if (!document) return;
    for (DOMElement* element : elementsByTagName(document, u"a:tblStyle")) {
        auto style = boost::make_shared<TemplateTableStyle>();
        style->styleId = attribute(element, u"styleId");
        style->styleName = attribute(element, u"styleName");
        tableStyles.push_back(style);
        tableStylesByKey.emplace(style->styleId, style);
        tableStylesByKey.emplace(style->styleName, style);
    }
}

void PresentationModel::readShape(DOMElement* element, TemplateShapeList& shapes,
                                  boost::shared_ptr<TemplateLayout> const& layout) {
    ShapeKind const kind = classifyShape(element);
    if (kind == ShapeKind::None) return;
    if (!layout && !isPlaceholderKind(kind)) return;

    auto shape = boost::make_shared<TemplateShape>(kind);
    char16_t const* nonVisual = kind == ShapeKind::Picture ? u"p:nvPicPr"
                                : kind == ShapeKind::Table ? u"p:nvGraphicFramePr"
                                : kind == ShapeKind::Group ? u"p:nvGrpSpPr"
                                                           : u"p:nvSpPr";
    DOMElement* cNvPr = findChildElement(findChildElement(element, nonVisual), u"p:cNvPr");
    if (cNvPr) {
        u16string name = attribute(cNvPr, u"name");
        if (!name.empty()) shape->name = std::move(name);
        shape->id = attribute(cNvPr, u"id");
        // A slide's shape is bound to its layout's placeholder by equal shape
        // id, not by the placeholder index.
        if (layout) {
            auto uid = layout->uidsByShapeId.find(shape->id);
            if (uid != layout->uidsByShapeId.end()) shape->layoutUid = uid->second;
        }
    }
    shapes.push_back(shape);
    element->setAttribute(kDataUid, shape->uid.c_str());

    if (kind == ShapeKind::TablePlaceholder || kind == ShapeKind::ChartPlaceholder ||
        kind == ShapeKind::TextBoxPlaceholder || kind == ShapeKind::PicturePlaceholder)
        shape->placeholderType = getPlaceholderType(element);

    if (kind == ShapeKind::Group) {
        shape->children = boost::make_shared<TemplateShapeList>();
        for (DOMElement* child = element->getFirstElementChild(); child;
             child = child->getNextElementSibling())
            readShape(child, *shape->children, layout);
    }
}

// ---------------------------------------------------------------------------
// Queries

std::vector<u16string> const& PresentationModel::getLayoutNames(u16string const& masterName) const {
    static std::vector<u16string> const none;
    auto master = mastersByName.find(masterName);
    if (master == mastersByName.end() || !master->second) return none;
    return master->second->layoutNames;
}

void PresentationModel::getTableStyleNames(std::vector<std::pair<u16string, u16string>>& names) const {
    names.clear();
    names.reserve(tableStyles.size());
    for (auto const& style : tableStyles) names.emplace_back(style->styleName, style->styleId);
}

boost::shared_ptr<TemplateLayout> PresentationModel::findLayout(u16string const& layoutName) const {
    for (auto const& entry : mastersByPartName) {
        if (!entry.second) continue;
        auto layout = entry.second->layoutsByName.find(layoutName);
        if (layout != entry.second->layoutsByName.end()) return layout->second;
    }
    return {};
}

boost::shared_ptr<TemplateLayout> PresentationModel::findLayout(u16string const& layoutName,
                                                                u16string const& masterName) const {
    auto master = mastersByName.find(masterName);
    if (master == mastersByName.end() || !master->second) return {};
    auto layout = master->second->layoutsByName.find(layoutName);
    return layout == master->second->layoutsByName.end() ? boost::shared_ptr<TemplateLayout>()
                                                         : layout->second;
}

boost::shared_ptr<TemplateTableStyle> PresentationModel::findTableStyle(u16string const& key) const {
    auto style = tableStylesByKey.find(key);
    return style == tableStylesByKey.end() ? boost::shared_ptr<TemplateTableStyle>() : style->second;
}

// ---------------------------------------------------------------------------
// Building a slide

boost::shared_ptr<TemplateSlide> PresentationModel::createSlide(
    boost::shared_ptr<TemplateLayout> const& layout) const {
    boost::shared_ptr<TemplateSlide> slide = createSlideRecord(layout);
    if (slide) buildSlideDocument(*slide);
    return slide;
}

boost::shared_ptr<TemplateSlide> PresentationModel::createSlideRecord(
    boost::shared_ptr<TemplateLayout> const& layout) const {
    if (!layout) return {};
    auto slide = boost::make_shared<TemplateSlide>();
    slide->layout = layout;
    slide->shapes = layout->shapes;
    slide->nextShapeId = layout->maxShapeId;
    slide->fromLayout = true;
    return slide;
}

void PresentationModel::buildSlideDocument(TemplateSlide& slide) {
    if (slide.document || !slide.fromLayout || !slide.layout || !slide.layout->document) return;
    TemplateLayout& layout = *slide.layout;
    if (!layout.slidePrototype) layout.slidePrototype = deriveSlidePrototype(layout.document);
    slide.setDocument(cloneDocument(layout.slidePrototype));
    indexShapeElements(slide);
}

void PresentationModel::releaseSlideDocument(TemplateSlide& slide) {
    if (!slide.fromLayout) return;
    slide.shapeElementsByUid.clear();
    slide.setDocument(nullptr);
}

DOMDocument* PresentationModel::deriveSlidePrototype(DOMDocument const* layoutDocument) {
    auto* document = static_cast<DOMDocument*>(layoutDocument->cloneNode(true));
    DOMElement* oldRoot = document->getDocumentElement();
    if (!oldRoot) return document;

    // The slide root takes the layout root's attributes, namespace
    // declarations included, less those that only mean something on a layout.
    // A slide may not carry "userDrawn" or "matchingName": readers that check
    // the markup refuse the slide, and layouts made in PowerPoint have them.
    static std::set<u16string> const layoutOnly = {u"preserve", u"type", u"showMasterSp", u"userDrawn",
                                                   u"matchingName"};
    DOMElement* newRoot = document->createElement(u"p:sld");
    xercesc::DOMNamedNodeMap* attributes = oldRoot->getAttributes();
    for (XMLSize_t i = 0, n = attributes ? attributes->getLength() : 0; i < n; ++i) {
        auto* attr = static_cast<xercesc::DOMAttr*>(attributes->item(i));
        if (layoutOnly.count(u16string(attr->getName())) == 0)
            newRoot->setAttribute(attr->getName(), attr->getValue());
    }
    // Only the first element child, the p:cSld, moves over. Its siblings
    // (p:clrMapOvr, p:transition, p:timing, p:hf, p:extLst) belong to the
    // layout and are dropped, so the slide has no colour map override.
    try {
        if (DOMElement* cSld = oldRoot->getFirstElementChild()) newRoot->appendChild(cSld);
    } catch (xercesc::DOMException const&) {
    }
    try {
        document->replaceChild(newRoot, oldRoot);
    } catch (xercesc::DOMException const&) {
    }
    if (DOMElement* cSld = findChildElement(newRoot, u"p:cSld")) cSld->removeAttribute(u"name");

    // Collect first, remove afterwards, so the walk never sees a changing tree.
    std::vector<DOMNode*> removals;
    if (DOMElement* tree = getShapeTree(document)) {
        for (DOMElement* child = tree->getFirstElementChild(); child;
             child = child->getNextElementSibling()) {
            if (!attribute(child, kDataUid).empty()) {
                // A placeholder: geometry and text come from the layout.
                if (DOMElement* xfrm = findChildElement(findChildElement(child, u"p:spPr"), u"a:xfrm"))
                    removals.push_back(xfrm);
                if (DOMElement* txBody = findChildElement(child, u"p:txBody")) {
                    if (DOMElement* lstStyle = findChildElement(txBody, u"a:lstStyle")) {
                        for (DOMNode* node = lstStyle->getFirstChild(); node; node = node->getNextSibling())
                            removals.push_back(node);
                    }
                    DOMNodeList* paragraphs = txBody->getElementsByTagName(u"a:p");
                    for (XMLSize_t i = 0, n = paragraphs->getLength(); i < n; ++i)
                        removals.push_back(paragraphs->item(i));
                }
            } else if (classifyShape(child) != ShapeKind::None || hasName(child, u"p:cxnSp")) {
                // A fixed shape of the layout: the layout draws it already.
                removals.push_back(child);
            }
            // Anything else stays: group properties, chart frames, and date,
            // footer and slide number placeholders with their text.
        }
    }
    collectIndentation(document->getDocumentElement(), removals);
    for (DOMNode* node : removals) {
        if (DOMNode* parent = node->getParentNode()) parent->removeChild(node);
    }
    return document;
}

void PresentationModel::setSlideName(boost::shared_ptr<TemplateSlide> const& slide,
                                     u16string const& name) const {
    if (!slide || !slide->document) return;
    if (DOMElement* cSld = findChildElement(slide->document->getDocumentElement(), u"p:cSld"))
        cSld->setAttribute(u"name", name.c_str());
}

// ---------------------------------------------------------------------------
// Closing

void PresentationModel::writePresentationPart(PartDocumentWriter& partWriter,
                                              TemplateSlideList const& writtenSlides) {
    if (!presentationDocument) return;
    DOMElement* root = presentationDocument->getDocumentElement();
    if (!root) return;

    // The template's own list goes; the written slides make the new one.
    DOMElement* list = findChildElement(root, u"p:sldIdLst");
    for (DOMElement* sldId : elementsByTagName(presentationDocument, u"p:sldId")) {
        if (list && sldId->getParentNode() == list) list->removeChild(sldId);
    }
    // The list follows the master, notes master and handout master lists,
    // which is where the schema wants it; PowerPoint refuses other orders,
    // and some writers put a template's own list before the notes master's.
    if (list)
        root->removeChild(list);
    else
        list = presentationDocument->createElement(u"p:sldIdLst");
    DOMElement* before = root->getFirstElementChild();
    while (before && (hasName(before, u"p:sldMasterIdLst") || hasName(before, u"p:notesMasterIdLst") ||
                      hasName(before, u"p:handoutMasterIdLst")))
        before = before->getNextElementSibling();
    root->insertBefore(list, before);

    opc::model::Part presentationPart;
    bool havePart = false;
    unsigned int id = 255;
    for (auto const& slide : writtenSlides) {
        if (!slide) continue;
        DOMElement* sldId = presentationDocument->createElement(u"p:sldId");
        list->appendChild(sldId);
        sldId->setAttribute(u"id", plainInteger(++id).c_str());
        if (slide->relationshipId.empty()) {
            // Only new slides lack one; the template's keep theirs.
            if (!havePart) {
                presentationPart = partWriter.getPart(presentationPartName);
                havePart = true;
            }
            slide->relationshipId =
                presentationPart.createInternalRelationship(kSlideRel, opc::model::URI(slide->partName), u"")
                    .getID();
        }
        sldId->setAttribute(u"r:id", slide->relationshipId.c_str());
    }
    partWriter.writeDocument(presentationPartName, presentationDocument);
}

// ---------------------------------------------------------------------------
// Small helpers

DOMElement* PresentationModel::findChildElement(DOMElement const* element, u16string const& tagName) {
    if (!element) return nullptr;
    for (DOMElement* child = element->getFirstElementChild(); child; child = child->getNextElementSibling())
        if (hasName(child, tagName)) return child;
    return nullptr;
}

DOMElement* PresentationModel::getShapeTree(DOMDocument const* document) {
    if (!document) return nullptr;
    return findChildElement(findChildElement(document->getDocumentElement(), u"p:cSld"), u"p:spTree");
}

DOMElement* PresentationModel::getFirstShapeElement(DOMDocument const* document) {
    DOMElement* tree = getShapeTree(document);
    return tree ? tree->getFirstElementChild() : nullptr;
}

DOMElement* PresentationModel::getPlaceholderElement(DOMElement const* shape) {
    return findChildElement(findChildElement(findChildElement(shape, u"p:nvSpPr"), u"p:nvPr"), u"p:ph");
}

u16string PresentationModel::getPlaceholderType(DOMElement const* shape) {
    DOMElement* placeholder = getPlaceholderElement(shape);
    return placeholder ? attribute(placeholder, u"type") : u16string();
}

ShapeKind PresentationModel::classifyShape(DOMElement const* element) {
    if (!element) return ShapeKind::None;
    if (hasName(element, u"p:sp")) {
        DOMElement* placeholder = getPlaceholderElement(element);
        if (!placeholder) return ShapeKind::TextBox;
        u16string const type = attribute(placeholder, u"type");
        if (type.empty()) return ShapeKind::ContentPlaceholder;
        if (type == u"body") return ShapeKind::BodyPlaceholder;
        if (type == u"ctrTitle" || type == u"subTitle" || type == u"title")
            return ShapeKind::TextBoxPlaceholder;
        if (type == u"tbl") return ShapeKind::TablePlaceholder;
        if (type == u"chart") return ShapeKind::ChartPlaceholder;
        if (type == u"pic" || type == u"clipArt") return ShapeKind::PicturePlaceholder;
        // "obj", "dt", "ftr", "sldNum", ...: not a placeholder of this system.
        return ShapeKind::None;
    }
    if (hasName(element, u"p:pic")) return ShapeKind::Picture;
    if (hasName(element, u"p:grpSp")) return ShapeKind::Group;
    if (hasName(element, u"p:graphicFrame")) {
        DOMElement* graphicData = findChildElement(findChildElement(element, u"a:graphic"), u"a:graphicData");
        return findChildElement(graphicData, u"a:tbl") ? ShapeKind::Table : ShapeKind::None;
    }
    return ShapeKind::None;
}

void PresentationModel::indexShapeElements(TemplateSlide& slide) {
    indexElementsWithUid(slide.document, slide.shapeElementsByUid);
}

}  // namespace ppt
}  // namespace deckforge
