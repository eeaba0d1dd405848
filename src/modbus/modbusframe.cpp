#include "modbus/modbusframe.h"

namespace {

const char hexDigits[] = "0123456789ABCDEF";

// CRC-16 one byte at a time; a bitwise loop costs half of an exchange's
// instructions.
struct CrcTable
{
    uint16_t entry[256];
    constexpr CrcTable()
        : entry()
    {
        for (int byte = 0; byte < 256; ++byte) {
            uint16_t crc = uint16_t(byte);
            for (int bit = 0; bit < 8; ++bit)
                crc = (crc & 1) ? uint16_t((crc >> 1) ^ 0xA001) : uint16_t(crc >> 1);
            entry[byte] = crc;
        }
    }
};
constexpr CrcTable crcTable;

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

} // namespace

uint16_t ModbusFrame::crc16(const uint8_t *data, size_t length)
{
    uint16_t crc = 0xFFFF;
    for (size_t i = 0; i < length; ++i)
        crc = uint16_t((crc >> 8) ^ crcTable.entry[(crc ^ data[i]) & 0xFF]);
    return crc;
}

size_t ModbusFrame::appendCrc(uint8_t *frame, size_t length)
{
    const uint16_t crc = crc16(frame, length);
    frame[length] = uint8_t(crc & 0xFF);
    frame[length + 1] = uint8_t(crc >> 8);
    return length + 2;
}

bool ModbusFrame::crcValid(const uint8_t *frame, size_t length)
{
    if (length < 3)
        return false;
    const uint16_t crc = crc16(frame, length - 2);
    return frame[length - 2] == (crc & 0xFF) && frame[length - 1] == (crc >> 8);
}

uint8_t ModbusFrame::lrc(const uint8_t *data, size_t length)
{
    uint8_t sum = 0;
    for (size_t i = 0; i < length; ++i)
        sum = uint8_t(sum + data[i]);
    return uint8_t(-sum);
}

bool ModbusFrame::lrcValid(const uint8_t *frame, size_t length)
{
    return length >= 2 && lrc(frame, length - 1) == frame[length - 1];
}

size_t ModbusFrame::encodeAscii(const uint8_t *data, size_t length, uint8_t delimiter, char *out,
                                size_t outSize)
{
    const size_t total = 1 + 2 * (length + 1) + 2;
    if (outSize < total)
        return 0;
    size_t pos = 0;
    out[pos++] = ':';
    for (size_t i = 0; i <= length; ++i) {
        const uint8_t byte = i < length ? data[i] : lrc(data, length);
        out[pos++] = hexDigits[byte >> 4];
        out[pos++] = hexDigits[byte & 0x0F];
    }
    out[pos++] = '\r';
    out[pos++] = char(delimiter);
    return pos;
}

int ModbusFrame::decodeAscii(const char *hex, size_t length, uint8_t *out, size_t outSize)
{
    if (length % 2 != 0 || length / 2 > outSize)
        return -1;
    for (size_t i = 0; i < length; i += 2) {
        const int high = hexValue(hex[i]);
        const int low = hexValue(hex[i + 1]);
        if (high < 0 || low < 0)
            return -1;
        out[i / 2] = uint8_t(high << 4 | low);
    }
    return int(length / 2);
}

bool ModbusFrame::isStandardFunction(int function)
{
    switch (function) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 7:
    case 8:
    case 11:
    case 12:
    case 15:
    case 16:
    case 17:
    case 20:
    case 21:
    case 22:
    case 23:
    case 24:
    case 43:
        return true;
    default:
        return false;
    }
}

int ModbusFrame::replyLength(const uint8_t *frame, size_t have, bool *countHint)
{
    if (countHint)
        *countHint = false;
    if (have < 2)
        return NeedMore;
    const int function = frame[1];
    if (function & 0x80)
        return 5;
    switch (function) {
    case 5:
    case 6:
    case 8:
    case 11:
    case 15:
    case 16:
        return 8;
    case 7:
        return 5;
    case 22:
        return 10;
    case 24:
        return have < 4 ? int(NeedMore) : 6 + (frame[2] << 8 | frame[3]);
    case 43:
        return Unknown;
    case 1:
    case 2:
    case 3:
    case 4:
    case 12:
    case 20:
    case 21:
    case 23:
        return have < 3 ? int(NeedMore) : 5 + frame[2];
    default:
        // Function 17 and vendor functions: the third byte is taken for a
        // byte count, which the checksum has to confirm.
        if (countHint)
            *countHint = true;
        return have < 3 ? int(NeedMore) : 5 + frame[2];
    }
}

int ModbusFrame::requestLength(const uint8_t *frame, size_t have)
{
    if (have < 2)
        return NeedMore;
    switch (frame[1]) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 8:
        return 8;
    case 7:
    case 11:
    case 12:
    case 17:
        return 4;
    case 15:
    case 16:
        return have < 7 ? int(NeedMore) : 9 + frame[6];
    case 20:
    case 21:
        return have < 3 ? int(NeedMore) : 5 + frame[2];
    case 22:
        return 10;
    case 23:
        return have < 11 ? int(NeedMore) : 13 + frame[10];
    case 24:
        return 6;
    default:
        return Unknown;
    }
}

int ModbusFrame::expectedReplyLength(const uint8_t *request, size_t length)
{
    if (length < 2)
        return Unknown;
    const int function = request[1];
    const int quantity = length >= 6 ? (request[4] << 8 | request[5]) : -1;
    switch (function) {
    case 1:
    case 2:
        return quantity < 0 ? int(Unknown) : 5 + (quantity + 7) / 8;
    case 3:
    case 4:
        return quantity < 0 ? int(Unknown) : 5 + 2 * quantity;
    case 5:
    case 6:
    case 8:
    case 11:
    case 15:
    case 16:
        return 8;
    case 7:
        return 5;
    case 22:
        return 10;
    default:
        return Unknown;
    }
}

int64_t ModbusFrame::characterTimeUs(int baud, int dataBits, char parity, int stopBits)
{
    if (baud <= 0)
        return 0;
    const int bits = 1 + dataBits + (parity == 'N' ? 0 : 1) + stopBits;
    return (int64_t(bits) * 1000000 + baud - 1) / baud;
}

int64_t ModbusFrame::frameSilenceUs(int baud, int dataBits, char parity, int stopBits)
{
    if (baud > 19200)
        return 1750;
    return characterTimeUs(baud, dataBits, parity, stopBits) * 7 / 2;
}
