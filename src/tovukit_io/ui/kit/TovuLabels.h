#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QLabel;
class QWidget;

/// The one way the views make labels: plain text (markup is shown, never interpreted),
/// word wrap, the given font and colour, and the text as accessible name.
///
/// \code
/// QLabel *title = TovuLabels::plain(question.title, engine.font(18, QFont::Bold), engine.textColor(), this);
/// TovuLabels::setText(title, nextQuestion.title); // later: text and accessible name together
/// \endcode
class TovuLabels
{
public:
    /// An invalid `color` keeps the colour the label inherits from its palette.
    static QLabel *plain(const QString &text, const QFont &font, const QColor &color, QWidget *parent = nullptr);
    /// Changes a label's text and its accessible name together.
    static void setText(QLabel *label, const QString &text);
    /// Changes a label's text colour; an invalid `color` goes back to the inherited one.
    static void setColor(QLabel *label, const QColor &color);

    TovuLabels() = delete;
};
