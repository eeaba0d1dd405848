#include "tagcodec.h"

#include "model/tag.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

// Walks a byte order rule, calling f(position in data, index in result).
template<typename F> void walkRule(const QString &rule, F f)
{
    int base = 0;
    int index = 0;
    for (const QChar c : rule) {
        if (c == QLatin1Char('~'))
            base = 0;
        else if (c == QLatin1Char('!'))
            base = 10;
        else if (c == QLatin1Char('@'))
            base = 20;
        else if (c.isDigit())
            f(base + c.digitValue(), index++);
    }
}

QByteArray swapPairs(QByteArray data)
{
    for (int i = 0; i + 1 < data.size(); i += 2)
        std::swap(data[i], data[i + 1]);
    return data;
}

} // namespace

SimTag TagCodec::fromTemplate(const QVariantMap &m, bool deviceSwap)
{
    SimTag t;
    t.name = m.value(QStringLiteral("name")).toString();
    const QStringList group = m.value(QStringLiteral("config_group")).toStringList();
    t.group = group.size() == 2 ? group.first().toLower() : QString();
    t.deviceType = Tag::deviceTypeFromString(m.value(QStringLiteral("device_type")).toString());
    t.width = t.deviceType == Tag::dtByteArray ? m.value(QStringLiteral("array_size")).toInt()
                                               : Tag::deviceTypeLength(t.deviceType);
    t.width = qBound(0, t.width, 250);
    t.separate
        = Tag::tagTypeFromString(m.value(QStringLiteral("type")).toString()) == Tag::ttSeparate;
    t.address = Tag::addressFromText(m.value(QStringLiteral("address")).toString());
    t.blockAddress = t.address;
    if (t.separate) {
        t.address += qMax(0, m.value(QStringLiteral("address_offset")).toInt());
        t.blockRegisters = qBound(0, m.value(QStringLiteral("registers_count")).toInt(), 125);
    }
    if (t.deviceType == Tag::dtByteArray)
        t.swap = false;
    else if (!t.separate && m.contains(QStringLiteral("byteswap_enabled")))
        t.swap = m.value(QStringLiteral("byteswap_enabled")).toBool();
    else
        t.swap = deviceSwap;
    t.byteorderEnabled = m.value(QStringLiteral("byteorder_enabled")).toBool();
    t.byteorder = m.value(QStringLiteral("byteorder")).toString();
    t.bitField = m.value(QStringLiteral("use_bit_extraction")).toBool()
        || m.value(QStringLiteral("use_bit_extraction_read_only")).toBool();
    const int bits = t.width * 8;
    t.bitFrom = qBound(0, m.value(QStringLiteral("extract_bit_from")).toInt(), qMax(0, bits - 1));
    t.bitTo
        = qBound(t.bitFrom, m.value(QStringLiteral("extract_bit_to")).toInt(), qMax(0, bits - 1));
    t.readFunc = m.value(QStringLiteral("read_func"), 3).toInt();
    t.writeFunc = m.value(QStringLiteral("write_func"), 16).toInt();
    t.access = Tag::accessTypeFromString(m.value(QStringLiteral("access")).toString());
    const QVariantList limits = m.value(QStringLiteral("limits")).toList();
    if (limits.size() == 2) {
        t.hasLimits = true;
        t.low = limits.at(0).toDouble();
        t.high = limits.at(1).toDouble();
    }
    t.value = m.value(QStringLiteral("value"));
    return t;
}

QByteArray TagCodec::applyRule(const QByteArray &data, const QString &rule)
{
    QByteArray out(data.size(), '\0');
    walkRule(rule, [&](int from, int to) {
        if (from < data.size() && to < out.size())
            out[to] = data[from];
    });
    return out;
}

QByteArray TagCodec::invertRule(const QByteArray &data, const QString &rule)
{
    QByteArray out(data.size(), '\0');
    walkRule(rule, [&](int to, int from) {
        if (from < data.size() && to < out.size())
            out[to] = data[from];
    });
    return out;
}

