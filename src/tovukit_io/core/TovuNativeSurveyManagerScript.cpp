// The manager's operations with QML's types: maps, lists and script callbacks.

#include <tovukit_io/core/TovuNativeSurveyManager.h>

#include <tovukit_io/core/TovuScriptCallbacks.h>
#include <tovukit_io/model/TovuLog.h>

#include <map>
#include <utility>

namespace {

std::optional<std::string> textIn(const QVariantMap &map, const QString &key)
{
    const QString text = map.value(key).toString();
    return text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
}

std::optional<QColor> colorIn(const QVariantMap &map, const QString &key)
{
    const QVariant value = map.value(key);
    const QColor color = value.canConvert<QColor>() ? value.value<QColor>() : QColor();
    return color.isValid() ? std::optional(color) : std::nullopt;
}

TovuAppTheme appTheme(const QVariantMap &map)
{
    TovuAppTheme theme;
    theme.primaryColor = colorIn(map, QStringLiteral("primaryColor"));
    theme.backgroundColor = colorIn(map, QStringLiteral("backgroundColor"));
    theme.textColor = colorIn(map, QStringLiteral("textColor"));
    if (const auto family = textIn(map, QStringLiteral("fontFamily")))
        theme.fontFamily = QString::fromStdString(*family);
    bool isNumber = false;
    const qreal radius = map.value(QStringLiteral("cornerRadius")).toReal(&isNumber);
    if (isNumber)
        theme.cornerRadius = radius;
    theme.showsProgress = map.value(QStringLiteral("showsProgress")).toBool();
    return theme;
}

} // namespace

void TovuNativeSurveyManager::configure(const QVariantMap &options)
{
    const std::string apiKey = textIn(options, QStringLiteral("apiKey")).value_or(std::string());
    const std::string zone = textIn(options, QStringLiteral("zone")).value_or(std::string());
    const auto environment
        = textIn(options, QStringLiteral("environment")) == "uat" ? TovuEnvironment::uat : TovuEnvironment::production;
    if (const auto surveyId = textIn(options, QStringLiteral("surveyId")))
        configure(apiKey, TovuSurveyId{*surveyId}, zone, environment);
    else if (const auto collectorId = textIn(options, QStringLiteral("collectorId")))
        configure(apiKey, TovuCollectorId{*collectorId}, zone, environment);
    else
        TovuLog::print(">>> Tovu SDK Error: configure() needs a collectorId or a surveyId.");
}

void TovuNativeSurveyManager::configureTheme(const QVariantMap &theme)
{
    configureTheme(appTheme(theme));
}

void TovuNativeSurveyManager::setUser(const QVariantMap &user)
{
    static const std::map<QString, std::optional<std::string> TovuUserData::*> fields{
        {QStringLiteral("name"), &TovuUserData::name},       {QStringLiteral("email"), &TovuUserData::email},
        {QStringLiteral("phone"), &TovuUserData::phone},     {QStringLiteral("uniqueId"), &TovuUserData::uniqueId},
        {QStringLiteral("country"), &TovuUserData::country}, {QStringLiteral("city"), &TovuUserData::city},
        {QStringLiteral("region"), &TovuUserData::region},
    };
    TovuUserData data;
    for (auto entry = user.cbegin(); entry != user.cend(); ++entry) {
        const std::string value = entry.value().toString().toStdString();
        if (const auto field = fields.find(entry.key()); field != fields.end())
            data.*(field->second) = value;
        else
            data.eData.emplace()[entry.key().toStdString()] = value;
    }
    setUser(std::move(data));
}

void TovuNativeSurveyManager::fetchAndPresentLowestResponseSurvey(const QStringList &surveyIds, QObject *host)
{
    std::vector<std::string> ids;
    for (const QString &id : surveyIds)
        ids.push_back(id.toStdString());
    fetchAndPresentLowestResponseSurvey(std::move(ids), host);
}

void TovuNativeSurveyManager::fetchAndPresentLowestResponseSurvey(std::initializer_list<std::string> surveyIds,
                                                                  QObject *host)
{
    fetchAndPresentLowestResponseSurvey(std::vector<std::string>(surveyIds), host);
}

void TovuNativeSurveyManager::flushQueue(const QVariant &callback)
{
    flushQueue([callback](bool allSent) { TovuScriptCallbacks::call(callback, {allSent}); });
}

int TovuNativeSurveyManager::queuedResponseCount() const
{
    return static_cast<int>(getQueuedResponses().size());
}
