#include "binding/host_content.h"

#include <cmath>
#include <cstdio>
#include <limits>

#include <boost/make_shared.hpp>

#include "binding/package.h"
#include "binding/script_object.h"
#include "nodes/text.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {

// A script object as content. It holds its own handle, so the native object
// stays alive as long as the content does, whatever script code does meanwhile.
class ScriptObjectContent : public ObjectContent {
public:
    ScriptObjectContent(ObjectRef const& ref, PPTObjectImpl* impl, u16string display)
        : ObjectContent(std::move(display)), mClassName(ref.className) {
        if (impl) mObject = boost::make_shared<PPTObject>(impl);
    }

    hobj::factory::full::Wrappable* getNative() const override {
        return mObject ? mObject->getImpl() : nullptr;
    }

    bool isA(char const* className) const override {
        // A live object answers by its native class, which a script subclass
        // of ours derives from even where the package tree doesn't know it.
        if (mObject) return PackageTree::isA(mObject->getImpl()->getFullyQualifiedHobjTypeName(), className);
        return PackageTree::isA(mClassName, className);
    }

private:
    std::string mClassName;
    boost::shared_ptr<PPTObject> mObject;
};

PPTObjectImpl* liveImpl(ObjectRef const& ref) {
    if (ref.state != ObjectRef::State::Live || !ScriptObject::isLive(ref.object)) return nullptr;
    return ref.object->impl();
}

// What a table shows for an object that isn't taken as it is: a run's text,
// else the class name.
u16string objectDisplay(ObjectRef const& ref, PPTObjectImpl* impl) {
    if (auto* text = dynamic_cast<TextImpl*>(impl)) return text->getTextContent();
    return toString(ref.className);
}

HvContentPtr objectContent(ObjectRef const& ref) {
    PPTObjectImpl* impl = liveImpl(ref);
    return boost::make_shared<ScriptObjectContent>(ref, impl, objectDisplay(ref, impl));
}

bool isWhole(double x) {
    return std::isfinite(x) && x == std::floor(x);
}

u16string elementText(hvArray const& a, std::size_t i) {
    if (a.classID() == hvClassID::UInt64) return num2str(static_cast<unsigned long>(a.integer(i)));
    return shortNumberText(a.number(i));
}

HvContentPtr numberContent(hvArray const& a, std::size_t i) {
    if (a.classID() == hvClassID::Logical) return boost::make_shared<BooleanContent>(a.number(i) != 0);
    double const x = a.number(i);
    bool const fitsInt = isWhole(x) && x >= std::numeric_limits<std::int32_t>::min() &&
                         x <= std::numeric_limits<std::int32_t>::max();
    if (fitsInt && a.classID() != hvClassID::UInt64)
        return boost::make_shared<IntegerContent>(static_cast<std::int32_t>(x));
    return boost::make_shared<DataContent>(hv_type::DisplayNumber, elementText(a, i));
}

// "[1 2;3 4]": rows apart by semicolons, as Octave writes a matrix.
u16string matrixText(hvArray const& a) {
    u16string text = u"[";
    for (std::size_t r = 0; r < a.rows(); ++r) {
        if (r) text += u';';
        for (std::size_t c = 0; c < a.cols(); ++c) {
            if (c) text += u' ';
            text += elementText(a, c * a.rows() + r);
        }
    }
    return text + u"]";
}

// Row `r` of a character matrix without the blanks that pad it.
u16string charRow(hvArray const& a, std::size_t r) {
    u16string row;
    row.reserve(a.cols());
    for (std::size_t c = 0; c < a.cols(); ++c) row += a.chars()[c * a.rows() + r];
    row.erase(row.find_last_not_of(u' ') + 1);
    return row;
}

HvContentPtr arrayContent(hvArray const& a) {
    if (a.classID() == hvClassID::Char) {
        if (a.rows() <= 1) return boost::make_shared<StringContent>(a.chars());
        u16string text;
        for (std::size_t r = 0; r < a.rows(); ++r) text += (r ? u" " : u"") + charRow(a, r);
        return boost::make_shared<DataContent>(hv_type::DisplayText, text);
    }
    if (a.isEmpty() || a.classID() == hvClassID::Struct || a.classID() == hvClassID::Cell) return nullptr;
    if (a.numel() == 1) return numberContent(a, 0);
    return boost::make_shared<DataContent>(hv_type::DisplayNumber, matrixText(a));
}

