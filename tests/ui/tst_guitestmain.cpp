// The widget-test main gives every UI test a working application offscreen.

#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QPixmap>

#include <gtest/gtest.h>

TEST(GuiTestMain, ProvidesAnOffscreenApplicationThatPaints)
{
    ASSERT_NE(qobject_cast<QApplication *>(QCoreApplication::instance()), nullptr);
    EXPECT_EQ(QGuiApplication::platformName(), QStringLiteral("offscreen"));

    QLabel label(QStringLiteral("<b>not markup</b>"));
    label.setTextFormat(Qt::PlainText);
    label.resize(200, 40);
    const QPixmap pixmap = label.grab();
    EXPECT_EQ(pixmap.size(), QSize(200, 40) * pixmap.devicePixelRatio());
    EXPECT_FALSE(pixmap.toImage().isNull());
}
