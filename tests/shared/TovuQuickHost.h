#pragma once

// A phone-sized QML host window for Qt Quick tests: it counts the taps and keys
// that reach it, and its own focused item ("hostField") holds the focus before
// a sheet goes up.

#include <QByteArray>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTest>

namespace TovuQuickHost {

/// Loads the host into `engine`, with `members` (QML properties and functions)
/// added to its window, and waits until it is shown and active; null on failure.
inline QQuickWindow *load(QQmlApplicationEngine &engine, QByteArrayView members = {})
{
    const QByteArray qml = QByteArrayLiteral(R"QML(
import QtQuick
import TovuKit

Window {
    id: window
    width: 390; height: 844; visible: true
    property int hostTaps: 0
    property int hostKeys: 0

    Item {
        objectName: "hostField"
        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        Keys.onPressed: window.hostKeys++
        MouseArea { anchors.fill: parent; onClicked: window.hostTaps++ }
    }
)QML") + QByteArray(members.data(), members.size())
        + QByteArrayLiteral("\n}\n");
    engine.loadData(qml);
    auto *window
        = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(engine.rootObjects().first());
    if (!window)
        return nullptr;
    window->requestActivate();
    return QTest::qWaitForWindowActive(window) ? window : nullptr;
}

} // namespace TovuQuickHost
