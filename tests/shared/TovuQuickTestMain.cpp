// GoogleTest main for Qt Quick tests: a QGuiApplication, never a QApplication, as
// in a QML app, on the offscreen platform with Qt Quick's software renderer, and
// every animation of the library finished at once.

#include "TovuTestMainSupport.h"

#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    if (!TovuTestMainSupport::prepare(argc, argv))
        return RUN_ALL_TESTS();
    QGuiApplication application(argc, argv);
    TovuMotion::setDurationScale(0);
    return RUN_ALL_TESTS();
}
