// Script values of every shape turned into tables: the input drives the
// making of a nested value (numbers with NaN and infinities, logicals, text
// of any code units, character and numeric matrices, cells, struct arrays,
// objects that are foreign, deleted or unconstructed), which goes through
// the conversions of binding/host_content.h and becomes a Table.
//
// A refusal with a message id is a fine outcome; any other exception, a
// crash or a sanitizer report is a finding.
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>

#include <fuzzer/FuzzedDataProvider.h>

#include "binding/host_content.h"
#include "binding/module.h"
#include "binding/package.h"
#include "nodes/table.h"
#include "platform/except.h"

using namespace deckforge;
using namespace deckforge::ppt;
using namespace deckforge::ppt::mi;

namespace {

// Small enough to run fast, large enough for every shape of value.
constexpr int kMaxDepth = 4;
constexpr std::size_t kMaxSide = 6;

class ValueMaker {
public:
    explicit ValueMaker(FuzzedDataProvider& in) : in_(in) {}

    Value value(int depth) {
        switch (in_.ConsumeIntegralInRange(0, depth >= kMaxDepth ? 4 : 7)) {
            case 0:
                return Value::number(number());
            case 1:
                return Value::logical(in_.ConsumeBool());
            case 2:
                return Value(array(depth, hvClassID::Char));
            case 3:
                return Value(array(depth, pick({hvClassID::Double, hvClassID::Logical, hvClassID::UInt32,
                                                hvClassID::UInt64})));
            case 4:
                return Value();
            case 5:
                return Value(array(depth, hvClassID::Struct));
            case 6:
                return object();
            default: {
                std::size_t rows = side(), cols = side();
                std::vector<Value> elements;
                for (std::size_t i = 0; i < rows * cols; ++i) elements.push_back(value(depth + 1));
                return Value::cell(rows, cols, std::move(elements));
            }
        }
    }

private:
    std::size_t side() { return in_.ConsumeIntegralInRange<std::size_t>(0, kMaxSide); }

    template <class T>
    T pick(std::initializer_list<T> choices) {
        return *(choices.begin() + in_.ConsumeIntegralInRange<std::size_t>(0, choices.size() - 1));
    }

    double number() {
        switch (in_.ConsumeIntegralInRange(0, 3)) {
            case 0:
                return in_.ConsumeFloatingPoint<double>();
            case 1:
                return static_cast<double>(in_.ConsumeIntegral<std::int32_t>());
            case 2:
                return in_.ConsumeProbability<double>();
            default: {
                std::uint64_t bits = in_.ConsumeIntegral<std::uint64_t>();  // NaNs and infinities too
                double d;
                std::memcpy(&d, &bits, sizeof d);
                return d;
            }
        }
    }

    std::u16string text(std::size_t length) {
        std::u16string t;
        for (std::size_t i = 0; i < length; ++i)
            t += static_cast<char16_t>(in_.ConsumeIntegral<std::uint16_t>());
        return t;
    }

    hvArray array(int depth, hvClassID kind) {
        std::size_t rows = side(), cols = side();
        if (kind == hvClassID::Char) return hvArray::text(text(rows * cols), rows, cols);
        hvArray a(kind, rows, cols);
        if (kind != hvClassID::Struct) {
            for (std::size_t i = 0; i < a.numel(); ++i) a.setNumber(i, number());
            return a;
        }
        std::size_t fields = in_.ConsumeIntegralInRange<std::size_t>(0, 3);
        for (std::size_t f = 0; f < fields; ++f) {
            std::string name = in_.ConsumeRandomLengthString(8);
            for (std::size_t i = 0; i < a.numel(); ++i) {
                Value v = value(depth + 1);
                hv::ArrayPtr plain = v.toHvArray();
                a.setField(i, name, plain ? *plain : hvArray(hvClassID::Double, 0, 0));
            }
        }
        return a;
    }

    Value object() {
        ObjectRef ref;
        ref.state =
            pick({ObjectRef::State::Foreign, ObjectRef::State::Deleted, ObjectRef::State::Unconstructed});
        ref.className = in_.ConsumeBool() ? "deckforge.ppt.Paragraph" : in_.ConsumeRandomLengthString(24);
        return Value(ref);
    }

    FuzzedDataProvider& in_;
};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    if (!PackageTree::getPackage("deckforge.ppt")) registerPackages();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    try {
        Value const value = ValueMaker(in).value(0);
        toContent(value);
        toHvList(value);
        isHostTable(value);
        if (boost::shared_ptr<HvTable> table = toHvTable(value)) {
            Table t(table);
            for (unsigned long row = 0; row < t.getNChildren(); ++row)
                for (unsigned long col = 0; col < t.getNCols(); ++col) t.entry(row, col);
        }
    } catch (foundation::core::except::IMsgIDException const&) {
    }
    return 0;
}
