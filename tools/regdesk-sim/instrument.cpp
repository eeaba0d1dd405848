#include "instrument.h"

#include "archivestore.h"
#include "identification.h"
#include "journalstore.h"
#include "ringarchive.h"

#include "model/tag.h"

#include <QDateTime>

#include <cmath>

namespace {

unsigned word(const QByteArray &pdu, int at)
{
    return unsigned(uint8_t(pdu[at])) << 8 | uint8_t(pdu[at + 1]);
}

QByteArray echo(const QByteArray &pdu)
{
    return pdu.left(5);
}

// A salt that is the same in every run (qHash is seeded per process).
uint32_t stableHash(const QString &text)
{
    uint32_t h = 2166136261u;
    for (const QChar c : text)
        h = (h ^ c.unicode()) * 16777619u;
    return h;
}

bool isIntegral(int deviceType)
{
    return deviceType >= Tag::dtInt16 && deviceType <= Tag::dtUInt32;
}

} // namespace

Instrument::Instrument(const InstrumentSettings &settings, int readOnlyException)
    : m_settings(settings)
    , m_readOnlyException(readOnlyException)
{
    m_clock.start();
    buildMap();
    m_identification = std::make_unique<Identification>(m_settings, m_tags);
    m_identification->prepare(m_map);

    QList<SignalGenerator> curves;
    for (const auto &channel : std::as_const(m_channels)) {
        if (m_tags.at(channel.first).isFloat())
            curves << channel.second;
    }
    if (m_settings.archives.enabled)
        m_archives = std::make_unique<ArchiveStore>(m_settings.archives, curves);
    if (m_settings.journal.enabled)
        m_journal
            = std::make_unique<JournalStore>(m_settings.journal,
                                             m_settings.templateMap.value(QStringLiteral("device"))
                                                 .toMap()
                                                 .value(QStringLiteral("template"))
                                                 .toString());
    if (m_settings.ring.enabled)
        m_ring = std::make_unique<RingArchive>(m_settings.ring, m_identification->modbusId());
}

Instrument::~Instrument() = default;

double Instrument::uptime() const
{
    return double(m_clock.elapsed()) / 1000.0;
}

const SimTag *Instrument::tag(const QString &name) const
{
    for (const SimTag &t : m_tags) {
        if (t.name == name)
            return &t;
    }
    return nullptr;
}

QVariant Instrument::startValue(const SimTag &tag) const
{
    if (m_settings.values.contains(tag.name))
        return m_settings.values.value(tag.name);
    if (tag.name == QLatin1String("address") && tag.group == QLatin1String("interface"))
        return m_settings.address;
    if (tag.value.isValid() && !tag.value.isNull())
        return tag.value;
    if (tag.deviceType == Tag::dtByteArray)
        return QVariant();
    // No starting value: 0 unless the limits exclude it.
    if (tag.hasLimits && (0.0 < qMin(tag.low, tag.high) || 0.0 > qMax(tag.low, tag.high)))
        return qMin(tag.low, tag.high);
    return 0;
}

