#include "model/device.h"

#include "app/debugqt.h"
#include "config/utils.h"
#include "discovery/modbusidentity.h"
#include "exchange/byteswapper.h"
#include "exchange/channel.h"
#include "model/port.h"
#include "model/tag.h"

#include <QDate>
#include <QRegularExpression>

#include <QElapsedTimer>
#include <QTime>

namespace {

struct ArchiveTypeName
{
    const char *key;
    const char *display;
};

const ArchiveTypeName archiveTypeNames[] = {
    {"_1s", "1 сек"},  {"_5s", "5 сек"},  {"10s", "10 сек"},  {"30s", "30 сек"},
    {"_1m", "1 мин"},  {"_5m", "5 мин"},  {"10m", "10 мин"},  {"30m", "30 мин"},
    {"_1h", "1 час"},  {"_3h", "3 часа"}, {"_6h", "6 часов"}, {"12h", "12 часов"},
    {"1d", "1 сутки"},
};

const QString StateKey = QStringLiteral("device_tag_state");

} // namespace

Device::Device(Port *port)
    : ServerItem(port)
{
    namePattern = QStringLiteral("Device%1");
    setName(createUniqName(namePattern));
    if (port)
        setPriority(port->priority());
    setPollingPeriod(1000);
    setAsciiDelimiter(10);
}

Device::~Device()
{
    qDeleteAll(m_channels);
    m_channels.clear();
}

Port *Device::port() const
{
    return qobject_cast<Port *>(parentItem());
}

QList<Tag *> Device::tags() const
{
    QList<Tag *> result;
    result.reserve(childCount());
    for (ServerItem *item : children())
        result.append(static_cast<Tag *>(item));
    return result;
}

QList<Tag *> Device::activeTags() const
{
    QList<Tag *> result;
    if (!enabled())
        return result;
    for (ServerItem *item : children())
        result.append(item->activeTags());
    return result;
}

QString Device::fullName() const
{
    const ServerItem *parent = parentItem();
    return parent ? parent->fullName() + QLatin1Char('/') + name() : name();
}

ServerItem *Device::createChild()
{
    auto *tag = new Tag(this);
    connect(tag, &ServerItem::modified, this, &ServerItem::modified);
    return tag;
}

bool Device::insertChildren(int position, int count)
{
    const bool ok = ServerItem::insertChildren(position, count);
    // A tag list changed by hand no longer follows its template.
    if (ok && !m_loading)
        setDeviceTemplateName(QStringLiteral("custom"));
    return ok;
}

bool Device::removeChildren(int position, int count)
{
    for (int i = position; i < position + count; ++i) {
        if (auto *tag = qobject_cast<Tag *>(child(i)))
            removeChannel(tag);
    }
    emit tagsDeleting();
    const bool ok = ServerItem::removeChildren(position, count);
    if (ok && !m_loading)
        setDeviceTemplateName(QStringLiteral("custom"));
    return ok;
}

void Device::setDeviceTemplateName(const QString &name)
{
    m_templateName = name;
    emit deviceTemplateChanged(name);
}

bool Device::setDeviceName(const QString &name, bool checkOnly)
{
    if (name.isEmpty() || !isNameValid(name))
        return false;
    if (!checkOnly)
        setName(name);
    return true;
}

QString Device::identification(int index) const
{
    if (index == 5)
        return m_firmwareDate;
    return (index >= 0 && index < 5) ? m_identification[index] : QString();
}

void Device::setIdentification(int index, const QString &text)
{
    if (index == 5)
        m_firmwareDate = text;
    else if (index >= 0 && index < 5)
        m_identification[index] = text;
}

QString Device::portSettingsToString(bool withName) const
{
    const SerialPortProtocol &p = m_portSettings.protocol;
    if (withName) {
        return QStringLiteral("%1 ; %2 ; %3%4%5")
            .arg(m_portSettings.name)
            .arg(m_portSettings.baudRate)
            .arg(p.dataBits)
            .arg(p.parity)
            .arg(p.stopBits);
    }
    return QStringLiteral(";%1; %2%3%4")
        .arg(m_portSettings.baudRate)
        .arg(p.dataBits)
        .arg(p.parity)
        .arg(p.stopBits);
}

void Device::setPortSettingsInTags()
{
    const auto put = [this](const char *name, const QVariant &value) {
        if (hasChildName(QLatin1String(name)))
            tag(QLatin1String(name))->setValue(value);
    };
    put("address", address());
    put("baudrate", Port::baudrateIndexOf(m_portSettings.baudRate));
    put("parity", Port::parityIndexOf(m_portSettings.protocol.parity));
    put("protocol", protocolType());
    put("delimiter", asciiDelimiter());
}

