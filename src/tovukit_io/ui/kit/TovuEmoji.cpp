#include <tovukit_io/ui/kit/TovuEmoji.h>

#include <QGuiApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>

QString TovuEmoji::family()
{
    return QStringLiteral("Noto Color Emoji");
}

QFont TovuEmoji::font(qreal pixelSize)
{
    QFont result = withEmoji(QGuiApplication::font());
    const qreal size = std::isfinite(pixelSize) ? pixelSize : 1;
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(std::min<qreal>(size, 4096)))));
    return result;
}

QFont TovuEmoji::withEmoji(const QFont &base)
{
    QStringList families = base.families();
    if (families.isEmpty() && !base.family().isEmpty())
        families.append(base.family());
    families.removeAll(family());
    families.prepend(family());
    QFont result = base;
    result.setFamilies(families);
    return result;
}
