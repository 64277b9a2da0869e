#include "TovuDemoInput.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

void TovuDemoInput::click(QObject *receiver, const QPointF &position, const QPointF &global)
{
    if (!receiver)
        return;
    QMouseEvent press(QEvent::MouseButtonPress, position, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(receiver, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, position, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(receiver, &release);
}

void TovuDemoInput::type(QObject *receiver, const QString &text)
{
    if (!receiver)
        return;
    for (const QChar ch : text) {
        // Printable ASCII keys are their upper-case character codes; others travel as text alone.
        const char16_t code = ch.toUpper().unicode();
        const int key = code >= 0x20 && code < 0x7F ? int(code) : int(Qt::Key_unknown);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(ch));
        QCoreApplication::sendEvent(receiver, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, QString(ch));
        QCoreApplication::sendEvent(receiver, &release);
    }
}
