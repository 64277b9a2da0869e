#include "TovuDemoWebPanel.h"

#include "TovuDemoActivityPane.h"
#include "TovuDemoBackend.h"

#include <tovukit_io/platform/TovuUserDefaults.h>
#include <tovukit_io/web/TovuSurveyView.h>

#include <QGridLayout>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>

#include <string>
#include <vector>

TovuDemoWebPanel::TovuDemoWebPanel(TovuDemoBackend &backend, QWidget *hostScreen, TovuDemoActivityPane *activity,
                                   std::function<QString()> surveyId, QWidget *parent)
    : QGroupBox(tr("Web survey (hosted page)"), parent)
    , m_backend(backend)
    , m_hostScreen(hostScreen)
    , m_activity(activity)
    , m_surveyId(std::move(surveyId))
{
    m_embedded = new QPushButton(tr("Embed in screen"), this);
    m_fullScreen = new QPushButton(tr("Full screen"), this);
    m_afterVisits = new QPushButton(tr("Visit (shows on visit %1)").arg(visitsBeforeShowing + 1), this);
    m_lowest = new QPushButton(tr("Fewest responses"), this);
    m_visits = new QLabel(this);
    m_visits->setTextFormat(Qt::PlainText);

    auto *grid = new QGridLayout(this);
    grid->addWidget(m_embedded, 0, 0);
    grid->addWidget(m_fullScreen, 0, 1);
    grid->addWidget(m_lowest, 0, 2);
    grid->addWidget(m_afterVisits, 1, 0, 1, 2);
    grid->addWidget(m_visits, 1, 2);

    connect(m_embedded, &QPushButton::clicked, this, &TovuDemoWebPanel::toggleEmbedded);
    connect(m_fullScreen, &QPushButton::clicked, this, [this] {
        note(tr("web: full screen %1").arg(pageUrl()));
        TovuSurveyView::loadFullscreenSurvey(m_hostScreen, this, pageUrl());
    });
    connect(m_afterVisits, &QPushButton::clicked, this, &TovuDemoWebPanel::countVisit);
    connect(m_lowest, &QPushButton::clicked, this, [this] {
        std::vector<std::string> ids;
        for (const TovuDemoSample &sample : m_backend.samples())
            ids.push_back(sample.surveyId.toStdString());
        note(tr("web: asking the backend for the sample with the fewest responses"));
        TovuSurveyView::loadLowestResponseSurvey(std::move(ids), std::string(TovuDemoBackend::apiKey), m_hostScreen,
                                                 this);
    });
    showVisits();
}

void TovuDemoWebPanel::handleSurveyLoaded(const QVariantMap &response)
{
    const QByteArray json = QJsonDocument(QJsonObject::fromVariantMap(response)).toJson(QJsonDocument::Compact);
    m_activity->appendLine(TovuDemoActivityPane::Source::signal,
                           tr("web: handleSurveyLoaded %1").arg(QString::fromUtf8(json)));
}

// The backend's hosted page for a survey.
QString TovuDemoWebPanel::pageUrl() const
{
    return m_backend.url() + QStringLiteral("/web/") + m_surveyId();
}

void TovuDemoWebPanel::toggleEmbedded()
{
    if (m_embeddedView) {
        delete m_embeddedView;
        m_embedded->setText(tr("Embed in screen"));
        return;
    }
    // Below the host screen's header, as an app would place a feedback card.
    constexpr int header = 120;
    auto *view = new TovuSurveyView(m_hostScreen);
    view->setSurveyDelegate(this);
    view->setGeometry(m_hostScreen->rect().adjusted(0, header, 0, 0));
    view->show();
    view->raise();
    m_embeddedView = view;
    m_embedded->setText(tr("Remove embedded"));
    note(tr("web: embedded %1").arg(pageUrl()));
    view->loadEmbedSurvey(pageUrl());
}

void TovuDemoWebPanel::countVisit()
{
    TovuSurveyView::loadSurveyAfter(visitsBeforeShowing, m_hostScreen, this, pageUrl());
    showVisits();
}

void TovuDemoWebPanel::showVisits()
{
    const std::string key = "Visits:" + pageUrl().toStdString();
    const auto visits = TovuUserDefaults::standard().integer(key).value_or(0);
    m_visits->setText(tr("%n visit(s) counted", nullptr, static_cast<int>(visits)));
}

void TovuDemoWebPanel::note(const QString &text)
{
    m_activity->appendLine(TovuDemoActivityPane::Source::demo, text);
}
