#include <tovukit_io/viewmodel/TovuNPSBands.h>

#include <QCoreApplication>

#include <algorithm>

namespace {

QColor grey(float white)
{
    return QColor::fromRgbF(white, white, white);
}

const std::optional<std::string> &overrideFor(TovuNPSBands::Band band, const TovuNPSLabels &labels)
{
    switch (band) {
    case TovuNPSBands::Band::detractor:
        return labels.detractorColor;
    case TovuNPSBands::Band::passive:
        return labels.passiveColor;
    case TovuNPSBands::Band::promoter:
        break;
    }
    return labels.promoterColor;
}

// ASCII only: a sign, "0x" or a digit of another script is not part of a colour.
bool isHexDigit(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= u'0' && u <= u'9') || (u >= u'a' && u <= u'f') || (u >= u'A' && u <= u'F');
}

} // namespace

bool TovuNPSBands::isScore(int score)
{
    return score >= minScore && score <= maxScore;
}

TovuNPSBands::Band TovuNPSBands::bandOf(int score)
{
    if (score <= 6)
        return Band::detractor;
    return score <= 8 ? Band::passive : Band::promoter;
}

QColor TovuNPSBands::defaultColor(Band band)
{
    switch (band) {
    case Band::detractor:
        return QColor::fromRgbF(0.95f, 0.26f, 0.21f);
    case Band::passive:
        return QColor::fromRgbF(1.0f, 0.76f, 0.03f);
    case Band::promoter:
        break;
    }
    return QColor::fromRgbF(0.18f, 0.8f, 0.44f);
}

QColor TovuNPSBands::colorOf(Band band, const std::optional<TovuNPSLabels> &labels)
{
    if (labels) {
        if (const std::optional<std::string> &text = overrideFor(band, *labels)) {
            if (const std::optional<QColor> color = overrideColor(*text))
                return *color;
        }
    }
    return defaultColor(band);
}

QColor TovuNPSBands::colorOf(int score, const std::optional<TovuNPSLabels> &labels)
{
    return colorOf(bandOf(score), labels);
}

std::optional<QColor> TovuNPSBands::overrideColor(std::string_view text)
{
    QString digits = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).trimmed();
    digits.remove(u'#');
    if (digits.size() != 6 || !std::ranges::all_of(digits, isHexDigit))
        return std::nullopt;
    const uint rgb = digits.toUInt(nullptr, 16);
    return QColor(qRed(rgb), qGreen(rgb), qBlue(rgb));
}

TovuNPSBands::Emphasis TovuNPSBands::emphasisOf(int score, std::optional<int> chosen)
{
    if (!chosen)
        return Emphasis::resting;
    return *chosen == score ? Emphasis::selected : Emphasis::unselected;
}

bool TovuNPSBands::isDark(const QColor &color)
{
    const QColor rgb = color.toRgb();
    const auto channel = [](float value) {
        return static_cast<double>(value);
    };
    return 0.299 * channel(rgb.redF()) + 0.587 * channel(rgb.greenF()) + 0.114 * channel(rgb.blueF()) < 0.5;
}

TovuNPSBands::Look TovuNPSBands::look(const QColor &band, Emphasis emphasis)
{
    const bool dark = isDark(band);
    const QColor white(Qt::white);
    switch (emphasis) {
    case Emphasis::resting:
        return {band, dark ? white : grey(0.2f), band, 1.5};
    case Emphasis::unselected:
        return {band, dark ? white : grey(0.35f), band, 1.5};
    case Emphasis::selected:
        break;
    }
    return {band, dark ? white : grey(0.15f), dark ? band : grey(0.3f), 3.0};
}

const std::optional<TovuNPSLabels> &TovuNPSBands::labelsOf(const std::optional<TovuQuestion> &question)
{
    static const std::optional<TovuNPSLabels> none;
    return question ? question->npsLabels : none;
}

QString TovuNPSBands::lowLabel(const std::optional<TovuNPSLabels> &labels)
{
    return labels ? QString::fromStdString(labels->lower) : QCoreApplication::translate("TovuNPSBands", "Not likely");
}

QString TovuNPSBands::highLabel(const std::optional<TovuNPSLabels> &labels)
{
    return labels ? QString::fromStdString(labels->upper) : QCoreApplication::translate("TovuNPSBands", "Very likely");
}

QVariantMap TovuNPSBands::styleOf(const Look &look)
{
    return {{QStringLiteral("background"), look.background},
            {QStringLiteral("title"), look.title},
            {QStringLiteral("border"), look.border},
            {QStringLiteral("borderWidth"), look.borderWidth}};
}
