#pragma once

#include <QLayout>
#include <QList>

/// One row of items of exactly equal width: the width less the spacing, split evenly,
/// with the pixels left over handed out one each from the leading end so the row fills
/// its width exactly. Items' own minimum widths are ignored, so eleven score buttons fit
/// a narrow sheet; the row's minimum width is only the spacing plus a point per item.
/// The row is as high as its tallest item (its height for its width where it has one,
/// else its size hint; fixed heights kept) and every item is centred vertically. The
/// row mirrors right to left. Spacing and margins are 0 unless set.
///
/// \code
/// auto *row = new TovuEqualWidthLayout;
/// row->setSpacing(4);
/// for (int score = 0; score <= 10; ++score)
///     row->addWidget(scoreButton(score));
/// auto *column = new QVBoxLayout; // a rating: a symbol above its label
/// column->addWidget(star);
/// column->addWidget(caption);
/// row->addLayout(column);
/// \endcode
class TovuEqualWidthLayout : public QLayout
{
    Q_OBJECT

public:
    explicit TovuEqualWidthLayout(QWidget *parent = nullptr);
    ~TovuEqualWidthLayout() override;

    /// Adds a nested layout as one item of the row; the row takes ownership.
    void addLayout(QLayout *layout);

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    QSize maximumSize() const override;
    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    void setGeometry(const QRect &rect) override;
    void invalidate() override;

private:
    QList<QLayoutItem *> visibleItems() const;
    int gap() const;
    /// The width of each visible item for a row `width` wide, in visual order.
    QList<int> columnWidths(int width) const;
    int rowHeight(const QList<QLayoutItem *> &items, const QList<int> &widths) const;

    QList<QLayoutItem *> m_items;
    mutable int m_cachedWidth = -1;
    mutable int m_cachedHeight = -1;
};
