#include "config/devicetemplatecatalog.h"
#include "discovery/scanresultimporter.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"

#include <QSignalSpy>
#include <QtTest>

// Scan hits turned into ports and devices: reply parsing, the template by
// firmware date, port naming and an address that is already taken.
class tst_ScanResultImporter : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();

    void identify_data();
    void identify();
    void templateByDate_data();
    void templateByDate();

    void appendMakesPortsAndDevices();
    void existingPortKeepsItsSettings();
    void takenAddress_data();
    void takenAddress();
};

static QByteArray reply17(int slaveId, const QByteArray &text)
{
    return QByteArray(1, char(slaveId)) + char(0xFF) + text;
}

static FoundedDevice hit17(const SerialPortSettings &settings, int address, const QByteArray &text,
                           int slaveId = -1)
{
    FoundedDevice device(settings, false, address);
    device.function = 17;
    device.reply = reply17(slaveId < 0 ? address : slaveId, text);
    return device;
}

void tst_ScanResultImporter::initTestCase()
{
    qRegisterMetaType<Port *>();
    qRegisterMetaType<Device *>();
    DeviceTemplateCatalog::instance()->loadTemplates(QString());
    QVERIFY(
        !DeviceTemplateCatalog::instance()->template_map(QStringLiteral("Zolt-51v2")).isEmpty());
}

void tst_ScanResultImporter::identify_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("proper");
    QTest::addColumn<QString>("deviceName");
    QTest::addColumn<QString>("comment");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("templateName");

    QTest::newRow("long form") << reply17(5, "Zolt-51 N051 2019 pH 51104-03 29:05:2019 RS485")
                               << true << "Zolt-51_adr5"
                               << "N051" << QDate(2019, 5, 29) << "Zolt-51v2";
    QTest::newRow("short form, firmware number then date")
        << reply17(5, "Marn-32M cond 32104-01 17.06.2018") << true << "Marn-32M_adr5"
        << "cond" << QDate(2018, 6, 17) << "Marn-32M";
    QTest::newRow("date third") << reply17(5, "Tesk-6 T 24.08.2022") << true << "Tesk-6_adr5"
                                << "T" << QDate(2022, 8, 24) << "Tesk-6v3";
    QTest::newRow("zero padding") << reply17(5, QByteArray("Dorv-4 L 07.11.2022\0\0", 21)) << true
                                  << "Dorv-4_adr5"
                                  << "L" << QDate(2022, 11, 7) << "Dorv-4v2";
    QTest::newRow("compact name") << reply17(5, "Zolt30") << true << "Zolt30_adr5" << QString()
                                  << QDate() << "Zolt30";
    QTest::newRow("invalid date keeps the model")
        << reply17(5, "Dorv-4 L 31.11.2022") << true << "Dorv-4_adr5"
        << "L" << QDate() << "Dorv-4";
    QTest::newRow("two tokens, no date") << reply17(5, "Zolt-21 pH") << true << "Zolt-21_adr5"
                                         << "pH" << QDate() << "Zolt-21";
    QTest::newRow("no blank, unknown name")
        << reply17(5, "ABCDEF") << false << "device_5" << QString() << QDate() << "Custom";
    QTest::newRow("too short") << reply17(5, "A ") << false << "device_5" << QString() << QDate()
                               << "Custom";
    QTest::newRow("register bytes")
        << QByteArray("\x00\x07", 2) << false << "device_5" << QString() << QDate() << "Custom";
    QTest::newRow("empty") << QByteArray() << false << "device_5" << QString() << QDate()
                           << "Custom";
}

void tst_ScanResultImporter::identify()
{
    QFETCH(QByteArray, reply);
    const ScanResultImporter::Identity identity = ScanResultImporter::identify(5, reply);
    QTEST(identity.proper, "proper");
    QTEST(identity.deviceName, "deviceName");
    QTEST(identity.comment, "comment");
    QTEST(identity.date, "date");
    QTEST(identity.templateName, "templateName");
}