// The field names as headers over one column each, the elements as rows. A
// header row of real header cells, rather than a first body row, lets the
// table style mark it as the header and keeps it apart from the data.
boost::shared_ptr<HvTable> structTable(hvArray const& s) {
    HvQUORIXTable::HeadersSpan headers;
    for (std::string const& name : s.fieldNames()) headers.emplace_back(toString(name), 1u);
    auto table = boost::make_shared<HvQUORIXTable>(s.numel(), headers.size(), headers);
    for (std::size_t row = 0; row < s.numel(); ++row)
        for (std::size_t col = 0; col < headers.size(); ++col)
            if (hvArray const* field = s.field(row, s.fieldNames()[col]))
                table->setCell(row, col, arrayContent(*field));
    return table;
}

boost::shared_ptr<HvTable> arrayTable(hvArray const& a) {
    if (a.classID() == hvClassID::Struct) return structTable(a);
    if (a.classID() == hvClassID::Char) {
        if (a.isEmpty()) return boost::make_shared<HvTable>(0, 0, hv_type::String);
        auto table = boost::make_shared<HvTable>(a.rows(), 1, hv_type::String);
        if (a.rows() == 1)
            table->setCell(0, 0, boost::make_shared<StringContent>(a.chars()));
        else
            for (std::size_t r = 0; r < a.rows(); ++r)
                table->setCell(r, 0, boost::make_shared<StringContent>(charRow(a, r)));
        return table;
    }
    int const kind = a.classID() == hvClassID::Logical ? hv_type::Boolean : hv_type::Double;
    auto table = boost::make_shared<HvTable>(a.rows(), a.cols(), kind);
    for (std::size_t r = 0; r < a.rows(); ++r)
        for (std::size_t c = 0; c < a.cols(); ++c) table->setCell(r, c, numberContent(a, c * a.rows() + r));
    return table;
}

}  // namespace

u16string shortNumberText(double x) {
    if (std::isnan(x)) return u"NaN";
    if (std::isinf(x)) return x < 0 ? u"-Inf" : u"Inf";
    int magnitude = x == 0 ? 0 : static_cast<int>(std::floor(std::log10(std::fabs(x))));
    char buffer[512];
    if (x == std::floor(x) && magnitude <= 15) {
        std::snprintf(buffer, sizeof buffer, "%.0f", x);
    } else {
        // At least five significant digits, at most sixteen.
        int const digits = std::min(std::max(magnitude + 5, 5), 16);
        std::snprintf(buffer, sizeof buffer, "%.*g", digits, x);
    }
    return toString(std::string(buffer));
}

HvContentPtr toContent(Value const& value) {
    switch (value.kind()) {
        case Value::Kind::Cell:
            return boost::make_shared<ListContent>(toHvList(value));
        case Value::Kind::Object:
            return objectContent(value.object());
        case Value::Kind::Array:
            return arrayContent(value.array());
    }
    return nullptr;
}

boost::shared_ptr<HvTable> toHvTable(Value const& value) {
    switch (value.kind()) {
        case Value::Kind::Cell: {
            auto table = boost::make_shared<HvTable>(value.rows(), value.cols(), hv_type::List);
            for (std::size_t r = 0; r < value.rows(); ++r)
                for (std::size_t c = 0; c < value.cols(); ++c)
                    table->setCell(r, c, toContent(value.elements()[c * value.rows() + r]));
            return table;
        }
        case Value::Kind::Object: {
            if (value.object().state == ObjectRef::State::Foreign) return nullptr;
            auto table = boost::make_shared<HvTable>(1, 1, hv_type::Object);
            table->setCell(0, 0, objectContent(value.object()));
            return table;
        }
        case Value::Kind::Array:
            return arrayTable(value.array());
    }
    return nullptr;
}

boost::shared_ptr<HvList> toHvList(Value const& value) {
    std::vector<HvContentPtr> items;
    if (value.isObject()) {
        items.push_back(objectContent(value.object()));
    } else if (value.isCell()) {
        items.reserve(value.elements().size());
        for (Value const& element : value.elements()) items.push_back(toContent(element));
    } else {
        return nullptr;
    }
    return boost::make_shared<HvList>(std::move(items));
}

bool isHostTable(Value const& value) {
    return value.isArray() && value.array().classID() == hvClassID::Struct;
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
