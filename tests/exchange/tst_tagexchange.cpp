#include "exchange/modbuslogger.h"
#include "fakeslave.h"
#include "modbus/modbus.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

// Tags read and written over a pseudo-terminal: against Debian's libmodbus
// as an independent slave for the wire images, and against a scripted slave
// for the faults.
class tst_TagExchange : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void floatOnTheWire_data();
    void floatOnTheWire();
    void byteOrderRule();
    void separateBlock();
    void bitFieldKeepsOtherBits();
    void bitTagsUseBitFunctions();
    void accessRefusals();
    void readCache();
    void timeoutGivesTxLineOnly();
    void exceptionReply();
    void badCrcGivesBothLines();
    void lineVanishesAndComesBack();
    void loggerTap();

private:
    Tag *addTag(const QVariantMap &map);
    uint registerAt(int addr, int func = 3);
    bool startPeer();

    QProcess m_peer;
    QString m_peerPath;
    QTemporaryDir m_dir;
    QString m_link;
    Server *m_server = nullptr;
    Port *m_port = nullptr;
    Device *m_device = nullptr;
};

bool tst_TagExchange::startPeer()
{
    m_peer.start(QStringLiteral(RTU_PEER),
                 {QStringLiteral("--slave"), QStringLiteral("1"), QStringLiteral("--pty")});
    if (!m_peer.waitForStarted(5000) || !m_peer.waitForReadyRead(5000))
        return false;
    m_peerPath = QString::fromLocal8Bit(m_peer.readLine()).trimmed();
    QFile::remove(m_link);
    return QFile::link(m_peerPath, m_link);
}

void tst_TagExchange::initTestCase()
{
    m_link = m_dir.filePath(QStringLiteral("ttyPEER"));
    QVERIFY(startPeer());
}

void tst_TagExchange::cleanupTestCase()
{
    m_peer.kill();
    m_peer.waitForFinished(3000);
}

void tst_TagExchange::init()
{
    m_server = new Server;
    m_port = m_server->addPort(QStringLiteral("line"));
    m_port->setSerialName(m_link);
    m_device = m_port->addDevice(QStringLiteral("dev"));
    m_device->setAddress(1);
    m_device->setRequestTimeout(1); // keep the pause short on a pseudo-terminal
    m_device->setByteSwappingEnabled(true);
}

void tst_TagExchange::cleanup()
{
    delete m_server;
    m_server = nullptr;
}

Tag *tst_TagExchange::addTag(const QVariantMap &map)
{
    Tag *tag = m_device->addTag(map.value("name").toString());
    QVariantMap full
        = {{"access", "ReadWrite"}, {"read_func", 3}, {"write_func", 16}, {"request_delay", 0}};
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        full.insert(it.key(), it.value());
    tag->load(full);
    return tag;
}

// A register as the slave holds it, read with the swap off so nothing is reordered.
uint tst_TagExchange::registerAt(int addr, int func)
{
    QByteArray out;
    const bool saved = m_device->byteSwappingEnabled();
    m_device->setByteSwappingEnabled(false);
    const int state = m_device->read(QStringLiteral("probe"), addr, func, 2, out);
    m_device->setByteSwappingEnabled(saved);
    if (state != 1 || out.size() != 2)
        return 0xFFFFFFFF;
    return uint(quint8(out.at(0))) | (uint(quint8(out.at(1))) << 8);
}

void tst_TagExchange::floatOnTheWire_data()
{
    QTest::addColumn<bool>("swap");
    QTest::addColumn<uint>("first");
    QTest::addColumn<uint>("second");
    // Swap on: the first register is the most significant one.
    QTest::newRow("swap on") << true << 0x3F80u << 0x0000u;
    QTest::newRow("swap off") << false << 0x0000u << 0x3F80u;
}

void tst_TagExchange::floatOnTheWire()
{
    QFETCH(bool, swap);
    QFETCH(uint, first);
    QFETCH(uint, second);
    m_device->setByteSwappingEnabled(swap);
    Tag *tag = addTag({{"name", "f"}, {"address", "010h"}, {"device_type", "float32"}});
    QVERIFY(tag->write(1.0f));
    QCOMPARE(tag->lastResult(), 1);
    QCOMPARE(registerAt(0x10), first);
    QCOMPARE(registerAt(0x11), second);
    tag->setValue(0.0f);
    QCOMPARE(tag->read().toFloat(), 1.0f);
    QCOMPARE(tag->rawBuffer().size(), 4);
}

void tst_TagExchange::byteOrderRule()
{
    // "1032" swaps the bytes of each register: 1.0 (00 00 80 3F) leaves as 00 00 3F 80,
    // which the swapped port puts on the wire as registers 0x803F, 0x0000.
    Tag *tag = addTag({{"name", "r"},
                       {"address", "20h"},
                       {"device_type", "float32"},
                       {"byteorder", "1032"},
                       {"byteorder_enabled", true}});
    QVERIFY(tag->write(1.0f));
    QCOMPARE(registerAt(0x20), 0x803Fu);
    QCOMPARE(registerAt(0x21), 0x0000u);
    tag->setValue(0);
    QCOMPARE(tag->read().toFloat(), 1.0f);
}

