#include "../sim/simprocess.h"
#include "app/messagebox.h"
#include "config/devicetemplatecatalog.h"
#include "discovery/scanner.h"
#include "discovery/scanresultimporter.h"
#include "exchange/modbuslogger.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QSignalSpy>
#include <QtTest>

// Bus scans against the simulated line of tests/discovery/data/scan-line.json:
// instruments at 1, 2, 4 and 5 answer function 17; the one at 7 answers
// only register reads. The silent addresses cost a response timeout each,
// so the ranges stay narrow.
class tst_Scanner : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();

    void findsTheInstruments_data();
    void findsTheInstruments();
    void appendedDevicesPassTheirCheck();
    void rtuScanOverAsciiFindsNothing();
    void cancelStopsBetweenAddresses();
    void scanClosesAnOpenPort();
    void lineThatCannotBeOpened_data();
    void lineThatCannotBeOpened();
    void stepsWithoutProbes();

private:
    bool startSim(const QStringList &extra = {});
    ScanTask task(int speed, int from, int to, bool f17, bool f3) const;

    SimProcess *m_sim = nullptr;
};

static const SerialPortProtocol line8N1(8, QLatin1Char('N'), 1);

bool tst_Scanner::startSim(const QStringList &extra)
{
    delete m_sim;
    m_sim = new SimProcess;
    QString why;
    const QStringList args = QStringList {QStringLiteral("--scenario"),
                                          QStringLiteral(DISCOVERY_DATA_DIR "/scan-line.json")}
        + extra;
    if (!m_sim->start(args, &why)) {
        qWarning() << "simulator did not start:" << why;
        return false;
    }
    return true;
}

ScanTask tst_Scanner::task(int speed, int from, int to, bool f17, bool f3) const
{
    ScanTask t;
    t.ports << m_sim->path();
    t.speeds << speed;
    t.protocols << line8N1;
    t.useFunction17 = f17;
    t.useFunction3 = f3;
    t.function3Register = 0;
    t.function3Count = 1;
    t.fromAddress = from;
    t.toAddress = to;
    return t;
}

void tst_Scanner::initTestCase()
{
    qRegisterMetaType<SerialPortSettings>();
    qRegisterMetaType<FoundedDevice>();
    DeviceTemplateCatalog::instance()->loadTemplates(QString());
}

void tst_Scanner::cleanup()
{
    delete m_sim;
    m_sim = nullptr;
}

void tst_Scanner::findsTheInstruments_data()
{
    QTest::addColumn<int>("baud");
    QTest::addColumn<int>("function");
    QTest::addColumn<QList<int>>("addresses");

    const QList<int> f17 {1, 2, 4, 5};
    const QList<int> f3 {1, 2, 4, 5, 7};
    QTest::newRow("9600, function 17") << 9600 << 17 << f17;
    QTest::newRow("9600, function 3") << 9600 << 3 << f3;
    QTest::newRow("115200, function 17") << 115200 << 17 << f17;
    QTest::newRow("115200, function 3") << 115200 << 3 << f3;
}

void tst_Scanner::findsTheInstruments()
{
    QFETCH(int, baud);
    QFETCH(int, function);
    QFETCH(QList<int>, addresses);
    QVERIFY(startSim({QStringLiteral("--baud"), QString::number(baud)}));

    Scanner scanner;
    scanner.setScanTask(task(baud, 1, 7, function == 17, function == 3));
    QSignalSpy founded(&scanner, &Scanner::deviceFounded);
    QSignalSpy txLines(ModbusLogger::instance(), &ModbusLogger::txData);
    scanner.start();

    const SerialPortSettings settings(m_sim->path(), baud, line8N1);
    const ScanResult result = scanner.result();
    QCOMPARE(result.keys(), QList<SerialPortSettings> {settings});
    QCOMPARE(result.value(settings).keys(), addresses);
    QCOMPARE(founded.size(), int(addresses.size()));
    for (int i = 0; i < founded.size(); ++i) {
        const FoundedDevice device = founded.at(i).at(1).value<FoundedDevice>();
        QCOMPARE(device.address, addresses.at(i));
        QCOMPARE(device.function, function);
        QCOMPARE(device.settings(), settings);
        QCOMPARE(device, result.value(settings).value(device.address));
        if (function == 3) {
            // One register: the value, no reply bytes.
            QVERIFY(device.reply.isEmpty());
        } else {
            QCOMPARE(device.slaveId(), device.address == 4 ? -1 : device.address);
        }
    }
    if (function == 17) {
        const QMap<int, FoundedDevice> devices = result.value(settings);
        QVERIFY(
            devices.value(1).replyPayload().startsWith("Zolt-51 N051 2019 pH 51104-03 29.05.2019"));
        QCOMPARE(devices.value(2).replyPayload(), QByteArray("Dorv-4 level 40207-02 07:11:2022"));
        QVERIFY(devices.value(5).replyPayload().startsWith("Tesk-6 "));
    }
    QCOMPARE(scanner.stepCount(), 7);
    QCOMPARE(scanner.progressMaximum(), 6);
    // Every request reaches the traffic tap, marked with the scan's line.
    QCOMPARE(txLines.size(), 7);
    const QString context
        = QStringLiteral(" SCAN %1/%2/8N1 TX(-/-): ").arg(m_sim->path()).arg(baud);
    QVERIFY2(txLines.at(0).at(0).toString().contains(context),
             qPrintable(txLines.at(0).at(0).toString()));
    QVERIFY(!scanner.progressDialog());
}