Tag *Device::tag(const QString &name) const
{
    auto *tag = qobject_cast<Tag *>(childByName(name));
    if (!tag)
        LOG_INFO << "\n *** NOT FOUND *** :" << name;
    return tag;
}

QStringList Device::tagIds() const
{
    QStringList names;
    for (ServerItem *item : children())
        names.append(item->name());
    names.sort();
    return names;
}

Tag *Device::addTag(const QString &name, int index)
{
    if (name.isEmpty())
        return nullptr;
    if (index < 0 || index > childCount())
        index = childCount();
    auto *tag = static_cast<Tag *>(createChild());
    if (isNameValid(name))
        tag->setName(name);
    insertChild(index, tag);
    return tag;
}

bool Device::addTag(Tag *tag)
{
    if (!tag)
        return false;
    if (hasChildName(tag->name())) {
        LOG_INFO << "Device: " << name() << " already contains tag " << tag->name();
        return false;
    }
    connect(tag, &ServerItem::modified, this, &ServerItem::modified, Qt::UniqueConnection);
    insertChild(-1, tag);
    return true;
}

void Device::removeTag(const QString &name)
{
    ServerItem *item = takeChild(name);
    if (item)
        item->deleteLater();
}

QList<Tag *> Device::tagsWithErrors(bool activeOnly) const
{
    QList<Tag *> result;
    for (Tag *tag : activeOnly ? activeTags() : tags()) {
        if (tag->state() == StateFailed)
            result.append(tag);
    }
    return result;
}

bool Device::hasTagsWithErrors(bool activeOnly) const
{
    return !tagsWithErrors(activeOnly).isEmpty();
}

QList<Tag *> Device::tagsWithNan() const
{
    QList<Tag *> result;
    for (Tag *tag : tags()) {
        if (tag->isValueNaN())
            result.append(tag);
    }
    return result;
}

bool Device::hasTagsWithNan() const
{
    return !tagsWithNan().isEmpty();
}

void Device::fixTagsWithNanToNull()
{
    for (Tag *tag : tagsWithNan())
        tag->setValue(QVariant());
}

bool Device::hasChannelTagsWithTimeStampTimeout() const
{
    for (Tag *tag : channelTagsToQueue()) {
        if (tag && tag->enabled() && tag->isTimeStampTimeout())
            return true;
    }
    return false;
}

bool Device::addChannel(Tag *tag)
{
    if (!tag || childByName(tag->name()) != tag) {
        LOG_INFO << name() << " not contains tag " << (tag ? tag->name() : QString());
        return false;
    }
    if (!tag->isChannel()) {
        LOG_INFO << "Tag " << tag->name() << " is not channel tag ";
        return false;
    }
    if (m_channels.contains(tag->name()))
        return true;
    auto *channel = new Channel(tag);
    m_channels.insert(tag->name(), channel);
    addChannelToQueued(tag->name());
    connect(channel, &Channel::appendData, this, &Device::appendChannelData);
    return true;
}

void Device::removeChannel(Tag *tag)
{
    if (!tag)
        return;
    Channel *channel = m_channels.take(tag->name());
    removeChannelFromQueued(tag->name());
    if (channel) {
        channel->disconnect();
        channel->deleteLater();
    }
}

void Device::addChannelToQueued(const QString &name)
{
    if (!m_queuedChannels.contains(name))
        m_queuedChannels.append(name);
}

void Device::removeChannelFromQueued(const QString &name)
{
    m_queuedChannels.removeAll(name);
}

QList<Tag *> Device::channelTagsToQueue() const
{
    QList<Tag *> result;
    if (!enabled())
        return result;
    for (const QString &name : m_queuedChannels) {
        Channel *channel = m_channels.value(name);
        result.append(channel ? channel->tag() : nullptr);
    }
    return result;
}

void Device::setDeviceTagStateFlag(int flag, bool on)
{
    if (on)
        m_deviceTagState |= flag;
    else
        m_deviceTagState &= ~flag;
}

