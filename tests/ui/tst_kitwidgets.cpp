// The kit's widgets drawn for real (offscreen): boxes, buttons, symbol buttons, the
// chevron, hairlines, emoji, fitted and plain labels.

#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include "TovuPixelTesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

namespace {

using namespace TovuPixelTesting;

class PaintCounter : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

// Sets each property, reads it back and waits for the widget to repaint.
void expectRoundTripWithRepaint(QWidget &widget, const std::vector<std::pair<const char *, QVariant>> &values)
{
    widget.resize(120, 60);
    widget.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
    PaintCounter counter;
    widget.installEventFilter(&counter);
    for (const auto &[name, value] : values) {
        SCOPED_TRACE(name);
        const int before = counter.paints;
        ASSERT_TRUE(widget.setProperty(name, value));
        EXPECT_EQ(widget.property(name), value);
        EXPECT_TRUE(QTest::qWaitFor([&] { return counter.paints > before; }, 2000));
    }
}

} // namespace

TEST(TovuBox, PropertiesRoundTripAndRepaint)
{
    TovuBox box;
    EXPECT_EQ(box.backgroundColor(), TovuPlatformColors::color(TovuPlatformColors::Role::systemBackground));
    EXPECT_EQ(box.borderWidth(), 0.0);
    EXPECT_FALSE(box.clipsToBounds());
    expectRoundTripWithRepaint(box,
                               {{"backgroundColor", QColor(Qt::red)},
                                {"borderColor", QColor(Qt::blue)},
                                {"borderWidth", 1.5},
                                {"cornerRadius", 12.0},
                                {"clipsToBounds", true},
                                {"hasShadow", true}});
    box.setBorderWidth(-3);
    EXPECT_EQ(box.borderWidth(), 0.0);
}

TEST(TovuBox, PaintsBackgroundAndBorderInsideAndLeavesCornersTransparent)
{
    Stage stage;
    TovuBox &box = *new TovuBox(stage.container);
    box.resize(80, 60);
    box.setBackgroundColor(red);
    box.setCornerRadius(16);
    for (qreal dpr : {1.0, 2.0}) {
        SCOPED_TRACE(dpr);
        box.setBorderWidth(0);
        QImage image = grabAt(box, dpr);
        ASSERT_EQ(image.size(), QSize(80, 60) * dpr);
        EXPECT_EQ(pixelAt(image, 40, 30), red);
        EXPECT_EQ(pixelAt(image, 8, 8), red); // inside the arc
        EXPECT_EQ(pixelAt(image, 40, 0.5), red); // straight edge reaches the bounds
        EXPECT_EQ(pixelAt(image, 0, 0).alpha(), 0); // outside the arc
        EXPECT_EQ(pixelAt(image, 3, 3).alpha(), 0);
        EXPECT_EQ(pixelAt(image, 77, 57).alpha(), 0);

        box.setBorderColor(blue);
        box.setBorderWidth(4);
        image = grabAt(box, dpr);
        EXPECT_EQ(pixelAt(image, 40, 1), blue);
        EXPECT_EQ(pixelAt(image, 1, 30), blue);
        EXPECT_EQ(pixelAt(image, 40, 6), red);
    }
}

TEST(TovuBox, ClippingHidesChildPixelsInTheCorners)
{
    Stage stage;
    QWidget &container = *stage.container;
    auto *box = new TovuBox(&container);
    box->setGeometry(10, 10, 100, 80);
    box->setCornerRadius(24);
    auto *child = new QWidget(box);
    child->setGeometry(box->rect());
    child->setAutoFillBackground(true);
    QPalette palette = child->palette();
    palette.setColor(QPalette::Window, green);
    child->setPalette(palette);

    for (qreal dpr : {1.0, 2.0}) {
        SCOPED_TRACE(dpr);
        box->setClipsToBounds(false);
        EXPECT_EQ(pixelAt(grabAt(container, dpr), 12, 12), green);
        box->setClipsToBounds(true);
        const QImage image = grabAt(container, dpr);
        EXPECT_EQ(pixelAt(image, 12, 12).alpha(), 0);
        EXPECT_EQ(pixelAt(image, 107, 87).alpha(), 0);
        EXPECT_EQ(pixelAt(image, 60, 50), green);
        EXPECT_EQ(pixelAt(image, 60, 10), green);
    }
    // The theme engine resizes and re-rounds boxes that already clip.
    box->resize(60, 60);
    box->setCornerRadius(30);
    child->setGeometry(box->rect());
    const QImage image = grabAt(container, 1);
    EXPECT_EQ(pixelAt(image, 14, 14).alpha(), 0);
    EXPECT_EQ(pixelAt(image, 40, 40), green);
}

