#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"

#include <QSignalSpy>
#include <QtTest>

// Names, unique names, result codes and tree links shared by all four levels.
class tst_ServerItem : public QObject
{
    Q_OBJECT
private slots:
    void validName_data();
    void validName();
    void clashingNamesAreRenamed();
    void uniqueNumbersAreNotReused();
    void renameKeepsIndexConsistent();
    void enablingClimbsToRoot();
    void errorStrings_data();
    void errorStrings();
    void updateAndResetState();
    void moveChildren();
    void insertAndRemoveChildren();
};

void tst_ServerItem::validName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("blank") << "a b"
                           << "a_b";
    QTest::newRow("run of blanks and tabs") << "a \t  b"
                                            << "a_b";
    QTest::newRow("backslashes only") << "\\\\\\"
                                      << "_";
    QTest::newRow("mixed") << "x\\ \\y"
                           << "x_y";
    QTest::newRow("untouched") << "Port-1.2"
                               << "Port-1.2";
}

void tst_ServerItem::validName()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QCOMPARE(ServerItem::validName(name), expected);
}

void tst_ServerItem::clashingNamesAreRenamed()
{
    Server server;
    Port *first = server.addPort(QStringLiteral("a b"));
    QCOMPARE(first->name(), QStringLiteral("a_b"));
    // A second port whose name only becomes equal after cleaning gets the suffix.
    Port *second = server.addPort(QStringLiteral("x"));
    second->setName(QStringLiteral("a_b"));
    QCOMPARE(second->name(), QStringLiteral("a_b_n0"));
    QCOMPARE(server.portByName(QStringLiteral("a_b_n0")), second);
    QCOMPARE(server.portByName(QStringLiteral("a_b")), first);

    // Devices: addDevice never returns an existing one, it renames.
    Device *d1 = first->addDevice(QStringLiteral("dev"));
    Device *d2 = first->addDevice(QStringLiteral("dev"));
    QVERIFY(d1 != d2);
    QCOMPARE(d2->name(), QStringLiteral("dev_n0"));
    // A port of an existing name is returned as it is.
    QCOMPARE(server.addPort(QStringLiteral("a_b")), first);
    QCOMPARE(server.portCount(), 2);
}

void tst_ServerItem::uniqueNumbersAreNotReused()
{
    Server server;
    Port *port = server.addPort(QStringLiteral("p"));
    Device *device = port->addDevice(QStringLiteral("d"));
    QVERIFY(device->insertChildren(0, 1));
    QCOMPARE(device->child(0)->name(), QStringLiteral("Tag0"));
    QVERIFY(device->removeChildren(0, 1));
    QVERIFY(device->insertChildren(0, 1));
    QCOMPARE(device->child(0)->name(), QStringLiteral("Tag1"));
    // A name taken by hand is skipped by the generator.
    device->tags().first()->setName(QStringLiteral("Tag2"));
    QVERIFY(device->insertChildren(1, 1));
    QCOMPARE(device->child(1)->name(), QStringLiteral("Tag3"));
}

void tst_ServerItem::renameKeepsIndexConsistent()
{
    Server server;
    Port *port = server.addPort(QStringLiteral("p"));
    Device *device = port->addDevice(QStringLiteral("d"));
    Tag *tag = device->addTag(QStringLiteral("t"));
    tag->setName(QStringLiteral("renamed"));
    QCOMPARE(device->tag(QStringLiteral("renamed")), tag);
    QVERIFY(!device->hasChildName(QStringLiteral("t")));
    // Its own name is valid for itself.
    QVERIFY(tag->isNameValid(QStringLiteral("renamed")));
    Tag *other = device->addTag(QStringLiteral("other"));
    QVERIFY(!other->isNameValid(QStringLiteral("renamed")));
}

void tst_ServerItem::enablingClimbsToRoot()
{
    Server server;
    Port *port = server.addPort(QStringLiteral("p"));
    Device *device = port->addDevice(QStringLiteral("d"));
    Tag *tag = device->addTag(QStringLiteral("t"));
    port->setEnabled(false);
    device->setEnabled(false);
    QSignalSpy spy(tag, &ServerItem::stateChanged);
    tag->setEnabled(true);
    QVERIFY(device->enabled());
    QVERIFY(port->enabled());
    QCOMPARE(spy.count(), 1);
    // Disabling stays local.
    tag->setEnabled(false);
    QVERIFY(device->enabled());
    device->setEnabled(false);
    QVERIFY(port->enabled());
    QVERIFY(!tag->enabled());
}

