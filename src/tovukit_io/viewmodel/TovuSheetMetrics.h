#pragma once

#include <QObject>

/// The sizes and motion of the bottom sheet, named once for both front ends: C++ reads the
/// constants, QML the properties of an instance (the same numbers). Points and seconds;
/// durations are scaled by TovuMotion where they are used.
///
/// \code
/// handle->setFixedSize(qRound(TovuSheetMetrics::handleWidth), qRound(TovuSheetMetrics::handleHeight));
/// // QML, with an instance set as a context property or singleton named SheetMetrics:
/// // Rectangle { width: SheetMetrics.handleWidth; height: SheetMetrics.handleHeight }
/// \endcode
class TovuSheetMetrics : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qreal handleTop MEMBER handleTop CONSTANT)
    Q_PROPERTY(qreal handleWidth MEMBER handleWidth CONSTANT)
    Q_PROPERTY(qreal handleHeight MEMBER handleHeight CONSTANT)
    Q_PROPERTY(qreal handleCornerRadius MEMBER handleCornerRadius CONSTANT)
    Q_PROPERTY(qreal skipTop MEMBER skipTop CONSTANT)
    Q_PROPERTY(qreal skipTrailing MEMBER skipTrailing CONSTANT)
    Q_PROPERTY(qreal skipFontSize MEMBER skipFontSize CONSTANT)
    Q_PROPERTY(qreal skipInsetHorizontal MEMBER skipInsetHorizontal CONSTANT)
    Q_PROPERTY(qreal skipInsetVertical MEMBER skipInsetVertical CONSTANT)
    Q_PROPERTY(qreal progressTop MEMBER progressTop CONSTANT)
    Q_PROPERTY(qreal progressLeading MEMBER progressLeading CONSTANT)
    Q_PROPERTY(qreal progressWidth MEMBER progressWidth CONSTANT)
    Q_PROPERTY(qreal progressHeight MEMBER progressHeight CONSTANT)
    Q_PROPERTY(qreal progressBarWidth MEMBER progressBarWidth CONSTANT)
    Q_PROPERTY(qreal progressBarHeight MEMBER progressBarHeight CONSTANT)
    Q_PROPERTY(qreal progressTextGap MEMBER progressTextGap CONSTANT)
    Q_PROPERTY(qreal progressFontSize MEMBER progressFontSize CONSTANT)
    Q_PROPERTY(qreal contentTopBelowHandle MEMBER contentTopBelowHandle CONSTANT)
    Q_PROPERTY(qreal contentTop MEMBER contentTop CONSTANT)
    Q_PROPERTY(qreal contentSide MEMBER contentSide CONSTANT)
    Q_PROPERTY(qreal contentBottom MEMBER contentBottom CONSTANT)
    Q_PROPERTY(qreal contentSpacing MEMBER contentSpacing CONSTANT)
    Q_PROPERTY(qreal maxHeightRatio MEMBER maxHeightRatio CONSTANT)
    Q_PROPERTY(qreal offscreenDistance MEMBER offscreenDistance CONSTANT)
    Q_PROPERTY(qreal presentSeconds MEMBER presentSeconds CONSTANT)
    Q_PROPERTY(qreal presentDampingRatio MEMBER presentDampingRatio CONSTANT)
    Q_PROPERTY(qreal presentInitialVelocity MEMBER presentInitialVelocity CONSTANT)
    Q_PROPERTY(qreal dismissSeconds MEMBER dismissSeconds CONSTANT)
    Q_PROPERTY(qreal defaultDimmingAlpha MEMBER defaultDimmingAlpha CONSTANT)
    Q_PROPERTY(qreal keyboardSeconds MEMBER keyboardSeconds CONSTANT)
    Q_PROPERTY(qreal keyboardTopMargin MEMBER keyboardTopMargin CONSTANT)

public:
    explicit TovuSheetMetrics(QObject *parent = nullptr)
        : QObject(parent)
    { }

    // The grab handle, centred at the panel's top.
    static constexpr qreal handleTop = 8;
    static constexpr qreal handleWidth = 40;
    static constexpr qreal handleHeight = 5;
    static constexpr qreal handleCornerRadius = 2.5;

    // "Skip", at the panel's top trailing corner.
    static constexpr qreal skipTop = 12;
    static constexpr qreal skipTrailing = 16;
    static constexpr qreal skipFontSize = 14;
    static constexpr qreal skipInsetHorizontal = 4;
    static constexpr qreal skipInsetVertical = 2;

    // The progress indicator a host may turn on: a thin bar in the theme's accent on a
    // track in the handle's grey, then "3 of 7", at the panel's top leading corner on Skip's line.
    // Its box has a fixed size, so both front ends place it alike whatever the font.
    static constexpr qreal progressTop = skipTop;
    static constexpr qreal progressLeading = 20;
    static constexpr qreal progressWidth = 140;
    static constexpr qreal progressHeight = 21;
    static constexpr qreal progressBarWidth = 64;
    static constexpr qreal progressBarHeight = 4;
    static constexpr qreal progressTextGap = 8;
    static constexpr qreal progressFontSize = 12;

    // The page area inside the panel: below the handle, in from the sides and the bottom.
    static constexpr qreal contentTopBelowHandle = 24;
    /// From the panel's top edge to the page's: the handle and the gap under it.
    static constexpr qreal contentTop = handleTop + handleHeight + contentTopBelowHandle;
    static constexpr qreal contentSide = 20;
    static constexpr qreal contentBottom = 20;
    /// Between the parts stacked in the page area.
    static constexpr qreal contentSpacing = 20;
    /// The panel is at most this share of the host's height; taller pages scroll.
    static constexpr qreal maxHeightRatio = 0.92;

    // Coming in: the panel rises from this far below its place on a spring; going out it
    // sinks back there while the sheet fades.
    static constexpr qreal offscreenDistance = 1000;
    static constexpr qreal presentSeconds = 0.35;
    static constexpr qreal presentDampingRatio = 0.8;
    static constexpr qreal presentInitialVelocity = 1.2;
    static constexpr qreal dismissSeconds = 0.3;
    /// The dimming layer's alpha when the survey's theme sets no transparency.
    static constexpr qreal defaultDimmingAlpha = 0.5;

    // The on-screen keyboard: the panel follows it over this time (the system does not
    // tell its own) and, lifted, leaves this much of the host visible above it.
    static constexpr qreal keyboardSeconds = 0.25;
    static constexpr qreal keyboardTopMargin = 8;
};
