#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "binding/host_content.h"
#include "binding/marshal.h"
#include "binding/module.h"
#include "binding/package.h"
#include "fake_host.h"
#include "nodes/table.h"
#include "platform/except.h"

using namespace deckforge;
using namespace deckforge::ppt;
using namespace deckforge::ppt::mi;
using foundation::core::except::IMsgIDException;

namespace {

Value text(char16_t const* t) {
    return Value::text(t);
}

Value cells(std::size_t rows, std::size_t cols, std::vector<Value> columnMajor) {
    return Value::cell(rows, cols, std::move(columnMajor));
}

// The text of the one run of the one paragraph of an entry.
u16string runText(Table const& table, unsigned long row, unsigned long col) {
    boost::shared_ptr<TableEntry> entry = table.entry(row, col);
    if (!entry || entry->getNChildren() != 1) return u"<no paragraph>";
    PPTNodePtr const& paragraph = entry->getChildren().front();
    if (paragraph->getNChildren() != 1) return u"<no run>";
    return Text(paragraph->getChildren().front()->getImpl()).getTextContent();
}

class HostTables : public ::testing::Test {
protected:
    void SetUp() override {
        if (!PackageTree::getPackage("deckforge.ppt")) registerPackages();
    }
    Table fromValue(Value const& value) { return Table(toHvTable(value)); }
    FakeHost host;
};

TEST_F(HostTables, NumbersPrintAsOctavePrintsAScalar) {
    EXPECT_EQ(shortNumberText(3.14), u"3.14");
    EXPECT_EQ(shortNumberText(M_PI), u"3.1416");
    EXPECT_EQ(shortNumberText(123.456), u"123.456");
    EXPECT_EQ(shortNumberText(0.001234), u"0.001234");
    EXPECT_EQ(shortNumberText(1e6), u"1000000");
    EXPECT_EQ(shortNumberText(1e20), u"1e+20");
    EXPECT_EQ(shortNumberText(std::nan("")), u"NaN");
    EXPECT_EQ(shortNumberText(-std::numeric_limits<double>::infinity()), u"-Inf");
}

TEST_F(HostTables, CellArrayGivesOneRunPerCell) {
    hvArray matrix(hvClassID::Double, 2, 2);
    for (std::size_t i = 0; i < 4; ++i) matrix.setNumber(i, static_cast<double>(i + 1));
    // Row 1: text, a fraction, a logical; row 2: a nested cell, [], a matrix.
    Table t = fromValue(cells(2, 3,
                              {text(u"txt"), cells(1, 1, {text(u"x")}), Value::number(3.14), Value(),
                               Value::logical(true), Value(matrix)}));
    EXPECT_EQ(t.getNCols(), 3u);
    ASSERT_EQ(t.getNChildren(), 2u);
    EXPECT_EQ(runText(t, 0, 0), u"txt");
    EXPECT_EQ(runText(t, 0, 1), u"3.14");
    EXPECT_EQ(runText(t, 0, 2), u"1");
    EXPECT_EQ(runText(t, 1, 0), u"");
    EXPECT_EQ(runText(t, 1, 1), u"");
    EXPECT_EQ(runText(t, 1, 2), u"[1 3;2 4]");
    EXPECT_TRUE(t.getColSpecs().empty());
}

TEST_F(HostTables, EmptyValuesGiveEmptyTables) {
    Table none = fromValue(cells(0, 0, {}));
    EXPECT_EQ(none.getNCols(), 0u);
    EXPECT_EQ(none.getNChildren(), 0u);
    Table rowsOnly = fromValue(Value(hvArray(hvClassID::Double, 2, 0)));
    ASSERT_EQ(rowsOnly.getNChildren(), 2u);
    EXPECT_EQ(rowsOnly.row(1)->getNChildren(), 0u);
}

TEST_F(HostTables, OtherShapesOfValues) {
    // A character matrix is a column of its rows, without their padding.
    Table lines = fromValue(Value(hvArray::text(u"acb d ", 2, 3)));
    ASSERT_EQ(lines.getNChildren(), 2u);
    EXPECT_EQ(runText(lines, 0, 0), u"abd");
    EXPECT_EQ(runText(lines, 1, 0), u"c");

    hvArray flags(hvClassID::Logical, 1, 2);
    flags.setNumber(1, 1);
    Table logical = fromValue(Value(flags));
    EXPECT_EQ(runText(logical, 0, 0), u"0");
    EXPECT_EQ(runText(logical, 0, 1), u"1");

    ObjectRef foreign;
    foreign.className = "function_handle";
    EXPECT_FALSE(toHvTable(Value(foreign)));
}

TEST_F(HostTables, StructArrayHasAHeaderRowOfItsFields) {
    hvArray records(hvClassID::Struct, 1, 2);
    records.setField(0, "name", hvArray::text(u"Ada", 1, 3));
    records.setField(1, "name", hvArray::text(u"Bob", 1, 3));
    hvArray score(hvClassID::Double, 1, 1);
    score.setNumber(0, 93.5);
    records.setField(0, "score", score);
    Table t = fromValue(Value(records));
    EXPECT_EQ(t.getNCols(), 2u);
    ASSERT_EQ(t.getNChildren(), 3u);
    EXPECT_EQ(runText(t, 0, 0), u"name");
    EXPECT_EQ(runText(t, 0, 1), u"score");
    EXPECT_EQ(runText(t, 2, 0), u"Bob");
    EXPECT_EQ(runText(t, 1, 1), u"93.5");
    EXPECT_EQ(runText(t, 2, 1), u"");  // a field Bob never set
    // One ColSpec per header and one per column under it.
    EXPECT_EQ(t.getColSpecs().size(), 4u);
}

TEST_F(HostTables, SpannedHeadersLeaveTheHeaderRowShort) {
    auto table = boost::make_shared<HvQUORIXTable>(1, 3, HvQUORIXTable::HeadersSpan{{u"A", 2}, {u"B", 1}});
    table->setCell(0, 2, boost::make_shared<StringContent>(u"z"));
    Table t(table);
    EXPECT_EQ(t.getNCols(), 3u);
    EXPECT_EQ(t.row(0)->getNChildren(), 2u);
    EXPECT_EQ(t.getColSpecs().size(), 5u);
    EXPECT_THROW(t.entry(0, 0), IMsgIDException);
    EXPECT_EQ(runText(t, 1, 2), u"z");
}

TEST_F(HostTables, AParagraphIsTakenThenCloned) {
    Paragraph p(u"bold");
    p.setBold(true);
    Value object = toScript(static_cast<PPTObject const&>(p));
    Table t = fromValue(cells(1, 2, {object, object}));
    PPTNodePtr const first = t.entry(0, 0)->getChildren().front();
    PPTNodePtr const second = t.entry(0, 1)->getChildren().front();
    EXPECT_EQ(first->getImpl(), p.getImpl());
    EXPECT_NE(second->getImpl(), p.getImpl());
    EXPECT_TRUE(Paragraph(second->getImpl()).getBold());
    EXPECT_EQ(runText(t, 0, 1), u"bold");
}

TEST_F(HostTables, FailuresLeaveNothingBehind) {
    // A deleted paragraph can't stand in a cell: column first, both from 1.
    Paragraph p(u"kept");
    ObjectRef deleted;
    deleted.state = ObjectRef::State::Deleted;
    deleted.className = "deckforge.ppt.Paragraph";
    try {
        fromValue(cells(1, 2, {toScript(static_cast<PPTObject const&>(p)), Value(deleted)}));
        FAIL() << "no error";
    } catch (IMsgIDException const& e) {
        EXPECT_EQ(e.identifier(), "deckforge:ppt_error:invalidObjectForTable");
        EXPECT_EQ(e.arguments().size(), 2u);
    }
    EXPECT_EQ(p.nodeImpl()->getParent(), nullptr);

    auto zeroSpan = boost::make_shared<HvQUORIXTable>(0, 1, HvQUORIXTable::HeadersSpan{{u"A", 0}});
    try {
        Table t(zeroSpan);
        FAIL() << "no error";
    } catch (IMsgIDException const& e) {
        EXPECT_EQ(e.identifier(), "deckforge:ppt_error:invalidPropertyValue");
    }
}

}  // namespace
