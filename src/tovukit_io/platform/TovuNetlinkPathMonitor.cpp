#include <tovukit_io/platform/TovuNetlinkPathMonitor.h>

#include <tovukit_io/model/TovuLog.h>

#include <QThread>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <expected>
#include <functional>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace {

using Bytes = std::span<const std::byte>;

// Why the watcher stopped: an empty reason means it was cancelled.
struct Stop {
    std::string reason;
};

std::unexpected<Stop> failed(std::string_view doing)
{
    return std::unexpected(Stop{std::string(doing) + ": " + std::system_category().message(errno)});
}

const std::unexpected<Stop> cancelled{Stop{}};

constexpr std::size_t align4(std::size_t size)
{
    return (size + 3) & ~std::size_t{3};
}

template<class T>
std::optional<T> readAs(Bytes bytes)
{
    if (bytes.size() < sizeof(T))
        return std::nullopt;
    T value{};
    std::memcpy(&value, bytes.data(), sizeof(T));
    return value;
}

// What follows a fixed header of type T (whose size the caller has checked).
template<class T>
Bytes after(Bytes bytes)
{
    return bytes.subspan(std::min(align4(sizeof(T)), bytes.size()));
}

// The netlink attribute list: type and value of each attribute.
template<class Visit>
void forEachAttribute(Bytes bytes, Visit &&visit)
{
    while (const auto attribute = readAs<rtattr>(bytes)) {
        if (attribute->rta_len < sizeof(rtattr) || attribute->rta_len > bytes.size())
            return;
        visit(attribute->rta_type, bytes.first(attribute->rta_len).subspan(align4(sizeof(rtattr))));
        bytes = bytes.subspan(std::min(align4(attribute->rta_len), bytes.size()));
    }
}

// What the kernel's tables say, as far as the path is concerned.
struct RoutingState {
    std::set<int> usableInterfaces; // up and running, loopback excluded
    std::set<int> defaultRouteInterfaces; // devices of unicast default routes in the main table
    bool defaultRouteViaNexthopObject = false; // a default route whose device only a nexthop object knows

    void addLink(Bytes payload)
    {
        const auto link = readAs<ifinfomsg>(payload);
        if (!link)
            return;
        const unsigned flags = link->ifi_flags;
        // Loopback is always there and reaches nothing: it never makes a path.
        if ((flags & IFF_UP) && (flags & IFF_RUNNING) && !(flags & IFF_LOOPBACK))
            usableInterfaces.insert(link->ifi_index);
    }

    void addRoute(Bytes payload)
    {
        const auto route = readAs<rtmsg>(payload);
        // Unreachable, blackhole and prohibit defaults lead nowhere.
        if (!route || route->rtm_dst_len != 0 || route->rtm_type != RTN_UNICAST)
            return;
        if (route->rtm_family != AF_INET && route->rtm_family != AF_INET6)
            return;
        std::uint32_t table = route->rtm_table;
        std::vector<int> devices;
        bool viaNexthopObject = false;
        forEachAttribute(after<rtmsg>(payload), [&](unsigned short type, Bytes value) {
            switch (type) {
            case RTA_TABLE:
                table = readAs<std::uint32_t>(value).value_or(table);
                break;
            case RTA_OIF:
                if (const auto device = readAs<int>(value))
                    devices.push_back(*device);
                break;
            case RTA_MULTIPATH:
                addNexthops(value, devices);
                break;
            case RTA_NH_ID:
                viaNexthopObject = true;
                break;
            default:
                break;
            }
        });
        // Policy tables (VPN split tunnels, containers) do not serve every destination.
        if (table != RT_TABLE_MAIN)
            return;
        defaultRouteInterfaces.insert(devices.begin(), devices.end());
        defaultRouteViaNexthopObject = defaultRouteViaNexthopObject || (viaNexthopObject && devices.empty());
    }

    static void addNexthops(Bytes bytes, std::vector<int> &devices)
    {
        while (const auto hop = readAs<rtnexthop>(bytes)) {
            if (hop->rtnh_len < sizeof(rtnexthop) || hop->rtnh_len > bytes.size())
                return;
            devices.push_back(hop->rtnh_ifindex);
            bytes = bytes.subspan(std::min(align4(hop->rtnh_len), bytes.size()));
        }
    }

    TovuPathStatus status() const
    {
        // Resolving nexthop objects would need a third dump; any usable interface will do for them.
        const bool routed = std::ranges::any_of(defaultRouteInterfaces,
                                                [this](int device) { return usableInterfaces.contains(device); })
            || (defaultRouteViaNexthopObject && !usableInterfaces.empty());
        return routed ? TovuPathStatus::satisfied : TovuPathStatus::unsatisfied;
    }
};

