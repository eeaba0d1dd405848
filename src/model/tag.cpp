#include "model/tag.h"

#include "app/debugqt.h"
#include "config/utils.h"
#include "exchange/byteswapper.h"
#include "model/device.h"

#include <QRegularExpression>

#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

const char *const deviceTypeNames[]
    = {"bit", "int16", "uint16", "int32", "uint32", "float32", "float64", "bytearray"};
const char *const serverTypeNames[]
    = {"bool", "int16", "uint16", "int32", "uint32", "float32", "float64"};
const int deviceTypeLengths[] = {1, 2, 2, 4, 4, 4, 8};

template<size_t N> int indexOfName(const char *const (&names)[N], const QString &text, int fallback)
{
    for (size_t i = 0; i < N; ++i) {
        if (text.compare(QLatin1String(names[i]), Qt::CaseInsensitive) == 0)
            return int(i);
    }
    return fallback;
}

} // namespace

Tag::Tag(Device *device)
    : ServerItem(device)
{
    namePattern = QStringLiteral("Tag%1");
    setName(createUniqName(namePattern));
    if (device) {
        setPriority(device->priority());
        setPeriod(device->pollingPeriod());
    }
    m_address = QStringLiteral("0");
    // Kept apart from the value member; nothing reads it.
    setProperty("value", 123.134);
    setProperty("byteorder", QStringLiteral("0123"));
    setModified(false);
    setProperty("decimal_point", 0);
}

Tag::~Tag()
{
    emit deleting(this);
}

QList<Tag *> Tag::tags() const
{
    return {const_cast<Tag *>(this)};
}

QList<Tag *> Tag::activeTags() const
{
    if (isChannel())
        return {const_cast<Tag *>(this)};
    return {};
}

QString Tag::fullName() const
{
    const Device *dev = device();
    return dev ? dev->fullName() + QLatin1Char('/') + name() : name();
}

Device *Tag::device() const
{
    return qobject_cast<Device *>(parentItem());
}

QString Tag::tagTypeToString(int type)
{
    switch (type) {
    case ttNormal:
        return QStringLiteral("normal");
    case ttSeparate:
        return QStringLiteral("separate");
    default:
        return QStringLiteral("Invalid");
    }
}

int Tag::tagTypeFromString(const QString &text)
{
    return text.compare(QLatin1String("separate"), Qt::CaseInsensitive) == 0 ? ttSeparate
                                                                             : ttNormal;
}

QString Tag::deviceTypeToString(int type)
{
    if (type < 0 || type > dtByteArray)
        return QStringLiteral("Invalid");
    return QLatin1String(deviceTypeNames[type]);
}

int Tag::deviceTypeFromString(const QString &text)
{
    // An unknown word (such as a misspelt "unit32") gives a signed 32-bit tag.
    return indexOfName(deviceTypeNames, text, dtInt32);
}

int Tag::deviceTypeLength(int type)
{
    if (type < 0 || type > dtFloat64)
        return 0;
    return deviceTypeLengths[type];
}

QString Tag::serverTypeToString(int type)
{
    if (type < 0 || type > stFloat64)
        return QStringLiteral("Invalid");
    return QLatin1String(serverTypeNames[type]);
}

int Tag::serverTypeFromString(const QString &text)
{
    return indexOfName(serverTypeNames, text, stInt32);
}

QString Tag::accessTypeToString(int type, bool shortForm)
{
    switch (type) {
    case ReadOnly:
        return shortForm ? QStringLiteral("R") : QStringLiteral("ReadOnly");
    case WriteOnly:
        return shortForm ? QStringLiteral("W") : QStringLiteral("WriteOnly");
    case ReadWrite:
        return shortForm ? QStringLiteral("R/W") : QStringLiteral("ReadWrite");
    default:
        return QStringLiteral("Invalid");
    }
}

int Tag::accessTypeFromString(const QString &text)
{
    static const char *const names[] = {"ReadOnly", "WriteOnly", "ReadWrite"};
    return indexOfName(names, text, ReadOnly);
}

uint Tag::address() const
{
    return addressFromText(m_address);
}

