// The manager's sending and its offline queue: the send wrapper, enqueueing,
// the flush and the connectivity watch that starts it.

#include <tovukit_io/core/TovuNativeSurveyManagerPrivate.h>

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/network/TovuNetworkService.h>

#include <QCoreApplication>

using TovuManagerSupport::later;

namespace {

// Sends of a flush start a few per turn of the event loop, so a long queue
// never holds the GUI thread for more than a frame.
constexpr std::size_t sendsPerTurn = 16;

} // namespace

// -- sending and the offline queue ----------------------------------------------------

void TovuNativeSurveyManagerPrivate::send(TovuNetworkService &service, const TovuQueuedResponse &response,
                                          std::function<void(bool)> completion)
{
    service.submitResponse(response.surveyId, makeFeedbackRequest(response),
                           [completion = std::move(completion)](TovuResult<void> result) {
                               if (!result)
                                   TovuLog::print(">>> Tovu SDK: Submit failed, queuing for retry -> "
                                                  + result.error().localizedDescription());
                               completion(result.has_value());
                           });
}

void TovuNativeSurveyManagerPrivate::enqueue(const TovuQueuedResponse &response)
{
    const std::size_t count = queue().enqueue(response);
    TovuLog::print(">>> Tovu SDK: Response saved to offline queue (total: " + std::to_string(count) + ")");
    Q_EMIT q->responseQueued(QString::fromStdString(response.responseId), static_cast<int>(count));
}

void TovuNativeSurveyManagerPrivate::finishFlush(const std::shared_ptr<FlushState> &state)
{
    const std::size_t failed = state->failed.size();
    const std::size_t sent = state->responses.size() - failed;
    if (state->manager)
        state->manager->d->queue().store(state->failed);
    TovuLog::print(">>> Tovu SDK: Flush done — " + std::to_string(failed) + " failed, " + std::to_string(sent)
                   + " sent");
    if (state->completion)
        state->completion(failed == 0);
    if (state->manager)
        Q_EMIT state->manager->queueFlushed(static_cast<int>(sent), static_cast<int>(failed));
}

void TovuNativeSurveyManagerPrivate::flush(std::function<void(bool)> completion)
{
    flush(queue().load(), std::move(completion));
}

void TovuNativeSurveyManagerPrivate::flush(std::vector<TovuQueuedResponse> responses,
                                           std::function<void(bool)> completion)
{
    auto state = std::make_shared<FlushState>();
    state->responses = std::move(responses);
    if (state->responses.empty()) {
        if (completion)
            completion(true);
        return;
    }
    TovuLog::print(">>> Tovu SDK: Flushing " + std::to_string(state->responses.size()) + " offline response(s)...");
    state->completion = std::move(completion);
    state->manager = q;
    state->service = &service;

    startSends(state);
}

void TovuNativeSurveyManagerPrivate::startSends(const std::shared_ptr<FlushState> &state)
{
    // A few per turn of the event loop; none waits for another to finish.
    if (!state->service)
        return;
    const std::size_t end = std::min(state->started + sendsPerTurn, state->responses.size());
    while (state->started < end) {
        const std::size_t index = state->started++;
        send(*state->service, state->responses[index], [state, index](bool sent) {
            if (!sent)
                state->failed.push_back(state->responses[index]);
            if (++state->completed == state->responses.size())
                later(QCoreApplication::instance(), [state] { finishFlush(state); });
        });
    }
    // The backend client, not the manager, carries the rest: a flush ends even if the manager goes.
    if (state->started < state->responses.size())
        later(state->service, [state] { startSends(state); });
}

void TovuNativeSurveyManager::flushQueue(std::function<void(bool)> completion)
{
    d->flush(std::move(completion));
}

void TovuNativeSurveyManager::clearQueue()
{
    d->queue().clear();
}

std::vector<TovuQueuedResponse> TovuNativeSurveyManager::getQueuedResponses() const
{
    return d->queue().load();
}

void TovuNativeSurveyManagerPrivate::pathUpdated(TovuPathStatus status)
{
    const bool satisfied = status == TovuPathStatus::satisfied;
    if (satisfied) {
        // Back from offline: flush whatever is there; otherwise only a queue with something in it.
        auto responses = queue().load();
        if (wasOffline || !responses.empty())
            flush(std::move(responses), nullptr);
    }
    wasOffline = !satisfied;
}
