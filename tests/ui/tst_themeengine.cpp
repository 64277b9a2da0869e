// How the theme engine resolves colours, fonts and corner radius from the app's
// theme, the survey's theme and the platform, and how it reads colour text.

#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <ostream>

void PrintTo(const QColor &color, std::ostream *out)
{
    *out << "QColor(" << color.red() << ", " << color.green() << ", " << color.blue() << ", " << color.alpha() << ")";
}

namespace {

const QColor orange(0xFF, 0x88, 0x00);

// Puts the application palette back however a test leaves it.
class PaletteGuard
{
public:
    PaletteGuard()
        : m_saved(QApplication::palette())
    { }
    ~PaletteGuard() { QApplication::setPalette(m_saved); }

    static void useLight()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        QApplication::setPalette(palette);
    }
    static void useDark()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, QColor(0x20, 0x20, 0x20));
        QApplication::setPalette(palette);
    }

private:
    QPalette m_saved;
};

TovuTheme surveyTheme(const char *primary, const char *background, const char *text)
{
    TovuTheme theme;
    theme.primaryColor = primary;
    theme.backgroundColor = background;
    theme.textColor = text;
    return theme;
}

QString familyOtherThan(const QString &family)
{
    for (const QString &candidate : QFontDatabase::families()) {
        if (candidate.compare(family, Qt::CaseInsensitive) != 0)
            return candidate;
    }
    return {};
}

} // namespace

TEST(ThemeEngineColorFromHex, SixCharactersAreOpaqueWhateverTheCaseHashOrSurroundingBlanks)
{
    for (const char *text : {"#ff8800", "ff8800", "#FF8800", " #FF8800\n", "\t\r\nFf8800  "}) {
        SCOPED_TRACE(text);
        const auto color = TovuThemeEngine::colorFromHex(text);
        ASSERT_TRUE(color.has_value());
        EXPECT_EQ(*color, orange);
        EXPECT_EQ(color->spec(), QColor::Rgb);
    }
}

TEST(ThemeEngineColorFromHex, EightCharactersCarryAlphaLast)
{
    const auto color = TovuThemeEngine::colorFromHex("#FF880080");
    ASSERT_TRUE(color.has_value());
    EXPECT_EQ(*color, QColor(0xFF, 0x88, 0x00, 0x80));
    EXPECT_NEAR(static_cast<double>(color->alphaF()), 0x80 / 255.0, 1e-4);

    const auto transparentBlue = TovuThemeEngine::colorFromHex("0000ff00");
    ASSERT_TRUE(transparentBlue.has_value());
    EXPECT_EQ(*transparentBlue, QColor(0, 0, 0xFF, 0));
}

