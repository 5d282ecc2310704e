// Values as they cross between script code and the library. Plain data
// (text, numbers, logicals, structs) travels as the platform's hvArray; what
// hvArray can't hold, script objects and cell arrays that may contain them,
// has its own kinds here. The host's glue builds Values from its own values
// and back, so nothing below it knows the host.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "common/strings.h"
#include "platform/hv.h"

namespace deckforge {
namespace ppt {
namespace mi {

class ScriptObject;

// A script object as the host hands it over.
struct ObjectRef {
    enum class State {
        Live,           // one of ours, with its native object
        Deleted,        // one of ours, deleted by script code
        Unconstructed,  // of one of our classes, but no native constructor ran
        Foreign         // of a class the library doesn't know
    };
    State state = State::Foreign;
    std::string className;           // the object's script class
    ScriptObject* object = nullptr;  // set when Live
    // The host's own value of the object, kept alive while this reference
    // travels; the binding never looks inside.
    std::shared_ptr<void> hostValue;
};

class Value {
public:
    enum class Kind { Array, Object, Cell };

    // An empty 0-by-0 double array: script code's "nothing".
    Value();
    explicit Value(hvArray array);
    explicit Value(ObjectRef object);
    static Value cell(std::size_t rows, std::size_t cols, std::vector<Value> elements);

    static Value text(u16string const& text);  // a 1-by-n character row
    static Value logical(bool value);
    static Value number(double value);
    static Value uint32(std::uint32_t value);
    static Value uint64(std::uint64_t value);

    Kind kind() const { return kind_; }
    bool isArray() const { return kind_ == Kind::Array; }
    bool isObject() const { return kind_ == Kind::Object; }
    bool isCell() const { return kind_ == Kind::Cell; }

    std::size_t rows() const;
    std::size_t cols() const;
    std::size_t numel() const { return rows() * cols(); }
    bool isEmpty() const { return numel() == 0; }

    hvArray const& array() const { return *array_; }
    ObjectRef const& object() const { return object_; }
    std::vector<Value> const& elements() const { return elements_; }

    // The script class name: "double", "char", "logical", "uint32", "uint64",
    // "struct", "cell", or the object's class.
    std::string className() const;

    // The value as plain host data; null if it holds an object anywhere.
    hv::ArrayPtr toHvArray() const;
    static Value fromHvArray(hvArray const& array);

private:
    Kind kind_ = Kind::Array;
    std::shared_ptr<hvArray const> array_;
    ObjectRef object_;
    std::size_t rows_ = 0;
    std::size_t cols_ = 0;
    std::vector<Value> elements_;
};

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
