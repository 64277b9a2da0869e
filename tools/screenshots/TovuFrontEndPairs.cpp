#include "TovuFrontEndPairs.h"

#include "TovuQuestionSamples.h"

#include <tovukit_io/quick/TovuQuickPresenter.h>
#include <tovukit_io/quick/TovuQuickSheet.h>
#include <tovukit_io/ui/TovuSheetPresenter.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QQuickWindow>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <cstdio>
#include <functional>

namespace {

constexpr QSize phone(390, 844);
constexpr int gap = 24;

struct Pair {
    const char *name;
    TovuQuestion question;
    /// What the respondent did before the picture, through the page's model.
    std::function<void(QObject *model)> act;
    TovuRatingVariant variant = TovuRatingVariant::star;
    /// The progress indicator's question of how many; none when 0.
    int questionNumber = 0;
    int questionCount = 0;
};

std::vector<Pair> pairs()
{
    using Samples = TovuQuestionSamples;
    const auto pick = [](int index) {
        return [index](QObject *model) {
            qobject_cast<TovuSingleChoiceQuestionViewModel *>(model)->selectOption(index);
        };
    };
    std::vector<Pair> list{
        {"single-choice",
         {.id = "delivery",
          .type = TovuQuestionType::singleChoice,
          .title = "How was the delivery of your order?",
          .isRequired = true,
          .options = Samples::choices("opt-", {"Faster than expected", "On time", "A little late"})},
         pick(1)},
        {"multiple-choice",
         {.id = "features",
          .type = TovuQuestionType::multipleChoice,
          .title = "Which features do you use most?",
          .options = Samples::choices("opt-", {"Order tracking", "Wish list", "Gift cards"})},
         [](QObject *model) {
             qobject_cast<TovuMultipleChoiceQuestionViewModel *>(model)->toggleOption(QStringLiteral("opt-1"));
         }},
        {"dropdown-open",
         {.id = "city",
          .type = TovuQuestionType::dropdown,
          .title = "Where do you usually shop with us?",
          .options = Samples::choices("opt-", {"Amsterdam", "Berlin", "Lisbon", "Nairobi"})},
         [](QObject *model) {
             auto *dropdown = qobject_cast<TovuDropdownQuestionViewModel *>(model);
             dropdown->chooseOption(1);
             dropdown->toggleExpanded();
         }},
        {"text-boxes",
         {.id = "contact",
          .type = TovuQuestionType::multipleTextBox,
          .title = "How can we reach you about your feedback?",
          .isRequired = true},
         [](QObject *model) {
             qobject_cast<TovuQuestionViewModel *>(model)->submit();
         }},
        {"nps-follow-up",
         {.id = "nps",
          .type = TovuQuestionType::nps,
          .title = "How likely are you to recommend us to a friend?",
          .followUpQuestion = "What is the main reason for your score?"},
         [](QObject *model) {
             qobject_cast<TovuNPSQuestionViewModel *>(model)->selectScore(9);
         }},
        {"multi-nps",
         {.id = "rows",
          .type = TovuQuestionType::multiNps,
          .title = "How likely are you to recommend",
          .isRequired = true,
          .options = Samples::choices("row-", {"Our app", "Our delivery"})},
         [](QObject *model) {
             qobject_cast<TovuMultiNPSQuestionViewModel *>(model)->selectScore(QStringLiteral("row-1"), 8);
         }},
        {"rating-emoji",
         {.id = "mood", .type = TovuQuestionType::rating, .title = "How do you feel about your order?"},
         [](QObject *model) { qobject_cast<TovuRatingQuestionViewModel *>(model)->rate(4); },
         TovuRatingVariant::emoji},
        {"rating-stars",
         {.id = "stars",
          .type = TovuQuestionType::rating,
          .title = "How was your delivery?",
          .columns = Samples::choices("c-", {"Poor", "Fair", "Good", "Great", "Superb"}),
          .showColLabels = true},
         [](QObject *model) {
             qobject_cast<TovuRatingQuestionViewModel *>(model)->rate(3);
         }},
        {"multi-rating-hearts",
         {.id = "grid",
          .type = TovuQuestionType::multiRating,
          .title = "Rate each part of your order",
          .options = Samples::choices("row-", {"Freshness", "Packing", "Delivery time"}),
          .columns = Samples::choices("c-", {"Awful", "Poor", "Fair", "Good", "Great", "Superb", "Perfect"}),
          .showColLabels = true},
         [](QObject *model) {
             auto *grid = qobject_cast<TovuMultiRatingQuestionViewModel *>(model);
             grid->tap(QStringLiteral("row-0::c-3"));
             grid->tap(QStringLiteral("row-2::c-5"));
         },
         TovuRatingVariant::heart},
        {"multi-rating-emoji",
         {.id = "faces",
          .type = TovuQuestionType::multiRating,
          .title = "How do you feel about",
          .options = Samples::choices("row-", {"Our app", "Our prices"}),
          .columns = Samples::choices("c-", {"1", "2", "3", "4", "5"})},
         [](QObject *model) {
             qobject_cast<TovuMultiRatingQuestionViewModel *>(model)->tap(QStringLiteral("row-1::c-4"));
         },
         TovuRatingVariant::emoji},
        {"thank-you",
         {.id = "thank_you_auto",
          .type = TovuQuestionType::thankYou,
          .title = "Thank You!",
          .subtitle = "Your feedback is greatly appreciated."},
         {}},
    };
    // The first page again with the progress indicator a host may turn on.
    Pair progress = list.front();
    progress.name = "single-choice-progress";
    progress.questionNumber = 2;
    progress.questionCount = 5;
    list.push_back(progress);
    return list;
}

TovuPageRequest requestFor(const Pair &pair)
{
    return {.question = pair.question,
            .variant = pair.variant,
            .questionNumber = pair.questionNumber,
            .questionCount = pair.questionCount};
}

TovuSurvey surveyOf(const TovuQuestion &question)
{
    return TovuSurvey{.id = "pair", .name = "Pair", .questions = {question}};
}

QImage widgetsShot(const Pair &pair)
{
    QWidget host;
    host.resize(phone);
    host.setAutoFillBackground(true);
    host.show();
    TovuSheetPresenter presenter;
    presenter.present(surveyOf(pair.question), &host);
    presenter.showQuestion(requestFor(pair));
    QApplication::processEvents();
    QWidget *page = presenter.toasterView()->contentStackView()->itemAt(0)->widget();
    if (pair.act)
        pair.act(page->findChild<TovuQuestionViewModel *>());
    QApplication::processEvents();
    return host.grab().toImage();
}

QImage quickShot(const Pair &pair)
{
    QQuickWindow window;
    window.resize(phone);
    window.setColor(TovuPlatformColors::color(TovuPlatformColors::Role::systemBackground));
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return {};
    TovuQuickPresenter presenter;
    presenter.present(surveyOf(pair.question), &window);
    presenter.showQuestion(requestFor(pair));
    QQuickItem *page = presenter.quickSheet()->currentPage();
    if (pair.act && page)
        pair.act(page->property("model").value<QObject *>());
    QTest::qWait(50);
    return window.grabWindow();
}

bool save(QImage left, QImage right, const QString &path)
{
    // Side by side in device pixels: the pair is a picture of both at the same scale.
    const qreal ratio = left.devicePixelRatio();
    left.setDevicePixelRatio(1);
    right.setDevicePixelRatio(1);
    QImage both(left.width() + right.width() + qRound(gap * ratio), std::max(left.height(), right.height()),
                QImage::Format_ARGB32_Premultiplied);
    both.fill(Qt::gray);
    QPainter painter(&both);
    painter.drawImage(0, 0, left);
    painter.drawImage(left.width() + qRound(gap * ratio), 0, right);
    painter.end();
    const bool saved = both.save(path);
    std::printf("%s %s\n", saved ? "wrote" : "could not write", qPrintable(path));
    return saved;
}

} // namespace

bool TovuFrontEndPairs::shoot(const QDir &out, const char *mode)
{
    bool ok = true;
    for (const Pair &pair : pairs()) {
        const QString file
            = QStringLiteral("pair-%1-%2.png").arg(QLatin1StringView(pair.name), QLatin1StringView(mode));
        ok &= save(widgetsShot(pair), quickShot(pair), out.filePath(file));
    }
    return ok;
}
