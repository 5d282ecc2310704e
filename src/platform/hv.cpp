#include "platform/hv.h"

#include <cmath>
#include <limits>
#include <stdexcept>

#include "platform/i18n.h"

hvArray::hvArray(hvClassID classID, std::size_t rows, std::size_t cols)
    : classID_(classID), rows_(rows), cols_(cols) {
    std::size_t const n = rows * cols;
    switch (classID) {
        case hvClassID::Double:
        case hvClassID::Logical:
            numbers_.assign(n, 0.0);
            break;
        case hvClassID::UInt32:
        case hvClassID::UInt64:
            integers_.assign(n, 0);
            break;
        case hvClassID::Char:
            text_.assign(n, u'\0');
            break;
        case hvClassID::Cell:
            elements_.assign(n, hvArray(hvClassID::Double, 0, 0));
            break;
        case hvClassID::Struct:
            break;
    }
}

hvArray hvArray::text(std::u16string text, std::size_t rows, std::size_t cols) {
    if (rows * cols != text.size())
        throw std::invalid_argument("hvArray::text: size does not match dimensions");
    hvArray array(hvClassID::Char, 0, 0);
    array.rows_ = rows;
    array.cols_ = cols;
    array.text_ = std::move(text);
    return array;
}

bool hvArray::isNumeric() const {
    return classID_ == hvClassID::Double || classID_ == hvClassID::UInt32 || classID_ == hvClassID::UInt64;
}

double hvArray::number(std::size_t i) const {
    switch (classID_) {
        case hvClassID::Double:
        case hvClassID::Logical:
            return numbers_.at(i);
        case hvClassID::UInt32:
        case hvClassID::UInt64:
            return static_cast<double>(integers_.at(i));
        case hvClassID::Char:
            return text_.at(i);
        default:
            if (i >= numel()) throw std::out_of_range("hvArray::number");
            return 0.0;
    }
}

std::uint64_t hvArray::integer(std::size_t i) const {
    if (classID_ == hvClassID::UInt32 || classID_ == hvClassID::UInt64) return integers_.at(i);
    double const value = number(i);
    if (!(value > 0)) return 0;  // also NaN
    if (value >= 18446744073709551615.0) return std::numeric_limits<std::uint64_t>::max();
    return static_cast<std::uint64_t>(value);
}

void hvArray::setNumber(std::size_t i, double value) {
    switch (classID_) {
        case hvClassID::Double:
            numbers_.at(i) = value;
            break;
        case hvClassID::Logical:
            numbers_.at(i) = value != 0 ? 1.0 : 0.0;
            break;
        case hvClassID::UInt32:
        case hvClassID::UInt64: {
            double const top = classID_ == hvClassID::UInt32 ? 4294967295.0 : 18446744073709551615.0;
            std::uint64_t converted = 0;
            if (value >= top) {
                converted =
                    classID_ == hvClassID::UInt32 ? 4294967295u : std::numeric_limits<std::uint64_t>::max();
            } else if (value > 0) {
                converted = static_cast<std::uint64_t>(value);
            }
            integers_.at(i) = converted;
            break;
        }
        case hvClassID::Char:
            text_.at(i) = static_cast<char16_t>(value);
            break;
        default:
            throw std::logic_error("hvArray::setNumber on a cell or struct array");
    }
}

void hvArray::setInteger(std::size_t i, std::uint64_t value) {
    if (classID_ == hvClassID::UInt32) {
        integers_.at(i) = value > 4294967295u ? 4294967295u : value;
    } else if (classID_ == hvClassID::UInt64) {
        integers_.at(i) = value;
    } else {
        setNumber(i, static_cast<double>(value));
    }
}

void hvArray::setCell(std::size_t i, hvArray value) {
    if (classID_ != hvClassID::Cell) throw std::logic_error("hvArray::setCell on a non-cell array");
    elements_.at(i) = std::move(value);
}

int hvArray::fieldIndex(std::string const& name) const {
    for (std::size_t f = 0; f < fieldNames_.size(); ++f) {
        if (fieldNames_[f] == name) return static_cast<int>(f);
    }
    return -1;
}

hvArray const* hvArray::field(std::size_t i, std::string const& name) const {
    if (classID_ != hvClassID::Struct || i >= numel()) return nullptr;
    int const f = fieldIndex(name);
    if (f < 0) return nullptr;
    return &elements_[i * fieldNames_.size() + static_cast<std::size_t>(f)];
}

void hvArray::setField(std::size_t i, std::string const& name, hvArray value) {
    if (classID_ != hvClassID::Struct) throw std::logic_error("hvArray::setField on a non-struct array");
    if (i >= numel()) throw std::out_of_range("hvArray::setField");
    int f = fieldIndex(name);
    if (f < 0) {
        // Widen every element by one field, keeping element-major order.
        std::size_t const oldCount = fieldNames_.size();
        std::vector<hvArray> widened;
        widened.reserve(numel() * (oldCount + 1));
        for (std::size_t e = 0; e < numel(); ++e) {
            for (std::size_t k = 0; k < oldCount; ++k)
                widened.push_back(std::move(elements_[e * oldCount + k]));
            widened.emplace_back(hvClassID::Double, 0, 0);
        }
        elements_ = std::move(widened);
        fieldNames_.push_back(name);
        f = static_cast<int>(oldCount);
    }
    elements_[i * fieldNames_.size() + static_cast<std::size_t>(f)] = std::move(value);
}