class Socket
{
public:
    explicit Socket(int fd)
        : m_fd(fd)
    { }
    Socket(Socket &&other) noexcept
        : m_fd(std::exchange(other.m_fd, -1))
    { }
    Socket &operator=(Socket &&) = delete;
    ~Socket()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    int fd() const { return m_fd; }

private:
    int m_fd;
};

std::expected<Socket, Stop> openRouteSocket(unsigned groups)
{
    Socket socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE));
    if (socket.fd() < 0)
        return failed("opening a routing socket");
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = groups;
    if (::bind(socket.fd(), reinterpret_cast<const sockaddr *>(&address), sizeof address) < 0)
        return failed("binding a routing socket");
    return socket;
}

// Runs on the watcher thread: reads the tables, waits for a change, reads them again.
class Watcher
{
public:
    using Post = std::function<void(std::optional<TovuPathStatus>, std::string failure)>;

    Watcher(int wakeFd, Post post)
        : m_wakeFd(wakeFd)
        , m_post(std::move(post))
    { }

    void run()
    {
        const Stop stop = watch();
        if (stop.reason.empty())
            return;
        // Never hold sends back on a monitor that can no longer see.
        const bool change = m_reported != TovuPathStatus::satisfied;
        m_post(change ? std::optional(TovuPathStatus::satisfied) : std::nullopt, stop.reason);
    }

private:
    static constexpr int answerTimeoutMs = 5000; // the kernel answers a dump at once
    static constexpr int settleMs = 50; // a reconfiguration comes as a burst of messages
    static constexpr auto maxSettle = std::chrono::milliseconds(500); // but a steady stream must not starve us

    Stop watch()
    {
        // Subscribe before the first dump so no change in between goes unseen.
        auto events = openRouteSocket(RTMGRP_LINK | RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE);
        if (!events)
            return events.error();
        auto queries = openRouteSocket(0);
        if (!queries)
            return queries.error();
        m_queries = queries->fd();
        for (;;) {
            const auto state = readState();
            if (!state)
                return state.error();
            if (state->status() != m_reported) {
                m_reported = state->status();
                m_post(m_reported, {});
            }
            if (const auto changed = waitForChange(events->fd()); !changed)
                return changed.error();
        }
    }

    std::expected<RoutingState, Stop> readState()
    {
        RoutingState state;
        ifinfomsg links{};
        links.ifi_family = AF_UNSPEC;
        if (auto done = dump(RTM_GETLINK, links, [&](Bytes payload) { state.addLink(payload); }); !done)
            return std::unexpected(done.error());
        for (const unsigned char family : {std::uint8_t{AF_INET}, std::uint8_t{AF_INET6}}) {
            rtmsg routes{};
            routes.rtm_family = family;
            if (auto done = dump(RTM_GETROUTE, routes, [&](Bytes payload) { state.addRoute(payload); }); !done)
                return std::unexpected(done.error());
        }
        return state;
    }

    // Asks for every object of one kind and hands each answer's payload to `visit`.
    template<class Body, class Visit>
    std::expected<void, Stop> dump(std::uint16_t type, const Body &body, Visit &&visit)
    {
        struct {
            nlmsghdr header;
            Body body;
        } request{};
        request.header.nlmsg_len = sizeof request;
        request.header.nlmsg_type = type;
        request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
        request.header.nlmsg_seq = ++m_sequence;
        request.body = body;
        sockaddr_nl kernel{};
        kernel.nl_family = AF_NETLINK;
        while (
            ::sendto(m_queries, &request, sizeof request, 0, reinterpret_cast<const sockaddr *>(&kernel), sizeof kernel)
            < 0) {
            if (errno != EINTR)
                return failed("asking for the routing tables");
        }
        for (bool done = false; !done;) {
            const auto datagram = receive(m_queries, answerTimeoutMs);
            if (!datagram)
                return std::unexpected(datagram.error());
            const std::optional<Bytes> &answer = *datagram;
            if (!answer)
                return std::unexpected(Stop{"the kernel did not answer"});
            const auto answered = readAnswers(*answer, visit);
            if (!answered)
                return std::unexpected(answered.error());
            done = *answered;
        }
        return {};
    }

    // Handles one datagram of a dump's answer; true once the dump is complete.
    template<class Visit>
    std::expected<bool, Stop> readAnswers(Bytes datagram, Visit &visit)
    {
        constexpr std::size_t headerSize = align4(sizeof(nlmsghdr));
        while (const auto header = readAs<nlmsghdr>(datagram)) {
            if (header->nlmsg_len < headerSize || header->nlmsg_len > datagram.size())
                return std::unexpected(Stop{"a malformed answer from the kernel"});
            const Bytes payload = datagram.first(header->nlmsg_len).subspan(headerSize);
            datagram = datagram.subspan(std::min(align4(header->nlmsg_len), datagram.size()));
            if (header->nlmsg_seq != m_sequence)
                continue;
            if (header->nlmsg_type == NLMSG_DONE || header->nlmsg_type == NLMSG_ERROR) {
                // Both carry an error number (negative), zero when all went well.
                const int error = readAs<int>(payload).value_or(0);
                if (error == 0)
                    return true;
                errno = -error;
                return failed("reading the routing tables");
            }
            visit(payload);
        }
        return false;
    }

