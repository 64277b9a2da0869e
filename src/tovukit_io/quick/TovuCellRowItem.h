#pragma once

#include <QList>

#include <QQuickPaintedItem>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>
#include <optional>

#include <QAccessible>

/// A row of tappable cells (a rating row, a 0 to 10 scale) drawn by one painted item:
/// the cells are no items of their own, so a grid of ten rows costs ten items, not ten
/// small trees of box, text and mouse area per cell. The row lays the cells out from
/// `columnWidths`, or shares its own width among `sharedCount` cells in whole points (the
/// first ones a point wider where it does not divide), `spacing` apart (from the right when
/// `mirrored`), in the band from
/// `cellTop`, `cellHeight` high. Cells wider together than the row scroll sideways (by a
/// drag, which taps nothing, a sideways wheel, or the keyboard reaching a hidden cell), the
/// first column shown first. It turns a press and release on one cell into tapped(), takes
/// Left and Right between cells and Space or Enter as a tap when it has focus, and grows a
/// cell for a moment with bounce().
///
/// A screen reader sees each cell as an accessible child of the row (role, name,
/// description, checked state, press and toggle actions), given by a subclass; mark the
/// row itself accessible in QML (`Accessible.role: Accessible.Row`) so the tree reaches it.
class TovuCellRowItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QVariantList columnWidths READ columnWidths WRITE setColumnWidths NOTIFY layoutChanged)
    /// When above 0, the cells share the row's width and columnWidths is not used.
    Q_PROPERTY(int sharedCount READ sharedCount WRITE setSharedCount NOTIFY layoutChanged)
    Q_PROPERTY(qreal spacing READ spacing WRITE setSpacing NOTIFY layoutChanged)
    Q_PROPERTY(qreal cellTop READ cellTop WRITE setCellTop NOTIFY layoutChanged)
    Q_PROPERTY(qreal cellHeight READ cellHeight WRITE setCellHeight NOTIFY layoutChanged)
    Q_PROPERTY(bool mirrored READ mirrored WRITE setMirrored NOTIFY layoutChanged)
    /// How far the cells are scrolled from the first column's end.
    Q_PROPERTY(qreal scrollOffset READ scrollOffset WRITE setScrollOffset NOTIFY scrollOffsetChanged)
    /// The cell the keyboard is on; -1 before the row first had focus.
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY currentIndexChanged)

public:
    explicit TovuCellRowItem(QQuickItem *parent = nullptr);
    ~TovuCellRowItem() override;

    QVariantList columnWidths() const;
    void setColumnWidths(const QVariantList &widths);
    int sharedCount() const { return m_sharedCount; }
    void setSharedCount(int count);
    qreal spacing() const { return m_spacing; }
    void setSpacing(qreal spacing);
    qreal cellTop() const { return m_cellTop; }
    void setCellTop(qreal top);
    qreal cellHeight() const { return m_cellHeight; }
    void setCellHeight(qreal height);
    bool mirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);
    int currentIndex() const { return m_current; }
    qreal scrollOffset() const { return m_scroll; }
    void setScrollOffset(qreal offset);
    /// The farthest the cells scroll: 0 when they fit.
    qreal maximumScrollOffset() const;

    int cellCount() const { return static_cast<int>(m_widths.size()); }
    /// Where cell `index` is, in the row's coordinates.
    QRectF cellRect(int index) const;
    /// The cell at `point`, or -1.
    int cellAt(const QPointF &point) const;

    /// Grows cell `index` to `scale` and back over `seconds` each way, scaled by TovuMotion.
    Q_INVOKABLE void bounce(int index, qreal scale, qreal seconds);
    /// What a tap on cell `index` does: tapped(), and whatever the subclass does.
    Q_INVOKABLE void tap(int index);

    // What a screen reader hears of a cell.
    virtual QAccessible::Role cellRole() const = 0;
    virtual QString cellName(int index) const = 0;
    virtual QString cellDescription(int index) const;
    virtual bool isCellCheckable() const;
    virtual bool isCellChecked(int index) const;

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void layoutChanged();
    /// A subclass's look changed (colours, fonts, texts).
    void lookChanged();
    void currentIndexChanged();
    void scrollOffsetChanged();
    void tapped(int index);

protected:
    /// Draws cell `index` into `rect` (already grown while it bounces).
    virtual void paintCell(QPainter &painter, int index, const QRectF &rect) = 0;
    /// Draws what belongs to the row rather than a cell (column labels, say), after the cells.
    virtual void paintRow(QPainter &painter);
    /// A cell was tapped: act on it.
    virtual void cellTapped(int index);
    /// Whether cell `index` is filled with a colour of its own: its focus ring then takes the
    /// background's colour rather than the theme's.
    virtual bool isCellFilled(int index) const;
    /// The cells' look or state changed: repaint and tell a screen reader.
    void cellsChanged();
    /// Sets a look property of a subclass: repaints and emits lookChanged() when it differs.
    template<typename T>
    void changeLook(T &member, const T &value)
    {
        if (member == value)
            return;
        member = value;
        update();
        Q_EMIT lookChanged();
    }

    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void setCurrentIndex(int index);
    void paintFocusRing(QPainter &painter);
    void scrollToShow(int index);
    void setWidths(QList<qreal> widths);
    void relayout();

    QList<qreal> m_requestedWidths;
    QList<qreal> m_widths;
    int m_sharedCount = 0;
    QList<qreal> m_offsets; // each cell's left edge from the row's leading edge
    QList<qreal> m_scales;
    qreal m_spacing = 0;
    qreal m_cellTop = 0;
    qreal m_cellHeight = 0;
    bool m_mirrored = false;
    int m_pressed = -1;
    qreal m_scroll = 0;
    // A press that may become a drag: where it began, and the offset then.
    std::optional<QPointF> m_pressPoint;
    qreal m_pressScroll = 0;
    bool m_dragging = false;
    int m_current = -1;
};
