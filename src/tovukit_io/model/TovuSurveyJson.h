#pragma once

// JSON coding of the survey model, as nlohmann's argument-dependent pairs:
//
//     nlohmann::ordered_json j = survey;        // fields in declared order, absent optionals left out
//     auto copy = j.get<TovuSurvey>();          // throws TovuCodingError at the first problem
//
// Prefer tovuDecode<TovuSurvey>(text), which never throws.

#include <tovukit_io/model/TovuSurvey.h>

#include <tovukit_io/model/TovuDecode.h>

#include <nlohmann/json_fwd.hpp>

void to_json(nlohmann::ordered_json &json, TovuQuestionType value);
void from_json(const nlohmann::ordered_json &json, TovuQuestionType &value);
void to_json(nlohmann::ordered_json &json, TovuThemeMode value);
void from_json(const nlohmann::ordered_json &json, TovuThemeMode &value);

void to_json(nlohmann::ordered_json &json, const TovuChoice &value);
void from_json(const nlohmann::ordered_json &json, TovuChoice &value);
void to_json(nlohmann::ordered_json &json, const TovuNPSLabels &value);
void from_json(const nlohmann::ordered_json &json, TovuNPSLabels &value);
void to_json(nlohmann::ordered_json &json, const TovuConditionalFollowUp &value);
void from_json(const nlohmann::ordered_json &json, TovuConditionalFollowUp &value);
void to_json(nlohmann::ordered_json &json, const TovuQuestion &value);
void from_json(const nlohmann::ordered_json &json, TovuQuestion &value);
void to_json(nlohmann::ordered_json &json, const TovuSurveyPage &value);
void from_json(const nlohmann::ordered_json &json, TovuSurveyPage &value);
void to_json(nlohmann::ordered_json &json, const TovuTheme &value);
void from_json(const nlohmann::ordered_json &json, TovuTheme &value);
void to_json(nlohmann::ordered_json &json, const TovuSurvey &value);
void from_json(const nlohmann::ordered_json &json, TovuSurvey &value);

TOVU_DECLARE_CODING(TovuChoice)
TOVU_DECLARE_CODING(TovuNPSLabels)
TOVU_DECLARE_CODING(TovuConditionalFollowUp)
TOVU_DECLARE_CODING(TovuQuestion)
TOVU_DECLARE_CODING(TovuSurveyPage)
TOVU_DECLARE_CODING(TovuTheme)
TOVU_DECLARE_CODING(TovuSurvey)
