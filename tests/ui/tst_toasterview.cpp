// The bottom sheet: dimming, panel layout over a host, content swaps, skip and
// dismissal, the 92 % limit, keyboard tracking, the host's input while the sheet
// is up, and colours across a palette switch.

#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuThankYouView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

class ToasterView : public testing::Test
{
protected:
    void SetUp() override
    {
        TovuMotion::setDurationScale(0);
        host.resize(390, 844);
        host.show();
    }
    void TearDown() override { TovuMotion::setDurationScale(1); }

    static QWidget *page(int height)
    {
        auto *widget = new QWidget;
        widget->setFixedHeight(height);
        return widget;
    }

    TovuSurvey surveyWithTransparency(float transparency)
    {
        return TovuSurvey{.id = "s", .name = "n", .theme = TovuTheme{.transparency = transparency}};
    }

    // Makes the host the active window, so focus and key events behave as for a user.
    void activateHost()
    {
        host.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    }

    QWidget host;
};

// Counts the mouse events that reach the object it watches.
class MouseCounter : public QObject
{
public:
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease
            || type == QEvent::MouseButtonDblClick)
            ++count;
        return false;
    }
};

} // namespace

TEST_F(ToasterView, DimmingFollowsTheSurveyTransparency)
{
    EXPECT_EQ(TovuToasterView(std::nullopt).dimmingAlpha(), 0.5);
    EXPECT_EQ(TovuToasterView(TovuSurvey{.id = "s", .name = "n"}).dimmingAlpha(), 0.5);
    EXPECT_EQ(TovuToasterView(TovuSurvey{.id = "s", .name = "n", .theme = TovuTheme{}}).dimmingAlpha(), 0.5);
    EXPECT_FLOAT_EQ(static_cast<float>(TovuToasterView(surveyWithTransparency(0.2f)).dimmingAlpha()), 0.2f);

    auto *sheet = new TovuToasterView(surveyWithTransparency(0.2f));
    sheet->present(&host);
    const QImage image = host.grab().toImage();
    const QColor dimmed = image.pixelColor(10, 10); // the host's background under 20 % black
    EXPECT_NEAR(dimmed.redF(), static_cast<double>(host.palette().color(QPalette::Window).redF()) * 0.8, 0.01);
    sheet->dismiss();
}

TEST_F(ToasterView, PresentCoversTheHostAndPlacesThePanel)
{
    auto *sheet = new TovuToasterView(std::nullopt);
    sheet->setQuestionView(page(200));
    sheet->present(&host);
    EXPECT_EQ(sheet->parentWidget(), &host);
    EXPECT_EQ(sheet->geometry(), host.rect());
    EXPECT_EQ(sheet->panelTranslation(), 0.0);

    const QRect panel = sheet->containerView()->geometry();
    EXPECT_EQ(panel.bottom(), host.rect().bottom()); // on the bottom edge
    EXPECT_EQ(panel.width(), 390);
    EXPECT_EQ(panel.height(), 37 + 200 + 20);
    EXPECT_EQ(sheet->containerView()->cornerRadius(), TovuThemeEngine::shared().cornerRadius());
    EXPECT_EQ(sheet->handleView()->geometry(), QRect((390 - 40) / 2, 8, 40, 5));
    EXPECT_EQ(sheet->skipButton()->text(), QStringLiteral("Skip"));
    EXPECT_EQ(sheet->skipButton()->geometry().top(), 12);
    EXPECT_EQ(sheet->skipButton()->geometry().right(), 390 - 16 - 1);

    host.resize(500, 700); // the sheet follows its host
    EXPECT_EQ(sheet->geometry(), host.rect());
    EXPECT_EQ(sheet->containerView()->width(), 500);
    sheet->dismiss();
}

TEST_F(ToasterView, TallContentIsLimitedAndScrolls)
{
    auto *sheet = new TovuToasterView(std::nullopt);
    sheet->setQuestionView(page(2000));
    sheet->present(&host);
    EXPECT_EQ(sheet->containerView()->height(), static_cast<int>(844 * 0.92));
    QTest::qWait(10);
    EXPECT_GT(sheet->contentScrollArea()->verticalScrollBar()->maximum(), 0);
    sheet->dismiss();
}

