#ifndef SERVER_H
#define SERVER_H

#include "model/serveritem.h"

#include <QStringList>

class Port;

// Root of the item tree; loads and saves the whole tree as nested maps.
class Server : public ServerItem
{
    Q_OBJECT
public:
    explicit Server(QObject *parent = nullptr);
    ~Server() override;

    // ServerItem
    QList<Tag *> tags() const override;
    QList<Tag *> activeTags() const override;
    QString fullName() const override { return name(); }
    QIcon icon() const override { return QIcon(); }
    bool load(const QVariantMap &map) override;
    QVariantMap save() const override;
    int type() const override { return ItemServer; }
    ServerItem *createChild() override;

    QList<Port *> ports() const;
    QStringList portNames() const;
    Port *portByName(const QString &name) const;
    int portCount() const { return childCount(); }
    int deviceCount() const;
    int tagCount() const { return int(tags().size()); }
    Port *addPort(const QString &name, int index = -1);
    void removePort(const QString &name);
    void clear();
    bool hasTagsWithNan() const;
    bool hasPortWithArchivatedDevices() const;
    bool isPortsThreadWorked() const;
    void printContents() const;
    void fillServer() { }

signals:
    void loaded();
};

#endif // SERVER_H
