#include "TovuQuestionParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QLabel>
#include <QVBoxLayout>

namespace {

using Metrics = TovuPageMetrics;

QColor platform(TovuPlatformColors::Role role)
{
    return TovuPlatformColors::color(role);
}

} // namespace

QVBoxLayout *TovuQuestionParts::pageStack(QWidget *page, int spacing)
{
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

QVBoxLayout *TovuQuestionParts::stack(int spacing)
{
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

QFont TovuQuestionParts::font(qreal size, QFont::Weight weight)
{
    return TovuThemeEngine::shared().font(size, weight);
}

QColor TovuQuestionParts::withAlpha(QColor color, qreal alpha)
{
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

QColor TovuQuestionParts::chosenFill(const QColor &accent)
{
    return withAlpha(accent, Metrics::chosenFillAlpha);
}

QMargins TovuQuestionParts::insets(qreal leading, qreal vertical, qreal trailing)
{
    return QMargins(qRound(leading), qRound(vertical), qRound(trailing), qRound(vertical));
}

QLabel *TovuQuestionParts::titleLabel(const QString &text, QWidget *parent)
{
    QLabel *label = TovuLabels::plain(text, font(Metrics::titleFontSize, QFont::Bold), QColor(), parent);
    restyleTitle(label);
    return label;
}

QLabel *TovuQuestionParts::hintLabel(const QString &text, QWidget *parent)
{
    QLabel *label = TovuLabels::plain(text, font(Metrics::hintFontSize, QFont::Normal), QColor(), parent);
    restyleHint(label);
    return label;
}

QLabel *TovuQuestionParts::validationLabel(const QString &text, QWidget *parent)
{
    QLabel *label = TovuLabels::plain(text, font(Metrics::validationFontSize, QFont::Normal), QColor(), parent);
    restyleValidation(label);
    label->hide();
    return label;
}

TovuButton *TovuQuestionParts::actionButton(const QString &title, QWidget *parent)
{
    auto *button = new TovuButton(title, parent);
    button->setFont(font(Metrics::actionFontSize, QFont::DemiBold));
    button->setTitleColor(Qt::white);
    button->setCornerRadius(Metrics::actionCornerRadius);
    button->setFixedHeight(qRound(Metrics::actionHeight));
    return button;
}

TovuButton *TovuQuestionParts::optionRow(const QString &text, TovuButton::Accessory accessory, QWidget *parent)
{
    auto *row = new TovuButton(text, parent);
    row->setFont(font(Metrics::optionRowFontSize, QFont::Medium));
    row->setAccessory(accessory);
    row->setCheckable(true);
    row->setTitleAlignment(Qt::AlignLeading);
    row->setContentInsets(
        insets(Metrics::optionRowInsetLeading, Metrics::optionRowInsetVertical, Metrics::optionRowInsetTrailing));
    row->setCornerRadius(Metrics::optionRowCornerRadius);
    row->setBorderWidth(Metrics::optionRowBorderWidth);
    row->setFixedHeight(qRound(Metrics::optionRowHeight));
    return row;
}

QVBoxLayout *TovuQuestionParts::optionRows(const QStringList &texts, TovuButton::Accessory accessory, QWidget *page,
                                           QList<TovuButton *> &rows, const std::function<void(TovuButton *)> &tapped)
{
    QVBoxLayout *layout = stack(qRound(Metrics::optionSpacing));
    for (int index = 0; index < texts.size(); ++index) {
        TovuButton *row = optionRow(texts[index], accessory, page);
        row->setTag(index);
        QObject::connect(row, &TovuButton::clicked, page, [row, tapped] { tapped(row); });
        layout->addWidget(row);
        rows.append(row);
    }
    return layout;
}

void TovuQuestionParts::restyleTitle(QLabel *title)
{
    TovuLabels::setColor(title, TovuThemeEngine::shared().textColor());
}

void TovuQuestionParts::restyleHint(QLabel *hint)
{
    TovuLabels::setColor(hint, platform(TovuPlatformColors::Role::gray));
}

void TovuQuestionParts::restyleValidation(QLabel *validation)
{
    TovuLabels::setColor(validation, platform(TovuPlatformColors::Role::red));
}

void TovuQuestionParts::restyleAction(TovuButton *action, const QColor &accent)
{
    action->setBackgroundColor(accent);
}

void TovuQuestionParts::restyleOptionRow(TovuButton *row, bool chosen, const QColor &accent)
{
    // Unset colours follow the platform: system background, gray 4 and the label colour.
    row->setBackgroundColor(chosen ? chosenFill(accent) : QColor());
    row->setBorderColor(chosen ? accent : QColor());
    row->setTitleColor(chosen ? accent : QColor());
    row->setAccessoryColor(accent);
    row->setChecked(chosen);
}
