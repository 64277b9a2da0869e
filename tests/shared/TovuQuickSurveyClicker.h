#pragma once

// Answers whatever page a Qt Quick survey sheet shows, as a respondent with a
// screen reader would: it finds controls by their accessible role and name and
// operates them with real clicks and key presses on the window. It remembers
// what each answer must hold.

#include "TovuAnsweredPages.h"

#include <tovukit_io/quick/TovuQuickSheet.h>
#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuIntroViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuTextBoxQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <functional>
#include <string>
#include <vector>

class TovuQuickSurveyClicker
{
public:
    using Expected = TovuAnsweredPages::Expected;

    /// Accessible nodes below `root`, depth first, with `role` (and `name`, when given).
    /// An item a screen reader does not see itself is looked through.
    static std::vector<QAccessibleInterface *> nodes(QObject *root, QAccessible::Role role, const QString &name = {})
    {
        std::vector<QAccessibleInterface *> found;
        if (QAccessibleInterface *node = QAccessible::queryAccessibleInterface(root)) {
            collect(node, role, name, found);
        } else if (auto *item = qobject_cast<QQuickItem *>(root)) {
            for (QQuickItem *child : item->childItems()) {
                for (QAccessibleInterface *match : nodes(child, role, name))
                    found.push_back(match);
            }
        }
        return found;
    }

    static QAccessibleInterface *node(QObject *root, QAccessible::Role role, const QString &name)
    {
        const auto found = nodes(root, role, name);
        return found.empty() ? nullptr : found.front();
    }

    /// The button or checkable row `name` below `root`.
    static QAccessibleInterface *control(QObject *root, const QString &name)
    {
        QAccessibleInterface *button = node(root, QAccessible::Button, name);
        return button ? button : node(root, QAccessible::CheckBox, name);
    }

    /// The names of the visible texts below `root`, in order.
    static QStringList texts(QObject *root)
    {
        QStringList names;
        for (QAccessibleInterface *text : nodes(root, QAccessible::StaticText))
            names.append(text->text(QAccessible::Name));
        return names;
    }

    /// Scrolls what `node` shows into the view that clips it, as a respondent's
    /// swipe would.
    static void scrollIntoView(QAccessibleInterface *node)
    {
        auto *item = node ? qobject_cast<QQuickItem *>(node->object()) : nullptr;
        QQuickItem *view = item ? item->parentItem() : nullptr;
        while (view && !view->inherits("QQuickFlickable"))
            view = view->parentItem();
        if (!view)
            return;
        const QRectF place = item->mapRectToItem(view, item->boundingRect());
        qreal shift = 0;
        if (place.bottom() > view->height())
            shift = place.bottom() - view->height();
        if (place.top() - shift < 0)
            shift = place.top();
        if (shift != 0)
            view->setProperty("contentY", view->property("contentY").toReal() + shift);
    }

    /// A real click in the middle of what `node` covers, scrolled into view first.
    static bool click(QQuickWindow *window, QAccessibleInterface *node)
    {
        if (!node || !window)
            return false;
        // Let pending layout (positioners, anchors) settle first, as a frame would.
        QCoreApplication::processEvents();
        scrollIntoView(node);
        const QPoint centre = window->mapFromGlobal(node->rect().center());
        QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, centre);
        return true;
    }

    /// Waits for the button or row `name` below `root`, then clicks it.
    static bool clickButton(QQuickWindow *window, QObject *root, const QString &name)
    {
        QAccessibleInterface *button = nullptr;
        const bool found
            = QTest::qWaitFor([&] { return (button = control(root, name)) && !button->rect().isEmpty(); }, 2000);
        return found && click(window, button);
    }

    /// Clicks into the field `name` and types `text` (ASCII), key by key.
    static bool type(QQuickWindow *window, QObject *root, const QString &name, const QString &text)
    {
        if (!click(window, node(root, QAccessible::EditableText, name)))
            return false;
        for (const QChar c : text)
            QTest::keyClick(window, c.toLatin1());
        return true;
    }

    /// Answers the page on screen. Returns false for a page with nothing to answer.
    bool answer(QQuickWindow *window, QQuickItem *page)
    {
        if (!page || !QTest::qWaitFor([page] { return page->isVisible() && page->height() > 0; }, 2000))
            return false;
        QObject *model = page->property("model").value<QObject *>();
        if (auto *intro = qobject_cast<TovuIntroViewModel *>(model))
            return clickButton(window, page, intro->buttonTitle());
        if (qobject_cast<TovuThankYouViewModel *>(model))
            return false;
        if (auto *single = qobject_cast<TovuSingleChoiceQuestionViewModel *>(model))
            this->single(window, page, *single);
        else if (auto *multiple = qobject_cast<TovuMultipleChoiceQuestionViewModel *>(model))
            this->multiple(window, page, *multiple);
        else if (auto *dropdown = qobject_cast<TovuDropdownQuestionViewModel *>(model))
            this->dropdown(window, page, *dropdown);
        else if (auto *textBox = qobject_cast<TovuTextBoxQuestionViewModel *>(model))
            this->textBox(window, page, *textBox);
        else if (auto *nps = qobject_cast<TovuNPSQuestionViewModel *>(model))
            this->nps(window, page, *nps);
        else if (auto *rows = qobject_cast<TovuMultiNPSQuestionViewModel *>(model))
            this->multiNps(window, page, *rows);
        else if (auto *rating = qobject_cast<TovuRatingQuestionViewModel *>(model))
            this->rating(window, page, *rating);
        auto *question = qobject_cast<TovuQuestionViewModel *>(model);
        return question && clickButton(window, page, question->actionTitle());
    }

    /// Answers page after page until a page with nothing to answer (the
    /// thank-you page) or no sheet; returns the pages answered.
    int answerAll(QQuickWindow *window, const std::function<TovuQuickSheet *()> &sheet, int limit = 40)
    {
        const auto current = [&]() -> QQuickItem * {
            return sheet() ? sheet()->currentPage() : nullptr;
        };
        int answered = 0;
        for (QPointer<QQuickItem> page = current(); page && answered < limit; ++answered) {
            if (!answer(window, page))
                break;
            // The next page replaces this one (or the sheet goes).
            if (!QTest::qWaitFor([&] { return !page || current() != page.data(); }, 5000))
                break;
            page = current();
        }
        return answered;
    }

    std::vector<Expected> expected;

