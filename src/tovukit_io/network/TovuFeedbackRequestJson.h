#pragma once

// JSON coding of the feedback payload, as nlohmann's argument-dependent pairs;
// tovuEncode<TovuFeedbackRequest>(request) gives the body that is posted.

#include <tovukit_io/network/TovuFeedbackRequest.h>

#include <tovukit_io/model/TovuDecode.h>

#include <nlohmann/json_fwd.hpp>

void to_json(nlohmann::ordered_json &json, const TovuFeedbackAnswerValue &value);
void from_json(const nlohmann::ordered_json &json, TovuFeedbackAnswerValue &value);
void to_json(nlohmann::ordered_json &json, const TovuFeedbackQuestionAnswer &value);
void from_json(const nlohmann::ordered_json &json, TovuFeedbackQuestionAnswer &value);
void to_json(nlohmann::ordered_json &json, const TovuFeedbackResponseItem &value);
void from_json(const nlohmann::ordered_json &json, TovuFeedbackResponseItem &value);
void to_json(nlohmann::ordered_json &json, const TovuFeedbackRequest &value);
void from_json(const nlohmann::ordered_json &json, TovuFeedbackRequest &value);

extern template TovuResult<std::string> tovuEncode<TovuFeedbackRequest>(const TovuFeedbackRequest &);
