// The progress indicator a host turns on, in both front ends (this process has a
// QApplication): a survey with an intro, three questions and the thank-you page is
// walked through the manager against a local backend, with real clicks, and the
// indicator is read as a screen reader reads it. Off, the sheet gains nothing.

#include "TovuBackendFixture.h"
#include "TovuQuickSurveyClicker.h"
#include "TovuSurveyClicker.h"

#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/platform/TovuManualPathMonitor.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>
#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/quick/TovuProgressItem.h>
#include <tovukit_io/quick/TovuQuickPresenter.h>
#include <tovukit_io/ui/TovuProgressIndicator.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QAccessibleValueInterface>
#include <QQuickWindow>

#include <memory>

namespace {

// What a screen reader finds of the indicator on one page; an empty name when there is none.
struct Reading {
    QString name;
    QString value;
    int current = 0;
    int maximum = 0;
    QRect place; ///< relative to the panel's top left corner

    bool operator==(const Reading &) const = default;
};

// One front end as the test drives it: the host, the sheet's current page and panel, and a
// respondent who answers a page.
struct FrontEnd {
    QObject *host;
    std::function<QObject *()> currentPage;
    std::function<QPoint()> panelOrigin;
    std::function<bool(QObject *page)> answer;
    std::function<bool()> madeAnIndicator;
};

TovuSurvey threeQuestions()
{
    TovuSurvey survey{.id = "progress", .name = "Progress"};
    survey.introPage = TovuSurveyPage{.enabled = true, .content = "Three quick questions.", .buttonText = "Start"};
    for (const char *id : {"q1", "q2", "q3"}) {
        survey.questions.push_back(
            TovuQuestion{.id = id,
                         .type = TovuQuestionType::singleChoice,
                         .title = std::string("Question ") + id,
                         .options = std::vector<TovuChoice>{{.id = "a", .text = "Yes"}, {.id = "b", .text = "No"}}});
    }
    survey.questions.push_back(
        TovuQuestion{.id = "thank_you_auto", .type = TovuQuestionType::thankYou, .title = "Thank you!"});
    return survey;
}

} // namespace

class ProgressParity : public TovuBackendFixture
{
protected:
    void SetUp() override
    {
        TovuBackendFixture::SetUp();
        TovuMotion::setDurationScale(0);

        widgetHost.resize(390, 844);
        widgetHost.show();
        quickHost.resize(390, 844);
        quickHost.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&widgetHost));
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&quickHost));
    }

    void TearDown() override
    {
        manager.configureTheme(TovuAppTheme{});
        TovuMotion::setDurationScale(1);
        TovuBackendFixture::TearDown();
    }

    FrontEnd widgets()
    {
        const auto sheet = [this] {
            return manager.toasterView();
        };
        return {&widgetHost, [sheet] { return TovuSurveyClicker::currentPage(sheet()); },
                [sheet] { return sheet()->containerView()->mapToGlobal(QPoint()); },
                [this](QObject *page) { return widgetClicker.answer(qobject_cast<QWidget *>(page)); },
                [sheet] {
                    return sheet()->progressIndicator() != nullptr;
                }};
    }

    FrontEnd quick()
    {
        const auto sheet = [this] {
            return manager.quickSheet();
        };
        return {&quickHost, [sheet]() -> QObject * { return sheet() ? sheet()->currentPage() : nullptr; },
                [sheet] {
                    auto *panel = sheet()->findChild<QQuickItem *>(QStringLiteral("panel"));
                    return panel->mapToGlobal(QPointF()).toPoint();
                },
                [this](QObject *page) { return quickClicker.answer(&quickHost, qobject_cast<QQuickItem *>(page)); },
                [sheet] {
                    return !sheet()->findChildren<TovuProgressItem *>().empty();
                }};
    }

    /// The indicator on every page, from the intro to the thank-you page.
    std::vector<Reading> walk(const FrontEnd &frontEnd, bool showsProgress)
    {
        manager.configureTheme(TovuAppTheme{.showsProgress = showsProgress});
        manager.configure(threeQuestions());
        manager.presentSurvey(frontEnd.host);
        std::vector<Reading> readings;
        QPointer<QObject> page = manager.currentSheet() ? frontEnd.currentPage() : nullptr;
        while (page && readings.size() < 6) {
            readings.push_back(read(frontEnd));
            indicatorMade = indicatorMade || frontEnd.madeAnIndicator();
            if (!frontEnd.answer(page))
                break;
            if (!QTest::qWaitFor([&] { return !page || frontEnd.currentPage() != page.data(); }, 5000))
                break;
            page = frontEnd.currentPage();
        }
        manager.presenter()->dismiss();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !manager.currentSheet(); }, 2000));
        return readings;
    }

    Reading read(const FrontEnd &frontEnd)
    {
        QCoreApplication::processEvents();
        const auto found = TovuQuickSurveyClicker::nodes(manager.currentSheet(), QAccessible::ProgressBar);
        if (found.empty())
            return {};
        EXPECT_EQ(found.size(), 1u);
        QAccessibleInterface *node = found.front();
        QAccessibleValueInterface *value = node->valueInterface();
        EXPECT_TRUE(value);
        return {node->text(QAccessible::Name), node->text(QAccessible::Value),
                value ? value->currentValue().toInt() : 0, value ? value->maximumValue().toInt() : 0,
                node->rect().translated(-frontEnd.panelOrigin())};
    }

    QWidget widgetHost;
    QQuickWindow quickHost;
    TovuMemoryKeyValueStore store;
    TovuManualPathMonitor monitor;
    static inline TovuRecordingUrlOpener opener;
    TovuNativeSurveyManager manager{{&service, &store, &monitor, nullptr, &opener, nullptr}};
    TovuSurveyClicker widgetClicker;
    TovuQuickSurveyClicker quickClicker;
    bool indicatorMade = false;
};

