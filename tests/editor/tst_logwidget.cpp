#include "app/guitestsupport.h"
#include "config/appsettings.h"
#include "editor/logwidget.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "testsupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>

// The traffic page of a device, on its own until the device editor hosts it.
class tst_LogWidget : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void onlyOwnAddress();
    void lineLimit();
    void searchShowsMatchInStatus();
    void saveToFile();

private:
    std::unique_ptr<ScopedWorkDir> m_dir;
    Server *m_server = nullptr;
    Device *m_device = nullptr;
};

void tst_LogWidget::initTestCase()
{
    WarningGuard::install();
}

void tst_LogWidget::init()
{
    m_dir = std::make_unique<ScopedWorkDir>();
    m_server = new Server;
    Port *port = m_server->addPort(QStringLiteral("p"));
    port->setSerialName(QStringLiteral("/dev/ttyUSB3"));
    m_device = port->addDevice(QStringLiteral("Zolt"));
    m_device->setAddress(4);
}

void tst_LogWidget::cleanup()
{
    MessageBox::setHook({});
    delete m_server;
    AppSettings::release();
    m_dir.reset();
    QVERIFY(WarningGuard::check());
}

void tst_LogWidget::onlyOwnAddress()
{
    LogWidget log(m_device);
    log.appendModbusMessage(4, QStringLiteral("tx: 04 03 00 00 00 01"));
    log.appendModbusMessage(5, QStringLiteral("tx: 05 03 00 00 00 01"));
    log.appendModbusMessage(4, QStringLiteral("rx: 04 03 02 00 07"));
    QCOMPARE(log.text(), QStringLiteral("tx: 04 03 00 00 00 01\nrx: 04 03 02 00 07"));
}

void tst_LogWidget::lineLimit()
{
    LogWidget log(m_device);
    QCOMPARE(log.linesCount(), 1000);
    log.setLinesCount(10);
    QCOMPARE(AppSettings::instance()->logViewLinesLimit(), 10);
    QCOMPARE(log.statusText(), QStringLiteral("Lines: 10"));
    for (int i = 0; i < 25; ++i)
        log.appendModbusMessage(4, QStringLiteral("line %1").arg(i));
    const QStringList lines = log.text().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 10);
    QCOMPARE(lines.first(), QStringLiteral("line 15"));
    QCOMPARE(lines.last(), QStringLiteral("line 24"));
    // A second page starts from the limit now in force.
    LogWidget other(m_device);
    QCOMPARE(other.findChild<QSpinBox *>(QStringLiteral("spnLines"))->value(), 10);
}

void tst_LogWidget::searchShowsMatchInStatus()
{
    LogWidget log(m_device);
    log.findChild<QLineEdit *>(QStringLiteral("txtSearch"))->setText(QStringLiteral("Timeout"));
    log.appendModbusMessage(4, QStringLiteral("tx: 04 03 00 00 00 01"));
    QVERIFY(log.statusText().isEmpty());
    log.appendModbusMessage(4, QStringLiteral("Timeout after 200 ms"));
    QCOMPARE(log.statusText(), QStringLiteral("Timeout after 200 ms"));
}

void tst_LogWidget::saveToFile()
{
    BoxRecorder boxes;
    LogWidget log(m_device);
    log.appendModbusMessage(4, QStringLiteral("tx: 04 03 00 00 00 01"));
    const QString proposed = log.proposedFileName();
    QVERIFY(proposed.startsWith(AppSettings::log_dir()));
    QVERIFY(QFileInfo(proposed).fileName().startsWith(QStringLiteral("Zolt_ttyUSB3-[4]_")));
    QVERIFY(proposed.endsWith(QStringLiteral(".log")));

    const QString file = m_dir->filePath(QStringLiteral("traffic.log"));
    QVERIFY(log.saveLogFile(file));
    QCOMPARE(readFile(file), QByteArray("tx: 04 03 00 00 00 01"));
    QVERIFY(log.statusText().contains(file));

    QVERIFY(!log.saveLogFile(m_dir->filePath(QStringLiteral("no/such/dir/x.log"))));
    QCOMPARE(boxes.requests.size(), 1);
    QCOMPARE(boxes.requests.first().title, QStringLiteral("Save report"));
}

QTEST_MAIN(tst_LogWidget)
#include "tst_logwidget.moc"
