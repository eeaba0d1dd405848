#include "archivestore.h"

#include "instrument.h"

#include <QDateTime>
#include <QtEndian>

namespace {

const int periods[ArchiveStore::archiveCount]
    = {1, 5, 10, 30, 60, 300, 600, 1800, 3600, 10800, 21600, 43200, 86400};
// A leap year of seconds: every period divides it.
const uint32_t secondsInYear = 366u * 86400u;

void appendLe32(QByteArray &out, uint32_t v)
{
    uchar b[4];
    qToLittleEndian<quint32>(v, b);
    out.append(reinterpret_cast<const char *>(b), 4);
}

} // namespace

ArchiveStore::ArchiveStore(const ArchiveSettings &settings, const QList<SignalGenerator> &curves)
    : m_settings(settings)
    , m_curves(curves)
    , m_recordSize(8 + 4 * settings.valuesPerRecord)
{
    if (m_curves.isEmpty()) {
        ChannelCurve c;
        c.base = 20.0;
        c.amplitude = 2.0;
        c.periodS = 3600.0;
        c.noise = 0.05;
        m_curves << SignalGenerator(c, 1);
    }
    m_total
        = archiveBase(archiveCount - 1) + archiveSize(archiveCount - 1) * uint32_t(m_recordSize);
}

int ArchiveStore::period(int archive)
{
    return archive >= 0 && archive < archiveCount ? periods[archive] : 1;
}

uint32_t ArchiveStore::archiveSize(int archive) const
{
    return secondsInYear / uint32_t(period(archive));
}

uint32_t ArchiveStore::archiveBase(int archive) const
{
    uint32_t base = 0;
    for (int i = 0; i < archive && i < archiveCount; ++i)
        base += archiveSize(i) * uint32_t(m_recordSize);
    return base;
}

uint32_t ArchiveStore::secondOfYear(const QDateTime &dt)
{
    const QDate jan1(dt.date().year(), 1, 1);
    return uint32_t(jan1.daysTo(dt.date())) * 86400u
        + uint32_t(dt.time().msecsSinceStartOfDay() / 1000);
}

int ArchiveStore::year() const
{
    return m_settings.year > 0 ? m_settings.year : QDate::currentDate().year();
}

bool ArchiveStore::inHole(int archive, int recordYear, uint32_t second) const
{
    for (const ArchiveHole &h : m_settings.holes) {
        if (h.archive >= 0 && h.archive != archive)
            continue;
        if (h.from.date().year() != recordYear && h.to.date().year() != recordYear)
            continue;
        const uint32_t from = h.from.date().year() == recordYear ? secondOfYear(h.from) : 0;
        const uint32_t to = h.to.date().year() == recordYear ? secondOfYear(h.to) : secondsInYear;
        if (second >= from && second <= to)
            return true;
    }
    return false;
}

QByteArray ArchiveStore::record(int archive, uint32_t index) const
{
    QByteArray out;
    out.reserve(m_recordSize);
    int y = year();
    const uint32_t second = index * uint32_t(period(archive));
    if (inHole(archive, y, second))
        return QByteArray(m_recordSize, '\0');
    const QDateTime now = QDateTime::currentDateTime();
    // What the instrument hasn't reached yet this year still holds last year's record.
    if (m_settings.futureIsHole && y == now.date().year() && second > secondOfYear(now))
        --y;
    appendLe32(out, uint32_t(y));
    appendLe32(out, second);
    const double epoch = double(QDateTime(QDate(y, 1, 1), QTime(0, 0)).toSecsSinceEpoch()) + second;
    for (int v = 0; v < m_settings.valuesPerRecord; ++v) {
        const float value = float(m_curves.at(v % m_curves.size()).at(epoch + v * 0.37));
        uchar b[4];
        qToLittleEndian<float>(value, b);
        out.append(reinterpret_cast<const char *>(b), 4);
    }
    return out;
}

QByteArray ArchiveStore::read(uint32_t address, int size) const
{
    QByteArray out;
    uint32_t at = address;
    while (out.size() < size && at < m_total) {
        int archive = archiveCount - 1;
        while (archive > 0 && at < archiveBase(archive))
            --archive;
        const uint32_t offset = at - archiveBase(archive);
        const uint32_t index = offset / uint32_t(m_recordSize);
        const int inside = int(offset % uint32_t(m_recordSize));
        const QByteArray rec = record(archive, index);
        const int take = qMin(size - int(out.size()), m_recordSize - inside);
        out.append(rec.mid(inside, take));
        at += uint32_t(take);
    }
    return out;
}

QByteArray ArchiveStore::handle(const QByteArray &pdu) const
{
    const int function = uint8_t(pdu[0]);
    if (function == 0x42) {
        QByteArray reply;
        reply.append(char(0x42));
        reply.append(char(4 + 4 * archiveCount));
        appendLe32(reply, uint32_t(m_recordSize));
        for (int i = 0; i < archiveCount; ++i)
            appendLe32(reply, archiveSize(i));
        return reply;
    }
    if (function == 0x41) {
        if (pdu.size() != 7)
            return Instrument::exception(function, 3);
        const uint32_t address
            = qFromBigEndian<quint32>(reinterpret_cast<const uchar *>(pdu.constData() + 1));
        const int size = uint8_t(pdu[6]);
        if (size < 1 || size > 250)
            return Instrument::exception(function, 3);
        if (uint64_t(address) + uint64_t(size) > m_total)
            return Instrument::exception(function, 2);
        QByteArray reply;
        reply.append(char(0x41));
        reply.append(char(size));
        reply.append(read(address, size));
        return reply;
    }
    if (function == 20) {
        // Old form: one sub-request of reference type 6; record number and
        // length count registers.
        if (pdu.size() != 9 || uint8_t(pdu[1]) != 7 || uint8_t(pdu[2]) != 6)
            return Instrument::exception(function, 3);
        const uint32_t address
            = 2u * qFromBigEndian<quint16>(reinterpret_cast<const uchar *>(pdu.constData() + 5));
        const int words = uint8_t(pdu[8]) | uint8_t(pdu[7]) << 8;
        if (words < 1 || words > 124)
            return Instrument::exception(function, 3);
        if (address + uint32_t(words) * 2 > m_total)
            return Instrument::exception(function, 2);
        QByteArray reply;
        reply.append(char(20));
        reply.append(char(2 + 2 * words));
        reply.append(char(1 + 2 * words));
        reply.append(char(6));
        reply.append(read(address, words * 2));
        return reply;
    }
    return Instrument::exception(function, 1);
}