TEST(TovuBox, ShadowFallsBelowTheBoxOutsideItsBounds)
{
    Stage stage(QSize(100, 100));
    QWidget &container = *stage.container;
    container.setAttribute(Qt::WA_NoSystemBackground, false);
    container.setAutoFillBackground(true);
    QPalette palette = container.palette();
    palette.setColor(QPalette::Window, Qt::white);
    container.setPalette(palette);
    auto *box = new TovuBox(&container);
    box->setGeometry(20, 20, 60, 40);
    box->setCornerRadius(12);
    box->setBackgroundColor(red);
    box->setShadowColor(QColor(0, 0, 0, 128));

    EXPECT_EQ(pixelAt(grabAt(container, 1), 50, 63), QColor(Qt::white));
    box->setHasShadow(true);
    for (qreal dpr : {1.0, 2.0}) {
        SCOPED_TRACE(dpr);
        const QImage image = grabAt(container, dpr);
        EXPECT_LT(pixelAt(image, 50, 63).lightness(), 230); // below: offset 4 down
        EXPECT_GT(pixelAt(image, 50, 17).lightness(), // above: lighter than below
                  pixelAt(image, 50, 63).lightness());
        EXPECT_EQ(pixelAt(image, 50, 95), QColor(Qt::white)); // beyond the blur
        EXPECT_EQ(pixelAt(image, 50, 40), red); // the box itself is unchanged
    }
    box->setHasShadow(false);
    EXPECT_EQ(box->graphicsEffect(), nullptr);
    EXPECT_EQ(pixelAt(grabAt(container, 1), 50, 63), QColor(Qt::white));
}

TEST(TovuButton, PropertiesRoundTripAndRepaint)
{
    TovuButton button(QStringLiteral("Next"));
    EXPECT_EQ(button.titleColor(), TovuPlatformColors::color(TovuPlatformColors::Role::label));
    EXPECT_EQ(button.scale(), 1.0);
    EXPECT_EQ(button.opacity(), 1.0);
    EXPECT_EQ(button.tag(), -1);
    expectRoundTripWithRepaint(button,
                               {{"backgroundColor", QColor(Qt::red)},
                                {"borderColor", QColor(Qt::blue)},
                                {"borderWidth", 1.5},
                                {"cornerRadius", 12.0},
                                {"titleColor", QColor(Qt::white)},
                                {"contentInsets", QVariant::fromValue(QMargins(48, 14, 16, 14))},
                                {"accessory", QVariant::fromValue(TovuButton::Accessory::checkbox)},
                                {"accessoryColor", QColor(Qt::green)},
                                {"scale", 0.9},
                                {"opacity", 0.45},
                                {"titleAlignment", QVariant::fromValue(Qt::Alignment(Qt::AlignLeading))}});
}

TEST(TovuButton, ClickEmitsClickedAndTitleIsTheLiteralAccessibleName)
{
    TovuButton button(QStringLiteral("Next \u2192"));
    button.resize(200, 50);
    EXPECT_EQ(button.text(), QStringLiteral("Next \u2192"));
    EXPECT_EQ(button.accessibleName(), button.text());
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(100, 25));
    EXPECT_EQ(clicked.count(), 1);

    // Survey text with "&" stays text: the name keeps it and no shortcut is made of it.
    button.setText(QStringLiteral("Salt & pepper"));
    EXPECT_EQ(button.accessibleName(), QStringLiteral("Salt & pepper"));
    EXPECT_TRUE(button.shortcut().isEmpty());

    button.setAccessibleName(QStringLiteral("Choose salt"));
    button.setText(QStringLiteral("Sugar"));
    EXPECT_EQ(button.accessibleName(), QStringLiteral("Choose salt"));
}

