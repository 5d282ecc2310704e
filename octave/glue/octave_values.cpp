#include "octave_values.h"

#include <new>
#include <unordered_map>
#include <utility>

#include <octave/Cell.h>
#include <octave/cdef-class.h>
#include <octave/cdef-object.h>
#include <octave/cdef-utils.h>
#include <octave/oct-map.h>
#include <octave/ov-classdef.h>
#include <octave/parse.h>

#include "binding/script_object.h"
#include "platform/i18n.h"

namespace deckforge {
namespace octave_glue {

using ppt::mi::ObjectRef;
using ppt::mi::ScriptObject;
using ppt::mi::Value;

namespace {

// Octave's arrays may have more than two dimensions; the library sees rows
// by the rest.
void shape(octave_value const& v, std::size_t& rows, std::size_t& cols) {
    dim_vector d = v.dims();
    rows = d.ndims() > 0 ? static_cast<std::size_t>(d(0)) : 0;
    std::size_t n = static_cast<std::size_t>(v.numel());
    cols = rows ? n / rows : (d.ndims() > 1 ? static_cast<std::size_t>(d(1)) : 0);
}

// The extent of the dimensions past the second.
std::size_t pages(octave_value const& v) {
    dim_vector const d = v.dims();
    std::size_t n = 1;
    for (int k = 2; k < d.ndims(); ++k) n *= static_cast<std::size_t>(d(k));
    return n;
}

hvArray charsFromOctave(octave_value const& v) {
    std::size_t rows, cols;
    shape(v, rows, cols);
    charMatrix m = v.char_matrix_value();
    if (rows == 1) {
        std::u16string text = fl::i18n::to_string(std::string(m.row_as_string(0, false)));
        return hvArray::text(text, 1, text.size());
    }
    // Several rows: decode each; if they end up of unequal length (multi-byte
    // characters), fall back to one character per byte.
    std::vector<std::u16string> lines;
    bool even = true;
    for (std::size_t r = 0; r < rows; ++r) {
        lines.push_back(fl::i18n::to_string(std::string(m.row_as_string(r, false))));
        if (lines.back().size() != cols) even = false;
    }
    std::u16string columnMajor(rows * cols, u' ');
    for (std::size_t r = 0; r < rows; ++r)
        for (std::size_t c = 0; c < cols; ++c)
            columnMajor[c * rows + r] = even ? lines[r][c] : static_cast<unsigned char>(m(r, c));
    return hvArray::text(columnMajor, rows, cols);
}

// The name of an object's class. Octave reads it out of the class's meta
// data, through a map and a cell, each time; every object that crosses
// needs it, and scripts use few classes. The classes are held, so that a
// key is never reused.
std::string const& classNameOf(octave::cdef_object const& obj) {
    static auto* names = new std::unordered_map<void const*, std::pair<octave::cdef_class, std::string>>();
    octave::cdef_class cls = obj.get_class();
    void const* key = static_cast<octave::cdef_object const&>(cls).get_rep();
    auto it = names->find(key);
    if (it == names->end()) it = names->emplace(key, std::make_pair(cls, cls.get_name())).first;
    return it->second.second;
}

ObjectRef refFromClassdef(octave_value const& v) {
    ObjectRef ref;
    octave::cdef_object obj = v.classdef_object_value()->get_object();
    ref.className = obj.is_array() || obj.is_meta_object() ? v.class_name() : classNameOf(obj);
    ref.state = ObjectRef::State::Foreign;
    if (obj.is_array() || obj.is_meta_object()) return ref;
    octave_value ptr = obj.get(kNativeProperty);
    if (ptr.is_undefined()) return ref;
    std::uint64_t p = ptr.uint64_scalar_value().value();
    if (p == 0) {
        ref.state = ObjectRef::State::Unconstructed;
        return ref;
    }
    auto* object = reinterpret_cast<ScriptObject*>(static_cast<std::uintptr_t>(p));
    void* identity = repOf(obj);
    // A pointer from a loaded file or from another object is not trusted.
    bool attached = p != kDeletedPointer && ScriptObject::isLive(object);
    if (attached) {
        auto const& hosts = object->hostObjects();
        attached = std::find(hosts.begin(), hosts.end(), identity) != hosts.end();
    }
    if (!attached || !object->impl()) {
        ref.state = ObjectRef::State::Deleted;
        return ref;
    }
    ref.state = ObjectRef::State::Live;
    ref.object = object;
    ref.hostValue = std::make_shared<octave_value>(v);
    return ref;
}

// A field of an object read through its class's own indexing, as `object.name`.
octave_value indexField(octave_value const& object, char const* name) {
    octave_scalar_map index;
    index.assign("type", ".");
    index.assign("subs", name);
    return octave::feval("subsref", ovl(object, index), 1)(0);
}

// A dataframe (of the dataframe package) crosses as the struct array of its
// rows, a field for each column in order: the library shows a struct array
// as a table with the field names as headers. Its `cell` form has the column
// names, types and row names around the values, which end it.
hvArray dataframeRows(octave_value const& frame) {
    Matrix size = octave::feval("size", ovl(frame), 1)(0).matrix_value();
    std::size_t const rows = size.numel() > 0 ? static_cast<std::size_t>(size(0)) : 0;
    std::size_t const cols = size.numel() > 1 ? static_cast<std::size_t>(size(1)) : 0;
    hvArray records(hvClassID::Struct, rows, 1);
    if (rows == 0 || cols == 0) return records;
    Array<std::string> names = indexField(frame, "colnames").cellstr_value();
    Cell all = indexField(frame, "cell").cell_value();
    std::size_t const top = static_cast<std::size_t>(all.rows()) - rows;
    std::size_t const left = static_cast<std::size_t>(all.columns()) - cols;
    for (std::size_t c = 0; c < cols && c < static_cast<std::size_t>(names.numel()); ++c) {
        // The package keeps its column names as a padded character matrix.
        std::string name = names(c);
        name.erase(name.find_last_not_of(' ') + 1);
        for (std::size_t r = 0; r < rows; ++r)
            records.setField(r, name, hvFromOctave(all(top + r, left + c)));
    }
    return records;
}

}  // namespace

void* objectIdentity(octave_value const& object) {
    if (!object.is_classdef_object()) return nullptr;
    octave::cdef_object obj = object.classdef_object_value()->get_object();
    return repOf(obj);
}

octave_value objectFromIdentity(void* identity) {
    auto* rep = static_cast<octave::cdef_object_rep*>(identity);
    // cdef_object's constructor from a rep borrows without counting, and its
    // destructor gives a count back. Borrow into storage that is never
    // destroyed, then copy, which counts: one net reference for the result.
    alignas(octave::cdef_object) static thread_local unsigned char storage[sizeof(octave::cdef_object)];
    auto* borrowed = new (storage) octave::cdef_object(rep);
    octave::cdef_object counted(*borrowed);
    return octave::to_ov(counted);
}

Value fromOctave(octave_value const& v) {
    if (v.is_classdef_object()) return Value(refFromClassdef(v));
    if (v.iscell()) {
        Cell c = v.cell_value();
        std::size_t rows, cols;
        shape(v, rows, cols);
        std::vector<Value> elements;
        elements.reserve(c.numel());
        for (octave_idx_type i = 0; i < c.numel(); ++i) elements.push_back(fromOctave(c(i)));
        return Value::cell(rows, cols, std::move(elements));
    }
    if (v.isobject() && v.class_name() == "dataframe") return Value(dataframeRows(v));
    if (v.isobject() || v.is_function_handle() || v.is_inline_function()) {
        ObjectRef ref;
        ref.className = v.class_name();
        return Value(ref);
    }
    return Value(hvFromOctave(v));
}

octave_value toOctave(Value const& value) {
    switch (value.kind()) {
        case Value::Kind::Array:
            return hvToOctave(value.array());
        case Value::Kind::Object: {
            ObjectRef const& ref = value.object();
            if (ref.hostValue) return *std::static_pointer_cast<octave_value>(ref.hostValue);
            if (ref.state == ObjectRef::State::Live && ScriptObject::isLive(ref.object) &&
                ref.object->primaryHostObject())
                return objectFromIdentity(ref.object->primaryHostObject());
            return octave_value(Matrix());
        }
        case Value::Kind::Cell: {
            Cell c(dim_vector(value.rows(), value.cols()));
            for (std::size_t i = 0; i < value.elements().size(); ++i) c(i) = toOctave(value.elements()[i]);
            return octave_value(c);
        }
    }
    return octave_value(Matrix());
}

hvArray hvFromOctave(octave_value const& v) {
    std::size_t rows, cols;
    shape(v, rows, cols);
    if (v.is_char_matrix() || v.is_string()) return charsFromOctave(v);
    if (v.iscell()) {
        hvArray a(hvClassID::Cell, rows, cols);
        Cell c = v.cell_value();
        for (octave_idx_type i = 0; i < c.numel(); ++i) a.setCell(i, hvFromOctave(c(i)));
        return a;
    }
    if (v.isstruct()) {
        octave_map m = v.map_value();
        hvArray a(hvClassID::Struct, rows, cols);
        string_vector keys = m.fieldnames();
        for (octave_idx_type k = 0; k < keys.numel(); ++k) {
            Cell values = m.contents(keys(k));
            for (octave_idx_type i = 0; i < values.numel(); ++i)
                a.setField(i, keys(k), hvFromOctave(values(i)));
        }
        return a;
    }
    if (v.is_uint32_type()) {
        hvArray a(hvClassID::UInt32, rows, cols);
        uint32NDArray n = v.uint32_array_value();
        for (octave_idx_type i = 0; i < n.numel(); ++i) a.setInteger(i, n(i).value());
        return a;
    }
    if (v.is_uint64_type()) {
        hvArray a(hvClassID::UInt64, rows, cols);
        uint64NDArray n = v.uint64_array_value();
        for (octave_idx_type i = 0; i < n.numel(); ++i) a.setInteger(i, n(i).value());
        return a;
    }
    if (v.islogical()) {
        hvArray a(hvClassID::Logical, rows, cols);
        boolNDArray b = v.bool_array_value();
        for (octave_idx_type i = 0; i < b.numel(); ++i) a.setNumber(i, b(i) ? 1 : 0);
        a.setHostShape({}, pages(v));
        return a;
    }
    if (v.isnumeric()) {
        hvArray a(hvClassID::Double, rows, cols);
        NDArray d = v.array_value(true);
        for (octave_idx_type i = 0; i < d.numel(); ++i) a.setNumber(i, d(i));
        // An image's class tells its scale (uint8 up to 255, double up to 1).
        a.setHostShape(v.is_double_type() ? std::string() : v.class_name(), pages(v));
        return a;
    }
    // Function handles, objects and the like have no plain form.
    return hvArray(hvClassID::Double, 0, 0);
}

octave_value hvToOctave(hvArray const& a) {
    dim_vector dims(a.rows(), a.cols());
    switch (a.classID()) {
        case hvClassID::Double: {
            NDArray d(dims);
            for (std::size_t i = 0; i < a.numel(); ++i) d(i) = a.number(i);
            return octave_value(d);
        }
        case hvClassID::Logical: {
            boolNDArray b(dims);
            for (std::size_t i = 0; i < a.numel(); ++i) b(i) = a.number(i) != 0;
            return octave_value(b);
        }
        case hvClassID::UInt32: {
            uint32NDArray n(dims);
            for (std::size_t i = 0; i < a.numel(); ++i) n(i) = octave_uint32(a.integer(i));
            return octave_value(n);
        }
        case hvClassID::UInt64: {
            uint64NDArray n(dims);
            for (std::size_t i = 0; i < a.numel(); ++i) n(i) = octave_uint64(a.integer(i));
            return octave_value(n);
        }
        case hvClassID::Char: {
            if (a.rows() <= 1) return octave_value(fl::i18n::to_utf8(a.chars()));
            string_vector lines(a.rows());
            for (std::size_t r = 0; r < a.rows(); ++r) {
                std::u16string line;
                for (std::size_t c = 0; c < a.cols(); ++c) line += a.chars()[c * a.rows() + r];
                lines(r) = fl::i18n::to_utf8(line);
            }
            return octave_value(lines);
        }
        case hvClassID::Cell: {
            Cell c(dims);
            for (std::size_t i = 0; i < a.numel(); ++i) c(i) = hvToOctave(a.cell(i));
            return octave_value(c);
        }
        case hvClassID::Struct: {
            octave_map m(dims);
            for (auto const& name : a.fieldNames()) {
                Cell values(dims);
                for (std::size_t i = 0; i < a.numel(); ++i)
                    if (hvArray const* f = a.field(i, name)) values(i) = hvToOctave(*f);
                m.assign(name, values);
            }
            return octave_value(m);
        }
    }
    return octave_value(Matrix());
}

}  // namespace octave_glue
}  // namespace deckforge
