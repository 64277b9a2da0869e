// The library's own texts in the respondent's language, in both front ends (this
// process has a QApplication). A pseudo language 40 % longer than English, with a
// marker around every text, shows on every page type that nothing of the library
// is left in English and nothing is cut. Then the public calls: German, English
// again and Arabic, read as a screen reader reads the sheet.

#include "TovuQuickSurveyClicker.h"

#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/network/TovuNetworkService.h>
#include <tovukit_io/platform/TovuManualPathMonitor.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>
#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/quick/TovuQuickPresenter.h>
#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuSheetPresenter.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuFitLabel.h>
#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuTranslations.h>

#include <QAccessible>
#include <QLabel>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTranslator>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>

namespace {

constexpr int phoneWidth = 390;
constexpr QChar opening = u'\u27E6';

// Every text of the library's contexts, 40 % longer and marked: "⟦Skip~~⟧".
class PseudoTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (qstrncmp(context, "Tovu", 4) != 0)
            return {};
        const QString text = QString::fromUtf8(sourceText);
        const auto padding = static_cast<qsizetype>(std::ceil(static_cast<double>(text.size()) * 0.4)) - 2;
        return opening + text + QString(std::max<qsizetype>(padding, 0), u'~') + u'\u27E7';
    }
    bool isEmpty() const override { return false; }
};

std::vector<TovuChoice> choices(std::initializer_list<const char *> texts)
{
    std::vector<TovuChoice> list;
    int index = 0;
    for (const char *text : texts)
        list.push_back({.id = "o" + std::to_string(index++), .text = text});
    return list;
}

// What the survey itself says: shown as it is, in no language of the library's.
QStringList surveyTexts(const TovuQuestion &q)
{
    QStringList texts{QString::fromStdString(q.title)};
    const auto add = [&texts](const std::optional<std::string> &text) {
        if (text)
            texts.append(QString::fromStdString(*text));
    };
    const auto addAll = [&texts](const std::optional<std::vector<TovuChoice>> &list) {
        for (const TovuChoice &choice : list.value_or(std::vector<TovuChoice>{}))
            texts.append(QString::fromStdString(choice.text));
    };
    add(q.subtitle);
    add(q.followUpQuestion);
    add(q.placeholder);
    addAll(q.options);
    addAll(q.columns);
    for (const TovuConditionalFollowUp &followUp :
         q.conditionalFollowUps.value_or(std::vector<TovuConditionalFollowUp>{})) {
        texts.append(QString::fromStdString(followUp.followUpQuestion));
        addAll(followUp.followUpOptions);
    }
    return texts;
}

bool isNumber(const QString &text)
{
    bool number = false;
    text.toInt(&number);
    return number;
}

// Every name and description a screen reader finds below `root`, and every placeholder.
QStringList spokenTexts(QObject *root)
{
    QStringList spoken;
    for (const QAccessible::Role role : {QAccessible::Button, QAccessible::CheckBox, QAccessible::RadioButton,
                                         QAccessible::StaticText, QAccessible::EditableText, QAccessible::Graphic}) {
        for (QAccessibleInterface *node : TovuQuickSurveyClicker::nodes(root, role))
            spoken << node->text(QAccessible::Name) << node->text(QAccessible::Description);
    }
    for (QWidget *widget : root->findChildren<QWidget *>()) {
        if (widget->isVisibleTo(qobject_cast<QWidget *>(root)))
            spoken << widget->property("placeholderText").toString();
    }
    spoken.removeAll(QString());
    return spoken;
}

// The library's texts below `root` that are not in the pseudo language.
QStringList untranslated(QObject *root, const QStringList &survey)
{
    QStringList left;
    for (const QString &text : spokenTexts(root)) {
        if (!text.contains(opening) && !survey.contains(text) && !isNumber(text))
            left.append(text);
    }
    return left;
}

int markedCount(QObject *root)
{
    return static_cast<int>(
        std::ranges::count_if(spokenTexts(root), [](const QString &text) { return text.contains(opening); }));
}

