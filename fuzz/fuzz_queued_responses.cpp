// The offline queue as it is stored, from arbitrary bytes: a queue that loads
// must store again and load back equal. JSON cannot spell NaN or infinity, so
// encoding a decoded queue has no reason to fail.

#include "TovuFuzzCheck.h"

#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/model/TovuQueuedResponse.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const TovuResult<std::vector<TovuQueuedResponse>> queue
        = tovuFuzzDecodeBothWays<std::vector<TovuQueuedResponse>>(text);
    if (queue)
        tovuFuzzCheckRoundTrip(*queue);
    return 0;
}
