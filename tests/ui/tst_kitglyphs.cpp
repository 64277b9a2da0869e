// The kit's glyph widgets drawn for real (offscreen): symbol buttons, the chevron,
// hairlines, colour emoji and labels that shrink to fit.

#include <tovukit_io/graphics/TovuEmoji.h>
#include <tovukit_io/ui/kit/TovuChevron.h>
#include <tovukit_io/ui/kit/TovuFitLabel.h>
#include <tovukit_io/ui/kit/TovuHairline.h>
#include <tovukit_io/ui/kit/TovuSymbolButton.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include "TovuPixelTesting.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

using namespace TovuPixelTesting;

TEST(TovuSymbolButton, DrawsItsSymbolCentredAtItsPointSizeInItsTint)
{
    Stage stage;
    auto &button = *new TovuSymbolButton(QStringLiteral("square.fill"), stage.container);
    button.resize(60, 60);
    EXPECT_EQ(button.sizeHint(), QSize(32, 32));
    EXPECT_EQ(button.symbolTint(), TovuPlatformColors::color(TovuPlatformColors::Role::gray3));
    button.setSymbolTint(blue);
    for (qreal dpr : {1.0, 2.0}) {
        SCOPED_TRACE(dpr);
        button.setSymbolPointSize(32);
        QImage image = grabAt(button, dpr);
        EXPECT_EQ(pixelAt(image, 30, 30), blue);
        EXPECT_GT(countNear(image, QRectF(14, 14, 32, 32), blue), 32 * 32 * dpr * dpr * 0.7);
        EXPECT_EQ(countNear(image, QRectF(0, 0, 60, 60), blue), countNear(image, QRectF(14, 14, 32, 32), blue));
        EXPECT_EQ(pixelAt(image, 5, 5).alpha(), 0); // no background or border by default

        button.setSymbolPointSize(20);
        image = grabAt(button, dpr);
        EXPECT_EQ(pixelAt(image, 30, 30), blue);
        EXPECT_EQ(pixelAt(image, 17, 30).alpha(), 0);
    }
    button.setSymbolName(QStringLiteral("no.such.symbol"));
    EXPECT_EQ(countNear(grabAt(button, 1), QRectF(0, 0, 60, 60), blue), 0);
}

class TovuChevronTest : public testing::Test
{
protected:
    void TearDown() override { TovuMotion::setDurationScale(1); }

    // Whether the chevron paints at (x, y) of itself.
    static bool inkAt(TovuChevron &chevron, qreal x, qreal y)
    {
        return pixelAt(grabAt(chevron, 2), x, y).alpha() > 128;
    }
};

TEST_F(TovuChevronTest, SitsAtTheTrailingEdgeOfItsParentAndLetsClicksThrough)
{
    TovuButton selector(QStringLiteral("Select an option"));
    selector.resize(300, 52);
    auto *chevron = new TovuChevron(&selector);
    selector.show(); // a hidden widget's resizes are only delivered when it shows
    // The 13-point glyph sits in the middle of the widget.
    auto glyph = [&] {
        const QPointF centre = QRectF(chevron->geometry()).center();
        return QRectF(centre - QPointF(6.5, 6.5), QSizeF(13, 13));
    };
    EXPECT_DOUBLE_EQ(glyph().right(), 300 - 16);
    EXPECT_NEAR(glyph().center().y(), 26, 0.5);
    selector.resize(200, 80);
    EXPECT_DOUBLE_EQ(glyph().right(), 200 - 16);
    EXPECT_NEAR(glyph().center().y(), 40, 0.5);
    selector.setLayoutDirection(Qt::RightToLeft);
    EXPECT_DOUBLE_EQ(glyph().left(), 16);
    chevron->setTrailingInset(24);
    EXPECT_DOUBLE_EQ(glyph().left(), 24);

    EXPECT_EQ(selector.childAt(glyph().center().toPoint()), nullptr); // the selector takes the click
    EXPECT_EQ(chevron->tint(), TovuPlatformColors::color(TovuPlatformColors::Role::gray2));
    chevron->setTag(99);
    EXPECT_EQ(chevron->tag(), 99);
}

TEST_F(TovuChevronTest, TurnsHalfWayRoundWhenExpandedAndBack)
{
    TovuChevron chevron;
    chevron.setTint(blue);
    const QPointF centre = QRectF(chevron.rect()).center();
    // The point of the "V" is below the centre; turned, it is above.
    const QPointF tip = centre + QPointF(0, 2.8);
    const QPointF turnedTip = centre - QPointF(0, 2.8);
    EXPECT_TRUE(inkAt(chevron, tip.x(), tip.y()));
    EXPECT_FALSE(inkAt(chevron, turnedTip.x(), turnedTip.y()));

    TovuMotion::setDurationScale(0);
    chevron.setExpanded(true);
    EXPECT_TRUE(chevron.isExpanded());
    EXPECT_EQ(chevron.rotation(), 180.0);
    EXPECT_FALSE(inkAt(chevron, tip.x(), tip.y()));
    EXPECT_TRUE(inkAt(chevron, turnedTip.x(), turnedTip.y()));

    TovuMotion::setDurationScale(4);
    chevron.setExpanded(false);
    bool between = false;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            between |= chevron.rotation() > 0 && chevron.rotation() < 180;
            return chevron.rotation() == 0.0;
        },
        5000));
    EXPECT_TRUE(between);
}

