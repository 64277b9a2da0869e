#include <tovukit_io/viewmodel/TovuTranslations.h>

#include "TovuTranslator.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPointer>

namespace {

// Once the application is whole: installing sends it an event, which its
// constructor, where startup functions run, is too early for. The sheets and
// setLanguage() install it at once where they come first.
void installAtStartup()
{
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { TovuTranslations::install(); }, Qt::QueuedConnection);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(installAtStartup)

void TovuTranslations::setLanguage(const QLocale &language)
{
    install();
    TovuTranslator::shared().setForcedLanguage(language);
}

void TovuTranslations::followHostLanguage()
{
    TovuTranslator::shared().setForcedLanguage(std::nullopt);
}

QLocale TovuTranslations::language()
{
    const QString name = TovuTranslator::shared().languageName();
    return name.isEmpty() ? QLocale(QLocale::English) : QLocale(name);
}

QStringList TovuTranslations::shippedLanguages()
{
    return {QStringLiteral("de"), QStringLiteral("fr"),    QStringLiteral("es"), QStringLiteral("pt"),
            QStringLiteral("ja"), QStringLiteral("zh_CN"), QStringLiteral("ar")};
}

Qt::LayoutDirection TovuTranslations::layoutDirection()
{
    install();
    return language().textDirection() == Qt::RightToLeft ? Qt::RightToLeft : QGuiApplication::layoutDirection();
}

void TovuTranslations::setText(const QString &english, const QString &replacement)
{
    install();
    TovuTranslator::shared().setText(english, replacement);
}

void TovuTranslations::clearTexts()
{
    TovuTranslator::shared().clearTexts();
}

void TovuTranslations::install()
{
    // A translator belongs to one application object; tests make several in turn.
    static QPointer<QCoreApplication> installedIn;
    QCoreApplication *application = QCoreApplication::instance();
    if (!application || installedIn == application)
        return;
    installedIn = application;
    QCoreApplication::installTranslator(&TovuTranslator::shared());
}
