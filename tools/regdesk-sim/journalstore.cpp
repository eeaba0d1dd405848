#include "journalstore.h"

#include "instrument.h"

#include <QtEndian>

namespace {

void putFloat(QByteArray &out, int at, float v)
{
    uchar b[4];
    qToLittleEndian<float>(v, b);
    for (int i = 0; i < 4; ++i)
        out[at + i] = char(b[i]);
}

// Small, repeatable variation by record and channel.
float vary(int index, int channel, int field, float spread)
{
    const int h = (index * 37 + channel * 101 + field * 13) % 21 - 10;
    return spread * float(h) / 10.0f;
}

} // namespace

JournalStore::JournalStore(const JournalSettings &settings, const QString &templateName)
    : m_settings(settings)
    , m_family(familyFor(templateName, settings.family))
{
    m_recordSize = qMax(6 + bodySize(m_family), settings.recordSize);
    const QDateTime now = QDateTime::currentDateTime();
    const qint64 step = qint64(settings.stepMinutes) * 60;
    if (settings.wrapped) {
        m_count = capacity;
        m_newest
            = settings.newest >= 0 && settings.newest < capacity ? uint32_t(settings.newest) : 100u;
    } else if (settings.newest == int(emptyIndex)
               || (settings.newest < 0 && settings.records == 0)) {
        m_count = 0;
        m_newest = emptyIndex;
    } else {
        m_count = settings.newest >= 0 ? qMin(settings.newest + 1, capacity) : settings.records;
        m_newest = uint32_t(m_count - 1);
    }
    m_first = settings.first.isValid() ? settings.first : now.addSecs(-step * m_count);
}

int JournalStore::bodySize(Family family)
{
    switch (family) {
    case PH:
        return 38;
    case Ion:
        return 50;
    case Oxygen:
        return 29;
    case Sodium:
        return 37;
    case OxygenShort:
        return 13;
    }
    return 38;
}

JournalStore::Family JournalStore::familyFor(const QString &templateName, const QString &name)
{
    if (name == QLatin1String("ion"))
        return Ion;
    if (name == QLatin1String("oxygen"))
        return Oxygen;
    if (name == QLatin1String("sodium"))
        return Sodium;
    if (name == QLatin1String("oxygen_short"))
        return OxygenShort;
    if (name == QLatin1String("ph"))
        return PH;
    if (templateName.contains(QLatin1String("Hevi-7")))
        return Ion;
    if (templateName.contains(QLatin1String("Quil-82")))
        return Oxygen;
    if (templateName.contains(QLatin1String("Brod-5")))
        return Sodium;
    if (templateName.contains(QLatin1String("Quil-72")))
        return OxygenShort;
    return PH;
}

bool JournalStore::written(int index) const
{
    return index >= 0 && index < m_count;
}

QDateTime JournalStore::recordDate(int index) const
{
    // Oldest first: behind the newest lies the previous lap of a full ring.
    const int rank
        = m_count == capacity ? (index - int(m_newest) - 1 + capacity) % capacity : index;
    return m_first.addSecs(qint64(rank) * m_settings.stepMinutes * 60);
}

