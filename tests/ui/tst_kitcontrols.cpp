// The kit's interactive pieces under real events (offscreen): text inputs, the equal-width
// row, the sideways scroll strip and the shake.

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuEqualWidthLayout.h>
#include <tovukit_io/ui/kit/TovuScrollStrip.h>
#include <tovukit_io/ui/kit/TovuShake.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/ui/kit/TovuTextField.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpontaneKeyEvent>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace {

using Role = TovuPlatformColors::Role;

QColor platform(Role role, bool dark = false)
{
    return TovuPlatformColors::color(role, dark);
}

// Pixels of a 2x grab within 24 of `color` in every channel.
int pixelsNear(QWidget &widget, const QColor &color)
{
    QPixmap pixmap(widget.size() * 2);
    pixmap.setDevicePixelRatio(2);
    pixmap.fill(Qt::transparent);
    widget.render(&pixmap);
    const QImage image = pixmap.toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.alpha() > 230 && std::abs(c.red() - color.red()) <= 24 && std::abs(c.green() - color.green()) <= 24
                && std::abs(c.blue() - color.blue()) <= 24)
                ++count;
        }
    }
    return count;
}

QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x1C, 0x1C, 0x1E));
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Base, QColor(0x2C, 0x2C, 0x2E));
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}

void sendWheel(QWidget *target, QPoint angleDelta, Qt::KeyboardModifiers modifiers = {})
{
    const QPointF position(10, 10);
    QWheelEvent event(position, target->mapToGlobal(position), QPoint(), angleDelta, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    // As from the window system: only such wheel events travel up to the parents.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(target, &event);
}

class KitControls : public testing::Test
{
protected:
    void TearDown() override
    {
        TovuMotion::setDurationScale(1);
        QApplication::setPalette(QPalette());
    }
};

// One test body for both inputs: they differ in height and resting border only.
template<class Input>
void checkFocusBlurAndTyping(int height, qreal restingWidth)
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *input = new Input(&window);
    auto *other = new QLineEdit(&window);
    layout->addWidget(input);
    layout->addWidget(other);
    window.resize(300, 200);
    TovuMotion::setDurationScale(0); // the input may take the window's first focus: no animation yet
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    other->setFocus();

    EXPECT_EQ(input->height(), height);
    EXPECT_EQ(input->currentBorderColor(), platform(Role::gray4));
    EXPECT_EQ(input->currentBorderWidth(), restingWidth);
    input->setHasError(true);
    EXPECT_EQ(input->currentBorderColor(), platform(Role::red));
    EXPECT_GT(pixelsNear(*input, platform(Role::red)), 100); // the frame is painted

    QSignalSpy focused(input, &Input::focused);
    QSignalSpy blurred(input, &Input::blurred);
    input->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(focused.count(), 1);
    EXPECT_FALSE(input->hasError());
    EXPECT_EQ(input->currentBorderColor(), platform(Role::blue));
    EXPECT_EQ(input->currentBorderWidth(), 2.0);
    EXPECT_GT(pixelsNear(*input, platform(Role::blue)), 100);
    other->setFocus();
    EXPECT_EQ(blurred.count(), 1);
    EXPECT_EQ(input->currentBorderColor(), platform(Role::gray4));
    EXPECT_EQ(input->currentBorderWidth(), restingWidth);

    // With motion the border travels to the focused look over a while.
    TovuMotion::setDurationScale(4);
    input->setFocusBorderColor(Qt::green);
    input->setFocus(Qt::MouseFocusReason);
    bool between = false;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            between |= input->currentBorderWidth() > restingWidth && input->currentBorderWidth() < 2;
            return input->currentBorderWidth() == 2.0;
        },
        5000));
    EXPECT_TRUE(between);
    EXPECT_EQ(input->currentBorderColor(), QColor(Qt::green));

    // Typed text is kept exactly; Tab moves on.
    const QString typed = QStringLiteral("  Salt & <b>pepper</b>  ");
    QTest::keyClicks(input, typed);
    QTest::keyClick(input, Qt::Key_Tab);
    EXPECT_TRUE(other->hasFocus());
    if constexpr (std::is_same_v<Input, TovuTextArea>) {
        EXPECT_EQ(input->toPlainText(), typed);
    } else {
        EXPECT_EQ(input->text(), typed);
    }
}

