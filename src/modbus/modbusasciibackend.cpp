#include "modbus/modbusasciibackend.h"

#include "modbus/modbusframe.h"

#include <cerrno>
#include <cstring>

namespace {

// Hex characters plus CR between ':' and the delimiter.
const int maxBody = MODBUS_ASCII_MAX_ADU_LENGTH - 2;

// Keeps a frame that could not be decoded as the characters that came.
void recordRawFrame(modbus_t *ctx, const char *body, int length, int end)
{
    uint8_t raw[MODBUS_ASCII_MAX_ADU_LENGTH + 1];
    int n = 0;
    raw[n++] = ':';
    std::memcpy(raw + n, body, size_t(length));
    n += length;
    if (end >= 0)
        raw[n++] = uint8_t(end);
    ctx->recordRx(raw, n);
}

// Whether a frame cut off after length characters may be the reply of
// slave; one too short to tell counts as the reply.
bool mayBeFromSlave(const char *body, int length, int slave)
{
    uint8_t address;
    if (length < 2 || ModbusFrame::decodeAscii(body, 2, &address, 1) != 1)
        return true;
    return address == slave;
}

} // namespace

int ModbusAsciiBackend::send(modbus_t *ctx, const uint8_t *request, int length)
{
    char line[MODBUS_ASCII_MAX_ADU_LENGTH];
    const size_t total = length >= 2
        ? ModbusFrame::encodeAscii(request, size_t(length), m_delimiter, line, sizeof line)
        : 0;
    if (total == 0) {
        errno = EINVAL;
        return -1;
    }
    ctx->link->discardInput();

    uint8_t record[MODBUS_MAX_ADU_LENGTH];
    std::memcpy(record, request, size_t(length));
    record[length] = ModbusFrame::lrc(request, size_t(length));
    ctx->exchangeStartUs = _modbus::nowUs();
    ctx->recordTx(record, length + 1);
    const int rc = ctx->link->write(reinterpret_cast<const uint8_t *>(line), int(total),
                                    ctx->responseTimeoutUs);
    ctx->lastActivityUs = _modbus::nowUs();
    return rc < 0 ? -1 : rc;
}

int ModbusAsciiBackend::receive(modbus_t *ctx, int slave, uint8_t *frame)
{
    ModbusLink *link = ctx->link.get();
    const int64_t deadline = _modbus::nowUs() + ctx->responseTimeoutUs;
    char body[maxBody];
    int bodyLength = 0;
    bool inFrame = false;
    uint8_t chunk[64];

    for (;;) {
        int64_t wait = ctx->frameByteTimeoutUs();
        if (!inFrame) {
            wait = deadline - _modbus::nowUs();
            if (wait <= 0) {
                errno = ETIMEDOUT;
                return -1;
            }
        }
        const int ready = link->waitReadable(wait);
        if (ready < 0)
            return -1;
        if (ready == 0) {
            if (!inFrame) {
                errno = ETIMEDOUT;
                return -1;
            }
            // The frame stopped midway.
            recordRawFrame(ctx, body, bodyLength, -1);
            inFrame = false;
            if (mayBeFromSlave(body, bodyLength, slave)) {
                errno = ETIMEDOUT;
                return -1;
            }
            continue;
        }
        const int k = link->read(chunk, int(sizeof chunk));
        if (k < 0)
            return -1;
        if (k > 0)
            ctx->lastActivityUs = _modbus::nowUs();

        for (int i = 0; i < k; ++i) {
            const char c = char(chunk[i]);
            if (inFrame && c == char(m_delimiter) && bodyLength > 0
                && body[bodyLength - 1] == '\r') {
                inFrame = false;
                uint8_t bytes[MODBUS_MAX_ADU_LENGTH];
                const int n
                    = ModbusFrame::decodeAscii(body, size_t(bodyLength - 1), bytes, sizeof bytes);
                if (n < 3) {
                    // Odd length, a character that is not hex, or too short.
                    recordRawFrame(ctx, body, bodyLength, c);
                    link->discardInput();
                    errno = EMBBADDATA;
                    return -1;
                }
                ctx->recordRx(bytes, n);
                if (!ModbusFrame::lrcValid(bytes, size_t(n))) {
                    link->discardInput();
                    errno = EMBBADCRC;
                    return -1;
                }
                if (bytes[0] != slave)
                    continue; // another slave's frame: ours may still come
                std::memcpy(frame, bytes, size_t(n));
                return n;
            }
            if (c == ':') {
                // A new start abandons a frame in progress (resync), but
                // not for ever: a line chattering colons ends at the timeout.
                if (inFrame && _modbus::nowUs() > deadline) {
                    recordRawFrame(ctx, body, bodyLength, -1);
                    errno = ETIMEDOUT;
                    return -1;
                }
                inFrame = true;
                bodyLength = 0;
                ctx->markReplyStart();
                continue;
            }
            if (!inFrame)
                continue; // noise between frames
            if (bodyLength == maxBody) {
                // Longer than any frame: drop it and wait for the next ':'.
                recordRawFrame(ctx, body, bodyLength, -1);
                inFrame = false;
                continue;
            }
            body[bodyLength++] = c;
        }
    }
}
