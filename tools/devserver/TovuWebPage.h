#pragma once

#include <tovukit_io/model/TovuSurvey.h>

#include <string>
#include <string_view>

/// The hosted survey page: the converted survey as a plain HTML form that
/// reports to an embedding web view through the "surveyResponse" message
/// handler ({"type": "surveyLoaded"} once loaded, {"type": "surveyCompleted"}
/// on submit). Survey text is untrusted, so every piece of it is escaped and
/// none of it reaches the script.
class TovuWebPage
{
public:
    static std::string render(const TovuSurvey &survey);
    static std::string notFound(std::string_view surveyId);
    /// For a document the library itself would refuse.
    static std::string unreadable(std::string_view surveyId, std::string_view reason);

    /// Text for HTML content and double-quoted attribute values.
    static std::string escape(std::string_view text);

    TovuWebPage() = delete;
};