uint Tag::addressFromText(const QString &text)
{
    static const QRegularExpression hexForm(QRegularExpression::anchoredPattern(
        QStringLiteral("(0[xX][0-9a-fA-F]+)|([0-9a-fA-F]+[hH])")));
    bool ok = false;
    uint result;
    if (hexForm.match(text).hasMatch()) {
        QString digits = text;
        digits.remove(QLatin1Char('H')).remove(QLatin1Char('h'));
        result = digits.toUInt(&ok, 16);
    } else {
        result = text.toUInt(&ok, 10);
    }
    return ok ? result : 0;
}

QVariant Tag::value() const
{
    std::shared_lock locker(m_valueLock);
    return m_value;
}

void Tag::setValue(const QVariant &value)
{
    {
        std::unique_lock locker(m_valueLock);
        m_value = value;
        setTimeStamp(QDateTime::currentDateTime());
    }
    emit valueChanged(value);
}

QDateTime Tag::timestamp() const
{
    std::shared_lock locker(m_timeLock);
    return m_timestamp;
}

void Tag::setTimeStamp(const QDateTime &time)
{
    std::unique_lock locker(m_timeLock);
    m_timestamp = time;
}

void Tag::writeValueScheduled(const QVariant &value)
{
    m_value = value;
    emit writeRequest();
}

QString Tag::valueToString() const
{
    const QVariant v = value();
    if (m_deviceType != dtFloat32 && m_deviceType != dtFloat64)
        return v.toString();
    const double x = double(v.toFloat());
    if (std::isnan(x) || x > 99999.999)
        return v.toString();
    const int precision = x <= 999.999 ? 6 : (x <= 9999.999 ? 7 : 8);
    return QStringLiteral("%1").arg(x, 0, 'g', precision);
}

bool Tag::isValueNaN() const
{
    const QString text = value().toString();
    return text == QLatin1String("nan") || text.contains(QLatin1String("inf"));
}

bool Tag::isValueLimitsOut() const
{
    if (m_limits.size() != 2)
        return false;
    const float v = value().toFloat();
    return !(v >= m_limits.at(0).toFloat()) || !(v <= m_limits.at(1).toFloat());
}

bool Tag::isTimeStampTimeout() const
{
    const qint64 age
        = QDateTime::currentDateTime().toSecsSinceEpoch() - timestamp().toSecsSinceEpoch();
    const int periodMs = period();
    if (age <= 0 || periodMs <= 0)
        return false;
    return age * 1000 > periodMs;
}

void Tag::setExtractBitFrom(int bit)
{
    if (m_deviceType <= dtFloat64) {
        if (bit >= bitWidth())
            bit = bitWidth() - 1;
    } else if (bit >= 0) {
        bit = -1;
    }
    m_extractBitFrom = bit;
    if (m_extractBitFrom > m_extractBitTo)
        m_extractBitTo = m_extractBitFrom;
}

int Tag::clampExtractBitTo(int bit) const
{
    // The upper bound is the width itself, not the width minus one.
    if (m_deviceType <= dtFloat64) {
        if (bit > bitWidth())
            bit = bitWidth();
    } else if (bit > 0) {
        bit = 0;
    }
    return bit;
}

void Tag::setExtractBitTo(int bit)
{
    m_extractBitTo = clampExtractBitTo(bit);
    if (m_extractBitTo < m_extractBitFrom)
        m_extractBitFrom = m_extractBitTo;
}

void Tag::setLimits(const QVariant &low, const QVariant &high)
{
    if (m_limits.size() >= 1)
        m_limits[0] = low;
    if (m_limits.size() >= 2)
        m_limits[1] = high;
}

static bool isDigitsOnly(const QString &text)
{
    static const QRegularExpression digits(
        QRegularExpression::anchoredPattern(QStringLiteral("[0-9]*")));
    return digits.match(text).hasMatch();
}

QString Tag::valueFromValues(const QString &v) const
{
    if (m_values.isEmpty())
        return QString();
    const QString key = v.isEmpty() ? value().toString() : v;
    if (!isDigitsOnly(key))
        return QString();
    const QString prefix = valuesPrefix();
    if (!prefix.isEmpty())
        return m_values.value(prefix + key).toString();
    QString text = m_values.value(key).toString();
    if (text.isEmpty())
        text = m_values.value(QLatin1Char('0') + key).toString();
    return text;
}

