// Exceptions that carry a message id: a catalogue, an id within it and the
// arguments that fill the catalogue's text. Script code sees the identifier
// "<catalogue>:<id>" and the filled-in text.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>
#include <vector>

#include <boost/variant.hpp>

namespace resource_core {

// One argument of a message: an integer, 8-bit (UTF-8) text or UTF-16 text.
using MsgArgument = boost::variant<std::int64_t, std::string, std::u16string>;

// A catalogue id with its arguments, ready to be looked up.
class BaseMsgID {
public:
    BaseMsgID(char const* catalog, char const* id, std::vector<MsgArgument> args = {})
        : catalog_(catalog), id_(id), args_(std::move(args)) {}

    char const* catalog() const { return catalog_; }
    char const* id() const { return id_; }
    std::vector<MsgArgument> const& arguments() const { return args_; }

    // "<catalogue>:<id>", as script code sees it.
    std::string identifier() const;

private:
    char const* catalog_;
    char const* id_;
    std::vector<MsgArgument> args_;
};

namespace detail {
inline void collect(std::vector<MsgArgument>&) {}
template <class T, class... Rest>
void collect(std::vector<MsgArgument>& out, T&& first, Rest&&... rest);

inline MsgArgument toArgument(std::u16string s) { return MsgArgument(std::move(s)); }
inline MsgArgument toArgument(char16_t const* s) { return MsgArgument(std::u16string(s)); }
inline MsgArgument toArgument(std::string s) { return MsgArgument(std::move(s)); }
inline MsgArgument toArgument(char const* s) { return MsgArgument(std::string(s)); }
template <class I, class = std::enable_if_t<std::is_integral<I>::value>>
MsgArgument toArgument(I value) { return MsgArgument(static_cast<std::int64_t>(value)); }

template <class T, class... Rest>
void collect(std::vector<MsgArgument>& out, T&& first, Rest&&... rest) {
    out.push_back(toArgument(std::forward<T>(first)));
    collect(out, std::forward<Rest>(rest)...);
}
}  // namespace detail

// makeMsgID<deckforge::ppt_error::invalidLayoutName>(name)
template <class Id, class... Args>
BaseMsgID makeMsgID(Args&&... args) {
    static_assert(sizeof...(Args) == Id::argCount, "wrong number of message arguments");
    std::vector<MsgArgument> list;
    detail::collect(list, std::forward<Args>(args)...);
    return BaseMsgID(Id::catalog(), Id::name(), std::move(list));
}

}  // namespace resource_core

namespace foundation { namespace core { namespace except {

// What every message-id exception offers, whatever its id.
class IMsgIDException {
public:
    virtual ~IMsgIDException() = default;
    virtual resource_core::BaseMsgID const& msgID() const = 0;

    char const* catalog() const { return msgID().catalog(); }
    char const* id() const { return msgID().id(); }
    std::vector<resource_core::MsgArgument> const& arguments() const { return msgID().arguments(); }
    std::string identifier() const { return msgID().identifier(); }
    // The catalogue text with the arguments filled in.
    std::u16string message() const;
};

// One class per message id: Exception<deckforge::ppt_error::invalidLayoutName>.
template <class Id, class Base = std::exception, class Extra = void>
class Exception : public Base, public IMsgIDException {
public:
    explicit Exception(resource_core::BaseMsgID msgId) : msgId_(std::move(msgId)) {}
    template <class... Args>
    static Exception make(Args&&... args) {
        return Exception(resource_core::makeMsgID<Id>(std::forward<Args>(args)...));
    }

    resource_core::BaseMsgID const& msgID() const override { return msgId_; }
    char const* what() const noexcept override {
        if (what_.empty()) {
            try {
                what_ = identifier() + ": " + utf8Message();
            } catch (...) {
                return Id::name();
            }
        }
        return what_.c_str();
    }

private:
    std::string utf8Message() const;
    resource_core::BaseMsgID msgId_;
    mutable std::string what_;
};

std::string messageAsUtf8(IMsgIDException const& e);

template <class Id, class Base, class Extra>
std::string Exception<Id, Base, Extra>::utf8Message() const {
    return messageAsUtf8(*this);
}

}}}  // namespace foundation::core::except

namespace matrix { namespace detail {
// Hands an exception to the host before it is thrown. The binding installs a
// reporter; without one this does nothing.
void do_legacy_hv_error(foundation::core::except::IMsgIDException const& e);
using HvErrorReporter = void (*)(foundation::core::except::IMsgIDException const&);
void setHvErrorReporter(HvErrorReporter reporter);
}}  // namespace matrix::detail

namespace deckforge {

// Raise a message id: report it to the host, then throw.
//   raise<ppt_error::invalidLayoutName>(name);
template <class Id, class... Args>
[[noreturn]] void raise(Args&&... args) {
    auto e = foundation::core::except::Exception<Id>::make(std::forward<Args>(args)...);
    matrix::detail::do_legacy_hv_error(e);
    throw e;
}

}  // namespace deckforge
