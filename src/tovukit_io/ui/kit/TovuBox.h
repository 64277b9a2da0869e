#pragma once

#include <tovukit_io/graphics/TovuBoxLook.h>

#include <QColor>
#include <QPointF>
#include <QWidget>

/// A rounded box that paints itself: background, border, corner radius, optional
/// clipping of its children to the rounded shape and an optional soft shadow.
///
/// Colours left unset (or set to an invalid QColor) follow the platform colours of the
/// current appearance: the system background and system gray 4.
///
/// \code
/// auto *card = new TovuBox(parent);
/// card->setBackgroundColor(TovuPlatformColors::color(TovuPlatformColors::Role::gray6));
/// card->setCornerRadius(12);
/// card->setClipsToBounds(true);
/// \endcode
class TovuBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor)
    Q_PROPERTY(qreal borderWidth READ borderWidth WRITE setBorderWidth)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius WRITE setCornerRadius)
    /// Children are cut to the rounded shape (to the nearest pixel; the box's own edge
    /// stays antialiased). Corners outside the shape pass mouse events to what lies below.
    Q_PROPERTY(bool clipsToBounds READ clipsToBounds WRITE setClipsToBounds)
    /// A shadow of the rounded shape drawn behind the box, outside its bounds.
    Q_PROPERTY(bool hasShadow READ hasShadow WRITE setHasShadow)
    Q_PROPERTY(QColor shadowColor READ shadowColor WRITE setShadowColor)
    Q_PROPERTY(QPointF shadowOffset READ shadowOffset WRITE setShadowOffset)
    Q_PROPERTY(qreal shadowBlurRadius READ shadowBlurRadius WRITE setShadowBlurRadius)

public:
    explicit TovuBox(QWidget *parent = nullptr);
    ~TovuBox() override;

    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);
    QColor borderColor() const;
    void setBorderColor(const QColor &color);
    /// In logical pixels, drawn inside the bounds; 0 by default.
    qreal borderWidth() const;
    void setBorderWidth(qreal width);
    /// 0 by default; drawn at most half the shorter side.
    qreal cornerRadius() const;
    void setCornerRadius(qreal radius);
    bool clipsToBounds() const;
    void setClipsToBounds(bool clips);

    bool hasShadow() const;
    void setHasShadow(bool shadow);
    /// Black at 6 % by default.
    QColor shadowColor() const;
    void setShadowColor(const QColor &color);
    /// (0, 4) by default.
    QPointF shadowOffset() const;
    void setShadowOffset(const QPointF &offset);
    /// 8 by default.
    qreal shadowBlurRadius() const;
    void setShadowBlurRadius(qreal radius);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void updateMask();
    void updateShadow();

    TovuBoxLook m_look;
    bool m_clipsToBounds = false;
    bool m_hasShadow = false;
    QColor m_shadowColor = QColor(0, 0, 0, 15);
    QPointF m_shadowOffset = QPointF(0, 4);
    qreal m_shadowBlurRadius = 8;
};
