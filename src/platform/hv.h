// A small stand-in for the host's values: matrices of doubles, logicals,
// unsigned integers and UTF-16 characters, cell arrays and structs, all
// rows x cols and stored column-major. The free functions follow the host's
// C interface: hvCreate* hand out arrays that the caller frees with
// hvDestroyArray, hvSet* take ownership of the value given, hvGet* lend.
// Calls into script code and warnings go to a pluggable hv::Host, which the
// binding implements over the real host.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/except.h"

enum class hvClassID { Double, Logical, Char, Cell, Struct, UInt32, UInt64 };

class hvArray {
public:
    // Zero-filled (empty text, empty cells) array of the kind.
    hvArray(hvClassID classID, std::size_t rows, std::size_t cols);
    // A character array holding `text` column-major; rows * cols must equal its length.
    static hvArray text(std::u16string text, std::size_t rows, std::size_t cols);

    hvClassID classID() const { return classID_; }
    std::size_t rows() const { return rows_; }
    std::size_t cols() const { return cols_; }
    std::size_t numel() const { return rows_ * cols_; }
    bool isEmpty() const { return numel() == 0; }
    bool isNumeric() const;  // Double, UInt32, UInt64

    // Element i of a numeric, logical or char array as a double (a character as
    // its code unit); 0 for cells and structs. Throws std::out_of_range.
    double number(std::size_t i) const;
    std::uint64_t integer(std::size_t i) const;
    // Converts to the array's kind: logical is value != 0 (NaN is true),
    // unsigned kinds saturate and drop the fraction.
    void setNumber(std::size_t i, double value);
    void setInteger(std::size_t i, std::uint64_t value);

    // All characters of a char array, column-major; empty for other kinds.
    std::u16string const& chars() const { return text_; }

    // Cell element i.
    hvArray const& cell(std::size_t i) const { return elements_.at(i); }
    void setCell(std::size_t i, hvArray value);

    // What the kinds above lose of the host's value, where the host's glue
    // keeps it: its own class ("uint8", "single", ...; empty when the kind
    // tells it) and the extent of its dimensions past the second (3 for an
    // RGB image), which `cols` counts in.
    std::string const& hostClass() const { return hostClass_; }
    std::size_t pages() const { return pages_; }
    void setHostShape(std::string hostClass, std::size_t pages) {
        hostClass_ = std::move(hostClass);
        pages_ = pages;
    }

    std::vector<std::string> const& fieldNames() const { return fieldNames_; }
    // Field `name` of element i, or null when there is no such field.
    hvArray const* field(std::size_t i, std::string const& name) const;
    // Adds the field to every element if it is new.
    void setField(std::size_t i, std::string const& name, hvArray value);

private:
    int fieldIndex(std::string const& name) const;

    hvClassID classID_;
    std::size_t rows_;
    std::size_t cols_;
    std::vector<double> numbers_;          // Double, Logical
    std::vector<std::uint64_t> integers_;  // UInt32, UInt64
    std::u16string text_;                  // Char
    std::vector<hvArray> elements_;        // Cell: numel; Struct: numel * fields, element-major
    std::vector<std::string> fieldNames_;  // Struct
    std::string hostClass_;
    std::size_t pages_ = 1;
};

hvArray* hvCreateString(char const* utf8);
hvArray* hvCreateString_UTF16(std::u16string const& text);
hvArray* hvCreateDoubleScalar(double value);
hvArray* hvCreateDoubleMatrix(std::size_t rows, std::size_t cols);
hvArray* hvCreateLogicalScalar(bool value);
// Double, Logical, UInt32 or UInt64, zero-filled.
hvArray* hvCreateNumericMatrix(std::size_t rows, std::size_t cols, hvClassID classID);
hvArray* hvCreateCellMatrix(std::size_t rows, std::size_t cols);
hvArray* hvCreateStructMatrix(std::size_t rows, std::size_t cols, std::vector<std::string> const& fieldNames);
void hvDestroyArray(hvArray* array);

// Take ownership of `value` (null stores an empty double array).
void hvSetCell(hvArray* cell, std::size_t index, hvArray* value);
void hvSetField(hvArray* structArray, std::size_t index, char const* name, hvArray* value);
// Borrowed from the container; null when out of range or absent.
hvArray const* hvGetCell(hvArray const* cell, std::size_t index);
hvArray const* hvGetField(hvArray const* structArray, std::size_t index, char const* name);

bool hvIsEmpty(hvArray const* array);
std::size_t hvGetNumberOfElements(hvArray const* array);
hvClassID hvGetClassID(hvArray const* array);
// The first element as a double; 0 for null, empty, cell and struct arrays.
double hvGetScalar(hvArray const* array);
// The characters of a char array; empty for anything else.
std::u16string hvGetString(hvArray const* array);

// Calls the script function `fn`. Returns 0 on success, when plhs[0..nlhs)
// hold new arrays (or null for results the function didn't give) that the
// caller destroys. Errors raised by the script function propagate as
// exceptions.
int hvCallHost(char const* fn, int nlhs, hvArray* plhs[], int nrhs, hvArray* prhs[]);
// Shows a warning with the message id to script code.
void hvWarningMsgId(resource_core::BaseMsgID const& id);

namespace hv {

struct Deleter {
    void operator()(hvArray* array) const { hvDestroyArray(array); }
};
using ArrayPtr = std::unique_ptr<hvArray, Deleter>;

// The host behind hvCallHost and hvWarningMsgId.
class Host {
public:
    virtual ~Host() = default;
    // False when the function can't be called; on success `results` holds up
    // to nlhs values.
    virtual bool call(std::string const& fn, std::vector<hvArray const*> const& args, int nlhs,
                      std::vector<std::unique_ptr<hvArray>>& results) = 0;
    virtual void warning(resource_core::BaseMsgID const& id) = 0;
};

// Installs a host and returns the previous one; null restores the default,
// which fails every call and ignores warnings.
std::shared_ptr<Host> setHost(std::shared_ptr<Host> host);
Host& host();

}  // namespace hv
