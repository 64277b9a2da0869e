// What reading a survey costs on top of parsing its JSON, and what the offline
// queue costs to store and load.
//
// The documents are generated in the backend's shape with N question
// containers: every question type, options with HTML and entities, and NPS
// questions whose score ranges lead to follow-up questions. Each is serialised
// once, before timing starts.

#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/model/TovuQueuedResponse.h>
#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/network/TovuAPISurveyData.h>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Json = nlohmann::ordered_json;

// Deterministic, so every run measures the same bytes.
class Uuids
{
public:
    std::string next()
    {
        std::array<char, 40> text{};
        const std::uint64_t high = step();
        const std::uint64_t low = step();
        std::snprintf(text.data(), text.size(), "%08llx-%04llx-4%03llx-a%03llx-%012llx",
                      static_cast<unsigned long long>(high >> 32),
                      static_cast<unsigned long long>((high >> 16) & 0xFFFF),
                      static_cast<unsigned long long>(high & 0xFFF), static_cast<unsigned long long>(low >> 52),
                      static_cast<unsigned long long>(low & 0xFFFFFFFFFFFF));
        return text.data();
    }

private:
    std::uint64_t step()
    {
        m_state = m_state * 6364136223846793005ULL + 1442695040888963407ULL;
        return m_state;
    }

    std::uint64_t m_state = 0x7E57ABCDULL;
};

constexpr std::array<std::string_view, 8> optionTexts{
    "Very satisfied",
    "<p>Satisfied</p>",
    "Neither satisfied nor dissatisfied",
    "<b>Dissatisfied</b> &amp; unlikely to return",
    "Search &amp; filters",
    "It hasn&#39;t arrived yet",
    "<span style=\"color:#E74C3C\">Very dissatisfied</span>",
    "Other&nbsp;(please specify)",
};

Json rows(Uuids &uuids, std::size_t count, std::size_t salt)
{
    Json list = Json::array();
    for (std::size_t i = 0; i < count; ++i)
        list.push_back({{"uuid", uuids.next()}, {"text", std::string(optionTexts[(i + salt) % optionTexts.size()])}});
    return list;
}

Json scaleColumns(Uuids &uuids, int from, int to)
{
    Json list = Json::array();
    for (int point = from; point <= to; ++point)
        list.push_back({{"uuid", uuids.next()}, {"text", std::to_string(point)}});
    return list;
}

Json questionDef(Uuids &uuids, std::string uuid, std::string_view type, std::size_t index)
{
    Json question{
        {"uuid", std::move(uuid)},
        {"title",
         "<p>Question " + std::to_string(index + 1) + ": how would you rate <b>Acme&nbsp;Store</b>&#39;s "
             + std::string(type) + " experience?</p>"},
        {"quesType", type},
    };
    if (index % 3 == 0)
        question["helperText"] = {{"text", "Choose what fits best &amp; be honest."}};
    question["required"] = {{"enabled", index % 2 == 0}};
    if (type == "single_choice" || type == "multi_choice" || type == "dropdown") {
        question["options"] = {{"row", rows(uuids, 4 + index % 5, index)}};
    } else if (type == "single_text" || type == "multi_text") {
        question["placeholder"] = {{"text", "Type your answer here"}};
    } else if (type == "rating" || type == "rating_pro" || type == "multi_rating") {
        question["options"]
            = {{"row", rows(uuids, type == "multi_rating" ? 4 : 1, index)}, {"col", scaleColumns(uuids, 1, 5)}};
        question["settings"] = {{"rating",
                                 {{"type", index % 2 == 0 ? "stars" : "emoji"},
                                  {"colLabel", true},
                                  {"color", "#F5A623"},
                                  {"position", "center"}}}};
    } else { // nps, nps_pro, multi_nps
        question["options"]
            = {{"row", rows(uuids, type == "multi_nps" ? 3 : 1, index)}, {"col", scaleColumns(uuids, 0, 10)}};
        question["settings"]
            = {{"nps",
                {{"colors", {{"detractor", "#E74C3C"}, {"passive", "#F1C40F"}, {"promoter", "#2ECC71"}}},
                 {"leftLabel", "Not at all likely"},
                 {"rightLabel", "Extremely likely"}}}};
    }
    return question;
}

