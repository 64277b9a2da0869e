#include "TovuDemoControlPanel.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

QLabel *hint(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::PlaceholderText);
    QFont small = label->font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    label->setFont(small);
    return label;
}

} // namespace

TovuDemoControlPanel::TovuDemoControlPanel(const std::vector<TovuDemoSample> &samples, QWidget *parent)
    : QWidget(parent)
    , m_samples(samples)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(surveyGroup());
    layout->addWidget(showGroup());
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(lookGroup(), 1);
    row->addWidget(networkGroup(), 1);
    layout->addLayout(row);

    m_countdown.setInterval(1000);
    connect(&m_countdown, &QTimer::timeout, this, &TovuDemoControlPanel::tick);
}

QWidget *TovuDemoControlPanel::surveyGroup()
{
    auto *group = new QGroupBox(tr("Survey"), this);
    auto *grid = new QGridLayout(group);
    grid->setVerticalSpacing(6);

    m_sample = new QComboBox(group);
    m_sample->setObjectName(QStringLiteral("sample"));
    for (const TovuDemoSample &sample : m_samples)
        m_sample->addItem(sample.title.isEmpty() ? sample.stem : sample.title, sample.stem);
    m_sample->setToolTip(tr("The bundled samples in samples/surveys/"));
    grid->addWidget(new QLabel(tr("Sample"), group), 0, 0);
    grid->addWidget(m_sample, 0, 1, 1, 2);

    m_byCollector = new QRadioButton(tr("Collector id"), group);
    m_bySurvey = new QRadioButton(tr("Survey id"), group);
    m_byCollector->setObjectName(QStringLiteral("byCollector"));
    m_bySurvey->setObjectName(QStringLiteral("bySurvey"));
    m_byCollector->setChecked(true);
    m_kind = new QButtonGroup(group);
    m_kind->addButton(m_byCollector);
    m_kind->addButton(m_bySurvey);
    auto *kinds = new QHBoxLayout;
    kinds->addWidget(m_byCollector);
    kinds->addWidget(m_bySurvey);
    kinds->addStretch();
    grid->addWidget(new QLabel(tr("Configure by"), group), 1, 0);
    grid->addLayout(kinds, 1, 1, 1, 2);

    m_id = new QLineEdit(group);
    m_id->setObjectName(QStringLiteral("configuredId"));
    m_id->setClearButtonEnabled(true);
    m_id->setToolTip(tr("Type any id (an unknown one shows how a failure is reported) and press Enter"));
    m_configure = new QPushButton(tr("Configure"), group);
    grid->addWidget(new QLabel(tr("Id"), group), 2, 0);
    grid->addWidget(m_id, 2, 1);
    grid->addWidget(m_configure, 2, 2);
    grid->addWidget(hint(tr("configure(apiKey, id, zone) with the demo key: the key is verified, then the "
                            "survey pre-fetched."),
                         group),
                    3, 0, 1, 3);
    grid->setColumnStretch(1, 1);

    connect(m_sample, &QComboBox::currentIndexChanged, this, &TovuDemoControlPanel::sampleOrKindChanged);
    connect(m_kind, &QButtonGroup::buttonClicked, this, &TovuDemoControlPanel::sampleOrKindChanged);
    const auto typed = [this] {
        if (!m_id->text().trimmed().isEmpty())
            Q_EMIT targetChosen(chosenTarget(), m_id->text().trimmed());
    };
    connect(m_id, &QLineEdit::returnPressed, this, typed);
    connect(m_configure, &QPushButton::clicked, this, typed);
    return group;
}

