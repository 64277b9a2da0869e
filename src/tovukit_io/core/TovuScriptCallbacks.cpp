#include <tovukit_io/core/TovuScriptCallbacks.h>

namespace {

TovuScriptCallbacks::Invoker &invoker()
{
    static TovuScriptCallbacks::Invoker installed;
    return installed;
}

} // namespace

void TovuScriptCallbacks::setInvoker(Invoker newInvoker)
{
    invoker() = std::move(newInvoker);
}

void TovuScriptCallbacks::call(const QVariant &callback, const QVariantList &arguments)
{
    if (callback.isValid() && invoker())
        invoker()(callback, arguments);
}