void tst_ScanResultImporter::templateByDate_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("templateName");

    QTest::newRow("before the first limit") << "Zolt-51" << QDate(2018, 3, 19) << "Zolt-51";
    QTest::newRow("on the first limit") << "Zolt-51" << QDate(2018, 3, 20) << "Zolt-51v1";
    QTest::newRow("before the second limit") << "Zolt-51" << QDate(2019, 5, 28) << "Zolt-51v1";
    QTest::newRow("on the second limit") << "Zolt-51" << QDate(2019, 5, 29) << "Zolt-51v2";
    QTest::newRow("Tesk-6 middle") << "Tesk-6" << QDate(2021, 1, 1) << "Tesk-6v2";
    QTest::newRow("Marn-32MK is not Marn-32M") << "Marn-32MK" << QDate(2019, 1, 1) << "Marn-32MK";
    QTest::newRow("Marn-32M after its limit") << "Marn-32M" << QDate(2019, 1, 1) << "Marn-32Mv2";
    QTest::newRow("Quil-72 new year") << "Quil-72" << QDate(2024, 1, 1) << "Quil-72v2";
    QTest::newRow("not in the table") << "Hevi-7" << QDate(2030, 1, 1) << "Hevi-7";
    QTest::newRow("no date") << "Zolt-51" << QDate() << "Zolt-51";
}

void tst_ScanResultImporter::templateByDate()
{
    QFETCH(QString, model);
    QFETCH(QDate, date);
    QTEST(ScanResultImporter::templateByDate(model, date), "templateName");
}

void tst_ScanResultImporter::appendMakesPortsAndDevices()
{
    Server server;
    const SerialPortSettings rtu(QStringLiteral("/dev/ttyUSB0"), 19200,
                                 SerialPortProtocol(8, QLatin1Char('E'), 1));
    const SerialPortSettings other(QStringLiteral("/dev/ttyUSB1"), 9600,
                                   SerialPortProtocol(8, QLatin1Char('N'), 2));
    ScanResult result;
    result[rtu].insert(7, hit17(rtu, 7, "Zolt-51 N051 2019 pH 51104-03 29.05.2019 RS485", 0xFF));
    result[rtu].insert(3, hit17(rtu, 3, "Dorv-4 level 40207-02 07:11:2022"));
    FoundedDevice registerHit(other, true, 9);
    registerHit.function = 3;
    registerHit.registerValue = 0x1234;
    result[other].insert(9, registerHit);

    ScanResultImporter importer(&server);
    QSignalSpy portsAdded(&importer, &ScanResultImporter::portAdded);
    QSignalSpy devicesAdded(&importer, &ScanResultImporter::deviceAdded);
    const QList<Device *> devices = importer.append(result);
    QCOMPARE(devices.size(), 3);
    QCOMPARE(portsAdded.size(), 2);
    QCOMPARE(devicesAdded.size(), 3);

    Port *port = server.portByName(QStringLiteral("/dev/ttyUSB0_19200_8E1"));
    QVERIFY(port);
    QCOMPARE(port->serialName(), QStringLiteral("/dev/ttyUSB0"));
    QCOMPARE(port->baudrate(), 19200);
    QCOMPARE(port->parity(), QLatin1Char('E'));
    QCOMPARE(port->dataBits(), 8);
    QCOMPARE(port->stopBits(), 1);
    // Ascending addresses.
    QCOMPARE(port->devices().at(0)->name(), QStringLiteral("Dorv-4_adr3"));
    QCOMPARE(port->devices().at(1)->name(), QStringLiteral("Zolt-51_adr7"));

    Device *dorv = port->device(3);
    QCOMPARE(dorv->deviceTemplateName(), QStringLiteral("Dorv-4v2"));
    QCOMPARE(dorv->deviceModbusID(), QStringLiteral("Dorv-4"));
    QCOMPARE(dorv->firmwareDate(), QStringLiteral("07.11.2022"));
    QCOMPARE(dorv->deviceFirmwareDate(), QStringLiteral("07.11.2022"));
    QCOMPARE(dorv->firmwareNumber(), QStringLiteral("40207-02"));
    QCOMPARE(dorv->deviceId(), 3);
    QCOMPARE(dorv->address(), 3);
    QCOMPARE(dorv->protocolType(), int(Port::ProtocolRTU));
    QCOMPARE(dorv->portSettings(), rtu);
    QVERIFY(dorv->hasDeviceTagStateFlag(Device::Pasted));
    QVERIFY(!dorv->tags().isEmpty());

    Device *zolt = port->device(7);
    QCOMPARE(zolt->deviceTemplateName(), QStringLiteral("Zolt-51v2"));
    // A slave id of 0xFF still counts as checked.
    QCOMPARE(zolt->deviceId(), -1);
    QCOMPARE(zolt->replyText(), QStringLiteral("Zolt-51 N051 2019 pH 51104-03 29.05.2019 RS485"));

    Port *asciiPort = server.portByName(QStringLiteral("/dev/ttyUSB1_9600_8N2"));
    QVERIFY(asciiPort);
    Device *custom = asciiPort->device(9);
    QCOMPARE(custom->name(), QStringLiteral("device_9"));
    QCOMPARE(custom->deviceTemplateName(), QStringLiteral("Custom"));
    QCOMPARE(custom->protocolType(), int(Port::ProtocolASCII));
    // A register value proves nothing about the instrument.
    QCOMPARE(custom->deviceId(), 0);
}

