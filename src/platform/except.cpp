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
