# The widget kit: rounded boxes, buttons, labels, symbols, motion, platform colours.
list(APPEND ui_sources
  kit/TovuPlatformColors.cpp)
list(APPEND ui_headers
  kit/TovuPlatformColors.h)
list(APPEND ui_sources
  kit/TovuBox.cpp
  kit/TovuBoxLook.cpp
  kit/TovuButton.cpp
  kit/TovuKitPainting.cpp
  kit/TovuKitPainting.h
  kit/TovuLabels.cpp
  kit/TovuMotion.cpp
  kit/TovuSymbol.cpp)
list(APPEND ui_headers
  kit/TovuBox.h
  kit/TovuBoxLook.h
  kit/TovuButton.h
  kit/TovuLabels.h
  kit/TovuMotion.h
  kit/TovuSymbol.h)
