#pragma once

// The effect a TovuButton paints through while it is scaled above 1; not installed.

#include <tovukit_io/ui/kit/TovuButton.h>

#include <QGraphicsEffect>
#include <QPainter>

#include <algorithm>

// While the button is drawn larger than itself, it paints through this effect, which may
// draw outside the widget's bounds. The button's own painting is reused, so the scaled
// button stays vector-sharp instead of being a stretched snapshot.
class TovuButtonScaleEffect : public QGraphicsEffect
{
public:
    explicit TovuButtonScaleEffect(TovuButton *button)
        : QGraphicsEffect(button)
        , m_button(button)
    { }

    QRectF boundingRectFor(const QRectF &rect) const override
    {
        const qreal scale = std::max<qreal>(1, m_button->m_scale);
        const QSizeF size = rect.size() * scale;
        return QRectF(rect.center() - QPointF(size.width() / 2, size.height() / 2), size).adjusted(-1, -1, 1, 1);
    }

    void refresh()
    {
        updateBoundingRect();
        update();
    }

protected:
    void draw(QPainter *painter) override
    {
        painter->save();
        m_button->paintContent(*painter);
        painter->restore();
    }

private:
    TovuButton *m_button;
};
