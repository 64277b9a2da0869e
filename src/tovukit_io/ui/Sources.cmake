# Bottom sheet, pages and question views, and the presenter that shows them for the manager.
list(APPEND ui_sources
  TovuIntroView.cpp
  TovuProgressIndicator.cpp
  TovuSheetPresenter.cpp
  TovuThankYouView.cpp
  TovuToasterView.cpp)
list(APPEND ui_headers
  TovuIntroView.h
  TovuProgressIndicator.h
  TovuSheetPresenter.h
  TovuThankYouView.h
  TovuToasterView.h
  TovuWidgetsFrontEnd.h)

# Question views: each draws its view model.
list(APPEND ui_sources
  TovuDropdownQuestionView.cpp
  TovuMultipleChoiceQuestionView.cpp
  TovuQuestionParts.cpp
  TovuQuestionParts.h
  TovuQuestionView.cpp
  TovuSingleChoiceQuestionView.cpp
  TovuTextBoxQuestionView.cpp)
list(APPEND ui_headers
  TovuDropdownQuestionView.h
  TovuMultipleChoiceQuestionView.h
  TovuQuestionView.h
  TovuSingleChoiceQuestionView.h
  TovuTextBoxQuestionView.h)

# Pieces the score and rating pages share.
list(APPEND ui_sources
  TovuFollowUpCard.cpp)
list(APPEND ui_headers
  TovuFollowUpCard.h)

# Score and rating views.
list(APPEND ui_sources
  TovuRatingParts.cpp
  TovuRatingParts.h
  TovuScaleParts.cpp
  TovuScaleParts.h
  TovuMultiNPSQuestionView.cpp
  TovuMultiRatingQuestionView.cpp
  TovuNPSQuestionView.cpp
  TovuRatingQuestionView.cpp)
list(APPEND ui_headers
  TovuMultiNPSQuestionView.h
  TovuMultiRatingQuestionView.h
  TovuNPSQuestionView.h
  TovuRatingQuestionView.h)
