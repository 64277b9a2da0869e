#include "TovuKitSampleSheet.h"

#include <tovukit_io/graphics/TovuEmoji.h>
#include <tovukit_io/graphics/TovuSymbol.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuChevron.h>
#include <tovukit_io/ui/kit/TovuEqualWidthLayout.h>
#include <tovukit_io/ui/kit/TovuFitLabel.h>
#include <tovukit_io/ui/kit/TovuHairline.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuScrollStrip.h>
#include <tovukit_io/ui/kit/TovuSymbolButton.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/ui/kit/TovuTextField.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QApplication>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QScrollBar>
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

// Shows the focused look without a window to take the focus from.
void showFocused(QWidget *input)
{
    QFocusEvent focusIn(QEvent::FocusIn, Qt::OtherFocusReason);
    QApplication::sendEvent(input, &focusIn);
}

QLayout *textInputs(QWidget *parent)
{
    auto *grid = new QGridLayout;
    grid->setSpacing(12);
    const QFont body = font(15, QFont::Normal);
    const auto field = [&](const QString &placeholder, const QString &text) {
        auto *input = new TovuTextField(parent);
        input->setFont(body);
        input->setPlaceholderText(placeholder);
        input->setText(text);
        return input;
    };
    grid->addWidget(field(QStringLiteral("Type your answer here\u2026"), QString()), 0, 0);
    TovuTextField *focused = field(QStringLiteral("Focused\u2026"), QString());
    showFocused(focused);
    grid->addWidget(focused, 0, 1);
    TovuTextField *error = field(QStringLiteral("Email\u2026"), QStringLiteral("not-an-email"));
    error->setHasError(true);
    grid->addWidget(error, 0, 2);
    auto *area = new TovuTextArea(parent);
    area->setFont(body);
    area->setPlaceholderText(QStringLiteral("Tell us more\u2026"));
    grid->addWidget(area, 1, 0, 1, 2);
    auto *written = new TovuTextArea(parent);
    written->setFont(body);
    written->setPlainText(QStringLiteral("Typed text stays <b>as typed</b>,\nover several lines."));
    showFocused(written);
    grid->addWidget(written, 1, 2);
    return grid;
}

TovuSymbolButton *symbolButton(const QString &name, const QColor &tint, QWidget *parent)
{
    auto *button = new TovuSymbolButton(name, parent);
    button->setSymbolTint(tint);
    button->setFixedSize(44, 44);
    return button;
}

QLayout *symbolButtons(QWidget *parent)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    const QColor orange = platform(Role::orange);
    for (int star = 1; star <= 5; ++star)
        row->addWidget(symbolButton(star <= 3 ? QStringLiteral("star.fill") : QStringLiteral("star"), orange, parent));
    row->addSpacing(24);
    for (int heart = 1; heart <= 5; ++heart) {
        const bool chosen = heart == 2;
        row->addWidget(symbolButton(chosen ? QStringLiteral("heart.fill") : QStringLiteral("heart"),
                                    chosen ? platform(Role::red) : QColor(), parent));
    }
    row->addSpacing(24);
    TovuSymbolButton *bumped = symbolButton(QStringLiteral("circle.fill"), platform(Role::blue), parent);
    bumped->setScale(1.2);
    row->addWidget(bumped);
    row->addStretch();
    return row;
}

QLayout *emojiFaces(QWidget *parent)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    const char *faces[] = {"\xF0\x9F\x98\x9E", "\xF0\x9F\x98\x95", "\xF0\x9F\x98\x90",
                           "\xF0\x9F\x99\x82", "\xF0\x9F\x98\x81", "\xE2\xAD\x90"};
    for (int i = 0; i < 6; ++i) {
        const bool chosen = i == 3;
        auto *face = new TovuButton(QString::fromUtf8(faces[i]), parent);
        face->setFont(TovuEmoji::font(chosen ? 42 : 34));
        face->setOpacity(chosen ? 1.0 : 0.45);
        face->setBackgroundColor(Qt::transparent);
        face->setContentInsets(QMargins());
        face->setFixedSize(60, 60);
        row->addWidget(face);
    }
    row->addStretch();
    return row;
}

TovuButton *selector(const QString &title, bool expanded, QWidget *parent)
{
    auto *button = new TovuButton(title, parent);
    button->setFont(font(15, QFont::Normal));
    button->setTitleColor(platform(Role::secondaryLabel));
    button->setTitleAlignment(Qt::AlignLeading);
    button->setContentInsets(QMargins(16, 14, 48, 14));
    button->setCornerRadius(12);
    button->setBorderWidth(1.5);
    button->setFixedHeight(52);
    auto *chevron = new TovuChevron(button);
    chevron->setExpanded(expanded);
    return button;
}

