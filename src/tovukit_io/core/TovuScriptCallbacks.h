#pragma once

#include <QVariant>
#include <QVariantList>

#include <functional>

/// Calls a callback a script handed to the manager (a JavaScript function from
/// QML arrives as a QVariant). The manager knows no script engine: the front end
/// that brings one (the Qt Quick module) installs the invoker.
class TovuScriptCallbacks
{
public:
    using Invoker = std::function<void(const QVariant &callback, const QVariantList &arguments)>;

    /// Replaces the invoker; an empty one leaves callbacks uncalled.
    static void setInvoker(Invoker invoker);
    /// Calls `callback` with `arguments`, if it is callable and an invoker is installed.
    static void call(const QVariant &callback, const QVariantList &arguments);

    TovuScriptCallbacks() = delete;
};
