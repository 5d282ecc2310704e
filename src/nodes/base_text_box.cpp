#include "nodes/base_text_box.h"

namespace deckforge {
namespace ppt {

BaseTextBoxImpl::BaseTextBoxImpl() {
    reportCreated();
}

BaseTextBoxImpl::BaseTextBoxImpl(u16string const& name) : ShapeImpl(name) {
    reportCreated();
}

BaseTextBoxImpl::BaseTextBoxImpl(u16string const& name, u16string const& templateUid)
    : ShapeImpl(name, templateUid) {
    reportCreated();
}

BaseTextBoxImpl::BaseTextBoxImpl(BaseTextBoxImpl const& other) : ShapeImpl(other) {
    reportCreated();
}

BaseTextBoxImpl::~BaseTextBoxImpl() {
    reportDestroyed();
}

char const* BaseTextBoxImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.BaseTextBox";
}

PPTNodePtr BaseTextBoxImpl::makeInterface() {
    return boost::make_shared<BaseTextBox>(this);
}

PPTNodePtr BaseTextBoxImpl::clone() const {
    return (new BaseTextBoxImpl(*this))->makeInterface();
}

NodeType BaseTextBoxImpl::getNodeType() const {
    return NodeType::BaseTextBox;
}

bool BaseTextBoxImpl::isA(NodeType type) const {
    return type == NodeType::BaseTextBox || type == getNodeType();
}

Paragraph BaseTextBoxImpl::add(u16string const& text) {
    return BaseTextBoxImpl::add(Paragraph(text));
}

Paragraph BaseTextBoxImpl::add(Paragraph const& paragraph) {
    appendChild(paragraph.makeInterface());
    return Paragraph(paragraph.getImpl());
}

Paragraph BaseTextBoxImpl::replace(u16string const& text) {
    return BaseTextBoxImpl::replace(Paragraph(text));
}

Paragraph BaseTextBoxImpl::replace(Paragraph const& paragraph) {
    setReplaced(true);
    // A paragraph that stands elsewhere (even in this box) stays there.
    PPTNodePtr const only = paragraph.nodeImpl()->getParent() ? paragraph.clone() : paragraph.makeInterface();
    setChildren(PPTNodeList{only});
    return Paragraph(only->getImpl());
}

void BaseTextBoxImpl::add(ListItems const& items) {
    appendListItems(BaseAttribute<unsigned int>(), items);
}

void BaseTextBoxImpl::replace(ListItems const& items) {
    setReplaced(true);
    setChildren(PPTNodeList());
    appendListItems(BaseAttribute<unsigned int>(), items);
}

void BaseTextBoxImpl::appendListItems(BaseAttribute<unsigned int> const& level, ListItems const& items) {
    for (ListItem const& item : items) {
        if (item.getKind() == ListItem::Kind::List) {
            // A nested list is one level deeper and has no paragraph of its own.
            BaseAttribute<unsigned int> const inner(level.isSet() ? level.getValue() + 1 : 2u);
            appendListItems(inner, item.getItems());
            continue;
        }
        boost::shared_ptr<Paragraph> paragraph;
        switch (item.getKind()) {
            case ListItem::Kind::Text:
                paragraph = boost::make_shared<Paragraph>(item.getText());
                break;
            case ListItem::Kind::Number:
                paragraph = boost::make_shared<Paragraph>(item.getNumber());
                break;
            case ListItem::Kind::Paragraph:
                if (item.getParagraph()) {
                    PPTNodePtr const& given = item.getParagraph();
                    paragraph = Paragraph::cast(given->nodeImpl()->getParent() ? given->clone() : given);
                }
                break;
            case ListItem::Kind::Blank:
            case ListItem::Kind::List:
                break;
        }
        if (!paragraph) paragraph = boost::make_shared<Paragraph>();
        // The depth of the list beats a level the paragraph had of its own.
        if (level.isSet()) paragraph->setLevel(level.getValue());
        add(*paragraph);
    }
}

BaseTextBox::BaseTextBox() : Shape(new BaseTextBoxImpl()) {}

BaseTextBox::BaseTextBox(u16string const& name) : Shape(new BaseTextBoxImpl(name)) {}

}  // namespace ppt
}  // namespace deckforge