void Instrument::buildMap()
{
    const QVariantMap device = m_settings.templateMap.value(QStringLiteral("device")).toMap();
    m_deviceSwap = device.contains(QStringLiteral("byteswap_enabled"))
        ? device.value(QStringLiteral("byteswap_enabled")).toBool()
        : true;
    const QVariantList tags = device.value(QStringLiteral("tags")).toList();
    for (const QVariant &entry : tags) {
        SimTag t = TagCodec::fromTemplate(entry.toMap(), m_deviceSwap);
        if (t.width <= 0)
            continue;
        if (t.isBit()) {
            int flags = 0;
            if (t.readFunc != 0 || t.access != Tag::WriteOnly)
                flags |= RegisterMap::ReadBit;
            if (t.writeFunc != 0 && t.access != Tag::ReadOnly)
                flags |= RegisterMap::Write;
            m_map.coverBit(t.address, flags);
        } else {
            // The master reads with function 4 when asked to, 3 otherwise.
            int flags = t.readFunc == 4 ? RegisterMap::ReadInput : RegisterMap::ReadHolding;
            if (t.writeFunc != 0 && t.access != Tag::ReadOnly)
                flags |= RegisterMap::Write;
            m_map.coverRegisters(t.address, t.registers(), flags);
            // The master reads a separate tag's block whole, and writes it whole
            // when one member is writable.
            if (t.separate && t.blockRegisters > 0)
                m_map.coverRegisters(t.blockAddress, t.blockRegisters, flags);
        }
        m_tags << t;
    }
    for (int i = 0; i < m_tags.size(); ++i) {
        const SimTag &t = m_tags.at(i);
        const QVariant value = startValue(t);
        if (value.isValid())
            writeTag(t, value);
        const bool moving = m_settings.curves.contains(t.name)
            || (t.isChannel() && t.name.startsWith(QLatin1String("ch"))
                && (t.isFloat() || isIntegral(t.deviceType)) && !t.bitField);
        if (!moving)
            continue;
        const uint32_t salt = stableHash(t.name) ^ uint32_t(m_settings.address * 7919);
        ChannelCurve curve;
        if (m_settings.curves.contains(t.name)) {
            curve = m_settings.curves.value(t.name);
        } else {
            curve = SignalGenerator::curveFor(value.toDouble(), t.hasLimits, t.low, t.high, salt);
            const QString lower = t.name.toLower();
            if (t.isFloat()
                && (lower.contains(QLatin1String("_t_"))
                    || lower.endsWith(QLatin1String("_t_value")))) {
                curve.base = 21.0; // temperatures move little around the room's
                curve.amplitude = 1.5;
                curve.noise = 0.05;
            } else if (t.isFloat()
                       && (lower.contains(QLatin1String("current_output"))
                           || lower.contains(QLatin1String("_i_value")))) {
                curve.base = 12.0;
                curve.amplitude = 3.0;
                curve.noise = 0.02;
            }
            if (isIntegral(t.deviceType) && !t.hasLimits && curve.base == 0.0) {
                curve.base = 100;
                curve.amplitude = 10;
                curve.noise = 1;
            }
        }
        m_channels << qMakePair(i, SignalGenerator(curve, salt));
    }
    refreshChannels();
}

void Instrument::writeTag(const SimTag &t, const QVariant &value)
{
    if (t.isBit()) {
        m_map.setBit(t.address, value.toBool());
        return;
    }
    m_map.setWire(t.address, TagCodec::encode(t, value, m_map.wire(t.address, t.registers())));
}

