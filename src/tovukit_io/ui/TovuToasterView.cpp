#include <tovukit_io/ui/TovuToasterView.h>

#include <tovukit_io/viewmodel/TovuThemeEngine.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QGuiApplication>
#include <QInputMethod>
#include <QPainter>
#include <QScrollArea>
#include <QScroller>
#include <QVBoxLayout>
#include <QVariantAnimation>

#include <algorithm>

namespace {

// Panel geometry, in points.
constexpr int handleTop = 8;
constexpr QSize handleSize{40, 5};
constexpr int skipTop = 12;
constexpr int skipTrailing = 16;
constexpr int contentTop = handleTop + 5 + 24;
constexpr int contentSide = 20;
constexpr int contentBottom = 20;
constexpr qreal maxHeightRatio = 0.92;
constexpr qreal offscreen = 1000;
constexpr int keyboardDurationMs = 250; // Qt does not tell the keyboard's own

// Runs `apply` from `from` to `to` over `durationMs` with `curve`, then
// `done`; at once when motion is off.
QVariantAnimation *animate(QObject *owner, qreal from, qreal to, int durationMs, const QEasingCurve &curve,
                           std::function<void(qreal)> apply, std::function<void()> done = {})
{
    if (durationMs <= 0) {
        apply(to);
        if (done)
            done();
        return nullptr;
    }
    auto *animation = new QVariantAnimation(owner);
    animation->setStartValue(from);
    animation->setEndValue(to);
    animation->setDuration(durationMs);
    animation->setEasingCurve(curve);
    QObject::connect(animation, &QVariantAnimation::valueChanged, owner,
                     [apply](const QVariant &value) { apply(value.toReal()); });
    QObject::connect(animation, &QVariantAnimation::finished, owner, [apply, to, done] {
        apply(to);
        if (done)
            done();
    });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    return animation;
}

} // namespace

TovuToasterView::TovuToasterView(std::optional<TovuSurvey> survey, QWidget *parent)
    : QWidget(parent)
    , m_survey(std::move(survey))
{
    if (m_survey && m_survey->theme && m_survey->theme->transparency)
        m_dimmingAlpha = std::clamp(static_cast<qreal>(*m_survey->theme->transparency), 0.0, 1.0);
    setAttribute(Qt::WA_NoSystemBackground);
    buildPanel();
}

TovuToasterView::~TovuToasterView() = default;

void TovuToasterView::buildPanel()
{
    const TovuThemeEngine &theme = TovuThemeEngine::shared();
    m_containerView = new TovuBox(this);
    m_containerView->setBackgroundColor(theme.backgroundColor());
    theme.applyCornerRadius(m_containerView);

    m_handleView = new TovuBox(m_containerView);
    m_handleView->setBackgroundColor(TovuPlatformColors::color(TovuPlatformColors::Role::gray4));
    m_handleView->setCornerRadius(2.5);
    m_handleView->setFixedSize(handleSize);

    m_skipButton = new TovuButton(tr("Skip"), m_containerView);
    m_skipButton->setBackgroundColor(Qt::transparent);
    m_skipButton->setTitleColor(TovuPlatformColors::color(TovuPlatformColors::Role::gray));
    m_skipButton->setFont(theme.font(14, QFont::Normal));
    m_skipButton->setContentInsets(QMargins(4, 2, 4, 2));
    connect(m_skipButton, &TovuButton::clicked, this, &TovuToasterView::skipTapped);

    m_scrollArea = new QScrollArea(m_containerView);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    // Scrolled by wheel, touch or drag, as on a phone: a desktop scroll bar
    // with arrows has no place in the sheet.
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScroller::grabGesture(m_scrollArea->viewport(), QScroller::TouchGesture);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->viewport()->setAutoFillBackground(false);
    m_content = new QWidget;
    m_contentStack = new QVBoxLayout(m_content);
    m_contentStack->setContentsMargins(0, 0, 0, 0);
    m_contentStack->setSpacing(20);
    m_scrollArea->setWidget(m_content);
    m_content->setAutoFillBackground(false); // setWidget() turned it on: the panel shows through
    // A page that grows (a follow-up opening) makes the panel taller.
    m_content->installEventFilter(this);
}

void TovuToasterView::present(QWidget *host)
{
    if (!host || m_host)
        return;
    m_host = host;
    setParent(host);
    setGeometry(host->rect());
    host->installEventFilter(this);
    trackKeyboard(true);
    setTranslation(offscreen);
    show();
    raise();
    // The dimming layer is there at once; only the panel moves.
    animate(this, offscreen, 0, TovuMotion::durationMs(0.35), TovuMotion::spring(0.8, 1.2),
            [this](qreal value) { setTranslation(value); });
}

