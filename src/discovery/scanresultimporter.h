#ifndef SCANRESULTIMPORTER_H
#define SCANRESULTIMPORTER_H

#include "discovery/foundeddevice.h"

#include <QDate>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>

class Device;
class Port;
class Server;

// Turns scan hits into ports and devices of the tree: one port per line
// settings, one device per address, with the template that the model name
// and the firmware date in the reply point to.
class ScanResultImporter : public QObject
{
    Q_OBJECT
public:
    // What a function 17 reply tells about the instrument.
    struct Identity
    {
        bool proper = false; // a reply that names the model
        QString text; // the reply behind the slave id and run indicator
        QString model; // "device_<address>" for an improper reply
        QString comment;
        QString dateText; // as sent, with ':' turned into '.'
        QDate date;
        QString deviceName;
        QString templateName;
    };

    // Asked when the port already has a device at the address: true adds
    // another one there, false leaves the address as it is.
    typedef std::function<bool(int address, const Port *port)> ClashQuestion;
    // Applies a template to a new device; by default applyTemplate().
    typedef std::function<void(Device *device, const QString &templateName)> TemplateApplier;

    explicit ScanResultImporter(Server *server, QObject *parent = nullptr);

    void setClashQuestion(const ClashQuestion &question) { m_clashQuestion = question; }
    void setTemplateApplier(const TemplateApplier &applier) { m_templateApplier = applier; }

    // Returns the devices appended, in the order of the result.
    QList<Device *> append(const ScanResult &result);

    static QString portName(const SerialPortSettings &settings);
    static Identity identify(int address, const QByteArray &reply);
    // The template of a model for a firmware of that date.
    static QString templateByDate(const QString &model, const QDate &date);
    // The catalogue's template loaded into the device, keeping its name; false
    // when the catalogue has no such template.
    static bool applyTemplate(Device *device, const QString &templateName);

signals:
    void portAdded(Port *port);
    void deviceAdded(Port *port, Device *device);

private:
    Server *m_server;
    ClashQuestion m_clashQuestion;
    TemplateApplier m_templateApplier;
};

#endif // SCANRESULTIMPORTER_H
