#pragma once

#include <functional>
#include <string_view>

/// The library's console: every progress and error line goes through print().
///
/// By default a line is written to standard output with a newline and flushed.
/// The lines include the verify response and submitted payloads, so hosts that
/// must not log them route or silence them:
///
/// \code
/// TovuLog::setHandler([](std::string_view line) { qCDebug(lcSurveys).noquote() << QUtf8StringView(line); });
/// TovuLog::setHandler([](std::string_view) {}); // silence
/// TovuLog::setHandler({});                      // back to standard output
/// \endcode
///
/// print() may be called from any thread; a handler runs on the caller's thread.
class TovuLog
{
public:
    using Handler = std::function<void(std::string_view line)>;

    static void print(std::string_view line);
    static void setHandler(Handler handler);

    TovuLog() = delete;
};
