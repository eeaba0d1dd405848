#ifndef TAG_H
#define TAG_H

#include "model/serveritem.h"

#include <QByteArray>
#include <QDateTime>
#include <QStringList>
#include <QVariant>

#include <condition_variable>
#include <mutex>
#include <shared_mutex>

class Device;

// The raw image of one value as it came from or goes to the wire.
union ModbusValue {
    uint8_t bytes[8];
    uint16_t u16;
    int16_t i16;
    uint32_t u32;
    int32_t i32;
    float f32;
    double f64;
    uint64_t u64;
};

// One register-mapped parameter of an instrument: where it lies, how it is
// encoded on the wire, how it is shown, and its last value with a time stamp.
class Tag : public ServerItem
{
    Q_OBJECT
public:
    enum TagType { ttNormal = 0, ttSeparate = 1 };
    enum DeviceType {
        dtBit = 0,
        dtInt16 = 1,
        dtUInt16 = 2,
        dtInt32 = 3,
        dtUInt32 = 4,
        dtFloat32 = 5,
        dtFloat64 = 6,
        dtByteArray = 7,
    };
    enum ServerType {
        stBool = 0,
        stInt16 = 1,
        stUInt16 = 2,
        stInt32 = 3,
        stUInt32 = 4,
        stFloat32 = 5,
        stFloat64 = 6,
    };
    enum OpcAccessType { ReadOnly = 0, WriteOnly = 1, ReadWrite = 2 };

    explicit Tag(Device *device);
    ~Tag() override;

    // ServerItem
    QList<Tag *> tags() const override;
    QList<Tag *> activeTags() const override;
    QString fullName() const override;
    QIcon icon() const override { return QIcon(); }
    bool load(const QVariantMap &map) override;
    QVariantMap save() const override;
    int type() const override { return ItemTag; }
    ServerItem *createChild() override { return nullptr; }

    static QString tagTypeToString(int type);
    static int tagTypeFromString(const QString &text);
    static QString deviceTypeToString(int type);
    static int deviceTypeFromString(const QString &text);
    static int deviceTypeLength(int type);
    static QString serverTypeToString(int type);
    static int serverTypeFromString(const QString &text);
    static QString accessTypeToString(int type, bool shortForm = false);
    static int accessTypeFromString(const QString &text);

    Device *device() const;

    int tagType() const { return m_tagType; }
    void setTagType(int type) { m_tagType = TagType(type); }
    int deviceType() const { return m_deviceType; }
    void setDeviceType(int type) { m_deviceType = DeviceType(type); }
    int serverType() const { return m_serverType; }
    void setServerType(int type) { m_serverType = ServerType(type); }
    int arraySize() const { return m_arraySize; }
    void setArraySize(int size) { m_arraySize = size; }
    int access() const { return m_access; }
    void setAccess(int access) { m_access = OpcAccessType(access); }
    int deviceTypeLength() const { return deviceTypeLength(m_deviceType); }

    QString addressText() const { return m_address; }
    void setAddressText(const QString &address) { m_address = address; }
    uint address() const;
    static uint addressFromText(const QString &text);

    int requestDelay() const { return m_requestDelay; }
    void setRequestDelay(int ms) { m_requestDelay = ms; }
    int period() const { return property("period").toInt(); }
    void setPeriod(int ms) { setProperty("period", ms); }

    // Value and time stamp, guarded for the polling thread.
    QVariant value() const;
    void setValue(const QVariant &value);
    QDateTime timestamp() const;
    void setTimeStamp(const QDateTime &time);
    void writeValueScheduled(const QVariant &value);
    QString valueToString() const;
    bool isValueNaN() const;
    bool isValueLimitsOut() const;
    bool isTimeStampTimeout() const;

    QByteArray rawBuffer() const { return m_rawBuffer; }
    void setRawBuffer(const QByteArray &bytes) { m_rawBuffer = bytes; }
    int requestState() const { return m_requestState; }
    void setRequestState(int state) { m_requestState = state; }

    bool useBitExtraction() const { return m_useBitExtraction; }
    void setUseBitExtraction(bool on) { m_useBitExtraction = on; }
    bool useBitExtractionReadOnly() const { return m_useBitExtractionReadOnly; }
    void setUseBitExtractionReadOnly(bool on) { m_useBitExtractionReadOnly = on; }
    int extractBitFrom() const { return m_extractBitFrom; }
    int extractBitTo() const { return m_extractBitTo; }
    void setExtractBitFrom(int bit);
    void setExtractBitTo(int bit);

