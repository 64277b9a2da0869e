#pragma once

// What a response stored by the backend must hold for the pages a test
// answered, whichever front end showed them.

#include <tovukit_io/model/TovuSurvey.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace TovuAnsweredPages {

/// What the respondent of an end-to-end test picks, whichever front end shows the page.
struct Pick {
    static constexpr int singleChoice = 1; ///< the option at this index
    static constexpr int multipleChoiceStep = 2; ///< every second option, from the first
    static constexpr int dropdown = 2;
    static constexpr int npsScore = 9;
    static constexpr int multiNpsScore = 8; ///< on every row
    static constexpr int rating = 4; ///< a 1-based position, or the last
    static constexpr int gridColumn = 3; ///< a 1-based column on every row, or the last
    static constexpr const char *followUpText = "Quick delivery";
    static std::string fieldText(int index) { return "Answer " + std::to_string(index + 1) + ", thanks"; }
};

/// One answered page: the question, and the row ids, column ids and texts the picks
/// must have stored (each empty when any will do).
struct Expected {
    std::string questionId;
    std::vector<std::string> rowIds;
    std::vector<std::string> texts;
    std::vector<std::string> colIds;
};

/// What the Pick choices on `question` store, worked out from the question alone.
inline Expected expectedFor(const TovuQuestion &question, int fieldCount = 0)
{
    Expected e{question.id, {}, {}, {}};
    const std::vector<TovuChoice> none;
    const std::vector<TovuChoice> &options = question.options ? *question.options : none;
    const std::vector<TovuChoice> &columns = question.columns ? *question.columns : none;
    // A scale stores its column's id, or the number where it has no columns.
    const auto column = [&columns](int index, int value) {
        const auto at = static_cast<std::size_t>(index);
        return at < columns.size() ? columns[at].id : std::to_string(value);
    };
    const auto everyRow = [&](const std::string &col) {
        for (const TovuChoice &row : options) {
            if (std::ranges::find(e.rowIds, row.id) == e.rowIds.end()) {
                e.rowIds.push_back(row.id);
                e.colIds.push_back(col);
            }
        }
    };
    const auto last = [](std::size_t size, int pick) {
        return std::min(size, static_cast<std::size_t>(pick));
    };
    switch (question.type) {
    case TovuQuestionType::singleChoice:
        e.rowIds = {options.at(last(options.size(), Pick::singleChoice + 1) - 1).id};
        break;
    case TovuQuestionType::multipleChoice:
        for (std::size_t i = 0; i < options.size(); i += static_cast<std::size_t>(Pick::multipleChoiceStep))
            e.rowIds.push_back(options[i].id);
        break;
    case TovuQuestionType::dropdown:
        e.rowIds = {options.at(last(options.size(), Pick::dropdown + 1) - 1).id};
        break;
    case TovuQuestionType::singleTextBox:
    case TovuQuestionType::multipleTextBox:
        for (int i = 0; i < fieldCount; ++i)
            e.texts.push_back(Pick::fieldText(i));
        break;
    case TovuQuestionType::nps:
        e.colIds = {column(Pick::npsScore, Pick::npsScore)};
        break;
    case TovuQuestionType::multiNps:
        everyRow(column(Pick::multiNpsScore, Pick::multiNpsScore));
        break;
    case TovuQuestionType::rating:
        e.colIds = {column(Pick::rating - 1, Pick::rating)};
        break;
    case TovuQuestionType::multiRating: {
        const std::size_t position = last(columns.size(), Pick::gridColumn);
        everyRow(position > 0 ? columns[position - 1].id : std::string());
        break;
    }
    case TovuQuestionType::thankYou:
        break;
    }
    return e;
}

/// Every page answered is in the stored response `item` with what was chosen or
/// typed, and timed; the thank-you page is not timed.
inline void check(const nlohmann::ordered_json &item, const std::vector<Expected> &expected)
{
    using Json = nlohmann::ordered_json;
    const Json &timed = item["qualityFlags"]["data"]["timePerQues"];
    EXPECT_FALSE(timed.contains("thank_you_auto"));
    for (const Expected &e : expected) {
        SCOPED_TRACE(e.questionId);
        EXPECT_TRUE(timed.contains(e.questionId));
        const auto question
            = std::ranges::find(item["questions"], Json(e.questionId), [](const Json &q) { return q["uuid"]; });
        ASSERT_NE(question, item["questions"].end());
        std::vector<std::string> rows, texts, cols;
        for (const Json &value : (*question)["answer"]) {
            if (value.contains("row_id"))
                rows.push_back(value["row_id"]);
            if (value.contains("text"))
                texts.push_back(value["text"]);
            if (value.contains("col_id") && value["col_id"].is_string())
                cols.push_back(value["col_id"]);
        }
        if (!e.rowIds.empty()) {
            EXPECT_EQ(rows, e.rowIds);
        }
        if (!e.colIds.empty()) {
            EXPECT_EQ(cols, e.colIds);
        }
        for (const auto &text : e.texts)
            EXPECT_NE(std::ranges::find(texts, text), texts.end()) << text;
        EXPECT_FALSE((*question)["answer"].empty());
    }
}

} // namespace TovuAnsweredPages
