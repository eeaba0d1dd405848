#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QtTest>

// The whole tree as nested maps: ports, devices and tags load and save.
class tst_Tree : public QObject
{
    Q_OBJECT
private slots:
    void roundTripIsStable();
    void roundTripThroughJsonText();
    void emptyOrMissingPortsKeepTree();
    void portFallbacks();
    void serialNameClash();
    void baudAndParityTables();
    void nanQueryClearsMarksUpToFirstHit();
    void counts();
};

static QVariantMap buildTree(Server &server)
{
    for (int p = 0; p < 3; ++p) {
        Port *port = server.addPort(QStringLiteral("port %1").arg(p));
        port->setSerialName(QStringLiteral("/dev/ttyS%1").arg(p));
        port->setBaudrate(p == 1 ? 9600 : 115200);
        port->setParity(QLatin1Char(p == 2 ? 'E' : 'N'));
        for (int d = 0; d < 3; ++d) {
            Device *device = port->addDevice(QStringLiteral("dev%1").arg(d));
            device->setDeviceTemplateName(QStringLiteral("Zolt-21"));
            device->setUseCash(d == 1);
            device->setByteSwappingEnabled(d != 2);
            device->setFirmwareDate(d == 0 ? QStringLiteral("26.08.2019") : QString());
            for (int t = 0; t < 5; ++t) {
                Tag *tag = device->addTag(QStringLiteral("tag%1").arg(t));
                tag->load(
                    {{"device_type", t == 4 ? "bytearray" : (t % 2 ? "uint16" : "float32")},
                     {"array_size", 6},
                     {"address", QStringLiteral("%1h").arg(t * 2, 3, 16, QLatin1Char('0'))},
                     {"access", "ReadWrite"},
                     {"read_func", 3},
                     {"write_func", 16},
                     {"limits", QVariantList {0, 100}},
                     {"values", t == 1 ? QVariantMap {{"0", "нет"}, {"1", "да"}} : QVariantMap()},
                     {"config_group",
                      t == 0 ? QStringList {"Channel", "ИП 1"}
                             : QStringList {"Control", "Управление"}},
                     {"value", t % 2 ? QVariant(t) : QVariant(QStringLiteral("%1.25").arg(t))}});
            }
        }
    }
    return server.save();
}

void tst_Tree::roundTripIsStable()
{
    Server first;
    const QVariantMap saved = buildTree(first);
    Server second;
    QSignalSpy loaded(&second, &Server::loaded);
    QVERIFY(second.load(saved));
    QCOMPARE(loaded.count(), 1);
    QCOMPARE(second.portCount(), 3);
    QCOMPARE(second.deviceCount(), 9);
    QCOMPARE(second.tagCount(), 45);
    QCOMPARE(second.save(), saved);
    // Channels come back as channels.
    Device *device = second.portByName(QStringLiteral("port_1"))->device(QStringLiteral("dev0"));
    QCOMPARE(device->ChannelNames(), QStringList {"tag0"});
}

void tst_Tree::roundTripThroughJsonText()
{
    Server first;
    const QVariantMap saved = buildTree(first);
    const QByteArray text = QJsonDocument(QJsonObject::fromVariantMap(saved)).toJson();
    const QVariantMap reparsed = QJsonDocument::fromJson(text).object().toVariantMap();
    Server second;
    QVERIFY(second.load(reparsed));
    const QByteArray again = QJsonDocument(QJsonObject::fromVariantMap(second.save())).toJson();
    QCOMPARE(again, text);
}

void tst_Tree::emptyOrMissingPortsKeepTree()
{
    Server server;
    server.addPort(QStringLiteral("keep"));
    QSignalSpy loaded(&server, &Server::loaded);
    QVERIFY(!server.load({{"ports", QVariantList()}}));
    QVERIFY(!server.load({{"other", 1}}));
    QVERIFY(!server.load({{"ports", QStringLiteral("not a list")}}));
    QCOMPARE(server.portNames(), QStringList {"keep"});
    QCOMPARE(loaded.count(), 0);
    // Entries that are not maps give nameless ports, which are skipped.
    QVERIFY(server.load({{"ports", QVariantList {1, QVariantMap {{"name", "ok"}}}}}));
    QCOMPARE(server.portNames(), QStringList {"ok"});
}

