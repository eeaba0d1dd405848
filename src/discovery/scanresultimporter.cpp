#include "discovery/scanresultimporter.h"

#include "app/debugqt.h"
#include "config/devicetemplatecatalog.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

// Models whose register map changed with the firmware: the date from which
// each newer template applies.
struct TemplateEpoch
{
    const char *model;
    struct
    {
        const char *suffix;
        int year, month, day;
    } limits[2];
};

const TemplateEpoch templateEpochs[] = {
    {"Zolt-21", {{"v2", 2019, 4, 9}, {nullptr, 0, 0, 0}}},
    {"Zolt-51", {{"v1", 2018, 3, 20}, {"v2", 2019, 5, 29}}},
    {"Zolt-30", {{"v1", 2018, 8, 21}, {"v2", 2020, 2, 22}}},
    {"Zolt-42M", {{"v2", 2018, 8, 28}, {nullptr, 0, 0, 0}}},
    {"Marn-32M", {{"v2", 2018, 6, 18}, {nullptr, 0, 0, 0}}},
    {"Marn-32MK", {{"v2", 2019, 8, 26}, {nullptr, 0, 0, 0}}},
    {"Marn-40", {{"v2", 2019, 5, 22}, {nullptr, 0, 0, 0}}},
    {"Tesk-6", {{"v2", 2020, 11, 3}, {"v3", 2022, 8, 24}}},
    {"Fenn-3", {{"v2", 2022, 9, 13}, {nullptr, 0, 0, 0}}},
    {"Dorv-4", {{"v2", 2022, 11, 7}, {nullptr, 0, 0, 0}}},
    {"Lomt-7", {{"v2", 2023, 9, 15}, {nullptr, 0, 0, 0}}},
    {"Quil-72", {{"v2", 2024, 1, 1}, {nullptr, 0, 0, 0}}},
    {"Marn-20", {{"v2", 2021, 12, 21}, {nullptr, 0, 0, 0}}},
};

bool hasCompactName(const QByteArray &text)
{
    for (const char *name : {"Fenn2R", "Zolt30", "Zolt41", "Zolt51", "Marn14T"}) {
        if (text.contains(name))
            return true;
    }
    return false;
}

} // namespace

ScanResultImporter::ScanResultImporter(Server *server, QObject *parent)
    : QObject(parent)
    , m_server(server)
{
}

QString ScanResultImporter::portName(const SerialPortSettings &settings)
{
    return ServerItem::validName(QStringLiteral("%1_%2_%3")
                                     .arg(settings.name)
                                     .arg(settings.baudRate)
                                     .arg(settings.protocol.toString()));
}

QString ScanResultImporter::templateByDate(const QString &model, const QDate &date)
{
    if (!date.isValid())
        return model;
    // The longest table name the model holds, so that "Marn-32MK" is not taken for "Marn-32M".
    const TemplateEpoch *found = nullptr;
    int foundLength = 0;
    for (const TemplateEpoch &epoch : templateEpochs) {
        const QLatin1String name(epoch.model);
        if (model.contains(name) && name.size() > foundLength) {
            found = &epoch;
            foundLength = int(name.size());
        }
    }
    if (!found)
        return model;
    QString result = QLatin1String(found->model);
    for (const auto &limit : found->limits) {
        if (limit.suffix && date >= QDate(limit.year, limit.month, limit.day))
            result = QLatin1String(found->model) + QLatin1String(limit.suffix);
    }
    return result;
}

