#pragma once

#include <tovukit_io/quick/TovuCellRowItem.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>

#include <QColor>
#include <QFont>
#include <QPointer>

class TovuTextFit;

/// One row of a multi-rating grid, `TovuRatingRow` in QML: its cells drawn as its model
/// says (symbols filling up to the choice, or faces), with the column labels under them
/// when the model shows them. A tap rates the row and bumps the cell; each cell is a
/// checkable accessible child named as the Widgets grid names its buttons.
///
/// \code
/// TovuRatingRow {
///     model: page.model; row: 0; rowId: "speed"
///     columnWidths: [48, 48, 48]; spacing: 8; cellHeight: 36
///     captionFont: TovuStyle.font(10, Font.Normal); captionColor: TovuStyle.gray
///     outlineColor: TovuStyle.gray3
///     Accessible.role: Accessible.Row
/// }
/// \endcode
class TovuRatingRowItem : public TovuCellRowItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TovuRatingRow)
    Q_PROPERTY(TovuMultiRatingQuestionViewModel *model READ model WRITE setModel NOTIFY modelChanged)
    /// The row's position among the question's options, and its id.
    Q_PROPERTY(int row READ row WRITE setRow NOTIFY modelChanged)
    Q_PROPERTY(QString rowId READ rowId WRITE setRowId NOTIFY modelChanged)
    /// Unfilled symbols, which follow the platform's grey through light and dark.
    Q_PROPERTY(QColor outlineColor READ outlineColor WRITE setOutlineColor NOTIFY lookChanged)
    Q_PROPERTY(QFont captionFont READ captionFont WRITE setCaptionFont NOTIFY lookChanged)
    Q_PROPERTY(QColor captionColor READ captionColor WRITE setCaptionColor NOTIFY lookChanged)
    /// Between a cell and its label.
    Q_PROPERTY(qreal captionSpacing READ captionSpacing WRITE setCaptionSpacing NOTIFY lookChanged)

public:
    explicit TovuRatingRowItem(QQuickItem *parent = nullptr);
    ~TovuRatingRowItem() override;

    TovuMultiRatingQuestionViewModel *model() const { return m_model; }
    void setModel(TovuMultiRatingQuestionViewModel *model);
    int row() const { return m_row; }
    void setRow(int row);
    QString rowId() const { return m_rowId; }
    void setRowId(const QString &rowId);
    QColor outlineColor() const { return m_outline; }
    void setOutlineColor(const QColor &color);
    QFont captionFont() const { return m_captionFont; }
    void setCaptionFont(const QFont &font);
    QColor captionColor() const { return m_captionColor; }
    void setCaptionColor(const QColor &color);
    qreal captionSpacing() const { return m_captionSpacing; }
    void setCaptionSpacing(qreal spacing);

    QAccessible::Role cellRole() const override { return QAccessible::CheckBox; }
    QString cellName(int index) const override;
    bool isCellCheckable() const override { return true; }
    bool isCellChecked(int index) const override;

Q_SIGNALS:
    void modelChanged();

protected:
    void paintCell(QPainter &painter, int index, const QRectF &rect) override;
    void paintRow(QPainter &painter) override;
    void cellTapped(int index) override;

private:
    QPointer<TovuMultiRatingQuestionViewModel> m_model;
    QMetaObject::Connection m_rated;
    int m_row = 0;
    QString m_rowId;
    QColor m_outline = Qt::gray;
    QFont m_captionFont;
    QColor m_captionColor = Qt::gray;
    qreal m_captionSpacing = 2;
    // Kept until a label, the font or a width changes: measuring is the dear part.
    QList<TovuTextFit> m_fits;
};
