#pragma once

#include <tovukit_io/model/TovuRatingVariant.h>
#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>

#include <QColor>
#include <QFont>
#include <QList>
#include <QVariantMap>

#include <map>
#include <string>

/// A multi-rating page: every row (the question's options) is rated on the same scale
/// of columns, drawn as symbols (numeric ones as stars) or emoji faces. Symbols fill
/// up to the chosen column in every variant; faces mark only the chosen one.
///
/// A button is named "rowId::columnId"; a tap with a name that does not split into
/// exactly those two known ids is ignored. A row's new choice replaces its old one.
/// The action refuses a required grid with an unrated row ("Please rate all items.",
/// with a shake of the message), reports nothing when no row is rated, and otherwise
/// reports one {rowId, colId} per rated row, in row order.
///
/// \code
/// TovuMultiRatingQuestionViewModel model(question, TovuRatingVariant::heart, false);
/// model.tap(TovuMultiRatingQuestionViewModel::identifier("speed", "c3"));
/// model.isFilled(QStringLiteral("speed"), 2); // true
/// model.submit(); // {questionId, [{rowId: "speed", colId: "c3"}]}
/// \endcode
class TovuMultiRatingQuestionViewModel : public TovuQuestionViewModel
{
    Q_OBJECT
    Q_PROPERTY(QString variantName READ variantName CONSTANT)
    Q_PROPERTY(int columnCount READ columnCount CONSTANT)
    Q_PROPERTY(QStringList columnIds READ columnIds CONSTANT)
    Q_PROPERTY(QStringList columnTexts READ columnTexts CONSTANT)
    /// Whether the column texts show under the buttons.
    Q_PROPERTY(bool showsColumnLabels READ showsColumnLabels CONSTANT)
    /// Whether the buttons share the row's width (fewer than 6 columns) rather than
    /// keeping their natural widths and scrolling.
    Q_PROPERTY(bool sharesWidth READ sharesWidth CONSTANT)
    /// Row id to column id, one entry per rated row.
    Q_PROPERTY(QVariantMap selectedColumns READ selectedColumns NOTIFY selectedColsChanged)

public:
    TovuMultiRatingQuestionViewModel(std::optional<TovuQuestion> question, TovuRatingVariant variant,
                                     bool isLastQuestion, QObject *parent = nullptr);

    TovuRatingVariant variant() const { return m_variant; }
    QString variantName() const;
    const std::vector<TovuChoice> &columns() const;
    int columnCount() const;
    QStringList columnIds() const;
    QStringList columnTexts() const;
    bool showsColumnLabels() const;
    bool sharesWidth() const { return columnCount() < scrollingColumnCount; }

    const std::map<std::string, std::string> &selectedCols() const { return m_selectedCols; }
    QVariantMap selectedColumns() const;
    /// The chosen column's 1-based position in the row `rowId`; 0 when unrated.
    Q_INVOKABLE int selectedPosition(const QString &rowId) const;
    /// Whether the button at `position` (1-based) of row `rowId` shows as chosen.
    Q_INVOKABLE bool isFilled(const QString &rowId, int position) const;
    /// The symbol the button shows ("star", "heart.fill", …), empty for faces.
    Q_INVOKABLE QString symbolName(const QString &rowId, int position) const;
    /// The face the button shows, empty for symbols.
    Q_INVOKABLE QString buttonTitle(int position) const;
    /// "Speed, 3 of 5 stars", with the column's text when labels show.
    Q_INVOKABLE QString accessibleName(int row, int position) const;
    Q_INVOKABLE QColor activeColor() const;
    /// Each column's width where the strip scrolls: naturalColumnWidth, or as wide as its
    /// label needs in `captionFont` when labels show (up to twice that).
    Q_INVOKABLE QList<int> naturalColumnWidths(const QFont &captionFont) const;

    /// The name of the button for `rowId` and `columnId`: "rowId::columnId".
    static QString identifier(const std::string &rowId, const std::string &columnId);
    /// Rates a row through a button's name; hides the validation message.
    Q_INVOKABLE void tap(const QString &identifier);

    /// Sizes the front ends draw with.
    static constexpr int scrollingColumnCount = 6;
    static constexpr int naturalColumnWidth = 48;
    static constexpr qreal symbolPointSize = 28;
    static constexpr qreal emojiSize = 30;
    static constexpr qreal chosenEmojiSize = 36;

Q_SIGNALS:
    void selectedColsChanged();
    /// Row `rowId` was (re)rated: restyle its buttons and bump the one named `identifier`.
    void rowRated(const QString &rowId, const QString &identifier);

protected:
    void submitQuestion(const TovuQuestion &question) override;

private:
    int positionOf(const std::string &columnId) const;
    bool hasRow(const std::string &rowId) const;
    std::size_t distinctRowCount() const;

    TovuRatingVariant m_variant;
    std::map<std::string, std::string> m_selectedCols;
};
