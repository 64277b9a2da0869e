#include "TovuDemoInput.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

void TovuDemoInput::click(QWidget *widget)
{
    if (!widget)
        return;
    const QPointF local = QRectF(widget->rect()).center();
    const QPointF global = widget->mapToGlobal(local);
    QMouseEvent press(QEvent::MouseButtonPress, local, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, local, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &release);
}

void TovuDemoInput::type(QWidget *widget, const QString &text)
{
    if (!widget)
        return;
    for (const QChar ch : text) {
        // Printable ASCII keys are their upper-case character codes; others travel as text alone.
        const char16_t code = ch.toUpper().unicode();
        const int key = code >= 0x20 && code < 0x7F ? int(code) : int(Qt::Key_unknown);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(ch));
        QCoreApplication::sendEvent(widget, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, QString(ch));
        QCoreApplication::sendEvent(widget, &release);
    }
}
