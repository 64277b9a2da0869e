// The manager's state, read-only.

#include <tovukit_io/core/TovuNativeSurveyManagerPrivate.h>

#include <QTimer>

const std::optional<TovuSurvey> &TovuNativeSurveyManager::survey() const
{
    return d->survey;
}
const std::optional<std::string> &TovuNativeSurveyManager::configuredSurveyId() const
{
    return d->configuredSurveyId;
}
const std::optional<std::string> &TovuNativeSurveyManager::configuredCollectorId() const
{
    return d->configuredCollectorId;
}
const std::string &TovuNativeSurveyManager::resolvedCollectorUUID() const
{
    return d->resolvedCollectorUUID;
}
const std::string &TovuNativeSurveyManager::resolvedCollectorMongoId() const
{
    return d->resolvedCollectorMongoId;
}
int TovuNativeSurveyManager::currentQuestionIndex() const
{
    return d->currentQuestionIndex;
}
QObject *TovuNativeSurveyManager::currentSheet() const
{
    return d->presenter.sheet();
}
QTimer *TovuNativeSurveyManager::triggerTimer() const
{
    return d->triggerTimer;
}
const std::vector<TovuQueuedResponse> &TovuNativeSurveyManager::responseQueue() const
{
    return d->responseQueue;
}
const std::string &TovuNativeSurveyManager::surveyStartTime() const
{
    return d->surveyStartTime;
}
const std::vector<TovuAnswer> &TovuNativeSurveyManager::currentAnswers() const
{
    return d->currentAnswers;
}
const std::optional<TovuUserData> &TovuNativeSurveyManager::userData() const
{
    return d->userData;
}
std::int64_t TovuNativeSurveyManager::surveyStartEpoch() const
{
    return d->surveyStartEpoch;
}
std::int64_t TovuNativeSurveyManager::questionStartEpoch() const
{
    return d->questionStartEpoch;
}
const std::map<std::string, double> &TovuNativeSurveyManager::timePerQues() const
{
    return d->timePerQues;
}
int TovuNativeSurveyManager::backTrackCount() const
{
    return d->backTrackCount;
}
TovuPathMonitor *TovuNativeSurveyManager::pathMonitor() const
{
    return d->monitor;
}
bool TovuNativeSurveyManager::wasOffline() const
{
    return d->wasOffline;
}
TovuSurveyPresenter *TovuNativeSurveyManager::presenter() const
{
    return &d->presenter;
}
