#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>

#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <set>

namespace {

const QString separator = QStringLiteral("::");
const std::vector<TovuChoice> noColumns;

QString text(const std::string &value)
{
    return QString::fromStdString(value);
}

} // namespace

TovuMultiRatingQuestionViewModel::TovuMultiRatingQuestionViewModel(std::optional<TovuQuestion> question,
                                                                   TovuRatingVariant variant, bool isLastQuestion,
                                                                   QObject *parent)
    : TovuQuestionViewModel(std::move(question), isLastQuestion, tr("Please rate all items."), parent)
    , m_variant(variant)
{ }

QString TovuMultiRatingQuestionViewModel::variantName() const
{
    const std::string_view name = rawValue(m_variant);
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

const std::vector<TovuChoice> &TovuMultiRatingQuestionViewModel::columns() const
{
    return question() && question()->columns ? *question()->columns : noColumns;
}

int TovuMultiRatingQuestionViewModel::columnCount() const
{
    return static_cast<int>(columns().size());
}

QStringList TovuMultiRatingQuestionViewModel::columnIds() const
{
    QStringList ids;
    for (const TovuChoice &column : columns())
        ids.append(text(column.id));
    return ids;
}

QStringList TovuMultiRatingQuestionViewModel::columnTexts() const
{
    QStringList texts;
    for (const TovuChoice &column : columns())
        texts.append(text(column.text));
    return texts;
}

bool TovuMultiRatingQuestionViewModel::showsColumnLabels() const
{
    return question() && question()->showColLabels.value_or(false);
}

QVariantMap TovuMultiRatingQuestionViewModel::selectedColumns() const
{
    QVariantMap map;
    for (const auto &[row, column] : m_selectedCols)
        map.insert(text(row), text(column));
    return map;
}

int TovuMultiRatingQuestionViewModel::positionOf(const std::string &columnId) const
{
    const auto found = std::ranges::find(columns(), columnId, &TovuChoice::id);
    return found == columns().end() ? 0 : static_cast<int>(found - columns().begin()) + 1;
}

int TovuMultiRatingQuestionViewModel::selectedPosition(const QString &rowId) const
{
    const auto found = m_selectedCols.find(rowId.toStdString());
    return found == m_selectedCols.end() ? 0 : positionOf(found->second);
}

bool TovuMultiRatingQuestionViewModel::isFilled(const QString &rowId, int position) const
{
    const int chosen = selectedPosition(rowId);
    if (chosen == 0 || position < 1)
        return false;
    // Unlike the single rating, every symbol fills up to the choice; a face stands alone.
    return m_variant == TovuRatingVariant::emoji ? position == chosen : position <= chosen;
}

QString TovuMultiRatingQuestionViewModel::symbolName(const QString &rowId, int position) const
{
    return TovuRatingQuestionViewModel::symbolFor(m_variant, isFilled(rowId, position));
}

QString TovuMultiRatingQuestionViewModel::buttonTitle(int position) const
{
    return m_variant == TovuRatingVariant::emoji ? TovuRatingQuestionViewModel::emojiFace(position) : QString();
}

QString TovuMultiRatingQuestionViewModel::accessibleName(int row, int position) const
{
    const std::optional<TovuChoice> option = optionAt(row);
    // Numbers are drawn as stars here, and named as what they show.
    const TovuRatingVariant drawn = m_variant == TovuRatingVariant::numeric ? TovuRatingVariant::star : m_variant;
    QString name = TovuRatingQuestionViewModel::scaleName(drawn, position, columnCount());
    if (showsColumnLabels() && position >= 1 && position <= columnCount())
        name = tr("%1, %2").arg(name, text(columns()[static_cast<std::size_t>(position - 1)].text));
    return option ? tr("%1, %2").arg(text(option->text), name) : name;
}

QColor TovuMultiRatingQuestionViewModel::activeColor() const
{
    return TovuRatingQuestionViewModel::activeColorFor(question());
}

QList<int> TovuMultiRatingQuestionViewModel::naturalColumnWidths(const QFont &captionFont) const
{
    QList<int> widths(columnCount(), naturalColumnWidth);
    if (!showsColumnLabels())
        return widths;
    // Wide enough to tap, and for the column's label to be read without shrinking much.
    const QFontMetricsF metrics(captionFont);
    const QStringList texts = columnTexts();
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const auto needed = static_cast<int>(std::ceil(metrics.horizontalAdvance(texts[i]) + 4));
        widths[i] = std::clamp(needed, naturalColumnWidth, 2 * naturalColumnWidth);
    }
    return widths;
}

QString TovuMultiRatingQuestionViewModel::identifier(const std::string &rowId, const std::string &columnId)
{
    return text(rowId) + separator + text(columnId);
}

bool TovuMultiRatingQuestionViewModel::hasRow(const std::string &rowId) const
{
    return std::ranges::find(options(), rowId, &TovuChoice::id) != options().end();
}

void TovuMultiRatingQuestionViewModel::tap(const QString &identifier)
{
    const QStringList parts = identifier.split(separator);
    if (parts.size() != 2)
        return;
    const std::string rowId = parts[0].toStdString();
    std::string columnId = parts[1].toStdString();
    // A name no button of this grid carries would rate a row that is not there.
    if (!hasRow(rowId) || positionOf(columnId) == 0)
        return;
    setValidationVisible(false);
    m_selectedCols[rowId] = std::move(columnId);
    Q_EMIT selectedColsChanged();
    Q_EMIT rowRated(parts[0], identifier);
}

std::size_t TovuMultiRatingQuestionViewModel::distinctRowCount() const
{
    std::set<std::string> ids;
    for (const TovuChoice &row : options())
        ids.insert(row.id);
    return ids.size();
}

void TovuMultiRatingQuestionViewModel::submitQuestion(const TovuQuestion &question)
{
    // Rows that share an id are rated together, so they count once.
    if (question.isRequired && m_selectedCols.size() < distinctRowCount()) {
        refuse();
        return;
    }
    if (m_selectedCols.empty())
        return;
    setValidationVisible(false);
    TovuAnswer answer{.questionId = question.id};
    std::set<std::string> reported;
    for (const TovuChoice &row : options()) {
        const auto chosen = m_selectedCols.find(row.id);
        if (chosen != m_selectedCols.end() && reported.insert(row.id).second)
            answer.value.push_back({.rowId = row.id, .colId = chosen->second});
    }
    report(answer);
}
