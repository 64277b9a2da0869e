#include <tovukit_io/ui/kit/TovuLabels.h>

#include <QLabel>
#include <QPalette>

QLabel *TovuLabels::plain(const QString &text, const QFont &font, const QColor &color, QWidget *parent)
{
    auto *label = new QLabel(parent);
    // Before the text: with the default automatic format the first setText could take
    // survey text for rich text.
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(font);
    if (color.isValid()) {
        QPalette palette = label->palette();
        palette.setColor(QPalette::WindowText, color);
        label->setPalette(palette);
    }
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