void Tag::replaceTextInValues(int key, const QString &text)
{
    const QString keyText = QString::number(key);
    if (!isDigitsOnly(keyText))
        return;
    const QString prefix = valuesPrefix();
    if (!prefix.isEmpty()) {
        m_values[prefix + keyText] = text;
        emit textInValuesChanged(key, text);
        return;
    }
    // The index operator leaves both keys behind, as empty texts, when neither exists.
    if (!m_values[keyText].toString().isEmpty()) {
        m_values[keyText] = text;
        emit textInValuesChanged(key, text);
        return;
    }
    const QString zeroKey = QLatin1Char('0') + keyText;
    if (!m_values[zeroKey].toString().isEmpty()) {
        m_values[zeroKey] = text;
        emit textInValuesChanged(key, text);
    }
}

QString Tag::configGroupID() const
{
    return m_configGroup.size() == 2 ? m_configGroup.at(0) : QString();
}

QString Tag::configGroupName() const
{
    return m_configGroup.size() == 2 ? m_configGroup.at(1) : QString();
}

bool Tag::isChannel() const
{
    return configGroupID().toLower() == QLatin1String("channel");
}

int Tag::deviceTypeLengthToRead() const
{
    if (m_deviceType == dtByteArray)
        return m_arraySize;
    if (m_tagType == ttNormal)
        return deviceTypeLength();
    if (m_tagType != ttSeparate)
        return 0;
    if (m_registersCount > 0)
        return m_registersCount * 2;
    int length = 0;
    const Device *dev = device();
    for (const QString &member : m_tagsGroup) {
        const Tag *tag = dev ? dev->tag(member) : nullptr;
        if (tag && (tag->access() == ReadOnly || tag->access() == ReadWrite))
            length += deviceTypeLength();
    }
    return length;
}

int Tag::deviceTypeLengthToWrite()
{
    if (m_deviceType == dtByteArray)
        return m_arraySize;
    if (m_tagType == ttNormal)
        return deviceTypeLength();
    if (m_tagType != ttSeparate)
        return 0;
    Device *dev = device();
    if (m_tagsGroup.isEmpty() && dev) {
        LOG_INFO << "m_tagsGroup creating...";
        const uint own = address();
        for (Tag *tag : dev->tags()) {
            if (tag->address() == own)
                m_tagsGroup.append(tag->name());
        }
        LOG_INFO << "m_tagsGroup:" << m_tagsGroup << "registers count:" << m_tagsGroup.size();
    }
    int length = 0;
    for (const QString &member : qAsConst(m_tagsGroup)) {
        const Tag *tag = dev ? dev->tag(member) : nullptr;
        if (tag && (tag->access() == WriteOnly || tag->access() == ReadWrite))
            length += deviceTypeLength();
    }
    return length;
}

int Tag::processingTime() const
{
    const Device *dev = device();
    return dev ? dev->processingTime() : 0;
}

void Tag::appendModbusMessage(const QString &text)
{
    m_modbusMessages.append(text);
    while (m_modbusMessages.size() > m_messageLimit)
        m_modbusMessages.removeFirst();
}

static QStringList toStringList(const QVariant &v)
{
    return v.toStringList();
}

