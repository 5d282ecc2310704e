#include "platform/hv_content.h"

#include <boost/make_shared.hpp>
#include <boost/pointer_cast.hpp>

namespace deckforge {

namespace {

template <class T>
T const* as(HvContentPtr const& content) {
    return dynamic_cast<T const*>(content.get());
}

}  // namespace

HvContent::~HvContent() = default;

bool BooleanContent::getValue(HvContentPtr const& content) {
    auto const* c = as<BooleanContent>(content);
    return c && c->mValue;
}

std::int32_t IntegerContent::getValue(HvContentPtr const& content) {
    auto const* c = as<IntegerContent>(content);
    return c ? c->mValue : 0;
}

double DoubleContent::getValue(HvContentPtr const& content) {
    auto const* c = as<DoubleContent>(content);
    return c ? c->mValue : 0.0;
}

std::u16string StringContent::getValue(HvContentPtr const& content) {
    auto const* c = as<StringContent>(content);
    return c ? c->mValue : std::u16string();
}

DataContent::DataContent(int type, std::u16string display)
    : mType(type), mData(boost::make_shared<HvData>(std::move(display))) {}

boost::shared_ptr<HvData> DataContent::getValue(HvContentPtr const& content) {
    auto const* c = as<DataContent>(content);
    return c ? c->mData : boost::shared_ptr<HvData>();
}

ObjectContent const* ObjectContent::getValue(HvContentPtr const& content) {
    return as<ObjectContent>(content);
}

boost::shared_ptr<HvList> ListContent::getValue(HvContentPtr const& content) {
    auto const* c = as<ListContent>(content);
    return c ? c->mList : boost::shared_ptr<HvList>();
}

HvTable::HvTable(std::size_t rows, std::size_t cols, int contentType)
    : mRows(rows), mCols(cols), mContentType(contentType), mCells(rows * cols) {}

HvTable::~HvTable() = default;

void HvTable::setCell(std::size_t row, std::size_t col, HvContentPtr content) {
    mCells.at(row * mCols + col) = std::move(content);
}

bool HvTable::isCellPermitted(std::size_t, std::size_t) const {
    return false;
}

HvQUORIXTable::HvQUORIXTable(std::size_t rows, std::size_t cols, HeadersSpan headers)
    : HvTable(rows, cols, hv_type::HeaderTable), mHeaders(std::move(headers)) {}

boost::shared_ptr<HvQUORIXTable> HvQUORIXTable::cast(boost::shared_ptr<HvTable> const& table) {
    return boost::dynamic_pointer_cast<HvQUORIXTable>(table);
}

boost::shared_ptr<TableContent> TableContent::cast(HvContentPtr const& content) {
    return boost::dynamic_pointer_cast<TableContent>(content);
}

boost::shared_ptr<CategoricalContent> CategoricalContent::cast(HvContentPtr const& content) {
    return boost::dynamic_pointer_cast<CategoricalContent>(content);
}

}  // namespace deckforge
