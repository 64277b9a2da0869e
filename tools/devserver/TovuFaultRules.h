#pragma once

#include "TovuDevJson.h"

#include <chrono>
#include <cstdint>
#include <expected>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

/// A way to make the backend misbehave on purpose for the next `count`
/// requests whose method and path match: wait `delay` first; then drop the
/// connection without an answer, or answer `status` with `body`, or (neither)
/// answer as usual, only late.
struct TovuFaultRule {
    std::optional<std::string> method; ///< any method when absent
    std::string pathPrefix;
    std::optional<int> status;
    std::string body;
    std::chrono::milliseconds delay{0};
    bool drop = false;
    std::int64_t count = 1; ///< requests still to be hit
};

/// The fault rules in force, first added first tried. Safe to use from the
/// server's request threads at once.
class TovuFaultRules
{
public:
    /// Reads a rule as POST /dev/faults takes it; the error is "<member>: <what>".
    static std::expected<TovuFaultRule, std::string> parse(const TovuDevJson::Json &json);
    static TovuDevJson::Json toJson(const TovuFaultRule &rule);

    void add(TovuFaultRule rule);
    /// Removes every rule and says how many there were.
    std::size_t clear();
    /// The first rule that matches, counted as used (and forgotten once used up).
    std::optional<TovuFaultRule> take(const std::string &method, const std::string &path);
    std::vector<TovuFaultRule> rules() const;

private:
    mutable std::mutex m_mutex;
    std::vector<TovuFaultRule> m_rules;
};
