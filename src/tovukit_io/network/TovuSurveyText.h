#pragma once

// Internal: how the survey document's HTML-formatted texts become the plain
// texts the views show.

#include <string>
#include <string_view>

namespace TovuSurveyText {

/// Removes tags ("<[^>]+>"), decodes the entities &nbsp; &amp; &lt; &gt; &quot;
/// &#39; one after the other, in that order (so "&amp;lt;" ends as "<", as the
/// backend's own renderer does), and trims white space and line breaks,
/// Unicode ones included, at both ends.
std::string clean(std::string_view html);

/// White space and line breaks trimmed at both ends.
std::string_view trimmed(std::string_view text);

} // namespace TovuSurveyText