// Widgets whose text does not fit: a one-line label wider than its room, a wrapped
// label or a button title taller than its height, a fitted label that had to elide.
QStringList cutWidgetTexts(QWidget *page)
{
    QStringList cut;
    for (QLabel *label : page->findChildren<QLabel *>()) {
        if (!label->isVisibleTo(page) || label->text().isEmpty())
            continue;
        const int room = label->contentsRect().width() + 1;
        bool fits = true;
        if (auto *fitted = qobject_cast<TovuFitLabel *>(label))
            fits = QFontMetrics(fitted->fittedFont()).horizontalAdvance(label->text()) <= room;
        else if (label->wordWrap())
            fits = label->heightForWidth(label->width()) <= label->height() + 1;
        else
            fits = QFontMetrics(label->font()).horizontalAdvance(label->text()) <= room;
        if (!fits)
            cut.append(label->text());
    }
    for (TovuButton *button : page->findChildren<TovuButton *>()) {
        if (button->isVisibleTo(page) && !button->text().isEmpty()
            && button->heightForWidth(button->width()) > button->height() + 1)
            cut.append(button->text());
    }
    return cut;
}

// Qt Quick texts that do not fit: elided or clipped, or wider than their item on one line.
QStringList cutQuickTexts(QQuickItem *page)
{
    QStringList cut;
    for (QQuickItem *item : page->findChildren<QQuickItem *>()) {
        if (!item->inherits("QQuickText") || !item->isVisible() || item->property("text").toString().isEmpty())
            continue;
        const bool oneLine = item->property("wrapMode").toInt() == 0;
        if (item->property("truncated").toBool() || (oneLine && item->implicitWidth() > item->width() + 1))
            cut.append(item->property("text").toString());
    }
    return cut;
}

void expectNone(const QStringList &texts, const char *what)
{
    EXPECT_TRUE(texts.isEmpty()) << what << ": " << texts.join(QStringLiteral(" | ")).toStdString();
}

struct Page {
    const char *name;
    TovuPageRequest request;
    std::function<void(QObject *model)> act = {};
};

class LibraryTexts : public testing::Test
{
protected:
    void SetUp() override
    {
        TovuMotion::setDurationScale(0);
        QCoreApplication::installTranslator(&pseudo);
    }
    void TearDown() override
    {
        QCoreApplication::removeTranslator(&pseudo);
        TovuMotion::setDurationScale(1);
    }

    // Shows the page in both front ends at a phone's width and checks its texts.
    void check(const char *name, const std::function<QWidget *()> &makeWidget,
               const std::function<QQuickItem *(QQmlEngine *)> &makeItem, const QStringList &survey)
    {
        SCOPED_TRACE(name);
        std::unique_ptr<QWidget> widgetPage(makeWidget());
        widgetPage->resize(phoneWidth, widgetPage->heightForWidth(phoneWidth));
        widgetPage->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(widgetPage.get()));
        expectNone(untranslated(widgetPage.get(), survey), "Qt Widgets: left in English");
        EXPECT_GT(markedCount(widgetPage.get()), 0) << "Qt Widgets";
        expectNone(cutWidgetTexts(widgetPage.get()), "Qt Widgets: cut");

        QQuickWindow window;
        window.resize(phoneWidth, 844);
        std::unique_ptr<QQuickItem> quickPage(makeItem(TovuQuickPresenter::engineFor(&window)));
        ASSERT_TRUE(quickPage);
        quickPage->setParentItem(window.contentItem());
        quickPage->setWidth(phoneWidth);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        ASSERT_TRUE(QTest::qWaitFor([&] { return quickPage->height() > 0; }, 2000));
        expectNone(untranslated(quickPage.get(), survey), "Qt Quick: left in English");
        EXPECT_GT(markedCount(quickPage.get()), 0) << "Qt Quick";
        expectNone(cutQuickTexts(quickPage.get()), "Qt Quick: cut");
    }

    void check(const Page &page)
    {
        check(
            page.name,
            [&] {
                QWidget *widget = TovuSheetPresenter::createPage(page.request);
                if (page.act)
                    page.act(widget->findChild<TovuQuestionViewModel *>());
                return widget;
            },
            [&](QQmlEngine *engine) {
                QQuickItem *item = TovuQuickPresenter::createPage(engine, page.request);
                if (page.act && item)
                    page.act(item->property("model").value<QObject *>());
                return item;
            },
            surveyTexts(page.request.question));
    }

    PseudoTranslator pseudo;
};

void submit(QObject *model)
{
    qobject_cast<TovuQuestionViewModel *>(model)->submit();
}

} // namespace