    // Waits for a change notification, then lets a burst of them settle.
    std::expected<void, Stop> waitForChange(int events)
    {
        if (const auto first = receive(events, -1); !first)
            return std::unexpected(first.error());
        const auto deadline = std::chrono::steady_clock::now() + maxSettle;
        while (std::chrono::steady_clock::now() < deadline) {
            const auto more = receive(events, settleMs);
            if (!more)
                return std::unexpected(more.error());
            if (!*more)
                break;
        }
        return {};
    }

    // Reads one datagram, waiting for it at most `timeoutMs` (-1: for ever)
    // while watching the wake-up event; nothing when the time ran out.
    std::expected<std::optional<Bytes>, Stop> receive(int fd, int timeoutMs)
    {
        for (;;) {
            const ssize_t size = ::recv(fd, m_buffer.data(), m_buffer.size(), MSG_TRUNC);
            if (size >= 0) {
                if (static_cast<std::size_t>(size) > m_buffer.size())
                    return std::unexpected(Stop{"an answer from the kernel was too large"});
                return Bytes(m_buffer).first(static_cast<std::size_t>(size));
            }
            if (errno == ENOBUFS)
                return Bytes{}; // notifications were lost: reading the tables again catches up
            if (errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR)
                return failed("reading the routing socket");
            const auto ready = waitReadable(fd, timeoutMs);
            if (!ready)
                return std::unexpected(ready.error());
            if (!*ready)
                return std::nullopt;
        }
    }

    // False when the time ran out.
    std::expected<bool, Stop> waitReadable(int fd, int timeoutMs)
    {
        std::array<pollfd, 2> fds{{{fd, POLLIN, 0}, {m_wakeFd, POLLIN, 0}}};
        for (;;) {
            const int ready = ::poll(fds.data(), fds.size(), timeoutMs);
            if (ready < 0 && errno == EINTR)
                continue;
            if (ready < 0)
                return failed("waiting for the routing socket");
            if (fds[1].revents != 0)
                return cancelled;
            return ready > 0;
        }
    }

    const int m_wakeFd;
    const Post m_post;
    int m_queries = -1;
    std::uint32_t m_sequence = 0;
    std::optional<TovuPathStatus> m_reported;
    std::vector<std::byte> m_buffer = std::vector<std::byte>(std::size_t{64} * 1024); // twice the largest dump datagram
};

} // namespace

TovuNetlinkPathMonitor::TovuNetlinkPathMonitor(QObject *parent)
    : TovuPathMonitor(parent)
{ }

TovuNetlinkPathMonitor::~TovuNetlinkPathMonitor()
{
    TovuNetlinkPathMonitor::cancel();
}

void TovuNetlinkPathMonitor::start()
{
    if (m_thread)
        return;
    m_wakeFd = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (m_wakeFd < 0) {
        // A watcher that could not be stopped must not be started.
        post(m_generation, TovuPathStatus::satisfied,
             "creating the wake-up event: " + std::system_category().message(errno));
        return;
    }
    m_thread.reset(QThread::create([this, wakeFd = m_wakeFd, generation = m_generation] {
        Watcher(wakeFd, [this, generation](std::optional<TovuPathStatus> status, std::string failure) {
            post(generation, status, std::move(failure));
        }).run();
    }));
    m_thread->setObjectName(QStringLiteral("com.tovu.network_monitor"));
    m_thread->start();
    // Neither running nor finished: the system refused the thread.
    if (!m_thread->isRunning() && !m_thread->isFinished())
        post(m_generation, TovuPathStatus::satisfied, "the system refused the watcher thread");
}

void TovuNetlinkPathMonitor::cancel()
{
    ++m_generation;
    if (!m_thread)
        return;
    const std::uint64_t wake = 1;
    while (::write(m_wakeFd, &wake, sizeof wake) < 0 && errno == EINTR) { }
    m_thread->wait();
    m_thread.reset();
    ::close(m_wakeFd);
    m_wakeFd = -1;
}

void TovuNetlinkPathMonitor::post(quint64 generation, std::optional<TovuPathStatus> status, std::string failure)
{
    QMetaObject::invokeMethod(
        this,
        [this, generation, status, failure = std::move(failure)] {
            if (generation != m_generation)
                return;
            if (!failure.empty())
                TovuLog::print(">>> Tovu SDK Error: The network monitor stopped watching the system's routes ("
                               + failure + "); sending as if the network were reachable.");
            if (status)
                report(*status);
        },
        Qt::QueuedConnection);
}
