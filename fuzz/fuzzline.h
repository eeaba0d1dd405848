#ifndef FUZZLINE_H
#define FUZZLINE_H

// Shared by the fuzz targets: a context whose line replays the fuzzer's
// bytes, and buffers sized exactly as the API promises, so that ASan
// catches any write beyond them.

#include "modbus/modbus.h"
#include "modbus/modbuscontext.h"
#include "modbus/modbusmemorylink.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

struct FuzzLine
{
    // Input layout: [flags][burst separator][line bytes...]; every
    // separator byte in the line bytes is a silence longer than the byte
    // timeout.
    FuzzLine(bool ascii, const uint8_t *data, size_t size)
    {
        flags = size > 0 ? data[0] : 0;
        const int separator = size > 1 ? data[1] : -1;
        if (ascii) {
            modbus_ascii_set_delimiter((flags & 0x80) ? '\r' : '\n');
            ctx = modbus_new_ascii("/dev/null", 9600, 'E', 7, 1);
        } else {
            ctx = modbus_new_rtu("/dev/null", 19200, 'E', 8, 1);
        }
        link = new ModbusMemoryLink;
        if (size > 2)
            link->setInput(data + 2, size - 2, separator);
        modbus_set_link(ctx, link);
        modbus_set_slave(ctx, (flags & 0x40) ? 0x11 : 1);
    }
    ~FuzzLine() { modbus_free(ctx); }

    // The RTU silence before a request is real time; the scripted line
    // needs none.
    void skipSilence() { ctx->lastActivityUs = 0; }

    void checkRecords() const
    {
        if (modbus_get_rx_msg(ctx)->length > MODBUS_MSG_BUFFER_SIZE
            || modbus_get_tx_msg(ctx)->length > MODBUS_MSG_BUFFER_SIZE)
            abort();
        timeval t1, t2;
        modbus_get_response_time1(ctx, &t1);
        modbus_get_response_time2(ctx, &t2);
        if (t1.tv_usec >= 1000000 || t2.tv_usec >= 1000000)
            abort();
    }

    uint8_t flags = 0;
    modbus_t *ctx = nullptr;
    ModbusMemoryLink *link = nullptr; // owned by ctx
};

// The standard calls, each with a destination of exactly the promised size.
inline void runStandardCalls(FuzzLine &line, int which, int quantity)
{
    modbus_t *ctx = line.ctx;
    int rc = 0;
    switch (which % 8) {
    case 0: {
        const int nb = 1 + quantity % MODBUS_MAX_READ_REGISTERS;
        std::vector<uint16_t> dest(size_t(nb), 0);
        rc = modbus_read_registers(ctx, 0, nb, dest.data());
        if (rc > nb)
            abort();
        break;
    }
    case 1: {
        const int nb = 1 + quantity % MODBUS_MAX_READ_REGISTERS;
        std::vector<uint16_t> dest(size_t(nb), 0);
        rc = modbus_read_input_registers(ctx, 100, nb, dest.data());
        if (rc > nb)
            abort();
        break;
    }
    case 2: {
        const int nb = 1 + (quantity * 8 + 7) % MODBUS_MAX_READ_BITS;
        std::vector<uint8_t> dest(size_t(nb), 0);
        rc = modbus_read_bits(ctx, 0, nb, dest.data());
        if (rc > nb)
            abort();
        break;
    }
    case 3: {
        const int nb = 1 + quantity % 64;
        std::vector<uint8_t> dest(size_t(nb), 0);
        rc = modbus_read_input_bits(ctx, 7, nb, dest.data());
        break;
    }
    case 4:
        rc = modbus_write_register(ctx, 0x10, 0x1234);
        break;
    case 5: {
        const uint16_t values[3] = {1, 2, 3};
        rc = modbus_write_registers(ctx, 0x10, 3, values);
        break;
    }
    case 6:
        rc = modbus_write_bit(ctx, 3, 1);
        break;
    case 7: {
        uint8_t *dest = static_cast<uint8_t *>(malloc(MODBUS_MAX_PDU_LENGTH));
        rc = modbus_report_slave_id(ctx, dest);
        if (rc > MODBUS_MAX_PDU_LENGTH)
            abort();
        free(dest);
        break;
    }
    }
    (void)rc;
    line.checkRecords();
}

// A raw request for function and its confirmation into a buffer of exactly
// MODBUS_MAX_ADU_LENGTH bytes.
inline void runRawExchange(FuzzLine &line, uint8_t function)
{
    uint8_t request[]
        = {uint8_t(modbus_get_slave(line.ctx)), function, 0x00, 0x00, 0x10, 0x00, 0x40};
    if (modbus_send_raw_request(line.ctx, request, int(sizeof request)) < 0)
        return;
    uint8_t *rsp = static_cast<uint8_t *>(malloc(MODBUS_MAX_ADU_LENGTH));
    const int rc = modbus_receive_confirmation(line.ctx, rsp);
    if (rc > MODBUS_MAX_ADU_LENGTH)
        abort();
    free(rsp);
    line.checkRecords();
}

#endif // FUZZLINE_H