TEST(TovuHairline, IsOneDevicePixelAtTwiceAndFollowsThePlatformGray)
{
    Stage stage;
    auto &line = *new TovuHairline(stage.container);
    EXPECT_EQ(line.height(), 1);
    EXPECT_EQ(line.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(line.color(), TovuPlatformColors::color(TovuPlatformColors::Role::gray5));
    line.resize(100, line.height());
    line.setColor(red);
    QImage image = grabAt(line, 2);
    ASSERT_EQ(image.height(), 2);
    EXPECT_EQ(image.pixelColor(50, 0), red);
    EXPECT_EQ(image.pixelColor(50, 1).alpha(), 0);

    line.setThickness(1.5);
    EXPECT_EQ(line.height(), 2);
    line.resize(100, line.height());
    image = grabAt(line, 2);
    EXPECT_EQ(image.pixelColor(50, 2), red);
    EXPECT_EQ(image.pixelColor(50, 3).alpha(), 0);
}

TEST(TovuEmoji, PutsTheColourFontFirstSoFacesDrawInColour)
{
    const QFont font = TovuEmoji::font(40);
    ASSERT_FALSE(font.families().isEmpty());
    EXPECT_EQ(font.families().constFirst(), QStringLiteral("Noto Color Emoji"));
    EXPECT_GE(font.families().size(), 2); // the system family after it
    EXPECT_EQ(font.pixelSize(), 40);
    QFont base = QApplication::font();
    base.setPixelSize(20);
    base.setWeight(QFont::Bold);
    const QFont twice = TovuEmoji::withEmoji(TovuEmoji::withEmoji(base));
    EXPECT_EQ(twice.families().count(QStringLiteral("Noto Color Emoji")), 1);
    EXPECT_EQ(twice.pixelSize(), 20);
    EXPECT_EQ(twice.weight(), QFont::Bold);

    // An outline face is only black; the colour face is mostly saturated yellow.
    QLabel face(QString::fromUtf8("\xF0\x9F\x98\x9E"));
    face.setFont(font);
    face.resize(80, 80);
    const QImage image = face.grab().toImage();
    int yellow = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.alpha() > 200 && c.hsvSaturation() > 150 && c.value() > 150 && c.hsvHue() >= 35 && c.hsvHue() <= 60)
                ++yellow;
        }
    }
    EXPECT_GT(yellow, 200);
}

TEST(TovuFitLabel, ShrinksLongTextToItsWidthBeforeEliding)
{
    const QString text = QStringLiteral("Extremely <b>satisfied</b>");
    TovuFitLabel label(text);
    QFont font = QApplication::font();
    font.setPixelSize(20);
    label.setFont(font);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.accessibleName(), text);
    const int natural = QFontMetrics(font).horizontalAdvance(text);
    EXPECT_LT(label.sizeHint().width(), natural / 3);

    // The columns the text's ink covers, in logical pixels.
    auto ink = [&] {
        const QImage image = grabAt(label, 2);
        int left = image.width(), right = -1;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).alpha() > 60) {
                    left = std::min(left, x);
                    right = std::max(right, x);
                }
            }
        }
        return std::pair{left / 2.0, (right + 1) / 2.0};
    };

    label.resize(natural + 20, 30);
    EXPECT_EQ(label.fittedFont().pixelSize(), 20);

    label.resize(natural * 7 / 10, 30);
    const QFont fitted = label.fittedFont();
    EXPECT_LT(fitted.pixelSize(), 20);
    EXPECT_GE(fitted.pixelSize(), 10);
    EXPECT_LE(QFontMetrics(fitted).horizontalAdvance(text), label.width());
    const auto [left, right] = ink();
    EXPECT_GE(left, 0);
    EXPECT_LE(right, label.width());
    EXPECT_GT(right - left, label.width() * 0.8); // all of it, centred, nearly filling the width

    // Below the smallest scale the text is elided at that scale.
    label.resize(natural / 4, 30);
    EXPECT_EQ(label.fittedFont().pixelSize(), 10);
    const auto [elidedLeft, elidedRight] = ink();
    EXPECT_GE(elidedLeft, 0);
    EXPECT_LE(elidedRight, label.width());
}
