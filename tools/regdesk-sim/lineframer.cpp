#include "lineframer.h"

#include "modbus/modbusframe.h"

namespace {

const uint8_t *bytes(const QByteArray &a)
{
    return reinterpret_cast<const uint8_t *>(a.constData());
}

const char hexDigits[] = "0123456789ABCDEF";

} // namespace

LineFramer::LineFramer(int protocol, int delimiter)
    : m_protocol(protocol)
    , m_delimiter(char(delimiter))
{
}

int LineFramer::requestLength(const uint8_t *frame, int have)
{
    if (have < 2)
        return 0;
    switch (frame[1]) {
    case 0x42:
        return 4;
    case 0x46:
        return 6;
    case 0x41:
        return 10;
    case 0x45:
        return 12;
    default:
        break;
    }
    const int n = ModbusFrame::requestLength(frame, size_t(have));
    return n == ModbusFrame::Unknown ? -1 : n;
}

QList<QByteArray> LineFramer::feed(const QByteArray &data)
{
    if (m_protocol == 1)
        return feedAscii(data);
    m_buffer.append(data);
    // A line that never falls silent: no frame is longer than this.
    if (m_buffer.size() > 8 * maxRtuFrame)
        m_buffer.remove(0, m_buffer.size() - 2 * maxRtuFrame);
    return parseRtu(false);
}

QList<QByteArray> LineFramer::silence()
{
    if (m_protocol == 1)
        return {};
    QList<QByteArray> frames = parseRtu(true);
    m_buffer.clear();
    return frames;
}

QList<QByteArray> LineFramer::parseRtu(bool atSilence)
{
    QList<QByteArray> frames;
    while (m_buffer.size() >= 4) {
        const int have = int(m_buffer.size());
        int length = requestLength(bytes(m_buffer), have);
        if (length < 0) {
            // No length rule: the frame runs to the end of what has come, as
            // a silence would end it. One checksum per place keeps a long run
            // of garbage cheap.
            if (have <= maxRtuFrame && ModbusFrame::crcValid(bytes(m_buffer), size_t(have))) {
                length = have;
            } else {
                if (!atSilence && have < maxRtuFrame)
                    break;
                m_buffer.remove(0, 1);
                continue;
            }
        } else if (length == 0 || length > have) {
            if (length > maxRtuFrame || atSilence) {
                m_buffer.remove(0, 1);
                continue;
            }
            break;
        }
        if (length <= maxRtuFrame && ModbusFrame::crcValid(bytes(m_buffer), size_t(length))) {
            frames << m_buffer.left(length - 2);
            m_buffer.remove(0, length);
        } else {
            // Out of step: slide one byte and look again.
            m_buffer.remove(0, 1);
        }
    }
    return frames;
}

QList<QByteArray> LineFramer::feedAscii(const QByteArray &data)
{
    QList<QByteArray> frames;
    for (const char c : data) {
        if (c == ':') {
            // A colon always starts a frame, whatever came before.
            m_buffer.clear();
            m_inFrame = true;
            m_sawCr = false;
            continue;
        }
        if (!m_inFrame)
            continue;
        if (m_sawCr) {
            if (c == m_delimiter) {
                uint8_t decoded[256];
                const int n = ModbusFrame::decodeAscii(
                    m_buffer.constData(), size_t(m_buffer.size()), decoded, sizeof decoded);
                if (n >= 3 && ModbusFrame::lrcValid(decoded, size_t(n)))
                    frames << QByteArray(reinterpret_cast<const char *>(decoded), n - 1);
            }
            m_buffer.clear();
            m_inFrame = false;
            m_sawCr = false;
            continue;
        }
        if (c == '\r') {
            m_sawCr = true;
            continue;
        }
        m_buffer.append(c);
        if (m_buffer.size() > maxAsciiFrame) {
            m_buffer.clear();
            m_inFrame = false;
        }
    }
    return frames;
}

QByteArray LineFramer::encode(const QByteArray &adu, bool badChecksum) const
{
    if (m_protocol == 1) {
        QByteArray out(1 + 2 * (adu.size() + 1) + 2, '\0');
        const size_t n = ModbusFrame::encodeAscii(
            bytes(adu), size_t(adu.size()), uint8_t(m_delimiter), out.data(), size_t(out.size()));
        out.truncate(int(n));
        if (badChecksum && n > 4) {
            const uint8_t wrong = uint8_t(ModbusFrame::lrc(bytes(adu), size_t(adu.size())) ^ 0x5A);
            out[int(n) - 4] = hexDigits[wrong >> 4];
            out[int(n) - 3] = hexDigits[wrong & 0x0F];
        }
        return out;
    }
    QByteArray out = adu;
    out.resize(adu.size() + 2);
    ModbusFrame::appendCrc(reinterpret_cast<uint8_t *>(out.data()), size_t(adu.size()));
    if (badChecksum)
        out[out.size() - 1] = char(out[out.size() - 1] ^ 0xA5);
    return out;
}
