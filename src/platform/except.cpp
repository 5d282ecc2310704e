#include "platform/except.h"

namespace resource_core {
std::string BaseMsgID::identifier() const {
    return std::string(catalog_) + ":" + id_;
}
}  // namespace resource_core

namespace matrix { namespace detail {
namespace {
HvErrorReporter& reporter() {
    static HvErrorReporter r = nullptr;
    return r;
}
}  // namespace
void setHvErrorReporter(HvErrorReporter r) { reporter() = r; }
void do_legacy_hv_error(foundation::core::except::IMsgIDException const& e) {
    if (reporter()) reporter()(e);
}
}}  // namespace matrix::detail

namespace foundation { namespace core { namespace except {
// Until the catalogue knows texts, the identifier stands for the message.
std::u16string IMsgIDException::message() const {
    auto id = identifier();
    return std::u16string(id.begin(), id.end());
}
std::string messageAsUtf8(IMsgIDException const& e) { return e.identifier(); }
}}}  // namespace foundation::core::except
