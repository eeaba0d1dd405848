#include "model/server.h"

#include "app/debugqt.h"
#include "model/device.h"
#include "model/port.h"
#include "model/tag.h"

Server::Server(QObject *)
    : ServerItem(nullptr)
{
    setName(QStringLiteral("Server"));
}

Server::~Server() = default;

QList<Tag *> Server::tags() const
{
    QList<Tag *> result;
    for (ServerItem *item : children())
        result.append(item->tags());
    return result;
}

QList<Tag *> Server::activeTags() const
{
    QList<Tag *> result;
    for (ServerItem *item : children())
        result.append(item->activeTags());
    return result;
}

ServerItem *Server::createChild()
{
    auto *port = new Port(this);
    connect(port, &ServerItem::modified, this, &ServerItem::modified);
    return port;
}

QList<Port *> Server::ports() const
{
    QList<Port *> result;
    for (ServerItem *item : children())
        result.append(static_cast<Port *>(item));
    return result;
}

QStringList Server::portNames() const
{
    QStringList names;
    for (ServerItem *item : children())
        names.append(item->name());
    names.sort();
    return names;
}

Port *Server::portByName(const QString &name) const
{
    return qobject_cast<Port *>(childByName(name));
}

int Server::deviceCount() const
{
    int count = 0;
    for (Port *port : ports())
        count += port->childCount();
    return count;
}

Port *Server::addPort(const QString &name, int index)
{
    LOG_INFO << "trying to add to ports: " << name;
    if (name.isEmpty())
        return nullptr;
    if (Port *existing = portByName(name))
        return existing;
    if (index < 0 || index > childCount())
        index = childCount();
    auto *port = static_cast<Port *>(createChild());
    if (isNameValid(name))
        port->setName(name);
    insertChild(index, port);
    return port;
}

void Server::removePort(const QString &name)
{
    ServerItem *port = takeChild(name);
    delete port;
}

void Server::clear()
{
    for (const QString &name : portNames())
        removePort(name);
}

QVariantMap Server::save() const
{
    for (Tag *tag : tags())
        tag->setModified(false);
    QVariantList portList;
    for (const Port *port : ports())
        portList.append(port->save());
    return {{QStringLiteral("ports"), portList}};
}

bool Server::load(const QVariantMap &map)
{
    LOG_INFO << "begin";
    if (!map.contains(QLatin1String("ports")))
        return false;
    const QVariantList entries = listValue(map.value(QLatin1String("ports")));
    if (entries.isEmpty()) {
        LOG_INFO << "ports.count() = 0  ---> Invalid or empty configuration";
        return false;
    }
    removeChildren();
    for (const QVariant &entry : entries) {
        const QVariantMap portMap = entry.toMap();
        if (Port *port = addPort(portMap.value(QLatin1String("name")).toString(), -1))
            port->load(portMap);
    }
    for (Tag *tag : tags())
        tag->setModified(false);
    LOG_INFO << "emit loaded()";
    emit loaded();
    return true;
}

bool Server::hasTagsWithNan() const
{
    // Clearing the mark on the way is intended: the tags before the first hit are clean.
    for (Tag *tag : tags()) {
        tag->setModified(false);
        if (tag->isValueNaN())
            return true;
    }
    return false;
}

bool Server::hasPortWithArchivatedDevices() const
{
    for (Port *port : ports()) {
        if (port->hasArchivatedDevices())
            return true;
    }
    return false;
}

bool Server::isPortsThreadWorked() const
{
    for (const Port *port : ports()) {
        if (port->isPortThreadWorked())
            return true;
    }
    return false;
}

void Server::printContents() const
{
    for (const QString &portName : portNames()) {
        Port *port = portByName(portName);
        LOG_INFO << "port : " << portName;
        for (Device *device : port->devices()) {
            LOG_INFO << "\tdevice: " << device->name();
            for (Tag *tag : device->tags())
                LOG_INFO << "\t\ttag: " << tag->name();
        }
    }
}
