#include <tovukit_io/model/TovuDecode.h>

#include <tovukit_io/model/TovuJsonCoding.h>
#include <tovukit_io/model/TovuQueuedResponseJson.h>
#include <tovukit_io/model/TovuSurveyJson.h>

TOVU_INSTANTIATE_CODING(TovuChoice)
TOVU_INSTANTIATE_CODING(TovuNPSLabels)
TOVU_INSTANTIATE_CODING(TovuConditionalFollowUp)
TOVU_INSTANTIATE_CODING(TovuQuestion)
TOVU_INSTANTIATE_CODING(TovuSurveyPage)
TOVU_INSTANTIATE_CODING(TovuTheme)
TOVU_INSTANTIATE_CODING(TovuSurvey)
TOVU_INSTANTIATE_CODING(TovuAnswerValue)
TOVU_INSTANTIATE_CODING(TovuAnswer)
TOVU_INSTANTIATE_CODING(TovuQualityFlags)
TOVU_INSTANTIATE_CODING(TovuDeviceInfo)
TOVU_INSTANTIATE_CODING(TovuGeolocation)
TOVU_INSTANTIATE_CODING(TovuQueuedResponse)
TOVU_INSTANTIATE_CODING(std::vector<TovuQueuedResponse>)
