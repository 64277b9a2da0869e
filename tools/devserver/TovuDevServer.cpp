#include "TovuDevServer.h"

#include "TovuDevConfig.h"
#include "TovuDevRouter.h"
#include "TovuFaultRules.h"
#include "TovuResponseStore.h"
#include "TovuSurveyCatalog.h"

#include <httplib.h>

#include <arpa/inet.h>
#include <dirent.h>
#include <netinet/in.h>
#include <pthread.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/socket.h>

#include <atomic>
#include <charconv>
#include <condition_variable>
#include <cstring>
#include <iostream>
#include <mutex>
#include <optional>
#include <thread>

namespace {

// Request threads: a delayed request holds one for its whole delay, so there
// are enough that delays on some routes do not hold up the others.
constexpr std::size_t requestThreads = 32;

std::optional<std::filesystem::path> makeTemporaryFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "tovu-devserver-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        return std::nullopt;
    return std::filesystem::path(pattern);
}

std::optional<std::pair<std::string, int>> socketAddress(int fd, bool peer)
{
    sockaddr_in address{};
    socklen_t length = sizeof address;
    const int result = peer ? getpeername(fd, reinterpret_cast<sockaddr *>(&address), &length)
                            : getsockname(fd, reinterpret_cast<sockaddr *>(&address), &length);
    if (result != 0 || address.sin_family != AF_INET)
        return std::nullopt;
    char text[INET_ADDRSTRLEN] = {};
    inet_ntop(AF_INET, &address.sin_addr, text, sizeof text);
    return std::pair<std::string, int>(text, ntohs(address.sin_port));
}

// httplib cannot abandon a request without answering it, so the drop rule
// shuts down the request's socket itself, found by its address pair. The
// handler runs on the thread that owns that socket, so it cannot be closed
// and reused under us.
bool dropConnection(const httplib::Request &request)
{
    DIR *folder = opendir("/proc/self/fd");
    if (!folder)
        return false;
    bool dropped = false;
    while (const dirent *entry = readdir(folder)) {
        int fd = -1;
        const char *name = entry->d_name;
        if (std::from_chars(name, name + std::strlen(name), fd).ec != std::errc() || fd == dirfd(folder))
            continue;
        const auto local = socketAddress(fd, false);
        const auto remote = local ? socketAddress(fd, true) : std::nullopt;
        if (local && remote && local->second == request.local_port && remote->second == request.remote_port
            && remote->first == request.remote_addr) {
            dropped = shutdown(fd, SHUT_RDWR) == 0;
            break;
        }
    }
    closedir(folder);
    return dropped;
}

TovuDevRequest toDevRequest(const httplib::Request &request)
{
    TovuDevRequest devRequest;
    devRequest.method = request.method;
    devRequest.path = request.path;
    for (const auto &[name, value] : request.params)
        devRequest.query.emplace(name, value);
    for (const auto &[name, value] : request.headers)
        devRequest.headers.emplace_back(name, value);
    devRequest.body = request.body;
    return devRequest;
}

bool isDevRoute(const std::string &path)
{
    return path == "/dev" || path.starts_with("/dev/");
}

} // namespace

class TovuDevServer::Private
{
public:
    explicit Private(TovuDevServerOptions serverOptions)
        : options(std::move(serverOptions))
    { }

    bool setUp();
    void serve(const httplib::Request &request, httplib::Response &response);
    void answer(const TovuDevReply &reply, httplib::Response &response) const;
    // Waits out a delay rule; false when the server is stopping meanwhile.
    bool waitFor(std::chrono::milliseconds delay);

    TovuDevServerOptions options;
    std::string errorString;
    StartError startError = StartError::none;

    std::optional<std::filesystem::path> temporaryFolder;
    std::filesystem::path databasePath;
    std::optional<TovuSurveyCatalog> catalog;
    std::optional<TovuDevConfig> config;
    std::unique_ptr<TovuResponseStore> store;
    TovuFaultRules faults;
    std::unique_ptr<TovuDevRouter> router;

    std::unique_ptr<httplib::Server> http;
    std::thread listener;
    std::uint16_t port = 0;
    bool running = false;

    std::mutex stopMutex;
    std::condition_variable stopping;
    bool stopRequested = false;
};

bool TovuDevServer::Private::setUp()
{
    const auto fail = [this](std::string message) {
        errorString = std::move(message);
        startError = StartError::setup;
        return false;
    };
    auto loaded = TovuSurveyCatalog::load(options.dataDir);
    if (!loaded)
        return fail("survey data: " + loaded.error());
    catalog = std::move(*loaded);
    if (options.logRequests) {
        for (const std::string &warning : catalog->warnings())
            std::cerr << "tovu-devserver: skipped " << warning << '\n';
    }

    if (options.configPath.empty()) {
        config = TovuDevConfig::defaults(*catalog);
    } else {
        auto read = TovuDevConfig::load(options.configPath, *catalog);
        if (!read)
            return fail("config: " + read.error());
        config = std::move(*read);
    }

    databasePath = options.databasePath;
    if (databasePath.empty()) {
        if (!temporaryFolder)
            temporaryFolder = makeTemporaryFolder();
        if (!temporaryFolder)
            return fail("database: cannot create a temporary folder");
        databasePath = *temporaryFolder / "responses.sqlite";
    }
    auto opened = TovuResponseStore::open(databasePath);
    if (!opened)
        return fail("database: " + opened.error());
    store = std::move(*opened);
    return true;
}

void TovuDevServer::Private::answer(const TovuDevReply &reply, httplib::Response &response) const
{
    response.status = reply.status;
    response.set_content(reply.body, reply.contentType.c_str());
    if (reply.contentType.starts_with("text/html"))
        response.set_header("X-Content-Type-Options", "nosniff");
}

