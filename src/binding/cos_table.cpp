#include "binding/accessors.h"
#include "binding/host_content.h"
#include "binding/ppt_classes.h"
#include "binding/style_properties.h"
#include "nodes/table.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {

constexpr char const* kTable = "deckforge.ppt.Table";
constexpr char const* kTableRow = "deckforge.ppt.TableRow";
constexpr char const* kTableEntry = "deckforge.ppt.TableEntry";

Table tableFromValue(Value const& value) {
    boost::shared_ptr<HvTable> table = toHvTable(value);
    if (!table) raise<ppt_error::invalidConstructorArg>();
    return Table(table);
}

Value getColSpecs(PPTObject const& self) {
    Table const table(self.getImpl());
    auto const& specs = table.getColSpecs();
    return toScript(PPTNodeList(specs.begin(), specs.end()));
}

// [] clears; otherwise a cell array (or one object), of which only the
// ColSpec objects count: anything else in it is passed over.
void setColSpecs(PPTObject const& self, Value const& value) {
    Table table(self.getImpl());
    std::vector<boost::shared_ptr<ColSpec>> specs;
    if (!value.isEmpty()) {
        boost::shared_ptr<HvList> list = toHvList(value);
        if (!list) raise<ppt_error::invalidPropertyValue>(value.className());
        for (std::size_t i = 0; i < list->getSize(); ++i) {
            ObjectContent const* object = ObjectContent::getValue(list->get(i));
            auto* impl = object ? dynamic_cast<ColSpecImpl*>(object->getNative()) : nullptr;
            if (impl) specs.push_back(boost::make_shared<ColSpec>(impl));
        }
    }
    table.setColSpecs(specs);
}

// 1-based subscripts; a subscript past the end is found by asking the
// native call first, so a row of the wrong size raises its own error.
Value rowAt(Call& c) {
    Table table = c.self<Table>();
    double const r = checkedSubscript(c.raw(0));
    boost::shared_ptr<TableRow> row = table.row(static_cast<unsigned long>(r) - 1);
    if (!row)
        raise<ppt_error::badRowSubscript>(static_cast<std::int64_t>(r),
                                          static_cast<std::int64_t>(table.getNChildren()));
    return toScript(row);
}

Value entryAt(Call& c) {
    Table table = c.self<Table>();
    double const r = checkedSubscript(c.raw(0));
    double const col = checkedSubscript(c.raw(1));
    boost::shared_ptr<TableRow> row = table.row(static_cast<unsigned long>(r) - 1);
    if (!row)
        raise<ppt_error::badRowSubscript>(static_cast<std::int64_t>(r),
                                          static_cast<std::int64_t>(table.getNChildren()));
    boost::shared_ptr<TableEntry> entry =
        table.entry(static_cast<unsigned long>(r) - 1, static_cast<unsigned long>(col) - 1);
    if (!entry)
        raise<ppt_error::badColSubscript>(static_cast<std::int64_t>(col),
                                          static_cast<std::int64_t>(row->getNChildren()));
    return toScript(entry);
}

}  // namespace

class CosTable : public CosPPTObjectClassInfo {
public:
    CosTable() : CosPPTObjectClassInfo("Table") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "t = deckforge.ppt.Table(struct('Region', {'North', 'South'}, 'Q1', {1200, 950.5}));\n"
            "t.StyleName = 'Light Lines';");
        cls.setHelp(
            "A table: rows of entries, each entry holding paragraphs.\n"
            "Build it row by row, or in one step from a value:\n"
            "  t = deckforge.ppt.Table({'Name', 'Score'; 'Ada', 93.5; 'Bob', NaN});\n"
            "  t = deckforge.ppt.Table(magic(4));            % a number per cell\n"
            "  t = deckforge.ppt.Table(struct('x', {1, 2}, 'y', {'a', 'b'}));\n"
            "A cell array gives its rows and columns; a Paragraph in a cell goes in\n"
            "itself (a copy once it stands elsewhere), so its formats show. A struct\n"
            "array gives a header row of its field names and a row per element; a\n"
            "dataframe (pkg load dataframe) gives its column names and rows the same\n"
            "way. A character matrix gives a column of its rows. Octave has no\n"
            "categorical arrays: give a cell array of strings instead.\n"
            "Numbers show as num2str prints them (3.14, 1000000, NaN, Inf), logicals\n"
            "as 1 or 0, number arrays as [1 2;3 4]; a nested cell array, a struct or\n"
            "[] inside a cell leaves it empty.\n"
            "  slide.add(t);                          % on a slide\n"
            "  slide.find('Table'){1}.replace(t);     % in place of a table placeholder\n"
            "  t.StyleName = 'Medium Style 2 - Accent 1';   % see getTableStyleNames");
        cls.addSuperclass("deckforge.ppt.Shape");
        cls.addConstructor(
            {}, [](Call&) { return Table(); }, "Table()");
        cls.addConstructor(
            {words::UInt32}, [](Call& c) { return Table(static_cast<std::uint64_t>(c.uint32(0))); },
            "Table(nCols): no rows yet; entry() checks rows against nCols.");
        cls.addConstructor(
            {words::Any}, [](Call& c) { return tableFromValue(c.raw(0)); },
            "Table(value): rows and entries from a cell array, matrix, struct array or dataframe.");

        cls.addProperty("NCols", "uint64", getter(&Table::getNCols), nullptr,
                        "The number of columns: that of the widest row.");
        cls.addProperty("StyleName", "text or empty", getter(&Table::getStyleName),
                        optionalTextSetter(&Table::setStyleName, &Table::unsetStyleName),
                        "The name of one of the template's table styles; [] for the template's default.");
        cls.addProperty("ColSpecs", "host array", getColSpecs, setColSpecs,
                        "The column specifications, a cell array of ColSpec in column order.");
        addFontProperties<Table>(cls);

        cls.addMethod(
            "append", kTableRow, {kTableRow},
            [](Call& c) {
                return toScript(static_cast<PPTObject const&>(c.self<Table>().append(c.object<TableRow>(0))));
            },
            "append(row): the row itself as the last; refused if it stands elsewhere.");
        cls.addMethod(
            "replace", kTable, {kTable},
            [](Call& c) {
                Table table = c.self<Table>().replace(c.object<Table>(0));
                return toScript(static_cast<PPTObject const&>(table));
            },
            "replace(table): a table with this one's place, name and box shows the new content; returns it.");
        cls.addMethod("entry", kTableEntry, {words::UInt64, words::UInt64}, entryAt,
                      "entry(row, col): the entry, counted from 1; the row must have NCols entries.");
        cls.addMethod("row", kTableRow, {words::UInt64}, rowAt, "row(index): the row, counted from 1.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosTable() {
    return std::make_unique<CosTable>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
