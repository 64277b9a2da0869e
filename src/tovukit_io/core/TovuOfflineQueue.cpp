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

const TovuOfflineQueue::Snapshot &TovuOfflineQueue::current() const
{
    const QByteArray blob = m_store.data(m_key).value_or(QByteArray());
    if (m_hasSnapshot && blob == m_snapshot.blob)
        return m_snapshot;
    auto decoded = tovuDecode<std::vector<TovuQueuedResponse>>(
        std::string_view(blob.constData(), static_cast<std::size_t>(blob.size())));
    m_snapshot = Snapshot{blob, decoded ? std::move(*decoded) : std::vector<TovuQueuedResponse>()};
    m_hasSnapshot = true;
    return m_snapshot;
}

std::vector<TovuQueuedResponse> TovuOfflineQueue::load() const
{
    return current().responses;
}

bool TovuOfflineQueue::store(const std::vector<TovuQueuedResponse> &responses)
{
    const auto encoded = tovuEncode(responses);
    if (!encoded)
        return false;
    return write(QByteArray::fromStdString(*encoded), responses);
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
    m_store.setData(m_key, m_snapshot.blob);
    return m_snapshot.responses.size();
}

void TovuOfflineQueue::clear()
{
    write(QByteArrayLiteral("[]"), {});
}

bool TovuOfflineQueue::write(QByteArray blob, std::vector<TovuQueuedResponse> responses)
{
    const bool durable = m_store.setData(m_key, blob);
    m_snapshot = Snapshot{std::move(blob), std::move(responses)};
    m_hasSnapshot = true;
    return durable;
}
