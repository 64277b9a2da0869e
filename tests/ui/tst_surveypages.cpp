// The intro and thank-you pages: texts and their defaults, the start button and
// its accent, the thank-you check mark, entrance and redirect.

#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuThankYouView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QLabel>
#include <QLayout>
#include <QTest>

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

TovuQuestion thankYouQuestion(std::optional<std::string> subtitle, std::optional<std::string> redirect)
{
    return TovuQuestion{.id = "thank_you_auto",
                        .type = TovuQuestionType::thankYou,
                        .title = "Thanks a lot!",
                        .subtitle = std::move(subtitle),
                        .redirectURL = std::move(redirect)};
}

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

TEST_F(SurveyPages, IntroShowsItsTextAndStarts)
{
    TovuIntroView intro(TovuSurveyPage{.enabled = true, .content = "<b>Two minutes</b>", .buttonText = "Go"});
    EXPECT_EQ(intro.contentLabel()->text(), QStringLiteral("<b>Two minutes</b>"));
    EXPECT_EQ(intro.contentLabel()->textFormat(), Qt::PlainText);
    EXPECT_EQ(intro.startButton()->text(), QStringLiteral("Go"));
    EXPECT_EQ(intro.startButton()->titleColor(), QColor(Qt::white));
    EXPECT_EQ(intro.startButton()->cornerRadius(), 12);
    EXPECT_EQ(intro.startButton()->height(), 50);

    int starts = 0;
    QTest::mouseClick(intro.startButton(), Qt::LeftButton); // no callback yet: nothing happens
    intro.onStart = [&starts] {
        ++starts;
    };
    QTest::mouseClick(intro.startButton(), Qt::LeftButton);
    QTest::mouseClick(intro.startButton(), Qt::LeftButton);
    EXPECT_EQ(starts, 2);
}

TEST_F(SurveyPages, IntroDefaults)
{
    TovuIntroView intro(TovuSurveyPage{.enabled = true});
    EXPECT_EQ(intro.startButton()->text(), QStringLiteral("Let's get started"));
    intro.resize(360, 200);
    intro.show();
    EXPECT_FALSE(intro.contentLabel()->isVisible()); // only the button
    EXPECT_TRUE(intro.startButton()->isVisible());
}

TEST_F(SurveyPages, ThankYouTextsAndDefaults)
{
    TovuThankYouView plain(std::nullopt);
    EXPECT_EQ(plain.titleLabel()->text(), QStringLiteral("Thank you!"));
    EXPECT_EQ(plain.subtitleLabel()->text(), QStringLiteral("Your feedback helps us improve."));
    EXPECT_EQ(plain.titleLabel()->textFormat(), Qt::PlainText);
    EXPECT_EQ(plain.iconContainer()->size(), QSize(88, 88));
    EXPECT_EQ(plain.iconContainer()->cornerRadius(), 44);
    EXPECT_EQ(plain.iconContainer()->backgroundColor(), QColor::fromRgbF(0.18f, 0.8f, 0.44f, 0.12f));
    const QPixmap icon = plain.iconView()->pixmap();
    EXPECT_EQ(icon.deviceIndependentSize(), QSizeF(plain.iconView()->size())); // fitted to its view
    EXPECT_GT(qAlpha(icon.toImage().pixel(1, icon.height() / 2)), 0); // the symbol reaches its edge
    EXPECT_EQ(plain.entranceProgress(), 1.0); // motion off: in place at once

    TovuThankYouView withSubtitle(thankYouQuestion("See you soon", std::nullopt));
    EXPECT_EQ(withSubtitle.titleLabel()->text(), QStringLiteral("Thanks a lot!"));
    EXPECT_EQ(withSubtitle.subtitleLabel()->text(), QStringLiteral("See you soon"));

    TovuThankYouView withoutSubtitle(thankYouQuestion(std::nullopt, std::nullopt));
    EXPECT_EQ(withoutSubtitle.subtitleLabel()->text(), QStringLiteral("Your feedback helps us improve."));
}

TEST_F(SurveyPages, ThankYouRedirectsOnlyToWebAddressesAfterTheDelay)
{
    TovuRecordingUrlOpener opener;
    {
        TovuThankYouView redirecting(thankYouQuestion(std::nullopt, "https://shop.example.com/thanks"), nullptr,
                                     &opener);
        TovuThankYouView invalid(thankYouQuestion(std::nullopt, "javascript:alert(1)"), nullptr, &opener);
        TovuThankYouView notAnAddress(thankYouQuestion(std::nullopt, "not a url"), nullptr, &opener);
        QTest::qWait(TovuThankYouView::redirectDelayMs - 500);
        EXPECT_TRUE(opener.openedUrls().empty()) << "too early";
    } // the pages are gone: the redirect still happens
    QTest::qWait(800);
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
