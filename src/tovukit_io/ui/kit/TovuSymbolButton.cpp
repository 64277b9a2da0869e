#include <tovukit_io/ui/kit/TovuSymbolButton.h>

#include <tovukit_io/graphics/TovuSymbol.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

TovuSymbolButton::TovuSymbolButton(const QString &symbolName, QWidget *parent)
    : TovuButton(QString(), parent)
    , m_symbolName(symbolName)
{
    setBackgroundColor(Qt::transparent);
    setContentInsets(QMargins());
    // No title to wrap: the size is the symbol's.
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(false);
    setSizePolicy(policy);
}

QString TovuSymbolButton::symbolName() const
{
    return m_symbolName;
}

void TovuSymbolButton::setSymbolName(const QString &name)
{
    if (m_symbolName == name)
        return;
    m_symbolName = name;
    update();
}

QColor TovuSymbolButton::symbolTint() const
{
    return m_symbolTint.isValid() ? m_symbolTint : TovuPlatformColors::color(TovuPlatformColors::Role::gray3);
}

void TovuSymbolButton::setSymbolTint(const QColor &color)
{
    if (m_symbolTint == color)
        return;
    m_symbolTint = color;
    update();
}

qreal TovuSymbolButton::symbolPointSize() const
{
    return m_symbolPointSize;
}

void TovuSymbolButton::setSymbolPointSize(qreal size)
{
    size = std::isfinite(size) ? std::max<qreal>(0, size) : 0;
    if (m_symbolPointSize == size)
        return;
    m_symbolPointSize = size;
    updateGeometry();
    update();
}

QFont::Weight TovuSymbolButton::symbolWeight() const
{
    return m_symbolWeight;
}

void TovuSymbolButton::setSymbolWeight(QFont::Weight weight)
{
    if (m_symbolWeight == weight)
        return;
    m_symbolWeight = weight;
    update();
}

QSize TovuSymbolButton::sizeHint() const
{
    const QMargins insets = contentInsets();
    const int side = static_cast<int>(std::ceil(m_symbolPointSize));
    return QSize(side + insets.left() + insets.right(), side + insets.top() + insets.bottom());
}

QSize TovuSymbolButton::minimumSizeHint() const
{
    return sizeHint();
}

bool TovuSymbolButton::hasHeightForWidth() const
{
    return false;
}

int TovuSymbolButton::heightForWidth(int) const
{
    return sizeHint().height();
}

void TovuSymbolButton::paintLabel(QPainter &painter, const QRectF &contentRect)
{
    const qreal side = m_symbolPointSize;
    const QRectF square(contentRect.center() - QPointF(side / 2, side / 2), QSizeF(side, side));
    TovuSymbol::paint(painter, square, m_symbolName, m_symbolWeight, symbolTint());
}