QString Device::deviceTagsStateToShortString() const
{
    QString text;
    if (hasDeviceTagStateFlag(ReadFromDevice))
        text += QLatin1Char('>');
    if (hasDeviceTagStateFlag(Changed))
        text += QLatin1Char('*');
    if (hasDeviceTagStateFlag(WrittenToDevice))
        text += QLatin1Char('<');
    if (hasDeviceTagStateFlag(Polled)) {
        const bool stale = hasChannelTagsWithTimeStampTimeout() || hasTagsWithErrors(false);
        text += QLatin1Char(stale ? '#' : '@');
    }
    if (hasDeviceTagStateFlag(ArchiveDownload))
        text += QLatin1Char('!');
    return text.isEmpty() ? text : QStringLiteral("[%1]").arg(text);
}

QString Device::deviceTagsStateToLongString() const
{
    QString text = hasDeviceTagStateFlag(ReadFromDevice) ? tr("form device") : tr("from file");
    if (hasDeviceTagStateFlag(Changed))
        text += QStringLiteral(" / ") + tr("changed");
    if (hasDeviceTagStateFlag(WrittenToDevice))
        text += QStringLiteral(" / ") + tr("saved in device");
    if (hasDeviceTagStateFlag(Polled))
        text += QStringLiteral(" / ") + tr("periodically requested");
    return text;
}

QVariantMap Device::snapshot() const
{
    QVariantMap map = save();
    if (!map.isEmpty())
        map.insert(StateKey, m_deviceTagState);
    return map;
}

void Device::backupTagsInFileData()
{
    m_fileData = snapshot();
}

void Device::backupTagsInDeviceData()
{
    m_deviceData = snapshot();
}

void Device::backupTags()
{
    // The state key is overwritten by the plain save: the buffer keeps no state.
    m_backup.clear();
    m_backup.insert(StateKey, m_deviceTagState);
    m_backup = save();
    m_rollback.clear();
}

void Device::restoreFrom(const QVariantMap &source)
{
    const QVariantMap copy = source; // the source may be a member that load() leaves alone
    m_rollback = save();
    m_rollback.insert(StateKey, m_deviceTagState);
    load(copy);
    m_deviceTagState = copy.value(StateKey).toInt();
}

void Device::restoreTagsFromFileData()
{
    if (!m_fileData.isEmpty())
        restoreFrom(m_fileData);
}

void Device::restoreTagsFromDeviceData()
{
    if (!m_deviceData.isEmpty())
        restoreFrom(m_deviceData);
}

void Device::restoreTags()
{
    if (!m_backup.isEmpty())
        restoreFrom(m_backup);
}

void Device::rollbackTags()
{
    if (m_rollback.isEmpty())
        return;
    const QVariantMap undo = m_rollback;
    m_backup = save();
    m_backup.insert(StateKey, m_deviceTagState);
    load(undo);
    m_deviceTagState = undo.value(StateKey).toInt();
}

bool Device::pasteFromClipboard(const QVariantMap &map)
{
    backupTags();
    const bool ok = load(map);
    if (ok) {
        setDeviceTagStateFlag(Changed);
        emit modified();
    }
    return ok;
}

void Device::compareTagsAfterRestore()
{
    const QVariantList entries = m_rollback.value(QStringLiteral("tags")).toList();
    for (Tag *tag : tags()) {
        for (const QVariant &entry : entries) {
            const QVariantMap map = entry.toMap();
            if (map.value(QStringLiteral("name")).toString() != tag->name())
                continue;
            tag->setModified(tag->value() != map.value(QStringLiteral("value")));
            break;
        }
    }
}

QVariant Device::valueFromDeviceData(const QString &name) const
{
    if (m_deviceData.isEmpty())
        return QVariant();
    const QVariantList entries = m_deviceData.value(QStringLiteral("tags")).toList();
    for (const QVariant &entry : entries) {
        const QVariantMap map = entry.toMap();
        if (map.value(QStringLiteral("name")).toString() == name)
            return map.value(QStringLiteral("value"));
    }
    return QVariant();
}

void Device::setValueInDeviceData(const QString &name, const QVariant &value)
{
    if (m_deviceData.isEmpty())
        backupTagsInDeviceData();
    QVariantList entries = m_deviceData.value(QStringLiteral("tags")).toList();
    for (QVariant &entry : entries) {
        QVariantMap map = entry.toMap();
        if (map.value(QStringLiteral("name")).toString() != name)
            continue;
        map.insert(QStringLiteral("value"), value);
        entry = map;
        m_deviceData.insert(QStringLiteral("tags"), entries);
        return;
    }
}

QString Device::archiveTypeToString(int type, bool asKey)
{
    if (type < 0 || type > Archive1d)
        return QStringLiteral("Invalid");
    return asKey ? QString::fromUtf8(archiveTypeNames[type].key)
                 : QString::fromUtf8(archiveTypeNames[type].display);
}

