// The language of the library's own texts, for hosts that hold the manager.

#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/viewmodel/TovuTranslations.h>

void TovuNativeSurveyManager::setLanguage(const QLocale &language)
{
    TovuTranslations::setLanguage(language);
}

void TovuNativeSurveyManager::setLanguage(const QString &language)
{
    if (language.isEmpty())
        TovuTranslations::followHostLanguage();
    else
        TovuTranslations::setLanguage(QLocale(language));
}

void TovuNativeSurveyManager::setText(const QString &english, const QString &replacement)
{
    TovuTranslations::setText(english, replacement);
}
