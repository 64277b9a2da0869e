#include <tovukit_io/quick/TovuQuickStyle.h>

#include <tovukit_io/graphics/TovuEmoji.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>
#include <tovukit_io/viewmodel/TovuTranslations.h>

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QPointer>
#include <QPropertyAnimation>
#include <QTimer>

#include <vector>

namespace {

using Role = TovuPlatformColors::Role;

// One singleton per QML engine; all of them follow a theme change.
std::vector<QPointer<TovuQuickStyle>> &styles()
{
    static std::vector<QPointer<TovuQuickStyle>> list;
    return list;
}

} // namespace

TovuQuickStyle::TovuQuickStyle(QObject *parent)
    : QObject(parent)
{
    std::erase_if(styles(), [](const QPointer<TovuQuickStyle> &style) { return style.isNull(); });
    styles().emplace_back(this);
    if (QCoreApplication *application = QCoreApplication::instance())
        application->installEventFilter(this);
}

TovuQuickStyle::~TovuQuickStyle() = default;

void TovuQuickStyle::refreshAll()
{
    for (const QPointer<TovuQuickStyle> &style : styles()) {
        if (style)
            Q_EMIT style->changed();
    }
}

namespace {

bool keysInUse = false;

} // namespace

bool TovuQuickStyle::keyboardNavigation()
{
    return keysInUse;
}

void TovuQuickStyle::setKeyboardNavigation(bool keys)
{
    if (keysInUse == keys)
        return;
    keysInUse = keys;
    for (const QPointer<TovuQuickStyle> &style : styles()) {
        if (style)
            Q_EMIT style->keyboardNavigationChanged();
    }
}

bool TovuQuickStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == QCoreApplication::instance() && event->type() == QEvent::ApplicationPaletteChange)
        Q_EMIT changed();
    return QObject::eventFilter(watched, event);
}

QColor TovuQuickStyle::primaryColor() const
{
    return TovuThemeEngine::shared().primaryColor(QGuiApplication::palette());
}

QColor TovuQuickStyle::backgroundColor() const
{
    return TovuThemeEngine::shared().backgroundColor();
}

QColor TovuQuickStyle::textColor() const
{
    return TovuThemeEngine::shared().textColor();
}

qreal TovuQuickStyle::cornerRadius() const
{
    return TovuThemeEngine::shared().cornerRadius();
}

QColor TovuQuickStyle::label() const
{
    return TovuPlatformColors::color(Role::label);
}

QColor TovuQuickStyle::secondaryLabel() const
{
    return TovuPlatformColors::color(Role::secondaryLabel);
}

QColor TovuQuickStyle::systemBackground() const
{
    return TovuPlatformColors::color(Role::systemBackground);
}

QColor TovuQuickStyle::gray() const
{
    return TovuPlatformColors::color(Role::gray);
}

QColor TovuQuickStyle::gray2() const
{
    return TovuPlatformColors::color(Role::gray2);
}

QColor TovuQuickStyle::gray3() const
{
    return TovuPlatformColors::color(Role::gray3);
}

QColor TovuQuickStyle::gray4() const
{
    return TovuPlatformColors::color(Role::gray4);
}

QColor TovuQuickStyle::gray5() const
{
    return TovuPlatformColors::color(Role::gray5);
}

QColor TovuQuickStyle::gray6() const
{
    return TovuPlatformColors::color(Role::gray6);
}

QColor TovuQuickStyle::red() const
{
    return TovuPlatformColors::color(Role::red);
}

QFont TovuQuickStyle::font(qreal size, int weight) const
{
    return TovuThemeEngine::shared().font(size, static_cast<QFont::Weight>(weight));
}

QFont TovuQuickStyle::emojiFont(qreal pixelSize) const
{
    return TovuEmoji::font(pixelSize);
}

int TovuQuickStyle::durationMs(qreal seconds) const
{
    return TovuMotion::durationMs(seconds);
}

QColor TovuQuickStyle::withAlpha(const QColor &color, qreal alpha) const
{
    QColor result = color;
    result.setAlphaF(static_cast<float>(alpha));
    return result;
}

bool TovuQuickStyle::isRightToLeft() const
{
    return TovuTranslations::layoutDirection() == Qt::RightToLeft;
}

void TovuQuickStyle::spring(QObject *target, const QString &property, qreal from, qreal to, qreal seconds,
                            qreal dampingRatio, qreal initialVelocity, qreal delaySeconds) const
{
    if (!target)
        return;
    const QByteArray name = property.toUtf8();
    target->setProperty(name.constData(), from);
    const int duration = TovuMotion::durationMs(seconds);
    if (duration <= 0) {
        target->setProperty(name.constData(), to);
        return;
    }
    auto *animation = new QPropertyAnimation(target, name, target);
    animation->setStartValue(from);
    animation->setEndValue(to);
    animation->setDuration(duration);
    animation->setEasingCurve(TovuMotion::spring(dampingRatio, initialVelocity));
    QTimer::singleShot(TovuMotion::durationMs(delaySeconds), animation,
                       [animation] { animation->start(QAbstractAnimation::DeleteWhenStopped); });
}
