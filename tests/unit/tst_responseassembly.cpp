// A finished session turned into its response, and the console block that shows it.

#include <tovukit_io/core/TovuResponseAssembly.h>
#include <tovukit_io/platform/TovuManualClock.h>

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace {

using Variables = std::map<std::string, std::string>;

TovuSessionRecord session()
{
    return TovuSessionRecord{
        .surveyId = "S1",
        .collectorUUID = "collector-1",
        .answers = {TovuAnswer{"q1", {{.rowId = "o1"}}},
                    TovuAnswer{"q2", {{.rowId = "r1", .colId = "7"}, {.rowId = "r2", .text = "fine"}}}},
        .userData = std::nullopt,
        .startTime = "2026-11-15T18:14:20Z",
        .startEpoch = 1'794'766'460'000,
        .timePerQues = {{"q1", 4.5}, {"q2", 12.25}},
        .backTrackCount = 0,
    };
}

} // namespace

TEST(ResponseAssembly, CustomVariables)
{
    const struct {
        const char *name;
        std::optional<TovuUserData> user;
        std::optional<Variables> expected;
    } cases[] = {
        {"no user", std::nullopt, std::nullopt},
        {"user with nothing set", TovuUserData{}, std::nullopt},
        {"empty values left out", TovuUserData{.name = "", .email = "a@b.c"}, Variables{{"email", "a@b.c"}}},
        {"every field under its key, region never",
         TovuUserData{.name = "Ana",
                      .email = "a@b.c",
                      .phone = "+1",
                      .uniqueId = "u7",
                      .country = "DE",
                      .city = "Berlin",
                      .region = "BE"},
         Variables{{"fName", "Ana"},
                   {"email", "a@b.c"},
                   {"mobile", "+1"},
                   {"unique_id", "u7"},
                   {"country", "DE"},
                   {"city", "Berlin"}}},
        {"further pairs win, empty ones are dropped",
         TovuUserData{.city = "Berlin", .eData = Variables{{"city", "Hamburg"}, {"plan", "pro"}, {"", "x"}, {"y", ""}}},
         Variables{{"city", "Hamburg"}, {"plan", "pro"}}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(TovuResponseAssembly::customVariables(c.user), c.expected);
    }
}

TEST(ResponseAssembly, EveryFieldOfAFinishedSession)
{
    TovuManualClock clock(1'794'766'460'000 + 150'000); // 2.5 minutes in
    clock.setUtcOffsetSeconds(-5 * 3600 - 30 * 60);
    auto finished = session();
    finished.userData = TovuUserData{.email = "a@b.c", .country = "DE", .region = "BE"};

    const auto response = TovuResponseAssembly::assemble(finished, "complete", clock, "ID-1");
    EXPECT_EQ(response.responseId, "ID-1");
    EXPECT_EQ(response.surveyId, "S1");
    EXPECT_EQ(response.collectorUUID, "collector-1");
    EXPECT_EQ(response.mode, "iOS SDK");
    EXPECT_EQ(response.status, "complete");
    EXPECT_EQ(response.startTime, "2026-11-15T18:14:20Z");
    EXPECT_EQ(response.endTime, "2026-11-15T18:16:50Z");
    EXPECT_EQ(response.answers, finished.answers);
    EXPECT_EQ(response.customVariables, (Variables{{"email", "a@b.c"}, {"country", "DE"}}));

    ASSERT_TRUE(response.qualityFlags);
    const auto &flags = *response.qualityFlags;
    EXPECT_EQ(flags.data.timePerQues.at("q1").timeOnQues, 4.5);
    EXPECT_EQ(flags.data.timePerQues.at("q2").timeOnQues, 12.25);
    EXPECT_EQ(flags.data.survey.totalTimeDuration, 2.5);
    EXPECT_EQ(flags.data.survey.netTimeDuration, flags.data.survey.totalTimeDuration);
    EXPECT_EQ(flags.data.survey.curTime, "12:46") << "local time, two digits each";
    EXPECT_EQ(flags.data.survey.startTime, 1'794'766'460'000);
    EXPECT_EQ(flags.data.survey.backTrackCount, 0);
    EXPECT_TRUE(flags.straightLining.questionList.empty());

    EXPECT_EQ(response.deviceInfo, (TovuDeviceInfo{"mobile", "ios", "safari"}));
    EXPECT_EQ(response.geolocation, (TovuGeolocation{"point", {std::nullopt, std::nullopt}, "DE", std::nullopt, "BE"}));

    // Without a respondent: no custom variables, a location of nothing but its kind.
    const auto anonymous = TovuResponseAssembly::assemble(session(), "complete", clock, "ID-2");
    EXPECT_FALSE(anonymous.customVariables);
    EXPECT_EQ(anonymous.geolocation, (TovuGeolocation{"point", {std::nullopt, std::nullopt}, {}, {}, {}}));
}

TEST(ResponseAssembly, ConsoleBlock)
{
    TovuManualClock clock(1'794'766'460'000 + 61'000);
    const auto response = TovuResponseAssembly::assemble(session(), "complete", clock, "ID-1");
    const std::vector<std::string> expected{
        "━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━",
        ">>> Tovu SDK Response Data:",
        "    responseId    : ID-1",
        "    surveyId      : S1",
        "    collectorUUID : collector-1",
        "    mode       : iOS SDK",
        "    status     : complete",
        "    startTime  : 2026-11-15T18:14:20Z",
        "    endTime    : 2026-11-15T18:15:21Z",
        "    answers    :",
        "      questionId: q1",
        "        rowId: o1 | colId: - | text: -",
        "      questionId: q2",
        "        rowId: r1 | colId: 7 | text: -",
        "        rowId: r2 | colId: - | text: fine",
    };
    EXPECT_EQ(TovuResponseAssembly::dumpLines(response), expected);
}