bool Tag::load(const QVariantMap &map)
{
    if (map.contains(QLatin1String("type")))
        m_tagType = TagType(tagTypeFromString(map.value(QLatin1String("type")).toString()));
    if (map.contains(QLatin1String("name")))
        setName(map.value(QLatin1String("name")).toString());
    if (map.contains(QLatin1String("enabled")))
        setEnabled(map.value(QLatin1String("enabled")).toBool());
    if (map.contains(QLatin1String("polling_period")))
        setPeriod(map.value(QLatin1String("polling_period")).toInt());
    if (map.contains(QLatin1String("address")))
        m_address = map.value(QLatin1String("address")).toString();
    if (map.contains(QLatin1String("priority")))
        setPriority(map.value(QLatin1String("priority")).toInt());
    if (map.contains(QLatin1String("device_type")))
        m_deviceType
            = DeviceType(deviceTypeFromString(map.value(QLatin1String("device_type")).toString()));
    if (m_deviceType == dtByteArray) {
        if (map.contains(QLatin1String("array_size")))
            m_arraySize = map.value(QLatin1String("array_size")).toInt();
    } else if (map.contains(QLatin1String("server_type"))) {
        m_serverType
            = ServerType(serverTypeFromString(map.value(QLatin1String("server_type")).toString()));
    } else if (map.contains(QLatin1String("device_type"))) {
        m_serverType
            = ServerType(serverTypeFromString(map.value(QLatin1String("device_type")).toString()));
    }
    for (const char *key : {"read_func", "write_func", "decimal_point"}) {
        if (map.contains(QLatin1String(key)))
            setProperty(key, map.value(QLatin1String(key)).toInt());
    }
    if (map.contains(QLatin1String("byteorder")))
        setProperty("byteorder", map.value(QLatin1String("byteorder")).toString());
    if (map.contains(QLatin1String("byteorder_enabled")))
        setProperty("byteorder_enabled", map.value(QLatin1String("byteorder_enabled")).toBool());
    if (map.contains(QLatin1String("byteswap_enabled")))
        setByteSwappingEnabled(map.value(QLatin1String("byteswap_enabled")).toBool());
    else if (const Device *dev = device())
        setByteSwappingEnabled(dev->byteSwappingEnabled());
    if (map.contains(QLatin1String("access")))
        m_access
            = OpcAccessType(accessTypeFromString(map.value(QLatin1String("access")).toString()));
    if (map.contains(QLatin1String("comment")))
        setProperty("comment", map.value(QLatin1String("comment")).toString());
    if (map.contains(QLatin1String("request_delay")))
        m_requestDelay = map.value(QLatin1String("request_delay")).toInt();
    if (map.contains(QLatin1String("use_bit_extraction_read_only")))
        m_useBitExtractionReadOnly
            = map.value(QLatin1String("use_bit_extraction_read_only")).toBool();
    if (map.contains(QLatin1String("use_bit_extraction")))
        m_useBitExtraction = map.value(QLatin1String("use_bit_extraction")).toBool();
    if (map.contains(QLatin1String("extract_bit_from")))
        setExtractBitFrom(map.value(QLatin1String("extract_bit_from")).toInt());
    if (map.contains(QLatin1String("extract_bit_to")))
        m_extractBitTo = clampExtractBitTo(map.value(QLatin1String("extract_bit_to")).toInt());
    if (map.contains(QLatin1String("config_group")))
        m_configGroup = toStringList(map.value(QLatin1String("config_group")));
    if (m_tagType == ttSeparate) {
        if (map.contains(QLatin1String("address_offset")))
            m_addressOffset = map.value(QLatin1String("address_offset")).toInt();
        if (map.contains(QLatin1String("registers_count")))
            m_registersCount = map.value(QLatin1String("registers_count")).toInt();
    }
    if (map.contains(QLatin1String("tags_group")))
        m_tagsGroup = toStringList(map.value(QLatin1String("tags_group")));
    readValueFromMap(map);
    m_limits = listValue(map.value(QLatin1String("limits")));
    m_values = map.value(QLatin1String("values")).toMap();
    if (map.contains(QLatin1String("modified")))
        setModified(map.value(QLatin1String("modified")).toBool());
    return true;
}

void Tag::readValueFromMap(const QVariantMap &map)
{
    if (!map.contains(QLatin1String("value"))) {
        setValue(0);
        return;
    }
    const QVariant v = map.value(QLatin1String("value"));
    if (m_deviceType == dtFloat32 || m_deviceType == dtFloat64)
        setValue(v.toFloat());
    else
        setValue(v);
}