// N question containers, five to a block. Every tenth position starts a group
// of an "nps_pro" question and the two follow-ups its score ranges lead to.
std::string surveyDocument(std::size_t questionCount)
{
    constexpr std::array<std::string_view, 7> types{
        "single_choice", "multi_choice", "dropdown", "rating_pro", "multi_rating", "single_text", "multi_nps",
    };
    Uuids uuids;
    std::vector<Json> questions;
    questions.reserve(questionCount);
    std::size_t typeIndex = 0;
    while (questions.size() < questionCount) {
        const std::size_t index = questions.size();
        if (index % 10 == 0 && questionCount - index >= 3) {
            std::string lowId = uuids.next();
            std::string highId = uuids.next();
            Json nps = questionDef(uuids, uuids.next(), "nps_pro", index);
            nps["settings"]["configScale"] = Json::array({
                {{"uuid", uuids.next()}, {"scale", {{"min", 0}, {"max", 6}}}, {"enabled", true}, {"qId", {lowId}}},
                {{"uuid", uuids.next()},
                 {"scale", {{"min", 7}, {"max", 8}}},
                 {"enabled", false},
                 {"qId", Json::array()}},
                {{"uuid", uuids.next()}, {"scale", {{"min", 9}, {"max", 10}}}, {"enabled", true}, {"qId", {highId}}},
            });
            questions.push_back(std::move(nps));
            questions.push_back(questionDef(uuids, std::move(lowId), "multi_choice", index + 1));
            questions.push_back(questionDef(uuids, std::move(highId), "multi_text", index + 2));
            continue;
        }
        questions.push_back(questionDef(uuids, uuids.next(), types[typeIndex++ % types.size()], index));
    }

    Json blocks = Json::array();
    for (std::size_t first = 0; first < questions.size(); first += 5) {
        Json block{{"questions", Json::array()}};
        for (std::size_t i = first; i < questions.size() && i < first + 5; ++i)
            block["questions"].push_back({{"question", std::move(questions[i])}});
        blocks.push_back(std::move(block));
    }
    const Json document{{"data",
                         {{"uuid", uuids.next()},
                          {"displayTitle", "Post-purchase satisfaction survey"},
                          {"projectId", uuids.next()},
                          {"blocks", std::move(blocks)},
                          {"introPage",
                           {{"enabled", true},
                            {"content", "<p>Welcome! &nbsp;It takes <b>two minutes</b>.</p>"},
                            {"buttonText", "Start"}}},
                          {"thankYouPage",
                           {{"enabled", true},
                            {"content", "<p>Thank you &amp; see you soon!</p>"},
                            {"links", "https://example.com/thanks"}}}}}};
    return document.dump();
}

// Responses as the manager queues them offline: several answers, timings per
// question, device and location.
std::vector<TovuQueuedResponse> queuedResponses(std::size_t count)
{
    Uuids uuids;
    std::vector<TovuQueuedResponse> queue;
    queue.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        TovuQueuedResponse response{
            .responseId = uuids.next(),
            .surveyId = "03ce355f-163d-420a-9980-f630e7af337c",
            .collectorUUID = "5d7f3a1e-8c42-4b9e-a6f1-2e0c9b7d4a13",
            .mode = "native",
            .status = "completed",
            .startTime = "2026-03-14T09:26:53Z",
            .endTime = "2026-03-14T09:29:41Z",
            .customVariables = std::map<std::string, std::string>{{"email", "respondent@example.com"},
                                                                  {"plan", "pro"},
                                                                  {"uniqueId", "user-" + std::to_string(i)}},
            .deviceInfo = TovuDeviceInfo{.type = "mobile", .os = "Android 14", .browser = "native"},
            .geolocation = TovuGeolocation{.type = "Point",
                                           .coordinates = {36.8219, -1.2921},
                                           .country = "KE",
                                           .city = "Nairobi",
                                           .region = "Nairobi County"},
        };
        TovuQualityFlags flags;
        for (std::size_t q = 0; q < 8; ++q) {
            std::string questionId = uuids.next();
            response.answers.push_back(TovuAnswer{
                .questionId = questionId,
                .value
                = {TovuAnswerValue{.rowId = uuids.next(), .colId = uuids.next(), .text = "Satisfied"},
                   TovuAnswerValue{.rowId = uuids.next(), .text = "Free text answer number " + std::to_string(q)}},
            });
            flags.data.timePerQues[questionId] = {.timeOnQues = 2.5 + static_cast<double>(q)};
            if (q % 3 == 0)
                flags.straightLining.questionList.push_back(std::move(questionId));
        }
        flags.data.survey = {.totalTimeDuration = 2.8,
                             .netTimeDuration = 2.35,
                             .curTime = "09:29",
                             .startTime = 1773480413000 + static_cast<std::int64_t>(i),
                             .backTrackCount = 1};
        response.qualityFlags = std::move(flags);
        queue.push_back(std::move(response));
    }
    return queue;
}

