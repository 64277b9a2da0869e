// A Qt Quick host's first use of the installed web path: it links
// tovukit::tovukit_web and imports TovuKit.Web with the engine's default import
// paths, registering nothing itself. The wrapper must find its own content too.

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QtWebEngineQuick/qtwebenginequickglobal.h>

#include <iostream>
#include <memory>

#include <unistd.h>

int main(int argc, char **argv)
{
    // No display here; Chromium's sandbox refuses to run as root.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QtWebEngineQuick::initialize();
    QGuiApplication application(argc, argv);

    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(QByteArrayLiteral(R"QML(
        import QtQuick
        import TovuKit.Web
        Item { TovuSwiftUIWrapper { objectName: "survey" } }
    )QML"),
                      QUrl(QStringLiteral("qrc:/host/Main.qml")));
    std::unique_ptr<QObject> root(component.create());
    if (!root) {
        std::cerr << "consumer: " << component.errorString().toStdString() << '\n';
        return 1;
    }
    const auto *survey = root->findChild<QQuickItem *>(QStringLiteral("survey"));
    if (!survey || !survey->findChild<QQuickItem *>(QStringLiteral("closeButton"))) {
        std::cerr << "consumer: the survey has no content\n";
        return 1;
    }
    std::cout << "consumer: TovuKit.Web\n";
    return 0;
}