QWidget *scoreRow(QWidget *parent)
{
    auto *row = new QWidget(parent);
    row->setFixedWidth(310);
    auto *layout = new TovuEqualWidthLayout(row);
    layout->setSpacing(4);
    for (int score = 0; score <= 10; ++score) {
        auto *button = new TovuButton(QString::number(score), row);
        button->setFont(font(15, QFont::DemiBold));
        button->setContentInsets(QMargins());
        button->setCornerRadius(8);
        button->setBorderWidth(1.5);
        button->setFixedHeight(44);
        if (score == 8) {
            button->setBackgroundColor(platform(Role::blue));
            button->setBorderColor(platform(Role::blue));
            button->setTitleColor(Qt::white);
        }
        layout->addWidget(button);
    }
    return row;
}

QWidget *captionRow(QWidget *parent)
{
    auto *row = new QWidget(parent);
    row->setFixedWidth(310);
    auto *layout = new TovuEqualWidthLayout(row);
    layout->setSpacing(4);
    for (const char *text : {"Not at all likely", "Unlikely", "Neutral", "Likely", "Extremely likely to recommend"}) {
        auto *column = new QVBoxLayout;
        column->setSpacing(4);
        column->addWidget(symbolButton(QStringLiteral("star"), platform(Role::orange), row), 0, Qt::AlignHCenter);
        auto *caption = new TovuFitLabel(QString::fromUtf8(text), row);
        caption->setFont(font(12, QFont::Normal));
        column->addWidget(caption);
        layout->addLayout(column);
    }
    return row;
}

TovuScrollStrip *scrollStrip(QWidget *parent)
{
    auto *strip = new TovuScrollStrip(parent);
    strip->setFixedSize(310, 44);
    auto *content = new QWidget;
    auto *layout = new QHBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    for (int column = 1; column <= 7; ++column) {
        auto *button = new TovuButton(QStringLiteral("Column %1").arg(column), content);
        button->setFont(font(14, QFont::Normal));
        button->setCornerRadius(8);
        button->setBorderWidth(1.5);
        // Natural widths: the strip scrolls rather than squeezing the titles.
        QSizePolicy policy = button->sizePolicy();
        policy.setHorizontalPolicy(QSizePolicy::Fixed);
        button->setSizePolicy(policy);
        layout->addWidget(button);
    }
    strip->setWidget(content);
    strip->horizontalScrollBar()->setValue(60); // scrolled a little: the first column is cut
    return strip;
}

QLayout *hairlines(QWidget *parent)
{
    auto *column = new QVBoxLayout;
    column->setSpacing(10);
    for (qreal thickness : {0.5, 1.0}) {
        column->addWidget(TovuLabels::plain(QStringLiteral("Hairline %1 pt").arg(thickness), font(12, QFont::Normal),
                                            platform(Role::secondaryLabel), parent));
        auto *line = new TovuHairline(parent);
        line->setThickness(thickness);
        column->addWidget(line);
    }
    return column;
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
    TovuButton *pressed = option(QStringLiteral("Scaled to 0.96"), TovuButton::Accessory::checkbox, true, sheet);
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

    heading(QStringLiteral("Text field: idle, focused, error; text area: empty, focused with text"));
    column->addLayout(textInputs(sheet));

    heading(QStringLiteral("Symbol buttons: 3 of 5 stars, a chosen heart, a bump to 1.2"));
    column->addLayout(symbolButtons(sheet));
    heading(QStringLiteral("Emoji faces at opacity 0.45, the chosen one at 1.0"));
    column->addLayout(emojiFaces(sheet));

    heading(QStringLiteral("Dropdown chevron at 0 and 180 degrees"));
    auto *selectors = new QHBoxLayout;
    selectors->setSpacing(12);
    selectors->addWidget(selector(QStringLiteral("Select an option"), false, sheet));
    selectors->addWidget(selector(QStringLiteral("Open list"), true, sheet));
    column->addLayout(selectors);

    heading(QStringLiteral("Rows 310 wide: equal widths 0\u201310, fitted captions, a scroll strip"));
    auto *rows = new QGridLayout;
    rows->setHorizontalSpacing(24);
    rows->setVerticalSpacing(12);
    rows->addWidget(scoreRow(sheet), 0, 0);
    rows->addWidget(captionRow(sheet), 1, 0);
    rows->addWidget(scrollStrip(sheet), 0, 1);
    rows->addLayout(hairlines(sheet), 1, 1, Qt::AlignTop);
    rows->setColumnStretch(2, 1);
    column->addLayout(rows);

    column->addStretch();
    // Wrapped titles need the height for the final width, not the one-line size hint.
    sheet->resize(760, sheet->heightForWidth(760));
    return sheet;
}
