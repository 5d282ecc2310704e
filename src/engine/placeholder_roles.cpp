#include "engine/placeholder_roles.h"

#include <cmath>
#include <cstdlib>
#include <cstdio>
#include <string_view>

#include <xercesc/dom/DOM.hpp>

#include "engine/slide.h"
#include "nodes/shape.h"
#include "nodes/text_box_placeholder.h"
#include "template/presentation_model.h"

namespace deckforge {
namespace ppt {

using xercesc::DOMElement;

namespace {

u16string attribute(DOMElement const* element, char16_t const* name) {
    XMLCh const* value = element ? element->getAttribute(name) : nullptr;
    return value ? u16string(value) : u16string();
}

bool hasName(DOMElement const* element, std::u16string_view name) {
    XMLCh const* tag = element ? element->getTagName() : nullptr;
    return tag && std::u16string_view(tag) == name;
}

DOMElement* child(DOMElement const* element, char16_t const* name) {
    return element ? PresentationModel::findChildElement(element, name) : nullptr;
}

// The non-visual properties of a shape, a picture or a graphic frame.
DOMElement* nonVisualProperties(DOMElement const* shape) {
    if (hasName(shape, u"p:sp")) return child(shape, u"p:nvSpPr");
    if (hasName(shape, u"p:pic")) return child(shape, u"p:nvPicPr");
    if (hasName(shape, u"p:graphicFrame")) return child(shape, u"p:nvGraphicFramePr");
    return nullptr;
}

DOMElement* placeholderOf(DOMElement const* shape) {
    return child(child(nonVisualProperties(shape), u"p:nvPr"), u"p:ph");
}

DOMElement* transformOf(DOMElement const* shape) {
    if (hasName(shape, u"p:graphicFrame")) return child(shape, u"p:xfrm");
    return child(child(shape, u"p:spPr"), u"a:xfrm");
}

// Each shape element with a placeholder, groups entered, in document order.
void collectPlaceholders(DOMElement const* parent, std::vector<DOMElement*>& out) {
    for (DOMElement* element = parent ? parent->getFirstElementChild() : nullptr; element;
         element = element->getNextElementSibling()) {
        if (hasName(element, u"p:grpSp"))
            collectPlaceholders(element, out);
        else if (placeholderOf(element))
            out.push_back(element);
    }
}

std::vector<DOMElement*> placeholdersOf(xercesc::DOMDocument const* document) {
    std::vector<DOMElement*> out;
    if (document) collectPlaceholders(PresentationModel::getShapeTree(document), out);
    return out;
}

bool isObjectType(u16string const& type) {
    return type.empty() || type == u"obj";
}

// Whether the body placeholders of the layout hold its content (see the header).
bool bodyIsContent(TemplateLayout const& layout) {
    if (layout.type == u"secHead") return false;
    for (DOMElement* shape : placeholdersOf(layout.document)) {
        u16string const type = attribute(placeholderOf(shape), u"type");
        if (isObjectType(type) || type == u"pic" || type == u"clipArt" || type == u"tbl" ||
            type == u"chart" || type == u"dgm" || type == u"media")
            return false;
    }
    return true;
}

u16string roleOfType(u16string const& type, u16string const& size, bool bodyContent) {
    if (isObjectType(type)) return u"Content";
    if (type == u"body") return bodyContent && size != u"quarter" ? u"Content" : u"Text";
    if (type == u"title" || type == u"ctrTitle") return u"Title";
    if (type == u"subTitle") return u"Subtitle";
    if (type == u"pic" || type == u"clipArt") return u"Picture";
    if (type == u"tbl") return u"Table";
    if (type == u"chart") return u"Chart";
    if (type == u"dt") return u"Date";
    if (type == u"ftr") return u"Footer";
    if (type == u"sldNum") return u"SlideNumber";
    if (type == u"dgm") return u"Diagram";
    if (type == u"media") return u"Media";
    if (type == u"hdr") return u"Header";
    return type;
}

// A layout placeholder without a box of its own takes the box of the
// master's placeholder of its kind: titles the title's, the content types
// the body's, date, footer and slide number their own.
DOMElement* masterPlaceholder(TemplateLayout const& layout, u16string const& type) {
    if (!layout.master) return nullptr;
    u16string const wanted = type == u"title" || type == u"ctrTitle"                ? u16string(u"title")
                             : type == u"dt" || type == u"ftr" || type == u"sldNum" ? type
                                                                                    : u16string(u"body");
    for (DOMElement* shape : placeholdersOf(layout.master->document)) {
        u16string masterType = attribute(placeholderOf(shape), u"type");
        if (masterType == u"ctrTitle") masterType = u"title";
        if (masterType == wanted) return shape;
    }
    return nullptr;
}

// Centimetres to a hundredth, as "2.54cm": readable, and a length that a
// box property takes back.
u16string lengthText(u16string const& emus) {
    if (emus.empty()) return u16string();
    double const value = std::strtod(toUtf8(emus).c_str(), nullptr) / 360000.0;
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.2f", std::round(value * 100.0) / 100.0);
    std::string text(buffer);
    // "2.50" reads "2.5", "3.00" reads "3".
    while (!text.empty() && text.back() == '0') text.pop_back();
    if (!text.empty() && text.back() == '.') text.pop_back();
    if (text == "-0") text = "0";
    return toString(text + "cm");
}

PlaceholderDescription describePlaceholder(TemplateLayout const& layout, DOMElement const* shape,
                                           bool bodyContent) {
    PlaceholderDescription result;
    DOMElement const* placeholder = placeholderOf(shape);
    u16string const type = attribute(placeholder, u"type");
    result.name = attribute(child(nonVisualProperties(shape), u"p:cNvPr"), u"name");
    result.role = roleOfType(type, attribute(placeholder, u"sz"), bodyContent);
    result.index =
        static_cast<std::uint32_t>(std::strtoul(toUtf8(attribute(placeholder, u"idx")).c_str(), nullptr, 10));
    DOMElement const* transform = transformOf(shape);
    if (!transform) transform = transformOf(masterPlaceholder(layout, type));
    if (DOMElement const* offset = child(transform, u"a:off")) {
        result.x = lengthText(attribute(offset, u"x"));
        result.y = lengthText(attribute(offset, u"y"));
    }
    if (DOMElement const* extent = child(transform, u"a:ext")) {
        result.width = lengthText(attribute(extent, u"cx"));
        result.height = lengthText(attribute(extent, u"cy"));
    }
    return result;
}

// The role of a node on a slide of the layout; empty for what is no
// placeholder. Nodes exist only for the placeholder types that take
// content, so the node's class tells the type, and the layout's element
// tells the size of a body placeholder.
u16string roleOfNode(PPTNode const& node, TemplateLayout const* layout, int& bodyContent) {
    switch (node.getNodeType()) {
        case NodeType::ContentPlaceholder:
            return u"Content";
        case NodeType::PicturePlaceholder:
            return u"Picture";
        case NodeType::TablePlaceholder:
            return u"Table";
        case NodeType::ChartPlaceholder:
            return u"Chart";
        case NodeType::TextBoxPlaceholder: {
            auto const* impl = node.getImplAs<TextBoxPlaceholderImpl>();
            return impl ? roleOfType(impl->getPlaceholderType(), u16string(), false) : u16string();
        }
        case NodeType::BodyPlaceholder: {
            if (!layout) return u"Text";
            if (bodyContent < 0) bodyContent = bodyIsContent(*layout) ? 1 : 0;
            u16string size;
            if (auto const* impl = node.getImplAs<ShapeImpl>()) {
                if (auto const& shape = impl->getTemplateShape()) {
                    auto element = layout->shapeElementsByUid.find(shape->uid);
                    if (element == layout->shapeElementsByUid.end())
                        element = layout->shapeElementsByUid.find(shape->layoutUid);
                    if (element != layout->shapeElementsByUid.end())
                        size = attribute(placeholderOf(element->second), u"sz");
                }
            }
            return roleOfType(u"body", size, bodyContent == 1);
        }
        default:
            return u16string();
    }
}

void collectByRole(PPTNodePtr const& parent, u16string const& role, TemplateLayout const* layout,
                   int& bodyContent, std::size_t& seen, std::size_t ordinal, PPTNodeList& result) {
    for (auto const& node : parent->getChildren()) {
        if (!node || seen >= ordinal) return;
        if (node->getNodeType() == NodeType::Group) {
            collectByRole(node, role, layout, bodyContent, seen, ordinal, result);
        } else if (roleOfNode(*node, layout, bodyContent) == role && ++seen == ordinal) {
            result.push_back(node);
        }
    }
}

}  // namespace

std::vector<LayoutDescription> describeLayouts(PresentationModel const& model) {
    std::vector<LayoutDescription> result;
    if (!model.getMasters()) return result;
    for (auto const& master : *model.getMasters()) {
        if (!master || !master->layouts) continue;
        for (auto const& layout : *master->layouts) {
            if (!layout) continue;
            LayoutDescription description;
            description.master = master->name;
            description.layout = layout->name;
            bool const bodyContent = bodyIsContent(*layout);
            for (DOMElement* shape : placeholdersOf(layout->document))
                description.placeholders.push_back(describePlaceholder(*layout, shape, bodyContent));
            result.push_back(std::move(description));
        }
    }
    return result;
}

bool parseRoleName(u16string const& name, u16string& role, std::size_t& ordinal) {
    static char16_t const* const roles[] = {u"Title", u"Subtitle", u"Content", u"Text",   u"Picture",
                                            u"Table", u"Chart",    u"Date",    u"Footer", u"SlideNumber"};
    for (char16_t const* candidate : roles) {
        std::u16string_view const word(candidate);
        if (name.compare(0, word.size(), word) != 0) continue;
        std::u16string_view rest = std::u16string_view(name).substr(word.size());
        ordinal = 1;
        if (!rest.empty()) {
            // "Content 2": one space, then a number from 1 without leading zeros.
            if (rest.size() < 2 || rest[0] != u' ' || rest[1] < u'1' || rest[1] > u'9' || rest.size() > 6)
                continue;
            ordinal = 0;
            for (char16_t c : rest.substr(1)) {
                if (c < u'0' || c > u'9') return false;
                ordinal = ordinal * 10 + static_cast<std::size_t>(c - u'0');
            }
        }
        role = u16string(word);
        return true;
    }
    return false;
}

void findByRole(SlideImpl& slide, u16string const& role, std::size_t ordinal, PPTNodeList& result) {
    auto const& record = slide.getTemplateSlide();
    TemplateLayout const* layout = record ? record->layout.get() : nullptr;
    int bodyContent = -1;
    std::size_t seen = 0;
    collectByRole(slide.makeInterface(), role, layout, bodyContent, seen, ordinal, result);
}

}  // namespace ppt
}  // namespace deckforge
