// The intro and thank-you pages show what their view models say (the models' own
// tests hold the defaults and the redirect's rules): texts as plain text, the start
// button and its accent, the thank-you check mark, its entrance, and the redirect
// scheduled when the page is built.

#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuThankYouView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/viewmodel/TovuIntroViewModel.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>

#include <QLabel>
#include <QLayout>
#include <QTest>

#include "TovuThankYouTesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace {

class SurveyPages : public testing::Test
{
protected:
    void SetUp() override { TovuMotion::setDurationScale(0); }
    void TearDown() override { TovuMotion::setDurationScale(1); }
};

using TovuThankYouTesting::thankYouQuestion;

// How wide the check mark is painted, in logical pixels: the span of the pixels
// clearly greener than the white panel (its faint disc does not count).
qreal checkMarkWidth(const QImage &image)
{
    int left = image.width();
    int right = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.green() - pixel.red() > 40) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
        }
    }
    return (right - left + 1) / image.devicePixelRatio();
}

} // namespace

TEST_F(SurveyPages, IntroShowsItsModelAndTapsStart)
{
    TovuIntroView intro(TovuSurveyPage{.enabled = true, .content = "<b>Two minutes</b>", .buttonText = "Go"});
    EXPECT_EQ(intro.contentLabel()->text(), intro.viewModel()->content());
    EXPECT_EQ(intro.contentLabel()->textFormat(), Qt::PlainText);
    EXPECT_EQ(intro.startButton()->text(), intro.viewModel()->buttonTitle());
    EXPECT_EQ(intro.startButton()->titleColor(), QColor(Qt::white));
    EXPECT_EQ(intro.startButton()->cornerRadius(), 12);
    EXPECT_EQ(intro.startButton()->height(), 50);

    int starts = 0;
    QTest::mouseClick(intro.startButton(), Qt::LeftButton); // no callback yet: nothing happens
    intro.onStart = [&starts] {
        ++starts;
    };
    QTest::mouseClick(intro.startButton(), Qt::LeftButton);
    intro.viewModel()->start(); // a start the model reports goes to the page's owner too
    EXPECT_EQ(starts, 2);
}

TEST_F(SurveyPages, IntroWithoutTextShowsOnlyTheButton)
{
    TovuIntroView intro(TovuSurveyPage{.enabled = true});
    intro.resize(360, 200);
    intro.show();
    EXPECT_FALSE(intro.contentLabel()->isVisible());
    EXPECT_TRUE(intro.startButton()->isVisible());
    EXPECT_EQ(intro.startButton()->text(), intro.viewModel()->buttonTitle());
}

TEST_F(SurveyPages, ThankYouShowsItsModel)
{
    TovuThankYouView page(thankYouQuestion("<i>See you soon</i>", std::nullopt));
    const TovuThankYouViewModel &model = *page.viewModel();
    EXPECT_EQ(page.titleLabel()->text(), model.title());
    EXPECT_EQ(page.subtitleLabel()->text(), QStringLiteral("<i>See you soon</i>"));
    EXPECT_EQ(page.titleLabel()->textFormat(), Qt::PlainText);
    EXPECT_EQ(page.subtitleLabel()->textFormat(), Qt::PlainText);
    EXPECT_EQ(page.iconContainer()->size(), QSize(88, 88));
    EXPECT_EQ(page.iconContainer()->cornerRadius(), 44);
    EXPECT_EQ(page.iconContainer()->backgroundColor(), model.discColor());
    EXPECT_EQ(page.iconView()->accessibleName(), model.iconAccessibleName());
    const QImage icon = page.iconView()->pixmap().toImage();
    EXPECT_EQ(icon.deviceIndependentSize(), QSizeF(page.iconView()->size())); // fitted to its view
    EXPECT_GT(icon.pixelColor(1, icon.height() / 2).alpha(), 0); // the symbol reaches its edge
    EXPECT_EQ(page.entranceProgress(), 1.0); // motion off: in place at once
}

TEST_F(SurveyPages, ThankYouSchedulesItsRedirectWhenBuilt)
{
    TovuRecordingUrlOpener opener;
    delete new TovuThankYouView(thankYouQuestion(std::nullopt, "https://shop.example.com/thanks"), nullptr, &opener);
    QTest::qWait(TovuThankYouView::redirectDelayMs + 300); // the page is gone: the redirect still happens
    ASSERT_EQ(opener.openedUrls().size(), 1u);
    EXPECT_EQ(opener.openedUrls().front(), QUrl(QStringLiteral("https://shop.example.com/thanks")));
}

TEST_F(SurveyPages, IntroAccentIsTheHostWindowsHighlight)
{
    QWidget active; // another window has focus, with an accent of its own
    QPalette green = active.palette();
    green.setColor(QPalette::Highlight, Qt::green);
    active.setPalette(green);
    active.setFocusPolicy(Qt::StrongFocus);
    active.show();
    active.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&active));
    active.setFocus();

    QWidget purpleHost;
    QPalette purple = purpleHost.palette();
    purple.setColor(QPalette::Highlight, QColor(0x80, 0x00, 0x80));
    purpleHost.setPalette(purple);
    QWidget plainHost;
    const QColor blue = TovuPlatformColors::color(TovuPlatformColors::Role::blue);
    for (const auto &[host, accent] : {std::pair{&purpleHost, QColor(0x80, 0x00, 0x80)}, std::pair{&plainHost, blue}}) {
        host->resize(390, 844);
        host->show();
        auto *intro = new TovuIntroView(TovuSurveyPage{.enabled = true});
        auto *sheet = new TovuToasterView(std::nullopt);
        sheet->setQuestionView(intro);
        sheet->present(host);
        EXPECT_EQ(intro->startButton()->backgroundColor(), accent);
        sheet->dismiss();
    }
}

TEST_F(SurveyPages, ThankYouEntranceZoomsWithoutMovingTheLayout)
{
    QWidget host;
    host.resize(390, 844);
    host.show();
    TovuMotion::setDurationScale(6); // a slow entrance, to look at frames on the way
    auto *page = new TovuThankYouView(std::nullopt);
    EXPECT_EQ(page->entranceProgress(), 0.0);
    EXPECT_EQ(page->entranceScale(), 0.85);
    TovuMotion::setDurationScale(0); // the sheet itself appears at once
    auto *sheet = new TovuToasterView(std::nullopt);
    sheet->setQuestionView(page);
    sheet->present(&host);

    const int panelHeight = sheet->containerView()->height();
    const QSize size = page->size();
    const QSize hint = page->sizeHint();
    const QMargins margins = page->layout()->contentsMargins();
    bool still = true;
    int zoomedFrames = 0;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            still = still && sheet->containerView()->height() == panelHeight && page->size() == size
                && page->sizeHint() == hint && page->layout()->contentsMargins() == margins;
            const qreal scale = page->entranceScale();
            if (zoomedFrames == 0 && scale > 0.89 && scale < 0.93) {
                const QImage frame = host.grab(QRect(page->mapTo(&host, QPoint()), page->size())).toImage();
                EXPECT_NEAR(checkMarkWidth(frame), 56 * scale, 2.0);
                ++zoomedFrames;
            }
            return page->entranceProgress() == 1.0;
        },
        10000));
    EXPECT_TRUE(still) << "the layout moved during the entrance";
    EXPECT_EQ(zoomedFrames, 1);
    EXPECT_EQ(page->entranceScale(), 1.0);
    sheet->dismiss();
}
