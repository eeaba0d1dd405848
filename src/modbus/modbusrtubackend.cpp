#include "modbus/modbusrtubackend.h"

#include "modbus/modbusframe.h"

#include <cerrno>
#include <cstring>
#include <ctime>

namespace {

void sleepUs(int64_t us)
{
    timespec ts {time_t(us / 1000000), long(us % 1000000) * 1000};
    while (nanosleep(&ts, &ts) != 0 && errno == EINTR) { }
}

} // namespace

int ModbusRtuBackend::send(modbus_t *ctx, const uint8_t *request, int length)
{
    uint8_t adu[MODBUS_MAX_ADU_LENGTH];
    if (length < 2 || length + 2 > MODBUS_RTU_MAX_ADU_LENGTH) {
        errno = EINVAL;
        return -1;
    }
    std::memcpy(adu, request, size_t(length));
    const int total = int(ModbusFrame::appendCrc(adu, size_t(length)));

    // A frame starts after 3.5 characters of silence, or the slaves take it
    // for the tail of the previous one.
    if (ctx->lastActivityUs) {
        const int64_t silence
            = ModbusFrame::frameSilenceUs(ctx->baud, ctx->dataBits, ctx->parity, ctx->stopBits);
        const int64_t wait = ctx->lastActivityUs + silence - _modbus::nowUs();
        if (wait > 0)
            sleepUs(wait);
    }
    // Whatever waits now cannot answer this request: a late reply left in
    // the line would be taken for the next one.
    ctx->link->discardInput();

    ctx->exchangeStartUs = _modbus::nowUs();
    ctx->recordTx(adu, total);
    const int rc = ctx->link->write(adu, total, ctx->responseTimeoutUs);
    ctx->lastActivityUs = _modbus::nowUs();
    return rc < 0 ? -1 : rc;
}

int ModbusRtuBackend::receive(modbus_t *ctx, int slave, uint8_t *frame)
{
    ModbusLink *link = ctx->link.get();
    const int64_t deadline = _modbus::nowUs() + ctx->responseTimeoutUs;

    for (;;) {
        // The start of a frame is awaited until the response timeout only.
        const int64_t left = deadline - _modbus::nowUs();
        if (left <= 0) {
            errno = ETIMEDOUT;
            return -1;
        }
        const int ready = link->waitReadable(left);
        if (ready < 0)
            return -1;
        if (ready == 0) {
            errno = ETIMEDOUT;
            return -1;
        }

        int n = 0;
        int target = 5; // no reply is shorter: read that much before judging
        int ruleLength = 0;
        bool countHint = false; // length from a byte count the CRC must confirm
        bool open = false; // no usable length rule: silence ends the frame
        bool complete = false;
        for (;;) {
            if (n < target) {
                const int k = link->read(frame + n, target - n);
                if (k < 0)
                    return -1;
                if (k == 0) {
                    if (n == 0)
                        break; // woken without data
                    const int more = link->waitReadable(ctx->frameByteTimeoutUs());
                    if (more < 0)
                        return -1;
                    if (more == 0)
                        break; // silence inside the frame
                    continue;
                }
                if (n == 0)
                    ctx->markReplyStart();
                n += k;
                ctx->lastActivityUs = _modbus::nowUs();
                if (n < target)
                    continue;
            }
            if (open)
                break; // the largest frame: nothing longer can be valid
            const int length = ModbusFrame::replyLength(frame, size_t(n), &countHint);
            if (length == ModbusFrame::NeedMore) {
                target = n + 1;
                continue;
            }
            if (length == ModbusFrame::Unknown) {
                open = true;
                target = MODBUS_MAX_ADU_LENGTH;
                continue;
            }
            ruleLength = length < MODBUS_MAX_ADU_LENGTH ? length : MODBUS_MAX_ADU_LENGTH;
            if (ruleLength > n) {
                target = ruleLength;
                continue;
            }
            if (countHint && !ModbusFrame::crcValid(frame, size_t(n))) {
                // The byte count lied; the frame goes on until the line is quiet.
                open = true;
                target = MODBUS_MAX_ADU_LENGTH;
                continue;
            }
            complete = true;
            break;
        }
        if (n == 0)
            continue;

        ctx->recordRx(frame, n);
        if (complete) {
            if (!ModbusFrame::crcValid(frame, size_t(n))) {
                link->discardInput();
                errno = EMBBADCRC;
                return -1;
            }
            if (frame[0] != slave)
                continue; // another slave's frame: ours may still come
            return n;
        }
        // Ended by silence (or by size) before its length rule was met.
        if ((open || countHint) && n >= 4 && ModbusFrame::crcValid(frame, size_t(n))) {
            if (frame[0] != slave)
                continue;
            return n;
        }
        if (frame[0] != slave)
            continue; // noise, or another slave's frame cut short
        if (open) {
            link->discardInput();
            errno = EMBBADCRC;
        } else {
            errno = ETIMEDOUT; // our reply stopped midway
        }
        return -1;
    }
}
