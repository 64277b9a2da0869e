#pragma once

// TovuKit: in-app customer-feedback surveys for Qt 6 applications.
// Includes the whole public API of the native path.

#include <tovukit_io/model/TovuAnswer.h>
#include <tovukit_io/model/TovuCodingError.h>
#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/model/TovuError.h>
#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/model/TovuQualityFlags.h>
#include <tovukit_io/model/TovuQuestionType.h>
#include <tovukit_io/model/TovuQueuedResponse.h>
#include <tovukit_io/model/TovuQueuedResponseJson.h>
#include <tovukit_io/model/TovuRawValue.h>
#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/model/TovuSurveyJson.h>
#include <tovukit_io/model/TovuThemeMode.h>
#include <tovukit_io/model/TovuUserData.h>

#include <tovukit_io/platform/TovuUrlOpener.h>

#include <tovukit_io/network/CollectorInfo.h>
#include <tovukit_io/network/TovuAPISurveyData.h>
#include <tovukit_io/network/TovuAPISurveyDataJson.h>
#include <tovukit_io/network/TovuEnvironment.h>
#include <tovukit_io/network/TovuFeedbackRequest.h>
#include <tovukit_io/network/TovuFeedbackRequestJson.h>
#include <tovukit_io/network/TovuNetworkService.h>

#include <tovukit_io/viewmodel/TovuAppTheme.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuThankYouView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuBoxLook.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuSymbol.h>
