#include <tovukit_io/ui/TovuThankYouView.h>

#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/ui/kit/TovuSymbol.h>

#include <QCoreApplication>
#include <QGraphicsOpacityEffect>
#include <QGuiApplication>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>
#include <QVariantAnimation>

#include <algorithm>

namespace {

// The success green does not follow the theme.
QColor successGreen(qreal alpha)
{
    return QColor::fromRgbF(0.18f, 0.8f, 0.44f, static_cast<float>(alpha));
}

constexpr qreal startScale = 0.85;

} // namespace

TovuThankYouView::TovuThankYouView(std::optional<TovuQuestion> question, QWidget *parent, TovuUrlOpener *opener)
    : QWidget(parent)
    , m_question(std::move(question))
{
    const TovuThemeEngine &theme = TovuThemeEngine::shared();
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    m_content = new QWidget(this);
    outer->addWidget(m_content);

    auto *stack = new QVBoxLayout(m_content);
    stack->setContentsMargins(0, 24, 0, 24);
    stack->setSpacing(16);

    buildIcon();
    stack->addWidget(m_iconContainer, 0, Qt::AlignHCenter);

    const QString title = m_question ? QString::fromStdString(m_question->title) : tr("Thank you!");
    m_titleLabel = TovuLabels::plain(title, theme.font(22, QFont::Bold), theme.textColor(), m_content);
    m_titleLabel->setAlignment(Qt::AlignHCenter);
    stack->addWidget(m_titleLabel);

    const QString subtitle = m_question && m_question->subtitle ? QString::fromStdString(*m_question->subtitle)
                                                                : tr("Your feedback helps us improve.");
    m_subtitleLabel = TovuLabels::plain(subtitle, theme.font(15, QFont::Normal),
                                        TovuPlatformColors::color(TovuPlatformColors::Role::gray), m_content);
    m_subtitleLabel->setAlignment(Qt::AlignHCenter);
    stack->addWidget(m_subtitleLabel);

    m_opacity = new QGraphicsOpacityEffect(this);
    setGraphicsEffect(m_opacity);
    startEntrance();
    scheduleRedirect(opener);
}

void TovuThankYouView::buildIcon()
{
    m_iconContainer = new TovuBox(m_content);
    m_iconContainer->setFixedSize(88, 88);
    m_iconContainer->setCornerRadius(44);
    m_iconContainer->setBackgroundColor(successGreen(0.12));

    m_iconView = new QLabel(m_iconContainer);
    m_iconView->setFixedSize(56, 56);
    m_iconView->move((88 - 56) / 2, (88 - 56) / 2);
    m_iconView->setAlignment(Qt::AlignCenter);
    const qreal ratio = std::max(devicePixelRatioF(), qGuiApp->devicePixelRatio());
    m_iconView->setPixmap(TovuSymbol::pixmap(u"checkmark.circle.fill", 44, QFont::Medium, successGreen(1.0), ratio));
    m_iconView->setAccessibleName(tr("Done"));
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
        m_opacity->setEnabled(false);
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

// Fades in and grows from 85 % to full size (a spring may overshoot slightly).
void TovuThankYouView::setEntranceProgress(qreal progress)
{
    m_entranceProgress = progress;
    m_opacity->setOpacity(std::clamp(progress, 0.0, 1.0));
    const qreal scale = startScale + (1 - startScale) * std::clamp(progress, 0.0, 1.0);
    const int dx = static_cast<int>((1 - scale) * width() / 2);
    const int dy = static_cast<int>((1 - scale) * height() / 2);
    layout()->setContentsMargins(dx, dy, dx, dy);
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
