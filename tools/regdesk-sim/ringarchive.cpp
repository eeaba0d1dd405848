#include "ringarchive.h"

#include "instrument.h"

#include <QtEndian>

#include <cmath>

namespace {

const int intervals[8] = {1, 2, 5, 10, 15, 30, 60, 300};

bool lapMarker(qint64 position)
{
    // The first lap is written with the marker set.
    return (position / RingArchive::imageSize) % 2 == 0;
}

} // namespace

RingArchive::RingArchive(const RingSettings &settings, const QString &modbusId)
    : m_settings(settings)
    , m_zolt(modbusId.contains(QLatin1String("Zolt")))
    , m_marn14(modbusId.contains(QLatin1String("Marn14")))
    , m_image(imageSize, '\0')
{
    write();
}

int RingArchive::intervalSeconds(int code)
{
    return code >= 0 && code < 8 ? intervals[code] : 0;
}

QDateTime RingArchive::lastDate() const
{
    return m_first.addSecs(qint64(qMax(0, m_records - 1))
                           * intervalSeconds(m_settings.intervalCode));
}

double RingArchive::mainValue(int record, int channel) const
{
    const double v
        = 7.0 + 1.5 * std::sin(record / 50.0 + channel) + 0.01 * ((record * 7 + channel) % 5);
    return std::round(v * 100.0) / 100.0;
}

double RingArchive::temperature(int record, int channel) const
{
    const double t = 20.0 + 3.0 * std::sin(record / 200.0 + channel * 0.5);
    return std::round(t * 10.0) / 10.0;
}

QByteArray RingArchive::timeFrame(bool r, const QDateTime &dt) const
{
    QByteArray f(8, '\0');
    f[0] = char((r ? 0x80 : 0) | 0x40 | (m_settings.channels & 3) << 4
                | (m_settings.intervalCode & 0x0F));
    f[1] = char(dt.date().year() - 1999);
    f[2] = char(dt.date().month());
    f[3] = char(dt.date().day());
    f[4] = char(dt.time().hour());
    f[5] = char(dt.time().minute());
    f[6] = char(dt.time().second());
    uint8_t check = 0;
    for (int i = 0; i < 7; ++i)
        check ^= uint8_t(f[i]);
    f[7] = char(check);
    return f;
}

QByteArray RingArchive::dataFrame(bool r, int record, int channel) const
{
    const int offset = m_zolt ? 512 : 128;
    const uint32_t kdop
        = uint32_t(qBound(0, int(std::lround(temperature(record, channel) * 10.0)) + offset, 2047));
    const double v = mainValue(record, channel);
    int kosn = m_settings.mode == 1 ? int(std::lround(v)) + (m_zolt ? 1024 : 0)
                                    : int(std::lround(v * 100.0)) + 1024;
    const int kosnBits = m_zolt ? 12 : 13;
    kosn = qBound(0, kosn, (1 << kosnBits) - 1);
    const uint32_t w = (r ? 0x80000000u : 0u) | kdop << 19 | uint32_t(kosn) << (m_zolt ? 7 : 6);
    QByteArray f(4, '\0');
    qToBigEndian<quint32>(w, reinterpret_cast<uchar *>(f.data()));
    return f;
}

void RingArchive::put(qint64 position, const QByteArray &bytes)
{
    for (int i = 0; i < bytes.size(); ++i)
        m_image[int((position + i) % imageSize)] = bytes[i];
}

void RingArchive::write()
{
    if (m_settings.formatted) {
        // Erased: a time frame carrying the format label and nothing else.
        m_image[0] = char(0x40);
        return;
    }
    const int perRecord = m_settings.channels == 2 ? 8 : 4;
    const int every = m_settings.timeFrameEvery;
    const qint64 perLap = imageSize / (perRecord + 8.0 / every);
    int records = m_settings.records;
    if (m_settings.wrapped)
        records = qMax<qint64>(records, perLap * 13 / 10);
    const int interval = intervalSeconds(m_settings.intervalCode);
    m_first = m_settings.start.isValid()
        ? m_settings.start
        : QDateTime::currentDateTime().addSecs(-qint64(records) * interval);

    qint64 p = 0;
    bool needTime = true;
    int k = 0;
    for (; k < records; ++k) {
        if (k % every == 0 || p % imageSize == 0)
            needTime = true;
        // Time frames stay 8-aligned so that none straddles the ring's end.
        const qint64 need = (needTime && p % 8 == 0 ? 8 : 0) + perRecord;
        if (!m_settings.wrapped && p + need + 8 > imageSize)
            break;
        if (needTime && p % 8 == 0) {
            put(p, timeFrame(lapMarker(p), m_first.addSecs(qint64(k) * interval)));
            p += 8;
            needTime = false;
        }
        if (m_settings.channels == 2) {
            put(p, dataFrame(lapMarker(p), k, 0));
            put(p + 4, dataFrame(lapMarker(p), k, 1));
        } else {
            put(p, dataFrame(lapMarker(p), k, m_settings.channels));
        }
        p += perRecord;
    }
    m_records = k;
    if (p < imageSize) {
        // The end of the written part: a format label of the next lap.
        QByteArray label = timeFrame(!lapMarker(p), m_first);
        label[1] = 0;
        put(p, label);
    }
}

QByteArray RingArchive::handle(const QByteArray &pdu) const
{
    const int function = uint8_t(pdu[0]);
    if (function != 20)
        return Instrument::exception(function, 1);
    if (pdu.size() != 9 || uint8_t(pdu[1]) != 7 || uint8_t(pdu[2]) != 6)
        return Instrument::exception(function, 3);
    const int address
        = 2 * int(qFromBigEndian<quint16>(reinterpret_cast<const uchar *>(pdu.constData() + 5)));
    const int words = uint8_t(pdu[8]) | uint8_t(pdu[7]) << 8;
    if (words < 1 || words > 124)
        return Instrument::exception(function, 3);
    if (address + words * 2 > imageSize)
        return Instrument::exception(function, 2);
    QByteArray reply;
    reply.append(char(20));
    reply.append(char(2 + 2 * words));
    reply.append(char(1 + 2 * words));
    reply.append(char(6));
    reply.append(m_image.mid(address, words * 2));
    return reply;
}
