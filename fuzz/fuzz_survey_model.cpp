// The survey model's own JSON form, from arbitrary bytes: what decodes must
// encode and decode to an equal survey.

#include "TovuFuzzCheck.h"

#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/model/TovuSurvey.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const TovuResult<TovuSurvey> survey = tovuFuzzDecodeBothWays<TovuSurvey>(text);
    if (survey)
        tovuFuzzCheckRoundTrip(*survey);
    return 0;
}
