#include <tovukit_io/ui/kit/TovuEqualWidthLayout.h>

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {

// An item's height in a column `width` wide, within its own limits.
int itemHeight(const QLayoutItem *item, int width)
{
    const int preferred = item->hasHeightForWidth() ? item->heightForWidth(width) : item->sizeHint().height();
    return std::clamp(preferred, item->minimumSize().height(),
                      std::max(item->minimumSize().height(), item->maximumSize().height()));
}

} // namespace

TovuEqualWidthLayout::TovuEqualWidthLayout(QWidget *parent)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(0);
}

TovuEqualWidthLayout::~TovuEqualWidthLayout()
{
    while (QLayoutItem *item = takeAt(0))
        delete item;
}

void TovuEqualWidthLayout::addLayout(QLayout *layout)
{
    if (!layout)
        return;
    addChildLayout(layout);
    addItem(layout);
}

void TovuEqualWidthLayout::addItem(QLayoutItem *item)
{
    if (!item)
        return;
    m_items.append(item);
    invalidate();
}

int TovuEqualWidthLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem *TovuEqualWidthLayout::itemAt(int index) const
{
    return index >= 0 && index < m_items.size() ? m_items.at(index) : nullptr;
}

QLayoutItem *TovuEqualWidthLayout::takeAt(int index)
{
    if (index < 0 || index >= m_items.size())
        return nullptr;
    QLayoutItem *item = m_items.takeAt(index);
    invalidate();
    return item;
}

QList<QLayoutItem *> TovuEqualWidthLayout::visibleItems() const
{
    QList<QLayoutItem *> items;
    for (QLayoutItem *item : m_items) {
        if (!item->isEmpty())
            items.append(item);
    }
    return items;
}

int TovuEqualWidthLayout::gap() const
{
    return std::max(0, spacing());
}

QList<int> TovuEqualWidthLayout::columnWidths(int width) const
{
    const auto n = static_cast<int>(visibleItems().size());
    QList<int> widths;
    if (n == 0)
        return widths;
    const int available = std::max(0, width - gap() * (n - 1));
    const int base = available / n;
    const int leftover = available % n;
    widths.reserve(n);
    for (int i = 0; i < n; ++i)
        widths.append(base + (i < leftover ? 1 : 0));
    return widths;
}

int TovuEqualWidthLayout::rowHeight(const QList<QLayoutItem *> &items, const QList<int> &widths) const
{
    int height = 0;
    for (qsizetype i = 0; i < items.size(); ++i)
        height = std::max(height, itemHeight(items.at(i), widths.at(i)));
    return height;
}

QSize TovuEqualWidthLayout::sizeHint() const
{
    const QList<QLayoutItem *> items = visibleItems();
    int width = 0;
    int widest = 0;
    for (const QLayoutItem *item : items)
        widest = std::max(widest, item->sizeHint().width());
    // Equal columns: each as wide as the widest wants.
    width = widest * static_cast<int>(items.size()) + gap() * std::max(0, static_cast<int>(items.size()) - 1);
    const QMargins margins = contentsMargins();
    return QSize(width, rowHeight(items, columnWidths(width)))
        + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize TovuEqualWidthLayout::minimumSize() const
{
    const QList<QLayoutItem *> items = visibleItems();
    const auto n = static_cast<int>(items.size());
    int height = 0;
    for (const QLayoutItem *item : items)
        height = std::max(height, item->minimumSize().height());
    const QMargins margins = contentsMargins();
    return QSize(n + gap() * std::max(0, n - 1) + margins.left() + margins.right(),
                 height + margins.top() + margins.bottom());
}

QSize TovuEqualWidthLayout::maximumSize() const
{
    return QSize(QLAYOUTSIZE_MAX, QLAYOUTSIZE_MAX);
}

Qt::Orientations TovuEqualWidthLayout::expandingDirections() const
{
    return Qt::Horizontal;
}

bool TovuEqualWidthLayout::hasHeightForWidth() const
{
    const QList<QLayoutItem *> items = visibleItems();
    return std::any_of(items.begin(), items.end(), [](const QLayoutItem *item) { return item->hasHeightForWidth(); });
}

int TovuEqualWidthLayout::heightForWidth(int width) const
{
    if (width != m_cachedWidth) {
        const QMargins margins = contentsMargins();
        const int inner = width - margins.left() - margins.right();
        m_cachedHeight = rowHeight(visibleItems(), columnWidths(inner)) + margins.top() + margins.bottom();
        m_cachedWidth = width;
    }
    return m_cachedHeight;
}

void TovuEqualWidthLayout::invalidate()
{
    m_cachedWidth = -1;
    QLayout::invalidate();
}

void TovuEqualWidthLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const QRect area = rect.marginsRemoved(contentsMargins());
    const QList<QLayoutItem *> items = visibleItems();
    const QList<int> widths = columnWidths(area.width());
    const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int x = area.left();
    for (qsizetype i = 0; i < items.size(); ++i) {
        QLayoutItem *item = items.at(i);
        const int width = widths.at(i);
        const int height = std::min(area.height(), itemHeight(item, width));
        const QRect cell(x, area.top() + (area.height() - height) / 2, width, height);
        item->setGeometry(QStyle::visualRect(direction, area, cell));
        x += width + gap();
    }
}
