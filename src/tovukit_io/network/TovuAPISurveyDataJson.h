#pragma once

// Decoding of the backend's survey document (strict: required keys and JSON
// kinds are checked, unknown keys ignored). Encoding is provided too, so tools
// and tests can write documents.
//
//     auto document = tovuDecode<TovuAPIMainResponse>(body);
//     if (document) survey = document->data.toNativeSurvey();

#include <tovukit_io/network/TovuAPISurveyData.h>

#include <tovukit_io/model/TovuDecode.h>

#include <nlohmann/json_fwd.hpp>

#define TOVU_DECLARE_JSON_CODING(Record)                             \
    void to_json(nlohmann::ordered_json &json, const Record &value); \
    void from_json(const nlohmann::ordered_json &json, Record &value);

TOVU_DECLARE_JSON_CODING(TovuAPIRowCol)
TOVU_DECLARE_JSON_CODING(TovuAPIOptions)
TOVU_DECLARE_JSON_CODING(TovuAPIHelperText)
TOVU_DECLARE_JSON_CODING(TovuAPIRequired)
TOVU_DECLARE_JSON_CODING(TovuAPIPlaceholder)
TOVU_DECLARE_JSON_CODING(TovuAPINPSColors)
TOVU_DECLARE_JSON_CODING(TovuAPINPSSettings)
TOVU_DECLARE_JSON_CODING(TovuAPIScaleRange)
TOVU_DECLARE_JSON_CODING(TovuAPIConfigScale)
TOVU_DECLARE_JSON_CODING(TovuAPIRatingSettings)
TOVU_DECLARE_JSON_CODING(TovuAPISettings)
TOVU_DECLARE_JSON_CODING(TovuAPIQuestionDef)
TOVU_DECLARE_JSON_CODING(TovuAPIQuestionContainer)
TOVU_DECLARE_JSON_CODING(TovuAPIBlock)
TOVU_DECLARE_JSON_CODING(TovuAPIIntroPage)
TOVU_DECLARE_JSON_CODING(TovuAPIThankYouPage)
TOVU_DECLARE_JSON_CODING(TovuAPISurveyData)
TOVU_DECLARE_JSON_CODING(TovuAPIMainResponse)

#undef TOVU_DECLARE_JSON_CODING

TOVU_DECLARE_CODING(TovuAPISurveyData)
TOVU_DECLARE_CODING(TovuAPIMainResponse)