TEST_F(ToasterView, SetQuestionViewKeepsOnlyTheLastPage)
{
    auto *sheet = new TovuToasterView(std::nullopt);
    QPointer<QWidget> first = page(100);
    QPointer<QWidget> second = page(300);
    sheet->setQuestionView(first);
    sheet->setQuestionView(second);
    sheet->present(&host);
    ASSERT_EQ(sheet->contentStackView()->count(), 1);
    EXPECT_EQ(sheet->contentStackView()->itemAt(0)->widget(), second.data());
    EXPECT_EQ(sheet->containerView()->height(), 37 + 300 + 20);
    QTest::qWait(10);
    EXPECT_TRUE(first.isNull()); // the old page is deleted
    sheet->dismiss();
}

TEST_F(ToasterView, SkipTellsTheOwnerAndClosesEvenWithoutOne)
{
    QPointer<TovuToasterView> sheet = new TovuToasterView(std::nullopt);
    int skips = 0;
    sheet->onSkip = [&skips] {
        ++skips;
    };
    sheet->present(&host);
    QTest::mouseClick(sheet->skipButton(), Qt::LeftButton);
    EXPECT_EQ(skips, 1);
    EXPECT_TRUE(QTest::qWaitFor([&sheet] { return sheet.isNull(); }, 1000)); // removed and deleted

    QPointer<TovuToasterView> lonely = new TovuToasterView(std::nullopt);
    lonely->present(&host);
    QTest::mouseClick(lonely->skipButton(), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&lonely] { return lonely.isNull(); }, 1000));
    EXPECT_TRUE(host.findChildren<TovuToasterView *>().isEmpty());
}

TEST_F(ToasterView, AnimationsRunWhenMotionIsOn)
{
    TovuMotion::setDurationScale(1);
    QPointer<TovuToasterView> sheet = new TovuToasterView(std::nullopt);
    sheet->setQuestionView(page(100));
    sheet->present(&host);
    EXPECT_GT(sheet->panelTranslation(), 0.0); // starts below the edge
    EXPECT_TRUE(QTest::qWaitFor([&sheet] { return sheet->panelTranslation() < 1.0; }, 2000));
    sheet->dismiss();
    EXPECT_TRUE(sheet->isDismissing());
    EXPECT_FALSE(sheet.isNull()); // still fading out
    EXPECT_TRUE(QTest::qWaitFor([&sheet] { return sheet.isNull(); }, 2000));
}

TEST_F(ToasterView, KeyboardLiftsThePanelAndLowersItAgain)
{
    auto *sheet = new TovuToasterView(std::nullopt);
    sheet->setQuestionView(page(200));
    sheet->present(&host);
    const int restingTop = sheet->containerView()->y();

    sheet->keyboardWillShow(QRectF(0, 500, 390, 300), 0);
    EXPECT_EQ(sheet->containerBottomOffset(), 300.0);
    EXPECT_EQ(sheet->containerView()->y(), restingTop - 300);

    sheet->keyboardWillShow(QRectF(), 0); // no frame: ignored
    EXPECT_EQ(sheet->containerBottomOffset(), 300.0);

    sheet->keyboardWillHide(0);
    EXPECT_EQ(sheet->containerBottomOffset(), 0.0);
    EXPECT_EQ(sheet->containerView()->y(), restingTop);

    TovuMotion::setDurationScale(1);
    sheet->keyboardWillShow(QRectF(0, 0, 390, 250), 200);
    EXPECT_LT(sheet->containerBottomOffset(), 250.0); // on its way up
    EXPECT_TRUE(QTest::qWaitFor([sheet] { return sheet->containerBottomOffset() == 250.0; }, 2000));
    sheet->dismiss();
}

TEST_F(ToasterView, KeyboardKeepsTheFocusedFieldInViewBelowTheHostsTop)
{
    activateHost();
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    auto *first = new QLineEdit;
    auto *last = new QLineEdit;
    layout->addWidget(first);
    layout->addSpacing(1200);
    layout->addWidget(last);
    auto *sheet = new TovuToasterView(std::nullopt);
    sheet->setQuestionView(page);
    sheet->present(&host);
    const QWidget *viewport = sheet->contentScrollArea()->viewport();
    const auto inView = [viewport](const QWidget *field) {
        return viewport->rect().contains(QRect(field->mapTo(viewport, QPoint()), field->size()));
    };

    last->setFocus();
    sheet->keyboardWillShow(QRectF(0, 0, 390, 300), 0);
    EXPECT_GE(sheet->containerView()->y(), 0); // shorter, not above the host
    EXPECT_EQ(sheet->containerView()->geometry().bottom(), 844 - 300 - 1);
    EXPECT_TRUE(inView(last));

    first->setFocus(); // focus moves while the keyboard is up
    EXPECT_TRUE(inView(first));
    sheet->dismiss();
}