bool TovuDevServer::Private::waitFor(std::chrono::milliseconds delay)
{
    std::unique_lock lock(stopMutex);
    return !stopping.wait_for(lock, delay, [this] { return stopRequested; });
}

void TovuDevServer::Private::serve(const httplib::Request &request, httplib::Response &response)
{
    std::string note;
    if (!isDevRoute(request.path)) {
        if (const std::optional<TovuFaultRule> fault = faults.take(request.method, request.path)) {
            note = " (fault rule)";
            if (fault->delay.count() > 0 && !waitFor(fault->delay)) {
                dropConnection(request);
                return;
            }
            if (fault->drop) {
                if (options.logRequests)
                    std::cerr << request.method << ' ' << request.path << " -> dropped\n";
                if (!dropConnection(request))
                    answer({500, "application/json", R"({"message":"The connection could not be dropped"})"}, response);
                return;
            }
            if (fault->status) {
                const bool isJson = TovuDevJson::parse(fault->body).has_value();
                answer({*fault->status, isJson ? "application/json" : "text/plain; charset=utf-8", fault->body},
                       response);
                if (options.logRequests)
                    std::cerr << request.method << ' ' << request.path << " -> " << response.status << note << '\n';
                return;
            }
        }
    }
    try {
        answer(router->handle(toDevRequest(request)), response);
    } catch (const std::exception &error) {
        // A bug in a route must not take the server down; the client sees it.
        const std::string body = TovuDevJson::Json({{"message", std::string("Internal error: ") + error.what()}})
                                     .dump(-1, ' ', false, TovuDevJson::Json::error_handler_t::replace);
        answer({500, "application/json", body}, response);
    }
    if (options.logRequests)
        std::cerr << request.method << ' ' << request.path << " -> " << response.status << note << '\n';
}

TovuDevServer::TovuDevServer(TovuDevServerOptions options)
    : d(std::make_unique<Private>(std::move(options)))
{ }

TovuDevServer::~TovuDevServer()
{
    stop();
    d->store.reset();
    if (d->temporaryFolder) {
        std::error_code ignored;
        std::filesystem::remove_all(*d->temporaryFolder, ignored);
    }
}

std::string TovuDevServer::start()
{
    if (d->running)
        return url();
    d->errorString.clear();
    d->startError = StartError::none;
    if (!d->setUp())
        return {};

    d->http = std::make_unique<httplib::Server>();
    httplib::Server &http = *d->http;
    // Without it, small answers on loopback wait ~40 ms for delayed ACKs.
    http.set_tcp_nodelay(true);
    // httplib's default adds SO_REUSEPORT, which lets a second server bind the
    // same port and take half of the first one's connections.
    http.set_socket_options([](socket_t socket) {
        const int on = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    });
    // One request per connection: an idle kept-alive connection would hold a
    // request thread, and stop() would wait for it to time out.
    http.set_keep_alive_max_count(1);
    http.set_payload_max_length(16 * 1024 * 1024);
    http.new_task_queue = [] {
        return new httplib::ThreadPool(requestThreads);
    };
    const auto handler = [this](const httplib::Request &request, httplib::Response &response) {
        d->serve(request, response);
    };
    // One catch-all per method: the router owns routing, and bodies are read
    // before any fault rule answers, so a connection never holds stray bytes.
    http.Get(".*", handler);
    http.Post(".*", handler);
    http.Put(".*", handler);
    http.Patch(".*", handler);
    http.Delete(".*", handler);
    http.Options(".*", handler);

    const bool bound = d->options.port == 0 ? [&] {
        const int port = http.bind_to_any_port("127.0.0.1");
        d->port = port > 0 ? static_cast<std::uint16_t>(port) : 0;
        return port > 0;
    }()
                                            : http.bind_to_port("127.0.0.1", d->options.port);
    if (!bound) {
        d->errorString = "cannot listen on 127.0.0.1:" + std::to_string(d->options.port);
        d->startError = StartError::listen;
        d->http.reset();
        return {};
    }
    if (d->options.port != 0)
        d->port = d->options.port;

    d->router = std::make_unique<TovuDevRouter>(*d->catalog, *d->config, *d->store, d->faults, url());
    {
        const std::lock_guard lock(d->stopMutex);
        d->stopRequested = false;
    }
    d->listener = std::thread([&http] {
        // A client that gives up before its answer is written must not kill the
        // process with SIGPIPE; the request threads inherit this mask.
        sigset_t pipe;
        sigemptyset(&pipe);
        sigaddset(&pipe, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &pipe, nullptr);
        http.listen_after_bind();
    });
    // The socket already queues connections; wait for the accept loop anyway
    // so isRunning() is true once start() returns.
    for (int waited = 0; !http.is_running() && waited < 5000; ++waited)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    d->running = true;
    return url();
}

void TovuDevServer::stop()
{
    if (!d->http)
        return;
    {
        const std::lock_guard lock(d->stopMutex);
        d->stopRequested = true;
    }
    d->stopping.notify_all();
    d->http->stop();
    if (d->listener.joinable())
        d->listener.join();
    d->http.reset();
    d->router.reset();
    d->running = false;
}

bool TovuDevServer::isRunning() const
{
    return d->running;
}

std::uint16_t TovuDevServer::port() const
{
    return d->port;
}

std::string TovuDevServer::url() const
{
    return "http://127.0.0.1:" + std::to_string(d->port);
}

const std::string &TovuDevServer::errorString() const
{
    return d->errorString;
}

TovuDevServer::StartError TovuDevServer::startError() const
{
    return d->startError;
}

std::filesystem::path TovuDevServer::databasePath() const
{
    return d->databasePath;
}
