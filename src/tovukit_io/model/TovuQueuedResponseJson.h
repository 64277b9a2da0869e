#pragma once

// JSON coding of the response records (the form the offline queue stores), as
// nlohmann's argument-dependent pairs. TovuUserData has no JSON form.
//
//     nlohmann::ordered_json j = response;
//     auto copy = j.get<TovuQueuedResponse>(); // throws TovuCodingError at the first problem

#include <tovukit_io/model/TovuAnswer.h>
#include <tovukit_io/model/TovuQualityFlags.h>
#include <tovukit_io/model/TovuQueuedResponse.h>

#include <tovukit_io/model/TovuDecode.h>

#include <nlohmann/json_fwd.hpp>

void to_json(nlohmann::ordered_json &json, const TovuAnswerValue &value);
void from_json(const nlohmann::ordered_json &json, TovuAnswerValue &value);
void to_json(nlohmann::ordered_json &json, const TovuAnswer &value);
void from_json(const nlohmann::ordered_json &json, TovuAnswer &value);
void to_json(nlohmann::ordered_json &json, const TovuQualityFlags::TimeOnQuestion &value);
void from_json(const nlohmann::ordered_json &json, TovuQualityFlags::TimeOnQuestion &value);
void to_json(nlohmann::ordered_json &json, const TovuQualityFlags::SurveyTiming &value);
void from_json(const nlohmann::ordered_json &json, TovuQualityFlags::SurveyTiming &value);
void to_json(nlohmann::ordered_json &json, const TovuQualityFlags::QualityData &value);
void from_json(const nlohmann::ordered_json &json, TovuQualityFlags::QualityData &value);
void to_json(nlohmann::ordered_json &json, const TovuQualityFlags::StraightLining &value);
void from_json(const nlohmann::ordered_json &json, TovuQualityFlags::StraightLining &value);
void to_json(nlohmann::ordered_json &json, const TovuQualityFlags &value);
void from_json(const nlohmann::ordered_json &json, TovuQualityFlags &value);
void to_json(nlohmann::ordered_json &json, const TovuDeviceInfo &value);
void from_json(const nlohmann::ordered_json &json, TovuDeviceInfo &value);
void to_json(nlohmann::ordered_json &json, const TovuGeolocation &value);
void from_json(const nlohmann::ordered_json &json, TovuGeolocation &value);
void to_json(nlohmann::ordered_json &json, const TovuQueuedResponse &value);
void from_json(const nlohmann::ordered_json &json, TovuQueuedResponse &value);

TOVU_DECLARE_CODING(TovuAnswerValue)
TOVU_DECLARE_CODING(TovuAnswer)
TOVU_DECLARE_CODING(TovuQualityFlags)
TOVU_DECLARE_CODING(TovuDeviceInfo)
TOVU_DECLARE_CODING(TovuGeolocation)
TOVU_DECLARE_CODING(TovuQueuedResponse)
TOVU_DECLARE_CODING(std::vector<TovuQueuedResponse>)