TEST_F(ToasterView, TheHostGetsNoInputWhileTheSheetIsUp)
{
    auto *field = new QLineEdit(&host);
    field->setGeometry(20, 20, 200, 30); // under the dimming layer
    field->show();
    activateHost();
    field->setFocus();
    MouseCounter hostClicks;
    host.installEventFilter(&hostClicks);

    auto *sheet = new TovuToasterView(std::nullopt);
    sheet->setQuestionView(new QLineEdit);
    sheet->present(&host);
    QWindow *window = host.windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(30, 30));
    QTest::mouseDClick(window, Qt::LeftButton, {}, QPoint(30, 30));
    EXPECT_EQ(hostClicks.count, 0);
    QTest::keyClick(window, Qt::Key_A);
    EXPECT_TRUE(field->text().isEmpty());
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Backtab}) {
        QTest::keyClick(window, key);
        EXPECT_TRUE(sheet->isAncestorOf(QApplication::focusWidget())) << "Tab left the sheet";
    }

    sheet->dismiss();
    EXPECT_EQ(QApplication::focusWidget(), field);
}

TEST_F(ToasterView, InputEndsWhenDismissalBegins)
{
    activateHost();
    QPointer<TovuToasterView> sheet = new TovuToasterView(std::nullopt);
    int skips = 0;
    sheet->onSkip = [&skips] {
        ++skips;
    };
    sheet->present(&host);
    TovuMotion::setDurationScale(1); // the sheet stays on screen while it closes
    const QPoint skip = sheet->skipButton()->mapTo(&host, sheet->skipButton()->rect().center());
    QTest::mouseClick(host.windowHandle(), Qt::LeftButton, {}, skip);
    ASSERT_TRUE(sheet->isDismissing());
    QTest::mouseClick(host.windowHandle(), Qt::LeftButton, {}, skip);
    QTest::keyClick(host.windowHandle(), Qt::Key_Space); // the tap gave Skip keyboard focus
    EXPECT_EQ(skips, 1);
    EXPECT_TRUE(QTest::qWaitFor([&sheet] { return sheet.isNull(); }, 2000));
    EXPECT_EQ(skips, 1);
}

TEST_F(ToasterView, ColoursFollowAPaletteSwitch)
{
    using Role = TovuPlatformColors::Role;
    const QPalette light = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x1C, 0x1C, 0x1E));
    dark.setColor(QPalette::WindowText, Qt::white);
    const auto switchTo = [](const QPalette &palette) {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents(); // widgets hear of it through posted events
    };
    const auto text = [](const QLabel *label) {
        return label->palette().color(QPalette::WindowText);
    };

    auto *sheet = new TovuToasterView(std::nullopt);
    auto *intro = new TovuIntroView(TovuSurveyPage{.enabled = true, .content = "Two minutes"});
    sheet->setQuestionView(intro);
    sheet->present(&host);
    switchTo(dark);
    EXPECT_EQ(sheet->containerView()->backgroundColor(), TovuPlatformColors::color(Role::systemBackground, true));
    EXPECT_EQ(sheet->handleView()->backgroundColor(), TovuPlatformColors::color(Role::gray4, true));
    EXPECT_EQ(text(intro->contentLabel()), TovuPlatformColors::color(Role::label, true));
    EXPECT_EQ(intro->startButton()->backgroundColor(), TovuPlatformColors::color(Role::blue, true));

    auto *thanks = new TovuThankYouView(std::nullopt); // built in the dark
    sheet->setQuestionView(thanks);
    switchTo(light);
    EXPECT_EQ(sheet->containerView()->backgroundColor(), TovuPlatformColors::color(Role::systemBackground, false));
    EXPECT_EQ(text(thanks->titleLabel()), TovuPlatformColors::color(Role::label, false));
    sheet->dismiss();
}
