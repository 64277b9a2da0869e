#pragma once

// The 0 to 10 scales the NPS and multi-NPS pages are built from; not installed.

#include <tovukit_io/viewmodel/TovuNPSBands.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>

#include <QCoreApplication>
#include <QFont>
#include <QList>
#include <QString>

#include <functional>

class QHBoxLayout;
class QLabel;
class QWidget;
class TovuButton;
class TovuEqualWidthLayout;

class TovuScaleParts
{
    Q_DECLARE_TR_FUNCTIONS(TovuScaleParts)

public:
    /// The size of one scale's buttons.
    struct ScaleMetrics {
        qreal fontSize = TovuPageMetrics::scoreFontSize;
        qreal cornerRadius = TovuPageMetrics::scoreCornerRadius;
        int height = qRound(TovuPageMetrics::scoreHeight);
    };
    /// A row (scoreSpacing) of one button per score, 0 to 10, each titled and tagged with its
    /// score and named "Score N"; appended to `buttons`; a tap calls `tapped` with the button.
    static TovuEqualWidthLayout *buildScale(QWidget *page, const ScaleMetrics &metrics, QList<TovuButton *> &buttons,
                                            const std::function<void(TovuButton *)> &tapped);
    /// Gives each button of a scale the look `lookOf` its tag.
    static void restyleScale(const QList<TovuButton *> &buttons, const std::function<TovuNPSBands::Look(int)> &lookOf);
    /// The end labels in `font`, the low one in the detractor red at the leading end and
    /// the high one in the promoter green at the trailing end.
    static QHBoxLayout *buildEndLabels(QWidget *page, const QString &low, const QString &high, const QFont &font,
                                       QLabel *&lowLabel, QLabel *&highLabel);
    /// The grey subtitle under a title (12 regular), hidden when empty.
    static QLabel *buildSubtitle(const QString &text, QWidget *page);

    TovuScaleParts() = delete;
};
