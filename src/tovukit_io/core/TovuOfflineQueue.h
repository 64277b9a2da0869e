#pragma once

#include <tovukit_io/model/TovuQueuedResponse.h>

#include <QByteArray>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class TovuKeyValueStore;

/// The responses that could not be sent yet, oldest first, stored as one
/// JSON array under one key of a key-value store.
///
/// Every operation reads the stored list and writes the whole list back, so
/// another store user (a second process, a host clearing the key) is always
/// seen. What was last read or written is remembered with its bytes: while
/// the store still holds exactly those bytes, appending one response encodes
/// only that response, which keeps enqueueing fast with thousands queued.
///
/// A stored value that does not decode counts as an empty queue and stays as
/// it is until the next write; a list that cannot be encoded is not written.
class TovuOfflineQueue
{
public:
    static constexpr std::string_view defaultKey = "com.tovu.offline_responses";

    /// `store` must outlive the queue.
    explicit TovuOfflineQueue(TovuKeyValueStore &store, std::string key = std::string(defaultKey));

    const std::string &key() const { return m_key; }

    std::vector<TovuQueuedResponse> load() const;
    /// Replaces the stored list; returns false (writing nothing) when it cannot be encoded.
    bool store(const std::vector<TovuQueuedResponse> &responses);
    /// Appends `response` and returns how many are queued, or nothing stored when it cannot be encoded.
    std::size_t enqueue(const TovuQueuedResponse &response);
    /// Stores an empty list.
    void clear();

private:
    struct Snapshot {
        QByteArray blob;
        std::vector<TovuQueuedResponse> responses;
    };

    /// The stored list and its bytes; decoded again only when the bytes changed.
    const Snapshot &current() const;
    bool write(QByteArray blob, std::vector<TovuQueuedResponse> responses);

    TovuKeyValueStore &m_store;
    std::string m_key;
    mutable Snapshot m_snapshot;
    mutable bool m_hasSnapshot = false;
};