void Instrument::refreshChannels()
{
    const double now = double(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
    for (const auto &channel : std::as_const(m_channels)) {
        const SimTag &t = m_tags.at(channel.first);
        double v = channel.second.at(now);
        if (isIntegral(t.deviceType))
            v = std::round(v);
        writeTag(t, v);
    }
}

bool Instrument::isMoving(const QString &name) const
{
    for (const auto &channel : m_channels) {
        if (m_tags.at(channel.first).name == name)
            return true;
    }
    return false;
}

QVariant Instrument::tagValue(const QString &name)
{
    refreshChannels();
    const SimTag *t = tag(name);
    if (!t)
        return QVariant();
    if (t->isBit())
        return m_map.bit(t->address);
    return TagCodec::decode(*t, m_map.wire(t->address, t->registers()));
}

bool Instrument::setTagValue(const QString &name, const QVariant &value)
{
    const SimTag *t = tag(name);
    if (!t)
        return false;
    writeTag(*t, value);
    return true;
}

QByteArray Instrument::exception(int function, int code)
{
    QByteArray pdu;
    pdu.append(char(function | 0x80));
    pdu.append(char(code));
    return pdu;
}

QByteArray Instrument::handle(const QByteArray &pdu)
{
    if (pdu.isEmpty())
        return QByteArray();
    const int function = uint8_t(pdu[0]);
    switch (function) {
    case 1:
    case 2:
        return readBits(function, pdu);
    case 3:
    case 4:
        return readRegisters(function, pdu);
    case 5:
        return writeCoil(pdu);
    case 6:
        return writeRegister(pdu);
    case 15:
        return writeCoils(pdu);
    case 16:
        return writeRegisters(pdu);
    case 17:
        return m_identification->reportSlaveId(pdu);
    case 20:
        if (m_ring)
            return m_ring->handle(pdu);
        if (m_archives)
            return m_archives->handle(pdu);
        break;
    case 0x41:
    case 0x42:
        if (m_archives)
            return m_archives->handle(pdu);
        break;
    case 0x45:
    case 0x46:
        if (m_journal)
            return m_journal->handle(pdu);
        break;
    default:
        break;
    }
    return exception(function, 1);
}

QByteArray Instrument::readBits(int function, const QByteArray &pdu)
{
    if (pdu.size() != 5)
        return exception(function, 3);
    const unsigned address = word(pdu, 1);
    const int count = int(word(pdu, 3));
    if (count < 1 || count > 2000)
        return exception(function, 3);
    if (!m_map.bitsAllow(address, count, RegisterMap::ReadBit))
        return exception(function, 2);
    QByteArray reply(2 + (count + 7) / 8, '\0');
    reply[0] = char(function);
    reply[1] = char((count + 7) / 8);
    for (int i = 0; i < count; ++i) {
        if (m_map.bit(address + i))
            reply[2 + i / 8] = char(uint8_t(reply[2 + i / 8]) | (1 << (i % 8)));
    }
    return reply;
}

QByteArray Instrument::readRegisters(int function, const QByteArray &pdu)
{
    if (pdu.size() != 5)
        return exception(function, 3);
    const unsigned address = word(pdu, 1);
    const int count = int(word(pdu, 3));
    if (count < 1 || count > 125)
        return exception(function, 3);
    const int flag = function == 4 ? RegisterMap::ReadInput : RegisterMap::ReadHolding;
    if (!m_map.registersAllow(address, count, flag))
        return exception(function, 2);
    refreshChannels();
    QByteArray reply;
    reply.append(char(function));
    reply.append(char(count * 2));
    reply.append(m_map.wire(address, count));
    return reply;
}

int Instrument::writeRefusal(unsigned address, int count, bool bits) const
{
    if (bits) {
        if (m_map.bitsAllow(address, count, RegisterMap::Write))
            return 0;
        for (int i = 0; i < count; ++i) {
            if (!m_map.bitsAllow(address + i, 1, RegisterMap::ReadBit)
                && !m_map.bitsAllow(address + i, 1, RegisterMap::Write))
                return 2;
        }
        return m_readOnlyException;
    }
    if (m_map.registersAllow(address, count, RegisterMap::Write))
        return 0;
    return m_map.registersCovered(address, count) ? m_readOnlyException : 2;
}

QByteArray Instrument::writeCoil(const QByteArray &pdu)
{
    if (pdu.size() != 5)
        return exception(5, 3);
    const unsigned address = word(pdu, 1);
    const unsigned value = word(pdu, 3);
    if (value != 0xFF00 && value != 0x0000)
        return exception(5, 3);
    if (const int code = writeRefusal(address, 1, true))
        return exception(5, code);
    m_map.setBit(address, value == 0xFF00);
    return echo(pdu);
}

QByteArray Instrument::writeRegister(const QByteArray &pdu)
{
    if (pdu.size() != 5)
        return exception(6, 3);
    const unsigned address = word(pdu, 1);
    if (const int code = writeRefusal(address, 1, false))
        return exception(6, code);
    m_map.setReg(address, uint16_t(word(pdu, 3)));
    return echo(pdu);
}

QByteArray Instrument::writeCoils(const QByteArray &pdu)
{
    if (pdu.size() < 6)
        return exception(15, 3);
    const unsigned address = word(pdu, 1);
    const int count = int(word(pdu, 3));
    const int bytes = uint8_t(pdu[5]);
    if (count < 1 || count > 1968 || bytes != (count + 7) / 8 || pdu.size() != 6 + bytes)
        return exception(15, 3);
    if (const int code = writeRefusal(address, count, true))
        return exception(15, code);
    for (int i = 0; i < count; ++i)
        m_map.setBit(address + i, (uint8_t(pdu[6 + i / 8]) >> (i % 8)) & 1);
    return echo(pdu);
}

QByteArray Instrument::writeRegisters(const QByteArray &pdu)
{
    if (pdu.size() < 6)
        return exception(16, 3);
    const unsigned address = word(pdu, 1);
    const int count = int(word(pdu, 3));
    const int bytes = uint8_t(pdu[5]);
    if (count < 1 || count > 123 || bytes != count * 2 || pdu.size() != 6 + bytes)
        return exception(16, 3);
    if (const int code = writeRefusal(address, count, false))
        return exception(16, code);
    m_map.setWire(address, pdu.mid(6, bytes));
    return echo(pdu);
}
