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
#include <tovukit_io/model/TovuRatingVariant.h>
#include <tovukit_io/model/TovuRawValue.h>
#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/model/TovuSurveyJson.h>
#include <tovukit_io/model/TovuThemeMode.h>
#include <tovukit_io/model/TovuUserData.h>

#include <tovukit_io/platform/TovuClock.h>
#include <tovukit_io/platform/TovuKeyValueStore.h>
#include <tovukit_io/platform/TovuManualClock.h>
#include <tovukit_io/platform/TovuManualPathMonitor.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>
#include <tovukit_io/platform/TovuPathMonitor.h>
#include <tovukit_io/platform/TovuPathStatus.h>
#include <tovukit_io/platform/TovuSqliteKeyValueStore.h>
#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/platform/TovuUserDefaults.h>

#include <tovukit_io/network/CollectorInfo.h>
#include <tovukit_io/network/TovuAPISurveyData.h>
#include <tovukit_io/network/TovuAPISurveyDataJson.h>
#include <tovukit_io/network/TovuEnvironment.h>
#include <tovukit_io/network/TovuFeedbackRequest.h>
#include <tovukit_io/network/TovuFeedbackRequestJson.h>
#include <tovukit_io/network/TovuNetworkService.h>

#include <tovukit_io/viewmodel/TovuAppTheme.h>
#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuIntroViewModel.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSBands.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuSheetMetrics.h>
#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuTextBoxQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>
#include <tovukit_io/viewmodel/TovuTranslations.h>

#include <tovukit_io/graphics/TovuBoxLook.h>
#include <tovukit_io/graphics/TovuEmoji.h>
#include <tovukit_io/graphics/TovuPainting.h>
#include <tovukit_io/graphics/TovuShadow.h>
#include <tovukit_io/graphics/TovuSymbol.h>
#include <tovukit_io/graphics/TovuTextFit.h>
#include <tovukit_io/graphics/TovuTextMetrics.h>

#include <tovukit_io/ui/TovuDropdownQuestionView.h>
#include <tovukit_io/ui/TovuFollowUpCard.h>
#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>
#include <tovukit_io/ui/TovuMultiRatingQuestionView.h>
#include <tovukit_io/ui/TovuMultipleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuNPSQuestionView.h>
#include <tovukit_io/ui/TovuQuestionView.h>
#include <tovukit_io/ui/TovuRatingQuestionView.h>
#include <tovukit_io/ui/TovuSheetPresenter.h>
#include <tovukit_io/ui/TovuSingleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuTextBoxQuestionView.h>
#include <tovukit_io/ui/TovuThankYouView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuCaptionRow.h>
#include <tovukit_io/ui/kit/TovuChevron.h>
#include <tovukit_io/ui/kit/TovuEqualWidthLayout.h>
#include <tovukit_io/ui/kit/TovuFitLabel.h>
#include <tovukit_io/ui/kit/TovuHairline.h>
#include <tovukit_io/ui/kit/TovuInputFrame.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuScrollStrip.h>
#include <tovukit_io/ui/kit/TovuShake.h>
#include <tovukit_io/ui/kit/TovuSymbolButton.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/ui/kit/TovuTextField.h>

#include <tovukit_io/core/TovuFrontEnds.h>
#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/core/TovuOfflineQueue.h>
#include <tovukit_io/core/TovuResponseAssembly.h>
#include <tovukit_io/core/TovuSurveyIds.h>
#include <tovukit_io/core/TovuSurveyPresenter.h>
