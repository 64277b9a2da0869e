// GoogleTest main for tests that need widgets. Runs on Qt's offscreen platform
// unless the environment asks for another, so no display is needed.

#include <QApplication>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <cstring>

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
    // Test discovery runs at build time and needs no application at all.
    if (onlyListsTests(argc, argv))
        return RUN_ALL_TESTS();

    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Stores and caches go to a test folder, never the user's own.
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
