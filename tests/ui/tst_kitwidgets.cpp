// The kit's widgets drawn for real (offscreen): boxes, buttons, symbol buttons, the
// chevron, hairlines, emoji, fitted and plain labels.

#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuChevron.h>
#include <tovukit_io/ui/kit/TovuEmoji.h>
#include <tovukit_io/ui/kit/TovuFitLabel.h>
#include <tovukit_io/ui/kit/TovuHairline.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuSymbolButton.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

namespace {

// What QWidget::grab() does, at any device-pixel ratio: children, masks and effects included.
QImage grabAt(QWidget &widget, qreal dpr)
{
    if (dpr == widget.devicePixelRatioF())
        return widget.grab().toImage();
    QPixmap pixmap((QSizeF(widget.size()) * dpr).toSize());
    pixmap.setDevicePixelRatio(dpr);
    pixmap.fill(Qt::transparent);
    widget.render(&pixmap);
    return pixmap.toImage();
}

// The pixel at logical point (x, y).
QColor pixelAt(const QImage &image, qreal x, qreal y)
{
    const qreal dpr = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(x * dpr), static_cast<int>(y * dpr));
}

// Pixels within 10 of `color` in every channel inside the logical rectangle.
int countNear(const QImage &image, const QRectF &logical, const QColor &color)
{
    const qreal dpr = image.devicePixelRatio();
    const QRect area = QRectF(logical.topLeft() * dpr, logical.size() * dpr).toRect().intersected(image.rect());
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor c = image.pixelColor(x, y);
            const int distance = std::max({std::abs(c.red() - color.red()), std::abs(c.green() - color.green()),
                                           std::abs(c.blue() - color.blue()), std::abs(c.alpha() - color.alpha())});
            if (distance <= 10)
                ++count;
        }
    }
    return count;
}

// Widgets under test sit in a container that paints no background of its own, so a grab
// of it shows exactly what its children draw.
struct Stage {
    QWidget window;
    QWidget *container = new QWidget(&window);

    explicit Stage(QSize size = QSize(120, 100))
    {
        container->resize(size);
        container->setAttribute(Qt::WA_NoSystemBackground);
    }
};

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

const QColor red(255, 0, 0);
const QColor green(0, 200, 0);
const QColor blue(0, 0, 255);
const QColor yellow(255, 250, 200);

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
