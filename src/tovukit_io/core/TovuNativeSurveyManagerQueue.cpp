// The manager's sending and its offline queue: the send wrapper, enqueueing,
// the flush and the connectivity watch that starts it.

#include <tovukit_io/core/TovuNativeSurveyManagerPrivate.h>

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/network/TovuNetworkService.h>

#include <QCoreApplication>

using TovuManagerSupport::inBackground;
using TovuManagerSupport::later;

namespace {

// Sends of a flush start a few per turn of the event loop, so a long queue
// never holds the GUI thread for more than a frame.
constexpr std::size_t sendsPerTurn = 6;

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
    if (state->failed.empty() || !state->manager) {
        endFlush(state, std::nullopt);
        return;
    }
    // Encoding a long failed list is milliseconds of work: done off the GUI thread.
    inBackground(
        state->service, [failed = state->failed] { return TovuOfflineQueue::encode(failed); },
        [state](std::optional<QByteArray> blob) { endFlush(state, std::move(blob)); });
}

void TovuNativeSurveyManagerPrivate::endFlush(const std::shared_ptr<FlushState> &state,
                                              std::optional<QByteArray> failedBlob)
{
    const std::size_t failed = state->failed.size();
    const std::size_t sent = state->responses.size() - failed;
    if (state->manager) {
        auto &queue = state->manager->d->queue();
        if (failed == 0)
            queue.clear();
        else if (failedBlob)
            queue.storeEncoded(*std::move(failedBlob), state->failed);
    }
    TovuLog::print(">>> Tovu SDK: Flush done — " + std::to_string(failed) + " failed, " + std::to_string(sent)
                   + " sent");
    if (state->completion)
        state->completion(failed == 0);
    if (state->manager)
        Q_EMIT state->manager->queueFlushed(static_cast<int>(sent), static_cast<int>(failed));
}

void TovuNativeSurveyManagerPrivate::flush(std::function<void(bool)> completion)
{
    TovuOfflineQueue::Stored stored;
    if (auto known = queue().loadWithoutDecoding(&stored)) {
        flush(*std::move(known), std::move(completion));
        return;
    }
    // A queue read at launch can be megabytes of JSON: decoded off the GUI thread,
    // with the queue's own copy. The backend client carries the result, so the
    // flush goes on without the manager.
    using Decoded = std::pair<std::vector<TovuQueuedResponse>, std::vector<TovuQueuedResponse>>;
    const QByteArray blob = stored.blob;
    inBackground(
        &service,
        [blob] {
            auto responses = TovuOfflineQueue::decode(blob);
            return Decoded(responses, responses);
        },
        [manager = QPointer(q), service = QPointer(&service), stored = std::move(stored),
         completion = std::move(completion)](Decoded decoded) mutable {
            if (manager)
                manager->d->queue().adopt(std::move(stored), std::move(decoded.second));
            start(service, manager, std::move(decoded.first), std::move(completion));
        });
}

void TovuNativeSurveyManagerPrivate::flush(std::vector<TovuQueuedResponse> responses,
                                           std::function<void(bool)> completion)
{
    start(&service, q, std::move(responses), std::move(completion));
}

void TovuNativeSurveyManagerPrivate::start(TovuNetworkService *service, TovuNativeSurveyManager *manager,
                                           std::vector<TovuQueuedResponse> responses,
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
    state->manager = manager;
    state->service = service;

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
    // Back from offline or not, an empty queue makes a flush that does nothing.
    const bool satisfied = status == TovuPathStatus::satisfied;
    if (satisfied)
        flush(nullptr);
    wasOffline = !satisfied;
}
