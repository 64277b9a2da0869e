// What the intro and thank-you pages show and do, through their view models without
// any widget: texts and their defaults, starting, the redirect and its delay; and the
// named sizes both front ends read, as QML reads them.

#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/viewmodel/TovuIntroViewModel.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuSheetMetrics.h>
#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>

#include <QMetaProperty>
#include <QTest>

#include "TovuThankYouTesting.h"
#include "TovuViewModelTesting.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using TovuThankYouTesting::thankYouQuestion;

std::vector<QUrl> urls(std::initializer_list<const char *> texts)
{
    std::vector<QUrl> result;
    for (const char *text : texts)
        result.emplace_back(QString::fromUtf8(text));
    return result;
}

} // namespace

TEST(IntroViewModel, ShowsThePagesTextAndButtonOrTheDefaults)
{
    struct Case {
        const char *name;
        TovuSurveyPage page;
        QString content;
        bool hasContent;
        QString buttonTitle;
    };
    const std::vector<Case> cases{
        {"text and button as given, markup kept as text",
         {.enabled = true, .content = "<b>Two minutes</b>", .buttonText = "Go"},
         QStringLiteral("<b>Two minutes</b>"),
         true,
         QStringLiteral("Go")},
        {"neither", {.enabled = true}, QString(), false, QStringLiteral("Let's get started")},
        {"text only",
         {.enabled = true, .content = "Hi"},
         QStringLiteral("Hi"),
         true,
         QStringLiteral("Let's get started")},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        const TovuIntroViewModel model(c.page);
        // Read as a QML binding reads them.
        EXPECT_EQ(model.property("content").toString(), c.content);
        EXPECT_EQ(model.property("hasContent").toBool(), c.hasContent);
        EXPECT_EQ(model.property("buttonTitle").toString(), c.buttonTitle);
        EXPECT_EQ(model.page().content, c.page.content);
    }
}

TEST(IntroViewModel, StartTellsTheOwnerEveryTime)
{
    TovuIntroViewModel model(TovuSurveyPage{.enabled = true});
    model.start(); // nobody listening yet: nothing happens
    int starts = 0;
    model.onStart = [&starts] {
        ++starts;
    };
    model.start();
    ASSERT_TRUE(QMetaObject::invokeMethod(&model, "start")); // as a QML page calls it
    EXPECT_EQ(starts, 2);
}

TEST(ThankYouViewModel, ShowsTheQuestionsTextsOrTheDefaults)
{
    struct Case {
        const char *name;
        std::optional<TovuQuestion> question;
        QString title;
        QString subtitle;
    };
    const QString defaultSubtitle = QStringLiteral("Your feedback helps us improve.");
    const std::vector<Case> cases{
        {"no question", std::nullopt, QStringLiteral("Thank you!"), defaultSubtitle},
        {"with a subtitle", thankYouQuestion("See you soon", std::nullopt), QStringLiteral("Thanks a lot!"),
         QStringLiteral("See you soon")},
        {"without a subtitle", thankYouQuestion(std::nullopt, std::nullopt), QStringLiteral("Thanks a lot!"),
         defaultSubtitle},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        const TovuThankYouViewModel model(c.question);
        EXPECT_EQ(model.property("title").toString(), c.title);
        EXPECT_EQ(model.property("subtitle").toString(), c.subtitle);
        EXPECT_EQ(model.property("iconAccessibleName").toString(), QStringLiteral("Done"));
        EXPECT_EQ(model.property("iconColor").value<QColor>(), QColor::fromRgbF(0.18f, 0.8f, 0.44f));
        // The same green, faint, behind the check mark.
        const QColor disc = model.property("discColor").value<QColor>();
        EXPECT_EQ(disc.rgb(), model.iconColor().rgb());
        EXPECT_NEAR(disc.alphaF(), TovuPageMetrics::thankYouDiscAlpha, 1.0 / 255);
    }
}

TEST(ThankYouViewModel, OpensOnlyWebAddressesOnceAfterTheDelayEvenWhenGone)
{
    TovuRecordingUrlOpener opener;
    std::vector<std::unique_ptr<TovuThankYouViewModel>> models;
    for (const char *address : {"https://shop.example.com/thanks", "http://example.com/a?b=c", "javascript:alert(1)",
                                "not a url", "ftp://example.com/file", "https://", "file:///etc/passwd"}) {
        models.push_back(std::make_unique<TovuThankYouViewModel>(thankYouQuestion(std::nullopt, address), &opener));
        models.back()->scheduleRedirect();
    }
    models.front()->scheduleRedirect(); // again: still once
    TovuThankYouViewModel withoutAddress(thankYouQuestion(std::nullopt, std::nullopt), &opener);
    withoutAddress.scheduleRedirect();
    TovuThankYouViewModel withoutQuestion(std::nullopt, &opener);
    withoutQuestion.scheduleRedirect();
    TovuThankYouViewModel neverScheduled(thankYouQuestion(std::nullopt, "https://example.com/later"), &opener);
    models.clear(); // the pages are gone: the redirects still happen

    QTest::qWait(TovuThankYouViewModel::redirectDelayMs - 300);
    EXPECT_TRUE(opener.openedUrls().empty()) << "too early";
    QTest::qWait(600);
    EXPECT_EQ(opener.openedUrls(), urls({"https://shop.example.com/thanks", "http://example.com/a?b=c"}));
}

TEST(ThankYouViewModel, WithoutAnOpenerUsesTheDefaultOneWhenItFires)
{
    TovuRecordingUrlOpener early;
    TovuRecordingUrlOpener late;
    TovuUrlOpener::setDefault(&early);
    TovuThankYouViewModel model(thankYouQuestion(std::nullopt, "https://example.com/x"));
    model.scheduleRedirect();
    TovuUrlOpener::setDefault(&late);
    QTest::qWait(TovuThankYouViewModel::redirectDelayMs + 300);
    TovuUrlOpener::setDefault(nullptr);
    EXPECT_TRUE(early.openedUrls().empty());
    EXPECT_EQ(late.openedUrls(), urls({"https://example.com/x"}));
}

TEST(PageMetrics, EverySizeReadsTheSameInQmlAsInCpp)
{
    // QML sees the constants as read-only properties of an instance.
    const TovuSheetMetrics sheet;
    const TovuPageMetrics page;
    for (const QObject *metrics : {static_cast<const QObject *>(&sheet), static_cast<const QObject *>(&page)}) {
        const QMetaObject *meta = metrics->metaObject();
        ASSERT_GT(meta->propertyCount() - meta->propertyOffset(), 20);
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            SCOPED_TRACE(property.name());
            EXPECT_TRUE(property.isConstant());
            EXPECT_FALSE(property.isWritable());
            EXPECT_EQ(property.metaType(), QMetaType::fromType<qreal>());
            EXPECT_GT(property.read(metrics).toDouble(), 0.0); // every size, ratio and time is positive
        }
    }
    EXPECT_EQ(sheet.property("maxHeightRatio").toDouble(), TovuSheetMetrics::maxHeightRatio);
    EXPECT_EQ(sheet.property("contentTop").toDouble(), 37.0); // handle, its margin and the gap under it
    EXPECT_EQ(page.property("redirectDelaySeconds").toDouble(), TovuPageMetrics::redirectDelaySeconds);
    EXPECT_EQ(TovuThankYouViewModel::redirectDelayMs, 2500);
}
