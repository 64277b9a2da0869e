# The widget kit: rounded boxes, buttons, labels, symbols, motion, platform colours.
list(APPEND ui_sources
  kit/TovuPlatformColors.cpp)
list(APPEND ui_headers
  kit/TovuPlatformColors.h)
