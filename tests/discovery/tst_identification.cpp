#include "discovery/modbusidentity.h"
#include "fakeslave.h"
#include "modbus/modbusframe.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"

#include <QtTest>

// What a modbus_id asks for, and a device checked against scripted instruments.
class tst_Identification : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void grammar_data();
    void grammar();
    void function17_data();
    void function17();
    void firmwareDate_data();
    void firmwareDate();
    void registerForms();
    void hamiltonComparesText();
    void silentAddressIsNotFound();

private:
    void answer(const QByteArray &pdu);
    void answerFunction17(const QByteArray &payload);

    Server *m_server = nullptr;
    Port *m_port = nullptr;
    Device *m_device = nullptr;
    FakeSlave *m_slave = nullptr;
    QByteArray m_lastRequest;
};

static QByteArray withCrc(const QByteArray &frame)
{
    QByteArray out = frame;
    out.resize(frame.size() + 2);
    ModbusFrame::appendCrc(reinterpret_cast<uint8_t *>(out.data()), size_t(frame.size()));
    return out;
}

void tst_Identification::init()
{
    m_slave = new FakeSlave(FakeSlave::Rtu);
    m_server = new Server;
    m_port = m_server->addPort(QStringLiteral("line"));
    m_port->setSerialName(QString::fromLocal8Bit(m_slave->path()));
    m_device = m_port->addDevice(QStringLiteral("dev"));
    m_device->setAddress(5);
    m_device->setRequestTimeout(1);
    m_device->setResponceTimeout(150);
}

void tst_Identification::cleanup()
{
    delete m_server;
    delete m_slave;
    m_server = nullptr;
    m_slave = nullptr;
}

// Answers every request from address 5 with the given PDU.
void tst_Identification::answer(const QByteArray &pdu)
{
    m_slave->setHandler([this, pdu](const QByteArray &request) {
        m_lastRequest = request;
        return FakeSlave::Script {{withCrc(QByteArray(1, char(5)) + pdu), 0, -1}};
    });
}

void tst_Identification::answerFunction17(const QByteArray &payload)
{
    answer(QByteArray(1, char(0x11)) + QByteArray(1, char(payload.size())) + payload);
}

void tst_Identification::grammar_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("address");
    QTest::addColumn<int>("count");
    QTest::newRow("#F3#0") << "#F3#0" << int(ModbusIdentity::ReadRegisters) << 0 << 1;
    QTest::newRow("#F3#109#2") << "#F3#109#2" << int(ModbusIdentity::ReadRegisters) << 109 << 2;
    QTest::newRow("#F3#2002h") << "#F3#2002h" << int(ModbusIdentity::ReadRegisters) << 0x2002 << 1;
    QTest::newRow("#F3#0x2002") << "#F3#0x2002" << int(ModbusIdentity::ReadRegisters) << 0x2002
                                << 1;
    QTest::newRow("#F3#109#x") << "#F3#109#x" << int(ModbusIdentity::ReadRegisters) << 109 << 1;
    QTest::newRow("lower case mark")
        << "#f3#2000#4" << int(ModbusIdentity::ReadRegisters) << 2000 << 4;
    QTest::newRow("hamilton") << "EPHUM0" << int(ModbusIdentity::Hamilton) << 1031 << 8;
    QTest::newRow("hamilton lower") << "ephum0" << int(ModbusIdentity::Hamilton) << 1031 << 8;
    QTest::newRow("nengshi") << "Nengshi" << int(ModbusIdentity::Nengshi) << 0 << 10;
    QTest::newRow("y510") << "Y510-B" << int(ModbusIdentity::Y510B) << 2304 << 7;
    QTest::newRow("y610") << "Y610-B" << int(ModbusIdentity::Y610B) << 9728 << 6;
    QTest::newRow("function 17") << "Zolt-42" << int(ModbusIdentity::Function17) << 0 << 1;
}

void tst_Identification::grammar()
{
    QFETCH(QString, id);
    QFETCH(int, method);
    QFETCH(int, address);
    QFETCH(int, count);
    const ModbusIdentity identity = ModbusIdentity::parse(id);
    QCOMPARE(int(identity.method), method);
    QCOMPARE(identity.address, address);
    QCOMPARE(identity.count, count);
}

void tst_Identification::function17_data()
{
    QTest::addColumn<QString>("modbusId");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<bool>("result");
    QTest::addColumn<int>("deviceId");
    QTest::addColumn<QString>("firmware");
    QTest::addColumn<QString>("date");
    QTest::newRow("long form") << "Zolt-42"
                               << QByteArray("\x2a\xff"
                                             "Zolt-42 N123 2021 panel 12345-01 26:08:2019 rev2")
                               << true << 42 << "12345-01"
                               << "26.08.2019";
    QTest::newRow("short form") << "Marn-32"
                                << QByteArray("\x07\xff"
                                              "Marn-32 MK 54321-02 01:02:2020")
                                << true << 7 << "54321-02"
                                << "01.02.2020";
    QTest::newRow("date only") << "Dorv-4"
                               << QByteArray("\x07\xff"
                                             "Dorv-4 v1 03:04:2021")
                               << true << 7 << ""
                               << "03.04.2021";
    QTest::newRow("another model") << "Zolt-42"
                                   << QByteArray("\x07\xff"
                                                 "Marn-32 54321-02 01.02.2020")
                                   << false << 0 << ""
                                   << "";
    QTest::newRow("case matters") << "zolt-42"
                                  << QByteArray("\x07\xff"
                                                "Zolt-42 54321-02 01.02.2020")
                                  << false << 0 << ""
                                  << "";
    QTest::newRow("compact name") << "Zolt30"
                                  << QByteArray("\x10\xff"
                                                "Zolt30")
                                  << true << 16 << ""
                                  << "";
    QTest::newRow("no blank, not compact") << "Quil"
                                           << QByteArray("\x10\xff"
                                                         "Quil")
                                           << false << 0 << ""
                                           << "";
    QTest::newRow("id 0xFF counts as checked") << "Fenn-3"
                                               << QByteArray("\xff\xff"
                                                             "Fenn-3 v2 12345-01 01.01.2020")
                                               << true << -1 << "12345-01"
                                               << "01.01.2020";
    QTest::newRow("id 0 stays unchecked") << "Fenn-3"
                                          << QByteArray("\x00\xff"
                                                        "Fenn-3 v2 12345-01 01.01.2020",
                                                        31)
                                          << true << 0 << "12345-01"
                                          << "01.01.2020";
    QTest::newRow("too short") << "Z" << QByteArray("\x01") << false << 0 << ""
                               << "";
}

