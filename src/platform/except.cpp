#include "platform/except.h"

#include "platform/i18n.h"

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
std::u16string IMsgIDException::message() const { return fl::i18n::MessageCatalog::get_message(msgID()); }
std::string messageAsUtf8(IMsgIDException const& e) { return fl::i18n::to_utf8(e.message()); }
}}}  // namespace foundation::core::except
