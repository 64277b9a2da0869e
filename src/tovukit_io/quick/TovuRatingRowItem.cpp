#include <tovukit_io/quick/TovuRatingRowItem.h>

#include <tovukit_io/graphics/TovuEmoji.h>
#include <tovukit_io/graphics/TovuSymbol.h>
#include <tovukit_io/graphics/TovuTextFit.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

using Model = TovuMultiRatingQuestionViewModel;

TovuRatingRowItem::TovuRatingRowItem(QQuickItem *parent)
    : TovuCellRowItem(parent)
{
    // Labels are fitted again for new widths, fonts and texts.
    const auto refit = [this] {
        m_fits.clear();
    };
    connect(this, &TovuCellRowItem::layoutChanged, this, refit);
    connect(this, &TovuCellRowItem::lookChanged, this, refit);
}

TovuRatingRowItem::~TovuRatingRowItem() = default;

void TovuRatingRowItem::setModel(TovuMultiRatingQuestionViewModel *model)
{
    if (m_model == model)
        return;
    disconnect(m_rated);
    m_model = model;
    if (model) {
        m_rated = connect(model, &Model::rowRated, this, [this](const QString &rowId) {
            if (rowId == m_rowId)
                cellsChanged();
        });
    }
    m_fits.clear();
    update();
    Q_EMIT modelChanged();
}

void TovuRatingRowItem::setRow(int row)
{
    if (m_row == row)
        return;
    m_row = row;
    Q_EMIT modelChanged();
}

void TovuRatingRowItem::setRowId(const QString &rowId)
{
    if (m_rowId == rowId)
        return;
    m_rowId = rowId;
    update();
    Q_EMIT modelChanged();
}

void TovuRatingRowItem::setOutlineColor(const QColor &color)
{
    changeLook(m_outline, color);
}

void TovuRatingRowItem::setCaptionFont(const QFont &font)
{
    changeLook(m_captionFont, font);
}

void TovuRatingRowItem::setCaptionColor(const QColor &color)
{
    changeLook(m_captionColor, color);
}

void TovuRatingRowItem::setCaptionSpacing(qreal spacing)
{
    changeLook(m_captionSpacing, spacing);
}

QString TovuRatingRowItem::cellName(int index) const
{
    return m_model ? m_model->accessibleName(m_row, index + 1) : QString();
}

bool TovuRatingRowItem::isCellChecked(int index) const
{
    return m_model && m_model->selectedPosition(m_rowId) == index + 1;
}

void TovuRatingRowItem::cellTapped(int index)
{
    if (!m_model || index >= m_model->columnCount())
        return;
    const std::string &columnId = m_model->columns()[static_cast<std::size_t>(index)].id;
    m_model->tap(Model::identifier(m_rowId.toStdString(), columnId));
    if (m_model->selectedPosition(m_rowId) == index + 1)
        bounce(index, TovuPageMetrics::ratingTapScale, TovuPageMetrics::ratingTapSeconds);
}

void TovuRatingRowItem::paintCell(QPainter &painter, int index, const QRectF &rect)
{
    if (!m_model)
        return;
    const int position = index + 1;
    const bool filled = m_model->isFilled(m_rowId, position);
    if (m_model->variant() == TovuRatingVariant::emoji) {
        painter.save();
        painter.setOpacity(filled ? 1 : TovuPageMetrics::ratingFadedOpacity);
        const qreal size = filled ? Model::chosenEmojiSize : Model::emojiSize;
        TovuEmoji::drawText(painter, rect, Qt::AlignCenter, m_model->buttonTitle(position), TovuEmoji::font(size),
                            Qt::black);
        painter.restore();
        return;
    }
    const qreal side = Model::symbolPointSize * rect.height() / cellHeight();
    const QRectF frame(rect.center() - QPointF(side, side) / 2, QSizeF(side, side));
    TovuSymbol::paint(painter, frame, m_model->symbolName(m_rowId, position), QFont::Medium,
                      filled ? m_model->activeColor() : m_outline);
}

void TovuRatingRowItem::paintRow(QPainter &painter)
{
    if (!m_model || !m_model->showsColumnLabels())
        return;
    const QStringList texts = m_model->columnTexts();
    const qreal lineHeight = QFontMetricsF(m_captionFont).height();
    if (m_fits.size() != texts.size()) {
        m_fits.clear();
        for (int index = 0; index < texts.size(); ++index)
            m_fits.append(TovuTextFit(texts[index], m_captionFont, std::floor(cellRect(index).width()),
                                      TovuPageMetrics::columnLabelMinimumScale, *painter.device()));
    }
    painter.setPen(m_captionColor);
    for (int index = 0; index < texts.size() && index < cellCount(); ++index) {
        const QRectF above = cellRect(index);
        if (above.right() < 0 || above.left() > width())
            continue;
        const QRectF area(above.left(), above.bottom() + m_captionSpacing, above.width(), lineHeight);
        painter.setFont(m_fits[index].font());
        painter.drawText(area, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine,
                         m_fits[index].shownText(static_cast<int>(std::floor(area.width()))));
    }
}
