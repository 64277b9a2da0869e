#include "TovuQuestionParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QLabel>
#include <QVBoxLayout>

namespace {

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

QLabel *TovuQuestionParts::titleLabel(const QString &text, QWidget *parent)
{
    QLabel *label = TovuLabels::plain(text, font(18, QFont::Bold), QColor(), parent);
    restyleTitle(label);
    return label;
}

QLabel *TovuQuestionParts::hintLabel(const QString &text, QWidget *parent)
{
    QLabel *label = TovuLabels::plain(text, font(12, QFont::Normal), QColor(), parent);
    restyleHint(label);
    return label;
}

QLabel *TovuQuestionParts::validationLabel(const QString &text, QWidget *parent)
{
    QLabel *label = TovuLabels::plain(text, font(13, QFont::Normal), QColor(), parent);
    restyleValidation(label);
    label->hide();
    return label;
}

TovuButton *TovuQuestionParts::actionButton(const QString &title, QWidget *parent)
{
    auto *button = new TovuButton(title, parent);
    button->setFont(font(16, QFont::DemiBold));
    button->setTitleColor(Qt::white);
    button->setCornerRadius(12);
    button->setFixedHeight(50);
    return button;
}

TovuButton *TovuQuestionParts::optionRow(const QString &text, TovuButton::Accessory accessory, QWidget *parent)
{
    auto *row = new TovuButton(text, parent);
    row->setFont(font(15, QFont::Medium));
    row->setAccessory(accessory);
    row->setCheckable(true);
    row->setTitleAlignment(Qt::AlignLeading);
    row->setContentInsets(QMargins(48, 14, 16, 14));
    row->setCornerRadius(12);
    row->setBorderWidth(1.5);
    row->setFixedHeight(52);
    return row;
}

QVBoxLayout *TovuQuestionParts::optionRows(const QStringList &texts, TovuButton::Accessory accessory, QWidget *page,
                                           QList<TovuButton *> &rows, const std::function<void(TovuButton *)> &tapped)
{
    QVBoxLayout *layout = stack(10);
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
    row->setBackgroundColor(chosen ? withAlpha(accent, 0.08) : QColor());
    row->setBorderColor(chosen ? accent : QColor());
    row->setTitleColor(chosen ? accent : QColor());
    row->setAccessoryColor(accent);
    row->setChecked(chosen);
}
