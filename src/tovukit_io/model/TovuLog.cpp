#include <tovukit_io/model/TovuLog.h>

#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace {

std::mutex handlerMutex;
std::shared_ptr<const TovuLog::Handler> currentHandler;

void writeToStandardOutput(std::string_view line)
{
    // One write per line keeps lines from different threads whole.
    std::string buffer;
    buffer.reserve(line.size() + 1);
    buffer.append(line);
    buffer.push_back('\n');
    std::fwrite(buffer.data(), 1, buffer.size(), stdout);
    std::fflush(stdout);
}

} // namespace

void TovuLog::print(std::string_view line)
{
    std::shared_ptr<const Handler> handler;
    {
        const std::lock_guard lock(handlerMutex);
        handler = currentHandler;
    }
    // Called outside the lock so a handler may itself print or replace the handler.
    if (handler)
        (*handler)(line);
    else
        writeToStandardOutput(line);
}

void TovuLog::setHandler(Handler handler)
{
    auto next = handler ? std::make_shared<const Handler>(std::move(handler)) : nullptr;
    const std::lock_guard lock(handlerMutex);
    currentHandler = std::move(next);
}
