// GoogleTest main for the web tests: QtWebEngine on Qt's offscreen platform.
// Chromium's sandbox refuses to run as root, so it is turned off there; the
// environment is set here because a CTest ENVIRONMENT property keeps only one
// variable of a discovered test.

#include <QApplication>
#include <QStandardPaths>
#include <QtWebEngineQuick/qtwebenginequickglobal.h>

#include <gtest/gtest.h>

#include <cstring>
#include <unistd.h>

namespace {

bool onlyListsTests(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--gtest_list_tests") == 0)
            return true;
    }
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (onlyListsTests(argc, argv))
        return RUN_ALL_TESTS();

    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QStandardPaths::setTestModeEnabled(true);
    // Both front ends are tested: the Qt Quick one needs this before the application.
    QtWebEngineQuick::initialize();
    QApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("tovukit-web-tests"));
    return RUN_ALL_TESTS();
}
