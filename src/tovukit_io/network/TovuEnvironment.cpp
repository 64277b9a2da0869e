#include <tovukit_io/network/TovuEnvironment.h>

std::string_view rawValue(TovuEnvironment environment)
{
    return environment == TovuEnvironment::uat ? "uat" : "production";
}

template<>
std::optional<TovuEnvironment> fromRawValue<TovuEnvironment>(std::string_view text)
{
    if (text == "production")
        return TovuEnvironment::production;
    if (text == "uat")
        return TovuEnvironment::uat;
    return std::nullopt;
}
