#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// The soft shadow of a rounded box, `TovuBoxShadow` in QML: the same shadow the
/// widget pages' boxes cast. The item covers the area the shadow reaches (`spread`
/// beyond the box moved by `offsetY`), so place it around the box:
///
/// \qml
/// Rectangle {
///     id: box
///     TovuBoxShadow {
///         z: -1 // beneath the box
///         x: -spread; y: offsetY - spread
///         width: box.width + 2 * spread; height: box.height + 2 * spread
///         cornerRadius: box.radius; offsetY: 4; blurRadius: 8; color: Qt.rgba(0, 0, 0, 0.06)
///     }
/// }
/// \endqml
class TovuShadowItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TovuBoxShadow)
    Q_PROPERTY(qreal cornerRadius MEMBER m_cornerRadius NOTIFY lookChanged)
    Q_PROPERTY(qreal offsetY MEMBER m_offsetY NOTIFY lookChanged)
    Q_PROPERTY(qreal blurRadius MEMBER m_blurRadius NOTIFY lookChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY lookChanged)
    /// How far the shadow reaches beyond the box on every side.
    Q_PROPERTY(qreal spread READ spread NOTIFY lookChanged)

public:
    explicit TovuShadowItem(QQuickItem *parent = nullptr);

    qreal spread() const;
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void lookChanged();

private:
    qreal m_cornerRadius = 0;
    qreal m_offsetY = 0;
    qreal m_blurRadius = 0;
    QColor m_color = Qt::transparent;
};
