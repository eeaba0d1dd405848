#ifndef LINEFRAMER_H
#define LINEFRAMER_H

#include <QByteArray>
#include <QList>

// Cuts the bytes from the line into requests and frames the replies, in RTU
// (CRC-16, lengths by function) or ASCII (':' hex LRC CR delimiter). Frames
// come out as address and PDU, the checksum checked and stripped; anything
// that doesn't check is dropped quietly.
class LineFramer
{
public:
    LineFramer(int protocol, int delimiter);

    // Feeds received bytes; returns the complete good frames.
    QList<QByteArray> feed(const QByteArray &bytes);
    // The line fell silent: an RTU frame can't go on, so whatever good frame
    // still hides in the buffer is taken and the rest dropped.
    QList<QByteArray> silence();
    bool hasPending() const { return !m_buffer.isEmpty(); }

    // address + PDU to line bytes; badChecksum damages the CRC or LRC.
    QByteArray encode(const QByteArray &adu, bool badChecksum = false) const;

    // RTU request length, checksum included: > 0 known, 0 need more bytes,
    // -1 no rule (the vendor functions of the instruments are known here).
    static int requestLength(const uint8_t *frame, int have);

    static constexpr int maxRtuFrame = 256;
    static constexpr int maxAsciiFrame = 513;

private:
    QList<QByteArray> parseRtu(bool atSilence);
    QList<QByteArray> feedAscii(const QByteArray &bytes);

    int m_protocol;
    char m_delimiter;
    QByteArray m_buffer;
    bool m_inFrame = false;
    bool m_sawCr = false;
};

#endif // LINEFRAMER_H