// Text colour is the platform label; after a switch to dark it is white on black.
template<class Input>
void checkFollowsDarkAppearance()
{
    QWidget window;
    auto *input = new Input(&window);
    input->resize(240, input->height());
    QFont font = QApplication::font();
    font.setPixelSize(28);
    input->setFont(font);
    input->setPlaceholderText(QStringLiteral("Placeholder"));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_EQ(input->palette().color(QPalette::PlaceholderText), platform(Role::secondaryLabel));
    QTest::keyClicks(input, QStringLiteral("WWWW"));
    const int lightText = pixelsNear(*input, Qt::black);
    const int lightBackground = pixelsNear(*input, Qt::white);
    EXPECT_GT(lightText, 500);
    EXPECT_GT(lightBackground, lightText * 4);

    QApplication::setPalette(darkPalette());
    QApplication::processEvents();
    EXPECT_EQ(input->palette().color(QPalette::Text), platform(Role::label, true));
    EXPECT_EQ(input->palette().color(QPalette::PlaceholderText), platform(Role::secondaryLabel, true));
    EXPECT_NEAR(pixelsNear(*input, Qt::white), lightText, lightText / 10); // the text, now white
    EXPECT_NEAR(pixelsNear(*input, Qt::black), lightBackground, lightBackground / 10);
}

} // namespace

TEST_F(KitControls, TextFieldFocusBlurErrorAndTyping)
{
    checkFocusBlurAndTyping<TovuTextField>(48, 1.5);
}

TEST_F(KitControls, TextAreaFocusBlurErrorAndTyping)
{
    checkFocusBlurAndTyping<TovuTextArea>(90, 1.0);
}

TEST_F(KitControls, TextInputsFollowASwitchToDark)
{
    {
        SCOPED_TRACE("field");
        checkFollowsDarkAppearance<TovuTextField>();
    }
    QApplication::setPalette(QPalette());
    {
        SCOPED_TRACE("area");
        checkFollowsDarkAppearance<TovuTextArea>();
    }
}

TEST_F(KitControls, EqualWidthRowSplitsExactlyIgnoresMinimumsNestsAndMirrors)
{
    QWidget row;
    auto *layout = new TovuEqualWidthLayout(&row);
    layout->setSpacing(4);
    QList<TovuButton *> buttons;
    for (int score = 0; score <= 9; ++score) {
        auto *button = new TovuButton(QString::number(score));
        button->setFixedHeight(40);
        buttons.append(button);
        layout->addWidget(button);
    }
    // The eleventh item: a button above a caption.
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    auto *last = new TovuButton(QStringLiteral("10"));
    last->setFixedHeight(40);
    auto *caption = new QLabel(QStringLiteral("Very likely"));
    column->addWidget(last);
    column->addWidget(caption);
    layout->addLayout(column);

    EXPECT_LE(layout->minimumSize().width(), 4 * 10 + 11);
    const int rowHeight = layout->hasHeightForWidth() ? layout->heightForWidth(310) : layout->sizeHint().height();
    EXPECT_EQ(rowHeight, column->sizeHint().height());
    row.resize(310, rowHeight);
    layout->activate();

    buttons.append(last);
    int total = 0;
    for (int i = 0; i < buttons.size(); ++i) {
        const QRect cell = buttons.at(i)->geometry();
        SCOPED_TRACE(i);
        EXPECT_GE(cell.width(), 24);
        EXPECT_LE(cell.width(), 25);
        total += cell.width();
        if (i > 0) {
            EXPECT_EQ(cell.left(), buttons.at(i - 1)->geometry().right() + 1 + 4);
        }
        if (i < 10) {
            EXPECT_EQ(cell.top(), (rowHeight - 40) / 2); // centred in the taller row
        }
    }
    EXPECT_EQ(total + 10 * 4, 310);
    EXPECT_EQ(buttons.constFirst()->geometry().left(), 0);
    EXPECT_EQ(last->geometry().right(), 309);
    EXPECT_EQ(caption->geometry().left(), last->geometry().left());
    EXPECT_EQ(caption->geometry().width(), last->geometry().width());

    row.setLayoutDirection(Qt::RightToLeft);
    layout->activate();
    EXPECT_EQ(buttons.constFirst()->geometry().right(), 309);
    EXPECT_EQ(last->geometry().left(), 0);
}

