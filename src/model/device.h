#ifndef DEVICE_H
#define DEVICE_H

#include "discovery/serialportsettings.h"
#include "model/serveritem.h"

#include <QMap>
#include <QStringList>
#include <QVariantMap>

class Channel;
class Port;
class Tag;

// One instrument on a port: its settings, its tags and channels, and the
// snapshots by which the editor moves between file, instrument and buffer.
class Device : public ServerItem
{
    Q_OBJECT
public:
    // Bits of the device state word.
    enum TagStateFlag {
        FromFile = 1,
        Changed = 2,
        ReadFromDevice = 4,
        WrittenToDevice = 8,
        Polled = 16,
        Pasted = 32,
        ArchiveDownload = 64,
    };

    enum ArchiveType {
        Archive1s = 0,
        Archive5s,
        Archive10s,
        Archive30s,
        Archive1m,
        Archive5m,
        Archive10m,
        Archive30m,
        Archive1h,
        Archive3h,
        Archive6h,
        Archive12h,
        Archive1d,
    };

    explicit Device(Port *port);
    ~Device() override;

    // ServerItem
    QList<Tag *> tags() const override;
    QList<Tag *> activeTags() const override;
    QString fullName() const override;
    QIcon icon() const override { return QIcon(); }
    bool load(const QVariantMap &map) override;
    QVariantMap save() const override;
    bool insertChildren(int position, int count) override;
    bool removeChildren(int position, int count) override;
    bool removeChildren() override { return removeChildren(0, childCount()); }
    int type() const override { return ItemDevice; }
    ServerItem *createChild() override;

    Port *port() const;

    // Settings kept as dynamic properties.
    int address() const { return property("address").toInt(); }
    void setAddress(int address) { setProperty("address", address); }
    int pollingPeriod() const { return property("polling_period").toInt(); }
    void setPollingPeriod(int ms) { setProperty("polling_period", ms); }
    int requestTimeout() const { return property("request_timeout").toInt(); }
    void setRequestTimeout(int ms) { setProperty("request_timeout", ms); }
    int responceTimeout() const { return property("responce_timeout").toInt(); }
    void setResponceTimeout(int ms) { setProperty("responce_timeout", ms); }
    int byteTimeout() const { return property("byte_timeout").toInt(); }
    void setByteTimeout(int ms) { setProperty("byte_timeout", ms); }
    bool isClosePortIfError() const { return property("close_port_if_error").toBool(); }
    void setClosePortIfError(bool on) { setProperty("close_port_if_error", on); }
    bool isUseCash() const { return property("use_cash").toBool(); }
    void setUseCash(bool on) { setProperty("use_cash", on); }
    int cashTimeout() const { return m_cashTimeout; }
    void setCashTimeout(int ms) { m_cashTimeout = ms < 1 ? 70 : ms; }
    QString producer() const { return property("producer").toString(); }
    QString comment() const { return property("comment").toString(); }
    void setComment(const QString &text) { setProperty("comment", text); }
    QString deviceVariant() const { return property("variant").toString(); }
    int accessByInterfaceMask() const { return property("access").toInt(); }
    int protocolType() const { return property("protocol_type").toInt(); }
    void setProtocolType(int type) { setProperty("protocol_type", type); }
    int asciiDelimiter() const { return property("ascii_delimiter").toInt(); }
    void setAsciiDelimiter(int delimiter) { setProperty("ascii_delimiter", delimiter); }
    bool byteSwappingEnabled() const { return property("byteorder_enabled").toBool(); }
    void setByteSwappingEnabled(bool on) { setProperty("byteorder_enabled", on); }

    QString deviceModbusID() const { return m_modbusId; }
    void setDeviceModbusID(const QString &id) { m_modbusId = id; }
    QString firmwareDate() const { return m_firmwareDate; }
    void setFirmwareDate(const QString &date) { m_firmwareDate = date; }
    QString deviceTemplateName() const { return m_templateName; }
    void setDeviceTemplateName(const QString &name);
    bool setDeviceName(const QString &name, bool checkOnly);

    // Identification: index of the texts learnt from the instrument.
    enum IdentificationText {
        ReplyText = 0,
        ShortIdentification = 1,
        SerialText = 2,
        FirmwareNumber = 3,
        DeviceFirmwareDate = 4,
        TemplateFirmwareDate = 5, // the "firmware_date" key
    };
    int deviceId() const { return m_deviceId; }
    int deviceID() const { return m_deviceId; }
    void setDeviceId(int id) { m_deviceId = id; }
    QString identification(int index) const;
    void setIdentification(int index, const QString &text);
    QString replyText() const { return m_identification[ReplyText]; }
    QString firmwareNumber() const { return m_identification[FirmwareNumber]; }
    QString deviceFirmwareDate() const { return m_identification[DeviceFirmwareDate]; }

    // Asks the instrument for proof that it is what modbus_id says; arguments as in openPort.
    bool checkDevice(int baudIndex = -1, int parityIndex = -1, int protocol = -1,
                     int delimiter = -1);
    void initFirmwareNumber();

    SerialPortSettings portSettings() const { return m_portSettings; }
    void setPortSettings(const SerialPortSettings &settings) { m_portSettings = settings; }
    QString portSettingsToString(bool withName) const;
    void setPortSettingsInTags();

    int processingTime() const { return m_processingTime; }
    void setProcessingTime(int ms) { m_processingTime = ms; }