QVariantMap Tag::save() const
{
    QVariantMap map;
    if (m_tagType != ttNormal)
        map.insert(QStringLiteral("type"), tagTypeToString(m_tagType));
    map.insert(QStringLiteral("name"), name());
    map.insert(QStringLiteral("enabled"), enabled());
    map.insert(QStringLiteral("polling_period"), period());
    map.insert(QStringLiteral("address"), m_address);
    map.insert(QStringLiteral("priority"), priority());
    map.insert(QStringLiteral("device_type"), deviceTypeToString(m_deviceType));
    if (m_deviceType == dtByteArray) {
        if (m_arraySize != 0)
            map.insert(QStringLiteral("array_size"), m_arraySize);
    } else {
        map.insert(QStringLiteral("server_type"), serverTypeToString(m_serverType));
    }
    map.insert(QStringLiteral("read_func"), readFunc());
    map.insert(QStringLiteral("write_func"), writeFunc());
    if (decimalPoint() != 0)
        map.insert(QStringLiteral("decimal_point"), decimalPoint());
    if (!byteOrder().isEmpty())
        map.insert(QStringLiteral("byteorder"), byteOrder());
    if (byteOrderEnabled())
        map.insert(QStringLiteral("byteorder_enabled"), true);
    const Device *dev = device();
    if (!dev || byteSwappingEnabled() != dev->byteSwappingEnabled())
        map.insert(QStringLiteral("byteswap_enabled"), byteSwappingEnabled());
    map.insert(QStringLiteral("access"), accessTypeToString(m_access));
    map.insert(QStringLiteral("comment"), comment());
    map.insert(QStringLiteral("request_delay"), m_requestDelay);
    if (m_useBitExtractionReadOnly)
        map.insert(QStringLiteral("use_bit_extraction_read_only"), true);
    if (m_useBitExtraction)
        map.insert(QStringLiteral("use_bit_extraction"), true);
    if (m_useBitExtraction || m_useBitExtractionReadOnly) {
        map.insert(QStringLiteral("extract_bit_from"), m_extractBitFrom);
        map.insert(QStringLiteral("extract_bit_to"), m_extractBitTo);
    }
    map.insert(QStringLiteral("config_group"), m_configGroup);
    if (m_tagType == ttSeparate) {
        map.insert(QStringLiteral("address_offset"), m_addressOffset);
        map.insert(QStringLiteral("registers_count"), m_registersCount);
    }
    if (!m_tagsGroup.isEmpty())
        map.insert(QStringLiteral("tags_group"), m_tagsGroup);
    if (m_deviceType == dtFloat32 || m_deviceType == dtFloat64)
        map.insert(QStringLiteral("value"), valueToString());
    else
        map.insert(QStringLiteral("value"), value()); // under the lock: a poll may be writing it
    map.insert(QStringLiteral("limits"), m_limits);
    if (!m_values.isEmpty())
        map.insert(QStringLiteral("values"), m_values);
    map.insert(QStringLiteral("modified"), isModified());
    return map;
}

// For a separate block the port moves raw registers and the tag swaps its own
// slice; a byte array is never swapped. The change of the tag lasts.
bool Tag::applySwapFlagRule()
{
    Device *dev = device();
    const bool deviceFlag = dev->byteSwappingEnabled();
    if (deviceFlag && byteSwappingEnabled() && m_tagType == ttSeparate && m_registersCount > 0)
        setByteSwappingEnabled(false);
    else if (m_deviceType == dtByteArray)
        setByteSwappingEnabled(false);
    if (deviceFlag != byteSwappingEnabled()) {
        LOG_INFO << "*** set device byte swapping enabled:" << byteSwappingEnabled();
        dev->setByteSwappingEnabled(byteSwappingEnabled());
    }
    return deviceFlag;
}

void Tag::restoreDeviceSwapFlag(bool deviceFlag)
{
    device()->setByteSwappingEnabled(deviceFlag);
}

static ModbusValue zeroValue()
{
    ModbusValue value;
    std::memset(&value, 0, sizeof value);
    return value;
}

static QByteArray swappedSlice(const QByteArray &slice, int width)
{
    return ByteSwapper::swap_byteorder(ByteSwapper::swap_byteorder(slice, 2), width);
}

static void copyInto(ModbusValue &value, const QByteArray &bytes, int width)
{
    std::memcpy(value.bytes, bytes.constData(),
                size_t(qBound(0, qMin(int(bytes.size()), width), 8)));
}

