#include "TovuTranslator.h"

#include <tovukit_io/viewmodel/TovuTranslations.h>

namespace {

// The shipped language `locale` asks for, or an empty text for English. The
// locale's preferred languages are tried in order; English stops the search.
QString shippedNameFor(const QLocale &locale)
{
    const QStringList shipped = TovuTranslations::shippedLanguages();
    for (const QString &wanted : locale.uiLanguages()) {
        const QLocale candidate(wanted);
        if (candidate.language() == QLocale::English)
            return {};
        for (const QString &name : shipped) {
            const bool traditional = candidate.script() == QLocale::TraditionalHanScript;
            if (QLocale(name).language() == candidate.language() && !traditional)
                return name;
        }
    }
    return {};
}

} // namespace

TovuTranslator &TovuTranslator::shared()
{
    static TovuTranslator translator;
    return translator;
}

void TovuTranslator::setForcedLanguage(std::optional<QLocale> language)
{
    const QMutexLocker locker(&m_mutex);
    m_forcedLanguage = std::move(language);
}

QString TovuTranslator::languageName() const
{
    const QMutexLocker locker(&m_mutex);
    return languageNameLocked();
}

QString TovuTranslator::languageNameLocked() const
{
    return shippedNameFor(m_forcedLanguage.value_or(QLocale()));
}

void TovuTranslator::setText(const QString &english, const QString &replacement)
{
    const QMutexLocker locker(&m_mutex);
    if (replacement.isEmpty())
        m_texts.remove(english);
    else
        m_texts.insert(english, replacement);
}

void TovuTranslator::clearTexts()
{
    const QMutexLocker locker(&m_mutex);
    m_texts.clear();
}

QString TovuTranslator::translate(const char *context, const char *sourceText, const char *disambiguation, int n) const
{
    if (!context || !sourceText || qstrncmp(context, "Tovu", 4) != 0)
        return {};
    const QMutexLocker locker(&m_mutex);
    if (!m_texts.isEmpty()) {
        const auto text = m_texts.constFind(QString::fromUtf8(sourceText));
        if (text != m_texts.constEnd())
            return *text;
    }
    loadCatalogue(languageNameLocked());
    return m_catalogue.translate(context, sourceText, disambiguation, n);
}

void TovuTranslator::loadCatalogue(const QString &name) const
{
    if (m_catalogueName == name)
        return;
    m_catalogueName = name;
    // English is the source text: no file only empties the catalogue.
    const QString file = name.isEmpty() ? QString() : QStringLiteral(":/tovukit/i18n/tovukit_") + name + u".qm";
    static_cast<void>(m_catalogue.load(file));
}
