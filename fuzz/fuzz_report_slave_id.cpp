// Function 17 replies, RTU or ASCII: opaque payloads, byte counts that lie,
// exceptions, frames from other slaves.
#include "fuzzline.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const bool ascii = size > 0 && (data[0] & 0x01);
    FuzzLine line(ascii, data, size);
    for (int round = 0; round < 2; ++round) {
        line.skipSilence();
        uint8_t *dest = static_cast<uint8_t *>(malloc(MODBUS_MAX_PDU_LENGTH));
        const int rc = modbus_report_slave_id(line.ctx, dest);
        if (rc > MODBUS_MAX_PDU_LENGTH)
            abort();
        free(dest);
        line.checkRecords();
    }
    return 0;
}
