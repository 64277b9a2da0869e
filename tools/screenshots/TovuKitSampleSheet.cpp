#include "TovuKitSampleSheet.h"

#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/ui/kit/TovuSymbol.h>

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

#include <utility>

namespace {

using Role = TovuPlatformColors::Role;

QColor platform(Role role)
{
    return TovuPlatformColors::color(role);
}

QFont font(int pixels, QFont::Weight weight)
{
    QFont result = QApplication::font();
    result.setPixelSize(pixels);
    result.setWeight(weight);
    return result;
}

TovuBox *sampleBox(QWidget *parent, qreal radius, qreal border, bool shadow)
{
    auto *box = new TovuBox(parent);
    box->setFixedSize(110, 70);
    box->setBackgroundColor(shadow ? platform(Role::systemBackground) : platform(Role::gray6));
    box->setCornerRadius(radius);
    box->setBorderWidth(border);
    box->setHasShadow(shadow);
    if (shadow)
        box->setShadowColor(QColor(0, 0, 0, 60));
    return box;
}

TovuButton *option(const QString &title, TovuButton::Accessory accessory, bool checked, QWidget *parent)
{
    auto *button = new TovuButton(title, parent);
    button->setFont(font(15, QFont::Medium));
    button->setAccessory(accessory);
    button->setCheckable(true);
    button->setChecked(checked);
    button->setTitleAlignment(Qt::AlignLeading);
    button->setContentInsets(QMargins(48, 14, 16, 14));
    button->setCornerRadius(12);
    button->setBorderWidth(1.5);
    const QColor primary = platform(Role::blue);
    button->setAccessoryColor(primary);
    if (checked) {
        QColor tint = primary;
        tint.setAlphaF(0.08f);
        button->setBackgroundColor(tint);
        button->setBorderColor(primary);
        button->setTitleColor(primary);
    }
    return button;
}

} // namespace

QWidget *TovuKitSampleSheet::build()
{
    auto *sheet = new TovuBox;
    sheet->setBackgroundColor(platform(Role::systemBackground));
    auto *column = new QVBoxLayout(sheet);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(14);
    auto heading = [&](const QString &text) {
        column->addWidget(TovuLabels::plain(text, font(17, QFont::Bold), platform(Role::label), sheet));
    };

    heading(QStringLiteral("Boxes: radius 12, border 1.5, shadow, clipped child, border 3"));
    auto *boxes = new QHBoxLayout;
    boxes->setSpacing(18);
    boxes->addWidget(sampleBox(sheet, 12, 0, false));
    boxes->addWidget(sampleBox(sheet, 12, 1.5, false));
    boxes->addWidget(sampleBox(sheet, 12, 1.5, true));
    TovuBox *clipped = sampleBox(sheet, 20, 0, false);
    clipped->setClipsToBounds(true);
    auto *band = new QWidget(clipped);
    band->setGeometry(0, 0, 110, 28);
    band->setAutoFillBackground(true);
    QPalette bandPalette = band->palette();
    bandPalette.setColor(QPalette::Window, platform(Role::orange));
    band->setPalette(bandPalette);
    boxes->addWidget(clipped);
    TovuBox *pill = sampleBox(sheet, 35, 3, false);
    pill->setBorderColor(platform(Role::blue));
    boxes->addWidget(pill);
    boxes->addStretch();
    column->addLayout(boxes);

    heading(QStringLiteral("Buttons"));
    auto *next = new TovuButton(QStringLiteral("Next \u2192"), sheet);
    next->setFont(font(16, QFont::DemiBold));
    next->setBackgroundColor(platform(Role::blue));
    next->setTitleColor(Qt::white);
    next->setCornerRadius(12);
    next->setFixedHeight(50);
    column->addWidget(next);
    auto *options = new QGridLayout;
    options->setSpacing(10);
    options->addWidget(option(QStringLiteral("Radio, not chosen"), TovuButton::Accessory::radio, false, sheet), 0, 0);
    options->addWidget(option(QStringLiteral("Radio, chosen"), TovuButton::Accessory::radio, true, sheet), 0, 1);
    options->addWidget(option(QStringLiteral("Checkbox, not ticked"), TovuButton::Accessory::checkbox, false, sheet), 1,
                       0);
    options->addWidget(option(QStringLiteral("Checkbox, ticked"), TovuButton::Accessory::checkbox, true, sheet), 1, 1);
    TovuButton *rtl = option(QStringLiteral("\u05D1\u05D7\u05D9\u05E8\u05D4 (right to left)"),
                             TovuButton::Accessory::radio, true, sheet);
    rtl->setLayoutDirection(Qt::RightToLeft);
    options->addWidget(rtl, 2, 0);
    TovuButton *pressed = option(QStringLiteral("Pressed: scale 0.96"), TovuButton::Accessory::checkbox, true, sheet);
    pressed->setScale(0.96);
    options->addWidget(pressed, 2, 1);
    options->addWidget(option(QStringLiteral("A long answer option that wraps onto a second line when the row is "
                                             "narrow, <b>markup</b> & all shown as typed"),
                              TovuButton::Accessory::radio, false, sheet),
                       3, 0, 1, 2);
    column->addLayout(options);

    heading(QStringLiteral("Symbols at 24 pt: regular, blue semibold, orange bold, gray light"));
    const std::initializer_list<std::pair<QColor, QFont::Weight>> styles{{platform(Role::label), QFont::Normal},
                                                                         {platform(Role::blue), QFont::DemiBold},
                                                                         {platform(Role::orange), QFont::Bold},
                                                                         {platform(Role::gray), QFont::Light}};
    for (const auto &[colour, weight] : styles) {
        auto *row = new QHBoxLayout;
        row->setSpacing(16);
        for (const QString &name : TovuSymbol::names()) {
            auto *icon = new QLabel(sheet);
            icon->setPixmap(TovuSymbol::pixmap(name, 24, weight, colour, 2));
            icon->setAccessibleName(name);
            row->addWidget(icon);
        }
        row->addStretch();
        column->addLayout(row);
    }
    column->addStretch();
    // Wrapped titles need the height for the final width, not the one-line size hint.
    sheet->resize(760, sheet->heightForWidth(760));
    return sheet;
}