void tst_Identification::function17()
{
    QFETCH(QString, modbusId);
    QFETCH(QByteArray, payload);
    QFETCH(bool, result);
    QFETCH(int, deviceId);
    QFETCH(QString, firmware);
    QFETCH(QString, date);
    m_device->setDeviceModbusID(modbusId);
    answerFunction17(payload);
    QCOMPARE(m_device->checkDevice(), result);
    QCOMPARE(m_device->deviceID(), deviceId);
    QCOMPARE(m_device->firmwareNumber(), firmware);
    QCOMPARE(m_device->deviceFirmwareDate(), date);
    QCOMPARE(quint8(m_lastRequest.at(1)), quint8(0x11));
    if (!result)
        QVERIFY(!m_device->errorString().isEmpty());
}

void tst_Identification::firmwareDate_data()
{
    QTest::addColumn<QString>("templateDate");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("error");
    QTest::newRow("equal passes") << "26.08.2019"
                                  << QByteArray("\x07\xff"
                                                "Marn-32MK v2 12345-01 26:08:2019")
                                  << true << "";
    QTest::newRow("newer passes") << "26.08.2019"
                                  << QByteArray("\x07\xff"
                                                "Marn-32MK v2 12345-01 27.08.2019")
                                  << true << "";
    QTest::newRow("older is reported") << "26.08.2019"
                                       << QByteArray("\x07\xff"
                                                     "Marn-32MK v2 12345-01 25.08.2019")
                                       << false << "is less than template date";
    QTest::newRow("no date") << "26.08.2019"
                             << QByteArray("\x07\xff"
                                           "Marn-32MK v2 12345-01 soon")
                             << false << "Invalid device firmware date";
}

void tst_Identification::firmwareDate()
{
    QFETCH(QString, templateDate);
    QFETCH(QByteArray, payload);
    QFETCH(bool, result);
    QFETCH(QString, error);
    m_device->setDeviceModbusID(QStringLiteral("Marn-32MK"));
    m_device->setFirmwareDate(templateDate);
    answerFunction17(payload);
    QCOMPARE(m_device->checkDevice(), result);
    // The device answers: it stays checked and its state good, only older than its template.
    QCOMPARE(m_device->deviceID(), 7);
    QCOMPARE(m_device->lastResult(), 1);
    QVERIFY2(m_device->errorString().contains(error), qPrintable(m_device->errorString()));
}

void tst_Identification::registerForms()
{
    m_device->setDeviceModbusID(QStringLiteral("#F3#109#2"));
    answer(QByteArray::fromHex("0304000a000b"));
    QVERIFY(m_device->checkDevice());
    QCOMPARE(m_device->deviceID(), 127);
    QCOMPARE(m_device->replyText(), QStringLiteral("custom"));
    // Function 3 at 109 for 2 registers.
    QCOMPARE(m_lastRequest.left(6), QByteArray::fromHex("0503006d0002"));

    m_device->setDeviceModbusID(QStringLiteral("Nengshi"));
    // Register 1 holds the unit code: 10 is a pH sensor.
    answer(QByteArray::fromHex("0414") + QByteArray::fromHex("0000000a") + QByteArray(16, '\0'));
    QVERIFY(m_device->checkDevice());
    QCOMPARE(m_device->deviceID(), 175);
    QCOMPARE(m_device->replyText(), QStringLiteral("Nengshi-pH"));
    QCOMPARE(m_lastRequest.left(6), QByteArray::fromHex("05040000000a"));
}

void tst_Identification::hamiltonComparesText()
{
    m_device->setDeviceModbusID(QStringLiteral("EPHUM0"));
    // Registers carry their two characters low byte first in memory: "PE" "UH" "0M" ...
    answer(QByteArray::fromHex("0310") + QByteArray("PEUH0M\0\0\0\0\0\0\0\0\0\0", 16));
    QVERIFY(m_device->checkDevice());
    QCOMPARE(m_device->deviceID(), 31);
    answer(QByteArray::fromHex("0310") + QByteArray("XXXXXXXXXXXXXXXX", 16));
    QVERIFY(!m_device->checkDevice());
    QVERIFY(m_device->errorString().contains(QStringLiteral("It's was found")));
}

void tst_Identification::silentAddressIsNotFound()
{
    m_device->setDeviceModbusID(QStringLiteral("Zolt-21"));
    m_slave->setHandler([](const QByteArray &) { return FakeSlave::Script(); });
    QVERIFY(!m_device->checkDevice());
    QCOMPARE(m_device->deviceID(), 0);
    QCOMPARE(m_device->lastResult(), 5);
    QVERIFY2(m_device->errorString().startsWith(
                 QStringLiteral("*** Not found Zolt-21 at address 5 via")),
             qPrintable(m_device->errorString()));
}

QTEST_GUILESS_MAIN(tst_Identification)
#include "tst_identification.moc"