QWidget *TovuDemoControlPanel::showGroup()
{
    auto *group = new QGroupBox(tr("Show it"), this);
    auto *layout = new QVBoxLayout(group);
    auto *buttons = new QHBoxLayout;
    m_showNow = new QPushButton(tr("Show now"), group);
    m_showNow->setToolTip(tr("fetchAndPresentSurvey(host)"));
    m_intercept = new QPushButton(tr("Intercept in %1 s").arg(interceptSeconds), group);
    m_intercept->setToolTip(tr("startIntercept(%1, host)").arg(interceptSeconds));
    m_lowest = new QPushButton(tr("Fewest responses"), group);
    m_lowest->setToolTip(tr("fetchAndPresentLowestResponseSurvey(every sample's id, host): the sample with "
                            "the fewest stored responses"));
    for (QPushButton *button : {m_showNow, m_intercept, m_lowest})
        buttons->addWidget(button);
    layout->addLayout(buttons);
    m_countdownLabel = hint(QString(), group);
    layout->addWidget(m_countdownLabel);
    m_countdownLabel->setText(tr("The survey opens over the phone's screen."));

    connect(m_showNow, &QPushButton::clicked, this, &TovuDemoControlPanel::showNowRequested);
    connect(m_intercept, &QPushButton::clicked, this, [this] {
        startCountdown();
        Q_EMIT interceptRequested();
    });
    connect(m_lowest, &QPushButton::clicked, this, &TovuDemoControlPanel::lowestResponseRequested);
    return group;
}

QWidget *TovuDemoControlPanel::lookGroup()
{
    auto *group = new QGroupBox(tr("Look"), this);
    auto *layout = new QVBoxLayout(group);
    auto *modes = new QHBoxLayout;
    m_light = new QRadioButton(tr("Light"), group);
    m_dark = new QRadioButton(tr("Dark"), group);
    m_light->setObjectName(QStringLiteral("light"));
    m_dark->setObjectName(QStringLiteral("dark"));
    m_light->setChecked(true);
    auto *modeGroup = new QButtonGroup(group);
    modeGroup->addButton(m_light);
    modeGroup->addButton(m_dark);
    modes->addWidget(m_light);
    modes->addWidget(m_dark);
    modes->addStretch();
    layout->addLayout(modes);
    m_theme = new QComboBox(group);
    m_theme->setObjectName(QStringLiteral("theme"));
    m_theme->addItem(tr("Survey's theme"), int(TovuDemoOptions::Theme::survey));
    m_theme->addItem(tr("Host theme"), int(TovuDemoOptions::Theme::host));
    m_theme->addItem(tr("Primary colour"), int(TovuDemoOptions::Theme::primaryColor));
    m_theme->setItemData(1, tr("configureTheme(TovuAppTheme): the app's colours, font and corner radius"),
                         Qt::ToolTipRole);
    layout->addWidget(m_theme);
    m_progress = new QCheckBox(tr("Progress"), group);
    m_progress->setObjectName(QStringLiteral("progress"));
    m_progress->setToolTip(tr("showsProgress: \"3 of 7\" and a thin bar at the top of the sheet"));
    layout->addWidget(m_progress);
    layout->addWidget(hint(tr("A theme applies from the next page on."), group));
    layout->addStretch();

    connect(modeGroup, &QButtonGroup::buttonClicked, this, &TovuDemoControlPanel::emitLook);
    connect(m_theme, &QComboBox::currentIndexChanged, this, &TovuDemoControlPanel::emitLook);
    connect(m_progress, &QCheckBox::toggled, this, [this](bool shows) {
        if (!m_quiet)
            Q_EMIT progressToggled(shows);
    });
    return group;
}

QWidget *TovuDemoControlPanel::networkGroup()
{
    auto *group = new QGroupBox(tr("Network"), this);
    auto *layout = new QVBoxLayout(group);
    m_online = new QPushButton(group);
    m_online->setObjectName(QStringLiteral("online"));
    m_online->setCheckable(true);
    m_online->setChecked(true);
    m_onlineLabel = hint(QString(), group);
    m_flush = new QPushButton(tr("Flush queue"), group);
    m_flush->setToolTip(tr("flushQueue(completion)"));
    m_queue = new QLabel(group);
    m_queue->setObjectName(QStringLiteral("queueCount"));
    layout->addWidget(m_online);
    layout->addWidget(m_onlineLabel);
    auto *queueRow = new QHBoxLayout;
    queueRow->addWidget(m_queue, 1);
    queueRow->addWidget(m_flush);
    layout->addLayout(queueRow);
    layout->addStretch();
    setOnline(true);
    setQueuedCount(0);

    connect(m_online, &QPushButton::clicked, this, [this](bool checked) {
        // Shown as it is until the switch is done.
        m_online->setChecked(!checked);
        m_online->setEnabled(false);
        Q_EMIT onlineRequested(checked);
    });
    connect(m_flush, &QPushButton::clicked, this, &TovuDemoControlPanel::flushRequested);
    return group;
}