QByteArray TagCodec::valueBytes(const SimTag &tag, const QVariant &value)
{
    QByteArray b(qMax(tag.width, 8), '\0');
    uchar *p = reinterpret_cast<uchar *>(b.data());
    switch (tag.deviceType) {
    case Tag::dtBit:
        p[0] = value.toBool() ? 1 : 0;
        break;
    case Tag::dtInt16:
    case Tag::dtUInt16:
        qToLittleEndian<quint16>(quint16(value.toLongLong()), p);
        break;
    case Tag::dtInt32:
    case Tag::dtUInt32:
        qToLittleEndian<quint32>(quint32(value.toLongLong()), p);
        break;
    case Tag::dtFloat32:
        qToLittleEndian<float>(value.toFloat(), p);
        break;
    case Tag::dtFloat64:
        qToLittleEndian<double>(value.toDouble(), p);
        break;
    case Tag::dtByteArray: {
        QByteArray raw;
        if (value.typeId() == QMetaType::QVariantList) {
            for (const QVariant &v : value.toList())
                raw.append(char(v.toInt()));
        } else if (value.typeId() == QMetaType::QByteArray) {
            raw = value.toByteArray();
        } else {
            raw = value.toString().toUtf8();
        }
        b.fill('\0');
        std::memcpy(p, raw.constData(), size_t(qMin(raw.size(), tag.width)));
        break;
    }
    default:
        break;
    }
    b.truncate(tag.width);
    return b;
}

QByteArray TagCodec::toWire(const SimTag &tag, QByteArray memory)
{
    if (tag.byteorderEnabled && !tag.byteorder.isEmpty())
        memory = invertRule(memory, tag.byteorder);
    if (memory.size() % 2)
        memory.append('\0');
    if (tag.swap) {
        std::reverse(memory.begin(), memory.end());
        return memory;
    }
    return swapPairs(memory);
}

QByteArray TagCodec::fromWire(const SimTag &tag, const QByteArray &wire)
{
    QByteArray memory = wire.left(tag.registers() * 2);
    memory.resize(tag.registers() * 2, '\0');
    if (tag.swap)
        std::reverse(memory.begin(), memory.end());
    else
        memory = swapPairs(memory);
    memory.truncate(tag.width);
    if (tag.byteorderEnabled && !tag.byteorder.isEmpty())
        memory = applyRule(memory, tag.byteorder);
    return memory;
}

QByteArray TagCodec::encode(const SimTag &tag, const QVariant &value, const QByteArray &current)
{
    QByteArray memory = valueBytes(tag, value);
    if (tag.bitField && tag.deviceType != Tag::dtByteArray) {
        QByteArray now = fromWire(tag, current);
        now.resize(8, '\0');
        quint32 word = qFromLittleEndian<quint32>(reinterpret_cast<const uchar *>(now.constData()));
        const int count = tag.bitTo - tag.bitFrom + 1;
        const quint32 mask = count >= 32 ? 0xFFFFFFFFu : ((1u << count) - 1) << tag.bitFrom;
        word = (word & ~mask) | ((quint32(value.toLongLong()) << tag.bitFrom) & mask);
        qToLittleEndian<quint32>(word, reinterpret_cast<uchar *>(now.data()));
        memory = now.left(tag.width);
    }
    return toWire(tag, memory);
}

QVariant TagCodec::decode(const SimTag &tag, const QByteArray &wire)
{
    QByteArray memory = fromWire(tag, wire);
    if (tag.deviceType == Tag::dtByteArray)
        return memory;
    memory.resize(8, '\0');
    const uchar *p = reinterpret_cast<const uchar *>(memory.constData());
    if (tag.bitField) {
        // The master keeps the field alone, shifted down to bit 0.
        const quint64 raw = qFromLittleEndian<quint64>(p);
        const int count = tag.bitTo - tag.bitFrom + 1;
        return uint((raw << (64 - tag.bitFrom - count)) >> (64 - count));
    }
    switch (tag.deviceType) {
    case Tag::dtInt16:
        return int(qFromLittleEndian<qint16>(p));
    case Tag::dtUInt16:
        return int(qFromLittleEndian<quint16>(p));
    case Tag::dtInt32:
        return int(qFromLittleEndian<qint32>(p));
    case Tag::dtUInt32:
        return uint(qFromLittleEndian<quint32>(p));
    case Tag::dtFloat32:
        return qFromLittleEndian<float>(p);
    case Tag::dtFloat64:
        return qFromLittleEndian<double>(p);
    default:
        return QVariant();
    }
}
