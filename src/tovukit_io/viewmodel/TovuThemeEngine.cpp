#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPalette>
#include <QString>
#include <QTextBoundaryFinder>
#include <QVariant>

#include <cstdint>
#include <utility>

namespace {

constexpr qreal defaultCornerRadius = 12;
constexpr qreal unscaledFontSizeBase = 16;

// Counts what a reader sees as characters (grapheme clusters), not UTF-16 units,
// so a colour text's length does not depend on how it is encoded.
qsizetype characterCount(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (finder.toNextBoundary() != -1)
        ++count;
    return count;
}

// Reads hex digits from the start and stops at the first other character,
// keeping what it read; nothing read is 0.
std::uint64_t scanHex(const QString &text)
{
    std::uint64_t value = 0;
    for (const QChar c : text) {
        const char16_t unit = c.unicode();
        std::uint64_t digit = 0;
        if (unit >= u'0' && unit <= u'9')
            digit = static_cast<std::uint64_t>(unit - u'0');
        else if (unit >= u'A' && unit <= u'F')
            digit = static_cast<std::uint64_t>(unit - u'A' + 10);
        else
            break;
        value = (value << 4) | digit;
    }
    return value;
}

float channel(std::uint64_t value, int shift)
{
    return static_cast<float>((value >> shift) & 0xFF) / 255.0F;
}

// The first two steps every colour shares: the app's colour, then the survey's
// colour text when it converts. Text that does not convert is skipped, not an error.
std::optional<QColor> themedColor(const std::optional<TovuAppTheme> &app, std::optional<QColor> TovuAppTheme::*appField,
                                  const std::optional<TovuTheme> &api, std::optional<std::string> TovuTheme::*apiField)
{
    if (app && (*app).*appField)
        return (*app).*appField;
    if (api && (*api).*apiField)
        return TovuThemeEngine::colorFromHex(*((*api).*apiField));
    return std::nullopt;
}

// A host's own accent is a Highlight it set on purpose (on the window or the whole
// application); the style's stock highlight is not one.
std::optional<QColor> hostAccent(const QPalette &palette)
{
    if (palette.isBrushSet(QPalette::Active, QPalette::Highlight))
        return palette.color(QPalette::Active, QPalette::Highlight);
    return std::nullopt;
}

// A widget's window flags say whether it is a window of its own, which inherits no
// palette from the widget it belongs to.
bool isWindow(const QObject *object)
{
    const QVariant flags = object->property("windowFlags");
    return flags.isValid() && (flags.value<Qt::WindowFlags>() & Qt::Window);
}

bool isInstalledFamily(const QString &family)
{
    return QFontDatabase::families().contains(family, Qt::CaseInsensitive);
}

} // namespace

TovuThemeEngine &TovuThemeEngine::shared()
{
    static TovuThemeEngine engine;
    return engine;
}

TovuThemeEngine::TovuThemeEngine() = default;

void TovuThemeEngine::setTheme(std::optional<TovuTheme> theme)
{
    m_apiTheme = std::move(theme);
    m_fonts.clear();
}

const std::optional<TovuTheme> &TovuThemeEngine::apiTheme() const
{
    return m_apiTheme;
}

void TovuThemeEngine::configureAppTheme(TovuAppTheme theme)
{
    m_appTheme = std::move(theme);
    m_fonts.clear();
}

void TovuThemeEngine::configureAppTheme(QColor primaryColor)
{
    if (!m_appTheme)
        m_appTheme.emplace();
    m_appTheme->primaryColor = primaryColor;
}

const std::optional<TovuAppTheme> &TovuThemeEngine::appTheme() const
{
    return m_appTheme;
}

QColor TovuThemeEngine::primaryColor() const
{
    // The window that has keyboard focus stands for the application's key window.
    return primaryColor(QGuiApplication::focusObject());
}

QColor TovuThemeEngine::primaryColor(const QObject *page) const
{
    for (const QObject *object = page; object; object = object->parent()) {
        // Objects without a palette read as a default palette, which sets nothing.
        const QPalette palette = object->property("palette").value<QPalette>();
        if (hostAccent(palette))
            return primaryColor(palette);
        if (isWindow(object))
            break;
    }
    return primaryColor(QGuiApplication::palette());
}

