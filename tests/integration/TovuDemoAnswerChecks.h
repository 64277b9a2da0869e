#pragma once

// What a demo's autoplay must have done, whichever toolkit it played in: every
// question of the sample with every question type answered with the survey's
// own options, rows and columns, and the backend holding each answer as given.

#include "TovuDemoBackend.h"
#include "TovuDemoGivenAnswer.h"

#include <TovuTestFiles.h>

#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/network/TovuAPISurveyData.h>
#include <tovukit_io/network/TovuAPISurveyDataJson.h>

#include <QString>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace TovuDemoAnswerChecks {

using Json = nlohmann::ordered_json;

// The sample as the library reads it, straight from its file.
inline TovuSurvey sampleSurvey()
{
    const auto document = tovuDecode<TovuAPIMainResponse>(
        TovuTestFiles::readFile(TovuTestFiles::samplesDir() / "every-question-type.json"));
    EXPECT_TRUE(document);
    return document ? document->data.toNativeSurvey() : TovuSurvey{};
}

inline bool hasChoice(const std::optional<std::vector<TovuChoice>> &choices, const std::string &id)
{
    return choices && std::ranges::any_of(*choices, [&](const TovuChoice &c) { return c.id == id; });
}

/// Every answer given is what the backend stored for its question (`storedJson`,
/// its entry of GET /dev/responses), and nothing else was stored.
inline void expectStoredAsGiven(const QString &storedJson, const std::vector<TovuDemoGivenAnswer> &given,
                                const TovuDemoSample &sample)
{
    const Json stored = Json::parse(storedJson.toStdString(), nullptr, false);
    ASSERT_TRUE(stored.is_object()) << storedJson.toStdString();
    EXPECT_EQ(stored["surveyId"], sample.surveyId.toStdString());
    EXPECT_EQ(stored["payload"]["collector_id"], sample.collectorId.toStdString());
    const Json &response = stored["payload"]["responses"][0];
    EXPECT_EQ(response["response_status"], "complete");
    const Json &questions = response["questions"];

    ASSERT_EQ(questions.size(), given.size()) << "one stored question per answer given";
    for (const TovuDemoGivenAnswer &answer : given) {
        SCOPED_TRACE(answer.questionId + " (" + answer.summary + ")");
        const auto question
            = std::ranges::find(questions, Json(answer.questionId), [](const Json &q) { return q["uuid"]; });
        ASSERT_NE(question, questions.end()) << "not stored";
        const Json &values = (*question)["answer"];
        ASSERT_EQ(values.size(), answer.values.size());
        for (std::size_t i = 0; i < values.size(); ++i) {
            const TovuDemoGivenAnswer::Value &value = answer.values[i];
            const Json &storedValue = values[i];
            if (value.rowId.empty()) {
                EXPECT_TRUE(storedValue.contains("row_id")) << "the library's own row id";
            } else {
                EXPECT_EQ(storedValue.value("row_id", ""), value.rowId);
            }
            if (value.colId) {
                EXPECT_EQ(storedValue.value("col_id", ""), *value.colId);
            } else {
                EXPECT_FALSE(storedValue.contains("col_id"));
            }
            if (value.text) {
                EXPECT_EQ(storedValue.value("text", ""), *value.text);
            } else {
                EXPECT_FALSE(storedValue.contains("text"));
            }
        }
    }
}

/// The answers given are the survey's own options, rows and columns, and every page type was played.
inline void expectEveryTypeAnsweredWithItsOwnChoices(const std::vector<TovuDemoGivenAnswer> &given)
{
    const TovuSurvey survey = sampleSurvey();
    std::set<TovuQuestionType> played;
    std::set<std::string> answered;
    for (const TovuDemoGivenAnswer &answer : given) {
        SCOPED_TRACE(answer.questionId);
        answered.insert(answer.questionId);
        if (!answer.type) {
            // A follow-up, asked by the NPS page: one of its options.
            const auto parent = std::ranges::find_if(survey.questions, [&](const TovuQuestion &q) {
                return std::ranges::any_of(q.conditionalFollowUps.value_or(std::vector<TovuConditionalFollowUp>{}),
                                           [&](const auto &f) { return f.questionId == answer.questionId; });
            });
            ASSERT_NE(parent, survey.questions.end());
            continue;
        }
        played.insert(*answer.type);
        const auto question = std::ranges::find(survey.questions, answer.questionId, &TovuQuestion::id);
        ASSERT_NE(question, survey.questions.end());
        EXPECT_EQ(question->type, *answer.type);
        EXPECT_FALSE(answer.values.empty()) << "answered with nothing";
        for (const auto &value : answer.values) {
            if (!value.rowId.empty()) {
                EXPECT_TRUE(hasChoice(question->options, value.rowId)) << value.rowId;
            }
            if (value.colId) {
                EXPECT_TRUE(hasChoice(question->columns, *value.colId)) << *value.colId;
            }
            if (value.text) {
                EXPECT_FALSE(value.text->empty());
            }
        }
    }
    for (const TovuQuestion &question : survey.questions) {
        if (question.type != TovuQuestionType::thankYou) {
            EXPECT_TRUE(answered.contains(question.id)) << question.id << " was not answered";
        }
    }
    for (const TovuQuestionType type :
         {TovuQuestionType::singleChoice, TovuQuestionType::multipleChoice, TovuQuestionType::dropdown,
          TovuQuestionType::singleTextBox, TovuQuestionType::multipleTextBox, TovuQuestionType::nps,
          TovuQuestionType::multiNps, TovuQuestionType::rating, TovuQuestionType::multiRating})
        EXPECT_TRUE(played.contains(type)) << rawValue(type);
    EXPECT_EQ(answered.size(), given.size()) << "each question answered once";
}

/// A few answers as a person reads them: the clicks chose these.
inline std::string summaryOf(const std::vector<TovuDemoGivenAnswer> &given, TovuQuestionType type)
{
    const auto found = std::ranges::find(given, std::optional(type), &TovuDemoGivenAnswer::type);
    return found == given.end() ? std::string() : found->summary;
}

} // namespace TovuDemoAnswerChecks