TEST_F(ProgressParity, QuestionPagesShowTheirPlaceAlikeInBothFrontEnds)
{
    const std::vector<Reading> inWidgets = walk(widgets(), true);
    const std::vector<Reading> inQuick = walk(quick(), true);

    for (const auto *readings : {&inWidgets, &inQuick}) {
        // The intro, three questions and the thank-you page; only the questions count.
        ASSERT_EQ(readings->size(), 5u);
        EXPECT_TRUE(readings->front().name.isEmpty()) << "none on the intro page";
        EXPECT_TRUE(readings->back().name.isEmpty()) << "none on the thank-you page";
        for (int number = 1; number <= 3; ++number) {
            const Reading &reading = readings->at(static_cast<std::size_t>(number));
            EXPECT_EQ(reading.name, QStringLiteral("Question %1 of 3").arg(number));
            EXPECT_EQ(reading.value, QStringLiteral("%1 of 3").arg(number));
            EXPECT_EQ(reading.current, number);
            EXPECT_EQ(reading.maximum, 3);
            EXPECT_FALSE(reading.place.isEmpty());
        }
    }
    // In the same place in both, at the panel's top leading corner.
    const QRect widgetPlace = inWidgets.at(1).place;
    const QRect quickPlace = inQuick.at(1).place;
    EXPECT_LE(std::abs(widgetPlace.left() - quickPlace.left()), 2);
    EXPECT_LE(std::abs(widgetPlace.top() - quickPlace.top()), 2);
    EXPECT_LE(std::abs(widgetPlace.width() - quickPlace.width()), 2);
    EXPECT_LE(std::abs(widgetPlace.height() - quickPlace.height()), 2);
    EXPECT_LT(widgetPlace.right(), 390 / 2);
}

TEST_F(ProgressParity, OffByDefaultTheSheetGainsNothing)
{
    for (const FrontEnd &frontEnd : {widgets(), quick()}) {
        const std::vector<Reading> readings = walk(frontEnd, false);
        ASSERT_EQ(readings.size(), 5u);
        EXPECT_EQ(std::ranges::count(readings, Reading{}), 5) << "no page has an indicator";
    }
    EXPECT_FALSE(indicatorMade) << "no indicator is even made";
}
