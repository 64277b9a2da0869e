#include "TovuDemoLook.h"

#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QFontDatabase>
#include <QGuiApplication>

QColor TovuDemoLook::brandColor(bool dark)
{
    return dark ? QColor(0x4C, 0xC3, 0x6E) : QColor(0x1E, 0x8E, 0x3E);
}

QPalette TovuDemoLook::palette(bool dark, const QPalette &light)
{
    if (!dark) {
        QPalette branded = light;
        branded.setColor(QPalette::Highlight, brandColor(false));
        branded.setColor(QPalette::Link, brandColor(false));
        return branded;
    }
    QPalette palette;
    const QColor window(0x1C, 0x1C, 0x1E);
    const QColor base(0x2C, 0x2C, 0x2E);
    const QColor text(0xF2, 0xF2, 0xF7);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, QColor(0x3A, 0x3A, 0x3C));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, base);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Light, QColor(0x48, 0x48, 0x4A));
    palette.setColor(QPalette::Midlight, QColor(0x3A, 0x3A, 0x3C));
    palette.setColor(QPalette::Mid, QColor(0x2C, 0x2C, 0x2E));
    palette.setColor(QPalette::Dark, QColor(0x12, 0x12, 0x14));
    palette.setColor(QPalette::Shadow, Qt::black);
    palette.setColor(QPalette::Highlight, brandColor(true));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, brandColor(true));
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(0x8E, 0x8E, 0x93));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x63, 0x63, 0x66));
    return palette;
}

TovuAppTheme TovuDemoLook::hostTheme(bool dark)
{
    TovuAppTheme theme;
    theme.primaryColor = brandColor(dark);
    theme.backgroundColor = dark ? QColor(0x15, 0x1A, 0x16) : QColor(0xF7, 0xFB, 0xF4);
    theme.textColor = dark ? QColor(0xE8, 0xF0, 0xE6) : QColor(0x1B, 0x2A, 0x1E);
    theme.cornerRadius = 28;
    // A family the demo app would ship; the default one where it is missing.
    const QString family = QStringLiteral("DejaVu Serif");
    if (QFontDatabase::families().contains(family))
        theme.fontFamily = family;
    return theme;
}

TovuDemoLook::HostColors TovuDemoLook::hostColors(bool dark)
{
    if (dark)
        return {QColor(0x00, 0x00, 0x00), QColor(0xF2, 0xF2, 0xF7), QColor(0x98, 0x98, 0x9F), QColor(0x1C, 0x1C, 0x1E),
                QColor(0x2C, 0x2C, 0x2E), brandColor(true),         QColor(0x06, 0x1A, 0x0C), QColor(0xFF, 0x9F, 0x0A)};
    return {QColor(0xFF, 0xFF, 0xFF),
            QColor(0x11, 0x14, 0x12),
            QColor(0x6B, 0x6F, 0x6C),
            QColor(0xF1, 0xF4, 0xEF),
            QColor(0xE5, 0xE5, 0xEA),
            brandColor(false),
            Qt::white,
            QColor(0xE6, 0x7E, 0x00)};
}

void TovuDemoLook::apply(TovuNativeSurveyManager &manager, bool dark, TovuDemoOptions::Theme theme,
                         const QColor &primaryColor, const QPalette &light)
{
    // QGuiApplication's palette reaches widgets too: QApplication passes the change on.
    QGuiApplication::setPalette(palette(dark, light));
    // A theme is configured whole: the progress choice goes into each.
    const bool progress = showsProgress();
    switch (theme) {
    case TovuDemoOptions::Theme::survey:
        manager.configureTheme(TovuAppTheme{.showsProgress = progress});
        break;
    case TovuDemoOptions::Theme::host: {
        TovuAppTheme host = hostTheme(dark);
        host.showsProgress = progress;
        manager.configureTheme(host);
        break;
    }
    case TovuDemoOptions::Theme::primaryColor:
        manager.configureTheme(TovuAppTheme{.showsProgress = progress});
        manager.configureTheme(primaryColor);
        break;
    }
}

void TovuDemoLook::setShowsProgress(TovuNativeSurveyManager &manager, bool shows)
{
    TovuAppTheme theme = TovuThemeEngine::shared().appTheme().value_or(TovuAppTheme{});
    theme.showsProgress = shows;
    manager.configureTheme(theme);
}

bool TovuDemoLook::showsProgress()
{
    const auto &theme = TovuThemeEngine::shared().appTheme();
    return theme && theme->showsProgress;
}

bool TovuDemoLook::isDark()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}
