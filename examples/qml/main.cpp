// A Qt Quick host of both ways to show a survey: the native sheet from
// `import TovuKit` (linking tovukit::tovukit_quick is all it takes) and the web
// survey from `import TovuKit.Web` (tovukit::tovukit_web), embedded, full screen
// or by fewest responses.
//
//   tovu-devserver --port 8787 &
//   tovu-qml-example http://127.0.0.1:8787 [survey-id ...]

#include <tovukit_io/network/TovuNetworkService.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QStringList>
#include <QUrl>
#include <QtWebEngineQuick/qtwebenginequickglobal.h>

int main(int argc, char **argv)
{
    // QtWebEngine must be set up before the application object.
    QtWebEngineQuick::initialize();
    QGuiApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("tovu-qml-example"));

    QStringList arguments = application.arguments().mid(1);
    const QString backend = arguments.isEmpty() ? QStringLiteral("http://127.0.0.1:8787") : arguments.takeFirst();
    if (arguments.isEmpty())
        arguments = {QStringLiteral("03ce355f-163d-420a-9980-f630e7af337c")};
    // Every call goes to the local backend, the native survey's and the response count.
    TovuNetworkService::shared().setBaseURLOverride(backend.toStdString());

    QQmlApplicationEngine engine;
    engine.rootContext()->setContextProperty(QStringLiteral("backend"), backend);
    engine.rootContext()->setContextProperty(QStringLiteral("surveyIds"), arguments);
    engine.load(QUrl::fromLocalFile(QStringLiteral(TOVU_QML_EXAMPLE_DIR "/Main.qml")));
    if (engine.rootObjects().isEmpty())
        return 1;
    return application.exec();
}
