// GoogleTest main for the web tests: QtWebEngine on Qt's offscreen platform.
// Chromium's sandbox refuses to run as root, so it is turned off there; the
// environment is set here because a CTest ENVIRONMENT property keeps only one
// variable of a discovered test.

#include "TovuTestMainSupport.h"

#include <QApplication>
#include <QtWebEngineQuick/qtwebenginequickglobal.h>

#include <gtest/gtest.h>

#include <unistd.h>

int main(int argc, char **argv)
{
    if (!TovuTestMainSupport::prepare(argc, argv))
        return RUN_ALL_TESTS();
    if (geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // Both front ends are tested: the Qt Quick one needs this before the application.
    QtWebEngineQuick::initialize();
    QApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("tovukit-web-tests"));
    return RUN_ALL_TESTS();
}