TEST(TovuButton, AccessoryShowsCheckedStateAtTheLeadingEdgeAndMirrorsRightToLeft)
{
    for (auto accessory : {TovuButton::Accessory::radio, TovuButton::Accessory::checkbox}) {
        SCOPED_TRACE(static_cast<int>(accessory));
        Stage stage;
        TovuButton &button = *new TovuButton(QStringLiteral("Option"), stage.container);
        button.resize(240, 52);
        button.setBackgroundColor(yellow);
        button.setTitleColor(yellow); // keep the title out of the counts
        button.setAccessory(accessory);
        button.setAccessoryColor(blue);
        button.setCheckable(true);
        const QRectF leading(10, 10, 40, 32);
        const QRectF trailing(190, 10, 40, 32);
        const qreal area = button.accessorySize() * button.accessorySize();
        for (qreal dpr : {1.0, 2.0}) {
            SCOPED_TRACE(dpr);
            button.setLayoutDirection(Qt::LeftToRight);
            button.setChecked(false);
            QImage image = grabAt(button, dpr);
            EXPECT_EQ(countNear(image, leading, blue), 0);
            EXPECT_GT(countNear(image, leading, TovuPlatformColors::color(TovuPlatformColors::Role::gray3)), 0);

            button.setChecked(true);
            image = grabAt(button, dpr);
            EXPECT_GT(countNear(image, leading, blue), area * dpr * dpr * 0.4);
            EXPECT_GT(countNear(image, leading, Qt::white), 0); // the dot or the tick
            EXPECT_EQ(countNear(image, trailing, blue), 0);

            button.setLayoutDirection(Qt::RightToLeft);
            image = grabAt(button, dpr);
            EXPECT_EQ(countNear(image, leading, blue), 0);
            EXPECT_GT(countNear(image, trailing, blue), area * dpr * dpr * 0.4);
        }
    }
}

class TovuButtonMotion : public testing::Test
{
protected:
    void TearDown() override { TovuMotion::setDurationScale(1); }
};

TEST_F(TovuButtonMotion, PressingNeverScalesAndTapScaleBumpsThenLandsOnExactlyOne)
{
    TovuButton button(QStringLiteral("Submit"));
    button.resize(200, 50);
    QTest::mousePress(&button, Qt::LeftButton, {}, QPoint(100, 25));
    QTest::qWait(50);
    EXPECT_EQ(button.scale(), 1.0);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(100, 25));

    TovuMotion::setDurationScale(4); // slow enough to be seen on a busy machine
    for (qreal to : {1.2, 0.97}) {
        SCOPED_TRACE(to);
        qreal furthest = 1;
        button.tapScale(to, 0.1);
        EXPECT_TRUE(button.isTapScaling());
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                furthest = to > 1 ? std::max(furthest, button.scale()) : std::min(furthest, button.scale());
                return !button.isTapScaling();
            },
            5000));
        EXPECT_NEAR(furthest, to, std::abs(to - 1) * 0.5); // it got most of the way there
        EXPECT_EQ(button.scale(), 1.0);
    }
    EXPECT_EQ(button.graphicsEffect(), nullptr); // the bump's effect is gone again

    // A second tap mid-way starts over from where the scale is; motion off ends at once.
    button.tapScale(1.15, 0.1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return button.scale() > 1.05; }, 5000));
    button.tapScale(1.15, 0.1);
    EXPECT_GT(button.scale(), 1.0);
    TovuMotion::setDurationScale(0);
    button.tapScale(1.2, 0.1);
    EXPECT_FALSE(button.isTapScaling());
    EXPECT_EQ(button.scale(), 1.0);
}