void setBytes(benchmark::State &state, std::size_t bytes)
{
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
    state.counters["bytes"] = static_cast<double>(bytes);
}

const std::string &documentFor(const benchmark::State &state)
{
    static std::map<std::int64_t, std::string> documents;
    const std::int64_t questionCount = state.range(0);
    auto it = documents.find(questionCount);
    if (it == documents.end())
        it = documents.emplace(questionCount, surveyDocument(static_cast<std::size_t>(questionCount))).first;
    return it->second;
}

// The floor: nlohmann's own parse of the same bytes, into its default DOM.
void BM_BareParse(benchmark::State &state)
{
    const std::string &document = documentFor(state);
    for (auto _ : state) {
        nlohmann::json json = nlohmann::json::parse(document);
        benchmark::DoNotOptimize(json);
    }
    setBytes(state, document.size());
}

// The same parse into the insertion-ordered DOM that the library decodes from.
void BM_BareParseOrdered(benchmark::State &state)
{
    const std::string &document = documentFor(state);
    for (auto _ : state) {
        Json json = Json::parse(document);
        benchmark::DoNotOptimize(json);
    }
    setBytes(state, document.size());
}

// Parsing and strict decoding into the document records, without conversion.
void BM_Decode(benchmark::State &state)
{
    const std::string &document = documentFor(state);
    for (auto _ : state) {
        TovuResult<TovuAPIMainResponse> decoded = tovuDecode<TovuAPIMainResponse>(document);
        if (!decoded) {
            state.SkipWithError(decoded.error().localizedDescription().c_str());
            break;
        }
        benchmark::DoNotOptimize(decoded);
    }
    setBytes(state, document.size());
}

// What fetching a survey costs the host: bytes to survey model.
void BM_DecodeAndConvert(benchmark::State &state)
{
    const std::string &document = documentFor(state);
    std::size_t questionCount = 0;
    for (auto _ : state) {
        TovuResult<TovuAPIMainResponse> decoded = tovuDecode<TovuAPIMainResponse>(document);
        if (!decoded) {
            state.SkipWithError(decoded.error().localizedDescription().c_str());
            break;
        }
        TovuSurvey survey = decoded->data.toNativeSurvey();
        questionCount = survey.questions.size();
        benchmark::DoNotOptimize(survey);
    }
    setBytes(state, document.size());
    // Follow-ups leave the main sequence and the closing page joins it.
    state.counters["questions"] = static_cast<double>(questionCount);
}

// The conversion alone, from an already decoded document.
void BM_Convert(benchmark::State &state)
{
    const std::string &document = documentFor(state);
    const TovuResult<TovuAPIMainResponse> decoded = tovuDecode<TovuAPIMainResponse>(document);
    if (!decoded) {
        state.SkipWithError(decoded.error().localizedDescription().c_str());
        return;
    }
    for (auto _ : state) {
        TovuSurvey survey = decoded->data.toNativeSurvey();
        benchmark::DoNotOptimize(survey);
    }
    setBytes(state, document.size());
}

BENCHMARK(BM_BareParse)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK(BM_BareParseOrdered)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK(BM_Decode)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK(BM_Convert)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK(BM_DecodeAndConvert)->Arg(10)->Arg(100)->Arg(1000);

constexpr std::size_t queueLength = 100;

void BM_EncodeQueue(benchmark::State &state)
{
    const std::vector<TovuQueuedResponse> queue = queuedResponses(queueLength);
    std::size_t bytes = 0;
    for (auto _ : state) {
        TovuResult<std::string> encoded = tovuEncode(queue);
        if (!encoded) {
            state.SkipWithError(encoded.error().localizedDescription().c_str());
            break;
        }
        bytes = encoded->size();
        benchmark::DoNotOptimize(encoded);
    }
    setBytes(state, bytes);
}

void BM_DecodeQueue(benchmark::State &state)
{
    const TovuResult<std::string> encoded = tovuEncode(queuedResponses(queueLength));
    if (!encoded) {
        state.SkipWithError(encoded.error().localizedDescription().c_str());
        return;
    }
    for (auto _ : state) {
        TovuResult<std::vector<TovuQueuedResponse>> queue = tovuDecode<std::vector<TovuQueuedResponse>>(*encoded);
        if (!queue) {
            state.SkipWithError(queue.error().localizedDescription().c_str());
            break;
        }
        benchmark::DoNotOptimize(queue);
    }
    setBytes(state, encoded->size());
}

BENCHMARK(BM_EncodeQueue);
BENCHMARK(BM_DecodeQueue);

} // namespace