TEST_F(KitControls, ScrollStripScrollsSidewaysByWheelAndDragAndLeavesTheRestAlone)
{
    // A sheet that scrolls vertically, with the strip near its top.
    QScrollArea sheet;
    auto *page = new QWidget;
    auto *pageLayout = new QVBoxLayout(page);
    auto *strip = new TovuScrollStrip;
    strip->setFixedHeight(44);
    auto *content = new QWidget;
    auto *buttonsLayout = new QHBoxLayout(content);
    buttonsLayout->setContentsMargins(0, 0, 0, 0);
    QList<TovuButton *> buttons;
    for (int i = 0; i < 10; ++i) {
        auto *button = new TovuButton(QString::number(i));
        button->setFixedWidth(60);
        buttons.append(button);
        buttonsLayout->addWidget(button);
    }
    strip->setWidget(content);
    pageLayout->addWidget(strip);
    pageLayout->addSpacing(1000);
    sheet.setWidget(page);
    sheet.setWidgetResizable(true);
    sheet.resize(220, 300);
    sheet.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&sheet));
    QScrollBar *across = strip->horizontalScrollBar();
    QScrollBar *down = sheet.verticalScrollBar();
    EXPECT_EQ(content->height(), 44);
    EXPECT_GT(across->maximum(), 300);
    EXPECT_FALSE(across->isVisible());

    sendWheel(strip->viewport(), QPoint(-120, 0));
    EXPECT_GT(across->value(), 0);
    across->setValue(0);
    sendWheel(strip->viewport(), QPoint(0, -120), Qt::ShiftModifier);
    EXPECT_GT(across->value(), 0);
    across->setValue(0);
    sendWheel(strip->viewport(), QPoint(0, -120));
    EXPECT_EQ(across->value(), 0);
    EXPECT_GT(down->value(), 0); // the sheet scrolled instead
    down->setValue(0);

    // A drag that starts on a button scrolls and does not click it.
    TovuButton *pressed = buttons.at(1);
    QSignalSpy clicked(pressed, &QAbstractButton::clicked);
    const QPoint start(30, 22);
    QTest::mousePress(pressed, Qt::LeftButton, {}, start);
    EXPECT_TRUE(pressed->isDown());
    // The mouse moves over the screen; the button moves under it as the strip scrolls.
    const QPoint globalStart = pressed->mapToGlobal(start);
    for (int dx = 10; dx <= 50; dx += 10)
        QTest::mouseMove(pressed, pressed->mapFromGlobal(globalStart - QPoint(dx, 0)));
    EXPECT_EQ(across->value(), 50);
    EXPECT_FALSE(pressed->isDown());
    QTest::mouseRelease(pressed, Qt::LeftButton, {}, pressed->mapFromGlobal(strip->mapToGlobal(QPoint(5, 22))));
    EXPECT_EQ(clicked.count(), 0);

    // A plain click still clicks.
    TovuButton *tapped = buttons.at(2);
    QSignalSpy tappedSpy(tapped, &QAbstractButton::clicked);
    QTest::mouseClick(tapped, Qt::LeftButton, {}, QPoint(30, 22));
    EXPECT_EQ(tappedSpy.count(), 1);

    // Narrow content is stretched to the strip's width.
    auto *few = new QWidget;
    auto *fewLayout = new QHBoxLayout(few);
    fewLayout->addWidget(new TovuButton(QStringLiteral("A")));
    strip->setWidget(few);
    QApplication::processEvents();
    EXPECT_EQ(few->width(), strip->viewport()->width());
}

TEST_F(KitControls, ShakeMovesOnlyThePaintingSixPointsLeftAndBack)
{
    QWidget window;
    window.resize(200, 60);
    auto *label = new QLabel(QStringLiteral("Please select an option."), &window);
    label->setGeometry(40, 10, 120, 30);
    label->setAutoFillBackground(true);
    QPalette palette = label->palette();
    palette.setColor(QPalette::Window, Qt::red);
    label->setPalette(palette);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));

    const QRect geometry = label->geometry();
    TovuMotion::setDurationScale(4); // slow enough to be seen on a busy machine
    TovuShake::shake(label);
    qreal furthest = 0;
    bool paintedLeftOfItself = false;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            const qreal offset = TovuShake::offset(label);
            furthest = std::min(furthest, offset);
            EXPECT_EQ(label->geometry(), geometry);
            if (offset < -4 && !paintedLeftOfItself)
                paintedLeftOfItself = window.grab().toImage().pixelColor(36, 25).red() > 200;
            return offset == 0 && label->graphicsEffect() == nullptr;
        },
        5000));
    EXPECT_NEAR(furthest, -6, 1);
    EXPECT_TRUE(paintedLeftOfItself);

    // Shaking again mid-way starts over and still ends at rest.
    TovuShake::shake(label);
    QTest::qWait(40);
    TovuShake::shake(label);
    EXPECT_TRUE(QTest::qWaitFor([&] { return label->graphicsEffect() == nullptr; }, 5000));
    EXPECT_EQ(TovuShake::offset(label), 0.0);

    // Someone else's effect, a null widget and motion off are left alone.
    auto *fade = new QGraphicsOpacityEffect;
    label->setGraphicsEffect(fade);
    TovuShake::shake(label);
    EXPECT_EQ(label->graphicsEffect(), fade);
    EXPECT_EQ(TovuShake::offset(label), 0.0);
    TovuShake::shake(nullptr);
    EXPECT_EQ(TovuShake::offset(nullptr), 0.0);
    label->setGraphicsEffect(nullptr);
    TovuMotion::setDurationScale(0);
    TovuShake::shake(label);
    EXPECT_EQ(label->graphicsEffect(), nullptr);
}