TEST(TovuButton, ScaleDrawsAboutTheCentreAndBeyondTheBoundsWhenLarger)
{
    Stage stage(QSize(100, 100));
    QWidget &container = *stage.container;
    auto *button = new TovuButton(QString(), &container);
    button->setGeometry(30, 30, 40, 40);
    button->setBackgroundColor(red);

    QImage image = grabAt(container, 1);
    EXPECT_EQ(pixelAt(image, 31, 50), red);
    EXPECT_EQ(pixelAt(image, 27, 50).alpha(), 0);

    button->setScale(0.5);
    image = grabAt(container, 1);
    EXPECT_EQ(pixelAt(image, 31, 50).alpha(), 0);
    EXPECT_EQ(pixelAt(image, 50, 50), red);

    button->setScale(1.2);
    for (qreal dpr : {1.0, 2.0}) {
        image = grabAt(container, dpr);
        EXPECT_EQ(pixelAt(image, 27, 50), red);
        EXPECT_EQ(pixelAt(image, 50, 73), red);
        EXPECT_EQ(pixelAt(image, 24, 50).alpha(), 0);
    }
    button->setScale(1);
    EXPECT_EQ(button->graphicsEffect(), nullptr);
    EXPECT_EQ(pixelAt(grabAt(container, 1), 27, 50).alpha(), 0);

    // On screen, shrinking back must also clear what the bump drew outside the bounds.
    stage.window.resize(container.size());
    stage.window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&stage.window));
    auto onScreen = [&] {
        return pixelAt(stage.window.screen()->grabWindow(stage.window.winId()).toImage(), 27, 50);
    };
    button->setScale(1.2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return onScreen() == red; }, 2000));
    button->setScale(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return onScreen() != red; }, 2000));
}

TEST(TovuButton, LongTitlesWrapWhenNarrow)
{
    TovuButton button(QStringLiteral("A rather long answer option that cannot fit on one short line"));
    button.setAccessory(TovuButton::Accessory::radio);
    button.setContentInsets(QMargins(48, 14, 16, 14));
    ASSERT_TRUE(button.hasHeightForWidth());
    ASSERT_TRUE(button.sizePolicy().hasHeightForWidth());
    const int oneLine = button.heightForWidth(2000);
    EXPECT_EQ(oneLine, button.sizeHint().height());
    EXPECT_GE(oneLine, 28 + button.fontMetrics().height());
    EXPECT_GE(button.heightForWidth(160), oneLine + 2 * button.fontMetrics().height());
    EXPECT_LT(button.minimumSizeHint().width(), button.sizeHint().width());

    // The accessory keeps the title clear of the mark even with small insets.
    button.setContentInsets(QMargins(0, 0, 0, 0));
    EXPECT_GE(button.sizeHint().width(), 16 + 20 + button.fontMetrics().horizontalAdvance(button.text()));
}

TEST(TovuLabels, ShowSurveyTextLiterally)
{
    QWidget parent;
    QFont font = QApplication::font();
    font.setPointSize(15);
    QLabel *label = TovuLabels::plain(QStringLiteral("<b>x</b> &amp; y"), font, red, &parent);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->parent(), &parent);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(label->text(), QStringLiteral("<b>x</b> &amp; y"));
    EXPECT_EQ(label->accessibleName(), label->text());
    EXPECT_TRUE(label->wordWrap());
    EXPECT_EQ(label->font(), font);
    EXPECT_EQ(label->palette().color(QPalette::WindowText), red);
    EXPECT_FALSE(label->openExternalLinks());

    TovuLabels::setText(label, QStringLiteral("<i>next</i>"));
    EXPECT_EQ(label->text(), QStringLiteral("<i>next</i>"));
    EXPECT_EQ(label->accessibleName(), QStringLiteral("<i>next</i>"));

    // Without a colour the label keeps following its palette.
    QLabel *inherited = TovuLabels::plain(QStringLiteral("t"), font, QColor(), &parent);
    EXPECT_EQ(inherited->palette().color(QPalette::WindowText), parent.palette().color(QPalette::WindowText));
}

TEST(TovuButton, OpacityFadesAllItPaintsAndHalvesAgainWhenDisabled)
{
    Stage stage(QSize(100, 100));
    auto *button = new TovuButton(QString(), stage.container);
    button->setGeometry(30, 30, 40, 40);
    button->setBackgroundColor(red);
    EXPECT_EQ(pixelAt(grabAt(*stage.container, 2), 50, 50).alpha(), 255);
    button->setOpacity(0.45);
    EXPECT_NEAR(pixelAt(grabAt(*stage.container, 2), 50, 50).alpha(), 115, 3);
    button->setScale(1.2); // painted through the scale effect: still faded
    EXPECT_NEAR(pixelAt(grabAt(*stage.container, 2), 50, 50).alpha(), 115, 3);
    button->setEnabled(false);
    EXPECT_NEAR(pixelAt(grabAt(*stage.container, 2), 50, 50).alpha(), 57, 3);
    button->setOpacity(7);
    EXPECT_EQ(button->opacity(), 1.0);
}
