#include <tovukit_io/ui/kit/TovuLabels.h>

#include "TovuPlainLabel.h"

#include <QLabel>
#include <QPalette>

QLabel *TovuLabels::plain(const QString &text, const QFont &font, const QColor &color, QWidget *parent)
{
    auto *label = new TovuPlainLabel(parent);
    // Before the text: with the default automatic format the first setText could take
    // survey text for rich text.
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(font);
    setColor(label, color);
    setText(label, text);
    return label;
}

void TovuLabels::setText(QLabel *label, const QString &text)
{
    if (!label)
        return;
    label->setText(text);
    label->setAccessibleName(text);
}

void TovuLabels::setColor(QLabel *label, const QColor &color)
{
    if (!label)
        return;
    if (!color.isValid()) {
        // An empty palette sets nothing: the label inherits every role again.
        label->setPalette(QPalette());
        return;
    }
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
}
