#include <tovukit_io/web/TovuScriptMessage.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

namespace {

// What the console shows of a body at most; the rest is cut.
constexpr qsizetype maxPrintedLength = 512;

QString shortened(const QString &text)
{
    if (text.size() <= maxPrintedLength)
        return text;
    return text.left(maxPrintedLength) + QStringLiteral("… (%1 characters)").arg(text.size());
}

QString printedValue(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Array:
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    default:
        // Scalars: wrapped in an array so the document writer takes them, then unwrapped.
        const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        return QString::fromUtf8(array.mid(1, array.size() - 2));
    }
}

} // namespace

TovuScriptMessage::Body TovuScriptMessage::read(const QString &text, qsizetype maxLength)
{
    if (text.size() > maxLength)
        return Unreadable{QStringLiteral("more than %1 characters").arg(maxLength)};
    // Qt's reader takes any top-level value and refuses nesting deeper than it can
    // convert safely, with its own reason.
    QJsonParseError error{};
    const QByteArray utf8 = text.toUtf8();
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray("[") + utf8 + ']', &error);
    if (error.error != QJsonParseError::NoError)
        return Unreadable{error.errorString() + QStringLiteral(": ") + shortened(text)};
    if (document.array().size() != 1)
        return Unreadable{QStringLiteral("not one JSON value: ") + shortened(text)};
    const QJsonValue value = document.array().first();
    if (!value.isObject())
        return NotDictionary{shortened(printedValue(value))};
    return value.toObject().toVariantMap();
}

QString TovuScriptMessage::printed(const QVariantMap &dictionary)
{
    return QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(dictionary)).toJson(QJsonDocument::Compact));
}
