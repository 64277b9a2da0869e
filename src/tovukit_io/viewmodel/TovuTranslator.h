#pragma once

#include <QHash>
#include <QLocale>
#include <QMutex>
#include <QString>
#include <QTranslator>

#include <optional>

/// The one translator of the library's texts: overrides first, then the catalogue
/// of the chosen language, loaded from the library's resources when the choice
/// changes. It answers only for the library's own contexts (named "Tovu…"), from
/// any thread, as QCoreApplication::translate() may be called.
class TovuTranslator : public QTranslator
{
public:
    static TovuTranslator &shared();

    void setForcedLanguage(std::optional<QLocale> language);
    /// The shipped language's name ("de"), or an empty text for English.
    QString languageName() const;
    void setText(const QString &english, const QString &replacement);
    void clearTexts();

    QString translate(const char *context, const char *sourceText, const char *disambiguation = nullptr,
                      int n = -1) const override;
    bool isEmpty() const override { return false; }

private:
    TovuTranslator() = default;
    void loadCatalogue(const QString &name) const;
    QString languageNameLocked() const;

    mutable QMutex m_mutex;
    std::optional<QLocale> m_forcedLanguage;
    QHash<QString, QString> m_texts;
    mutable QTranslator m_catalogue;
    mutable std::optional<QString> m_catalogueName;
};
