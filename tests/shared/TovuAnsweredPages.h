#pragma once

// What a response stored by the backend must hold for the pages a test
// answered, whichever front end showed them.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace TovuAnsweredPages {

/// One answered page: the question, and the row ids or texts the clicks chose
/// (empty when any will do).
struct Expected {
    std::string questionId;
    std::vector<std::string> rowIds;
    std::vector<std::string> texts;
};

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
        std::vector<std::string> rows, texts;
        for (const Json &value : (*question)["answer"]) {
            if (value.contains("row_id"))
                rows.push_back(value["row_id"]);
            if (value.contains("text"))
                texts.push_back(value["text"]);
        }
        if (!e.rowIds.empty()) {
            EXPECT_EQ(rows, e.rowIds);
        }
        for (const auto &text : e.texts)
            EXPECT_NE(std::ranges::find(texts, text), texts.end()) << text;
        EXPECT_FALSE((*question)["answer"].empty());
    }
}

} // namespace TovuAnsweredPages
