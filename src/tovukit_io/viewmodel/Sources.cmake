# Theme, platform colours and motion: what every page reads, in both front ends.
list(APPEND viewmodel_sources
  TovuMotion.cpp
  TovuPlatformColors.cpp
  TovuThemeEngine.cpp)
list(APPEND viewmodel_headers
  TovuAppTheme.h
  TovuMotion.h
  TovuPlatformColors.h
  TovuThemeEngine.h)