hvArray* hvCreateString(char const* utf8) {
    return hvCreateString_UTF16(utf8 ? fl::i18n::to_string(std::string(utf8)) : std::u16string());
}

hvArray* hvCreateString_UTF16(std::u16string const& text) {
    // An empty text is 0-by-0, as the host makes it.
    std::size_t const n = text.size();
    return new hvArray(hvArray::text(text, n ? 1 : 0, n));
}

hvArray* hvCreateDoubleScalar(double value) {
    auto* array = new hvArray(hvClassID::Double, 1, 1);
    array->setNumber(0, value);
    return array;
}

hvArray* hvCreateDoubleMatrix(std::size_t rows, std::size_t cols) {
    return new hvArray(hvClassID::Double, rows, cols);
}

hvArray* hvCreateLogicalScalar(bool value) {
    auto* array = new hvArray(hvClassID::Logical, 1, 1);
    array->setNumber(0, value ? 1.0 : 0.0);
    return array;
}

hvArray* hvCreateNumericMatrix(std::size_t rows, std::size_t cols, hvClassID classID) {
    if (classID == hvClassID::Char || classID == hvClassID::Cell || classID == hvClassID::Struct) {
        throw std::invalid_argument("hvCreateNumericMatrix: not a numeric class");
    }
    return new hvArray(classID, rows, cols);
}

hvArray* hvCreateCellMatrix(std::size_t rows, std::size_t cols) {
    return new hvArray(hvClassID::Cell, rows, cols);
}

hvArray* hvCreateStructMatrix(std::size_t rows, std::size_t cols,
                              std::vector<std::string> const& fieldNames) {
    hv::ArrayPtr array(new hvArray(hvClassID::Struct, rows, cols));
    if (array->numel() > 0) {
        for (auto const& name : fieldNames) array->setField(0, name, hvArray(hvClassID::Double, 0, 0));
    }
    return array.release();
}

void hvDestroyArray(hvArray* array) {
    delete array;
}

void hvSetCell(hvArray* cell, std::size_t index, hvArray* value) {
    hv::ArrayPtr owned(value);
    if (!cell) return;
    cell->setCell(index, owned ? std::move(*owned) : hvArray(hvClassID::Double, 0, 0));
}

void hvSetField(hvArray* structArray, std::size_t index, char const* name, hvArray* value) {
    hv::ArrayPtr owned(value);
    if (!structArray || !name) return;
    structArray->setField(index, name, owned ? std::move(*owned) : hvArray(hvClassID::Double, 0, 0));
}

hvArray const* hvGetCell(hvArray const* cell, std::size_t index) {
    if (!cell || cell->classID() != hvClassID::Cell || index >= cell->numel()) return nullptr;
    return &cell->cell(index);
}

hvArray const* hvGetField(hvArray const* structArray, std::size_t index, char const* name) {
    if (!structArray || !name) return nullptr;
    return structArray->field(index, name);
}

bool hvIsEmpty(hvArray const* array) {
    return !array || array->isEmpty();
}

std::size_t hvGetNumberOfElements(hvArray const* array) {
    return array ? array->numel() : 0;
}

hvClassID hvGetClassID(hvArray const* array) {
    return array ? array->classID() : hvClassID::Double;
}

double hvGetScalar(hvArray const* array) {
    if (!array || array->isEmpty()) return 0.0;
    return array->number(0);
}

std::u16string hvGetString(hvArray const* array) {
    if (!array || array->classID() != hvClassID::Char) return {};
    return array->chars();
}

namespace hv {
namespace {

class DefaultHost : public Host {
public:
    bool call(std::string const&, std::vector<hvArray const*> const&, int,
              std::vector<std::unique_ptr<hvArray>>&) override {
        return false;
    }
    void warning(resource_core::BaseMsgID const&) override {}
};

std::shared_ptr<Host>& current() {
    static std::shared_ptr<Host> instance = std::make_shared<DefaultHost>();
    return instance;
}

}  // namespace

std::shared_ptr<Host> setHost(std::shared_ptr<Host> host) {
    auto previous = std::move(current());
    current() = host ? std::move(host) : std::make_shared<DefaultHost>();
    return previous;
}

Host& host() {
    return *current();
}

}  // namespace hv

int hvCallHost(char const* fn, int nlhs, hvArray* plhs[], int nrhs, hvArray* prhs[]) {
    for (int i = 0; i < nlhs; ++i) plhs[i] = nullptr;
    if (!fn) return 1;
    std::vector<hvArray const*> args(prhs, prhs + (nrhs > 0 ? nrhs : 0));
    std::vector<std::unique_ptr<hvArray>> results;
    // Keep the host alive through the call even if it replaces itself.
    std::shared_ptr<hv::Host> keep = hv::current();
    if (!keep->call(fn, args, nlhs < 0 ? 0 : nlhs, results)) return 1;
    for (int i = 0; i < nlhs && static_cast<std::size_t>(i) < results.size(); ++i)
        plhs[i] = results[i].release();
    return 0;
}

void hvWarningMsgId(resource_core::BaseMsgID const& id) {
    hv::host().warning(id);
}