TovuDemoSession::Target TovuDemoControlPanel::chosenTarget() const
{
    return m_bySurvey->isChecked() ? TovuDemoSession::Target::survey : TovuDemoSession::Target::collector;
}

void TovuDemoControlPanel::sampleOrKindChanged()
{
    const int index = m_sample->currentIndex();
    if (index < 0 || static_cast<std::size_t>(index) >= m_samples.size())
        return;
    const TovuDemoSample &sample = m_samples[static_cast<std::size_t>(index)];
    m_id->setText(chosenTarget() == TovuDemoSession::Target::survey ? sample.surveyId : sample.collectorId);
    if (!m_quiet)
        Q_EMIT targetChosen(chosenTarget(), m_id->text());
}

void TovuDemoControlPanel::setTarget(TovuDemoSession::Target target, const QString &id)
{
    m_quiet = true;
    (target == TovuDemoSession::Target::survey ? m_bySurvey : m_byCollector)->setChecked(true);
    for (std::size_t i = 0; i < m_samples.size(); ++i) {
        if (m_samples[i].surveyId == id || m_samples[i].collectorId == id)
            m_sample->setCurrentIndex(static_cast<int>(i));
    }
    m_id->setText(id);
    m_quiet = false;
}

void TovuDemoControlPanel::setLook(bool dark, TovuDemoOptions::Theme theme, const QColor &primaryColor)
{
    m_quiet = true;
    (dark ? m_dark : m_light)->setChecked(true);
    m_theme->setItemText(2, tr("Primary colour %1").arg(primaryColor.name().toUpper()));
    m_theme->setCurrentIndex(m_theme->findData(int(theme)));
    m_quiet = false;
}

void TovuDemoControlPanel::setShowsProgress(bool shows)
{
    m_quiet = true;
    m_progress->setChecked(shows);
    m_quiet = false;
}

void TovuDemoControlPanel::emitLook()
{
    if (!m_quiet)
        Q_EMIT lookChanged(m_dark->isChecked(), TovuDemoOptions::Theme(m_theme->currentData().toInt()));
}

void TovuDemoControlPanel::setOnline(bool online)
{
    m_online->setEnabled(true);
    m_online->setChecked(online);
    m_online->setText(online ? tr("Online — go offline") : tr("Offline — go online"));
    m_onlineLabel->setText(online ? tr("Responses are sent as they are finished.")
                                  : tr("The backend is unreachable and the path monitor says so: finished "
                                       "responses wait in the queue."));
}

void TovuDemoControlPanel::setQueuedCount(int count)
{
    m_queue->setText(tr("Queued responses: <b>%1</b>").arg(count));
    m_flush->setEnabled(count > 0);
}

void TovuDemoControlPanel::startCountdown()
{
    m_secondsLeft = interceptSeconds;
    m_countdownLabel->setText(tr("The survey intercepts the app in %1 s…").arg(m_secondsLeft));
    m_countdown.start();
}

void TovuDemoControlPanel::stopCountdown()
{
    m_countdown.stop();
    m_countdownLabel->setText(tr("The survey opens over the phone's screen."));
}

void TovuDemoControlPanel::tick()
{
    if (--m_secondsLeft <= 0) {
        m_countdown.stop();
        m_countdownLabel->setText(tr("Intercepting now…"));
        return;
    }
    m_countdownLabel->setText(tr("The survey intercepts the app in %1 s…").arg(m_secondsLeft));
}