void tst_TagExchange::separateBlock()
{
    // A block of 4 registers at 0x100: A int16 at offset 0, B float32 at offset 2.
    const QStringList group = {"A", "B"};
    Tag *a = addTag({{"name", "A"},
                     {"type", "separate"},
                     {"address", "100h"},
                     {"device_type", "int16"},
                     {"address_offset", 0},
                     {"registers_count", 4},
                     {"tags_group", group}});
    Tag *b = addTag({{"name", "B"},
                     {"type", "separate"},
                     {"address", "100h"},
                     {"device_type", "float32"},
                     {"address_offset", 2},
                     {"registers_count", 4},
                     {"tags_group", group}});
    a->setValue(-2);
    QVERIFY(b->write(2.5f));
    // One write rewrote the block with A's last known value.
    QCOMPARE(registerAt(0x100), 0xFFFEu);
    QCOMPARE(registerAt(0x101), 0x0000u);
    QCOMPARE(registerAt(0x102), 0x4020u); // 2.5f = 0x40200000, high word first
    QCOMPARE(registerAt(0x103), 0x0000u);
    a->setValue(0);
    b->setValue(0.0f);
    QCOMPARE(b->read().toFloat(), 2.5f);
    QCOMPARE(b->rawBuffer().size(), 8); // the whole block in one exchange
    QCOMPARE(a->read().toInt(), -2);
    // A negative offset gives no value and no error.
    a->setAddressOffset(-1);
    a->setValue(7);
    a->read();
    QCOMPARE(a->value().toInt(), 7);
    QCOMPARE(a->lastResult(), 1);
}

void tst_TagExchange::bitFieldKeepsOtherBits()
{
    Tag *whole = addTag({{"name", "word"}, {"address", "30h"}, {"device_type", "uint16"}});
    QVERIFY(whole->write(0xABCD));
    Tag *field = addTag({{"name", "field"},
                         {"address", "30h"},
                         {"device_type", "uint16"},
                         {"use_bit_extraction", true},
                         {"extract_bit_from", 4},
                         {"extract_bit_to", 7}});
    QCOMPARE(field->read().toInt(), 0xC);
    QVERIFY(field->write(0x5));
    QCOMPARE(registerAt(0x30), 0xAB5Du);
    QCOMPARE(whole->read().toInt(), 0xAB5D);
}

void tst_TagExchange::bitTagsUseBitFunctions()
{
    // A one-byte tag configured with function 3 is read with function 2.
    Tag *input
        = addTag({{"name", "di"}, {"address", "3"}, {"device_type", "bit"}, {"read_func", 3}});
    QCOMPARE(input->read().toBool(), true); // discrete input i is on when i % 3 == 0
    Tag *coil = addTag({{"name", "coil"},
                        {"address", "4"},
                        {"device_type", "bit"},
                        {"read_func", 1},
                        {"write_func", 5}});
    QVERIFY(coil->write(true));
    QCOMPARE(coil->read().toBool(), true);
    QVERIFY(coil->write(false));
    QCOMPARE(coil->read().toBool(), false);
}

void tst_TagExchange::accessRefusals()
{
    Tag *ro = addTag(
        {{"name", "ro"}, {"address", "40h"}, {"device_type", "uint16"}, {"access", "ReadOnly"}});
    QVERIFY(!ro->write(5));
    QCOMPARE(ro->lastResult(), 3);
    Tag *wo = addTag(
        {{"name", "wo"}, {"address", "40h"}, {"device_type", "uint16"}, {"access", "WriteOnly"}});
    wo->setValue(9);
    QCOMPARE(wo->read().toInt(), 9); // success without an exchange
    QCOMPARE(wo->lastResult(), 1);
}

void tst_TagExchange::readCache()
{
    m_device->setUseCash(true);
    m_device->setCashTimeout(500);
    QSignalSpy messages(m_device, &Device::modbusMessage);
    QByteArray out;
    QCOMPARE(m_device->read(QStringLiteral("a"), 0x50, 3, 4, out), 1);
    const int afterFirst = int(messages.count());
    QCOMPARE(m_device->read(QStringLiteral("a"), 0x50, 3, 4, out), 1);
    const QStringList second = [&] {
        QStringList lines;
        for (int i = afterFirst; i < messages.count(); ++i)
            lines << messages.at(i).at(1).toString();
        return lines;
    }();
    QVERIFY2(second.join('\n').contains(QStringLiteral("(*CASH*)")), qPrintable(second.join('\n')));
    QVERIFY(!second.join('\n').contains(QStringLiteral("TX(")));
    // Another address replaces the entry after its own line read.
    QCOMPARE(m_device->read(QStringLiteral("b"), 0x60, 3, 4, out), 1);
    messages.clear();
    QCOMPARE(m_device->read(QStringLiteral("a"), 0x50, 3, 4, out), 1);
    bool lineRead = false;
    for (const QList<QVariant> &m : messages)
        lineRead = lineRead || m.at(1).toString().contains(QStringLiteral("TX("));
    QVERIFY(lineRead);
}

