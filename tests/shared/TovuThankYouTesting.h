#pragma once

// The closing question the thank-you tests build their pages and models from.

#include <tovukit_io/model/TovuSurvey.h>

#include <optional>
#include <string>
#include <utility>

namespace TovuThankYouTesting {

inline TovuQuestion thankYouQuestion(std::optional<std::string> subtitle, std::optional<std::string> redirect)
{
    return TovuQuestion{.id = "thank_you_auto",
                        .type = TovuQuestionType::thankYou,
                        .title = "Thanks a lot!",
                        .subtitle = std::move(subtitle),
                        .redirectURL = std::move(redirect)};
}

} // namespace TovuThankYouTesting
