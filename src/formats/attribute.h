// Optional values: what a getter returns when a format or setting may be
// absent. Script code sees an unset attribute as an empty array. Used with
// bool, unsigned int, u16string, Dimension and PPTObject.
#pragma once

#include <optional>

namespace deckforge {
namespace ppt {

class Attribute {
public:
    virtual ~Attribute() = default;
    virtual bool hasValue() const = 0;
    virtual void unsetValue() = 0;
    virtual bool isSet() const = 0;
};

template <class T>
class BaseAttribute : public Attribute {
public:
    BaseAttribute() = default;
    explicit BaseAttribute(T const& value) : mValue(value) {}

    bool hasValue() const override { return mValue.has_value(); }
    // Destroys the value, so an unset PPTObject holds no reference.
    void unsetValue() override { mValue.reset(); }
    bool isSet() const override { return mValue.has_value(); }
    virtual void setValue(T const& value) {
        if (mValue)
            *mValue = value;
        else
            mValue.emplace(value);
    }

    // Only while set.
    T const& getValue() const { return *mValue; }

private:
    std::optional<T> mValue;
};

}  // namespace ppt
}  // namespace deckforge