// Both probes on: who answers 17 is listed once, with 17; the register
// instrument comes through function 3. Every device made from the hits
// then passes its own identification check.
void tst_Scanner::appendedDevicesPassTheirCheck()
{
    QVERIFY(startSim({QStringLiteral("--baud"), QStringLiteral("19200")}));
    Scanner scanner;
    scanner.setScanTask(task(19200, 4, 7, true, true));
    scanner.start();
    const SerialPortSettings settings(m_sim->path(), 19200, line8N1);
    const QMap<int, FoundedDevice> found = scanner.result().value(settings);
    QCOMPARE(found.keys(), (QList<int> {4, 5, 7}));
    QCOMPARE(found.value(4).function, 17);
    QCOMPARE(found.value(5).function, 17);
    QCOMPARE(found.value(7).function, 3);

    // The instruments at 1 and 2 (on a limit of the date table) from a second, quick pass.
    Scanner first;
    first.setScanTask(task(19200, 1, 2, true, false));
    first.start();
    ScanResult result = scanner.result();
    for (const FoundedDevice &device : first.result().value(settings))
        result[settings].insert(device.address, device);

    Server server;
    ScanResultImporter importer(&server);
    const QList<Device *> devices = importer.append(result);
    QCOMPARE(devices.size(), 5);
    Port *port = server.portByName(ScanResultImporter::portName(settings));
    QVERIFY(port);
    QCOMPARE(port->serialName(), m_sim->path());

    const QMap<int, QString> templates {{1, QStringLiteral("Zolt-51v2")},
                                        {2, QStringLiteral("Dorv-4v2")},
                                        {4, QStringLiteral("Marn-32MKv2")},
                                        {5, QStringLiteral("Tesk-6v3")},
                                        {7, QStringLiteral("Custom")}};
    for (auto it = templates.cbegin(); it != templates.cend(); ++it) {
        Device *device = port->device(it.key());
        QVERIFY2(device, qPrintable(QString::number(it.key())));
        QCOMPARE(device->deviceTemplateName(), it.value());
        // A device that nobody checked yet: its id comes from the scan only.
        device->checkOffDevice();
        device->setRequestTimeout(1);
        QVERIFY2(device->checkDevice(),
                 qPrintable(device->name() + QStringLiteral(": ") + device->errorString()));
        QVERIFY(device->deviceId() != 0);
    }
    QCOMPARE(port->device(2)->deviceFirmwareDate(), port->device(2)->firmwareDate());
    port->close();
}

void tst_Scanner::rtuScanOverAsciiFindsNothing()
{
    QVERIFY(startSim({QStringLiteral("--protocol"), QStringLiteral("ascii")}));
    Scanner rtu;
    rtu.setScanTask(task(9600, 1, 2, true, false));
    rtu.start();
    QVERIFY(rtu.result().isEmpty());
    QCOMPARE(rtu.stepCount(), 2);

    // The same line in its own mode.
    Scanner ascii;
    ScanTask t = task(9600, 1, 2, true, false);
    t.ascii = true;
    t.delimiter = 10;
    ascii.setScanTask(t);
    ascii.start();
    const QMap<int, FoundedDevice> found
        = ascii.result().value(SerialPortSettings(m_sim->path(), 9600, line8N1));
    QCOMPARE(found.keys(), (QList<int> {1, 2}));
    QVERIFY(found.value(1).ascii);
}

