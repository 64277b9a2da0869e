#pragma once

#include <tovukit_io/quick/TovuCellRowItem.h>

#include <QColor>
#include <QPointer>

class TovuMultiNPSQuestionViewModel;
class TovuNPSQuestionViewModel;

/// A 0 to 10 scale, `TovuScoreRow` in QML: eleven boxed numbers sharing the row's width,
/// each in the band look its model gives it (a TovuNPSQuestionViewModel, or a
/// TovuMultiNPSQuestionViewModel and the `rowId` of one of its rows). A tap chooses the
/// score and bumps its box; a screen reader hears each as a button "Score 7", described
/// by `description` (a multi-NPS row's text).
///
/// \code
/// TovuScoreRow {
///     model: page.model
///     cellHeight: 40; cornerRadius: 8; fontSize: 13; titleColor: TovuStyle.label
///     Accessible.role: Accessible.Row
/// }
/// \endcode
class TovuScoreRowItem : public TovuCellRowItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TovuScoreRow)
    Q_PROPERTY(QObject *model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(QString rowId READ rowId WRITE setRowId NOTIFY modelChanged)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY lookChanged)
    Q_PROPERTY(qreal fontSize READ fontSize WRITE setFontSize NOTIFY lookChanged)
    /// The numbers' colour where the look gives none.
    Q_PROPERTY(QColor titleColor READ titleColor WRITE setTitleColor NOTIFY lookChanged)
    Q_PROPERTY(QString description READ description WRITE setDescription NOTIFY lookChanged)

public:
    static constexpr int scoreCount = 11;

    explicit TovuScoreRowItem(QQuickItem *parent = nullptr);
    ~TovuScoreRowItem() override;

    QObject *model() const { return m_model; }
    void setModel(QObject *model);
    QString rowId() const { return m_rowId; }
    void setRowId(const QString &rowId);
    qreal cornerRadius() const { return m_radius; }
    void setCornerRadius(qreal radius);
    qreal fontSize() const { return m_fontSize; }
    void setFontSize(qreal size);
    QColor titleColor() const { return m_titleColor; }
    void setTitleColor(const QColor &color);
    QString description() const { return m_description; }
    void setDescription(const QString &description);

    QAccessible::Role cellRole() const override { return QAccessible::Button; }
    QString cellName(int index) const override;
    QString cellDescription(int index) const override;
    /// The chosen score, which a screen reader hears as selected.
    bool isCellChecked(int index) const override;

Q_SIGNALS:
    void modelChanged();

protected:
    void paintCell(QPainter &painter, int index, const QRectF &rect) override;
    void cellTapped(int index) override;
    bool isCellFilled(int) const override { return true; }

private:
    int chosenScore() const;

    QPointer<QObject> m_model;
    TovuNPSQuestionViewModel *m_single = nullptr;
    TovuMultiNPSQuestionViewModel *m_rows = nullptr;
    QMetaObject::Connection m_chosen;
    QString m_rowId;
    qreal m_radius = 8;
    qreal m_fontSize = 13;
    QColor m_titleColor = Qt::black;
    QString m_description;
};
