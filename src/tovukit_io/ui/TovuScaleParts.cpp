#include "TovuScaleParts.h"

#include "TovuQuestionParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuEqualWidthLayout.h>
#include <tovukit_io/ui/kit/TovuLabels.h>

#include <QHBoxLayout>
#include <QLabel>

using Parts = TovuQuestionParts;

TovuEqualWidthLayout *TovuScaleParts::buildScale(QWidget *page, const ScaleMetrics &metrics,
                                                 QList<TovuButton *> &buttons,
                                                 const std::function<void(TovuButton *)> &tapped)
{
    auto *row = new TovuEqualWidthLayout;
    row->setSpacing(qRound(TovuPageMetrics::scoreSpacing));
    for (int score = TovuNPSBands::minScore; score <= TovuNPSBands::maxScore; ++score) {
        auto *button = new TovuButton(QString::number(score), page);
        button->setFont(Parts::font(metrics.fontSize, QFont::DemiBold));
        // Eleven buttons share a phone's width: the number needs all of it.
        button->setContentInsets(QMargins());
        button->setCornerRadius(metrics.cornerRadius);
        button->setFixedHeight(metrics.height);
        button->setTag(score);
        button->setAccessibleName(tr("Score %1").arg(score));
        QObject::connect(button, &TovuButton::clicked, page, [button, tapped] { tapped(button); });
        row->addWidget(button);
        buttons.append(button);
    }
    return row;
}

void TovuScaleParts::restyleScale(const QList<TovuButton *> &buttons,
                                  const std::function<TovuNPSBands::Look(int)> &lookOf)
{
    for (TovuButton *button : buttons) {
        const TovuNPSBands::Look look = lookOf(button->tag());
        button->setBackgroundColor(look.background);
        button->setTitleColor(look.title);
        button->setBorderColor(look.border);
        button->setBorderWidth(look.borderWidth);
    }
}

QHBoxLayout *TovuScaleParts::buildEndLabels(QWidget *page, const QString &low, const QString &high, const QFont &font,
                                            QLabel *&lowLabel, QLabel *&highLabel)
{
    using Band = TovuNPSBands::Band;
    // Fixed red and green, whatever the band overrides say.
    lowLabel = TovuLabels::plain(low, font, TovuNPSBands::defaultColor(Band::detractor), page);
    highLabel = TovuLabels::plain(high, font, TovuNPSBands::defaultColor(Band::promoter), page);
    highLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *stack = new QHBoxLayout;
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(qRound(TovuPageMetrics::endLabelSpacing));
    stack->addWidget(lowLabel, 1);
    stack->addWidget(highLabel, 1);
    return stack;
}

QLabel *TovuScaleParts::buildSubtitle(const QString &text, QWidget *page)
{
    QLabel *label = Parts::hintLabel(text, page);
    label->setHidden(text.isEmpty());
    return label;
}
