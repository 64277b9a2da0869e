#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

/// The language of the library's own texts: button titles, placeholders,
/// validation messages and screen-reader names. A survey's texts come from the
/// backend and are shown as they are.
///
/// German, French, Spanish, Portuguese, Japanese, Simplified Chinese and Arabic
/// ship inside the library. Unless a language is forced, the first of the host's
/// `QLocale().uiLanguages()` that ships is used (English or an unshipped
/// language gives English), looked up again whenever a page is made, so a later
/// `QLocale::setDefault()` counts. A right-to-left language lays the sheet out
/// right to left even in a left-to-right app. The library's texts answer only
/// for its own translation contexts, so the host's translators are untouched.
///
/// \code
/// TovuTranslations::setLanguage(QLocale(QLocale::German)); // "Next →" reads "Weiter →"
/// TovuTranslations::setText(QStringLiteral("Skip"), QStringLiteral("Not now"));
/// TovuTranslations::followHostLanguage(); // back to the host's locale
/// \endcode
class TovuTranslations
{
public:
    /// Shows the library's texts in `language` (in English when it does not ship)
    /// on pages made from now on.
    static void setLanguage(const QLocale &language);
    /// Goes back to the host's locale.
    static void followHostLanguage();
    /// The language the texts are shown in now: a shipped one or English.
    static QLocale language();
    /// The shipped languages besides English, as locale names ("de", "zh_CN", …).
    static QStringList shippedLanguages();
    /// Right to left when the texts' language is written so, else the application's direction.
    static Qt::LayoutDirection layoutDirection();

    /// Shows `replacement` wherever the library would show `english`, its English
    /// text (for example "Next →", "Please rate all items." or "Score %1", keeping
    /// the placeholders), in every language. An empty `replacement` removes the override.
    static void setText(const QString &english, const QString &replacement);
    /// Removes every override of setText().
    static void clearTexts();

    /// Installs the library's translator in the application once (again after a
    /// new QCoreApplication). Pages call it; hosts need not.
    static void install();
};
