// ASCII receive path: resync on ':', hex decoding, LRC, delimiters, frames
// cut off or too long, after standard and raw requests.
#include "fuzzline.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzLine line(true, data, size);
    const int which = line.flags & 0x0F;
    for (int round = 0; round < 2; ++round) {
        if (which < 8)
            runStandardCalls(line, which + round, line.flags >> 4);
        else
            runRawExchange(line, round ? 0x03 : uint8_t(0x40 + which));
    }
    return 0;
}