void tst_TagExchange::timeoutGivesTxLineOnly()
{
    // A silent line. (Debian's libmodbus slave would take the next request
    // for the other slave's reply and swallow it, as a bus sniffer must.)
    FakeSlave silent(FakeSlave::Rtu);
    silent.setHandler([](const QByteArray &) { return FakeSlave::Script(); });
    m_port->setSerialName(QString::fromLocal8Bit(silent.path()));
    m_device->setResponceTimeout(150);
    QSignalSpy messages(m_device, &Device::modbusMessage);
    Tag *ch = addTag({{"name", "ch1_value"},
                      {"address", "0"},
                      {"device_type", "float32"},
                      {"config_group", QStringList {"Channel", "ИП 1"}}});
    ch->setValue(3.0f);
    QElapsedTimer timer;
    timer.start();
    ch->read();
    QVERIFY(timer.elapsed() >= 140);
    QCOMPARE(ch->lastResult(), 5);
    QCOMPARE(ch->errorString(), QStringLiteral("Timeout error"));
    QVERIFY(std::isnan(ch->value().toFloat())); // a gap for the plot
    int txLines = 0;
    int rxLines = 0;
    for (const QList<QVariant> &m : messages) {
        txLines += m.at(1).toString().contains(QStringLiteral(" TX(")) ? 1 : 0;
        rxLines += m.at(1).toString().contains(QStringLiteral(" RX(")) ? 1 : 0;
    }
    QCOMPARE(txLines, 1);
    QCOMPARE(rxLines, 0);
    QVERIFY(m_port->isOpened());
    m_port->close();
}

void tst_TagExchange::exceptionReply()
{
    Tag *tag = addTag(
        {{"name", "busy"}, {"address", QString::number(0x7F02)}, {"device_type", "uint16"}});
    tag->read();
    QCOMPARE(tag->lastResult(), 2);
    QVERIFY2(tag->errorString().endsWith(QStringLiteral("(2)")), qPrintable(tag->errorString()));
}

void tst_TagExchange::badCrcGivesBothLines()
{
    FakeSlave fake(FakeSlave::Rtu);
    fake.setHandler([](const QByteArray &request) {
        // A plausible reply to a read of one register, with a broken checksum.
        Q_UNUSED(request);
        return FakeSlave::Script {{QByteArray::fromHex("010302abcd0000"), 0, -1}};
    });
    m_port->setSerialName(QString::fromLocal8Bit(fake.path()));
    QSignalSpy messages(m_device, &Device::modbusMessage);
    QByteArray out;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(m_device->read(QStringLiteral("crc"), 0, 3, 2, out), 2);
    QVERIFY(timer.elapsed() >= 30); // flush and pause
    QVERIFY2(m_device->errorString().endsWith(QStringLiteral("(13)")),
             qPrintable(m_device->errorString()));
    QString all;
    for (const QList<QVariant> &m : messages)
        all += m.at(1).toString() + QLatin1Char('\n');
    QVERIFY2(all.contains(QStringLiteral(" TX(")) && all.contains(QStringLiteral(" RX(")),
             qPrintable(all));
    m_port->close();
}

void tst_TagExchange::lineVanishesAndComesBack()
{
    Tag *tag = addTag({{"name", "w"}, {"address", "70h"}, {"device_type", "uint16"}});
    QVERIFY(tag->write(42));
    QVERIFY(m_port->isOpened());
    // The adapter is pulled: the peer goes, and its device file with it.
    m_peer.kill();
    m_peer.waitForFinished(3000);
    tag->read();
    QVERIFY(tag->lastResult() != 1);
    tag->read();
    QVERIFY(!m_port->isOpened() || tag->lastResult() != 1);
    // Plugged in again: the next exchange reopens the line by itself.
    QVERIFY(startPeer());
    QElapsedTimer timer;
    timer.start();
    int state = 0;
    while (state != 1 && timer.elapsed() < 5000) {
        tag->read();
        state = tag->lastResult();
    }
    QCOMPARE(state, 1);
    QVERIFY(m_port->isOpened());
}

void tst_TagExchange::loggerTap()
{
    ModbusLogger *logger = ModbusLogger::instance();
    QSignalSpy rx(logger, &ModbusLogger::rxData);
    QSignalSpy tx(logger, &ModbusLogger::txData);
    Tag *tag = addTag({{"name", "t"}, {"address", "80h"}, {"device_type", "uint16"}});
    tag->read();
    QCOMPARE(tx.count(), 1);
    QCOMPARE(rx.count(), 1);
    QVERIFY(
        tx.at(0).at(0).toString().contains(QStringLiteral("linedevt TX(-/-): 01 03 00 80 00 01")));
    QVERIFY(rx.at(0).at(0).toString().contains(QStringLiteral(" RX(")));
    ModbusLogger::release();
}

QTEST_GUILESS_MAIN(tst_TagExchange)
#include "tst_tagexchange.moc"
