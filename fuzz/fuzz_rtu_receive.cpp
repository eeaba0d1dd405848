// RTU receive path: any bytes, in any bursts, after any standard request or
// a raw one, twice in a row so that leftovers meet the second exchange.
#include "fuzzline.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzLine line(false, data, size);
    const int which = line.flags & 0x0F;
    for (int round = 0; round < 2; ++round) {
        line.skipSilence();
        if (which < 8)
            runStandardCalls(line, which + round, line.flags >> 4);
        else
            runRawExchange(line, round ? 0x03 : uint8_t(0x40 + which));
    }
    return 0;
}
