#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>
#include <tovukit_io/platform/TovuSqliteKeyValueStore.h>
#include <tovukit_io/platform/TovuUserDefaults.h>

#include <QCoreApplication>
#include <QStandardPaths>

#include <memory>

namespace {

std::unique_ptr<TovuKeyValueStore> makeStandardStore()
{
    const QString path = TovuUserDefaults::standardPath();
    if (!path.isEmpty())
        return std::make_unique<TovuSqliteKeyValueStore>(path);
    TovuLog::print(">>> Tovu SDK Error: The app has no data folder for the key-value store (set the application "
                   "name first). Keeping values in memory for this run.");
    return std::make_unique<TovuMemoryKeyValueStore>();
}

} // namespace

QString TovuUserDefaults::standardPath()
{
    // Without an application name Qt answers with the folder all apps share.
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (folder.isEmpty() || QCoreApplication::applicationName().isEmpty())
        return {};
    return folder + QStringLiteral("/tovukit.sqlite");
}

TovuKeyValueStore &TovuUserDefaults::standard()
{
    static const std::unique_ptr<TovuKeyValueStore> store = makeStandardStore();
    return *store;
}