TEST_F(LibraryTexts, EveryPageShowsTheLibrarysTextsTranslatedAndUncut)
{
    const std::string title = "How did you hear about us?";
    const auto question = [&](TovuQuestionType type) {
        return TovuQuestion{
            .id = "q", .type = type, .title = title, .isRequired = true, .options = choices({"A friend", "Search"})};
    };
    TovuQuestion nps{.id = "nps",
                     .type = TovuQuestionType::nps,
                     .title = "Would you recommend us?",
                     .followUpQuestion = "What made you choose that?"};
    nps.conditionalFollowUps = std::vector<TovuConditionalFollowUp>{{.minRating = 0,
                                                                     .maxRating = 6,
                                                                     .followUpQuestion = "What went wrong?",
                                                                     .followUpType = TovuQuestionType::singleChoice,
                                                                     .followUpOptions = choices({"Price"})}};
    const auto score = [](int chosen) {
        return [chosen](QObject *model) {
            QMetaObject::invokeMethod(model, "selectScore", Q_ARG(int, chosen));
        };
    };
    TovuQuestion rating{
        .id = "r", .type = TovuQuestionType::rating, .title = "Your delivery?", .followUpQuestion = "Tell us more"};
    TovuQuestion grid = question(TovuQuestionType::multiRating);
    grid.columns = choices({"Poor", "Good"});
    const TovuQuestion thankYou{.id = "thank_you_auto", .type = TovuQuestionType::thankYou, .title = "Thanks"};

    const Page pages[] = {
        {"single choice, refused", {.question = question(TovuQuestionType::singleChoice)}, submit},
        {"multiple choice, refused", {.question = question(TovuQuestionType::multipleChoice)}, submit},
        {"dropdown, open",
         {.question = question(TovuQuestionType::dropdown)},
         [](QObject *model) {
             qobject_cast<TovuDropdownQuestionViewModel *>(model)->toggleExpanded();
         }},
        {"dropdown, refused", {.question = question(TovuQuestionType::dropdown)}, submit},
        {"one text box, refused",
         {.question
          = TovuQuestion{.id = "t", .type = TovuQuestionType::singleTextBox, .title = title, .isRequired = true}},
         submit},
        {"default text boxes",
         {.question = TovuQuestion{.id = "t", .type = TovuQuestionType::multipleTextBox, .title = title}}},
        {"NPS, text follow-up", {.question = nps}, score(9)},
        {"NPS, choice follow-up", {.question = nps}, score(3)},
        {"multi-NPS, refused", {.question = question(TovuQuestionType::multiNps)}, submit},
        {"rating with follow-up",
         {.question = rating},
         [](QObject *model) {
             qobject_cast<TovuRatingQuestionViewModel *>(model)->rate(3);
         }},
        {"numeric rating", {.question = rating, .variant = TovuRatingVariant::numeric}},
        {"multi-rating, refused", {.question = grid, .isLastQuestion = true}, submit},
        {"multi-rating faces", {.question = grid, .variant = TovuRatingVariant::emoji}},
        {"thank-you", {.question = thankYou}},
    };
    for (const Page &page : pages)
        check(page);

    const TovuSurveyPage intro{.enabled = true, .content = "Three short questions."};
    check(
        "intro", [&] { return new TovuIntroView(intro); },
        [&](QQmlEngine *engine) { return TovuQuickPresenter::createIntroPage(engine, intro, {}); },
        {QStringLiteral("Three short questions.")});
}

