#include "app/guitestsupport.h"
#include "app/mainwindow.h"
#include "config/appsettings.h"
#include "config/devicetemplatecatalog.h"
#include "discovery/scanresultimporter.h"
#include "discovery/scanwidget.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "testsupport.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTreeWidget>

#include <memory>

// The scan page inside the main window: hits appended to the tree, an
// address already taken, and the scan settings kept with the configuration.
class tst_ScanAppend : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void pageIsTheScanningTab();
    void appendedHitsEnterTheTree();
    void takenAddressIsAsked();
    void appendButtonTakesCheckedHits();
    void scanSettingsGoWithTheConfiguration();

private:
    std::unique_ptr<ScopedWorkDir> m_dir;
    std::unique_ptr<MainWindow> m_window;
};

static const SerialPortSettings line(QStringLiteral("/dev/ttyUSB3"), 19200,
                                     SerialPortProtocol(8, QLatin1Char('N'), 2));

static FoundedDevice hit17(int address, const QByteArray &text)
{
    FoundedDevice device(line, false, address);
    device.function = 17;
    device.reply = QByteArray(1, char(address)) + char(0xFF) + text;
    return device;
}

void tst_ScanAppend::initTestCase()
{
    WarningGuard::install();
}

void tst_ScanAppend::init()
{
    m_dir = std::make_unique<ScopedWorkDir>();
    DeviceTemplateCatalog::instance()->loadTemplates(AppSettings::templates_dir());
    m_window = std::make_unique<MainWindow>();
}

void tst_ScanAppend::cleanup()
{
    MessageBox::setHook({});
    m_window.reset();
    AppSettings::release();
    DeviceTemplateCatalog::release();
    m_dir.reset();
    QVERIFY(WarningGuard::check());
}

void tst_ScanAppend::pageIsTheScanningTab()
{
    auto *tabs = m_window->findChild<QTabWidget *>(QStringLiteral("mainTabWidget"));
    QVERIFY(tabs);
    QCOMPARE(tabs->tabText(MainWindow::TabScan), QStringLiteral("Scanning"));
    QVERIFY(tabs->widget(MainWindow::TabScan)->isAncestorOf(m_window->scanWidget()));
}

void tst_ScanAppend::appendedHitsEnterTheTree()
{
    BoxRecorder boxes;
    ScanResult result;
    // The Dorv-4 firmware is dated on the limit of the newer template.
    result[line].insert(3, hit17(3, "Dorv-4 level 40207-02 07:11:2022"));
    result[line].insert(8, hit17(8, "Zolt-51 N051 2019 pH 51104-03 28.05.2019 RS485"));
    m_window->appendScannedDevices(result);

    Port *port = m_window->server()->portByName(ScanResultImporter::portName(line));
    QVERIFY(port);
    QCOMPARE(port->serialName(), line.name);
    QCOMPARE(port->baudrate(), 19200);
    QVERIFY(m_window->treeItem(port));
    Device *dorv = port->device(3);
    QVERIFY(dorv);
    QCOMPARE(dorv->name(), QStringLiteral("Dorv-4_adr3"));
    QCOMPARE(dorv->deviceTemplateName(), QStringLiteral("Dorv-4v2"));
    QVERIFY(m_window->treeItem(dorv));
    QCOMPARE(port->device(8)->deviceTemplateName(), QStringLiteral("Zolt-51v1"));
    QVERIFY(m_window->isWindowModified());

    QCOMPARE(boxes.requests.size(), 1);
    QCOMPARE(boxes.requests.at(0).title, QStringLiteral("Information"));
    QCOMPARE(boxes.requests.at(0).text, QStringLiteral("2 device(s) appended"));
}

