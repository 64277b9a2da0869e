#include "TovuRatingParts.h"

#include "TovuQuestionParts.h"

#include <tovukit_io/graphics/TovuEmoji.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuCaptionRow.h>
#include <tovukit_io/ui/kit/TovuFitLabel.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuSymbolButton.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>

#include <QLabel>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>

#include <QVBoxLayout>

using Model = TovuRatingQuestionViewModel;
using Parts = TovuQuestionParts;

namespace {

// How column labels look, whether they are labels or painted by the row.
const int columnLabelSpacing = qRound(TovuPageMetrics::columnLabelSpacing);

QFont columnLabelFont()
{
    return Parts::font(TovuPageMetrics::columnLabelFontSize, QFont::Normal);
}

QColor columnLabelColor()
{
    return TovuPlatformColors::color(TovuPlatformColors::Role::gray);
}

} // namespace

TovuSymbolButton *TovuRatingParts::symbolButton(qreal pointSize, int height, QWidget *parent)
{
    auto *button = new TovuSymbolButton(QString(), parent);
    button->setSymbolPointSize(pointSize);
    button->setSymbolWeight(QFont::Medium);
    button->setFixedHeight(height);
    return button;
}

TovuButton *TovuRatingParts::faceButton(const QString &face, int height, QWidget *parent)
{
    auto *button = new TovuButton(face, parent);
    button->setBackgroundColor(Qt::transparent);
    button->setContentInsets(QMargins());
    button->setFixedHeight(height);
    return button;
}

QWidget *TovuRatingParts::labelledColumn(TovuButton *button, const QString &text, QWidget *parent,
                                         QList<QLabel *> &labels)
{
    auto *column = new QWidget(parent);
    // Only as high as button and label: the row centres it.
    column->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    QVBoxLayout *stack = Parts::pageStack(column, columnLabelSpacing);
    button->setParent(column);
    stack->addWidget(button);
    auto *label = new TovuFitLabel(text, column);
    label->setFont(columnLabelFont());
    stack->addWidget(label);
    labels.append(label);
    return column;
}

TovuCaptionRow *TovuRatingParts::captionRow()
{
    auto *row = new TovuCaptionRow;
    row->setCaptionFont(columnLabelFont());
    row->setCaptionSpacing(columnLabelSpacing);
    return row;
}

void TovuRatingParts::styleSymbol(TovuSymbolButton *button, const QString &symbolName, bool filled,
                                  const QColor &active)
{
    button->setSymbolName(symbolName);
    // Unset, the outline follows system gray 3 through light and dark.
    button->setSymbolTint(filled ? active : QColor());
}

void TovuRatingParts::styleFace(TovuButton *button, bool chosen, qreal size, qreal chosenSize)
{
    button->setFont(TovuEmoji::font(chosen ? chosenSize : size));
    button->setOpacity(chosen ? 1.0 : Model::fadedOpacity);
}

void TovuRatingParts::restyleColumnLabels(const QList<QLabel *> &labels)
{
    for (QLabel *label : labels)
        TovuLabels::setColor(label, columnLabelColor());
}

void TovuRatingParts::restyleColumnLabels(const QList<TovuCaptionRow *> &rows)
{
    for (TovuCaptionRow *row : rows)
        row->setCaptionColor(columnLabelColor());
}
