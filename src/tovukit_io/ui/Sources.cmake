# Theme engine, bottom sheet, pages and question views.
list(APPEND ui_sources
  TovuIntroView.cpp
  TovuThankYouView.cpp
  TovuThemeEngine.cpp
  TovuToasterView.cpp)
list(APPEND ui_headers
  TovuAppTheme.h
  TovuIntroView.h
  TovuThankYouView.h
  TovuThemeEngine.h
  TovuToasterView.h)