TEST(ThemeEngineColorFromHex, OtherLengthsGiveNoColour)
{
    for (const char *text : {"#F80", "#FF88001", "", "   ", "#", "##FF8800", "#FF8800FF0"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(TovuThemeEngine::colorFromHex(text).has_value());
    }
}

TEST(ThemeEngineColorFromHex, BadCharactersEndTheScanButNotTheLengthTest)
{
    // Only the digits before the first bad character count.
    EXPECT_EQ(TovuThemeEngine::colorFromHex("#12GG56"), QColor(0, 0, 0x12));
    EXPECT_EQ(TovuThemeEngine::colorFromHex("#FF88ZZ80"), QColor(0, 0, 0xFF, 0x88));
    EXPECT_EQ(TovuThemeEngine::colorFromHex("GGGGGG"), QColor(0, 0, 0));
    EXPECT_EQ(TovuThemeEngine::colorFromHex("#00000X"), QColor(0, 0, 0));
    EXPECT_EQ(TovuThemeEngine::colorFromHex("FF 88 00"), QColor(0, 0, 0, 0xFF));
    // Length is in characters: a digit with a combining accent is one, and an emoji
    // taking two UTF-16 units is one.
    EXPECT_EQ(TovuThemeEngine::colorFromHex("#FF8800\xCC\x81"), orange);
    EXPECT_EQ(TovuThemeEngine::colorFromHex("ABCDE\xF0\x9F\x98\x80"), QColor(0x0A, 0xBC, 0xDE));
    EXPECT_EQ(TovuThemeEngine::colorFromHex("ABCD\xF0\x9F\x98\x80\xF0\x9F\x98\x80"), QColor(0, 0xAB, 0xCD));
}

TEST(ThemeEngine, AppColoursWinOverTheSurveys)
{
    TovuThemeEngine engine;
    engine.setTheme(surveyTheme("#111111", "#222222", "#333333"));
    TovuAppTheme app;
    app.primaryColor = QColor(Qt::red);
    app.backgroundColor = QColor(Qt::green);
    app.textColor = QColor(Qt::blue);
    engine.configureAppTheme(app);

    EXPECT_EQ(engine.primaryColor(), QColor(Qt::red));
    EXPECT_EQ(engine.backgroundColor(), QColor(Qt::green));
    EXPECT_EQ(engine.textColor(), QColor(Qt::blue));
}

TEST(ThemeEngine, AnAppThemeWithoutAColourLeavesTheSurveysColour)
{
    TovuThemeEngine engine;
    engine.setTheme(surveyTheme("#112233", "#445566CC", "778899"));
    TovuAppTheme app;
    app.fontFamily = QStringLiteral("Anything");
    app.cornerRadius = 4;
    engine.configureAppTheme(app);

    EXPECT_EQ(engine.primaryColor(), QColor(0x11, 0x22, 0x33));
    EXPECT_EQ(engine.backgroundColor(), QColor(0x44, 0x55, 0x66, 0xCC));
    EXPECT_EQ(engine.textColor(), QColor(0x77, 0x88, 0x99));
}

TEST(ThemeEngine, DefaultsFollowTheLightOrDarkPaletteWhenNoThemeGivesAColour)
{
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    PaletteGuard guard;
    TovuThemeEngine engine;
    // Colour text that does not convert is passed over like an absent one.
    engine.setTheme(surveyTheme("#F80", "", "not a colour"));

    PaletteGuard::useLight();
    EXPECT_EQ(engine.primaryColor(), QColor(0x00, 0x7A, 0xFF));
    EXPECT_EQ(engine.backgroundColor(), QColor(Qt::white));
    EXPECT_EQ(engine.textColor(), QColor(Qt::black));

    PaletteGuard::useDark();
    EXPECT_EQ(engine.primaryColor(), QColor(0x0A, 0x84, 0xFF));
    EXPECT_EQ(engine.backgroundColor(), QColor(Qt::black));
    EXPECT_EQ(engine.textColor(), QColor(Qt::white));
}

TEST(ThemeEngine, PrimaryDefaultsToTheActiveWindowsHighlight)
{
    TovuThemeEngine engine;
    QWidget window;
    QPalette palette = window.palette();
    palette.setColor(QPalette::Active, QPalette::Highlight, QColor(0xAA, 0x00, 0xCC));
    window.setPalette(palette);
    window.resize(100, 100);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    EXPECT_EQ(engine.primaryColor(), QColor(0xAA, 0x00, 0xCC));
    engine.configureAppTheme(QColor(Qt::yellow));
    EXPECT_EQ(engine.primaryColor(), QColor(Qt::yellow));
}

TEST(ThemeEngine, ConfiguringOnlyThePrimaryColourKeepsTheRestOfTheAppTheme)
{
    TovuThemeEngine engine;
    engine.configureAppTheme(QColor(Qt::red));
    TovuAppTheme onlyPrimary;
    onlyPrimary.primaryColor = QColor(Qt::red);
    EXPECT_EQ(engine.appTheme(), onlyPrimary);

    TovuAppTheme full;
    full.primaryColor = QColor(Qt::green);
    full.backgroundColor = QColor(Qt::gray);
    full.textColor = QColor(Qt::darkBlue);
    full.fontFamily = QStringLiteral("Some Family");
    full.cornerRadius = 6.5;
    engine.configureAppTheme(full);
    engine.configureAppTheme(QColor(Qt::magenta));

    TovuAppTheme expected = full;
    expected.primaryColor = QColor(Qt::magenta);
    EXPECT_EQ(engine.appTheme(), expected);

    // A whole theme replaces everything, including fields it leaves absent.
    engine.configureAppTheme(onlyPrimary);
    EXPECT_EQ(engine.appTheme(), onlyPrimary);
}

TEST(ThemeEngine, FontSizeScalesWithTheSurveysBase)
{
    const QFont system = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    TovuThemeEngine engine;
    EXPECT_EQ(engine.font(16, QFont::Normal).pixelSize(), 16);

    TovuTheme theme;
    theme.fontSizeBase = 20;
    engine.setTheme(theme);
    const QFont bold = engine.font(16, QFont::Bold);
    EXPECT_EQ(bold.pixelSize(), 20);
    EXPECT_EQ(bold.weight(), QFont::Bold);
    EXPECT_EQ(bold.family(), system.family());
    EXPECT_EQ(engine.font(13, QFont::Normal).pixelSize(), 16); // 16.25, to whole pixels

    theme.fontSizeBase = 18;
    engine.setTheme(theme);
    EXPECT_EQ(engine.font(16, QFont::Light).pixelSize(), 18);
}

TEST(ThemeEngine, OnlyAnInstalledFamilyReplacesTheSystemFont)
{
    const QString systemFamily = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    const QString installed = familyOtherThan(systemFamily);
    if (installed.isEmpty())
        GTEST_SKIP() << "only one font family is installed";

    TovuThemeEngine engine;
    TovuTheme theme;
    theme.fontSizeBase = 20;
    theme.fontFamily = "No Such Family 7f3a";
    engine.setTheme(theme);
    QFont font = engine.font(16, QFont::DemiBold);
    EXPECT_EQ(font.family(), systemFamily);
    EXPECT_EQ(font.weight(), QFont::DemiBold);
    EXPECT_EQ(font.pixelSize(), 20);

    // A known family is used at the scaled size in its regular face.
    theme.fontFamily = installed.toLower().toStdString();
    engine.setTheme(theme);
    font = engine.font(16, QFont::Bold);
    EXPECT_EQ(font.family().compare(installed, Qt::CaseInsensitive), 0);
    EXPECT_EQ(font.weight(), QFont::Normal);
    EXPECT_EQ(font.pixelSize(), 20);

    // The app's family is chosen before the survey's; when it is not installed
    // the survey's is not tried.
    TovuAppTheme app;
    app.fontFamily = systemFamily;
    engine.configureAppTheme(app);
    EXPECT_EQ(engine.font(16, QFont::Normal).family(), systemFamily);
    app.fontFamily = QStringLiteral("No Such Family 7f3a");
    engine.configureAppTheme(app);
    font = engine.font(16, QFont::Bold);
    EXPECT_EQ(font.family(), systemFamily);
    EXPECT_EQ(font.weight(), QFont::Bold);
}

TEST(ThemeEngine, CornerRadiusComesFromTheAppThenTheSurveyThenTwelve)
{
    TovuThemeEngine engine;
    TovuBox box;
    engine.applyCornerRadius(&box);
    EXPECT_DOUBLE_EQ(box.cornerRadius(), 12);
    EXPECT_TRUE(box.clipsToBounds());

    TovuTheme theme;
    theme.cornerRadius = 24;
    engine.setTheme(theme);
    engine.configureAppTheme(QColor(Qt::red)); // an app theme without a radius
    engine.applyCornerRadius(&box);
    EXPECT_DOUBLE_EQ(box.cornerRadius(), 24);

    TovuAppTheme app;
    app.cornerRadius = 8.5;
    engine.configureAppTheme(app);
    TovuBox other;
    engine.applyCornerRadius(&other);
    EXPECT_DOUBLE_EQ(other.cornerRadius(), 8.5);
    EXPECT_TRUE(other.clipsToBounds());

    engine.applyCornerRadius(nullptr); // nothing to do, and no crash
}

TEST(ThemeEngine, ClearingTheSurveyThemeRestoresTheDefaults)
{
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    PaletteGuard guard;
    PaletteGuard::useLight();
    TovuThemeEngine engine;
    TovuTheme theme = surveyTheme("#112233", "#445566", "#778899");
    theme.fontSizeBase = 32;
    theme.cornerRadius = 30;
    engine.setTheme(theme);
    ASSERT_EQ(engine.apiTheme(), theme);

    engine.setTheme(std::nullopt);
    EXPECT_FALSE(engine.apiTheme().has_value());
    EXPECT_EQ(engine.primaryColor(), QColor(0x00, 0x7A, 0xFF));
    EXPECT_EQ(engine.backgroundColor(), QColor(Qt::white));
    EXPECT_EQ(engine.textColor(), QColor(Qt::black));
    EXPECT_EQ(engine.font(15, QFont::Normal).pixelSize(), 15);
    EXPECT_DOUBLE_EQ(engine.cornerRadius(), 12);
}

TEST(ThemeEngine, TheSharedEngineStartsEmpty)
{
    TovuThemeEngine &shared = TovuThemeEngine::shared();
    EXPECT_EQ(&shared, &TovuThemeEngine::shared());
    EXPECT_FALSE(shared.apiTheme().has_value());
    EXPECT_FALSE(shared.appTheme().has_value());
}