void tst_ScanAppend::takenAddressIsAsked()
{
    ScanResult result;
    result[line].insert(3, hit17(3, "Dorv-4 level 40207-02 07:11:2022"));
    {
        BoxRecorder boxes;
        m_window->appendScannedDevices(result);
    }
    Port *port = m_window->server()->portByName(ScanResultImporter::portName(line));
    QVERIFY(port);

    BoxRecorder boxes;
    boxes.answers << QMessageBox::Cancel;
    m_window->appendScannedDevices(result);
    QCOMPARE(port->devices().size(), 1);
    QCOMPARE(boxes.requests.size(), 2);
    const MessageBox::Request &asked = boxes.requests.at(0);
    QCOMPARE(asked.text,
             QStringLiteral("device with address 3 already exists on port %1. To add device?")
                 .arg(port->name()));
    QCOMPARE(asked.buttons, QMessageBox::Yes | QMessageBox::Cancel);
    QCOMPARE(asked.defaultButton, QMessageBox::Yes);
    QCOMPARE(boxes.requests.at(1).title, QStringLiteral("Warning"));
    QCOMPARE(boxes.requests.at(1).text, QStringLiteral("No devices were appended"));

    // Yes, the default, adds a second device at the address.
    boxes.requests.clear();
    m_window->appendScannedDevices(result);
    QCOMPARE(port->devices().size(), 2);
    QCOMPARE(boxes.requests.last().text, QStringLiteral("1 device(s) appended"));
}

void tst_ScanAppend::appendButtonTakesCheckedHits()
{
    BoxRecorder boxes;
    ScanResult result;
    result[line].insert(3, hit17(3, "Dorv-4 level 40207-02 07:11:2022"));
    result[line].insert(4, hit17(4, "Tesk-6 T 24.08.2022"));
    ScanWidget *page = m_window->scanWidget();
    page->setResult(result);
    auto *tree = page->findChild<QTreeWidget *>(QStringLiteral("treeWidget"));
    tree->topLevelItem(0)->child(0)->setCheckState(1, Qt::Unchecked);
    page->findChild<QPushButton *>(QStringLiteral("appendButton"))->click();
    Port *port = m_window->server()->portByName(ScanResultImporter::portName(line));
    QVERIFY(port);
    QCOMPARE(port->devices().size(), 1);
    QCOMPARE(port->device(4)->deviceTemplateName(), QStringLiteral("Tesk-6v3"));

    // A double click appends the one device, checked or not.
    emit tree->itemDoubleClicked(tree->topLevelItem(0)->child(0), 1);
    QCOMPARE(port->devices().size(), 2);
    QVERIFY(port->device(3));
}

void tst_ScanAppend::scanSettingsGoWithTheConfiguration()
{
    BoxRecorder boxes;
    ScanWidget *page = m_window->scanWidget();
    page->findChild<QSpinBox *>(QStringLiteral("endAddrSpin"))->setValue(40);
    page->findChild<QSpinBox *>(QStringLiteral("startAddrSpin"))->setValue(30);
    page->findChild<QCheckBox *>(QStringLiteral("func3CheckBox"))->setChecked(true);
    page->findChild<QCheckBox *>(QStringLiteral("checkBox115200"))->setChecked(true);

    // A configuration needs a tree to load.
    m_window->addPortInTree(m_window->server()->addPort(QStringLiteral("Port 1")));
    const QString file = m_dir->filePath(QStringLiteral("cfg/scan.cfg"));
    QVERIFY(m_window->saveAsFile(file));
    const QVariantMap saved = AppSettings::instance()->scanSettings();
    QCOMPARE(saved.value(QStringLiteral("address_from")).toInt(), 30);
    QCOMPARE(saved.value(QStringLiteral("use_3_func")).toBool(), true);

    page->findChild<QSpinBox *>(QStringLiteral("startAddrSpin"))->setValue(1);
    page->findChild<QCheckBox *>(QStringLiteral("checkBox115200"))->setChecked(false);
    QVERIFY(m_window->loadConfigFile(file));
    QCOMPARE(page->findChild<QSpinBox *>(QStringLiteral("startAddrSpin"))->value(), 30);
    QCOMPARE(page->findChild<QSpinBox *>(QStringLiteral("endAddrSpin"))->value(), 40);
    QVERIFY(page->findChild<QCheckBox *>(QStringLiteral("checkBox115200"))->isChecked());
    // Written under one key, read under another: the box is back to the form's default.
    QVERIFY(!page->findChild<QCheckBox *>(QStringLiteral("func3CheckBox"))->isChecked());
}

QTEST_MAIN(tst_ScanAppend)
#include "tst_scanappend.moc"
