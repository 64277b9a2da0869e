#pragma once

// The pieces every question page is built from, styled the same way on every
// page; not installed.

#include <tovukit_io/ui/kit/TovuButton.h>

#include <QColor>
#include <QFont>
#include <QList>
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
    /// The question title: 18 bold, any number of lines.
    static QLabel *titleLabel(const QString &text, QWidget *parent);
    /// A grey line under the title (12 regular).
    static QLabel *hintLabel(const QString &text, QWidget *parent);
    /// The red required-answer message (13 regular), hidden at first.
    static QLabel *validationLabel(const QString &text, QWidget *parent);
    /// The accent-filled action button: 16 semibold, white title, radius 12, height 50.
    static TovuButton *actionButton(const QString &title, QWidget *parent);
    /// An answer row with a radio or checkbox mark: 15 medium, leading title, radius 12,
    /// border 1.5, height 52, insets 14 / 48 / 14 / 16.
    static TovuButton *optionRow(const QString &text, TovuButton::Accessory accessory, QWidget *parent);

    /// A stack (spacing 10) of one option row per text, appended to `rows`; a tap on a
    /// row calls `tapped` with it.
    static QVBoxLayout *optionRows(const QStringList &texts, TovuButton::Accessory accessory, QWidget *page,
                                   QList<TovuButton *> &rows, const std::function<void(TovuButton *)> &tapped);

    /// Colours of a title or hint after a palette change.
    static void restyleTitle(QLabel *title);
    static void restyleHint(QLabel *hint);
    static void restyleValidation(QLabel *validation);
    static void restyleAction(TovuButton *action, const QColor &accent);
    /// Chosen: accent at 8 % behind an accent border, title and mark; else the platform look.
    static void restyleOptionRow(TovuButton *row, bool chosen, const QColor &accent);

    /// `color` at `alpha`.
    static QColor withAlpha(QColor color, qreal alpha);
    /// The theme's font, scaled by the survey's base size.
    static QFont font(qreal size, QFont::Weight weight);

    TovuQuestionParts() = delete;
};
