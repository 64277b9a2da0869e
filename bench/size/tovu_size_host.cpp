// A host app as small as it gets, built twice per front end: bare, and asking
// TovuKit for a survey. The difference of the two stripped programs is what the
// library adds to a host's download.

#ifdef TOVU_SIZE_WIDGETS
#include <QApplication>
#include <QWidget>
#else
#include <QGuiApplication>
#include <QQuickWindow>
#endif

#ifdef TOVU_SIZE_WITH_LIBRARY
#include <tovukit_io/core/TovuNativeSurveyManager.h>
#endif

int main(int argc, char **argv)
{
#ifdef TOVU_SIZE_WIDGETS
    QApplication application(argc, argv);
    QWidget window;
#else
    QGuiApplication application(argc, argv);
    QQuickWindow window;
#endif
    window.show();
#ifdef TOVU_SIZE_WITH_LIBRARY
    TovuNativeSurveyManager &manager = TovuNativeSurveyManager::shared();
    manager.configure("tovu-demo-key", TovuCollectorId{"collector-customer-satisfaction"}, "eu");
    manager.fetchAndPresentSurvey(&window);
#endif
    return QCoreApplication::exec();
}