ScanResultImporter::Identity ScanResultImporter::identify(int address, const QByteArray &reply)
{
    static const QRegularExpression firmwareForm(
        QRegularExpression::anchoredPattern(QStringLiteral("\\d\\d\\d\\d\\d-\\d\\d")));
    Identity identity;
    QByteArray payload = reply.mid(2);
    // Some instruments pad their text with zeros.
    while (payload.endsWith('\0'))
        payload.chop(1);
    identity.proper = (payload.size() >= 3 && payload.contains(' ')) || hasCompactName(payload);
    if (!identity.proper) {
        identity.model = QStringLiteral("device_%1").arg(address);
        identity.deviceName = identity.model;
        identity.templateName = QStringLiteral("Custom");
        return identity;
    }
    identity.text = QString::fromLatin1(payload);
    const QStringList tokens = identity.text.split(QLatin1Char(' '));
    identity.model = tokens.at(0);
    identity.comment = tokens.value(1);
    identity.deviceName = QStringLiteral("%1_adr%2").arg(identity.model).arg(address);
    if (tokens.size() > 2) {
        // A factory number is followed by the date: third token, or fifth in the long form.
        QString date = tokens.at(2);
        if (firmwareForm.match(tokens.at(2)).hasMatch())
            date = tokens.value(3);
        else if (tokens.size() > 4 && firmwareForm.match(tokens.at(4)).hasMatch())
            date = tokens.value(5);
        identity.dateText = date.replace(QLatin1Char(':'), QLatin1Char('.'));
        identity.date = QDate::fromString(identity.dateText, QStringLiteral("dd.MM.yyyy"));
    }
    identity.templateName = templateByDate(identity.model, identity.date);
    return identity;
}

bool ScanResultImporter::applyTemplate(Device *device, const QString &templateName)
{
    const QVariantMap templateMap = DeviceTemplateCatalog::instance()->template_map(templateName);
    const QVariantMap deviceMap = templateMap.value(QStringLiteral("device")).toMap();
    if (deviceMap.isEmpty()) {
        SLOG_INFO
            << QStringLiteral("Error loading device data from template '%1'").arg(templateName);
        device->setPortSettingsInTags();
        return false;
    }
    const QString name = device->name();
    device->load(deviceMap);
    if (device->name() != name)
        device->setName(name);
    const QString comment = templateMap.value(QStringLiteral("comment")).toString();
    if (!comment.isEmpty())
        device->setComment(comment);
    const QString producer = templateMap.value(QStringLiteral("producer")).toString();
    if (!producer.isEmpty())
        device->setProperty("producer", producer);
    device->setPortSettingsInTags();
    return true;
}

QList<Device *> ScanResultImporter::append(const ScanResult &result)
{
    QList<Device *> appended;
    if (!m_server)
        return appended;
    for (auto line = result.cbegin(); line != result.cend(); ++line) {
        const SerialPortSettings &settings = line.key();
        const QString name = portName(settings);
        Port *port = m_server->portByName(name);
        if (!port) {
            // A port of the tree keeps its settings; only a new one takes the scan's.
            port = m_server->addPort(name);
            if (!port)
                continue;
            port->setBaudrate(settings.baudRate);
            port->setDatabits(settings.protocol.dataBits);
            port->setParity(settings.protocol.parity);
            port->setStopbits(settings.protocol.stopBits);
            port->setSerialName(settings.name);
            emit portAdded(port);
        }
        for (const FoundedDevice &found : line.value()) {
            const int address = found.address;
            if (port->device(address)) {
                const bool add = m_clashQuestion && m_clashQuestion(address, port);
                if (!add) {
                    LOG_INFO << QStringLiteral(
                                    "device with address %1 already exists on port %2, skipping")
                                    .arg(address)
                                    .arg(port->name());
                    continue;
                }
            }
            const Identity identity = identify(address, found.reply);
            Device *device = port->addDevice(identity.deviceName);
            if (!device)
                continue;
            device->setAddress(address);
            device->setProtocolType(found.ascii ? Port::ProtocolASCII : Port::ProtocolRTU);
            // Only a function 17 reply carries a slave id; a register value is no proof.
            device->setDeviceId(found.function == 17 ? found.slaveId() : 0);
            device->setPortSettings(settings);
            if (identity.proper) {
                device->setIdentification(Device::ReplyText, identity.text);
                device->initFirmwareNumber();
            }
            if (m_templateApplier)
                m_templateApplier(device, identity.templateName);
            else
                applyTemplate(device, identity.templateName);
            device->setDeviceTagState(Device::Pasted);
            appended << device;
            emit deviceAdded(port, device);
        }
    }
    return appended;
}