    QVariantMap measureInfo() const { return m_measureInfo; }
    void setMeasureInfo(const QVariantMap &info) { m_measureInfo = info; }
    QVariantMap defaultWidgetConfiguration() const { return m_defaultWidgetConfiguration; }
    void setDefaultWidgetConfiguration(const QVariantMap &cfg)
    {
        m_defaultWidgetConfiguration = cfg;
    }

    // Tags.
    Tag *tag(const QString &name) const;
    QStringList tagIds() const;
    Tag *addTag(const QString &name, int index = -1);
    bool addTag(Tag *tag);
    void removeTag(const QString &name);
    QList<Tag *> tagsWithErrors(bool activeOnly) const;
    bool hasTagsWithErrors(bool activeOnly) const;
    QList<Tag *> tagsWithNan() const;
    bool hasTagsWithNan() const;
    void fixTagsWithNanToNull();
    bool hasChannelTagsWithTimeStampTimeout() const;

    // Channels.
    bool addChannel(Tag *tag);
    void removeChannel(Tag *tag);
    Channel *channelByName(const QString &name) const { return m_channels.value(name); }
    QList<Channel *> Channels() const { return m_channels.values(); }
    QStringList ChannelNames() const { return m_channels.keys(); }
    void addChannelToQueued(const QString &name);
    void removeChannelFromQueued(const QString &name);
    QStringList queuedChannels() const { return m_queuedChannels; }
    QList<Tag *> channelTagsToQueue() const;

    // State word and snapshots.
    int deviceTagState() const { return m_deviceTagState; }
    void setDeviceTagState(int state) { m_deviceTagState = state; }
    void setDeviceTagStateFlag(int flag, bool on = true);
    bool hasDeviceTagStateFlag(int flag) const { return (m_deviceTagState & flag) != 0; }
    QString deviceTagsStateToShortString() const;
    QString deviceTagsStateToLongString() const;

    QVariantMap deviceData() const { return m_deviceData; }
    QVariantMap fileData() const { return m_fileData; }
    QVariantMap backup() const { return m_backup; }
    QVariantMap rollback() const { return m_rollback; }
    bool hasDeviceData() const { return !m_deviceData.isEmpty(); }
    bool hasFileData() const { return !m_fileData.isEmpty(); }
    bool hasBackup() const { return !m_backup.isEmpty(); }
    bool hasRollback() const { return !m_rollback.isEmpty(); }
    void backupTagsInFileData();
    void backupTagsInDeviceData();
    void backupTags();
    void restoreTagsFromFileData();
    void restoreTagsFromDeviceData();
    void restoreTags();
    void rollbackTags();
    void clearFileData() { m_fileData.clear(); }
    bool pasteFromClipboard(const QVariantMap &map);
    void compareTagsAfterRestore();
    QVariant valueFromDeviceData(const QString &name) const;
    void setValueInDeviceData(const QString &name, const QVariant &value);

    static QString archiveTypeToString(int type, bool asKey);
    static int archiveTypeFromString(const QString &text);

    bool getExceptionalAnswerText(const QByteArray &answer, int function, QString &text) const;
    int getDelayByBaudrate() const;

    // Exchanges: each takes the port lock for the exchange and the pause after it.
    bool openPort(int baudIndex = -1, int parityIndex = -1, int protocol = -1, int delimiter = -1);
    int read(const QString &name, int addr, int func, int lengthInBytes, QByteArray &out);
    int write(const QString &name, int addr, int func, int lengthInBytes, const QByteArray &data);
    void checkAndSetPortTimeouts();
    void checkOffDevice();

    void sendModbusMessage(const QString &text);

signals:
    void deviceTemplateChanged(const QString &name);
    void tagsDeleting();
    void appendChannelData(const QString &name, const QVariant &value);
    void modbusMessage(int address, const QString &text);
    void modbusErrorMessage(int address, const QString &text);

private:
    bool openPortForCheck(Port *port, int baudIndex, int parityIndex, int protocol, int delimiter);
    bool checkFirmwareDate();
    bool openPortForExchange(Port *port);
    void copyLineSettingsFrom(const Port *port);
    void pauseAfterExchange();
    bool readFromCache(int addr, int func, int lengthInBytes, QByteArray &out) const;
    void storeInCache(int addr, int func, int lengthInBytes, const QByteArray &bytes);
    int openFailureState(Port *port);
    int takeExchangeResult(Port *port, const QString &rx, const QString &tx);
    int finishExchange(Port *port, int state, const QString &verb, const QString &name);
    QString exchangeLabel(const QString &name) const;

    QVariantMap snapshot() const;
    void restoreFrom(const QVariantMap &snapshot);
    void readSettings(const QVariantMap &map);

    QString m_templateName;
    QString m_modbusId;
    bool m_loading = false;
    QVariantMap m_deviceData;
    QVariantMap m_fileData;
    QVariantMap m_backup;
    QVariantMap m_rollback;
    int m_deviceId = 0;
    QString m_identification[5];
    QString m_firmwareDate;
    SerialPortSettings m_portSettings;
    int m_messageLimit = 10000;
    QStringList m_list;
    int m_deviceTagState = FromFile;
    QMap<QString, Channel *> m_channels;
    QStringList m_queuedChannels;
    int m_cashTimeout = 70;
    int m_processingTime = 0;
    QVariantMap m_readCache; // the one entry of the read cache
    QVariantMap m_measureInfo;
    QVariantMap m_defaultWidgetConfiguration;
};

#endif // DEVICE_H
