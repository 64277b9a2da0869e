#pragma once

#include <tovukit_io/model/TovuSurvey.h>

#include <QColor>
#include <QString>
#include <QVariantMap>

#include <optional>
#include <string_view>

/// The 0 to 10 scale of the NPS pages: which band a score falls in, the colour of
/// each band (a survey may override it in its NPS labels), whether a colour is dark
/// enough for a white title, and how a score button looks before and after a tap.
/// Both the NPS and the multi-NPS page read it, in either front end.
///
/// \code
/// const QColor fill = TovuNPSBands::colorOf(7, question.npsLabels); // amber unless overridden
/// const TovuNPSBands::Look look = TovuNPSBands::look(fill, TovuNPSBands::Emphasis::selected);
/// button->tapScale(TovuNPSBands::tapScale, TovuNPSBands::tapSeconds);
/// \endcode
class TovuNPSBands
{
public:
    /// 0 to 6, 7 and 8, 9 and 10.
    enum class Band { detractor, passive, promoter };

    /// Where a score button stands: nothing on its scale chosen yet, another score
    /// chosen, or itself chosen.
    enum class Emphasis { resting, unselected, selected };

    /// The colours and border of one score button.
    struct Look {
        QColor background;
        QColor title;
        QColor border;
        qreal borderWidth = 0;

        friend bool operator==(const Look &, const Look &) = default;
    };

    static constexpr int minScore = 0;
    static constexpr int maxScore = 10;
    static constexpr int scoreCount = maxScore - minScore + 1;
    /// The bump of a chosen score: up to this scale and back, each way over tapSeconds.
    static constexpr qreal tapScale = 1.15;
    static constexpr qreal tapSeconds = 0.1;

    /// Whether `score` is a point of the scale.
    static bool isScore(int score);
    /// The band of `score`; below the scale counts as detractor, above as promoter.
    static Band bandOf(int score);
    /// The band's own colour: red, amber or green.
    static QColor defaultColor(Band band);
    /// The band's colour as the labels override it, else its default.
    static QColor colorOf(Band band, const std::optional<TovuNPSLabels> &labels);
    static QColor colorOf(int score, const std::optional<TovuNPSLabels> &labels);

    /// An override colour: blanks and line breaks trimmed, every '#' removed, then
    /// exactly six hexadecimal digits (RRGGBB); anything else gives none. Stricter than
    /// the theme's colour text on purpose: a typo falls back to the band's default.
    static std::optional<QColor> overrideColor(std::string_view text);

    /// How the button of `score` stands while `chosen` is the scale's choice (if any).
    static Emphasis emphasisOf(int score, std::optional<int> chosen);

    /// Dark when 0.299 red + 0.587 green + 0.114 blue is below one half (alpha ignored).
    static bool isDark(const QColor &color);

    /// A score button of `band` colour with `emphasis`: a white title on dark colours,
    /// else a grey one (0.2 resting, 0.35 unselected, 0.15 selected); a 1.5 border in
    /// the band colour, or 3.0 when selected, grey 0.3 on light colours.
    static Look look(const QColor &band, Emphasis emphasis);
    /// The end labels' fixed colours: the detractor red and the promoter green.
    static QColor lowLabelColor() { return defaultColor(Band::detractor); }
    static QColor highLabelColor() { return defaultColor(Band::promoter); }
    /// `look` as QML reads it: `background`, `title`, `border` and `borderWidth`.
    static QVariantMap styleOf(const Look &look);

    /// The NPS labels of `question`, if it has any.
    static const std::optional<TovuNPSLabels> &labelsOf(const std::optional<TovuQuestion> &question);
    /// The end labels: the survey's, else "Not likely" and "Very likely".
    static QString lowLabel(const std::optional<TovuNPSLabels> &labels);
    static QString highLabel(const std::optional<TovuNPSLabels> &labels);

    TovuNPSBands() = delete;
};