int Device::archiveTypeFromString(const QString &text)
{
    for (int i = 0; i <= Archive1d; ++i) {
        if (text.compare(QLatin1String(archiveTypeNames[i].key), Qt::CaseInsensitive) == 0)
            return i;
    }
    return 0;
}

bool Device::getExceptionalAnswerText(const QByteArray &answer, int function, QString &text) const
{
    text.clear();
    if (answer.size() < 3 || quint8(answer.at(0)) != address()
        || quint8(answer.at(1)) != ((function | 0x80) & 0xFF))
        return false;
    switch (quint8(answer.at(2))) {
    case 3:
        text = tr("illegal data value");
        return false;
    case 4:
        text = tr("the device is busy with another request");
        return true;
    case 5:
        text = tr("request accepted for execution");
        return true;
    case 6:
        text = tr("device busy");
        return true;
    default:
        text = tr("unknown answer");
        return false;
    }
}

int Device::getDelayByBaudrate() const
{
    const Port *p = port();
    int delay = 0;
    switch (p ? p->baudrate() : 0) {
    case 1200:
        delay = 29;
        break;
    case 2400:
        delay = 15;
        break;
    case 4800:
        delay = 8;
        break;
    case 9600:
        delay = 4;
        break;
    case 19200:
        delay = 3;
        break;
    case 38400:
        delay = 2;
        break;
    case 57600:
    case 115200:
        delay = 1;
        break;
    default:
        delay = 0;
        break;
    }
    return protocolType() == 1 ? delay * 5 : delay;
}

void Device::sendModbusMessage(const QString &text)
{
    emit modbusMessage(address(), text);
}

void Device::readSettings(const QVariantMap &map)
{
    const auto has = [&map](const char *key) { return map.contains(QLatin1String(key)); };
    const auto get = [&map](const char *key) { return map.value(QLatin1String(key)); };
    if (has("name"))
        setName(get("name").toString());
    if (has("polling_period"))
        setPollingPeriod(get("polling_period").toInt());
    if (has("producer"))
        setProperty("producer", get("producer").toString());
    if (has("comment"))
        setComment(get("comment").toString());
    if (has("variant"))
        setProperty("variant", get("variant").toString());
    if (has("request_timeout"))
        setRequestTimeout(get("request_timeout").toInt());
    if (has("response_timeout"))
        setResponceTimeout(get("response_timeout").toInt());
    if (has("byte_timeout"))
        setByteTimeout(get("byte_timeout").toInt());
    if (has("close_port_if_error"))
        setClosePortIfError(get("close_port_if_error").toBool());
    if (has("use_cash"))
        setUseCash(get("use_cash").toBool());
    if (has("cash_timeout"))
        setCashTimeout(get("cash_timeout").toInt());
    setByteSwappingEnabled(has("byteswap_enabled") ? get("byteswap_enabled").toBool() : true);
    if (has("template"))
        setDeviceTemplateName(get("template").toString());
    m_modbusId = has("modbus_id") ? get("modbus_id").toString() : get("template").toString();
    if (has("firmware_date"))
        m_firmwareDate = get("firmware_date").toString();
    if (has("measure_info"))
        m_measureInfo = get("measure_info").toMap();
    if (has("default_wdgt_cfg"))
        m_defaultWidgetConfiguration = get("default_wdgt_cfg").toMap();
}

bool Device::load(const QVariantMap &map)
{
    if (map.contains(QLatin1String("name")))
        LOG_INFO << map.value(QLatin1String("name")).toString();
    m_loading = true;
    emit tagsDeleting();
    for (Tag *tag : tags()) {
        if (tag->isChannel())
            removeChannel(tag);
        removeTag(tag->name());
    }
    readSettings(map);
    const QVariantList entries = listValue(map.value(QLatin1String("tags")));
    for (const QVariant &entry : entries) {
        const QVariantMap tagMap = entry.toMap();
        Tag *tag = addTag(tagMap.value(QLatin1String("name")).toString(), -1);
        if (!tag)
            continue;
        tag->load(tagMap);
        if (tag->isChannel())
            addChannel(tag);
    }
    m_loading = false;
    return true;
}

