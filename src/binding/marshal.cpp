#include "binding/marshal.h"

#include <cmath>

#include "binding/package.h"
#include "binding/script_host.h"
#include "binding/script_object.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {
namespace mi {

Value toScript(PPTObject const& object) {
    PPTObjectImpl* impl = object.getImpl();
    if (!impl) return Value();
    if (ScriptObject* existing = ScriptObject::find(*impl)) return scriptHost().existingObject(*existing);
    auto* made = new ScriptObject(object);
    return scriptHost().newObject(made, impl->getFullyQualifiedHobjTypeName());
}

Value toScript(PPTNodeList const& nodes) {
    if (nodes.empty()) return Value();
    std::vector<Value> elements;
    elements.reserve(nodes.size());
    for (auto const& node : nodes) elements.push_back(toScript(node));
    std::size_t n = elements.size();
    return Value::cell(1, n, std::move(elements));
}

Value toScript(u16string const& text) {
    return Value::text(text);
}

Value toScript(std::vector<u16string> const& texts) {
    std::vector<Value> elements;
    for (auto const& text : texts) elements.push_back(Value::text(text));
    std::size_t n = elements.size();
    return Value::cell(1, n, std::move(elements));
}

Value toScript(bool value) {
    return Value::logical(value);
}

Value toScript(std::uint32_t value) {
    return Value::uint32(value);
}

Value toScript(std::uint64_t value) {
    return Value::uint64(value);
}

Value toScript(double value) {
    return Value::number(value);
}

u16string toText(Value const& value, bool anyShape) {
    if (value.isArray() && value.array().classID() == hvClassID::Char) {
        hvArray const& a = value.array();
        bool rowOrEmpty = a.rows() == 1 || (a.rows() == 0 && a.cols() == 0);
        if (rowOrEmpty || anyShape) return a.chars();
    }
    raise<quorix::string_ids::MustBeStringScalarOrCharacterVector>();
}

bool toLogical(Value const& value) {
    if (value.isArray()) {
        hvArray const& a = value.array();
        if (a.classID() == hvClassID::Logical && a.numel() == 1) return a.number(0) != 0;
        if (a.isNumeric() && a.numel() >= 1) {
            double first = a.number(0);
            return std::isnan(first) || first != 0;
        }
    }
    raise<ppt_error::invalidLogicalPropertyValue>();
}

namespace {

PPTObject objectFromRef(ObjectRef const& ref, std::string const& className) {
    switch (ref.state) {
        case ObjectRef::State::Deleted:
            raise<quorix::class_ids::InvalidHandle>();
        case ObjectRef::State::Foreign:
            raise<dom_error::fromQUORIXMarshallingError>(ref.className, className);
        case ObjectRef::State::Unconstructed:
            // A script subclass of ours whose native constructor never ran.
            if (PackageTree::findClass(ref.className) && !PackageTree::isA(ref.className, className))
                raise<dom_error::fromQUORIXMarshallingError>(ref.className, className);
            raise<dom_error::missingImplementationError>(ref.className, className);
        case ObjectRef::State::Live:
            break;
    }
    if (!ScriptObject::isLive(ref.object) || !ref.object->impl()) raise<quorix::class_ids::InvalidHandle>();
    if (!PackageTree::isA(ref.object->impl()->getFullyQualifiedHobjTypeName(), className))
        raise<dom_error::fromQUORIXMarshallingError>(ref.className, className);
    return ref.object->proxy();
}

}  // namespace

PPTObject toObject(Value const& value, std::string const& className) {
    if (value.numel() == 0) raise<ppt_error::emptyPPTObjArrayError>(className);
    if (value.numel() > 1) raise<ppt_error::nonscalarPPTObjArrayError>(className);
    // Collections reach script code as cell arrays, so a cell of one object
    // is one object.
    Value const& one = value.isCell() ? value.elements().front() : value;
    if (one.isCell()) return toObject(one, className);
    if (!one.isObject()) raise<dom_error::fromQUORIXMarshallingError>(one.className(), className);
    return objectFromRef(one.object(), className);
}

PPTObject selfObject(Value const& self, std::string const& className) {
    if (!self.isObject()) raise<dom_error::fromQUORIXMarshallingError>(self.className(), className);
    return objectFromRef(self.object(), className);
}

bool sameObject(Value const& a, Value const& b) {
    if (!a.isObject() || !b.isObject()) return false;
    ObjectRef const& x = a.object();
    ObjectRef const& y = b.object();
    if (x.state != ObjectRef::State::Live || y.state != ObjectRef::State::Live) return false;
    if (!ScriptObject::isLive(x.object) || !ScriptObject::isLive(y.object)) return false;
    return x.object->impl() && x.object->impl() == y.object->impl();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
