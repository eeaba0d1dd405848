#ifndef RINGARCHIVE_H
#define RINGARCHIVE_H

#include "scenario.h"

#include <QByteArray>
#include <QDateTime>

#include <cstdint>

// The 64 KiB ring archive of the older instruments: a stream of 4-byte data
// frames and 8-byte time frames written round a fixed memory, the top bit
// of every frame flipping on each lap. The image is written once, as the
// instrument would have written it, and read by function 20 (record number
// and length in registers).
class RingArchive
{
public:
    static constexpr int imageSize = 65536;

    RingArchive(const RingSettings &settings, const QString &modbusId);

    const QByteArray &image() const { return m_image; }
    bool isZolt() const { return m_zolt; }
    bool isMarn14() const { return m_marn14; }
    static int intervalSeconds(int code);
    // Records actually written and the date of the first and the last.
    int records() const { return m_records; }
    QDateTime firstDate() const { return m_first; }
    QDateTime lastDate() const;
    // The values a record carries, as the parser decodes them in mode 0.
    double mainValue(int record, int channel) const;
    double temperature(int record, int channel) const;

    QByteArray handle(const QByteArray &pdu) const;

private:
    void write();
    void put(qint64 position, const QByteArray &bytes);
    QByteArray timeFrame(bool r, const QDateTime &dt) const;
    QByteArray dataFrame(bool r, int record, int channel) const;

    RingSettings m_settings;
    bool m_zolt;
    bool m_marn14;
    QByteArray m_image;
    int m_records = 0;
    QDateTime m_first;
};

#endif // RINGARCHIVE_H