QVariantMap Device::save() const
{
    QVariantMap map;
    map.insert(QStringLiteral("name"), name());
    map.insert(QStringLiteral("enabled"), enabled());
    map.insert(QStringLiteral("priority"), priority());
    map.insert(QStringLiteral("polling_period"), pollingPeriod());
    map.insert(QStringLiteral("address"), address());
    map.insert(QStringLiteral("template"), m_templateName);
    map.insert(QStringLiteral("modbus_id"), m_modbusId);
    if (!m_firmwareDate.isEmpty())
        map.insert(QStringLiteral("firmware_date"), m_firmwareDate);
    const Port *p = port();
    map.insert(QStringLiteral("protocol"), Port::portTypeToString(p ? p->portType() : 0));
    map.insert(QStringLiteral("comment"), comment());
    map.insert(QStringLiteral("request_timeout"), requestTimeout());
    map.insert(QStringLiteral("response_timeout"), responceTimeout());
    map.insert(QStringLiteral("byte_timeout"), byteTimeout());
    map.insert(QStringLiteral("close_port_if_error"), isClosePortIfError());
    if (isUseCash()) {
        map.insert(QStringLiteral("use_cash"), true);
        map.insert(QStringLiteral("cash_timeout"), m_cashTimeout);
    }
    if (!byteSwappingEnabled())
        map.insert(QStringLiteral("byteswap_enabled"), false);
    if (!deviceVariant().isEmpty())
        map.insert(QStringLiteral("variant"), deviceVariant());
    if (!m_measureInfo.isEmpty())
        map.insert(QStringLiteral("measure_info"), m_measureInfo);
    if (!m_defaultWidgetConfiguration.isEmpty())
        map.insert(QStringLiteral("default_wdgt_cfg"), m_defaultWidgetConfiguration);
    QVariantList tagList;
    for (const Tag *tag : tags())
        tagList.append(tag->save());
    map.insert(QStringLiteral("tags"), tagList);
    return map;
}

void Device::checkAndSetPortTimeouts()
{
    Port *p = port();
    if (!p)
        return;
    if (responceTimeout() > 0 && responceTimeout() != p->responseTimeout())
        p->setResponseTimeout(responceTimeout());
    if (byteTimeout() > 0 && byteTimeout() != p->byteTimeout())
        p->setByteTimeout(byteTimeout());
}

void Device::checkOffDevice()
{
    m_deviceId = 0;
    m_identification[ReplyText].clear();
    m_identification[ShortIdentification].clear();
    m_identification[FirmwareNumber].clear();
}

void Device::copyLineSettingsFrom(const Port *p)
{
    setProtocolType(p->protocolType());
    setAsciiDelimiter(p->asciiDelimiter());
    m_portSettings
        = SerialPortSettings(p->serialName(), p->baudrate(),
                             SerialPortProtocol(p->dataBits(), p->parity(), p->stopBits()));
}

bool Device::openPortForCheck(Port *p, int baudIndex, int parityIndex, int protocol, int delimiter)
{
    if (p->isOpened()) {
        const bool differs = (baudIndex != -1 && baudIndex != p->baudrateIndex())
            || (parityIndex != -1 && parityIndex != p->parityIndex())
            || (protocol != -1 && protocol != p->protocolType())
            || (delimiter != -1 && delimiter != p->asciiDelimiter());
        if (differs)
            p->close();
    }
    if (!p->isOpened()) {
        if (baudIndex != -1)
            p->setBaudrateByIndex(baudIndex);
        if (parityIndex != -1)
            p->setParityByIndex(parityIndex);
        if (protocol != -1)
            p->setProtocolType(protocol);
        if (delimiter != -1)
            p->setASCIIDelimiter(delimiter);
        if (!p->open())
            return false;
    }
    copyLineSettingsFrom(p);
    checkAndSetPortTimeouts();
    return true;
}

bool Device::openPortForExchange(Port *p)
{
    // A device that was never checked has no line settings of its own yet: it
    // works with its port's, rather than pushing empty ones onto the line.
    if (m_portSettings.name.isEmpty())
        copyLineSettingsFrom(p);
    if (p->isOpened()) {
        const bool differs = !m_portSettings.equalsTo(p) || protocolType() != p->protocolType()
            || asciiDelimiter() != p->asciiDelimiter();
        if (differs)
            p->close();
    }
    if (p->isOpened())
        return true;
    p->setProtocolType(protocolType());
    p->setASCIIDelimiter(asciiDelimiter());
    p->setBaudrate(m_portSettings.baudRate);
    p->setParity(m_portSettings.protocol.parity);
    p->setDatabits(m_portSettings.protocol.dataBits);
    p->setStopbits(m_portSettings.protocol.stopBits);
    if (!p->open())
        return false;
    checkAndSetPortTimeouts();
    return true;
}

