#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>
#include <tovukit_io/platform/TovuUserDefaults.h>

#include <QDir>
#include <QStandardPaths>

QString TovuUserDefaults::standardPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/tovukit.sqlite");
}

TovuKeyValueStore &TovuUserDefaults::standard()
{
    static TovuMemoryKeyValueStore store;
    return store;
}
