#include <tovukit_io/ui/TovuThankYouView.h>

#include "TovuQuestionParts.h"

#include <tovukit_io/graphics/TovuSymbol.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QEvent>
#include <QGraphicsEffect>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>
#include <QVariantAnimation>

#include <algorithm>

// Draws the page faded and scaled about its centre. The page is drawn once into a
// layer and the layer is faded, so overlapping parts (the check mark on its disc) fade
// as one picture instead of showing through each other.
class TovuThankYouEntranceEffect : public QGraphicsEffect
{
public:
    explicit TovuThankYouEntranceEffect(QObject *parent)
        : QGraphicsEffect(parent)
    { }

    void setLook(qreal opacity, qreal scale)
    {
        if (m_opacity == opacity && m_scale == scale)
            return;
        m_opacity = opacity;
        m_scale = scale;
        updateBoundingRect();
        update();
    }

    // A spring overshooting 1 draws slightly beyond the page.
    QRectF boundingRectFor(const QRectF &rect) const override
    {
        const QSizeF size = rect.size() * std::max<qreal>(1, m_scale);
        return QRectF(rect.center() - QPointF(size.width() / 2, size.height() / 2), size).adjusted(-1, -1, 1, 1);
    }

protected:
    void draw(QPainter *painter) override
    {
        if (m_opacity <= 0)
            return;
        if (m_opacity >= 1 && m_scale == 1) {
            drawSource(painter);
            return;
        }
        QPoint offset;
        const QPixmap layer = sourcePixmap(Qt::LogicalCoordinates, &offset, QGraphicsEffect::NoPad);
        if (layer.isNull())
            return;
        const QPointF centre = sourceBoundingRect(Qt::LogicalCoordinates).center();
        painter->save();
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->setOpacity(painter->opacity() * m_opacity);
        painter->translate(centre);
        painter->scale(m_scale, m_scale);
        painter->translate(-centre);
        painter->drawPixmap(offset, layer);
        painter->restore();
    }

private:
    qreal m_opacity = 1;
    qreal m_scale = 1;
};

namespace {

using Metrics = TovuPageMetrics;

constexpr int discSize = qRound(Metrics::thankYouDiscSize);
constexpr int iconSize = qRound(Metrics::thankYouIconSize);

QLabel *centredLabel(const QString &text, const QFont &font, QWidget *parent)
{
    QLabel *label = TovuLabels::plain(text, font, QColor(), parent);
    label->setAlignment(Qt::AlignHCenter);
    return label;
}

} // namespace

TovuThankYouView::TovuThankYouView(std::optional<TovuQuestion> question, QWidget *parent, TovuUrlOpener *opener)
    : QWidget(parent)
    , m_model(new TovuThankYouViewModel(std::move(question), opener, this))
{
    QVBoxLayout *stack = TovuQuestionParts::pageStack(this, qRound(Metrics::thankYouSpacing));
    const int margin = qRound(Metrics::thankYouMargin);
    stack->setContentsMargins(0, margin, 0, margin);

    buildIcon();
    stack->addWidget(m_iconContainer, 0, Qt::AlignHCenter);
    m_titleLabel
        = centredLabel(m_model->title(), TovuQuestionParts::font(Metrics::thankYouTitleFontSize, QFont::Bold), this);
    stack->addWidget(m_titleLabel);
    m_subtitleLabel = centredLabel(m_model->subtitle(),
                                   TovuQuestionParts::font(Metrics::thankYouSubtitleFontSize, QFont::Normal), this);
    stack->addWidget(m_subtitleLabel);
    restyle();

    m_entranceEffect = new TovuThankYouEntranceEffect(this);
    setGraphicsEffect(m_entranceEffect);
    startEntrance();
    m_model->scheduleRedirect();
}

const std::optional<TovuQuestion> &TovuThankYouView::question() const
{
    return m_model->question();
}

void TovuThankYouView::buildIcon()
{
    m_iconContainer = new TovuBox(this);
    m_iconContainer->setFixedSize(discSize, discSize);
    m_iconContainer->setCornerRadius(Metrics::thankYouDiscSize / 2);
    m_iconContainer->setBackgroundColor(m_model->discColor());

    m_iconView = new QLabel(m_iconContainer);
    m_iconView->setFixedSize(iconSize, iconSize);
    m_iconView->move((discSize - iconSize) / 2, (discSize - iconSize) / 2);
    m_iconView->setAlignment(Qt::AlignCenter);
    // Fitted to the whole view, and sharp on the densest screen the page may be shown on.
    const qreal ratio = std::max(devicePixelRatioF(), qGuiApp->devicePixelRatio());
    m_iconView->setPixmap(TovuSymbol::pixmap(u"checkmark.circle.fill", Metrics::thankYouIconSize, QFont::Medium,
                                             m_model->iconColor(), ratio));
    m_iconView->setAccessibleName(m_model->iconAccessibleName());
}

// Colours are resolved again on every palette change, so a light → dark switch after
// the page was built still shows readable text.
void TovuThankYouView::restyle()
{
    TovuLabels::setColor(m_titleLabel, TovuThemeEngine::shared().textColor());
    TovuLabels::setColor(m_subtitleLabel, TovuPlatformColors::color(TovuPlatformColors::Role::gray));
}

void TovuThankYouView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        restyle();
}

qreal TovuThankYouView::entranceScale() const
{
    return Metrics::thankYouStartScale + (1 - Metrics::thankYouStartScale) * std::max<qreal>(0, m_entranceProgress);
}

void TovuThankYouView::startEntrance()
{
    setEntranceProgress(0);
    auto *animation = new QVariantAnimation(this);
    animation->setStartValue(0.0);
    animation->setEndValue(1.0);
    animation->setDuration(TovuMotion::durationMs(Metrics::thankYouEntranceSeconds));
    animation->setEasingCurve(TovuMotion::spring(Metrics::thankYouDampingRatio, Metrics::thankYouInitialVelocity));
    connect(animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setEntranceProgress(value.toReal()); });
    // Once in, the page paints directly again instead of through the effect.
    const auto finish = [this] {
        setEntranceProgress(1);
        m_entranceEffect->setEnabled(false);
    };
    connect(animation, &QVariantAnimation::finished, this, finish);
    const int delayMs = TovuMotion::durationMs(Metrics::thankYouEntranceDelaySeconds);
    if (delayMs == 0 && animation->duration() == 0) {
        finish();
        delete animation;
        return;
    }
    QTimer::singleShot(delayMs, animation, [animation] { animation->start(QAbstractAnimation::DeleteWhenStopped); });
}

// Fades in and zooms from thankYouStartScale to full size (a spring may overshoot slightly). Only the
// picture changes: the page keeps its size, so nothing around it moves or reflows.
void TovuThankYouView::setEntranceProgress(qreal progress)
{
    m_entranceProgress = progress;
    m_entranceEffect->setLook(std::clamp<qreal>(progress, 0, 1), entranceScale());
}
