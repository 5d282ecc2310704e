#include "platform/hobj.h"

namespace hobj {

COSInterface::~COSInterface() = default;

namespace factory {
namespace basic {

void BindingRegistry::bind(full::Wrappable& impl, COSInterface* scriptObject) {
    impl.mScriptObject = scriptObject;
}

COSInterface* BindingRegistry::lookup(full::Wrappable const& impl) {
    return impl.mScriptObject;
}

void BindingRegistry::remove(full::Wrappable& impl) {
    impl.mScriptObject = nullptr;
}

void BindingRegistry::retract(full::Wrappable* impl) noexcept {
    if (!impl || !impl->mScriptObject) return;
    COSInterface* scriptObject = impl->mScriptObject;
    impl->mScriptObject = nullptr;
    scriptObject->retracted();
}

}  // namespace basic
}  // namespace factory
}  // namespace hobj
