#include "TovuPayloadValidator.h"

#include <initializer_list>
#include <string_view>

namespace {

using Json = TovuDevJson::Json;
using Problem = std::optional<std::string>;

Problem kindMismatch(const std::string &path, std::string_view expected, const Json &found)
{
    return path + ": expected " + std::string(expected) + ", found " + std::string(TovuDevJson::kindName(found));
}

const Json *member(const Json &object, std::string_view name)
{
    const auto found = object.find(name);
    return found == object.end() ? nullptr : &*found;
}

Problem onlyKnownMembers(const Json &object, std::string_view path, std::initializer_list<std::string_view> known)
{
    for (const auto &[name, value] : object.items()) {
        bool isKnown = false;
        for (const std::string_view k : known)
            isKnown = isKnown || k == name;
        if (!isKnown)
            return TovuDevJson::memberPath(path, name) + ": unknown member";
    }
    return std::nullopt;
}

// The kinds a member may have; `required` decides whether absence is a problem.
enum class Kind { string, integer, object, array };

bool hasKind(const Json &value, Kind kind)
{
    switch (kind) {
    case Kind::string:
        return value.is_string();
    case Kind::integer:
        return value.is_number_integer();
    case Kind::object:
        return value.is_object();
    case Kind::array:
        return value.is_array();
    }
    return false;
}

std::string_view kindText(Kind kind)
{
    switch (kind) {
    case Kind::string:
        return "string";
    case Kind::integer:
        return "integer";
    case Kind::object:
        return "object";
    case Kind::array:
        return "array";
    }
    return "value";
}

Problem checkMember(const Json &object, std::string_view path, std::string_view name, Kind kind, bool required)
{
    const Json *value = member(object, name);
    if (!value) {
        if (required)
            return TovuDevJson::memberPath(path, name) + ": missing";
        return std::nullopt;
    }
    if (!hasKind(*value, kind))
        return kindMismatch(TovuDevJson::memberPath(path, name), kindText(kind), *value);
    return std::nullopt;
}

Problem checkAnswerValue(const Json &value, const std::string &path)
{
    if (!value.is_object())
        return kindMismatch(path, "object", value);
    for (const std::string_view name : {"row_id", "col_id", "text"}) {
        if (Problem p = checkMember(value, path, name, Kind::string, false))
            return p;
    }
    return onlyKnownMembers(value, path, {"row_id", "col_id", "text"});
}

Problem checkQuestion(const Json &question, const std::string &path)
{
    if (!question.is_object())
        return kindMismatch(path, "object", question);
    if (Problem p = checkMember(question, path, "uuid", Kind::string, true))
        return p;
    if (Problem p = checkMember(question, path, "answer", Kind::array, true))
        return p;
    const std::string answerPath = TovuDevJson::memberPath(path, "answer");
    const Json &answers = question.at("answer");
    for (std::size_t i = 0; i < answers.size(); ++i) {
        if (Problem p = checkAnswerValue(answers[i], TovuDevJson::indexPath(answerPath, i)))
            return p;
    }
    return onlyKnownMembers(question, path, {"uuid", "answer"});
}

Problem checkResponse(const Json &response, const std::string &path)
{
    if (!response.is_object())
        return kindMismatch(path, "object", response);
    struct Rule {
        std::string_view name;
        Kind kind;
        bool required;
    };
    static constexpr Rule rules[] = {
        {"response_status", Kind::string, true},   {"mode", Kind::string, true},
        {"userAgent", Kind::string, true},         {"start_time", Kind::string, false},
        {"end_time", Kind::string, false},         {"time_spent", Kind::integer, false},
        {"custom_variables", Kind::object, false}, {"qualityFlags", Kind::object, false},
        {"deviceInfo", Kind::object, false},       {"geoLocation", Kind::object, false},
        {"questions", Kind::array, true},
    };
    for (const Rule &rule : rules) {
        if (Problem p = checkMember(response, path, rule.name, rule.kind, rule.required))
            return p;
    }
    if (const Json *variables = member(response, "custom_variables")) {
        const std::string variablesPath = TovuDevJson::memberPath(path, "custom_variables");
        for (const auto &[name, value] : variables->items()) {
            if (!value.is_string())
                return kindMismatch(TovuDevJson::memberPath(variablesPath, name), "string", value);
        }
    }
    const std::string questionsPath = TovuDevJson::memberPath(path, "questions");
    const Json &questions = response.at("questions");
    for (std::size_t i = 0; i < questions.size(); ++i) {
        if (Problem p = checkQuestion(questions[i], TovuDevJson::indexPath(questionsPath, i)))
            return p;
    }
    return onlyKnownMembers(response, path,
                            {"response_status", "mode", "userAgent", "start_time", "end_time", "time_spent",
                             "custom_variables", "qualityFlags", "deviceInfo", "geoLocation", "questions"});
}

} // namespace

std::optional<std::string> TovuPayloadValidator::check(const Json &payload)
{
    if (!payload.is_object())
        return kindMismatch("body", "object", payload);
    if (Problem p = checkMember(payload, "", "collector_id", Kind::string, true))
        return p;
    if (Problem p = checkMember(payload, "", "responses", Kind::array, true))
        return p;
    const Json &responses = payload.at("responses");
    if (responses.empty())
        return std::string("responses: expected at least one response");
    for (std::size_t i = 0; i < responses.size(); ++i) {
        if (Problem p = checkResponse(responses[i], TovuDevJson::indexPath("responses", i)))
            return p;
    }
    return onlyKnownMembers(payload, "", {"collector_id", "responses"});
}
