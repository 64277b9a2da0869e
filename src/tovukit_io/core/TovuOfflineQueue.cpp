#include <tovukit_io/core/TovuOfflineQueue.h>

#include <tovukit_io/model/TovuQueuedResponseJson.h>
#include <tovukit_io/platform/TovuKeyValueStore.h>

namespace {

QByteArray arrayWith(const QByteArray &array, std::size_t count, const std::string &record)
{
    // `array` is an encoded array ending in ']': put the record before it.
    QByteArray blob = array.first(array.size() - 1);
    if (count > 0)
        blob.append(',');
    blob.append(record.data(), static_cast<qsizetype>(record.size()));
    blob.append(']');
    return blob;
}

} // namespace

TovuOfflineQueue::TovuOfflineQueue(TovuKeyValueStore &store, std::string key)
    : m_store(store)
    , m_key(std::move(key))
{ }

std::vector<TovuQueuedResponse> TovuOfflineQueue::decode(const QByteArray &blob)
{
    auto decoded = tovuDecode<std::vector<TovuQueuedResponse>>(
        std::string_view(blob.constData(), static_cast<std::size_t>(blob.size())));
    return decoded ? *std::move(decoded) : std::vector<TovuQueuedResponse>();
}

bool TovuOfflineQueue::snapshotIsCurrent() const
{
    return m_hasSnapshot && m_snapshotRevision && m_snapshotRevision == m_store.revision();
}

std::optional<std::vector<TovuQueuedResponse>> TovuOfflineQueue::loadWithoutDecoding(Stored *stored) const
{
    if (snapshotIsCurrent())
        return m_snapshot.responses;
    const auto revision = m_store.revision();
    QByteArray blob = m_store.data(m_key).value_or(QByteArray());
    if (m_hasSnapshot && blob == m_snapshot.blob) {
        m_snapshotRevision = revision;
        return m_snapshot.responses;
    }
    if (blob.trimmed().isEmpty() || blob.trimmed() == "[]")
        return std::vector<TovuQueuedResponse>();
    if (stored)
        *stored = Stored{std::move(blob), revision};
    return std::nullopt;
}

void TovuOfflineQueue::adopt(Stored stored, std::vector<TovuQueuedResponse> responses)
{
    // Only if nobody wrote in between: otherwise the next read decodes afresh.
    if (!stored.revision || stored.revision != m_store.revision())
        return;
    m_snapshot = Snapshot{std::move(stored.blob), std::move(responses)};
    m_hasSnapshot = true;
    m_snapshotRevision = stored.revision;
}

const TovuOfflineQueue::Snapshot &TovuOfflineQueue::current() const
{
    if (snapshotIsCurrent())
        return m_snapshot;
    const auto revision = m_store.revision();
    QByteArray blob = m_store.data(m_key).value_or(QByteArray());
    if (!m_hasSnapshot || blob != m_snapshot.blob) {
        auto responses = decode(blob);
        m_snapshot = Snapshot{std::move(blob), std::move(responses)};
        m_hasSnapshot = true;
    }
    m_snapshotRevision = revision;
    return m_snapshot;
}

std::vector<TovuQueuedResponse> TovuOfflineQueue::load() const
{
    return current().responses;
}

std::optional<QByteArray> TovuOfflineQueue::encode(const std::vector<TovuQueuedResponse> &responses)
{
    const auto encoded = tovuEncode(responses);
    if (!encoded)
        return std::nullopt;
    return QByteArray::fromStdString(*encoded);
}

bool TovuOfflineQueue::store(const std::vector<TovuQueuedResponse> &responses)
{
    auto blob = encode(responses);
    return blob && write(*std::move(blob), responses);
}

bool TovuOfflineQueue::storeEncoded(QByteArray blob, std::vector<TovuQueuedResponse> responses)
{
    return write(std::move(blob), std::move(responses));
}

std::size_t TovuOfflineQueue::enqueue(const TovuQueuedResponse &response)
{
    current();
    const auto record = tovuEncode(response);
    if (!record)
        return m_snapshot.responses.size();
    if (m_snapshot.responses.empty()) {
        // Nothing stored, [] or a value that did not decode: a new array.
        m_snapshot.blob = QByteArrayLiteral("[]");
    } else if (!m_snapshot.blob.endsWith(']')) {
        // Written by someone else with trailing space: put it in our form once.
        m_snapshot.blob = QByteArray::fromStdString(tovuEncode(m_snapshot.responses).value_or("[]"));
    }
    m_snapshot.blob = arrayWith(m_snapshot.blob, m_snapshot.responses.size(), *record);
    m_snapshot.responses.push_back(response);
    put();
    return m_snapshot.responses.size();
}

void TovuOfflineQueue::clear()
{
    write(QByteArrayLiteral("[]"), {});
}

bool TovuOfflineQueue::write(QByteArray blob, std::vector<TovuQueuedResponse> responses)
{
    m_snapshot = Snapshot{std::move(blob), std::move(responses)};
    return put();
}

bool TovuOfflineQueue::put()
{
    // Our write moves the store's revision by one; by more, someone else wrote
    // as well, and the next read compares the stored bytes.
    const auto before = m_store.revision();
    const bool durable = m_store.setData(m_key, m_snapshot.blob);
    const auto after = m_store.revision();
    m_hasSnapshot = true;
    m_snapshotRevision = before && after && *after == *before + 1 ? after : std::nullopt;
    return durable;
}