private:
    static void collect(QAccessibleInterface *node, QAccessible::Role role, const QString &name,
                        std::vector<QAccessibleInterface *> &found)
    {
        if (!node || node->state().invisible)
            return;
        if (node->role() == role && (name.isEmpty() || node->text(QAccessible::Name) == name))
            found.push_back(node);
        for (int i = 0; i < node->childCount(); ++i)
            collect(node->child(i), role, name, found);
    }

    static std::string id(const QStringList &ids, int index) { return ids.at(index).toStdString(); }

    void single(QQuickWindow *window, QQuickItem *page, const TovuSingleChoiceQuestionViewModel &model)
    {
        const int choice = std::min(1, static_cast<int>(model.optionTexts().size()) - 1);
        clickButton(window, page, model.optionTexts().at(choice));
        expected.push_back({model.questionId().toStdString(), {id(model.optionIds(), choice)}, {}});
    }

    void multiple(QQuickWindow *window, QQuickItem *page, const TovuMultipleChoiceQuestionViewModel &model)
    {
        Expected e{model.questionId().toStdString(), {}, {}};
        for (int index = 0; index < model.optionTexts().size(); index += 2) {
            clickButton(window, page, model.optionTexts().at(index));
            e.rowIds.push_back(id(model.optionIds(), index));
        }
        expected.push_back(e);
    }

    void dropdown(QQuickWindow *window, QQuickItem *page, const TovuDropdownQuestionViewModel &model)
    {
        clickButton(window, page, model.selectorTitle());
        const int choice = std::min(2, static_cast<int>(model.optionTexts().size()) - 1);
        clickButton(window, page, model.optionTexts().at(choice));
        expected.push_back({model.questionId().toStdString(), {id(model.optionIds(), choice)}, {}});
    }

    void nps(QQuickWindow *window, QQuickItem *page, const TovuNPSQuestionViewModel &model)
    {
        clickButton(window, page, QStringLiteral("Score 9"));
        if (!model.followUpOptionTexts().isEmpty())
            clickButton(window, page, model.followUpOptionTexts().first());
        else if (model.isFollowUpShown())
            type(window, page, model.followUpQuestion(), QStringLiteral("Quick delivery"));
        expected.push_back({model.questionId().toStdString(), {}, {}});
    }

    void multiNps(QQuickWindow *window, QQuickItem *page, const TovuMultiNPSQuestionViewModel &model)
    {
        for (QAccessibleInterface *eight : nodes(page, QAccessible::Button, QStringLiteral("Score 8")))
            click(window, eight);
        expected.push_back({model.questionId().toStdString(), {}, {}});
    }

    void rating(QQuickWindow *window, QQuickItem *page, const TovuRatingQuestionViewModel &model)
    {
        clickButton(window, page, model.accessibleName(std::min(4, model.buttonCount())));
        expected.push_back({model.questionId().toStdString(), {}, {}});
    }

    void textBox(QQuickWindow *window, QQuickItem *page, const TovuTextBoxQuestionViewModel &model)
    {
        Expected e{model.questionId().toStdString(), {}, {}};
        for (int index = 0; index < model.fieldCount(); ++index) {
            const QString name = model.isMultiple() ? model.fieldLabels().at(index) : model.title();
            const std::string text = "Answer " + std::to_string(index + 1) + ", thanks";
            type(window, page, name, QString::fromStdString(text));
            e.texts.push_back(text);
        }
        expected.push_back(e);
    }
};
