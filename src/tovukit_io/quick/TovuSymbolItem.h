#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// A drawn symbol ("checkmark", "chevron.down", "checkmark.circle.fill", …) as a
/// Qt Quick item, `TovuSymbolIcon` in QML: the same drawing the Qt Widgets pages use.
/// With a `face` (emoji text) it draws that instead, centred at `faceSize` pixels, from
/// a picture made once: Qt Quick's text would decode the colour glyphs on every frame.
class TovuSymbolItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TovuSymbolIcon)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /// A QFont::Weight (Font.Normal, Font.DemiBold, …).
    Q_PROPERTY(int weight READ weight WRITE setWeight NOTIFY weightChanged)
    Q_PROPERTY(QString face READ face WRITE setFace NOTIFY faceChanged)
    Q_PROPERTY(qreal faceSize READ faceSize WRITE setFaceSize NOTIFY faceChanged)

public:
    explicit TovuSymbolItem(QQuickItem *parent = nullptr);

    QString name() const { return m_name; }
    void setName(const QString &name);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    int weight() const { return m_weight; }
    void setWeight(int weight);
    QString face() const { return m_face; }
    void setFace(const QString &face);
    qreal faceSize() const { return m_faceSize; }
    void setFaceSize(qreal size);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void nameChanged();
    void colorChanged();
    void weightChanged();
    void faceChanged();

private:
    QString m_name;
    QColor m_color = Qt::black;
    int m_weight = QFont::Normal;
    QString m_face;
    qreal m_faceSize = 30;
};