void tst_Tree::portFallbacks()
{
    Server server;
    Port *port = server.addPort(QStringLiteral("p"));
    port->load({{"baudrate", 0},
                {"parity", "S"},
                {"stopbits", 0},
                {"databits", 0},
                {"port_type", "modbus_tcp"}});
    QCOMPARE(port->baudrate(), 115200);
    QCOMPARE(port->parity(), QLatin1Char('N'));
    QCOMPARE(port->stopBits(), 2);
    QCOMPARE(port->dataBits(), 8);
    QCOMPARE(port->portType(), int(Port::MODBUS_TCP));
    QVERIFY(!port->open()); // a TCP port is never opened
    // The line keeps the name the port had when it was made.
    QCOMPARE(port->errorString(), QStringLiteral("port type invalid for 'Port0'"));
    port->load({{"port_type", "nonsense"}});
    QCOMPARE(port->portType(), int(Port::MODBUS_RTU));
    QCOMPARE(port->configName(), QStringLiteral("Port0 ; 115200 ; 8N2"));
}

void tst_Tree::serialNameClash()
{
    const QVariantMap map
        = {{"ports",
            QVariantList {QVariantMap {{"name", "A"}, {"serial_name", "/dev/ttyUSB0"}},
                          QVariantMap {{"name", "B"}, {"serial_name", "/dev/ttyUSB0"}}}}};
    Server server;
    QVERIFY(server.load(map));
    QCOMPARE(server.portByName(QStringLiteral("A"))->serialName(), QStringLiteral("/dev/ttyUSB0"));
    // The clash is refused silently; the second keeps its own name as its line.
    Port *b = server.portByName(QStringLiteral("B"));
    QCOMPARE(b->serialName(), QStringLiteral("Port1"));
    QVERIFY(!b->setSerialName(QString()));
    QVERIFY(!b->setSerialName(QStringLiteral("Port1")));
    QVERIFY(b->setSerialName(QStringLiteral("/dev/ttyUSB1")));
    QVERIFY(!b->open());
    QCOMPARE(b->errorString(), QStringLiteral("not such device '/dev/ttyUSB1'"));
    QCOMPARE(b->lastResult(), int(ServerItem::ResultConfigError));
}

void tst_Tree::baudAndParityTables()
{
    Server server;
    Port *port = server.addPort(QStringLiteral("p"));
    QCOMPARE(port->baudrateIndex(), 7);
    QCOMPARE(port->baudrateIndex(14400), -1);
    port->setBaudrateByIndex(3);
    QCOMPARE(port->baudrate(), 9600);
    port->setBaudrateByIndex(9);
    QCOMPARE(port->baudrate(), 1200);
    port->setParity(QLatin1Char('S'));
    QCOMPARE(port->parityIndex(), 0);
    QCOMPARE(port->parityIndex(QLatin1Char('O')), 3);
    port->setParityByIndex(2);
    QCOMPARE(port->parity(), QLatin1Char('E'));
    port->setParityByIndex(0);
    QCOMPARE(port->parity(), QLatin1Char('N'));
}

void tst_Tree::nanQueryClearsMarksUpToFirstHit()
{
    Server server;
    Device *device = server.addPort(QStringLiteral("p"))->addDevice(QStringLiteral("d"));
    Tag *a = device->addTag(QStringLiteral("a"));
    Tag *b = device->addTag(QStringLiteral("b"));
    Tag *c = device->addTag(QStringLiteral("c"));
    for (Tag *tag : {a, b, c}) {
        tag->setModified(true);
        tag->setValue(1.0f);
    }
    b->setValue(std::numeric_limits<float>::quiet_NaN());
    QVERIFY(server.hasTagsWithNan());
    QVERIFY(!a->isModified());
    QVERIFY(!b->isModified());
    QVERIFY(c->isModified()); // behind the first NaN: untouched
    server.save();
    QVERIFY(!c->isModified());
}

void tst_Tree::counts()
{
    Server server;
    Port *p = server.addPort(QStringLiteral("p"));
    Device *d = p->addDevice(QStringLiteral("d"));
    d->setEnabled(true);
    Tag *ch = d->addTag(QStringLiteral("ch"));
    ch->setConfigGroup({QStringLiteral("CHANNEL"), QStringLiteral("x")});
    d->addTag(QStringLiteral("other"));
    QCOMPARE(server.activeTags(), QList<Tag *> {ch});
    d->setEnabled(false);
    QVERIFY(server.activeTags().isEmpty());
    QCOMPARE(ch->fullName(), QStringLiteral("p/d/ch"));
    server.removePort(QStringLiteral("p"));
    QCOMPARE(server.portCount(), 0);
    server.removePort(QStringLiteral("unknown"));
}

QTEST_GUILESS_MAIN(tst_Tree)
#include "tst_tree.moc"