bool Device::openPort(int baudIndex, int parityIndex, int protocol, int delimiter)
{
    Port *p = port();
    if (!p)
        return false;
    const bool anyGiven = baudIndex != -1 || parityIndex != -1 || protocol != -1 || delimiter != -1;
    const bool ok = (m_deviceId == 0 && anyGiven)
        ? openPortForCheck(p, baudIndex, parityIndex, protocol, delimiter)
        : openPortForExchange(p);
    if (ok)
        return true;
    setErrorString(p->errorString());
    LOG_INFO << QStringLiteral("error open port '%1' - %2").arg(p->serialName(), errorString());
    updateState(ResultPortError);
    if (m_deviceId != 0)
        checkOffDevice();
    sendModbusMessage(errorString());
    return false;
}

int Device::openFailureState(Port *p)
{
    // A failed connect leaves the port's state as it was: never report that as success.
    setErrorString(p->errorString());
    return p->lastResult() == ResultGood ? int(ResultPortError) : p->lastResult();
}

int Device::takeExchangeResult(Port *p, const QString &rx, const QString &tx)
{
    if (!tx.isEmpty())
        sendModbusMessage(tx);
    if (!rx.isEmpty())
        sendModbusMessage(rx);
    const int state = p->lastResult();
    setErrorString(p->errorString());
    updateState(state);
    return state;
}

// The closing line, the close on error if asked, the pause that keeps the line
// quiet, and the release of the port.
int Device::finishExchange(Port *p, int state, const QString &verb, const QString &name)
{
    if (state == ResultGood) {
        sendModbusMessage(QStringLiteral("Success (processing time: %1ms)").arg(m_processingTime));
    } else {
        const QString text = QStringLiteral("error %1 %2 '%3' - %4 (%5ms)")
                                 .arg(state)
                                 .arg(verb, name, errorString())
                                 .arg(m_processingTime);
        LOG_INFO << text;
        sendModbusMessage(text);
        if (isClosePortIfError())
            p->close();
    }
    pauseAfterExchange();
    p->portLock()->release();
    return state;
}

void Device::pauseAfterExchange()
{
    mySleep(requestTimeout() > 0 ? requestTimeout() : getDelayByBaudrate());
}

QString Device::exchangeLabel(const QString &name) const
{
    QString label = name;
    return label.remove(QLatin1Char('/'));
}

static QString hexAddress(int addr)
{
    return QStringLiteral("%1").arg(addr, 2, 16, QLatin1Char('0')).toUpper();
}

// One entry: several tags of one register block read within the lifetime share one exchange.
bool Device::readFromCache(int addr, int func, int lengthInBytes, QByteArray &out) const
{
    if (!isUseCash() || m_readCache.isEmpty())
        return false;
    const QTime stamp = m_readCache.value(QStringLiteral("time")).toTime();
    if (stamp.msecsTo(QTime::currentTime()) >= m_cashTimeout
        || m_readCache.value(QStringLiteral("read_func")).toInt() != func
        || m_readCache.value(QStringLiteral("reg_addr")).toInt() != addr
        || m_readCache.value(QStringLiteral("length")).toInt() != lengthInBytes)
        return false;
    out = m_readCache.value(QStringLiteral("buffer")).toByteArray();
    return true;
}

void Device::storeInCache(int addr, int func, int lengthInBytes, const QByteArray &bytes)
{
    m_readCache = {{QStringLiteral("time"), QTime::currentTime()},
                   {QStringLiteral("reg_addr"), addr},
                   {QStringLiteral("read_func"), func},
                   {QStringLiteral("length"), lengthInBytes},
                   {QStringLiteral("buffer"), bytes}};
}

int Device::read(const QString &name, int addr, int func, int lengthInBytes, QByteArray &out)
{
    Port *p = port();
    if (!p)
        return ResultConfigError;
    p->portLock()->acquire();
    int state;
    if (!openPort()) {
        state = openFailureState(p);
    } else {
        m_processingTime = 0;
        QElapsedTimer timer;
        timer.start();
        sendModbusMessage(QStringLiteral("reading %1 (0x%2h)...").arg(name, hexAddress(addr)));
        if (readFromCache(addr, func, lengthInBytes, out)) {
            sendModbusMessage(
                QStringLiteral("%1 (*CASH*): %2")
                    .arg(QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz")),
                         byteBufferToString(out)));
            sendModbusMessage(
                QStringLiteral("Success (processing time: %1ms)").arg(timer.elapsed()));
            setErrorString(QString());
            updateState(ResultGood);
            p->portLock()->release();
            return ResultGood;
        }
        QString rx;
        QString tx;
        const QString label = exchangeLabel(name);
        if (lengthInBytes == 1)
            p->read_bits(label, address(), addr, func, out, rx, tx);
        else
            p->read_registers(label, address(), addr, func, lengthInBytes, out, rx, tx,
                              byteSwappingEnabled());
        m_processingTime = int(timer.elapsed());
        if (p->lastResult() == ResultGood && isUseCash())
            storeInCache(addr, func, lengthInBytes, out);
        state = takeExchangeResult(p, rx, tx);
    }
    return finishExchange(p, state, QStringLiteral("reading"), name);
}

