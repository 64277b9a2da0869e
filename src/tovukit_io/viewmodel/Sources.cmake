# Theme, platform colours, motion and the pages' sizes: what every page reads, in both front ends.
list(APPEND viewmodel_sources
  TovuKeyboardLift.cpp
  TovuMotion.cpp
  TovuPlatformColors.cpp
  TovuProgressViewModel.cpp
  TovuThemeEngine.cpp)
list(APPEND viewmodel_headers
  TovuAppTheme.h
  TovuKeyboardLift.h
  TovuMotion.h
  TovuPageMetrics.h
  TovuPlatformColors.h
  TovuProgressViewModel.h
  TovuSheetMetrics.h
  TovuThemeEngine.h)

# The intro and thank-you pages.
list(APPEND viewmodel_sources
  TovuIntroViewModel.cpp
  TovuThankYouViewModel.cpp)
list(APPEND viewmodel_headers
  TovuIntroViewModel.h
  TovuThankYouViewModel.h)

# One behaviour model per page type.
list(APPEND viewmodel_sources
  TovuDropdownQuestionViewModel.cpp
  TovuMultipleChoiceQuestionViewModel.cpp
  TovuQuestionViewModel.cpp
  TovuSingleChoiceQuestionViewModel.cpp
  TovuTextBoxQuestionViewModel.cpp)
list(APPEND viewmodel_headers
  TovuDropdownQuestionViewModel.h
  TovuMultipleChoiceQuestionViewModel.h
  TovuQuestionViewModel.h
  TovuSingleChoiceQuestionViewModel.h
  TovuTextBoxQuestionViewModel.h)

# Score and rating pages.
list(APPEND viewmodel_sources
  TovuMultiNPSQuestionViewModel.cpp
  TovuMultiRatingQuestionViewModel.cpp
  TovuNPSBands.cpp
  TovuNPSQuestionViewModel.cpp
  TovuRatingQuestionViewModel.cpp)
list(APPEND viewmodel_headers
  TovuMultiNPSQuestionViewModel.h
  TovuMultiRatingQuestionViewModel.h
  TovuNPSBands.h
  TovuNPSQuestionViewModel.h
  TovuRatingQuestionViewModel.h)

# The library's own texts in the respondent's language (the catalogues are in ../translations).
list(APPEND viewmodel_sources
  TovuTranslations.cpp
  TovuTranslator.cpp
  TovuTranslator.h)
list(APPEND viewmodel_headers
  TovuTranslations.h)