    QVariantList limits() const { return m_limits; }
    void setLimits(const QVariantList &limits) { m_limits = limits; }
    void setLimits(const QVariant &low, const QVariant &high);

    QVariantMap values() const { return m_values; }
    void setValues(const QVariantMap &values) { m_values = values; }
    QString valueFromValues(const QString &v = QString()) const;
    void replaceTextInValues(int key, const QString &text);

    QStringList configGroup() const { return m_configGroup; }
    void setConfigGroup(const QStringList &group) { m_configGroup = group; }
    QString configGroupID() const;
    QString configGroupName() const;
    bool isChannel() const;

    int addressOffset() const { return m_addressOffset; }
    void setAddressOffset(int offset) { m_addressOffset = offset; }
    int registersCount() const { return m_registersCount; }
    void setRegistersCount(int count) { m_registersCount = count; }
    QStringList tagsGroup() const { return m_tagsGroup; }
    void setTagsGroup(const QStringList &names) { m_tagsGroup = names; }

    int deviceTypeLengthToRead() const;
    int deviceTypeLengthToWrite();

    // One synchronous exchange; the result stays in the tag's state and error text.
    QVariant read();
    bool write(const QVariant &value);
    void setModbusValue(ModbusValue raw);
    ModbusValue getModbusValue() const;

    // Hand-over of a request queued to the polling thread: the requester marks
    // the tag, the exchange ends by waking it. The wait is bounded.
    void tagRequesting();
    bool waitTagRequested(int timeoutMs);

    QString byteOrder() const { return property("byteorder").toString(); }
    bool byteOrderEnabled() const { return property("byteorder_enabled").toBool(); }
    bool byteSwappingEnabled() const { return property("byteswap_enabled").toBool(); }
    void setByteSwappingEnabled(bool on) { setProperty("byteswap_enabled", on); }
    QString valuesPrefix() const { return property("values_prefix").toString(); }
    int readFunc() const { return property("read_func").toInt(); }
    int writeFunc() const { return property("write_func").toInt(); }
    int decimalPoint() const { return property("decimal_point").toInt(); }
    QString comment() const { return property("comment").toString(); }
    bool isModified() const { return property("modified").toBool(); }
    void setModified(bool on) { setProperty("modified", on); }

    int processingTime() const;

    QStringList modbusMessages() const { return m_modbusMessages; }
    void appendModbusMessage(const QString &text);

signals:
    void valueChanged(const QVariant &value);
    void writeRequest();
    void deleting(QObject *tag);
    void textInValuesChanged(int key, const QString &text);

private:
    int bitWidth() const { return deviceTypeLength() * 8; }
    bool applySwapFlagRule();
    void restoreDeviceSwapFlag(bool deviceFlag);
    QByteArray prepareWriteBuffer(const QVariant &value, bool deviceFlag);
    QByteArray groupWriteBuffer(const QByteArray &ownBytes, bool deviceFlag);
    void finishRequest(int state, const char *verb);
    int clampExtractBitTo(int bit) const;
    void readValueFromMap(const QVariantMap &map);

    TagType m_tagType = ttNormal;
    DeviceType m_deviceType = dtFloat32;
    ServerType m_serverType = stFloat32;
    int m_arraySize = 0;
    OpcAccessType m_access = ReadOnly;
    QVariant m_value;
    QDateTime m_timestamp;
    QByteArray m_rawBuffer;
    int m_requestState = 0;
    // Standard locks rather than Qt's, so that ThreadSanitizer can follow them.
    mutable std::shared_mutex m_valueLock;
    mutable std::shared_mutex m_timeLock;
    QString m_address = QStringLiteral("0");
    int m_requestDelay = 1;
    int m_requestsQueued = 0;
    int m_requestsDone = 0;
    QStringList m_modbusMessages;
    bool m_useBitExtraction = false;
    bool m_useBitExtractionReadOnly = false;
    int m_extractBitFrom = 0;
    int m_extractBitTo = 0;
    int m_messageLimit = 10000;
    QVariantList m_limits;
    QVariantMap m_values;
    QStringList m_configGroup;
    int m_addressOffset = 0;
    int m_registersCount = 0;
    QStringList m_tagsGroup;

    std::condition_variable m_requested;
    std::mutex m_requestMutex;
    bool m_requestDone = true;
};

#endif // TAG_H
