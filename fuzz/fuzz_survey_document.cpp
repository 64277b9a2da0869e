// The backend's survey document, from arbitrary bytes: whatever the decoder
// accepts must convert to a survey that survives storage unchanged.

#include "TovuFuzzCheck.h"

#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/network/TovuAPISurveyData.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const TovuResult<TovuAPIMainResponse> document = tovuFuzzDecodeBothWays<TovuAPIMainResponse>(text);
    if (!document)
        return 0;

    const TovuSurvey survey = document->data.toNativeSurvey();
    if (survey.questions.empty() || survey.questions.back().id != "thank_you_auto"
        || survey.questions.back().type != TovuQuestionType::thankYou)
        tovuFuzzFail("the converted survey does not end with the closing question");

    tovuFuzzCheckRoundTrip(survey);

    // Tools and tests write documents with the document encoder; what it writes
    // must convert to the very same survey.
    const TovuResult<std::string> rewritten = tovuEncode(*document);
    if (!rewritten)
        tovuFuzzFail("a decoded document does not encode", rewritten.error().localizedDescription());
    const TovuResult<TovuAPIMainResponse> reread = tovuDecode<TovuAPIMainResponse>(*rewritten);
    if (!reread)
        tovuFuzzFail("a re-encoded document does not decode",
                     reread.error().localizedDescription() + "\n" + *rewritten);
    if (!(reread->data.toNativeSurvey() == survey))
        tovuFuzzFail("a re-encoded document converts to another survey", *rewritten);
    return 0;
}