void tst_ScanResultImporter::existingPortKeepsItsSettings()
{
    Server server;
    const SerialPortSettings settings(QStringLiteral("/dev/ttyS0"), 9600,
                                      SerialPortProtocol(8, QLatin1Char('N'), 2));
    Port *port = server.addPort(ScanResultImporter::portName(settings));
    port->setBaudrate(115200);
    port->setSerialName(QStringLiteral("/dev/ttyS5"));

    ScanResult result;
    result[settings].insert(1, hit17(settings, 1, "Tesk-6 T 01.01.2021"));
    ScanResultImporter importer(&server);
    QSignalSpy portsAdded(&importer, &ScanResultImporter::portAdded);
    QCOMPARE(importer.append(result).size(), 1);
    QCOMPARE(portsAdded.size(), 0);
    QCOMPARE(server.portCount(), 1);
    QCOMPARE(port->baudrate(), 115200);
    QCOMPARE(port->serialName(), QStringLiteral("/dev/ttyS5"));
    QCOMPARE(port->device(1)->deviceTemplateName(), QStringLiteral("Tesk-6v2"));
}

void tst_ScanResultImporter::takenAddress_data()
{
    QTest::addColumn<bool>("answer");
    QTest::newRow("cancel leaves the address") << false;
    QTest::newRow("yes adds another device") << true;
}

void tst_ScanResultImporter::takenAddress()
{
    QFETCH(bool, answer);
    Server server;
    const SerialPortSettings settings(QStringLiteral("/dev/ttyS0"), 9600,
                                      SerialPortProtocol(8, QLatin1Char('N'), 2));
    Port *port = server.addPort(ScanResultImporter::portName(settings));
    Device *existing = port->addDevice(QStringLiteral("mine"));
    existing->setAddress(4);
    existing->setComment(QStringLiteral("keep me"));

    ScanResult result;
    result[settings].insert(4, hit17(settings, 4, "Marn-32MK cond 26.08.2019"));
    result[settings].insert(5, hit17(settings, 5, "Marn-40 cond 22.05.2019"));

    QList<int> asked;
    ScanResultImporter importer(&server);
    importer.setClashQuestion([&](int address, const Port *on) {
        asked << address;
        return on == port && answer;
    });
    const QList<Device *> devices = importer.append(result);
    QCOMPARE(asked, QList<int> {4});
    QCOMPARE(devices.size(), answer ? 2 : 1);
    QCOMPARE(existing->comment(), QStringLiteral("keep me"));
    QCOMPARE(existing->name(), QStringLiteral("mine"));
    QCOMPARE(port->device(5)->deviceTemplateName(), QStringLiteral("Marn-40v2"));
    QCOMPARE(port->devices().size(), answer ? 3 : 2);
    if (answer)
        QCOMPARE(port->device(QStringLiteral("Marn-32MK_adr4"))->deviceTemplateName(),
                 QStringLiteral("Marn-32MKv2"));
}

QTEST_GUILESS_MAIN(tst_ScanResultImporter)
#include "tst_scanresultimporter.moc"
