#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// A drawn symbol ("checkmark", "chevron.down", "checkmark.circle.fill", …) as a
/// Qt Quick item, `TovuSymbolIcon` in QML: the same drawing the Qt Widgets pages use.
class TovuSymbolItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TovuSymbolIcon)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /// A QFont::Weight (Font.Normal, Font.DemiBold, …).
    Q_PROPERTY(int weight READ weight WRITE setWeight NOTIFY weightChanged)

public:
    explicit TovuSymbolItem(QQuickItem *parent = nullptr);

    QString name() const { return m_name; }
    void setName(const QString &name);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    int weight() const { return m_weight; }
    void setWeight(int weight);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void nameChanged();
    void colorChanged();
    void weightChanged();

private:
    QString m_name;
    QColor m_color = Qt::black;
    int m_weight = QFont::Normal;
};
