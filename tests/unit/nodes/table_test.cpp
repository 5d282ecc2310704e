// Tables keep their column count by the widest row and give entries only
// from rows of that width; clones and tables that take another's place share
// the column specifications and own copies of the rows.
#include <functional>

#include <gtest/gtest.h>

#include "engine/slide.h"
#include "nodes/group.h"
#include "nodes/table_placeholder.h"
#include "nodes/text_box.h"
#include "platform/msg_ids.h"
#include "template/template_records.h"

namespace deckforge {
namespace ppt {
namespace {

using foundation::core::except::Exception;
using foundation::core::except::IMsgIDException;

TableRow rowOf(std::vector<u16string> const& texts) {
    TableRow row;
    for (auto const& text : texts) row.append(TableEntry(text));
    return row;
}

// "<catalogue>:<id>(arg,arg)" of what `call` raises.
std::string failure(std::function<void()> const& call) {
    try {
        call();
    } catch (IMsgIDException const& e) {
        std::string text = e.identifier() + "(";
        for (auto const& a : e.arguments()) text += toUtf8(boost::get<u16string>(a)) + ",";
        return text + ")";
    }
    return "no failure";
}

u16string textOf(boost::shared_ptr<TableEntry> const& entry) {
    return Text::cast(entry->getChildren().at(0)->getChildren().at(0))->getTextContent();
}

TEST(Table, ColumnCountFollowsTheWidestRowAndEntryNeedsRowsOfThatWidth) {
    Table table(3);
    EXPECT_EQ(3u, table.getNCols());
    EXPECT_FALSE(table.row(0));
    EXPECT_FALSE(table.entry(0, 0));

    table.append(rowOf({u"a", u"b", u"c"}));
    TableRow shortRow = table.append(rowOf({u"d", u"e"}));
    EXPECT_EQ(3u, table.getNCols());
    EXPECT_EQ(u"b", textOf(table.entry(0, 1)));
    EXPECT_FALSE(table.entry(0, 3));
    EXPECT_FALSE(table.entry(2, 0));
    EXPECT_EQ("deckforge:dom_error:entriesColumnsMismatch(2,2,3,)", failure([&] { table.entry(1, 0); }));

    // An entry appended to a row that stands in the table widens it; the
    // rows of three are then the short ones.
    shortRow.append(TableEntry(u"f"));
    shortRow.append(TableEntry());
    EXPECT_EQ(4u, table.getNCols());
    EXPECT_EQ("deckforge:dom_error:entriesColumnsMismatch(1,3,4,)", failure([&] { table.entry(0, 0); }));

    // A free row widens nothing until it is appended; a spanning entry is one child.
    TableRow free = rowOf({u"1", u"2", u"3", u"4"});
    free.append(TableEntry(u"5"));
    EXPECT_EQ(4u, table.getNCols());
    TableEntry wide(u"wide");
    wide.setColSpan(4);
    table.append(TableRow()).append(wide);
    EXPECT_EQ("deckforge:dom_error:entriesColumnsMismatch(3,1,4,)", failure([&] { table.entry(2, 0); }));
}

TEST(Table, EntriesAdoptTheirParagraphsAndSpanAtLeastOneColumn) {
    TableEntry entry;
    EXPECT_EQ(1, entry.getColSpan());
    EXPECT_EQ("deckforge:ppt_error:invalidPropertyValue(0,)", failure([&] { entry.setColSpan(0); }));
    EXPECT_EQ(1, entry.getColSpan());
    Paragraph own(u"own");
    TableEntry adopting(own);
    EXPECT_EQ(own.getImpl(), adopting.getChildren().at(0)->getImpl());
    EXPECT_THROW(TableEntry{own}, Exception<ppt_error::failedToAppendChild>);
    Paragraph more = adopting.append(u"more");
    EXPECT_EQ(more.getImpl(), adopting.getChildren().at(1)->getImpl());
}

TEST(Table, ClonesShareColSpecsAndOwnTheirRows) {
    Table table(2);
    table.append(rowOf({u"a", u"b"}));
    table.setStyleName(u"Medium Style 2");
    auto shared = boost::make_shared<ColSpec>(u"1in");
    table.setColSpecs({shared, boost::make_shared<ColSpec>()});

    auto copy = Table::cast(table.clone());
    EXPECT_EQ(u"Medium Style 2", copy->getStyleName().getValue());
    EXPECT_NE(table.row(0)->getImpl(), copy->row(0)->getImpl());
    EXPECT_EQ(u"a", textOf(copy->entry(0, 0)));
    // One ColSpec object: a change through either table shows in both.
    copy->getColSpecs().at(0)->setWidth(u"2in");
    EXPECT_EQ(u"2in", table.getColSpecs().at(0)->getWidth()->getValue());
}

TEST(Table, ReplaceOnASlideTakesThePlaceAndIdentityOfTheOldTable) {
    Slide slide;
    auto* impl = new TableImpl(u"Table 3", u"41");
    auto old = boost::make_shared<Table>(impl);
    auto templateShape = boost::make_shared<TemplateShape>();
    impl->setTemplateShape(templateShape);
    slide.add(TextBox(u"Before"));
    slide.slideImpl()->appendChild(old);
    old->setX(u"1in");
    old->setWidth(u"5in");
    old->setStyleName(u"old style");

    Table given(2);
    given.append(rowOf({u"x", u"y"}));
    given.setY(u"2in");
    given.setFontSize(u"9pt");
    auto shared = boost::make_shared<ColSpec>();
    given.setColSpecs({shared});

    Table result = old->replace(given);
    EXPECT_EQ(result.getImpl(), slide.getChildren().at(1)->getImpl());
    EXPECT_EQ(templateShape, result.shapeImpl()->getTemplateShape());
    EXPECT_EQ(u":41", result.getId().substr(result.getId().size() - 3));
    // Width unset on the given table: the old one's stays.
    EXPECT_EQ(5 * 914400, result.getWidth().getValue().getEMUNumber());
    EXPECT_EQ(2 * 914400, result.getY().getValue().getEMUNumber());
    EXPECT_EQ(u"9pt", result.getFontSize()->getValue());
    EXPECT_FALSE(result.getStyleName().isSet());
    EXPECT_EQ(shared.get(), result.getColSpecs().at(0).get());
    EXPECT_EQ(u"y", textOf(result.entry(0, 1)));
    EXPECT_NE(given.row(0)->getImpl(), result.row(0)->getImpl());

    // The old table is off the slide; the new one can be replaced in turn.
    EXPECT_THROW(old->replace(given), Exception<ppt_error::tableCannotBeReplaced>);
    EXPECT_THROW(old->replace(boost::shared_ptr<HvContent>()), Exception<ppt_error::tableCannotBeReplaced>);
    EXPECT_THROW(result.replace(boost::shared_ptr<HvContent>()), Exception<ppt_error::invalidReplaceArg>);
    EXPECT_NE(result.getImpl(), result.replace(given).getImpl());

    // In a group nothing changes and the argument comes back.
    Group group(u"Group");
    Table member(1);
    group.groupImpl()->appendChild(member.makeInterface());
    EXPECT_EQ(given.getImpl(), member.replace(given).getImpl());
    EXPECT_EQ(member.getImpl(), group.getChildren().at(0)->getImpl());

    // A table placeholder makes its copy the same way.
    PPTNodePtr placeholder = (new TablePlaceholderImpl(u"Table", u"9", u"tbl"))->makeInterface();
    slide.slideImpl()->appendChild(placeholder);
    given.setStyleName(u"style");
    Table copy = TablePlaceholder::cast(placeholder)->replace(given);
    EXPECT_EQ(u"style", copy.getStyleName().getValue());
    EXPECT_EQ(shared.get(), copy.getColSpecs().at(0).get());
    EXPECT_NE(given.row(0)->getImpl(), copy.row(0)->getImpl());
}

}  // namespace
}  // namespace ppt
}  // namespace deckforge
