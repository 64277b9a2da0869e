# The widget kit: rounded boxes, buttons, labels, symbols.
list(APPEND ui_sources
  kit/TovuBox.cpp
  kit/TovuBoxLook.cpp
  kit/TovuButton.cpp
  kit/TovuKitPainting.cpp
  kit/TovuKitPainting.h
  kit/TovuLabels.cpp
  kit/TovuSymbol.cpp)
list(APPEND ui_headers
  kit/TovuBox.h
  kit/TovuBoxLook.h
  kit/TovuButton.h
  kit/TovuLabels.h
  kit/TovuSymbol.h)