QByteArray JournalStore::record(int channel, int index) const
{
    if (!written(index))
        return QByteArray(m_recordSize, char(0xFF));
    QByteArray r(m_recordSize, '\0');
    const QDateTime dt = recordDate(index);
    r[0] = char(dt.date().year() - 2000);
    r[1] = char(dt.date().month());
    r[2] = char(dt.date().day());
    r[3] = char(dt.time().hour());
    r[4] = char(dt.time().minute());
    r[5] = char(dt.time().second());
    const int b = 6;
    const int points = index % 3 == 0 ? 0 : 1;
    auto f = [&](int offset, float nominal, float spread, int field) {
        putFloat(r, b + offset, nominal + vary(index, channel, field, spread));
    };
    switch (m_family) {
    case PH:
        r[b] = char(index % 2);
        r[b + 1] = char(points);
        f(2, -20.0f, 5.0f, 0);
        f(6, 97.0f, 2.0f, 1);
        f(10, 7.0f, 0.2f, 2);
        f(14, 170.0f, 4.0f, 3);
        f(18, 21.0f, 2.0f, 4);
        f(22, 4.01f, 0.0f, 5);
        f(26, -120.0f, 4.0f, 6);
        f(30, 21.5f, 2.0f, 7);
        f(34, 9.18f, 0.0f, 8);
        break;
    case Ion:
        r[b] = char(index % 2);
        r[b + 1] = char(points);
        f(2, -30.0f, 5.0f, 0);
        f(6, 95.0f, 2.0f, 1);
        f(10, 3.0f, 0.2f, 2);
        f(14, 40.08f, 0.0f, 3);
        f(18, 110.0f, 4.0f, 4);
        f(22, 22.0f, 2.0f, 5);
        f(26, 2.0f, 0.0f, 6);
        f(30, 0.01f, 0.0f, 7);
        f(34, 50.0f, 4.0f, 8);
        f(38, 22.5f, 2.0f, 9);
        f(42, 4.0f, 0.0f, 10);
        f(46, 0.0001f, 0.0f, 11);
        break;
    case Oxygen:
        r[b] = char(points);
        f(1, 0.5f, 0.3f, 0);
        f(5, 98.0f, 2.0f, 1);
        f(9, 20000.0f, 0.0f, 2);
        f(13, 4.1f, 0.1f, 3);
        f(17, 0.0f, 0.0f, 4);
        f(21, 19.5f, 0.3f, 5);
        f(25, 9080.0f, 50.0f, 6);
        break;
    case Sodium:
        r[b] = char(points);
        f(1, -15.0f, 5.0f, 0);
        f(5, 96.0f, 2.0f, 1);
        f(9, 4.0f, 0.2f, 2);
        f(13, 150.0f, 4.0f, 3);
        f(17, 21.0f, 2.0f, 4);
        f(21, 5.0f, 0.0f, 5);
        f(25, 90.0f, 4.0f, 6);
        f(29, 21.5f, 2.0f, 7);
        f(33, 7.0f, 0.0f, 8);
        break;
    case OxygenShort:
        r[b] = char(points);
        f(1, 0.4f, 0.3f, 0);
        f(5, 99.0f, 2.0f, 1);
        f(9, 20.0f, 2.0f, 2);
        break;
    }
    return r;
}

QByteArray JournalStore::handle(const QByteArray &pdu) const
{
    const int function = uint8_t(pdu[0]);
    if (function == 0x46) {
        if (pdu.size() != 3)
            return Instrument::exception(function, 3);
        QByteArray reply(10, '\0');
        reply[0] = char(0x46);
        reply[1] = char(8);
        qToLittleEndian<quint32>(uint32_t(m_recordSize),
                                 reinterpret_cast<uchar *>(reply.data() + 2));
        qToLittleEndian<quint32>(m_newest, reinterpret_cast<uchar *>(reply.data() + 6));
        return reply;
    }
    if (function == 0x45) {
        if (pdu.size() != 9)
            return Instrument::exception(function, 3);
        const int channel = uint8_t(pdu[2]);
        const uint32_t address
            = qFromBigEndian<quint32>(reinterpret_cast<const uchar *>(pdu.constData() + 3));
        const int size = uint8_t(pdu[8]);
        if (size < 1 || size > 250)
            return Instrument::exception(function, 3);
        if (uint64_t(address) + uint64_t(size) > uint64_t(capacity) * uint64_t(m_recordSize))
            return Instrument::exception(function, 2);
        QByteArray reply;
        reply.append(char(0x45));
        reply.append(char(size));
        uint32_t at = address;
        while (reply.size() < 2 + size) {
            const int index = int(at / uint32_t(m_recordSize));
            const int inside = int(at % uint32_t(m_recordSize));
            const int take = qMin(2 + size - int(reply.size()), m_recordSize - inside);
            reply.append(record(channel, index).mid(inside, take));
            at += uint32_t(take);
        }
        return reply;
    }
    return Instrument::exception(function, 1);
}
