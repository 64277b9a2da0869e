#pragma once

#include <QColor>
#include <QWidget>

/// A horizontal separator line `thickness` logical pixels thick (0.5 by default: one
/// device pixel at 2x), drawn along the top of a widget as high as the thickness
/// rounded up, as wide as the layout makes it.
///
/// \code
/// optionsStack->addWidget(new TovuHairline(this)); // between two options
/// auto *rule = new TovuHairline(this);
/// rule->setThickness(1);
/// \endcode
class TovuHairline : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(qreal thickness READ thickness WRITE setThickness)
    Q_PROPERTY(QColor color READ color WRITE setColor)

public:
    explicit TovuHairline(QWidget *parent = nullptr);

    qreal thickness() const;
    void setThickness(qreal thickness);
    /// Unset (an invalid QColor) follows the platform's system gray 5.
    QColor color() const;
    void setColor(const QColor &color);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    qreal m_thickness = 0.5;
    QColor m_color;
};