void Tag::tagRequesting()
{
    std::lock_guard locker(m_requestMutex);
    m_requestDone = false;
}

bool Tag::waitTagRequested(int timeoutMs)
{
    std::unique_lock locker(m_requestMutex);
    return m_requested.wait_for(locker, std::chrono::milliseconds(timeoutMs),
                                [this] { return m_requestDone; });
}

void Tag::finishRequest(int state, const char *verb)
{
    if (const Device *dev = device())
        setErrorString(dev->errorString());
    updateState(state);
    if (state != ResultGood)
        LOG_INFO << QStringLiteral("error %1 tag '%2' - %3")
                        .arg(QLatin1String(verb), fullName(), errorString());
    std::lock_guard locker(m_requestMutex);
    m_requestDone = true;
    m_requested.notify_all();
}

QVariant Tag::read()
{
    Device *dev = device();
    if (!dev) {
        finishRequest(ResultConfigError, "reading");
        return value();
    }
    if (m_access != ReadOnly && m_access != ReadWrite) {
        // Reading a write-only tag reports success and leaves the value.
        finishRequest(ResultGood, "reading");
        return value();
    }
    mySleep(m_requestDelay);
    const bool deviceFlag = applySwapFlagRule();
    const int state
        = dev->read(fullName(), int(address()), readFunc(), deviceTypeLengthToRead(), m_rawBuffer);
    restoreDeviceSwapFlag(deviceFlag);

    if (state != ResultGood) {
        // A channel shows a gap in the plot and the measure file.
        if (isChannel())
            setValue(std::numeric_limits<float>::quiet_NaN());
    } else if (m_deviceType == dtBit) {
        setValue(!m_rawBuffer.isEmpty() && m_rawBuffer.at(0) != 0);
    } else if (m_tagType == ttNormal) {
        QByteArray bytes = m_rawBuffer;
        if (byteOrderEnabled())
            bytes = ByteSwapper::convert(bytes, byteOrder());
        if (m_deviceType == dtByteArray) {
            setValue(bytes);
        } else {
            ModbusValue raw = zeroValue();
            copyInto(raw, bytes, deviceTypeLength());
            setModbusValue(raw);
        }
    } else if (m_tagType == ttSeparate && m_addressOffset >= 0) {
        const int width = deviceTypeLength();
        QByteArray slice = m_rawBuffer.mid(m_addressOffset * 2, width);
        if (deviceFlag)
            slice = swappedSlice(slice, width);
        if (byteOrderEnabled())
            slice = ByteSwapper::convert(slice, byteOrder());
        ModbusValue raw = zeroValue();
        copyInto(raw, slice, width);
        setModbusValue(raw);
    }
    finishRequest(state, "reading");
    return value();
}

void Tag::setModbusValue(ModbusValue raw)
{
    if (m_useBitExtraction || m_useBitExtractionReadOnly)
        raw.u32 = extract_bits(raw.bytes, m_extractBitFrom, m_extractBitTo - m_extractBitFrom + 1);
    switch (m_deviceType) {
    case dtBit:
        setValue(true);
        break;
    case dtInt16:
        setValue(int(raw.i16));
        break;
    case dtUInt16:
        setValue(int(raw.u16));
        break;
    case dtInt32:
        setValue(int(raw.i32));
        break;
    case dtUInt32:
        setValue(uint(raw.u32));
        break;
    case dtFloat32:
        setValue(raw.f32);
        break;
    case dtFloat64:
        // Kept as a single-precision float: the double precision is lost on reading.
        setValue(float(raw.f64));
        break;
    default:
        break;
    }
}

ModbusValue Tag::getModbusValue() const
{
    ModbusValue raw = zeroValue();
    const QVariant v = value();
    switch (m_deviceType) {
    case dtBit:
        raw.u32 = v.toBool() ? 1 : 0;
        break;
    case dtInt16:
        raw.i16 = int16_t(v.toInt() & 0xFFFF);
        break;
    case dtUInt16:
        raw.u16 = uint16_t(v.toUInt() & 0xFFFF);
        break;
    case dtInt32:
        raw.i32 = v.toInt();
        break;
    case dtUInt32:
        raw.u32 = v.toUInt();
        break;
    case dtFloat32:
        raw.f32 = v.toFloat();
        break;
    case dtFloat64:
        raw.f64 = v.toDouble();
        break;
    default:
        break;
    }
    return raw;
}

