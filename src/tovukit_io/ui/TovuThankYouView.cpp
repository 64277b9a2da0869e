#include <tovukit_io/ui/TovuThankYouView.h>

#include <tovukit_io/graphics/TovuSymbol.h>
#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QCoreApplication>
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

// The success green does not follow the theme.
QColor successGreen(qreal alpha)
{
    return QColor::fromRgbF(0.18f, 0.8f, 0.44f, static_cast<float>(alpha));
}

constexpr qreal startScale = 0.85;
constexpr int discSize = 88;
constexpr int iconSize = 56;

} // namespace

TovuThankYouView::TovuThankYouView(std::optional<TovuQuestion> question, QWidget *parent, TovuUrlOpener *opener)
    : QWidget(parent)
    , m_question(std::move(question))
{
    const TovuThemeEngine &theme = TovuThemeEngine::shared();
    auto *stack = new QVBoxLayout(this);
    stack->setContentsMargins(0, 24, 0, 24);
    stack->setSpacing(16);

    buildIcon();
    stack->addWidget(m_iconContainer, 0, Qt::AlignHCenter);

    const QString title = m_question ? QString::fromStdString(m_question->title) : tr("Thank you!");
    m_titleLabel = TovuLabels::plain(title, theme.font(22, QFont::Bold), QColor(), this);
    m_titleLabel->setAlignment(Qt::AlignHCenter);
    stack->addWidget(m_titleLabel);

    const QString subtitle = m_question && m_question->subtitle ? QString::fromStdString(*m_question->subtitle)
                                                                : tr("Your feedback helps us improve.");
    m_subtitleLabel = TovuLabels::plain(subtitle, theme.font(15, QFont::Normal), QColor(), this);
    m_subtitleLabel->setAlignment(Qt::AlignHCenter);
    stack->addWidget(m_subtitleLabel);
    restyle();

    m_entranceEffect = new TovuThankYouEntranceEffect(this);
    setGraphicsEffect(m_entranceEffect);
    startEntrance();
    scheduleRedirect(opener);
}

void TovuThankYouView::buildIcon()
{
    m_iconContainer = new TovuBox(this);
    m_iconContainer->setFixedSize(discSize, discSize);
    m_iconContainer->setCornerRadius(discSize / 2);
    m_iconContainer->setBackgroundColor(successGreen(0.12));

    m_iconView = new QLabel(m_iconContainer);
    m_iconView->setFixedSize(iconSize, iconSize);
    m_iconView->move((discSize - iconSize) / 2, (discSize - iconSize) / 2);
    m_iconView->setAlignment(Qt::AlignCenter);
    // Fitted to the whole view, and sharp on the densest screen the page may be shown on.
    const qreal ratio = std::max(devicePixelRatioF(), qGuiApp->devicePixelRatio());
    m_iconView->setPixmap(
        TovuSymbol::pixmap(u"checkmark.circle.fill", iconSize, QFont::Medium, successGreen(1.0), ratio));
    m_iconView->setAccessibleName(tr("Done"));
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
    return startScale + (1 - startScale) * std::max<qreal>(0, m_entranceProgress);
}

void TovuThankYouView::startEntrance()
{
    setEntranceProgress(0);
    auto *animation = new QVariantAnimation(this);
    animation->setStartValue(0.0);
    animation->setEndValue(1.0);
    animation->setDuration(TovuMotion::durationMs(0.4));
    animation->setEasingCurve(TovuMotion::spring(0.7, 0.5));
    connect(animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setEntranceProgress(value.toReal()); });
    // Once in, the page paints directly again instead of through the effect.
    const auto finish = [this] {
        setEntranceProgress(1);
        m_entranceEffect->setEnabled(false);
    };
    connect(animation, &QVariantAnimation::finished, this, finish);
    if (TovuMotion::durationMs(0.05) == 0 && animation->duration() == 0) {
        finish();
        delete animation;
        return;
    }
    QTimer::singleShot(TovuMotion::durationMs(0.05), animation,
                       [animation] { animation->start(QAbstractAnimation::DeleteWhenStopped); });
}

// Fades in and zooms from 85 % to full size (a spring may overshoot slightly). Only the
// picture changes: the page keeps its size, so nothing around it moves or reflows.
void TovuThankYouView::setEntranceProgress(qreal progress)
{
    m_entranceProgress = progress;
    m_entranceEffect->setLook(std::clamp<qreal>(progress, 0, 1), entranceScale());
}

void TovuThankYouView::scheduleRedirect(TovuUrlOpener *opener)
{
    if (!m_question || !m_question->redirectURL)
        return;
    const QUrl url(QString::fromStdString(*m_question->redirectURL), QUrl::StrictMode);
    if (!TovuUrlOpener::isOpenable(url))
        return;
    // Not tied to this page: the address opens even if the sheet is gone.
    QTimer::singleShot(redirectDelayMs, QCoreApplication::instance(),
                       [url, opener] { (opener ? opener : TovuUrlOpener::defaultOpener())->openIfValid(url); });
}