QColor TovuThemeEngine::primaryColor(const QPalette &context) const
{
    if (auto color = themedColor(m_appTheme, &TovuAppTheme::primaryColor, m_apiTheme, &TovuTheme::primaryColor))
        return *color;
    // The accent the host already uses, so the survey blends in.
    if (auto accent = hostAccent(context))
        return *accent;
    if (auto accent = hostAccent(QGuiApplication::palette()))
        return *accent;
    return TovuPlatformColors::color(TovuPlatformColors::Role::blue);
}

QColor TovuThemeEngine::backgroundColor() const
{
    if (auto color = themedColor(m_appTheme, &TovuAppTheme::backgroundColor, m_apiTheme, &TovuTheme::backgroundColor))
        return *color;
    return TovuPlatformColors::color(TovuPlatformColors::Role::systemBackground);
}

QColor TovuThemeEngine::textColor() const
{
    if (auto color = themedColor(m_appTheme, &TovuAppTheme::textColor, m_apiTheme, &TovuTheme::textColor))
        return *color;
    return TovuPlatformColors::color(TovuPlatformColors::Role::label);
}

QFont TovuThemeEngine::font(qreal size, QFont::Weight weight) const
{
    // Each font is made once and measured once, and kept: a kept font keeps its font
    // engine loaded, which Qt would otherwise drop and load again from fontconfig for
    // every new page (about a millisecond each).
    const auto key = std::pair{size, static_cast<int>(weight)};
    if (const auto found = m_fonts.find(key); found != m_fonts.end())
        return found->second;
    QFont font = makeFont(size, weight);
    QFontMetricsF(font).height();
    m_fonts.emplace(key, font);
    return font;
}

QFont TovuThemeEngine::makeFont(qreal size, QFont::Weight weight) const
{
    qreal base = unscaledFontSizeBase;
    if (m_apiTheme && m_apiTheme->fontSizeBase)
        base = static_cast<qreal>(*m_apiTheme->fontSizeBase);
    const qreal scaled = size * base / unscaledFontSizeBase;

    std::optional<QString> family;
    if (m_appTheme && m_appTheme->fontFamily)
        family = m_appTheme->fontFamily;
    else if (m_apiTheme && m_apiTheme->fontFamily)
        family = QString::fromStdString(*m_apiTheme->fontFamily);

    // A survey may name any family; only one that is installed is honoured,
    // since Qt would otherwise quietly substitute something arbitrary.
    QFont font;
    if (family && isInstalledFamily(*family)) {
        font = QFont(*family);
        // The named family's regular face, whatever was asked for.
        font.setWeight(QFont::Normal);
    } else {
        font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        font.setWeight(weight);
    }
    // Sizes are layout points, the same unit as every other measure of the
    // views: device-independent pixels, whatever the screen's DPI. QFont
    // rejects non-positive sizes with a warning; a nonsensical base keeps the default.
    if (scaled >= 0.5)
        font.setPixelSize(qRound(scaled));
    return font;
}

qreal TovuThemeEngine::cornerRadius() const
{
    if (m_appTheme && m_appTheme->cornerRadius)
        return *m_appTheme->cornerRadius;
    if (m_apiTheme && m_apiTheme->cornerRadius)
        return static_cast<qreal>(*m_apiTheme->cornerRadius);
    return defaultCornerRadius;
}

void TovuThemeEngine::applyCornerRadius(QObject *view) const
{
    if (!view)
        return;
    view->setProperty("cornerRadius", cornerRadius());
    view->setProperty("clipsToBounds", true);
}

std::optional<QColor> TovuThemeEngine::colorFromHex(std::string_view text)
{
    QString hex = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).trimmed().toUpper();
    if (hex.startsWith(u'#'))
        hex.remove(0, 1);

    const qsizetype length = characterCount(hex);
    if (length != 6 && length != 8)
        return std::nullopt;

    const std::uint64_t value = scanHex(hex);
    if (length == 6)
        return QColor::fromRgbF(channel(value, 16), channel(value, 8), channel(value, 0), 1.0F);
    return QColor::fromRgbF(channel(value, 24), channel(value, 16), channel(value, 8), channel(value, 0));
}