QByteArray Tag::prepareWriteBuffer(const QVariant &newValue, bool deviceFlag)
{
    if (m_deviceType == dtByteArray)
        return newValue.toByteArray();
    const int width = deviceTypeLength();
    ModbusValue word = zeroValue();
    if (m_useBitExtraction) {
        // Read the register first, so that only this bit field changes.
        Device *dev = device();
        dev->read(fullName(), int(address()), readFunc(), deviceTypeLengthToRead(), m_rawBuffer);
        QByteArray bytes = m_rawBuffer;
        if (m_tagType == ttSeparate) {
            bytes = bytes.mid(m_addressOffset * 2, width);
            if (deviceFlag)
                bytes = swappedSlice(bytes, width);
        }
        if (byteOrderEnabled())
            bytes = ByteSwapper::convert(bytes, byteOrder());
        copyInto(word, bytes, width);
        word.u32 = set_bits(word.u32, newValue.toUInt(), m_extractBitFrom,
                            m_extractBitTo - m_extractBitFrom + 1);
    } else {
        word = getModbusValue();
    }
    return QByteArray(reinterpret_cast<const char *>(word.bytes), width);
}

QByteArray Tag::groupWriteBuffer(const QByteArray &ownBytes, bool deviceFlag)
{
    const int length = deviceTypeLengthToWrite();
    LOG_INFO << "tagsGroupTypesLen:" << length;
    QByteArray group(length, '\0');
    const Device *dev = device();
    for (const QString &member : qAsConst(m_tagsGroup)) {
        const Tag *tag = dev->tag(member);
        if (!tag)
            continue;
        const int memberWidth = tag->deviceTypeLength();
        QByteArray bytes;
        if (tag == this) {
            bytes = ownBytes;
        } else {
            const ModbusValue raw = tag->getModbusValue();
            bytes = QByteArray(reinterpret_cast<const char *>(raw.bytes), memberWidth);
        }
        if (tag->byteOrderEnabled()) {
            LOG_INFO << "######### byteOrderingEnabled() ##########";
            bytes = ByteSwapper::convert(bytes, tag->byteOrder());
        }
        if (deviceFlag) {
            LOG_INFO << "######### byteSwappingEnabled() ##########";
            bytes = swappedSlice(bytes, memberWidth);
        }
        // A member that lies beyond the block is the configuration's fault: clip it.
        const int at = tag->addressOffset() * 2;
        const int room = qMax(0, qMin(int(bytes.size()), int(group.size()) - at));
        if (at >= 0 && room > 0)
            std::memcpy(group.data() + at, bytes.constData(), size_t(room));
    }
    LOG_INFO << "wbuffer" << group.toHex(' ');
    return group;
}

bool Tag::write(const QVariant &newValue)
{
    LOG_INFO << "write " << newValue;
    Device *dev = device();
    if (!dev || (m_access != WriteOnly && m_access != ReadWrite)) {
        finishRequest(ResultConfigError, "writing");
        return false;
    }
    {
        std::unique_lock locker(m_valueLock);
        m_value = newValue;
    }
    const bool deviceFlag = applySwapFlagRule();
    QByteArray buffer = prepareWriteBuffer(newValue, deviceFlag);
    // The same rule as on reading, not its inverse.
    if (byteOrderEnabled() && m_tagType != ttSeparate)
        buffer = ByteSwapper::convert(buffer, byteOrder());
    mySleep(m_requestDelay);
    int state;
    if (m_tagType == ttSeparate) {
        const QByteArray group = groupWriteBuffer(buffer, deviceFlag);
        state = dev->write(fullName(), int(address()), writeFunc(), int(group.size()), group);
    } else {
        state = dev->write(fullName(), int(address()), writeFunc(), deviceTypeLengthToWrite(),
                           buffer);
    }
    restoreDeviceSwapFlag(deviceFlag);
    finishRequest(state, "writing");
    return state == ResultGood;
}
