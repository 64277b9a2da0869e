# Bottom sheet, pages and question views.
list(APPEND ui_sources
  TovuIntroView.cpp
  TovuThankYouView.cpp
  TovuToasterView.cpp)
list(APPEND ui_headers
  TovuIntroView.h
  TovuThankYouView.h
  TovuToasterView.h)
