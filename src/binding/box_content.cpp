#include "binding/box_content.h"

#include "binding/host_content.h"
#include "binding/invoke.h"
#include "binding/marshal.h"
#include "nodes/base_text_box.h"
#include "nodes/chart_placeholder.h"
#include "nodes/content_placeholder.h"
#include "nodes/picture.h"
#include "nodes/picture_placeholder.h"
#include "nodes/table_placeholder.h"
#include "nodes/text_box_placeholder.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {

constexpr char const* kParagraph = "deckforge.ppt.Paragraph";
constexpr char const* kTable = "deckforge.ppt.Table";
constexpr char const* kPicture = "deckforge.ppt.Picture";
constexpr char const* kChart = "deckforge.ppt.Chart";

ListItem toListItem(Value const& element) {
    if (element.isCell()) {
        // {} has no items of its own: a blank line, as [] is.
        if (element.isEmpty()) return ListItem();
        return ListItem(toListItems(element));
    }
    if (element.isObject()) {
        if (element.object().state == ObjectRef::State::Deleted) raise<quorix::class_ids::InvalidHandle>();
        if (fitsWord(element, kParagraph)) return ListItem(toObject<Paragraph>(element, kParagraph));
        return ListItem();
    }
    hvArray const& a = element.array();
    if (a.classID() == hvClassID::Char) return ListItem(toText(element));
    // A logical is no number in a list: it makes a blank line.
    if (a.isNumeric() && a.numel() == 1) return ListItem(a.number(0));
    return ListItem();
}

// What the library can't read at all: function handles and objects of
// classes it doesn't know.
bool isUnreadable(Value const& value) {
    return value.isObject() && value.object().state == ObjectRef::State::Foreign;
}

Value paragraphResult(Paragraph const& paragraph) {
    return toScript(static_cast<PPTObject const&>(paragraph));
}

}  // namespace

ListItems toListItems(Value const& cell) {
    ListItems items;
    items.reserve(cell.elements().size());
    for (Value const& element : cell.elements()) items.push_back(toListItem(element));
    return items;
}

void addValue(BaseTextBox const& box, Value const& value) {
    if (value.isEmpty()) return;
    if (isUnreadable(value)) raise<ppt_error::invalidAddArg>();
    // Only a list adds anything; a lone number or logical is no list.
    if (value.isCell()) BaseTextBox(box).add(toListItems(value));
}

void replaceValue(BaseTextBox const& box, Value const& value) {
    BaseTextBoxImpl* impl = box.baseTextBoxImpl();
    // The placeholders that an object may replace check that first, whatever
    // the value; text-only placeholders meet their guard at the first paragraph.
    bool const objectsMayReplace = impl->isA(NodeType::PicturePlaceholder) ||
                                   impl->isA(NodeType::TablePlaceholder) ||
                                   impl->isA(NodeType::ChartPlaceholder);
    if (objectsMayReplace) static_cast<TextBoxPlaceholderImpl*>(impl)->replaceGuard();
    if (value.isEmpty()) {
        if (impl->isA(NodeType::ContentPlaceholder)) return;
        raise<ppt_error::invalidReplaceArg>();
    }
    // A Table object takes the place of a placeholder made for one; so does
    // a table value (a struct array, a dataframe) for a content placeholder.
    // A cell array stays a list.
    if (impl->isA(NodeType::ContentPlaceholder)) {
        ContentPlaceholder placeholder(impl);
        if (isHostTable(value)) {
            placeholder.replace(Table(toHvTable(value)));
            return;
        }
        if (fitsWord(value, kTable) && value.isObject()) {
            placeholder.replace(toObject<Table>(value, kTable));
            return;
        }
        if (fitsWord(value, kChart) && value.isObject()) {
            placeholder.replace(toObject<Chart>(value, kChart));
            return;
        }
    }
    // A Picture object takes the place of a placeholder that holds pictures.
    if (impl->isA(NodeType::PicturePlaceholder) && value.isObject() && fitsWord(value, kPicture)) {
        PicturePlaceholder(impl).replace(toObject<Picture>(value, kPicture));
        return;
    }
    if (impl->isA(NodeType::ChartPlaceholder) && value.isObject() && fitsWord(value, kChart)) {
        ChartPlaceholder(impl).replace(toObject<Chart>(value, kChart));
        return;
    }
    if (impl->isA(NodeType::TablePlaceholder) && value.isObject() && fitsWord(value, kTable)) {
        TablePlaceholder(impl).replace(toObject<Table>(value, kTable));
        return;
    }
    if (!value.isCell()) raise<ppt_error::invalidReplaceArg>();
    BaseTextBox(box).replace(toListItems(value));
}

void replaceValueInEach(PPTNodeList const& hits, Value const& value) {
    for (auto const& hit : hits) {
        if (!hit) continue;
        switch (hit->getNodeType()) {
            case NodeType::BodyPlaceholder:
            case NodeType::ContentPlaceholder:
            case NodeType::PicturePlaceholder:
            case NodeType::TablePlaceholder:
            case NodeType::ChartPlaceholder:
            case NodeType::TextBox:
            case NodeType::TextBoxPlaceholder:
                replaceValue(BaseTextBox(hit->getImpl()), value);
                break;
            case NodeType::Table:
                if (!value.isObject() || !fitsWord(value, kTable)) raise<ppt_error::invalidReplaceArg>();
                Table(hit->getImpl()).replace(toObject<Table>(value, kTable));
                break;
            case NodeType::Picture:
                if (!value.isObject() || !fitsWord(value, kPicture)) raise<ppt_error::invalidReplaceArg>();
                Picture(hit->getImpl()).replace(toObject<Picture>(value, kPicture));
                break;
            default:
                break;
        }
    }
}

void addBoxTextMethods(ClassDescription& cls) {
    cls.addMethod(
        "add", kParagraph, {words::String},
        [](Call& c) { return paragraphResult(c.self<BaseTextBox>().add(c.text(0))); },
        "add(text): a new paragraph of the text after the others; returns it.");
    cls.addMethod(
        "add", kParagraph, {kParagraph},
        [](Call& c) { return paragraphResult(c.self<BaseTextBox>().add(c.object<Paragraph>(0))); },
        "add(paragraph): the paragraph itself after the others; refused if it stands elsewhere.");
    cls.addMethod(
        "replace", kParagraph, {words::String},
        [](Call& c) { return paragraphResult(c.self<BaseTextBox>().replace(c.text(0))); },
        "replace(text): a paragraph of the text becomes the only content; returns it.");
    cls.addMethod(
        "replace", kParagraph, {kParagraph},
        [](Call& c) { return paragraphResult(c.self<BaseTextBox>().replace(c.object<Paragraph>(0))); },
        "replace(paragraph): the paragraph (a copy if it stands elsewhere) becomes the only content.");
}

void addBoxValueMethods(ClassDescription& cls) {
    cls.addMethod(
        "add", words::Void, {words::Any},
        [](Call& c) {
            addValue(c.self<BaseTextBox>(), c.raw(0));
            return Value();
        },
        "add(list): a paragraph for each element of a cell array; a nested cell array is a level deeper.");
    cls.addMethod(
        "replace", words::Void, {words::Any},
        [](Call& c) {
            replaceValue(c.self<BaseTextBox>(), c.raw(0));
            return Value();
        },
        "replace(list): the paragraphs of a cell array become the only content.");
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
