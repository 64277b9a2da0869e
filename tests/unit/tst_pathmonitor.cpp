// The path monitors: the manual one hosts and tests drive, and the Linux
// routing watcher against a real kernel, in a network namespace of its own
// where the test owns every link and route.

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/platform/TovuManualPathMonitor.h>
#include <tovukit_io/platform/TovuNetlinkPathMonitor.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

// Readable failures; found by argument lookup, so beside the enum's namespace.
void PrintTo(TovuPathStatus status, std::ostream *out)
{
    constexpr std::array names{"satisfied", "unsatisfied", "requiresConnection"};
    *out << names.at(static_cast<std::size_t>(status));
}

namespace {

using enum TovuPathStatus;
using Statuses = std::vector<TovuPathStatus>;

class CoreApplication : public testing::Environment
{
public:
    void SetUp() override { m_application = std::make_unique<QCoreApplication>(m_argc, m_argv.data()); }
    void TearDown() override { m_application.reset(); }

private:
    int m_argc = 1;
    char m_name[5] = "test";
    std::array<char *, 2> m_argv{m_name, nullptr};
    std::unique_ptr<QCoreApplication> m_application;
};

const testing::Environment *const application = testing::AddGlobalTestEnvironment(new CoreApplication);

// Set in the copy of this program that runs inside the namespace.
constexpr auto insideNamespace = "TOVU_TEST_INSIDE_NETNS";
constexpr auto watcherThreadName = "com.tovu.networ"; // Linux keeps 15 characters

void recordReports(TovuPathMonitor &monitor, Statuses &reports)
{
    monitor.pathUpdateHandler = [&reports](TovuPathStatus status) {
        reports.push_back(status);
    };
}

bool hasThreadNamed(const char *name)
{
    // One entry per thread of this process, with the name the kernel keeps.
    const QDir tasks(QStringLiteral("/proc/self/task"));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile comm(tasks.filePath(task + u"/comm"));
        if (comm.open(QIODevice::ReadOnly) && comm.readAll().trimmed() == name)
            return true;
    }
    return false;
}

QString findTool(const QString &name)
{
    // Administrators' tools live in sbin, which a plain user's PATH may lack.
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty()
        ? QStandardPaths::findExecutable(name, {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")})
        : found;
}

// A thread can linger a moment in the kernel after it has finished its work.
bool threadEnds(const char *name)
{
    return QTest::qWaitFor([name] { return !hasThreadNamed(name); }, 2000);
}

// Runs a command to its end; its error output when it failed.
std::optional<QString> runFailing(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (process.waitForFinished(30000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return std::nullopt;
    return program + u' ' + arguments.join(u' ') + u": " + QString::fromLocal8Bit(process.readAll())
        + process.errorString();
}

std::optional<QString> tryIp(const QString &command)
{
    return runFailing(findTool(QStringLiteral("ip")), command.split(u' '));
}

void ip(const QString &command)
{
    if (const auto failure = tryIp(command))
        ADD_FAILURE() << failure->toStdString();
}

// Waits for as many reports as expected, then a little longer to catch any
// report that should not come.
void expectReportsAfter(const Statuses &reports, const Statuses &expected)
{
    if (QTest::qWaitFor([&] { return reports.size() >= expected.size(); }, 5000))
        QTest::qWait(200);
    EXPECT_EQ(reports, expected);
}

} // namespace

TEST(ManualPathMonitor, ReportsOnTheEventLoopAndNothingOnceCancelled)
{
    TovuManualPathMonitor monitor(unsatisfied);
    Statuses reports;
    recordReports(monitor, reports);
    int emitted = 0;
    QObject::connect(&monitor, &TovuPathMonitor::pathUpdated, [&] { ++emitted; });

    monitor.start();
    EXPECT_TRUE(reports.empty()) << "reported inside start()";
    QCoreApplication::processEvents();
    EXPECT_EQ(reports, Statuses{unsatisfied});
    EXPECT_EQ(emitted, 1);
    EXPECT_EQ(monitor.currentStatus(), unsatisfied);

    monitor.setStatus(satisfied);
    EXPECT_EQ(reports.size(), 1u);
    QCoreApplication::processEvents();
    EXPECT_EQ(reports, (Statuses{unsatisfied, satisfied}));

    monitor.setStatus(requiresConnection);
    monitor.cancel(); // the report already posted is dropped too
    monitor.setStatus(unsatisfied);
    QCoreApplication::processEvents();
    EXPECT_EQ(reports, (Statuses{unsatisfied, satisfied}));

    monitor.start();
    QCoreApplication::processEvents();
    EXPECT_EQ(reports, (Statuses{unsatisfied, satisfied, unsatisfied}));
}

TEST(PathMonitor, TheSystemsMonitorReportsThePathOnceStarted)
{
    const auto monitor = TovuPathMonitor::createDefault();
    Statuses reports;
    recordReports(*monitor, reports);
    monitor->start();
    EXPECT_TRUE(reports.empty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !reports.empty(); }, 5000));
    monitor->cancel();
}

TEST(NetlinkPathMonitor, WatchesOnANamedThreadThatCancelEnds)
{
    ASSERT_TRUE(threadEnds(watcherThreadName));
    Statuses reports;
    {
        TovuNetlinkPathMonitor monitor;
        recordReports(monitor, reports);
        monitor.start();
        ASSERT_TRUE(QTest::qWaitFor([&] { return !reports.empty(); }, 5000));
        EXPECT_TRUE(hasThreadNamed(watcherThreadName));
        monitor.cancel();
        EXPECT_TRUE(threadEnds(watcherThreadName));

        monitor.start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return reports.size() == 2; }, 5000)) << "restart reports the path again";
        EXPECT_TRUE(hasThreadNamed(watcherThreadName));
    } // the destructor cancels
    EXPECT_TRUE(threadEnds(watcherThreadName));
}

