#pragma once

#include <tovukit_io/model/TovuQueuedResponse.h>

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class TovuKeyValueStore;

/// The responses that could not be sent yet, oldest first, stored as one
/// JSON array under one key of a key-value store.
///
/// Every operation works on the stored list and writes the whole list back, so
/// another store user (a second process, a host clearing the key) is always
/// seen. What was last read or written is remembered with its bytes: while
/// the store's revision says nothing was written since, it is not read again,
/// and while the store holds exactly those bytes, appending one response
/// encodes only that response. Enqueueing stays fast with thousands queued.
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

    /// Stored bytes as read, with the store's revision at the time.
    struct Stored {
        QByteArray blob;
        std::optional<std::uint64_t> revision;
    };

    /// The stored list when it is known without decoding (nothing stored, an
    /// empty array, or what this queue last read or wrote); otherwise nothing,
    /// and `stored`, if given, receives the stored bytes to decode elsewhere.
    std::optional<std::vector<TovuQueuedResponse>> loadWithoutDecoding(Stored *stored = nullptr) const;
    /// What load() makes of stored bytes; safe on any thread.
    static std::vector<TovuQueuedResponse> decode(const QByteArray &blob);
    /// What store() writes for `responses`, or nothing when they cannot be encoded; safe on any thread.
    static std::optional<QByteArray> encode(const std::vector<TovuQueuedResponse> &responses);
    /// Stores `blob`, encoded from `responses` elsewhere, as the whole list.
    bool storeEncoded(QByteArray blob, std::vector<TovuQueuedResponse> responses);
    /// Takes `responses`, decoded elsewhere from what was `stored`, as the
    /// stored list, unless something was written since.
    void adopt(Stored stored, std::vector<TovuQueuedResponse> responses);

private:
    struct Snapshot {
        QByteArray blob;
        std::vector<TovuQueuedResponse> responses;
    };

    /// The stored list and its bytes; decoded again only when the bytes changed.
    const Snapshot &current() const;
    bool snapshotIsCurrent() const;
    bool write(QByteArray blob, std::vector<TovuQueuedResponse> responses);
    /// Stores the snapshot's bytes.
    bool put();

    TovuKeyValueStore &m_store;
    std::string m_key;
    mutable Snapshot m_snapshot;
    mutable bool m_hasSnapshot = false;
    // The store's revision when the snapshot was last known to match it.
    mutable std::optional<std::uint64_t> m_snapshotRevision;
};
