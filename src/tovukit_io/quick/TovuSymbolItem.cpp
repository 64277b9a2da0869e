#include <tovukit_io/quick/TovuSymbolItem.h>

#include <tovukit_io/graphics/TovuEmoji.h>
#include <tovukit_io/graphics/TovuSymbol.h>

#include <QPainter>

TovuSymbolItem::TovuSymbolItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void TovuSymbolItem::setName(const QString &name)
{
    if (m_name == name)
        return;
    m_name = name;
    update();
    Q_EMIT nameChanged();
}

void TovuSymbolItem::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
    Q_EMIT colorChanged();
}

void TovuSymbolItem::setWeight(int weight)
{
    if (m_weight == weight)
        return;
    m_weight = weight;
    update();
    Q_EMIT weightChanged();
}

void TovuSymbolItem::setFace(const QString &face)
{
    if (m_face == face)
        return;
    m_face = face;
    update();
    Q_EMIT faceChanged();
}

void TovuSymbolItem::setFaceSize(qreal size)
{
    if (m_faceSize == size)
        return;
    m_faceSize = size;
    update();
    Q_EMIT faceChanged();
}

void TovuSymbolItem::paint(QPainter *painter)
{
    if (!m_face.isEmpty()) {
        TovuEmoji::drawText(*painter, boundingRect(), Qt::AlignCenter, m_face, TovuEmoji::font(m_faceSize), m_color);
        return;
    }
    TovuSymbol::paint(*painter, boundingRect(), m_name, static_cast<QFont::Weight>(m_weight), m_color);
}
