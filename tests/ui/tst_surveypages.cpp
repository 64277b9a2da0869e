// The intro and thank-you pages: texts and their defaults, the start button,
// and the thank-you redirect.

#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuThankYouView.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

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
    EXPECT_FALSE(plain.iconView()->pixmap().isNull());
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

TEST_F(SurveyPages, ThankYouEntranceAnimatesFromSmallAndTransparent)
{
    TovuMotion::setDurationScale(1);
    TovuThankYouView page(std::nullopt);
    EXPECT_EQ(page.entranceProgress(), 0.0);
    QTest::qWait(100);
    EXPECT_GT(page.entranceProgress(), 0.0);
    EXPECT_TRUE(QTest::qWaitFor([&page] { return page.entranceProgress() == 1.0; }, 2000));
}
