// The sample survey documents shipped with the library decode, convert and
// together exercise the whole question vocabulary.

#include "TovuCodingAssertions.h"

#include <TovuTestFiles.h>

#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/network/TovuAPISurveyData.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace {

struct Sample {
    TovuAPISurveyData document;
    TovuSurvey survey;
};

Sample loadSample(const std::filesystem::path &path)
{
    const auto decoded = tovuDecode<TovuAPIMainResponse>(TovuTestFiles::readFile(path));
    EXPECT_TRUE(decoded) << path << ": " << decoded.error().message;
    if (!decoded)
        return {};
    return {decoded->data, decoded->data.toNativeSurvey()};
}

// Every text the views show as it is, after conversion.
std::vector<std::string> shownTexts(const TovuSurvey &survey)
{
    std::vector<std::string> texts;
    const auto addChoices = [&](const std::optional<std::vector<TovuChoice>> &choices) {
        for (const TovuChoice &choice : choices.value_or(std::vector<TovuChoice>{})) {
            texts.push_back(choice.text);
            texts.push_back(choice.value);
        }
    };
    for (const TovuQuestion &q : survey.questions) {
        texts.push_back(q.title);
        addChoices(q.options);
        addChoices(q.columns);
        for (const TovuConditionalFollowUp &f :
             q.conditionalFollowUps.value_or(std::vector<TovuConditionalFollowUp>{})) {
            texts.push_back(f.followUpQuestion);
            addChoices(f.followUpOptions);
        }
    }
    if (survey.introPage)
        texts.push_back(survey.introPage->content.value_or(""));
    if (survey.thankYouPage)
        texts.push_back(survey.thankYouPage->content.value_or(""));
    return texts;
}

} // namespace

class SampleSurvey : public ::testing::TestWithParam<std::filesystem::path>
{
};

TEST_P(SampleSurvey, DecodesAndConvertsIntoCleanQuestions)
{
    const Sample sample = loadSample(GetParam());
    const TovuSurvey &survey = sample.survey;
    ASSERT_GE(survey.questions.size(), 2u);
    EXPECT_EQ(survey.id, sample.document.uuid);
    EXPECT_EQ(survey.name, sample.document.displayTitle);

    // Exactly one closing question, at the end.
    EXPECT_EQ(survey.questions.back().id, "thank_you_auto");
    EXPECT_EQ(survey.questions.back().type, TovuQuestionType::thankYou);
    EXPECT_EQ(std::count_if(survey.questions.begin(), survey.questions.end(),
                            [](const TovuQuestion &q) { return q.type == TovuQuestionType::thankYou; }),
              1);

    for (const std::string &text : shownTexts(survey)) {
        EXPECT_EQ(text.find('<'), std::string::npos) << text;
        EXPECT_EQ(text.find("&nbsp;"), std::string::npos) << text;
        EXPECT_EQ(text.find("&#39;"), std::string::npos) << text;
    }

    // Follow-ups are asked only through their parent.
    std::set<std::string> mainIds;
    for (const TovuQuestion &q : survey.questions)
        EXPECT_TRUE(mainIds.insert(q.id).second) << "duplicate " << q.id;
    for (const TovuQuestion &q : survey.questions) {
        for (const TovuConditionalFollowUp &f : q.conditionalFollowUps.value_or(std::vector<TovuConditionalFollowUp>{}))
            EXPECT_FALSE(mainIds.contains(f.questionId.value_or(""))) << f.questionId.value_or("");
    }

    // A converted survey can be stored and read back whole.
    const auto encoded = tovuEncode(survey);
    ASSERT_TRUE(encoded) << encoded.error().message;
    EXPECT_EQ(tovuDecode<TovuSurvey>(*encoded), survey);
}

INSTANTIATE_TEST_SUITE_P(Files, SampleSurvey, ::testing::ValuesIn(TovuTestFiles::sampleSurveys()),
                         [](const ::testing::TestParamInfo<std::filesystem::path> &param) {
                             std::string name = param.param.stem().string();
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(Samples, TogetherUseEveryDocumentQuestionType)
{
    const auto files = TovuTestFiles::sampleSurveys();
    ASSERT_GE(files.size(), 3u);
    std::set<std::string> used;
    std::vector<std::size_t> matrixColumns;
    for (const auto &path : files) {
        const Sample sample = loadSample(path);
        for (const TovuAPIBlock &block : sample.document.blocks) {
            for (const TovuAPIQuestionContainer &container : block.questions)
                used.insert(container.question.quesType.value_or(""));
        }
        for (const TovuQuestion &q : sample.survey.questions) {
            if (q.type == TovuQuestionType::multiRating)
                matrixColumns.push_back(q.columns ? q.columns->size() : 0);
        }
    }
    for (const char *type : {"single_choice", "multi_choice", "dropdown", "single_text", "multi_text", "nps", "nps_pro",
                             "multi_nps", "rating", "rating_pro", "multi_rating"})
        EXPECT_TRUE(used.contains(type)) << type;
    EXPECT_NE(std::find(matrixColumns.begin(), matrixColumns.end(), 5u), matrixColumns.end());
    EXPECT_NE(std::find(matrixColumns.begin(), matrixColumns.end(), 7u), matrixColumns.end());
}

TEST(Samples, CustomerSatisfactionFollowUpsAndClosingLink)
{
    const Sample sample = loadSample(TovuTestFiles::samplesDir() / "customer-satisfaction.json");
    const TovuSurvey &survey = sample.survey;
    const auto parent = std::find_if(survey.questions.begin(), survey.questions.end(),
                                     [](const TovuQuestion &q) { return q.conditionalFollowUps.has_value(); });
    ASSERT_NE(parent, survey.questions.end());
    EXPECT_EQ(parent->type, TovuQuestionType::nps);
    EXPECT_EQ(parent->title, "How likely are you to recommend Acme Store to a friend or colleague?");
    ASSERT_TRUE(parent->npsLabels);
    EXPECT_EQ(parent->npsLabels->lower, "Not at all likely");
    EXPECT_EQ(parent->columns ? parent->columns->size() : 0u, 11u);

    const auto &followUps = *parent->conditionalFollowUps;
    ASSERT_EQ(followUps.size(), 2u);
    EXPECT_EQ(followUps[0].minRating, 0);
    EXPECT_EQ(followUps[0].maxRating, 6);
    EXPECT_EQ(followUps[0].followUpType, TovuQuestionType::multipleTextBox);
    EXPECT_EQ(followUps[0].followUpOptions, std::nullopt);
    EXPECT_EQ(followUps[0].followUpQuestion, "We're sorry to hear that. What could we have done better?");
    EXPECT_EQ(followUps[1].minRating, 7);
    EXPECT_EQ(followUps[1].maxRating, 10);
    EXPECT_EQ(followUps[1].followUpType, TovuQuestionType::singleChoice);
    ASSERT_TRUE(followUps[1].followUpOptions);
    ASSERT_EQ(followUps[1].followUpOptions->size(), 4u);
    EXPECT_EQ((*followUps[1].followUpOptions)[1].text, "Fast & reliable delivery");

    const TovuQuestion &closing = survey.questions.back();
    EXPECT_EQ(closing.redirectURL, "https://shop.example.com/thanks");
    EXPECT_EQ(closing.title, "Thank you for your feedback! As a small thank-you, here's 10% off your next order.");
    EXPECT_EQ(closing.subtitle, std::nullopt);
    ASSERT_TRUE(survey.introPage);
    EXPECT_EQ(survey.introPage->buttonText, "Start survey");
}