int Device::write(const QString &name, int addr, int func, int lengthInBytes,
                  const QByteArray &data)
{
    Port *p = port();
    if (!p)
        return ResultConfigError;
    p->portLock()->acquire();
    int state;
    if (!openPort()) {
        state = openFailureState(p);
    } else {
        m_processingTime = 0;
        QElapsedTimer timer;
        timer.start();
        sendModbusMessage(QStringLiteral("writing %1 (0x%2h)...").arg(name, hexAddress(addr)));
        QString rx;
        QString tx;
        const QString label = exchangeLabel(name);
        if (lengthInBytes == 1)
            p->write_bits(label, address(), addr, func, data, rx, tx);
        else
            p->write_registers(label, address(), addr, func, data, rx, tx, byteSwappingEnabled());
        m_processingTime = int(timer.elapsed());
        state = takeExchangeResult(p, rx, tx);
    }
    return finishExchange(p, state, QStringLiteral("writing"), name);
}

// Runs the probe that the modbus_id names; on success fills the device id and reply text.
static bool probeIdentity(Device *device, Port *p, const ModbusIdentity &identity, QString &rx,
                          QString &tx, int &deviceId, QString &reply)
{
    const int slave = device->address();
    QByteArray out;
    switch (identity.method) {
    case ModbusIdentity::ReadRegisters:
        if (!p->checkDeviceByF3(identity.id, slave, identity.address, identity.count, out, false,
                                rx, tx))
            return false;
        deviceId = 127;
        reply = QStringLiteral("custom");
        return true;
    case ModbusIdentity::Hamilton:
        if (!p->checkDeviceByF3(identity.id, slave, identity.address, identity.count, out, true, rx,
                                tx))
            return false;
        deviceId = 31;
        reply = QString::fromLatin1(out).trimmed();
        return true;
    case ModbusIdentity::Nengshi: {
        SLOG_INFO << "### try china sensor ###";
        if (!p->checkDeviceByF3(identity.id, slave, identity.address, identity.count, out, false,
                                rx, tx))
            return false;
        const int unit = out.size() > 2 ? quint8(out.at(2)) : 0;
        SLOG_INFO << "unit code:" << unit;
        deviceId = 175;
        reply = unit == 10
            ? QStringLiteral("Nengshi-pH")
            : (unit >= 7 && unit <= 9 ? QStringLiteral("Nengshi-CON") : QStringLiteral("Nengshi"));
        mySleep(70);
        return true;
    }
    case ModbusIdentity::Y510B:
        if (!p->checkDeviceByF3(identity.id, slave, identity.address, identity.count, out, false,
                                rx, tx))
            return false;
        deviceId = 127;
        reply = QString::fromLatin1(ByteSwapper::swap_byteorder(out, 2)).remove(QChar(0)).trimmed();
        return true;
    case ModbusIdentity::Y610B:
        // This sensor often misses the first requests after a pause.
        for (int attempt = 0; attempt < 10; ++attempt) {
            if (p->checkDeviceByF3(identity.id, slave, identity.address, identity.count, out, false,
                                   rx, tx)) {
                mySleep(500);
                deviceId = 127;
                reply = QStringLiteral("Y610-B");
                return true;
            }
        }
        return false;
    case ModbusIdentity::Function17:
        return p->checkDeviceByF17(identity.id, slave, &deviceId, reply, rx, tx);
    }
    return false;
}

