#ifndef PORT_H
#define PORT_H

#include "model/serveritem.h"

#include <QChar>
#include <QPointer>
#include <QSemaphore>
#include <QStringList>

class Device;
class PortThread;
class Server;
typedef struct _modbus modbus_t;

// A line on which devices sit: a serial port, or a Modbus TCP endpoint that
// can be configured but never opened.
class Port : public ServerItem
{
    Q_OBJECT
public:
    enum PortType { MODBUS_RTU = 0, MODBUS_TCP = 1 };
    enum ProtocolType { ProtocolRTU = 0, ProtocolASCII = 1 };

    explicit Port(Server *server);
    ~Port() override;

    // ServerItem
    QList<Tag *> tags() const override;
    QList<Tag *> activeTags() const override;
    QString fullName() const override { return name(); }
    QIcon icon() const override { return QIcon(); }
    bool load(const QVariantMap &map) override;
    QVariantMap save() const override;
    int type() const override { return ItemPort; }
    ServerItem *createChild() override;

    Server *server() const;

    static QString portTypeToString(int type);
    static int portTypeFromString(const QString &text);
    static int baudrateIndexOf(int baud);
    static int parityIndexOf(QChar parity);
    static const QList<int> &baudrates();

    int portType() const { return property("port_type").toInt(); }
    void setPortType(int type) { setProperty("port_type", type); }
    int pollingPeriod() const { return property("polling_period").toInt(); }
    QString serialName() const { return property("serial_name").toString(); }
    bool setSerialName(const QString &name);
    bool checkUniqSerialName(const QString &name) const;
    int baudrate() const { return property("baudrate").toInt(); }
    void setBaudrate(int baud) { setProperty("baudrate", baud); }
    int baudrateIndex(int baud = -1) const;
    void setBaudrateByIndex(int index);
    QChar parity() const;
    void setParity(QChar parity) { setProperty("parity", QString(parity)); }
    int parityIndex(QChar parity = QLatin1Char(' ')) const;
    void setParityByIndex(int index);
    int dataBits() const { return property("databits").toInt(); }
    void setDatabits(int bits) { setProperty("databits", bits); }
    int stopBits() const { return property("stopbits").toInt(); }
    void setStopbits(int bits) { setProperty("stopbits", bits); }
    int protocolType() const { return property("protocol_type").toInt(); }
    void setProtocolType(int type) { setProperty("protocol_type", type); }
    int asciiDelimiter() const { return property("ascii_delimiter").toInt(); }
    void setASCIIDelimiter(int delimiter) { setProperty("ascii_delimiter", delimiter); }
    QString ipAddress() const { return property("ip_address").toString(); }
    bool clearQueueIfTimeout() const { return property("clear_queue_if_timeout").toBool(); }
    bool clearPort() const { return property("clear_port").toBool(); }
    QString configName() const;

    // Devices.
    Device *addDevice(const QString &name, int index = -1);
    void removeDevice(const QString &name);
    Device *device(const QString &name) const;
    Device *device(int address) const;
    QStringList deviceIds() const;
    QList<Device *> devices() const;
    QList<Device *> connectionDevices() const;
    bool hasConnectionDevices() const { return !connectionDevices().isEmpty(); }
    bool hasArchivatedDevices() const;
    bool hasDevicesWithProblemTags() const;

    // Transport. All exchanges block the calling thread; callers hold the port lock.
    bool isOpened() const { return m_ctx != nullptr; }
    modbus_t *modbusContext() const { return m_ctx; }
    bool open();
    void close();
    void flush();
    QSemaphore *portLock() { return &m_portLock; }

    void setResponseTimeout(int ms);
    void setByteTimeout(int ms);
    int responseTimeout() const;
    int byteTimeout() const;

    bool read_registers(const QString &name, int slave, int addr, int func, int lengthInBytes,
                        QByteArray &out, QString &rx, QString &tx, bool swap);
    bool write_registers(const QString &name, int slave, int addr, int func, const QByteArray &data,
                         QString &rx, QString &tx, bool swap);
    bool read_bits(const QString &name, int slave, int addr, int func, QByteArray &out, QString &rx,
                   QString &tx);
    bool write_bits(const QString &name, int slave, int addr, int func, const QByteArray &data,
                    QString &rx, QString &tx);
    QByteArray sendRawRequest(const QByteArray &request, QString &rx, QString &tx, bool process);
    void errorProcessing(int code, QString &rx, QString &tx);

    // Identification probes; they always start from a flushed line.
    bool checkDeviceByF3(const QString &expected, int slave, int addr, int count, QByteArray &out,
                         bool compare, QString &rx, QString &tx);
    bool checkDeviceByF17(const QString &expected, int slave, int *deviceId, QString &replyText,
                          QString &rx, QString &tx);
    static QString buildModbusString(const QString &direction, const modbus_t *ctx,
                                     const struct _modbus_msg *msg);

    // Polling. A thread per port is created at the first attached device and
    // ends with the last; the first device attached gets priority 100, the next 99...
    static constexpr int MaxPolledDevices = 100;
    bool attachDeviceToPeriodRequest(Device *device);
    bool detachDeviceFromPeriodRequest(Device *device);
    void stopPortThread();
    bool isPortThreadWorked() const;
    // A one-shot exchange through the polling queue, waited for on the calling
    // thread; false when the thread does not run or the request was not served.
    bool processTagByThread(Tag *tag, bool write);
    bool isDeviceAttached(Device *device) const { return m_scheduledDevices.contains(device); }
    int scheduledDeviceCount() const { return int(m_scheduledDevices.size()); }
    QList<Device *> scheduledDevices() const { return m_scheduledDevices; }
    void readDeviceTagsByThread(Device *device);
    PortThread *portThread() const;
    QList<int> priorityPool() const { return m_priorityPool; }
    // The longest wait of a one-shot request for its turn in the queue.
    int oneShotTimeout() const { return m_oneShotTimeout; }
    void setOneShotTimeout(int ms) { m_oneShotTimeout = ms > 0 ? ms : 30000; }

signals:
    void requestProcessed();
    void threadFinished();

private slots:
    void onPortThreadFinished();

private:
    void createPortThread();
    bool waitOneShot(Tag *tag, PortThread *thread);

    bool prepareExchange(const QString &name, int slave, bool clearLine, QString &rx, QString &tx);
    bool prepareCheck(const QString &label, int slave);
    bool checkFailed(int rc, const QString &expected, int slave);
    void buildTrafficLines(QString &rx, QString &tx);
    void setNotOpenedError();

    modbus_t *m_ctx = nullptr;
    QSemaphore m_portLock;

    QList<Device *> m_scheduledDevices;
    QPointer<PortThread> m_portThread;
    QList<int> m_priorityPool; // 100 down to 1
    int m_oneShotTimeout = 30000;
};

#endif // PORT_H
