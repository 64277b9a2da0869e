#pragma once

#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSBands.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>

#include <QObject>

/// The sizes, fonts and motion of the intro, thank-you, single choice, multiple choice,
/// dropdown and text box pages, named once for both front ends: C++ reads the constants,
/// QML the properties of an instance (the same numbers). Points, font sizes in points
/// scaled by the survey's base size where the theme engine makes the font, and seconds;
/// durations are scaled by TovuMotion where they are used, except the redirect's.
///
/// \code
/// row->setFixedHeight(qRound(TovuPageMetrics::optionRowHeight));
/// row->tapScale(TovuPageMetrics::pressScale, TovuPageMetrics::pressSeconds);
/// // QML, with an instance set as a context property or singleton named PageMetrics:
/// // Rectangle { height: PageMetrics.optionRowHeight; radius: PageMetrics.optionRowCornerRadius }
/// \endcode
class TovuPageMetrics : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qreal titleFontSize MEMBER titleFontSize CONSTANT)
    Q_PROPERTY(qreal hintFontSize MEMBER hintFontSize CONSTANT)
    Q_PROPERTY(qreal validationFontSize MEMBER validationFontSize CONSTANT)
    Q_PROPERTY(qreal actionFontSize MEMBER actionFontSize CONSTANT)
    Q_PROPERTY(qreal actionHeight MEMBER actionHeight CONSTANT)
    Q_PROPERTY(qreal actionCornerRadius MEMBER actionCornerRadius CONSTANT)
    Q_PROPERTY(qreal optionSpacing MEMBER optionSpacing CONSTANT)
    Q_PROPERTY(qreal optionRowHeight MEMBER optionRowHeight CONSTANT)
    Q_PROPERTY(qreal optionRowFontSize MEMBER optionRowFontSize CONSTANT)
    Q_PROPERTY(qreal optionRowCornerRadius MEMBER optionRowCornerRadius CONSTANT)
    Q_PROPERTY(qreal optionRowBorderWidth MEMBER optionRowBorderWidth CONSTANT)
    Q_PROPERTY(qreal optionRowInsetLeading MEMBER optionRowInsetLeading CONSTANT)
    Q_PROPERTY(qreal optionRowInsetTrailing MEMBER optionRowInsetTrailing CONSTANT)
    Q_PROPERTY(qreal optionRowInsetVertical MEMBER optionRowInsetVertical CONSTANT)
    Q_PROPERTY(qreal markLeading MEMBER markLeading CONSTANT)
    Q_PROPERTY(qreal radioSize MEMBER radioSize CONSTANT)
    Q_PROPERTY(qreal radioBorderWidth MEMBER radioBorderWidth CONSTANT)
    Q_PROPERTY(qreal radioDotSize MEMBER radioDotSize CONSTANT)
    Q_PROPERTY(qreal checkboxSize MEMBER checkboxSize CONSTANT)
    Q_PROPERTY(qreal checkboxCornerRadius MEMBER checkboxCornerRadius CONSTANT)
    Q_PROPERTY(qreal checkboxBorderWidth MEMBER checkboxBorderWidth CONSTANT)
    Q_PROPERTY(qreal checkGlyphSize MEMBER checkGlyphSize CONSTANT)
    Q_PROPERTY(qreal chosenFillAlpha MEMBER chosenFillAlpha CONSTANT)
    Q_PROPERTY(qreal pressScale MEMBER pressScale CONSTANT)
    Q_PROPERTY(qreal pressSeconds MEMBER pressSeconds CONSTANT)
    Q_PROPERTY(qreal shakeDistance MEMBER shakeDistance CONSTANT)
    Q_PROPERTY(qreal shakeSeconds MEMBER shakeSeconds CONSTANT)
    Q_PROPERTY(qreal singleChoiceSpacing MEMBER singleChoiceSpacing CONSTANT)
    Q_PROPERTY(qreal multipleChoiceSpacing MEMBER multipleChoiceSpacing CONSTANT)
    Q_PROPERTY(qreal dropdownSpacing MEMBER dropdownSpacing CONSTANT)
    Q_PROPERTY(qreal textBoxSpacing MEMBER textBoxSpacing CONSTANT)
    Q_PROPERTY(qreal selectorHeight MEMBER selectorHeight CONSTANT)
    Q_PROPERTY(qreal selectorFontSize MEMBER selectorFontSize CONSTANT)
    Q_PROPERTY(qreal selectorInsetLeading MEMBER selectorInsetLeading CONSTANT)
    Q_PROPERTY(qreal selectorInsetTrailing MEMBER selectorInsetTrailing CONSTANT)
    Q_PROPERTY(qreal selectorInsetVertical MEMBER selectorInsetVertical CONSTANT)
    Q_PROPERTY(qreal selectorCornerRadius MEMBER selectorCornerRadius CONSTANT)
    Q_PROPERTY(qreal selectorBorderWidth MEMBER selectorBorderWidth CONSTANT)
    Q_PROPERTY(qreal chevronSize MEMBER chevronSize CONSTANT)
    Q_PROPERTY(qreal chevronTrailing MEMBER chevronTrailing CONSTANT)
    Q_PROPERTY(qreal chevronSeconds MEMBER chevronSeconds CONSTANT)
    Q_PROPERTY(qreal listCornerRadius MEMBER listCornerRadius CONSTANT)
    Q_PROPERTY(qreal listBorderWidth MEMBER listBorderWidth CONSTANT)
    Q_PROPERTY(qreal listInset MEMBER listInset CONSTANT)
    Q_PROPERTY(qreal listRowHeight MEMBER listRowHeight CONSTANT)
    Q_PROPERTY(qreal listRowFontSize MEMBER listRowFontSize CONSTANT)
    Q_PROPERTY(qreal listRowInset MEMBER listRowInset CONSTANT)
    Q_PROPERTY(qreal listRowInsetVertical MEMBER listRowInsetVertical CONSTANT)
    Q_PROPERTY(qreal separatorHeight MEMBER separatorHeight CONSTANT)
    Q_PROPERTY(qreal listShadowOpacity MEMBER listShadowOpacity CONSTANT)
    Q_PROPERTY(qreal listShadowOffsetY MEMBER listShadowOffsetY CONSTANT)
    Q_PROPERTY(qreal listShadowRadius MEMBER listShadowRadius CONSTANT)
    Q_PROPERTY(qreal fieldHeight MEMBER fieldHeight CONSTANT)
    Q_PROPERTY(qreal fieldFontSize MEMBER fieldFontSize CONSTANT)
    Q_PROPERTY(qreal fieldCornerRadius MEMBER fieldCornerRadius CONSTANT)
    Q_PROPERTY(qreal fieldBorderWidth MEMBER fieldBorderWidth CONSTANT)
    Q_PROPERTY(qreal fieldFocusedBorderWidth MEMBER fieldFocusedBorderWidth CONSTANT)
    Q_PROPERTY(qreal fieldPadding MEMBER fieldPadding CONSTANT)
    Q_PROPERTY(qreal fieldFocusSeconds MEMBER fieldFocusSeconds CONSTANT)
    Q_PROPERTY(qreal focusRingWidth MEMBER focusRingWidth CONSTANT)
    Q_PROPERTY(qreal fieldLabelFontSize MEMBER fieldLabelFontSize CONSTANT)
    Q_PROPERTY(qreal fieldGroupSpacing MEMBER fieldGroupSpacing CONSTANT)
    Q_PROPERTY(qreal inputsSpacing MEMBER inputsSpacing CONSTANT)
    Q_PROPERTY(qreal introFontSize MEMBER introFontSize CONSTANT)
    Q_PROPERTY(qreal introSpacing MEMBER introSpacing CONSTANT)
    Q_PROPERTY(qreal thankYouDiscSize MEMBER thankYouDiscSize CONSTANT)
    Q_PROPERTY(qreal thankYouDiscAlpha MEMBER thankYouDiscAlpha CONSTANT)
    Q_PROPERTY(qreal thankYouIconSize MEMBER thankYouIconSize CONSTANT)
    Q_PROPERTY(qreal thankYouIconPointSize MEMBER thankYouIconPointSize CONSTANT)
    Q_PROPERTY(qreal thankYouTitleFontSize MEMBER thankYouTitleFontSize CONSTANT)
    Q_PROPERTY(qreal thankYouSubtitleFontSize MEMBER thankYouSubtitleFontSize CONSTANT)
    Q_PROPERTY(qreal thankYouSpacing MEMBER thankYouSpacing CONSTANT)
    Q_PROPERTY(qreal thankYouMargin MEMBER thankYouMargin CONSTANT)
    Q_PROPERTY(qreal thankYouStartScale MEMBER thankYouStartScale CONSTANT)
    Q_PROPERTY(qreal thankYouEntranceSeconds MEMBER thankYouEntranceSeconds CONSTANT)
    Q_PROPERTY(qreal thankYouEntranceDelaySeconds MEMBER thankYouEntranceDelaySeconds CONSTANT)
    Q_PROPERTY(qreal thankYouDampingRatio MEMBER thankYouDampingRatio CONSTANT)
    Q_PROPERTY(qreal thankYouInitialVelocity MEMBER thankYouInitialVelocity CONSTANT)
    Q_PROPERTY(qreal redirectDelaySeconds MEMBER redirectDelaySeconds CONSTANT)
    Q_PROPERTY(qreal npsSpacing MEMBER npsSpacing CONSTANT)
    Q_PROPERTY(qreal ratingSpacing MEMBER ratingSpacing CONSTANT)
    Q_PROPERTY(qreal ratingButtonSpacing MEMBER ratingButtonSpacing CONSTANT)
    Q_PROPERTY(qreal symbolButtonHeight MEMBER symbolButtonHeight CONSTANT)
    Q_PROPERTY(qreal faceButtonHeight MEMBER faceButtonHeight CONSTANT)
    Q_PROPERTY(qreal tileHeight MEMBER tileHeight CONSTANT)
    Q_PROPERTY(qreal tileFontSize MEMBER tileFontSize CONSTANT)
    Q_PROPERTY(qreal tileCornerRadius MEMBER tileCornerRadius CONSTANT)
    Q_PROPERTY(qreal columnLabelFontSize MEMBER columnLabelFontSize CONSTANT)
    Q_PROPERTY(qreal columnLabelSpacing MEMBER columnLabelSpacing CONSTANT)
    Q_PROPERTY(qreal columnLabelMinimumScale MEMBER columnLabelMinimumScale CONSTANT)
    Q_PROPERTY(qreal ratingSymbolPointSize MEMBER ratingSymbolPointSize CONSTANT)
    Q_PROPERTY(qreal ratingEmojiSize MEMBER ratingEmojiSize CONSTANT)
    Q_PROPERTY(qreal ratingChosenEmojiSize MEMBER ratingChosenEmojiSize CONSTANT)
    Q_PROPERTY(qreal ratingFadedOpacity MEMBER ratingFadedOpacity CONSTANT)
    Q_PROPERTY(qreal ratingTapScale MEMBER ratingTapScale CONSTANT)
    Q_PROPERTY(qreal ratingTapSeconds MEMBER ratingTapSeconds CONSTANT)
    Q_PROPERTY(qreal multiRatingSpacing MEMBER multiRatingSpacing CONSTANT)
    Q_PROPERTY(qreal multiRatingRowsSpacing MEMBER multiRatingRowsSpacing CONSTANT)
    Q_PROPERTY(qreal multiRatingRowSpacing MEMBER multiRatingRowSpacing CONSTANT)
    Q_PROPERTY(qreal multiRatingRowLabelFontSize MEMBER multiRatingRowLabelFontSize CONSTANT)
    Q_PROPERTY(qreal multiRatingSymbolHeight MEMBER multiRatingSymbolHeight CONSTANT)
    Q_PROPERTY(qreal multiRatingFaceHeight MEMBER multiRatingFaceHeight CONSTANT)
    Q_PROPERTY(qreal multiRatingStripHeight MEMBER multiRatingStripHeight CONSTANT)
    Q_PROPERTY(qreal multiRatingLabelledStripHeight MEMBER multiRatingLabelledStripHeight CONSTANT)
    Q_PROPERTY(qreal multiRatingColumnSpacing MEMBER multiRatingColumnSpacing CONSTANT)
    Q_PROPERTY(qreal multiRatingSeparatorHeight MEMBER multiRatingSeparatorHeight CONSTANT)
    Q_PROPERTY(qreal multiRatingSymbolPointSize MEMBER multiRatingSymbolPointSize CONSTANT)
    Q_PROPERTY(qreal multiRatingEmojiSize MEMBER multiRatingEmojiSize CONSTANT)
    Q_PROPERTY(qreal multiRatingChosenEmojiSize MEMBER multiRatingChosenEmojiSize CONSTANT)
    Q_PROPERTY(qreal multiNpsSpacing MEMBER multiNpsSpacing CONSTANT)
    Q_PROPERTY(qreal multiNpsRowsSpacing MEMBER multiNpsRowsSpacing CONSTANT)
    Q_PROPERTY(qreal multiNpsRowSpacing MEMBER multiNpsRowSpacing CONSTANT)
    Q_PROPERTY(qreal multiNpsRowLabelFontSize MEMBER multiNpsRowLabelFontSize CONSTANT)
    Q_PROPERTY(qreal multiNpsScoreFontSize MEMBER multiNpsScoreFontSize CONSTANT)
    Q_PROPERTY(qreal multiNpsScoreCornerRadius MEMBER multiNpsScoreCornerRadius CONSTANT)
    Q_PROPERTY(qreal multiNpsScoreHeight MEMBER multiNpsScoreHeight CONSTANT)
    Q_PROPERTY(qreal multiNpsEndLabelFontSize MEMBER multiNpsEndLabelFontSize CONSTANT)
    Q_PROPERTY(qreal multiNpsSeparatorHeight MEMBER multiNpsSeparatorHeight CONSTANT)
    Q_PROPERTY(qreal scoreTapScale MEMBER scoreTapScale CONSTANT)
    Q_PROPERTY(qreal scoreTapSeconds MEMBER scoreTapSeconds CONSTANT)
    Q_PROPERTY(qreal scoreSpacing MEMBER scoreSpacing CONSTANT)
    Q_PROPERTY(qreal scoreFontSize MEMBER scoreFontSize CONSTANT)
    Q_PROPERTY(qreal scoreCornerRadius MEMBER scoreCornerRadius CONSTANT)
    Q_PROPERTY(qreal scoreHeight MEMBER scoreHeight CONSTANT)
    Q_PROPERTY(qreal endLabelFontSize MEMBER endLabelFontSize CONSTANT)
    Q_PROPERTY(qreal endLabelSpacing MEMBER endLabelSpacing CONSTANT)
    Q_PROPERTY(qreal followUpCornerRadius MEMBER followUpCornerRadius CONSTANT)
    Q_PROPERTY(qreal followUpSpacing MEMBER followUpSpacing CONSTANT)
    Q_PROPERTY(qreal followUpPadding MEMBER followUpPadding CONSTANT)
    Q_PROPERTY(qreal followUpTitleFontSize MEMBER followUpTitleFontSize CONSTANT)
    Q_PROPERTY(qreal followUpTextFontSize MEMBER followUpTextFontSize CONSTANT)
    Q_PROPERTY(qreal followUpTextHeight MEMBER followUpTextHeight CONSTANT)
    Q_PROPERTY(qreal followUpTextCornerRadius MEMBER followUpTextCornerRadius CONSTANT)
    Q_PROPERTY(qreal followUpTextBorderWidth MEMBER followUpTextBorderWidth CONSTANT)
    Q_PROPERTY(qreal followUpTextMargin MEMBER followUpTextMargin CONSTANT)
    Q_PROPERTY(qreal followUpChoiceSpacing MEMBER followUpChoiceSpacing CONSTANT)
    Q_PROPERTY(qreal followUpChoiceFontSize MEMBER followUpChoiceFontSize CONSTANT)
    Q_PROPERTY(qreal followUpChoiceHeight MEMBER followUpChoiceHeight CONSTANT)
    Q_PROPERTY(qreal followUpChoiceCornerRadius MEMBER followUpChoiceCornerRadius CONSTANT)
    Q_PROPERTY(qreal followUpChoiceInsetLeading MEMBER followUpChoiceInsetLeading CONSTANT)
    Q_PROPERTY(qreal followUpChoiceInsetTrailing MEMBER followUpChoiceInsetTrailing CONSTANT)
    Q_PROPERTY(qreal followUpChoiceInsetVertical MEMBER followUpChoiceInsetVertical CONSTANT)
    Q_PROPERTY(qreal followUpRadioSize MEMBER followUpRadioSize CONSTANT)
    Q_PROPERTY(qreal followUpRadioLeading MEMBER followUpRadioLeading CONSTANT)

