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
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuTextBoxQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QCoreApplication>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QtQuickTest/quicktest.h>

#include <functional>
#include <string>
#include <vector>

class TovuQuickSurveyClicker
{
public:
    using Expected = TovuAnsweredPages::Expected;
    using Pick = TovuAnsweredPages::Pick;

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
        for (const QAccessible::Role role : {QAccessible::Button, QAccessible::CheckBox, QAccessible::RadioButton}) {
            if (QAccessibleInterface *found = node(root, role, name))
                return found;
        }
        return nullptr;
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
        // A cell a row draws has no object of its own: its row is what scrolls.
        QObject *object = node ? node->object() : nullptr;
        if (node && !object && node->parent())
            object = node->parent()->object();
        auto *item = qobject_cast<QQuickItem *>(object);
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

    /// Answers with key presses alone: Tab to each control (arrows within a row of cells), Space to press it.
    static inline bool keyboardOnly = false;
    /// Answers through accessibility alone: press and toggle actions, text set as the field's value.
    static inline bool screenReaderOnly = false;

    /// Tabs to what `node` is (a cell of a row: Tab to its row, then arrows), then presses Space;
    /// a field is only reached, typing follows.
    static bool press(QQuickWindow *window, QAccessibleInterface *node)
    {
        auto *item = qobject_cast<QQuickItem *>(node->object());
        QAccessibleInterface *row = item ? nullptr : node->parent();
        QQuickItem *target = item ? item : qobject_cast<QQuickItem *>(row ? row->object() : nullptr);
        if (!target)
            return false;
        for (int presses = 0; presses < 120 && window->activeFocusItem() != target; ++presses)
            QTest::keyClick(window, Qt::Key_Tab);
        if (window->activeFocusItem() != target)
            return false;
        if (row) {
            const int cell = row->indexOfChild(node);
            for (int presses = 0; presses < 30 && target->property("currentIndex").toInt() != cell; ++presses) {
                const bool ahead = target->property("currentIndex").toInt() < cell;
                const bool mirrored = target->property("mirrored").toBool();
                QTest::keyClick(window, ahead != mirrored ? Qt::Key_Right : Qt::Key_Left);
            }
        }
        if (!(target->flags() & QQuickItem::ItemAcceptsInputMethod))
            QTest::keyClick(window, Qt::Key_Space);
        return true;
    }

    /// A real click in the middle of what `node` covers, scrolled into view first.
    static bool click(QQuickWindow *window, QAccessibleInterface *node)
    {
        if (!node || !window)
            return false;
        if (keyboardOnly)
            return press(window, node);
        if (screenReaderOnly) {
            // What a screen reader's user does: the control's own action, toggle or press.
            QAccessibleActionInterface *actions = node->actionInterface();
            if (!actions)
                return false;
            const bool toggles = actions->actionNames().contains(QAccessibleActionInterface::toggleAction());
            actions->doAction(toggles ? QAccessibleActionInterface::toggleAction()
                                      : QAccessibleActionInterface::pressAction());
            return true;
        }
        // Let pending layout (positioners, anchors) settle first: a respondent taps what a frame shows.
        QCoreApplication::processEvents();
        QQuickTest::qWaitForPolish(window);
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
        if (screenReaderOnly) {
            QAccessibleInterface *field = node(root, QAccessible::EditableText, name);
            if (!field)
                return false;
            if (QAccessibleEditableTextInterface *editable = field->editableTextInterface())
                editable->insertText(0, text);
            else
                field->setText(QAccessible::Value, text);
            return true;
        }
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
        const QPointer<QObject> guard(model);
        const QPointer<QQuickItem> pageGuard(page);
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
        else if (auto *grid = qobject_cast<TovuMultiRatingQuestionViewModel *>(model))
            this->multiRating(window, page, *grid);
        // A choice that hands the answer on by itself shows no action (and may have taken the page away).
        auto *question = qobject_cast<TovuQuestionViewModel *>(guard.data());
        if (!guard || !pageGuard || (question && !question->isActionVisible()))
            return true;
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

    void record(const TovuQuestionViewModel &model, int fieldCount = 0)
    {
        if (model.question())
            expected.push_back(TovuAnsweredPages::expectedFor(*model.question(), fieldCount));
    }

    void single(QQuickWindow *window, QQuickItem *page, const TovuSingleChoiceQuestionViewModel &model)
    {
        const int choice = std::min(Pick::singleChoice, static_cast<int>(model.optionTexts().size()) - 1);
        clickButton(window, page, model.optionTexts().at(choice));
        record(model);
    }

    void multiple(QQuickWindow *window, QQuickItem *page, const TovuMultipleChoiceQuestionViewModel &model)
    {
        for (int index = 0; index < model.optionTexts().size(); index += Pick::multipleChoiceStep)
            clickButton(window, page, model.optionTexts().at(index));
        record(model);
    }

    void dropdown(QQuickWindow *window, QQuickItem *page, const TovuDropdownQuestionViewModel &model)
    {
        clickButton(window, page, model.selectorTitle());
        const int choice = std::min(Pick::dropdown, static_cast<int>(model.optionTexts().size()) - 1);
        clickButton(window, page, model.optionTexts().at(choice));
        record(model);
    }

    void nps(QQuickWindow *window, QQuickItem *page, const TovuNPSQuestionViewModel &model)
    {
        clickButton(window, page, QStringLiteral("Score %1").arg(Pick::npsScore));
        if (!model.followUpOptionTexts().isEmpty())
            clickButton(window, page, model.followUpOptionTexts().first());
        else if (model.isFollowUpShown())
            type(window, page, model.followUpQuestion(), QString::fromUtf8(Pick::followUpText));
        record(model);
    }

    void multiNps(QQuickWindow *window, QQuickItem *page, const TovuMultiNPSQuestionViewModel &model)
    {
        for (QAccessibleInterface *score :
             nodes(page, QAccessible::Button, QStringLiteral("Score %1").arg(Pick::multiNpsScore)))
            click(window, score);
        record(model);
    }

    void rating(QQuickWindow *window, QQuickItem *page, const TovuRatingQuestionViewModel &model)
    {
        clickButton(window, page, model.accessibleName(std::min(Pick::rating, model.buttonCount())));
        record(model);
    }

    void multiRating(QQuickWindow *window, QQuickItem *page, const TovuMultiRatingQuestionViewModel &model)
    {
        const int position = std::min(Pick::gridColumn, model.columnCount());
        for (int row = 0; row < model.optionIds().size(); ++row)
            clickButton(window, page, model.accessibleName(row, position));
        record(model);
    }

    void textBox(QQuickWindow *window, QQuickItem *page, const TovuTextBoxQuestionViewModel &model)
    {
        for (int index = 0; index < model.fieldCount(); ++index) {
            const QString name = model.isMultiple() ? model.fieldLabels().at(index) : model.title();
            type(window, page, name, QString::fromStdString(Pick::fieldText(index)));
        }
        record(model, model.fieldCount());
    }
};
