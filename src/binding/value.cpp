#include "binding/value.h"

#include <stdexcept>

namespace deckforge {
namespace ppt {
namespace mi {

Value::Value() : array_(std::make_shared<hvArray>(hvClassID::Double, 0, 0)) {}

Value::Value(hvArray array) : array_(std::make_shared<hvArray>(std::move(array))) {}

Value::Value(ObjectRef object) : kind_(Kind::Object), object_(std::move(object)), rows_(1), cols_(1) {}

Value Value::cell(std::size_t rows, std::size_t cols, std::vector<Value> elements) {
    if (elements.size() != rows * cols) throw std::invalid_argument("cell size mismatch");
    Value v;
    v.kind_ = Kind::Cell;
    v.array_.reset();
    v.rows_ = rows;
    v.cols_ = cols;
    v.elements_ = std::move(elements);
    return v;
}

Value Value::text(u16string const& text) {
    return Value(hvArray::text(text, 1, text.size()));
}

Value Value::logical(bool value) {
    hvArray a(hvClassID::Logical, 1, 1);
    a.setNumber(0, value ? 1 : 0);
    return Value(std::move(a));
}

Value Value::number(double value) {
    hvArray a(hvClassID::Double, 1, 1);
    a.setNumber(0, value);
    return Value(std::move(a));
}

Value Value::uint32(std::uint32_t value) {
    hvArray a(hvClassID::UInt32, 1, 1);
    a.setInteger(0, value);
    return Value(std::move(a));
}

Value Value::uint64(std::uint64_t value) {
    hvArray a(hvClassID::UInt64, 1, 1);
    a.setInteger(0, value);
    return Value(std::move(a));
}

std::size_t Value::rows() const {
    return kind_ == Kind::Array ? array_->rows() : rows_;
}

std::size_t Value::cols() const {
    return kind_ == Kind::Array ? array_->cols() : cols_;
}

std::string Value::className() const {
    switch (kind_) {
        case Kind::Object:
            return object_.className;
        case Kind::Cell:
            return "cell";
        case Kind::Array:
            break;
    }
    switch (array_->classID()) {
        case hvClassID::Double:
            return "double";
        case hvClassID::Logical:
            return "logical";
        case hvClassID::Char:
            return "char";
        case hvClassID::Cell:
            return "cell";
        case hvClassID::Struct:
            return "struct";
        case hvClassID::UInt32:
            return "uint32";
        case hvClassID::UInt64:
            return "uint64";
    }
    return "double";
}

hv::ArrayPtr Value::toHvArray() const {
    switch (kind_) {
        case Kind::Array:
            return hv::ArrayPtr(new hvArray(*array_));
        case Kind::Object:
            return nullptr;
        case Kind::Cell:
            break;
    }
    hv::ArrayPtr result(hvCreateCellMatrix(rows_, cols_));
    for (std::size_t i = 0; i < elements_.size(); ++i) {
        hv::ArrayPtr element = elements_[i].toHvArray();
        if (!element) return nullptr;
        hvSetCell(result.get(), i, element.release());
    }
    return result;
}

Value Value::fromHvArray(hvArray const& array) {
    if (array.classID() != hvClassID::Cell) return Value(array);
    std::vector<Value> elements;
    for (std::size_t i = 0; i < array.numel(); ++i) elements.push_back(fromHvArray(array.cell(i)));
    return cell(array.rows(), array.cols(), std::move(elements));
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