// Through the manager, as a host does (QML calls the same invokable): the sheet of
// each front end speaks the forced language, English comes back word for word, and
// Arabic turns the sheet right to left in this left-to-right app; a replaced text
// shows in any language.
TEST(LibraryLanguage, ForcedLanguageReachesBothSheets)
{
    TovuMotion::setDurationScale(0);
    TovuMemoryKeyValueStore store;
    TovuManualPathMonitor monitor;
    TovuRecordingUrlOpener opener;
    TovuNativeSurveyManager manager{{&TovuNetworkService::shared(), &store, &monitor, nullptr, &opener, nullptr}};
    const TovuQuestion question{.id = "q",
                                .type = TovuQuestionType::singleChoice,
                                .title = "Which one?",
                                .isRequired = true,
                                .options = choices({"Apples", "Pears"})};
    manager.configure(TovuSurvey{.id = "s", .name = "Language", .questions = {question}});

    QWidget widgetHost;
    QQuickWindow quickHost;
    quickHost.resize(phoneWidth, 844);
    widgetHost.resize(phoneWidth, 844);
    widgetHost.show();
    quickHost.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widgetHost));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&quickHost));

    struct Reading {
        QStringList spoken; ///< after Next was tapped with nothing chosen
        bool skipOnTheLeft = false;
    };
    // The page as a screen reader finds it, after tapping the action button unanswered.
    const auto read = [&](QObject *host, const QString &next, const QString &skip) {
        Reading reading;
        manager.presentSurvey(host);
        QObject *sheet = nullptr;
        EXPECT_TRUE(QTest::qWaitFor([&] { return (sheet = manager.currentSheet()); }, 2000));
        if (!sheet)
            return reading;
        const auto control = [&](const QString &name) {
            QAccessibleInterface *found = nullptr;
            EXPECT_TRUE(QTest::qWaitFor([&] { return (found = TovuQuickSurveyClicker::control(sheet, name)); }, 2000))
                << name.toStdString();
            return found;
        };
        const auto click = [&](QAccessibleInterface *node) {
            if (auto *widget = qobject_cast<QWidget *>(node->object()))
                QTest::mouseClick(widget, Qt::LeftButton);
            else
                EXPECT_TRUE(TovuQuickSurveyClicker::click(&quickHost, node));
            QCoreApplication::processEvents();
        };
        if (QAccessibleInterface *action = control(next))
            click(action);
        if (QAccessibleInterface *skipButton = control(skip)) {
            const auto *widget = qobject_cast<QWidget *>(host);
            const int left = widget ? widget->mapToGlobal(QPoint()).x() : quickHost.mapToGlobal(QPoint()).x();
            reading.skipOnTheLeft = skipButton->rect().center().x() - left < phoneWidth / 2;
            reading.spoken = spokenTexts(sheet);
            click(skipButton);
        }
        EXPECT_TRUE(QTest::qWaitFor([&] { return !manager.currentSheet(); }, 2000));
        return reading;
    };

    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QLocale german(QLocale::German, QLocale::Germany);
    const QString englishNext = QStringLiteral("Next \u2192");
    const QString englishMessage = QStringLiteral("Please select an option.");
    const QString germanNext = QStringLiteral("Weiter \u2192");
    const QString germanSkip = QStringLiteral("\u00DCberspringen");
    const QString germanMessage = QStringLiteral("Bitte w\u00E4hlen Sie eine Option.");
    // Unforced, the host's locale decides; forced, the host's locale does not matter.
    const struct {
        QLocale host;
        QString language;
        QString next;
        QString skip;
        QString message;
        bool rightToLeft;
    } steps[] = {
        {english, {}, englishNext, QStringLiteral("Skip"), englishMessage, false},
        {german, {}, germanNext, germanSkip, germanMessage, false},
        {german, QStringLiteral("en"), englishNext, QStringLiteral("Skip"), englishMessage, false},
        {english, QStringLiteral("de"), germanNext, germanSkip, germanMessage, false},
        {english, QStringLiteral("ar"), QStringLiteral("\u0627\u0644\u062A\u0627\u0644\u064A \u2190"),
         QStringLiteral("\u062A\u062E\u0637\u064D\u0651"),
         QStringLiteral("\u064A\u064F\u0631\u062C\u0649 \u0627\u062E\u062A\u064A\u0627\u0631 \u0623\u062D\u062F "
                        "\u0627\u0644\u062E\u064A\u0627\u0631\u0627\u062A."),
         true},
    };
    std::map<QObject *, QStringList> inEnglish;
    for (const auto &step : steps) {
        SCOPED_TRACE(QString(step.host.name() + u' ' + step.language).toStdString());
        QLocale::setDefault(step.host);
        ASSERT_TRUE(QMetaObject::invokeMethod(&manager, "setLanguage", Q_ARG(QString, step.language)));
        for (QObject *host : {static_cast<QObject *>(&widgetHost), static_cast<QObject *>(&quickHost)}) {
            SCOPED_TRACE(host->metaObject()->className());
            const Reading reading = read(host, step.next, step.skip);
            EXPECT_TRUE(reading.spoken.contains(step.message)) << reading.spoken.join(u'|').toStdString();
            EXPECT_EQ(reading.skipOnTheLeft, step.rightToLeft);
            if (step.host == english && step.language.isEmpty()) {
                inEnglish[host] = reading.spoken;
            } else if (step.next == englishNext) {
                EXPECT_EQ(reading.spoken, inEnglish[host]) << "English word for word";
            }
        }
    }
    // One text replaced by its English wording, whatever the language.
    const QString onward = QStringLiteral("Onward");
    manager.setLanguage(QLocale(QLocale::German));
    ASSERT_TRUE(QMetaObject::invokeMethod(&manager, "setText", Q_ARG(QString, englishNext), Q_ARG(QString, onward)));
    for (QObject *host : {static_cast<QObject *>(&widgetHost), static_cast<QObject *>(&quickHost)})
        EXPECT_TRUE(read(host, onward, germanSkip).spoken.contains(onward));
    manager.setText(englishNext, QString());

    manager.setLanguage(QString());
    QLocale::setDefault(QLocale::c());
    TovuMotion::setDurationScale(1);
}
