#include <tovukit_io/web/UserDefaultsHelper.h>

#include <tovukit_io/platform/TovuUserDefaults.h>

void UserDefaultsHelper::set(std::int64_t value, std::string_view key)
{
    store().setInteger(key, value);
}

TovuKeyValueStore &UserDefaultsHelper::store()
{
    return TovuUserDefaults::standard();
}