bool Device::checkDevice(int baudIndex, int parityIndex, int protocol, int delimiter)
{
    Port *p = port();
    if (!p)
        return false;
    p->portLock()->acquire();
    // A check always starts from a fresh open with the protocol's default timeouts.
    p->close();
    bool result = false;
    int state = ResultPortError;
    QElapsedTimer timer;
    timer.start();
    m_processingTime = 0;
    if (openPort(baudIndex, parityIndex, protocol, delimiter)) {
        sendModbusMessage(QStringLiteral("Try to check %1 at address %2 via %3 ...")
                              .arg(name())
                              .arg(address())
                              .arg(p->configName()));
        QString rx;
        QString tx;
        int deviceId = 0;
        QString reply;
        const ModbusIdentity identity = ModbusIdentity::parse(m_modbusId);
        result = probeIdentity(this, p, identity, rx, tx, deviceId, reply);
        if (!tx.isEmpty())
            sendModbusMessage(tx);
        if (!rx.isEmpty())
            sendModbusMessage(rx);
        state = p->lastResult();
        if (!result) {
            setErrorString(p->errorString());
            sendModbusMessage(errorString());
            if (state == ResultGood)
                state = ResultModbusError;
        } else {
            state = ResultGood;
            m_deviceId = deviceId;
            m_identification[ReplyText] = reply;
            setErrorString(QString());
            sendModbusMessage(QStringLiteral("Checked successfully - %1!").arg(reply));
            initFirmwareNumber();
            if (!firmwareNumber().isEmpty())
                sendModbusMessage(QStringLiteral("Firmware number - %1").arg(firmwareNumber()));
            if (!deviceFirmwareDate().isEmpty())
                sendModbusMessage(QStringLiteral("Firmware date - %1").arg(deviceFirmwareDate()));
            result = checkFirmwareDate();
        }
    } else {
        state = lastResult();
    }
    m_processingTime = int(timer.elapsed());
    updateState(state);
    pauseAfterExchange();
    p->portLock()->release();
    return result;
}

// An instrument older than its template answers, but is reported: the state
// stays good and the device stays checked.
bool Device::checkFirmwareDate()
{
    if (m_firmwareDate.isEmpty())
        return true;
    const QString format = QStringLiteral("dd.MM.yyyy");
    const QDate templateDate = QDate::fromString(m_firmwareDate, format);
    const QDate deviceDate = QDate::fromString(deviceFirmwareDate(), format);
    QString text;
    if (!deviceDate.isValid()) {
        text = tr("Template version does not match device version!") + QLatin1Char(' ')
            + tr("Invalid device firmware date ('%1')").arg(deviceFirmwareDate());
    } else if (templateDate.isValid() && templateDate > deviceDate) {
        text = tr("Template version does not match device version!") + QLatin1Char(' ')
            + tr("Device firmware date (%1) is less than template date (%2).")
                  .arg(deviceFirmwareDate(), m_firmwareDate);
    } else {
        return true;
    }
    sendModbusMessage(text);
    setErrorString(text);
    return false;
}

void Device::initFirmwareNumber()
{
    static const QRegularExpression firmwareForm(
        QRegularExpression::anchoredPattern(QStringLiteral("\\d\\d\\d\\d\\d-\\d\\d")));
    static const QRegularExpression serialForm(
        QRegularExpression::anchoredPattern(QStringLiteral("N\\d\\d\\d")));
    static const QRegularExpression fourDigits(
        QRegularExpression::anchoredPattern(QStringLiteral("\\d\\d\\d\\d")));
    const QString reply = m_identification[ReplyText];
    const QStringList tokens = reply.split(QLatin1Char(' '));
    m_identification[ShortIdentification] = reply;
    if (tokens.size() > 2) {
        if (firmwareForm.match(tokens.at(2)).hasMatch()) {
            m_identification[FirmwareNumber] = tokens.at(2);
            m_identification[DeviceFirmwareDate]
                = tokens.value(3).replace(QLatin1Char(':'), QLatin1Char('.'));
            m_identification[ShortIdentification]
                = QString(reply).remove(tokens.at(2) + QLatin1Char(' '));
        } else {
            m_identification[DeviceFirmwareDate]
                = QString(tokens.at(2)).replace(QLatin1Char(':'), QLatin1Char('.'));
        }
    }
    if (tokens.size() > 6 && serialForm.match(tokens.at(1)).hasMatch()
        && fourDigits.match(tokens.at(2)).hasMatch()
        && firmwareForm.match(tokens.at(4)).hasMatch()) {
        m_identification[SerialText] = tokens.at(1);
        m_identification[FirmwareNumber] = tokens.at(4);
        m_identification[DeviceFirmwareDate]
            = QString(tokens.at(5)).replace(QLatin1Char(':'), QLatin1Char('.'));
        m_identification[ShortIdentification]
            = QStringList {tokens.at(0), tokens.at(3), tokens.at(5), tokens.at(6)}.join(
                QLatin1Char(' '));
    }
}
