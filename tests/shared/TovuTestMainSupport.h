#pragma once

// The start every GoogleTest main with a Qt application shares.

#include <QStandardPaths>
#include <QtGlobal>

#include <gtest/gtest.h>

#include <cstring>

namespace TovuTestMainSupport {

inline bool onlyListsTests(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--gtest_list_tests") == 0)
            return true;
    }
    return false;
}

/// Readies GoogleTest and the process for tests with an application: Qt's
/// offscreen platform unless the environment asks for another, and stores and
/// caches in a test folder, never the user's own. False when the run only
/// lists the tests: test discovery runs at build time and needs no application.
inline bool prepare(int &argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (onlyListsTests(argc, argv))
        return false;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt Quick scenes draw without a GPU, as on a board with none.
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    QStandardPaths::setTestModeEnabled(true);
    return true;
}

} // namespace TovuTestMainSupport
