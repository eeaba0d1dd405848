#ifndef MODBUSFRAME_H
#define MODBUSFRAME_H

#include <cstddef>
#include <cstdint>

// Framing arithmetic shared by the master library and the simulator: checksums,
// the ASCII encoding and the length rules that tell where an RTU frame ends.
// Frames here are "address, PDU" plus the checksum; nothing does I/O.
class ModbusFrame
{
public:
    // RTU check: CRC-16 (polynomial 0xA001, start 0xFFFF), sent low byte first.
    static uint16_t crc16(const uint8_t *data, size_t length);
    // Writes the CRC behind data[0..length) and returns length + 2.
    static size_t appendCrc(uint8_t *frame, size_t length);
    // True when the last two bytes are the CRC of the rest (length >= 3).
    static bool crcValid(const uint8_t *frame, size_t length);

    // ASCII check: two's complement of the byte sum.
    static uint8_t lrc(const uint8_t *data, size_t length);
    // True when the last byte is the LRC of the rest (length >= 2).
    static bool lrcValid(const uint8_t *frame, size_t length);

    // ':' + upper-case hex of data and its LRC + CR + delimiter. Returns the
    // character count, 0 when out (outSize) is too small.
    static size_t encodeAscii(const uint8_t *data, size_t length, uint8_t delimiter, char *out,
                              size_t outSize);
    // Hex pairs (either case) to bytes. -1 for an odd count, a character that
    // is not hexadecimal, or more bytes than outSize.
    static int decodeAscii(const char *hex, size_t length, uint8_t *out, size_t outSize);

    enum LengthResult { NeedMore = 0, Unknown = -1 };

    // Total RTU length (CRC included) of a reply that starts with frame[0..have).
    // NeedMore when more bytes are needed to tell, Unknown when the function
    // has no length rule (the line falling silent ends the frame). *countHint
    // is set when the length rests on a byte count that may lie (function 17
    // and vendor functions): the checksum then decides whether it holds.
    static int replyLength(const uint8_t *frame, size_t have, bool *countHint);
    // Total RTU length (CRC included) of a request; same results.
    static int requestLength(const uint8_t *frame, size_t have);
    // Length of the reply to request (address, PDU; no checksum), in RTU
    // bytes with CRC, or Unknown when it isn't fixed by the request.
    static int expectedReplyLength(const uint8_t *request, size_t length);
    // Function codes whose lengths follow the published rules.
    static bool isStandardFunction(int function);

    // One character time in microseconds for the given framing.
    static int64_t characterTimeUs(int baud, int dataBits, char parity, int stopBits);
    // Inter-frame silence t3.5 in microseconds (1750 above 19200 baud).
    static int64_t frameSilenceUs(int baud, int dataBits, char parity, int stopBits);
};

#endif // MODBUSFRAME_H