public:
    explicit TovuPageMetrics(QObject *parent = nullptr)
        : QObject(parent)
    { }

    // Every question page: the title, a hint under it, the red required-answer message and the
    // accent-filled action button.
    static constexpr qreal titleFontSize = 18;
    static constexpr qreal hintFontSize = 12;
    static constexpr qreal validationFontSize = 13;
    static constexpr qreal actionFontSize = 16;
    static constexpr qreal actionHeight = 50;
    static constexpr qreal actionCornerRadius = 12;

    // Answer rows with a radio or checkbox mark (single and multiple choice), stacked
    // optionSpacing apart.
    static constexpr qreal optionSpacing = 10;
    static constexpr qreal optionRowHeight = 52;
    static constexpr qreal optionRowFontSize = 15;
    static constexpr qreal optionRowCornerRadius = 12;
    static constexpr qreal optionRowBorderWidth = 1.5;
    static constexpr qreal optionRowInsetLeading = 48;
    static constexpr qreal optionRowInsetTrailing = 16;
    static constexpr qreal optionRowInsetVertical = 14;

    // The marks, markLeading in from a row's leading edge: a radio ring with a white dot when
    // chosen, a rounded checkbox with a white check.
    static constexpr qreal markLeading = 16;
    static constexpr qreal radioSize = 20;
    static constexpr qreal radioBorderWidth = 2;
    static constexpr qreal radioDotSize = 10;
    static constexpr qreal checkboxSize = 22;
    static constexpr qreal checkboxCornerRadius = 6;
    static constexpr qreal checkboxBorderWidth = 2;
    static constexpr qreal checkGlyphSize = 13;

    // A chosen row or list entry: the accent at this alpha behind it.
    static constexpr qreal chosenFillAlpha = 0.08;

    // A tap that chooses bounces: down to pressScale and back, pressSeconds each way.
    static constexpr qreal pressScale = 0.97;
    static constexpr qreal pressSeconds = 0.08;

    // A refused answer shakes: shakeDistance to the leading side and back, shakeSeconds each
    // way.
    static constexpr qreal shakeDistance = 6;
    static constexpr qreal shakeSeconds = 0.08;

    // Spacing between the parts of each question page.
    static constexpr qreal singleChoiceSpacing = 18;
    static constexpr qreal multipleChoiceSpacing = 14;
    static constexpr qreal dropdownSpacing = 12;
    static constexpr qreal textBoxSpacing = 20;

    // The dropdown's selector, with a chevron that turns half round over chevronSeconds as the
    // list opens.
    static constexpr qreal selectorHeight = 52;
    static constexpr qreal selectorFontSize = 15;
    static constexpr qreal selectorInsetLeading = 16;
    static constexpr qreal selectorInsetTrailing = 48;
    static constexpr qreal selectorInsetVertical = 14;
    static constexpr qreal selectorCornerRadius = 12;
    static constexpr qreal selectorBorderWidth = 1.5;
    static constexpr qreal chevronSize = 13;
    static constexpr qreal chevronTrailing = 16;
    static constexpr qreal chevronSeconds = 0.22;

    // The dropdown's open list: rows listInset inside its border, separatorHeight lines between
    // them, a soft shadow under it.
    static constexpr qreal listCornerRadius = 12;
    static constexpr qreal listBorderWidth = 1.5;
    static constexpr qreal listInset = 2;
    static constexpr qreal listRowHeight = 50;
    static constexpr qreal listRowFontSize = 15;
    static constexpr qreal listRowInset = 16;
    static constexpr qreal listRowInsetVertical = 14;
    static constexpr qreal separatorHeight = 0.5;
    static constexpr qreal listShadowOpacity = 0.06;
    static constexpr qreal listShadowOffsetY = 4;
    static constexpr qreal listShadowRadius = 8;

    // The text box page's fields: the border thickens and takes the accent over
    // fieldFocusSeconds on focus; with several fields each has a label above it.
    static constexpr qreal fieldHeight = 48;
    static constexpr qreal fieldFontSize = 15;
    static constexpr qreal fieldCornerRadius = 10;
    static constexpr qreal fieldBorderWidth = 1.5;
    static constexpr qreal fieldFocusedBorderWidth = 2;
    static constexpr qreal fieldPadding = 14;
    static constexpr qreal fieldFocusSeconds = 0.2;
    /// The keyboard's focus ring, inside a control's edge: the theme's colour, or the
    /// background's on a control filled with the theme's colour.
    static constexpr qreal focusRingWidth = 2;
    static constexpr qreal fieldLabelFontSize = 13;
    static constexpr qreal fieldGroupSpacing = 6;
    static constexpr qreal inputsSpacing = 14;

    // The intro page: its text above the start button (an action button).
    static constexpr qreal introFontSize = 15;
    static constexpr qreal introSpacing = 24;

    // The thank-you page: a check mark on a faint green disc, a title and a line under it,
    // thankYouMargin above and below.
    static constexpr qreal thankYouDiscSize = 88;
    static constexpr qreal thankYouDiscAlpha = 0.12;
    /// The check mark's frame; the drawn symbol fills it.
    static constexpr qreal thankYouIconSize = 56;
    /// The check mark's size as a font size, for a front end that sets the symbol as type.
    static constexpr qreal thankYouIconPointSize = 44;
    static constexpr qreal thankYouTitleFontSize = 22;
    static constexpr qreal thankYouSubtitleFontSize = 15;
    static constexpr qreal thankYouSpacing = 16;
    static constexpr qreal thankYouMargin = 24;

    // It comes in after a short delay, fading in and growing from thankYouStartScale on a
    // spring; only the drawing scales, never the layout.
    static constexpr qreal thankYouStartScale = 0.85;
    static constexpr qreal thankYouEntranceSeconds = 0.4;
    static constexpr qreal thankYouEntranceDelaySeconds = 0.05;
    static constexpr qreal thankYouDampingRatio = 0.7;
    static constexpr qreal thankYouInitialVelocity = 0.5;

    // A thank-you page's web address opens this long after the page is shown (not motion time).
    static constexpr qreal redirectDelaySeconds = 2.5;

    // The NPS page: its stack, the 0 to 10 scale (eleven buttons sharing the width) and its end labels.
    static constexpr qreal npsSpacing = 14;
    static constexpr qreal scoreSpacing = 4;
    static constexpr qreal scoreTapScale = TovuNPSBands::tapScale;
    static constexpr qreal scoreTapSeconds = TovuNPSBands::tapSeconds;
    static constexpr qreal scoreFontSize = 13;
    static constexpr qreal scoreCornerRadius = 8;
    static constexpr qreal scoreHeight = 40;
    static constexpr qreal endLabelFontSize = 11;
    static constexpr qreal endLabelSpacing = 8;

    // The follow-up card under a chosen score: a grey box with the question and a text area or radio rows.
    static constexpr qreal followUpCornerRadius = 12;
    static constexpr qreal followUpSpacing = 10;
    static constexpr qreal followUpPadding = 14;
    static constexpr qreal followUpTitleFontSize = 15;
    static constexpr qreal followUpTextFontSize = 15;
    static constexpr qreal followUpTextHeight = 90;
    static constexpr qreal followUpTextCornerRadius = 8;
    static constexpr qreal followUpTextBorderWidth = 1;
    static constexpr qreal followUpTextMargin = 8;
    static constexpr qreal followUpChoiceSpacing = 8;
    static constexpr qreal followUpChoiceFontSize = 14;
    static constexpr qreal followUpChoiceHeight = 44;
    static constexpr qreal followUpChoiceCornerRadius = 10;
    static constexpr qreal followUpChoiceInsetLeading = 40;
    static constexpr qreal followUpChoiceInsetTrailing = 12;
    static constexpr qreal followUpChoiceInsetVertical = 10;
    static constexpr qreal followUpRadioSize = 18;
    static constexpr qreal followUpRadioLeading = 12;

    // The multi-NPS page: a stack of rows, each a label, a smaller scale, its end labels and a hairline.
    static constexpr qreal multiNpsSpacing = 16;
    static constexpr qreal multiNpsRowsSpacing = 20;
    static constexpr qreal multiNpsRowSpacing = 6;
    static constexpr qreal multiNpsRowLabelFontSize = 14;
    static constexpr qreal multiNpsScoreFontSize = 12;
    static constexpr qreal multiNpsScoreCornerRadius = 7;
    static constexpr qreal multiNpsScoreHeight = 36;
    static constexpr qreal multiNpsEndLabelFontSize = 10;
    static constexpr qreal multiNpsSeparatorHeight = 1;

    // The rating page: its stack and one row of buttons sharing the width (symbols, faces or number tiles), with
    // optional column labels under them.
    static constexpr qreal ratingSpacing = 20;
    static constexpr qreal ratingButtonSpacing = 8;
    static constexpr qreal symbolButtonHeight = 50;
    static constexpr qreal faceButtonHeight = 60;
    static constexpr qreal tileHeight = 46;
    static constexpr qreal tileFontSize = 17;
    static constexpr qreal tileCornerRadius = 10;
    static constexpr qreal columnLabelFontSize = 10;
    static constexpr qreal columnLabelSpacing = 2;
    static constexpr qreal columnLabelMinimumScale = 0.5;
    // The symbol and face sizes and the bump of a chosen button are the rating view model's.
    static constexpr qreal ratingSymbolPointSize = TovuRatingQuestionViewModel::symbolPointSize;
    static constexpr qreal ratingEmojiSize = TovuRatingQuestionViewModel::emojiSize;
    static constexpr qreal ratingChosenEmojiSize = TovuRatingQuestionViewModel::chosenEmojiSize;
    static constexpr qreal ratingFadedOpacity = TovuRatingQuestionViewModel::fadedOpacity;
    static constexpr qreal ratingTapScale = TovuRatingQuestionViewModel::tapScale;
    static constexpr qreal ratingTapSeconds = TovuRatingQuestionViewModel::tapSeconds;

    // The multi-rating page: a stack of rows, each its text, a strip of buttons (sharing the width below six
    // columns, else at their natural widths and scrolling sideways) with the column labels under them, and a
    // hairline. The strip is taller where labels show; the buttons sit centred above them.
    static constexpr qreal multiRatingSpacing = 16;
    static constexpr qreal multiRatingRowsSpacing = 20;
    static constexpr qreal multiRatingRowSpacing = 8;
    static constexpr qreal multiRatingRowLabelFontSize = 14;
    static constexpr qreal multiRatingSymbolHeight = 36;
    static constexpr qreal multiRatingFaceHeight = 44;
    static constexpr qreal multiRatingStripHeight = 44;
    static constexpr qreal multiRatingLabelledStripHeight = 60;
    static constexpr qreal multiRatingColumnSpacing = 8;
    static constexpr qreal multiRatingSeparatorHeight = 1;
    static constexpr qreal multiRatingSymbolPointSize = TovuMultiRatingQuestionViewModel::symbolPointSize;
    static constexpr qreal multiRatingEmojiSize = TovuMultiRatingQuestionViewModel::emojiSize;
    static constexpr qreal multiRatingChosenEmojiSize = TovuMultiRatingQuestionViewModel::chosenEmojiSize;
};