TEST(NetlinkPathMonitor, ASocketItCannotOpenMeansSatisfiedAndAnError)
{
    std::vector<std::string> lines;
    TovuLog::setHandler([&](std::string_view line) { lines.emplace_back(line); });

    // Leave this process two free descriptors: the wake-up event and whatever the
    // new thread's event dispatcher takes; the routing sockets find none.
    rlimit original{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &original), 0);
    std::vector<int> fillers;
    for (int fd = dup(STDERR_FILENO); fd >= 0; fd = fillers.back() < 512 ? dup(STDERR_FILENO) : -1)
        fillers.push_back(fd);
    ASSERT_FALSE(fillers.empty());
    rlimit lowered = original;
    lowered.rlim_cur = static_cast<rlim_t>(fillers.back()) + 1;
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &lowered), 0);
    for (int i = 0; i < 2; ++i) {
        close(fillers.back());
        fillers.pop_back();
    }

    Statuses reports;
    TovuNetlinkPathMonitor monitor;
    recordReports(monitor, reports);
    monitor.start();
    const bool reported = QTest::qWaitFor([&] { return !reports.empty(); }, 5000);

    for (const int fd : fillers)
        close(fd);
    setrlimit(RLIMIT_NOFILE, &original);
    TovuLog::setHandler({});

    ASSERT_TRUE(reported);
    QTest::qWait(100);
    EXPECT_EQ(reports, Statuses{satisfied});
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(lines[0].starts_with(">>> Tovu SDK Error: ")) << lines[0];
    EXPECT_TRUE(threadEnds(watcherThreadName)) << "the watcher gave up";
}