void tst_Scanner::cancelStopsBetweenAddresses()
{
    QVERIFY(startSim());
    Scanner scanner;
    scanner.setScanTask(task(9600, 1, 8, true, false));
    QSignalSpy stopped(&scanner, &Scanner::stopped);
    QSignalSpy finished(&scanner, &Scanner::finished);
    // As a user pressing Cancel in the dialog while the first hit comes in.
    connect(&scanner, &Scanner::deviceFounded, &scanner, [&scanner]() {
        QVERIFY(scanner.progressDialog());
        scanner.progressDialog()->cancel();
    });
    QElapsedTimer clock;
    clock.start();
    scanner.start();
    // Address 2 would answer at once, but is never asked; address 3 would cost a timeout.
    QVERIFY2(clock.elapsed() < 400, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(scanner.stepCount(), 1);
    QCOMPARE(scanner.result().value(SerialPortSettings(m_sim->path(), 9600, line8N1)).keys(),
             QList<int> {1});
    QCOMPARE(stopped.size(), 1);
    QCOMPARE(finished.size(), 0);
    QVERIFY(!scanner.progressDialog());
}

// The line cannot have two users: a scan closes the tree's port on it, and
// the device on that port opens it again on its next exchange.
void tst_Scanner::scanClosesAnOpenPort()
{
    QVERIFY(startSim());
    Server server;
    Port *port = server.addPort(QStringLiteral("line"));
    port->setSerialName(m_sim->path());
    port->setBaudrate(9600);
    port->setParity(QLatin1Char('N'));
    port->setDatabits(8);
    port->setStopbits(1);
    Device *device = port->addDevice(QStringLiteral("Dorv"));
    device->setAddress(2);
    device->setRequestTimeout(1);
    QByteArray out;
    QCOMPARE(device->read(QStringLiteral("reg0"), 0, 3, 2, out), int(ServerItem::ResultGood));
    QVERIFY(port->isOpened());

    Scanner scanner;
    scanner.setServer(&server);
    scanner.setScanTask(task(9600, 2, 2, true, false));
    scanner.start();
    QCOMPARE(scanner.foundCount(), 1);
    QVERIFY(!port->isOpened());

    QCOMPARE(device->read(QStringLiteral("reg0"), 0, 3, 2, out), int(ServerItem::ResultGood));
    QVERIFY(port->isOpened());
    port->close();
}

void tst_Scanner::lineThatCannotBeOpened_data()
{
    QTest::addColumn<bool>("answer");
    QTest::addColumn<int>("questions");
    // Two speeds of two framings each.
    QTest::newRow("yes goes on with the next framing") << true << 4;
    QTest::newRow("no leaves the framings of this speed") << false << 2;
}

void tst_Scanner::lineThatCannotBeOpened()
{
    QFETCH(bool, answer);
    ScanTask t;
    t.ports << QStringLiteral("/nonexistent/ttyX");
    t.speeds << 9600 << 19200;
    t.protocols << line8N1 << SerialPortProtocol(8, QLatin1Char('N'), 2);
    t.fromAddress = 1;
    t.toAddress = 3;
    QList<MessageBox::Request> asked;
    MessageBox::setHook([&](const MessageBox::Request &request) {
        asked << request;
        return answer ? QMessageBox::Yes : QMessageBox::No;
    });
    Scanner scanner;
    scanner.setScanTask(t);
    scanner.start();
    MessageBox::setHook(MessageBox::Hook());
    QTEST(int(asked.size()), "questions");
    QCOMPARE(asked.first().title, QStringLiteral("Confirmation required"));
    QVERIFY2(
        asked.first().text.startsWith(QStringLiteral("Error opening port '/nonexistent/ttyX' (")),
        qPrintable(asked.first().text));
    QVERIFY(asked.first().text.endsWith(QStringLiteral("), continue?")));
    QCOMPARE(asked.first().buttons, QMessageBox::Yes | QMessageBox::No);
    QVERIFY(scanner.result().isEmpty());
    QCOMPARE(scanner.stepCount(), 0);
    QCOMPARE(scanner.progressMaximum(), 3 * 2 * 1 * 2 - 1);
}

void tst_Scanner::stepsWithoutProbes()
{
    QVERIFY(startSim());
    // Neither function: every address is stepped through, none asked.
    Scanner idle;
    idle.setScanTask(task(9600, 1, 40, false, false));
    QElapsedTimer clock;
    clock.start();
    idle.start();
    QCOMPARE(idle.progressMaximum(), -1);
    QCOMPARE(idle.stepCount(), 40);
    QVERIFY(idle.result().isEmpty());
    QVERIFY(clock.elapsed() < 2000);

    // A range upside down makes no probe at all.
    Scanner reversed;
    reversed.setScanTask(task(9600, 5, 1, true, false));
    reversed.start();
    QCOMPARE(reversed.stepCount(), 0);
    QVERIFY(reversed.result().isEmpty());
}

QTEST_MAIN(tst_Scanner)
#include "tst_scanner.moc"