void TovuToasterView::dismiss()
{
    if (m_dismissing)
        return;
    m_dismissing = true;
    trackKeyboard(false);
    if (m_host)
        m_host->removeEventFilter(this);
    auto *fade = new QGraphicsOpacityEffect(this);
    setGraphicsEffect(fade);
    const qreal start = m_translation;
    animate(
        this, 0, 1, TovuMotion::durationMs(0.3), QEasingCurve(QEasingCurve::InOutQuad),
        [this, fade, start](qreal progress) {
            setTranslation(start + (offscreen - start) * progress);
            fade->setOpacity(1 - progress);
        },
        [this] {
            hide();
            setParent(nullptr);
            deleteLater();
        });
}

void TovuToasterView::skipTapped()
{
    if (onSkip)
        onSkip();
    dismiss();
}

void TovuToasterView::setQuestionView(QWidget *view)
{
    while (QLayoutItem *item = m_contentStack->takeAt(0)) {
        if (QWidget *old = item->widget()) {
            // The old page may be the one whose button led here: delete it later.
            old->hide();
            old->deleteLater();
        }
        delete item;
    }
    if (view)
        m_contentStack->addWidget(view);
    layoutPanel();
}

void TovuToasterView::keyboardWillShow(const QRectF &keyboardFrame, int durationMs)
{
    if (keyboardFrame.isEmpty())
        return;
    animateBottomOffset(keyboardFrame.height(), durationMs);
}

void TovuToasterView::keyboardWillHide(int durationMs)
{
    animateBottomOffset(0, durationMs);
}

void TovuToasterView::animateBottomOffset(qreal target, int durationMs)
{
    if (m_keyboardAnimation)
        m_keyboardAnimation->stop();
    // The system's duration, slowed or stopped with every other animation.
    const int scaled = static_cast<int>(std::max(0, durationMs) * TovuMotion::durationScale());
    m_keyboardAnimation = animate(this, m_bottomOffset, target, scaled, QEasingCurve(QEasingCurve::OutCubic),
                                  [this](qreal value) { setBottomOffset(value); });
}

void TovuToasterView::trackKeyboard(bool on)
{
    QInputMethod *inputMethod = QGuiApplication::inputMethod();
    if (!inputMethod || on == m_trackingKeyboard)
        return;
    m_trackingKeyboard = on;
    if (on)
        connect(inputMethod, &QInputMethod::keyboardRectangleChanged, this, &TovuToasterView::keyboardRectangleChanged);
    else
        disconnect(inputMethod, &QInputMethod::keyboardRectangleChanged, this,
                   &TovuToasterView::keyboardRectangleChanged);
}

void TovuToasterView::keyboardRectangleChanged()
{
    const QInputMethod *inputMethod = QGuiApplication::inputMethod();
    const QRectF keyboard = inputMethod->keyboardRectangle();
    if (inputMethod->isVisible() && !keyboard.isEmpty())
        keyboardWillShow(keyboard, keyboardDurationMs);
    else
        keyboardWillHide(keyboardDurationMs);
}

void TovuToasterView::setTranslation(qreal translation)
{
    m_translation = translation;
    layoutPanel();
}

void TovuToasterView::setBottomOffset(qreal offset)
{
    m_bottomOffset = offset;
    layoutPanel();
}

int TovuToasterView::panelHeight() const
{
    const int contentWidth = std::max(0, width() - 2 * contentSide);
    const QLayout *layout = m_contentStack;
    const int contentHeight
        = layout->hasHeightForWidth() ? layout->totalHeightForWidth(contentWidth) : layout->totalSizeHint().height();
    const int wanted = contentTop + contentHeight + contentBottom;
    return std::min(wanted, static_cast<int>(height() * maxHeightRatio));
}

void TovuToasterView::layoutPanel()
{
    const int panelWidth = width();
    const int panel = panelHeight();
    const int top = height() - panel - static_cast<int>(m_bottomOffset) + static_cast<int>(m_translation);
    m_containerView->setGeometry(0, top, panelWidth, panel);

    m_handleView->move((panelWidth - handleSize.width()) / 2, handleTop);
    m_skipButton->adjustSize();
    const int skipX = isRightToLeft() ? skipTrailing : panelWidth - skipTrailing - m_skipButton->width();
    m_skipButton->move(skipX, skipTop);
    m_scrollArea->setGeometry(contentSide, contentTop, std::max(0, panelWidth - 2 * contentSide),
                              std::max(0, panel - contentTop - contentBottom));
    m_skipButton->raise();
}

void TovuToasterView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor dim(Qt::black);
    dim.setAlphaF(static_cast<float>(m_dimmingAlpha));
    painter.fillRect(rect(), dim);
}

void TovuToasterView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layoutPanel();
}

bool TovuToasterView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_host && event->type() == QEvent::Resize)
        setGeometry(m_host->rect());
    else if (watched == m_content && event->type() == QEvent::LayoutRequest)
        layoutPanel();
    return QWidget::eventFilter(watched, event);
}