void tst_ServerItem::errorStrings_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("detail");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("library code shows its small number") << 2 << 112345679 << "(1)";
    QTest::newRow("bad crc") << 2 << 112345691 << "(13)";
    QTest::newRow("os errno as it is") << 2 << 2 << "(2)";
    QTest::newRow("upper edge of the closed range") << 2 << 112345677 << "(112345677)";
    QTest::newRow("config") << 3 << 0 << "Config error(invalid access type)";
    QTest::newRow("port") << 4 << 0 << "Port/Link error";
    QTest::newRow("timeout") << 5 << 0 << "Timeout error";
    QTest::newRow("good") << 1 << 0 << "No error";
    QTest::newRow("unknown code") << 42 << 7 << "No error";
}

void tst_ServerItem::errorStrings()
{
    QFETCH(int, code);
    QFETCH(int, detail);
    QFETCH(QString, suffix);
    Server server;
    const QString text = server.getErrorString(code, detail);
    QVERIFY2(text.endsWith(suffix), qPrintable(text));
}

void tst_ServerItem::updateAndResetState()
{
    Server server;
    Port *port = server.addPort(QStringLiteral("p"));
    Device *device = port->addDevice(QStringLiteral("d"));
    QCOMPARE(device->state(), int(ServerItem::StateNone));
    device->updateState(ServerItem::ResultTimeout);
    device->updateState(ServerItem::ResultModbusError);
    QCOMPARE(device->state(), int(ServerItem::StateFailed));
    QCOMPARE(device->errorCount(), 2);
    QCOMPARE(device->lastResult(), int(ServerItem::ResultModbusError));
    device->updateState(ServerItem::ResultGood);
    QCOMPARE(device->state(), int(ServerItem::StateGood));
    QCOMPARE(device->errorCount(), 2);

    port->updateState(ServerItem::ResultPortError);
    server.resetState();
    QCOMPARE(port->state(), int(ServerItem::StateNone));
    QCOMPARE(device->errorCount(), 0);
    QCOMPARE(device->errorString(), QStringLiteral("No error"));
}

void tst_ServerItem::moveChildren()
{
    Server server;
    Port *a = server.addPort(QStringLiteral("a"));
    Port *b = server.addPort(QStringLiteral("b"));
    Port *c = server.addPort(QStringLiteral("c"));
    QVERIFY(!server.canMoveUp(a));
    QVERIFY(server.canMoveDown(a));
    QVERIFY(!server.canMoveDown(c));
    QCOMPARE(server.moveChildUp(a), 0);
    QCOMPARE(server.moveChildDown(a), 1);
    QCOMPARE(server.child(0), b);
    QCOMPARE(server.moveChildDown(c), 2);
    QCOMPARE(server.moveChildUp(c), 1);
    QCOMPARE(server.ports(), (QList<Port *> {b, c, a}));
    QCOMPARE(a->childNumber(), 2);
    QCOMPARE(server.childNumber(), -1);
}

void tst_ServerItem::insertAndRemoveChildren()
{
    Server server;
    QVERIFY(!server.insertChildren(-1, 1));
    QVERIFY(!server.insertChildren(1, 1));
    QVERIFY(server.insertChildren(0, 0));
    QVERIFY(server.insertChildren(0, 3));
    QCOMPARE(server.portCount(), 3);
    QVERIFY(!server.removeChildren(2, 2));
    QVERIFY(server.removeChildren(1, 2));
    QCOMPARE(server.portCount(), 1);
    // The freed names do not linger in the index.
    QVERIFY(server.removeChildren());
    QVERIFY(server.portNames().isEmpty());
    QVERIFY(!server.child(0));
    QVERIFY(!server.child(-1));
}

QTEST_GUILESS_MAIN(tst_ServerItem)
#include "tst_serveritem.moc"
