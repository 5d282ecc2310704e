// The host's typed view of a script value: what the library reads when script
// code hands it a whole value (a cell array, a matrix, a struct array) for a
// table. The binding builds the tree from its values; the nodes read it
// without knowing the host.
//
// Each content node answers getType() with one of the numbers in hv_type.
// The readers are static and forgiving: asked about content of another kind
// (or null) they give the kind's zero, so callers test getType() first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "platform/hobj.h"

namespace deckforge {

namespace hv_type {
constexpr int Boolean = 0;
constexpr int Integer = 1;
constexpr int Double = 2;
constexpr int String = 3;
// Values shown by their printed form: numbers the host prints itself,
// character matrices, and other values with a display.
constexpr int DisplayNumber = 4;
constexpr int DisplayText = 5;
constexpr int DisplayOther = 11;
constexpr int Object = 6;
constexpr int List = 8;
constexpr int Table = 9;
constexpr int Categorical = 12;
// HvTable::getContentType() of a table whose columns have headers.
constexpr int HeaderTable = 13;
}  // namespace hv_type

class HvContent {
public:
    virtual ~HvContent();
    virtual int getType() const = 0;
};

using HvContentPtr = boost::shared_ptr<HvContent>;

class BooleanContent : public HvContent {
public:
    explicit BooleanContent(bool value) : mValue(value) {}
    int getType() const override { return hv_type::Boolean; }
    static bool getValue(HvContentPtr const& content);

private:
    bool mValue;
};

class IntegerContent : public HvContent {
public:
    explicit IntegerContent(std::int32_t value) : mValue(value) {}
    int getType() const override { return hv_type::Integer; }
    static std::int32_t getValue(HvContentPtr const& content);

private:
    std::int32_t mValue;
};

class DoubleContent : public HvContent {
public:
    explicit DoubleContent(double value) : mValue(value) {}
    int getType() const override { return hv_type::Double; }
    static double getValue(HvContentPtr const& content);

private:
    double mValue;
};

class StringContent : public HvContent {
public:
    explicit StringContent(std::u16string value) : mValue(std::move(value)) {}
    int getType() const override { return hv_type::String; }
    static std::u16string getValue(HvContentPtr const& content);

private:
    std::u16string mValue;
};

// A value as the host displays it.
class HvData {
public:
    explicit HvData(std::u16string display) : mDisplay(std::move(display)) {}
    std::u16string const& getDispl() const { return mDisplay; }

private:
    std::u16string mDisplay;
};

// The display kinds, and the base of objects, which have a display too.
class DataContent : public HvContent {
public:
    DataContent(int type, std::u16string display);
    int getType() const override { return mType; }
    // Null for content without a display form.
    static boost::shared_ptr<HvData> getValue(HvContentPtr const& content);

private:
    int mType;
    boost::shared_ptr<HvData> mData;
};

// A script object. The host layer knows how to find the native object behind
// it and what its script class derives from; the nodes ask through these.
class ObjectContent : public DataContent {
public:
    explicit ObjectContent(std::u16string display) : DataContent(hv_type::Object, std::move(display)) {}
    // The native implementation; null for an object that has none (deleted,
    // never constructed, or of a class the library doesn't know).
    virtual hobj::factory::full::Wrappable* getNative() const = 0;
    // Whether the object's script class is `className` or derives from it,
    // whether or not it has a native implementation.
    virtual bool isA(char const* className) const = 0;

    // Null unless the content is an object.
    static ObjectContent const* getValue(HvContentPtr const& content);
};

// The items of a cell array, in element order; an item may be null.
class HvList {
public:
    explicit HvList(std::vector<HvContentPtr> items) : mItems(std::move(items)) {}
    std::size_t getSize() const { return mItems.size(); }
    HvContentPtr const& get(std::size_t index) const { return mItems.at(index); }

private:
    std::vector<HvContentPtr> mItems;
};

class ListContent : public HvContent {
public:
    explicit ListContent(boost::shared_ptr<HvList> list) : mList(std::move(list)) {}
    int getType() const override { return hv_type::List; }
    static boost::shared_ptr<HvList> getValue(HvContentPtr const& content);

private:
    boost::shared_ptr<HvList> mList;
};

// A value seen as rows and columns of content. Cells start null.
class HvTable {
public:
    // `contentType` tells what the value was: hv_type::HeaderTable for a table
    // with headers, otherwise the kind of the value as a whole.
    HvTable(std::size_t rows, std::size_t cols, int contentType);
    virtual ~HvTable();

    std::size_t getRowCount() const { return mRows; }
    std::size_t getColumnCount() const { return mCols; }
    int getContentType() const { return mContentType; }
    HvContentPtr const& getCell(std::size_t row, std::size_t col) const {
        return mCells.at(row * mCols + col);
    }
    void setCell(std::size_t row, std::size_t col, HvContentPtr content);
    // Whether a cell may stay without a paragraph when it names a paragraph
    // object that has no native object behind it. This host never allows it:
    // a deleted paragraph in a cell is an error, not a blank.
    virtual bool isCellPermitted(std::size_t row, std::size_t col) const;

private:
    std::size_t mRows;
    std::size_t mCols;
    int mContentType;
    std::vector<HvContentPtr> mCells;  // row-major
};

// A table whose columns have headers; a header may stand over several columns.
class HvQUORIXTable : public HvTable {
public:
    using HeadersSpan = std::vector<std::pair<std::u16string, unsigned int>>;

    HvQUORIXTable(std::size_t rows, std::size_t cols, HeadersSpan headers);
    // Null unless the table is one with headers.
    static boost::shared_ptr<HvQUORIXTable> cast(boost::shared_ptr<HvTable> const& table);
    HeadersSpan const& getHeadersSpan() const { return mHeaders; }

private:
    HeadersSpan mHeaders;
};

class TableContent : public HvContent {
public:
    explicit TableContent(boost::shared_ptr<HvTable> table) : mTable(std::move(table)) {}
    int getType() const override { return hv_type::Table; }
    static boost::shared_ptr<TableContent> cast(HvContentPtr const& content);
    boost::shared_ptr<HvTable> const& getValue() const { return mTable; }

private:
    boost::shared_ptr<HvTable> mTable;
};

// A categorical array, read through its table form.
class CategoricalContent : public HvContent {
public:
    explicit CategoricalContent(boost::shared_ptr<HvTable> table) : mTable(std::move(table)) {}
    int getType() const override { return hv_type::Categorical; }
    static boost::shared_ptr<CategoricalContent> cast(HvContentPtr const& content);
    boost::shared_ptr<HvTable> const& getTable() const { return mTable; }

private:
    boost::shared_ptr<HvTable> mTable;
};

}  // namespace deckforge
