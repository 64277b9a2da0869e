// tovu-screenshots: renders what a respondent sees, so a person can look at it.
//
//   tovu-screenshots [OUTDIR]      (default: screenshots/)
//
// A 390 × 844 host window at 2× device-pixel ratio, light and dark: the sheet
// with the intro page, with the thank-you page, with a page taller than the
// sheet, and with a survey theme (transparency 0.2, its own colours, font base 20);
// every question view untouched, after a choice and with its validation message;
// the dropdown open; the text box with a focused field. Where the Qt Quick front
// end is built, each page type beside its Qt Widgets twin (pair-*.png).

#include "TovuFrontEndPairs.h"
#include "TovuKitSampleSheet.h"
#include "TovuQuestionSamples.h"
#include "TovuRatingSamples.h"
#include "TovuScoreSamples.h"

#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuThankYouView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPalette>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <iterator>
#include <memory>

namespace {

// Something for the sheet to dim: a plain host screen.
QWidget *makeHost()
{
    auto *host = new QWidget;
    host->resize(390, 844);
    host->setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(host);
    layout->setContentsMargins(20, 60, 20, 20);
    QFont title = host->font();
    title.setPointSizeF(26);
    title.setBold(true);
    const QColor text = TovuPlatformColors::color(TovuPlatformColors::Role::label);
    layout->addWidget(TovuLabels::plain(QStringLiteral("Your orders"), title, text, host));
    for (const char *line : {"Order #1042 · delivered", "Order #1041 · delivered", "Order #1037 · returned"})
        layout->addWidget(TovuLabels::plain(QString::fromUtf8(line), host->font(), text, host));
    layout->addStretch();
    return host;
}

QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x1C, 0x1C, 0x1E));
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Base, QColor(0x2C, 0x2C, 0x2E));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Button, QColor(0x2C, 0x2C, 0x2E));
    palette.setColor(QPalette::ButtonText, Qt::white);
    return palette;
}

QWidget *longPage()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    const TovuThemeEngine &theme = TovuThemeEngine::shared();
    for (int i = 1; i <= 24; ++i) {
        layout->addWidget(TovuLabels::plain(
            QStringLiteral("Paragraph %1: a long page scrolls inside the sheet, which never grows past 92 % of "
                           "the window.")
                .arg(i),
            theme.font(15, QFont::Normal), theme.textColor(), page));
    }
    return page;
}

bool shoot(const QString &path, std::optional<TovuSurvey> survey, const std::function<QWidget *()> &makePage,
           const std::function<void(QWidget *)> &act = {})
{
    QWidget *host = makeHost();
    host->show();
    // Active, so a focused field shows its focus.
    host->activateWindow();
    TovuThemeEngine::shared().setTheme(survey ? survey->theme : std::nullopt);
    auto *sheet = new TovuToasterView(survey);
    QWidget *page = makePage();
    sheet->setQuestionView(page);
    sheet->present(host);
    QApplication::processEvents();
    if (act) {
        act(page);
        QApplication::processEvents();
    }
    const bool saved = host->grab().save(path);
    std::printf("%s %s\n", saved ? "wrote" : "could not write", qPrintable(path));
    delete host;
    return saved;
}

bool shootKit(const QString &path)
{
    std::unique_ptr<QWidget> sheet(TovuKitSampleSheet::build());
    sheet->show();
    const bool saved = sheet->grab().save(path);
    std::printf("%s %s\n", saved ? "wrote" : "could not write", qPrintable(path));
    return saved;
}

TovuSurvey themedSurvey()
{
    return TovuSurvey{
        .id = "themed",
        .name = "Themed",
        .theme = TovuTheme{.transparency = 0.2f,
                           .primaryColor = "#7C3AED",
                           .backgroundColor = "#FFF7ED",
                           .textColor = "#431407",
                           .fontSizeBase = 20,
                           .cornerRadius = 24},
    };
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    // Qt Quick pages draw without a GPU, like the offscreen widgets.
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    QApplication application(argc, argv);
    TovuMotion::setDurationScale(0); // the final frame, not the slide
    const QDir out(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("screenshots"));
    if (!QDir().mkpath(out.path()))
        return 1;

    const TovuSurveyPage intro{.enabled = true,
                               .content = "Thanks for shopping with Acme Store! Help us improve by answering a few "
                                          "quick questions about your recent order. It takes less than 2 minutes.",
                               .buttonText = "Start survey"};
    const TovuQuestion thanks{.id = "thank_you_auto",
                              .type = TovuQuestionType::thankYou,
                              .title = "Thank You!",
                              .subtitle = "Your feedback is greatly appreciated."};
    bool ok = true;
    for (const bool dark : {false, true}) {
        QApplication::setPalette(dark ? darkPalette() : QPalette());
        const QString mode = dark ? QStringLiteral("dark") : QStringLiteral("light");
        const auto file = [&](const char *name) {
            return out.filePath(QString::fromLatin1(name) + u'-' + mode + u".png");
        };
        ok &= shoot(file("sheet-intro"), std::nullopt, [&] { return new TovuIntroView(intro); });
        ok &= shoot(file("sheet-thankyou"), std::nullopt, [&] { return new TovuThankYouView(thanks); });
        ok &= shoot(file("sheet-long"), std::nullopt, longPage);
        ok &= shoot(file("sheet-themed"), themedSurvey(), [&] { return new TovuIntroView(intro); });
        ok &= shootKit(file("kit"));
        std::vector<TovuQuestionSamples::Shot> shots = TovuQuestionSamples::shots();
        std::ranges::move(TovuScoreSamples::shots(), std::back_inserter(shots));
        std::ranges::move(TovuRatingSamples::shots(), std::back_inserter(shots));
        for (const TovuQuestionSamples::Shot &shot : shots)
            ok &= shoot(file(shot.name), std::nullopt, shot.makePage, shot.act);
#ifdef TOVU_SCREENSHOTS_QUICK
        ok &= TovuFrontEndPairs::shoot(out, dark ? "dark" : "light");
#endif
    }
    return ok ? 0 : 1;
}
