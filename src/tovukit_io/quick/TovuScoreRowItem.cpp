#include <tovukit_io/quick/TovuScoreRowItem.h>

#include <tovukit_io/graphics/TovuPainting.h>
#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QPainter>

TovuScoreRowItem::TovuScoreRowItem(QQuickItem *parent)
    : TovuCellRowItem(parent)
{
    setSharedCount(scoreCount);
}

TovuScoreRowItem::~TovuScoreRowItem() = default;

void TovuScoreRowItem::setModel(QObject *model)
{
    if (m_model == model)
        return;
    disconnect(m_chosen);
    m_model = model;
    m_single = qobject_cast<TovuNPSQuestionViewModel *>(model);
    m_rows = qobject_cast<TovuMultiNPSQuestionViewModel *>(model);
    if (m_single) {
        m_chosen
            = connect(m_single, &TovuNPSQuestionViewModel::selectedScoreChanged, this, &TovuScoreRowItem::cellsChanged);
    } else if (m_rows) {
        m_chosen = connect(m_rows, &TovuMultiNPSQuestionViewModel::selectedScoresChanged, this,
                           [this](const QString &rowId) {
                               if (rowId == m_rowId)
                                   cellsChanged();
                           });
    }
    update();
    Q_EMIT modelChanged();
}

void TovuScoreRowItem::setRowId(const QString &rowId)
{
    if (m_rowId == rowId)
        return;
    m_rowId = rowId;
    update();
    Q_EMIT modelChanged();
}

void TovuScoreRowItem::setCornerRadius(qreal radius)
{
    changeLook(m_radius, radius);
}

void TovuScoreRowItem::setFontSize(qreal size)
{
    changeLook(m_fontSize, size);
}

void TovuScoreRowItem::setTitleColor(const QColor &color)
{
    changeLook(m_titleColor, color);
}

void TovuScoreRowItem::setDescription(const QString &description)
{
    changeLook(m_description, description);
}

QString TovuScoreRowItem::cellName(int index) const
{
    return tr("Score %1").arg(index);
}

QString TovuScoreRowItem::cellDescription(int) const
{
    return m_description;
}

bool TovuScoreRowItem::isCellChecked(int index) const
{
    return chosenScore() == index;
}

int TovuScoreRowItem::chosenScore() const
{
    if (m_single)
        return m_single->selectedScoreOrNone();
    return m_rows ? m_rows->scoreOf(m_rowId) : -1;
}

void TovuScoreRowItem::cellTapped(int index)
{
    if (m_single)
        m_single->selectScore(index);
    else if (m_rows)
        m_rows->selectScore(m_rowId, index);
    if (chosenScore() == index)
        bounce(index, TovuPageMetrics::scoreTapScale, TovuPageMetrics::scoreTapSeconds);
}

void TovuScoreRowItem::paintCell(QPainter &painter, int index, const QRectF &rect)
{
    TovuNPSBands::Look look;
    if (m_single)
        look = m_single->scoreLook(index);
    else if (m_rows)
        look = m_rows->scoreLook(m_rowId.toStdString(), index);
    TovuPainting::paintBox(painter, rect, look.background, look.border, look.borderWidth, m_radius);
    painter.setPen(look.title.isValid() ? look.title : m_titleColor);
    painter.setFont(TovuThemeEngine::shared().font(m_fontSize * rect.height() / cellHeight(), QFont::DemiBold));
    painter.drawText(rect, Qt::AlignCenter, QString::number(index));
}
