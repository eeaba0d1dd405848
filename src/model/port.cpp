#include "model/port.h"

#include "app/debugqt.h"
#include "config/utils.h"
#include "exchange/byteswapper.h"
#include "exchange/modbuslogger.h"
#include "exchange/portthread.h"
#include "exchange/request.h"
#include "exchange/worker.h"
#include "modbus/modbus.h"
#include "model/device.h"
#include "model/server.h"
#include "model/tag.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>

#include <cstring>
#include <vector>

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
    for (int priority = MaxPolledDevices; priority >= 1; --priority)
        m_priorityPool.append(priority);
}

Port::~Port()
{
    // The devices go after this body: nothing may poll them any more.
    m_scheduledDevices.clear();
    stopPortThread();
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
    if (Device *polled = device(name))
        detachDeviceFromPeriodRequest(polled);
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
        m_ctx
            = modbus_new_ascii(device.constData(), baudrate(), parityChar, dataBits(), stopBits());
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
    modbus_set_rx_dbg_handler(m_ctx, ModbusLogger::logRx);
    modbus_set_tx_dbg_handler(m_ctx, ModbusLogger::logTx);
    if (protocolType() == ProtocolRTU) {
        setResponseTimeout(200);
        setByteTimeout(100);
    } else {
        setResponseTimeout(500);
        setByteTimeout(300);
    }
    LOG_INFO << "responseTimeOut- " << responseTimeout();
    LOG_INFO << "byteTimeout- " << byteTimeout();
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

void Port::flush()
{
    if (m_ctx)
        modbus_flush(m_ctx);
}

static timeval toTimeval(int ms)
{
    timeval tv {};
    tv.tv_sec = ms / 1000;
    tv.tv_usec = (ms % 1000) * 1000;
    return tv;
}

// Whole seconds drop the fraction: 1500 reads back as 1000, which only costs a repeated set.
static int fromTimeval(const timeval &tv)
{
    return tv.tv_sec > 0 ? int(tv.tv_sec * 1000) : int(tv.tv_usec / 1000);
}

void Port::setResponseTimeout(int ms)
{
    if (!m_ctx)
        return;
    const timeval tv = toTimeval(ms);
    modbus_set_response_timeout(m_ctx, &tv);
}

void Port::setByteTimeout(int ms)
{
    if (!m_ctx)
        return;
    const timeval tv = toTimeval(ms);
    modbus_set_byte_timeout(m_ctx, &tv);
}

int Port::responseTimeout() const
{
    timeval tv {};
    if (!m_ctx || modbus_get_response_timeout(m_ctx, &tv) != 0)
        return 0;
    return fromTimeval(tv);
}

int Port::byteTimeout() const
{
    timeval tv {};
    if (!m_ctx || modbus_get_byte_timeout(m_ctx, &tv) != 0)
        return 0;
    return fromTimeval(tv);
}

void Port::setNotOpenedError()
{
    setErrorString(QStringLiteral("port '%1' is not opened").arg(serialName()));
}

// The common head of the four data exchanges: slave, label and clean records.
bool Port::prepareExchange(const QString &name, int slave, bool clearLine, QString &rx, QString &tx)
{
    errno = 0;
    if (clearLine && clearPort())
        flush();
    if (modbus_set_slave(m_ctx, slave) == -1) {
        errorProcessing(errno, rx, tx);
        return false;
    }
    modbus_set_dbg_context(m_ctx, name.toLocal8Bit().constData());
    modbus_clear_txrx_bufs(m_ctx);
    return true;
}

bool Port::read_registers(const QString &name, int slave, int addr, int func, int lengthInBytes,
                          QByteArray &out, QString &rx, QString &tx, bool swap)
{
    if (!m_ctx) {
        setNotOpenedError();
        return false;
    }
    out.clear();
    if (!prepareExchange(name, slave, true, rx, tx))
        return false;
    out.resize(qMax(0, lengthInBytes));
    const int count = int(out.size() / 2);
    std::vector<uint16_t> words(size_t(qMax(count, 1)), 0);
    const int rc = func == 4 ? modbus_read_input_registers(m_ctx, addr, count, words.data())
                             : modbus_read_registers(m_ctx, addr, count, words.data());
    int code = 0;
    if (rc == count) {
        std::memcpy(out.data(), words.data(), size_t(count) * 2);
        if (swap)
            out = ByteSwapper::swap_byteorder(ByteSwapper::swap_byteorder(out, 2), int(out.size()));
    } else {
        code = errno;
        if (rc == -1 && code == 0) {
            errorProcessing(EIO, rx, tx);
            return false;
        }
        if (code == EMBBADCRC) {
            // The one place where the read side recovers by itself.
            modbus_flush(m_ctx);
            mySleep(30);
        }
    }
    errorProcessing(code, rx, tx);
    return code == 0;
}

bool Port::write_registers(const QString &name, int slave, int addr, int func,
                           const QByteArray &data, QString &rx, QString &tx, bool swap)
{
    if (!m_ctx) {
        setNotOpenedError();
        return false;
    }
    if (!prepareExchange(name, slave, true, rx, tx))
        return false;
    QByteArray buffer = data;
    if (swap)
        buffer = ByteSwapper::swap_byteorder(
            ByteSwapper::swap_byteorder(buffer, int(buffer.size())), 2);
    const int count = int(buffer.size() / 2);
    std::vector<uint16_t> words(size_t(qMax(count, 1)), 0);
    std::memcpy(words.data(), buffer.constData(), size_t(count) * 2);
    int rc;
    int expected;
    if (func == 6) {
        // Only the first register reaches the device with function 6.
        expected = 1;
        rc = modbus_write_register(m_ctx, addr, words.at(0));
    } else {
        expected = count;
        rc = modbus_write_registers(m_ctx, addr, count, words.data());
    }
    int code = 0;
    if (rc != expected) {
        code = errno;
        if (rc == -1 && code == 0)
            code = EIO;
    }
    errorProcessing(code, rx, tx);
    return code == 0;
}

bool Port::read_bits(const QString &name, int slave, int addr, int func, QByteArray &out,
                     QString &rx, QString &tx)
{
    if (!m_ctx) {
        setNotOpenedError();
        return false;
    }
    out.clear();
    if (!prepareExchange(name, slave, true, rx, tx))
        return false;
    out.resize(1);
    uint8_t bit = 0;
    const int rc = func == 1 ? modbus_read_bits(m_ctx, addr, 1, &bit)
                             : modbus_read_input_bits(m_ctx, addr, 1, &bit);
    int code = 0;
    if (rc == 1) {
        out[0] = char(bit);
    } else {
        code = errno;
        if (rc == -1 && code == 0) {
            errorProcessing(EIO, rx, tx);
            return false;
        }
    }
    errorProcessing(code, rx, tx);
    return code == 0;
}

bool Port::write_bits(const QString &name, int slave, int addr, int func, const QByteArray &data,
                      QString &rx, QString &tx)
{
    if (!m_ctx) {
        setNotOpenedError();
        return false;
    }
    if (!prepareExchange(name, slave, false, rx, tx))
        return false;
    const uint8_t bit = !data.isEmpty() && data.at(0) != 0 ? 1 : 0;
    const int rc
        = func == 5 ? modbus_write_bit(m_ctx, addr, bit) : modbus_write_bits(m_ctx, addr, 1, &bit);
    int code = 0;
    if (rc != 1) {
        code = errno;
        if (rc == -1 && code == 0)
            code = EIO;
    }
    errorProcessing(code, rx, tx);
    return code == 0;
}

QByteArray Port::sendRawRequest(const QByteArray &request, QString &rx, QString &tx, bool process)
{
    errno = 0;
    QByteArray result;
    int state = ResultGood;
    int code = 0;
    if (!m_ctx) {
        setNotOpenedError();
        state = ResultPortError;
    } else {
        modbus_set_dbg_context(m_ctx, fullName().toLocal8Bit().constData());
        modbus_clear_txrx_bufs(m_ctx);
        QByteArray copy = request;
        const int sent = modbus_send_raw_request(m_ctx, reinterpret_cast<uint8_t *>(copy.data()),
                                                 int(copy.size()));
        if (sent < 1) {
            code = errno;
            if (sent == -1 && code == 0)
                code = EIO;
            state = ResultPortError;
        } else {
            uint8_t reply[1024];
            std::memset(reply, 0, sizeof reply);
            const int received = modbus_receive_confirmation(m_ctx, reply);
            if (received < 1) {
                code = errno;
                if (received == -1 && code == 0)
                    code = EIO;
                state = ResultModbusError;
            } else {
                result.append(reinterpret_cast<const char *>(reply), received);
            }
        }
    }
    if (process) {
        errorProcessing(code, rx, tx);
        return result;
    }
    setErrorString(getErrorString(state, errno));
    updateState(state);
    if (state != ResultGood) {
        LOG_INFO << QStringLiteral("error processing raw request '%1' - %2")
                        .arg(fullName(), errorString());
        if (ServerItem *parent = parentItem())
            parent->increaseErrorCount();
        if (code == EIO)
            close();
    }
    return result;
}

void Port::errorProcessing(int code, QString &rx, QString &tx)
{
    const int state
        = code == 0 ? ResultGood : (code == ETIMEDOUT ? ResultTimeout : ResultModbusError);
    setErrorString(getErrorString(state, code));
    updateState(state);
    tx = buildModbusString(QStringLiteral("TX"), m_ctx, modbus_get_tx_msg(m_ctx));
    rx = buildModbusString(QStringLiteral("RX"), m_ctx, modbus_get_rx_msg(m_ctx));
    if (code == EIO) {
        LOG_INFO << "!!! Close port on I/O error (code 5) !!!";
        close();
    }
}

static int milliseconds(const timeval &tv)
{
    return int(tv.tv_usec / 1000) + (tv.tv_sec > 0 ? int(tv.tv_sec * 1000) : 0);
}

QString Port::buildModbusString(const QString &direction, const modbus_t *ctx,
                                const modbus_msg_t *msg)
{
    if (!msg || msg->length <= 0)
        return QString();
    timeval tv1 {};
    timeval tv2 {};
    modbus_get_response_time1(ctx, &tv1);
    modbus_get_response_time2(ctx, &tv2);
    const int t1 = milliseconds(tv1);
    const int t2 = milliseconds(tv2);
    // The stamps are reconstructed backwards from now: t2 spans the whole
    // exchange, t1 the wait for the start of the reply.
    const QDateTime now = QDateTime::currentDateTime();
    const bool isTx = direction == QLatin1String("TX");
    const QDateTime shown = isTx ? now.addMSecs(-t2) : now.addMSecs(t1 - t2);
    const int first = isTx ? t1 : t2 - t1;
    const int length = qMin(msg->length, int(sizeof msg->buf));
    return QStringLiteral("%1 %2(%3/%4): ")
               .arg(shown.toString(QStringLiteral("hh:mm:ss.zzz")), direction)
               .arg(first)
               .arg(t2)
        + byteBufferToString(reinterpret_cast<const char *>(msg->buf), length);
}

bool Port::prepareCheck(const QString &label, int slave)
{
    if (!m_ctx) {
        setNotOpenedError();
        updateState(ResultPortError);
        return false;
    }
    errno = 0;
    modbus_set_slave(m_ctx, slave);
    modbus_set_dbg_context(m_ctx, label.toLocal8Bit().constData());
    modbus_clear_txrx_bufs(m_ctx);
    modbus_flush(m_ctx);
    return true;
}

// A probe that got no answer: a timeout is "not found", anything else an error.
bool Port::checkFailed(int rc, const QString &expected, int slave)
{
    if (rc >= 1)
        return false;
    int code = errno;
    if (code == ETIMEDOUT) {
        LOG_INFO << "* ETIMEDOUT *";
        setErrorString(QStringLiteral("*** Not found %1 at address %2 via %3")
                           .arg(expected)
                           .arg(slave)
                           .arg(configName()));
        updateState(ResultTimeout);
        return true;
    }
    if (rc == -1 && code == 0) {
        close();
        code = EIO;
    }
    setErrorString(getErrorString(ResultModbusError, code));
    LOG_INFO << QStringLiteral("check error '%1' - %2").arg(expected, errorString());
    updateState(ResultModbusError);
    return true;
}

void Port::buildTrafficLines(QString &rx, QString &tx)
{
    tx = buildModbusString(QStringLiteral("TX"), m_ctx, modbus_get_tx_msg(m_ctx));
    rx = buildModbusString(QStringLiteral("RX"), m_ctx, modbus_get_rx_msg(m_ctx));
}

bool Port::checkDeviceByF3(const QString &expected, int slave, int addr, int count, QByteArray &out,
                           bool compare, QString &rx, QString &tx)
{
    if (!prepareCheck(expected, slave))
        return false;
    count = qBound(1, count, 125);
    out = QByteArray(count * 2, '\0');
    std::vector<uint16_t> words(size_t(count), 0);
    const int rc = expected.contains(QLatin1String("Nengshi"))
        ? modbus_read_input_registers(m_ctx, addr, count, words.data())
        : modbus_read_registers(m_ctx, addr, count, words.data());
    const bool failed = checkFailed(rc, expected, slave);
    if (failed) {
        buildTrafficLines(rx, tx);
        return false;
    }
    std::memcpy(out.data(), words.data(), size_t(count) * 2);
    bool ok = true;
    if (compare && !expected.isEmpty()) {
        ok = out.size() > 2 && out.contains(expected.toLatin1());
        if (!ok) {
            setErrorString(
                QStringLiteral("*** Not found %1 at address %2 via %3. It's was found %4")
                    .arg(expected)
                    .arg(slave)
                    .arg(configName(), QString::fromLatin1(out)));
        }
    }
    if (ok) {
        setErrorString(QString());
        updateState(ResultGood);
    }
    buildTrafficLines(rx, tx);
    return ok;
}

static bool hasCompactName(const QByteArray &reply)
{
    for (const char *name : {"Fenn2R", "Zolt30", "Zolt41", "Zolt51", "Marn14T"}) {
        if (reply.contains(name))
            return true;
    }
    return false;
}

bool Port::checkDeviceByF17(const QString &expected, int slave, int *deviceId, QString &replyText,
                            QString &rx, QString &tx)
{
    if (!prepareCheck(QStringLiteral("check fun17 to %1").arg(expected), slave))
        return false;
    uint8_t buffer[MODBUS_MAX_ADU_LENGTH];
    std::memset(buffer, 0, sizeof buffer);
    const int rc = modbus_report_slave_id(m_ctx, buffer);
    if (checkFailed(rc, expected, slave)) {
        buildTrafficLines(rx, tx);
        return false;
    }
    const QByteArray reply(reinterpret_cast<const char *>(buffer),
                           qBound(0, rc, int(sizeof buffer)));
    // A reply without a blank is accepted only from the models that send their name compact.
    if (reply.size() < 3 || (!reply.contains(' ') && !hasCompactName(reply))) {
        setErrorString(QStringLiteral("*** Uncorrect reply17: %1 from address %2 via %3")
                           .arg(byteBufferToString(reply))
                           .arg(slave)
                           .arg(configName()));
        updateState(ResultModbusError);
        buildTrafficLines(rx, tx);
        return false;
    }
    LOG_INFO << "device id:" << QString::number(quint8(reply.at(0)), 16);
    if (deviceId)
        *deviceId = int(qint8(reply.at(0)));
    const QString text = QString::fromLatin1(reply.mid(2));
    const QString first = text.split(QLatin1Char(' ')).value(0);
    bool ok = first == expected;
    if (ok) {
        replyText = text;
        setErrorString(QString());
        updateState(ResultGood);
    } else {
        setErrorString(QStringLiteral("*** Not found %1 at address %2 via %3. It's was found %4")
                           .arg(expected)
                           .arg(slave)
                           .arg(configName(), text));
        updateState(ResultModbusError);
    }
    buildTrafficLines(rx, tx);
    return ok;
}

void Port::createPortThread()
{
    // Whatever a former exchange left in the line is not the answer to the first poll.
    m_portLock.acquire();
    flush();
    m_portLock.release();
    m_portThread = new PortThread(this, this);
    connect(m_portThread, &QThread::finished, m_portThread, &QObject::deleteLater);
    connect(m_portThread, &QThread::finished, this, &Port::onPortThreadFinished);
    connect(m_portThread, &PortThread::requestProcessed, this, &Port::requestProcessed);
}

bool Port::attachDeviceToPeriodRequest(Device *device)
{
    if (!device)
        return false;
    if (device->port() != this) {
        LOG_INFO << "Device port is not thread port";
        return false;
    }
    const bool attached = m_scheduledDevices.contains(device);
    if (!attached && m_priorityPool.isEmpty()) {
        const QString text = tr("Device '%1' cannot be polled: port '%2' polls at most %3 devices")
                                 .arg(device->name(), name())
                                 .arg(MaxPolledDevices);
        LOG_WARN << text;
        device->setErrorString(text);
        device->sendModbusMessage(text);
        return false;
    }
    if (!m_portThread)
        createPortThread();
    if (attached) {
        if (!m_portThread->isRunning())
            m_portThread->start(QThread::InheritPriority);
        return m_portThread->isRunning();
    }
    // The tags take their priority before the scheduler, which reads it from
    // the polling thread, knows them.
    const int priority = m_priorityPool.takeFirst();
    device->setPriority(priority);
    for (Tag *tag : device->channelTagsToQueue()) {
        if (tag)
            tag->setPriority(priority);
    }
    if (!m_portThread->attachDevice(device)) {
        m_priorityPool.prepend(priority);
        if (m_scheduledDevices.isEmpty())
            stopPortThread();
        return false;
    }
    m_scheduledDevices.append(device);
    m_portThread->setClearQueueIfTimeout(clearQueueIfTimeout());
    if (!m_portThread->isRunning())
        m_portThread->start(QThread::InheritPriority);
    return m_portThread->isRunning();
}

bool Port::detachDeviceFromPeriodRequest(Device *device)
{
    if (!device || !m_scheduledDevices.contains(device))
        return false;
    if (m_portThread)
        m_portThread->removeDevice(device);
    const int priority = device->priority();
    if (priority >= 1 && priority <= MaxPolledDevices && !m_priorityPool.contains(priority))
        m_priorityPool.prepend(priority);
    m_scheduledDevices.removeAll(device);
    if (m_scheduledDevices.isEmpty())
        stopPortThread();
    return true;
}

void Port::stopPortThread()
{
    if (!m_portThread)
        return;
    PortThread *thread = m_portThread;
    m_portThread = nullptr;
    thread->quit();
    thread->join();
    thread->deleteLater();
}

PortThread *Port::portThread() const
{
    return m_portThread;
}

bool Port::isPortThreadWorked() const
{
    return m_portThread && m_portThread->isRunning();
}

void Port::onPortThreadFinished()
{
    if (sender() == m_portThread) {
        // Only a thread that ran its queue once ends by itself.
        m_portThread = nullptr;
        for (Device *device : qAsConst(m_scheduledDevices)) {
            const int priority = device->priority();
            if (priority >= 1 && priority <= MaxPolledDevices && !m_priorityPool.contains(priority))
                m_priorityPool.prepend(priority);
        }
        m_scheduledDevices.clear();
    }
    emit threadFinished();
}

void Port::readDeviceTagsByThread(Device *device)
{
    if (!device || device->port() != this)
        return;
    const bool once = !m_portThread;
    if (once)
        createPortThread();
    for (Tag *tag : device->tags()) {
        if (tag->access() != Tag::ReadOnly && tag->access() != Tag::ReadWrite)
            continue;
        auto *request = new Request;
        request->setTag(tag);
        m_portThread->worker()->appendRequest(request);
    }
    if (once)
        m_portThread->startOnce();
}

bool Port::processTagByThread(Tag *tag, bool write)
{
    if (!tag || !isPortThreadWorked())
        return false;
    if (!Request::isAccessCompatible(tag, write ? Request::Write : Request::Read))
        return false;
    PortThread *thread = m_portThread;
    // No tick may throw the request away while the caller waits for it.
    const bool clearQueue = thread->clearQueueIfTimeout();
    thread->setClearQueueIfTimeout(false);
    tag->tagRequesting();
    bool served;
    if (thread->tagToRequest(tag, write)) {
        served = waitOneShot(tag, thread);
    } else {
        const QString text = tr("The polling queue of port '%1' is full: request of '%2' dropped")
                                 .arg(name(), tag->name());
        LOG_WARN << text;
        tag->setErrorString(text);
        tag->updateState(ResultPortError);
        served = false;
    }
    thread->setClearQueueIfTimeout(clearQueue);
    return served;
}

bool Port::waitOneShot(Tag *tag, PortThread *thread)
{
    // Waited in slices, so that a polling thread that has ended is noticed.
    const int slice = 50;
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        if (tag->waitTagRequested(slice))
            return true;
        const bool gone = thread->isFinished() || thread->worker()->isFinished();
        if (!gone && timer.elapsed() < m_oneShotTimeout)
            continue;
        if (thread->worker()->withdrawOneShot(tag) || gone) {
            // Never exchanged: the tag is ours alone again.
            if (tag->waitTagRequested(0))
                return true;
            const QString text = gone
                ? tr("Polling of port '%1' stopped before the request of '%2'")
                      .arg(name(), tag->name())
                : tr("The request of '%1' waited in the polling queue of port "
                     "'%2' for more than %3 ms")
                      .arg(tag->name(), name())
                      .arg(m_oneShotTimeout);
            LOG_WARN << text;
            tag->setErrorString(text);
            tag->updateState(ResultTimeout);
            return false;
        }
        // In exchange now: it ends within the device's own timeouts.
        if (tag->waitTagRequested(m_oneShotTimeout))
            return true;
        LOG_WARN << QStringLiteral("request of '%1' still in exchange after %2 ms")
                        .arg(tag->name())
                        .arg(timer.elapsed());
        return false;
    }
}
