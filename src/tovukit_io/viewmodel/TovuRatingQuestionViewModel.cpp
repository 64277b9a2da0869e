#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>

#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

namespace {

// U+1F61E, U+1F615, U+1F610, U+1F642, U+1F601, then U+2B50 for every later position.
constexpr std::array<std::string_view, 5> faces{"\xF0\x9F\x98\x9E", "\xF0\x9F\x98\x95", "\xF0\x9F\x98\x90",
                                                "\xF0\x9F\x99\x82", "\xF0\x9F\x98\x81"};
constexpr std::string_view star = "\xE2\xAD\x90";

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

TovuRatingQuestionViewModel::TovuRatingQuestionViewModel(std::optional<TovuQuestion> question,
                                                         TovuRatingVariant variant, int maxRating, bool isLastQuestion,
                                                         QObject *parent)
    : TovuQuestionViewModel(std::move(question), isLastQuestion, QString(), parent)
    , m_variant(variant)
    , m_maxRating(maxRating)
{
    setActionVisible(false); // nothing to report before the first tap
}

QString TovuRatingQuestionViewModel::variantName() const
{
    return fromUtf8(rawValue(m_variant));
}

int TovuRatingQuestionViewModel::buttonCount() const
{
    const TovuQuestion *q = question() ? &*question() : nullptr;
    if (q && q->columns && !q->columns->empty())
        return static_cast<int>(std::min<std::size_t>(q->columns->size(), std::numeric_limits<int>::max()));
    return std::clamp(m_maxRating, 1, maxButtonCount);
}

std::optional<QString> TovuRatingQuestionViewModel::columnLabel(int rating) const
{
    const TovuQuestion *q = question() ? &*question() : nullptr;
    if (!q || !q->showColLabels.value_or(false) || !q->columns || rating < 1
        || static_cast<std::size_t>(rating) > q->columns->size())
        return std::nullopt;
    return QString::fromStdString((*q->columns)[static_cast<std::size_t>(rating - 1)].text);
}

QStringList TovuRatingQuestionViewModel::columnLabels() const
{
    QStringList labels;
    for (int rating = 1; rating <= buttonCount(); ++rating) {
        if (std::optional<QString> label = columnLabel(rating))
            labels.append(*label);
    }
    return labels;
}

bool TovuRatingQuestionViewModel::isSelected(int rating) const
{
    if (!m_selectedRating)
        return false;
    return isCumulative(m_variant) ? rating >= 1 && rating <= *m_selectedRating : rating == *m_selectedRating;
}

QColor TovuRatingQuestionViewModel::activeColor() const
{
    return activeColorFor(question());
}

QString TovuRatingQuestionViewModel::symbolName(int rating) const
{
    if (m_variant == TovuRatingVariant::emoji || m_variant == TovuRatingVariant::numeric)
        return {};
    return symbolFor(m_variant, isSelected(rating));
}

QString TovuRatingQuestionViewModel::buttonTitle(int rating) const
{
    switch (m_variant) {
    case TovuRatingVariant::emoji:
        return emojiFace(rating);
    case TovuRatingVariant::numeric:
        return QString::number(rating);
    default:
        return {};
    }
}

QString TovuRatingQuestionViewModel::accessibleName(int rating) const
{
    const QString name = scaleName(m_variant, rating, buttonCount());
    const std::optional<QString> label = columnLabel(rating);
    return label ? tr("%1, %2").arg(name, *label) : name;
}

void TovuRatingQuestionViewModel::rate(int rating)
{
    if (rating < 1 || rating > buttonCount())
        return;
    m_selectedRating = rating;
    Q_EMIT selectedRatingChanged();

    m_followUpText = followUpFor(rating);
    Q_EMIT followUpChanged();
    setActionTitle(m_followUpText ? tr("Submit") : actionTitleFor(isLastQuestion()));
    setActionVisible(true);
}

std::optional<QString> TovuRatingQuestionViewModel::followUpFor(int rating) const
{
    if (const TovuConditionalFollowUp *conditional = conditionalFollowUpFor(rating))
        return QString::fromStdString(conditional->followUpQuestion);
    if (question() && question()->followUpQuestion)
        return QString::fromStdString(*question()->followUpQuestion);
    return std::nullopt;
}

void TovuRatingQuestionViewModel::submitQuestion(const TovuQuestion &question)
{
    if (!m_selectedRating)
        return;
    const int rating = *m_selectedRating;
    // The follow-up's text is not part of the answer: it only prompts.
    report(TovuAnswer{
        .questionId = question.id,
        .value = {{.rowId = scaleRowId(), .colId = scaleColumnId(static_cast<std::size_t>(rating - 1), rating)}}});
}

bool TovuRatingQuestionViewModel::isCumulative(TovuRatingVariant variant)
{
    return variant == TovuRatingVariant::star || variant == TovuRatingVariant::numeric;
}

QString TovuRatingQuestionViewModel::symbolFor(TovuRatingVariant variant, bool filled)
{
    QString name;
    switch (variant) {
    case TovuRatingVariant::star:
    case TovuRatingVariant::numeric:
        name = QStringLiteral("star");
        break;
    case TovuRatingVariant::heart:
        name = QStringLiteral("heart");
        break;
    case TovuRatingVariant::circle:
        name = QStringLiteral("circle");
        break;
    case TovuRatingVariant::tile:
        name = QStringLiteral("square");
        break;
    case TovuRatingVariant::emoji:
        return {};
    }
    return filled ? name + QStringLiteral(".fill") : name;
}

QString TovuRatingQuestionViewModel::emojiFace(int position)
{
    if (position >= 1 && static_cast<std::size_t>(position) <= faces.size())
        return fromUtf8(faces[static_cast<std::size_t>(position - 1)]);
    return fromUtf8(star);
}

QString TovuRatingQuestionViewModel::scaleName(TovuRatingVariant variant, int position, int count)
{
    switch (variant) {
    case TovuRatingVariant::star:
        return tr("%1 of %2 stars").arg(position).arg(count);
    case TovuRatingVariant::heart:
        return tr("%1 of %2 hearts").arg(position).arg(count);
    case TovuRatingVariant::circle:
        return tr("%1 of %2 circles").arg(position).arg(count);
    case TovuRatingVariant::tile:
        return tr("%1 of %2 tiles").arg(position).arg(count);
    case TovuRatingVariant::emoji:
    case TovuRatingVariant::numeric:
        break;
    }
    return tr("%1 of %2").arg(position).arg(count);
}

QColor TovuRatingQuestionViewModel::activeColorFor(const std::optional<TovuQuestion> &question)
{
    if (question && question->ratingColor) {
        if (std::optional<QColor> color = TovuThemeEngine::colorFromHex(*question->ratingColor))
            return *color;
    }
    return TovuPlatformColors::color(TovuPlatformColors::Role::orange);
}
