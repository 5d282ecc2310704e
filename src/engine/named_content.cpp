#include "engine/named_content.h"

#include "nodes/base_text_box.h"

namespace deckforge {
namespace ppt {

namespace {

// Text boxes and the placeholders that take text. A table placeholder is a
// box too, but a name never reaches it with text: it is there for a table.
BaseTextBoxImpl* textHolder(PPTNodePtr const& hit) {
    if (!hit) return nullptr;
    switch (hit->getNodeType()) {
        case NodeType::BodyPlaceholder:
        case NodeType::ContentPlaceholder:
        case NodeType::PicturePlaceholder:
        case NodeType::TextBoxPlaceholder:
        case NodeType::TextBox:
            return dynamic_cast<BaseTextBoxImpl*>(hit->nodeImpl());
        default:
            return nullptr;
    }
}

ShapeImpl* contentHolder(PPTNodePtr const& hit) {
    if (!hit) return nullptr;
    switch (hit->getNodeType()) {
        case NodeType::BodyPlaceholder:
        case NodeType::ContentPlaceholder:
        case NodeType::Picture:
        case NodeType::PicturePlaceholder:
        case NodeType::Table:
        case NodeType::TablePlaceholder:
        case NodeType::ChartPlaceholder:
        case NodeType::TextBox:
        case NodeType::TextBoxPlaceholder:
            return dynamic_cast<ShapeImpl*>(hit->nodeImpl());
        default:
            return nullptr;
    }
}

}  // namespace

void addTextToEach(PPTNodeList const& hits, u16string const& text) {
    for (auto const& hit : hits)
        if (BaseTextBoxImpl* box = textHolder(hit)) box->add(text);
}

void addParagraphToEach(PPTNodeList const& hits, Paragraph const& paragraph) {
    for (auto const& hit : hits) {
        BaseTextBoxImpl* box = textHolder(hit);
        if (!box) continue;
        if (paragraph.nodeImpl()->getParent())
            box->add(Paragraph(paragraph.clone()->getImpl()));
        else
            box->add(paragraph);
    }
}

void replaceTextInEach(PPTNodeList const& hits, u16string const& text) {
    for (auto const& hit : hits)
        if (BaseTextBoxImpl* box = textHolder(hit)) box->replace(text);
}

void replaceParagraphInEach(PPTNodeList const& hits, Paragraph const& paragraph) {
    for (auto const& hit : hits)
        if (BaseTextBoxImpl* box = textHolder(hit)) box->replace(paragraph);
}

void replaceContentInEach(PPTNodeList const& hits, boost::shared_ptr<HvContent> const& content) {
    for (auto const& hit : hits)
        if (ShapeImpl* shape = contentHolder(hit)) shape->replace(content);
}

}  // namespace ppt
}  // namespace deckforge
