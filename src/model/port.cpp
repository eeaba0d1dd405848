#include "model/port.h"

#include "app/debugqt.h"
#include "model/device.h"
#include "model/server.h"
#include "model/tag.h"
#include "modbus/modbus.h"

#include <QFileInfo>

#include <cerrno>

Port::Port(Server *server)
    : ServerItem(server)
{
    m_portLock.release();
    namePattern = QStringLiteral("Port%1");
    setName(createUniqName(namePattern));
    setPortType(MODBUS_RTU);
    setProperty("polling_period", 1000);
    setPriority(10);
    setProperty("serial_name", name());
    setBaudrate(115200);
    setParity(QLatin1Char('N'));
    setStopbits(2);
    setDatabits(8);
    setProperty("ip_address", QStringLiteral("192.168.1.100:502"));
}

Port::~Port()
{
    close();
}

Server *Port::server() const
{
    return qobject_cast<Server *>(parentItem());
}

QList<Tag *> Port::tags() const
{
    QList<Tag *> result;
    for (ServerItem *item : children())
        result.append(item->tags());
    return result;
}

QList<Tag *> Port::activeTags() const
{
    QList<Tag *> result;
    for (ServerItem *item : children())
        result.append(item->activeTags());
    return result;
}

ServerItem *Port::createChild()
{
    auto *device = new Device(this);
    connect(device, &ServerItem::modified, this, &ServerItem::modified);
    return device;
}

QString Port::portTypeToString(int type)
{
    switch (type) {
    case MODBUS_RTU:
        return QStringLiteral("MODBUS_RTU");
    case MODBUS_TCP:
        return QStringLiteral("MODBUS_TCP");
    default:
        return QString();
    }
}

int Port::portTypeFromString(const QString &text)
{
    return text.compare(QLatin1String("MODBUS_TCP"), Qt::CaseInsensitive) == 0 ? MODBUS_TCP
                                                                               : MODBUS_RTU;
}

const QList<int> &Port::baudrates()
{
    static const QList<int> table = {1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200};
    return table;
}

int Port::baudrateIndexOf(int baud)
{
    return int(baudrates().indexOf(baud));
}

int Port::baudrateIndex(int baud) const
{
    return baudrateIndexOf(baud == -1 ? baudrate() : baud);
}

void Port::setBaudrateByIndex(int index)
{
    setBaudrate(index >= 0 && index < baudrates().size() ? baudrates().at(index) : 1200);
}

QChar Port::parity() const
{
    const QString text = property("parity").toString();
    return text.isEmpty() ? QChar() : text.at(0);
}

int Port::parityIndexOf(QChar parity)
{
    switch (parity.toLatin1()) {
    case 'N':
        return 1;
    case 'E':
        return 2;
    case 'O':
        return 3;
    default:
        return 0;
    }
}

int Port::parityIndex(QChar c) const
{
    return parityIndexOf(c == QLatin1Char(' ') ? parity() : c);
}

void Port::setParityByIndex(int index)
{
    setParity(QLatin1Char(index == 2 ? 'E' : (index == 3 ? 'O' : 'N')));
}

QString Port::configName() const
{
    return QStringLiteral("%1 ; %2 ; %3%4%5")
        .arg(serialName())
        .arg(baudrate())
        .arg(dataBits())
        .arg(parity())
        .arg(stopBits());
}

bool Port::checkUniqSerialName(const QString &name) const
{
    const Server *srv = server();
    if (!srv)
        return serialName() != name;
    for (const Port *port : srv->ports()) {
        if (port->serialName() == name)
            return false;
    }
    return true;
}

bool Port::setSerialName(const QString &name)
{
    if (name.isEmpty() || name == serialName() || !checkUniqSerialName(name))
        return false;
    setProperty("serial_name", name);
    if (isOpened()) {
        close();
        open();
    }
    return true;
}

Device *Port::addDevice(const QString &name, int index)
{
    LOG_INFO << name;
    if (name.isEmpty())
        return nullptr;
    if (index < 0 || index > childCount())
        index = childCount();
    auto *device = static_cast<Device *>(createChild());
    device->setName(name);
    insertChild(index, device);
    return device;
}

void Port::removeDevice(const QString &name)
{
    LOG_INFO << name;
    ServerItem *item = takeChild(name);
    if (item)
        item->deleteLater();
}

Device *Port::device(const QString &name) const
{
    return qobject_cast<Device *>(childByName(name));
}

Device *Port::device(int address) const
{
    for (Device *device : devices()) {
        if (device->address() == address)
            return device;
    }
    return nullptr;
}

QStringList Port::deviceIds() const
{
    QStringList names;
    for (ServerItem *item : children())
        names.append(item->name());
    names.sort();
    return names;
}

QList<Device *> Port::devices() const
{
    QList<Device *> result;
    for (ServerItem *item : children())
        result.append(static_cast<Device *>(item));
    return result;
}

QList<Device *> Port::connectionDevices() const
{
    QList<Device *> result;
    for (Device *device : devices()) {
        if (device->deviceId() != 0)
            result.append(device);
    }
    return result;
}

bool Port::hasArchivatedDevices() const
{
    for (Device *device : devices()) {
        if (device->hasDeviceTagStateFlag(Device::ArchiveDownload))
            return true;
    }
    return false;
}

