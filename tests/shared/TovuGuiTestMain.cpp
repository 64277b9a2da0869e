// GoogleTest main for tests that need widgets. Runs on Qt's offscreen platform
// unless the environment asks for another, so no display is needed.

#include "TovuTestMainSupport.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    if (!TovuTestMainSupport::prepare(argc, argv))
        return RUN_ALL_TESTS();
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
