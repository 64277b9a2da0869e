#include <tovukit_io/web/TovuSurveyViewController.h>

#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/web/TovuSurveyView.h>

#include <QEvent>
#include <QVBoxLayout>
#include <QVariantAnimation>

namespace {

// As a full-screen modal comes up from the bottom edge and goes back down.
constexpr qreal slideSeconds = 0.35;

} // namespace

TovuSurveyViewController::TovuSurveyViewController(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("TovuSurveyViewController"));
    setAttribute(Qt::WA_StyledBackground);
    setAutoFillBackground(true);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, TovuPlatformColors::color(TovuPlatformColors::Role::systemBackground));
    setPalette(palette);
    hide();
}

TovuSurveyViewController::~TovuSurveyViewController()
{
    if (m_host)
        m_host->removeEventFilter(this);
}

void TovuSurveyViewController::viewDidLoad()
{
    m_surveyView = new TovuSurveyView(this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_surveyView);
    m_surveyView->setGetSurveyLoadedResponse(m_getSurveyLoadedResponse);
    m_surveyView->setSurveyDelegate(this);
    m_surveyView->loadSurvey(m_surveyUrl);
}

void TovuSurveyViewController::present(QWidget *host, bool animated)
{
    if (!host || m_presented)
        return;
    m_presented = true;
    m_host = host->window();
    setParent(m_host);
    m_host->installEventFilter(this);
    setGeometry(m_host->rect());
    if (!m_surveyView)
        viewDidLoad();
    show();
    raise();
    setFocus(Qt::OtherFocusReason);
    slide(height(), 0, animated, {});
}

void TovuSurveyViewController::dismiss(bool animated)
{
    if (!m_presented)
        return;
    m_presented = false;
    slide(y(), height(), animated, [this] {
        hide();
        deleteLater();
    });
}

void TovuSurveyViewController::slide(int fromY, int toY, bool animated, std::function<void()> done)
{
    delete m_slide.data();
    const int duration = animated ? TovuMotion::durationMs(slideSeconds) : 0;
    if (duration == 0) {
        move(0, toY);
        if (done)
            done();
        return;
    }
    auto *animation = new QVariantAnimation(this);
    animation->setStartValue(fromY);
    animation->setEndValue(toY);
    animation->setDuration(duration);
    animation->setEasingCurve(TovuMotion::easeOut());
    connect(animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { move(0, value.toInt()); });
    connect(animation, &QVariantAnimation::finished, this, [done = std::move(done)] {
        if (done)
            done();
    });
    m_slide = animation;
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

bool TovuSurveyViewController::eventFilter(QObject *watched, QEvent *event)
{
    // The survey keeps covering its window whatever size the window takes.
    if (watched == m_host && event->type() == QEvent::Resize) {
        resize(m_host->size());
        if (!m_slide)
            move(0, m_presented ? 0 : height());
    }
    return QWidget::eventFilter(watched, event);
}

void TovuSurveyViewController::handleSurveyLoaded(const QVariantMap &response)
{
    if (m_surveyDelegate)
        m_surveyDelegate->handleSurveyLoaded(response);
}
