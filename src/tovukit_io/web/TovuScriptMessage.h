#pragma once

// Internal: what the page posted, read from the text the bridge carries.

#include <QString>
#include <QVariant>

#include <variant>

/// One message of the page: a dictionary, another JSON value, or text that
/// could not be read at all.
class TovuScriptMessage
{
public:
    /// A body that is JSON but not an object: what it is, printed.
    struct NotDictionary {
        QString printed;
    };
    /// A body that is not JSON, or too large or too deeply nested to read.
    struct Unreadable {
        QString reason;
    };
    using Body = std::variant<QVariantMap, NotDictionary, Unreadable>;

    /// Never throws, whatever the text; refuses more than `maxLength` characters unread.
    static Body read(const QString &text, qsizetype maxLength);

    /// A dictionary as the console shows it: compact JSON, keys in order.
    static QString printed(const QVariantMap &dictionary);

    TovuScriptMessage() = delete;
};