namespace {

// In a fresh namespace: only loopback, down. The test brings up a veth pair
// (d0 and its peer d1) and moves default routes around.
void followLinksAndRoutes()
{
    if (const auto failure = tryIp(QStringLiteral("link add d0 type veth peer name d1")))
        GTEST_SKIP() << "no veth interfaces here: " << failure->toStdString();

    TovuNetlinkPathMonitor monitor;
    Statuses reports;
    recordReports(monitor, reports);
    monitor.start();
    expectReportsAfter(reports, {unsatisfied});

    // Loopback never reaches anything, default route or not.
    ip(QStringLiteral("link set lo up"));
    ip(QStringLiteral("route add default dev lo"));
    expectReportsAfter(reports, {unsatisfied});
    ip(QStringLiteral("route del default dev lo"));

    ip(QStringLiteral("link set d0 up"));
    ip(QStringLiteral("link set d1 up"));
    ip(QStringLiteral("addr add 10.9.0.2/24 dev d0"));
    expectReportsAfter(reports, {unsatisfied}); // up, but no way out
    ip(QStringLiteral("route add default via 10.9.0.1 dev d0"));
    expectReportsAfter(reports, {unsatisfied, satisfied});

    // The peer going down takes the carrier; the route stays but leads nowhere.
    ip(QStringLiteral("link set d1 down"));
    expectReportsAfter(reports, {unsatisfied, satisfied, unsatisfied});
    ip(QStringLiteral("link set d1 up"));
    expectReportsAfter(reports, {unsatisfied, satisfied, unsatisfied, satisfied});

    ip(QStringLiteral("route del default"));
    Statuses expected{unsatisfied, satisfied, unsatisfied, satisfied, unsatisfied};
    expectReportsAfter(reports, expected);

    if (QFile::exists(QStringLiteral("/proc/sys/net/ipv6"))) {
        ip(QStringLiteral("-6 route add default dev d0"));
        expected.push_back(satisfied);
        expectReportsAfter(reports, expected);
        ip(QStringLiteral("-6 route del default dev d0"));
        expected.push_back(unsatisfied);
        expectReportsAfter(reports, expected);
    }

    // A change the watcher has already posted is not reported once cancel() returns.
    ip(QStringLiteral("route add default via 10.9.0.1 dev d0"));
    QThread::msleep(300);
    monitor.cancel();
    QTest::qWait(200);
    EXPECT_EQ(reports, expected);
    EXPECT_EQ(monitor.currentStatus(), unsatisfied);
}

} // namespace

// Runs itself again under unshare(1) in a new network namespace (inside a new
// user namespace too when not root), so no privilege and no host network is needed.
TEST(NetlinkPathMonitor, FollowsLinksAndDefaultRoutesInAFreshNamespace)
{
    if (qEnvironmentVariableIsSet(insideNamespace)) {
        followLinksAndRoutes();
        return;
    }
    const QString unshare = findTool(QStringLiteral("unshare"));
    if (unshare.isEmpty() || findTool(QStringLiteral("ip")).isEmpty())
        GTEST_SKIP() << "needs unshare (util-linux) and ip (iproute2)";
    // Root in a container may lack the right to a network namespace but still get a user namespace.
    QStringList namespaces;
    QString refusals;
    for (const QStringList &candidate : {QStringList{QStringLiteral("--net")},
                                         QStringList{QStringLiteral("--map-root-user"), QStringLiteral("--net")}}) {
        const auto failure = runFailing(unshare, candidate + QStringList{QStringLiteral("true")});
        if (!failure) {
            namespaces = candidate;
            break;
        }
        refusals += *failure;
    }
    if (namespaces.isEmpty())
        GTEST_SKIP() << "no network namespace for this user: " << refusals.toStdString();

    const testing::TestInfo *test = testing::UnitTest::GetInstance()->current_test_info();
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(insideNamespace), QStringLiteral("1"));
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(
        unshare,
        namespaces
            + QStringList{QStringLiteral("--"), QCoreApplication::applicationFilePath(),
                          QStringLiteral("--gtest_filter=%1.%2")
                              .arg(QLatin1StringView(test->test_suite_name()), QLatin1StringView(test->name()))});
    ASSERT_TRUE(child.waitForFinished(120000));
    const std::string output = child.readAll().toStdString();
    if (output.find("[  SKIPPED ]") != std::string::npos)
        GTEST_SKIP() << output;
    EXPECT_EQ(child.exitCode(), 0) << output;
    EXPECT_NE(output.find("[  PASSED  ] 1 test"), std::string::npos) << output;
}
