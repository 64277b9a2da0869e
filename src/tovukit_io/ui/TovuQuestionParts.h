#pragma once

// The pieces every question page is built from, styled the same way on every
// page; not installed.

#include <tovukit_io/ui/kit/TovuButton.h>

#include <QColor>
#include <QFont>
#include <QList>
#include <QMargins>
#include <QString>
#include <QStringList>

#include <functional>

class QLabel;
class QVBoxLayout;
class QWidget;

class TovuQuestionParts
{
public:
    /// A vertical stack with no margins, filling `page`.
    static QVBoxLayout *pageStack(QWidget *page, int spacing);
    /// A nested vertical stack with no margins.
    static QVBoxLayout *stack(int spacing);
    /// The question title: bold, any number of lines. Sizes are TovuPageMetrics'.
    static QLabel *titleLabel(const QString &text, QWidget *parent);
    /// A grey line under the title.
    static QLabel *hintLabel(const QString &text, QWidget *parent);
    /// The red required-answer message, hidden at first.
    static QLabel *validationLabel(const QString &text, QWidget *parent);
    /// The accent-filled action button: semibold white title.
    static TovuButton *actionButton(const QString &title, QWidget *parent);
    /// An answer row with a radio or checkbox mark: medium, leading title.
    static TovuButton *optionRow(const QString &text, TovuButton::Accessory accessory, QWidget *parent);

    /// A stack of one option row per text, appended to `rows`; a tap on a row calls
    /// `tapped` with it.
    static QVBoxLayout *optionRows(const QStringList &texts, TovuButton::Accessory accessory, QWidget *page,
                                   QList<TovuButton *> &rows, const std::function<void(TovuButton *)> &tapped);

    /// Colours of a title or hint after a palette change.
    static void restyleTitle(QLabel *title);
    static void restyleHint(QLabel *hint);
    static void restyleValidation(QLabel *validation);
    static void restyleAction(TovuButton *action, const QColor &accent);
    /// Chosen: a faint accent fill behind an accent border, title and mark; else the platform look.
    static void restyleOptionRow(TovuButton *row, bool chosen, const QColor &accent);

    /// `color` at `alpha`.
    static QColor withAlpha(QColor color, qreal alpha);
    /// What a chosen row or list entry is filled with.
    static QColor chosenFill(const QColor &accent);
    /// Leading, top and bottom, trailing.
    static QMargins insets(qreal leading, qreal vertical, qreal trailing);
    /// The theme's font, scaled by the survey's base size.
    static QFont font(qreal size, QFont::Weight weight);

    TovuQuestionParts() = delete;
};
