#include "TovuDemoPhoneFrame.h"

#include <QPainter>
#include <QVBoxLayout>

TovuDemoPhoneFrame::TovuDemoPhoneFrame(QWidget *screen, QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(bezel, bezel, bezel, bezel);
    layout->addWidget(screen);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void TovuDemoPhoneFrame::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF outer = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    p.setPen(QPen(QColor(0x5A, 0x5A, 0x60), 1));
    p.setBrush(QColor(0x16, 0x16, 0x18));
    p.drawRoundedRect(outer, 22, 22);
}