bool Port::hasDevicesWithProblemTags() const
{
    for (Device *device : devices()) {
        if (device->hasTagsWithErrors(false))
            return true;
    }
    return false;
}

bool Port::load(const QVariantMap &map)
{
    const auto has = [&map](const char *key) { return map.contains(QLatin1String(key)); };
    const auto get = [&map](const char *key) { return map.value(QLatin1String(key)); };
    if (has("name"))
        setName(get("name").toString());
    if (has("enabled"))
        setEnabled(get("enabled").toBool());
    if (has("priority"))
        setPriority(get("priority").toInt());
    if (has("polling_period"))
        setProperty("polling_period", get("polling_period").toInt());
    if (has("port_type"))
        setPortType(portTypeFromString(get("port_type").toString()));
    if (has("ip_address"))
        setProperty("ip_address", get("ip_address").toString());
    if (has("serial_name"))
        setSerialName(get("serial_name").toString());
    if (has("baudrate"))
        setBaudrate(get("baudrate").toInt());
    if (baudrate() == 0)
        setBaudrate(115200);
    if (has("parity"))
        setProperty("parity", get("parity").toString());
    if (parityIndexOf(parity()) == 0)
        setParity(QLatin1Char('N'));
    if (has("stopbits"))
        setStopbits(get("stopbits").toInt());
    if (stopBits() == 0)
        setStopbits(2);
    if (has("databits"))
        setDatabits(get("databits").toInt());
    if (dataBits() == 0)
        setDatabits(8);
    if (has("clear_queue_if_timeout"))
        setProperty("clear_queue_if_timeout", get("clear_queue_if_timeout").toBool());
    if (has("clear_port"))
        setProperty("clear_port", get("clear_port").toBool());
    const QVariantList entries = listValue(get("devices"));
    for (const QVariant &entry : entries) {
        const QVariantMap deviceMap = entry.toMap();
        if (Device *device = addDevice(deviceMap.value(QLatin1String("name")).toString(), -1))
            device->load(deviceMap);
    }
    return true;
}

QVariantMap Port::save() const
{
    QVariantMap map;
    map.insert(QStringLiteral("name"), name());
    map.insert(QStringLiteral("enabled"), enabled());
    map.insert(QStringLiteral("priority"), priority());
    map.insert(QStringLiteral("polling_period"), pollingPeriod());
    map.insert(QStringLiteral("port_type"), portTypeToString(portType()));
    map.insert(QStringLiteral("ip_address"), ipAddress());
    map.insert(QStringLiteral("serial_name"), serialName());
    map.insert(QStringLiteral("baudrate"), baudrate());
    map.insert(QStringLiteral("parity"), QString(parity()));
    map.insert(QStringLiteral("stopbits"), stopBits());
    map.insert(QStringLiteral("databits"), dataBits());
    map.insert(QStringLiteral("clear_queue_if_timeout"), clearQueueIfTimeout());
    map.insert(QStringLiteral("clear_port"), clearPort());
    QVariantList deviceList;
    for (const Device *device : devices())
        deviceList.append(device->save());
    map.insert(QStringLiteral("devices"), deviceList);
    return map;
}

bool Port::open()
{
    if (m_ctx) {
        setErrorString(QStringLiteral("port '%1' already opened").arg(serialName()));
        return false;
    }
    if (portType() != MODBUS_RTU) {
        setErrorString(QStringLiteral("port type invalid for '%1'").arg(serialName()));
        updateState(ResultPortError);
        return false;
    }
    if (!QFileInfo::exists(serialName())) {
        setErrorString(QStringLiteral("not such device '%1'").arg(serialName()));
        updateState(ResultConfigError);
        return false;
    }
    const QByteArray device = serialName().toLocal8Bit();
    const char parityChar = parity().toLatin1();
    if (protocolType() == ProtocolRTU) {
        m_ctx = modbus_new_rtu(device.constData(), baudrate(), parityChar, dataBits(), stopBits());
    } else {
        modbus_ascii_set_delimiter(asciiDelimiter() & 0xFF);
        m_ctx = modbus_new_ascii(device.constData(), baudrate(), parityChar, dataBits(), stopBits());
    }
    if (!m_ctx) {
        setErrorString(QStringLiteral("fail create port for '%1'").arg(serialName()));
        updateState(ResultPortError);
        return false;
    }
    errno = 0;
    if (modbus_connect(m_ctx) != 0) {
        const int error = errno;
        const QString text = QString::fromLocal8Bit(modbus_strerror(error));
        setErrorString(text + QStringLiteral(" (%1)").arg(error));
        LOG_INFO << QStringLiteral("port '%1', mbrc=%2, modbus_connect error: %3")
                        .arg(fullName())
                        .arg(error)
                        .arg(text);
        modbus_close(m_ctx);
        modbus_free(m_ctx);
        m_ctx = nullptr;
        return false;
    }
    LOG_INFO << QStringLiteral("port '%1', opened").arg(fullName());
    setErrorString(QString());
    updateState(ResultGood);
    return true;
}

void Port::close()
{
    if (!m_ctx)
        return;
    modbus_clear_txrx_bufs(m_ctx);
    modbus_flush(m_ctx);
    modbus_close(m_ctx);
    modbus_free(m_ctx);
    m_ctx = nullptr;
}
