# The widget kit: rounded boxes, buttons, labels, text inputs and rows.
list(APPEND ui_sources
  kit/TovuBox.cpp
  kit/TovuButton.cpp
  kit/TovuButtonAccessible.cpp
  kit/TovuButtonAccessible.h
  kit/TovuButtonKeys.cpp
  kit/TovuButtonKeys.h
  kit/TovuButtonScaleEffect.h
  kit/TovuCaptionRow.cpp
  kit/TovuChevron.cpp
  kit/TovuChoiceMark.cpp
  kit/TovuChoiceMark.h
  kit/TovuEqualWidthLayout.cpp
  kit/TovuFitLabel.cpp
  kit/TovuHairline.cpp
  kit/TovuInputFrame.cpp
  kit/TovuKitAnimator.cpp
  kit/TovuKitAnimator.h
  kit/TovuLabels.cpp
  kit/TovuPlainLabel.cpp
  kit/TovuPlainLabel.h
  kit/TovuScrollStrip.cpp
  kit/TovuShake.cpp
  kit/TovuSymbolButton.cpp
  kit/TovuTextArea.cpp
  kit/TovuTextField.cpp)
list(APPEND ui_headers
  kit/TovuBox.h
  kit/TovuButton.h
  kit/TovuCaptionRow.h
  kit/TovuChevron.h
  kit/TovuEqualWidthLayout.h
  kit/TovuFitLabel.h
  kit/TovuHairline.h
  kit/TovuInputFrame.h
  kit/TovuLabels.h
  kit/TovuScrollStrip.h
  kit/TovuShake.h
  kit/TovuSymbolButton.h
  kit/TovuTextArea.h
  kit/TovuTextField.h)

# Where the symbols, emoji and box looks were before they moved to the graphics
# layer; kept for code written against the old location.
list(APPEND ui_headers
  kit/TovuBoxLook.h
  kit/TovuEmoji.h
  kit/TovuSymbol.h
  kit/TovuTextFit.h)
