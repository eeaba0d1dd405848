#ifdef SIM_BINARY
#include "../sim/simprocess.h"
#endif
#include "app/messagebox.h"
#include "discovery/scanwidget.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTreeWidget>
#include <QtTest>

// The scan page: its controls, the settings it keeps, the result tree and
// what it hands on to be appended.
class tst_ScanWidget : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void startNeedsPortSpeedFramingAndFunction();
    void addressSpinsPullEachOther();
    void labelsAndAsciiControls();
    void settingsRoundTrip();
    void function3FlagDoesNotSurviveReload();
    void hitsGroupedByLine();
    void onlyCheckedHitsAreAppended();
    void doubleClickAppendsOneDevice();
    void noScanWhilePolling();
#ifdef SIM_BINARY
    void scanFromThePage();
#endif

private:
    template<typename T> T *child(const char *name) const
    {
        T *widget = m_page->findChild<T *>(QLatin1String(name));
        if (!widget)
            qFatal("no widget %s", name);
        return widget;
    }
    QCheckBox *box(const QString &text) const;

    ScanWidget *m_page = nullptr;
    QStringList m_ports;
};

static const SerialPortSettings lineA(QStringLiteral("/dev/ttyA"), 9600,
                                      SerialPortProtocol(8, QLatin1Char('N'), 2));
static const SerialPortSettings lineB(QStringLiteral("/dev/ttyA"), 19200,
                                      SerialPortProtocol(8, QLatin1Char('N'), 2));

static FoundedDevice hit(const SerialPortSettings &settings, int address, int function)
{
    FoundedDevice device(settings, false, address);
    device.function = function;
    if (function == 17)
        device.reply = QByteArray("\x05\xff", 2) + "Zolt-42 pH";
    else
        device.registerValue = 513;
    return device;
}

void tst_ScanWidget::initTestCase()
{
    qRegisterMetaType<ScanResult>();
}

void tst_ScanWidget::init()
{
    m_ports = QStringList {QStringLiteral("/dev/ttyA"), QStringLiteral("/dev/ttyB")};
    m_page = new ScanWidget;
    m_page->setPortProvider([this]() { return m_ports; });
}

void tst_ScanWidget::cleanup()
{
    delete m_page;
    m_page = nullptr;
}

QCheckBox *tst_ScanWidget::box(const QString &text) const
{
    for (QCheckBox *b : m_page->findChildren<QCheckBox *>()) {
        if (b->text() == text)
            return b;
    }
    qFatal("no check box %s", qPrintable(text));
    return nullptr;
}

void tst_ScanWidget::startNeedsPortSpeedFramingAndFunction()
{
    auto *start = child<QPushButton>("startButton");
    QVERIFY(!start->isEnabled()); // no port yet
    box(QStringLiteral("/dev/ttyB"))->setChecked(true);
    // The form presets 9600, 8N2 and function 17.
    QVERIFY(start->isEnabled());
    QCOMPARE(m_page->scanTask().protocols,
             QList<SerialPortProtocol> {SerialPortProtocol(8, QLatin1Char('N'), 2)});

    child<QCheckBox>("func17CheckBox")->setChecked(false);
    QVERIFY(!start->isEnabled());
    child<QCheckBox>("func3CheckBox")->setChecked(true);
    QVERIFY(start->isEnabled());
    box(QStringLiteral("8N2"))->setChecked(false);
    QVERIFY(!start->isEnabled());
    box(QStringLiteral("8E1"))->setChecked(true);
    QVERIFY(start->isEnabled());
    child<QCheckBox>("checkBox9600")->setChecked(false);
    QVERIFY(!start->isEnabled());

    // Six framings: 8 data bits, three parities, one or two stop bits.
    for (const char *text : {"8N1", "8N2", "8E1", "8E2", "8O1", "8O2"})
        QVERIFY(box(QLatin1String(text))->property("protocol").isValid());
}

void tst_ScanWidget::addressSpinsPullEachOther()
{
    auto *from = child<QSpinBox>("startAddrSpin");
    auto *to = child<QSpinBox>("endAddrSpin");
    QCOMPARE(from->minimum(), 1);
    QCOMPARE(to->maximum(), 247);
    to->setValue(20);
    from->setValue(30);
    QCOMPARE(to->value(), 30);
    to->setValue(10);
    QCOMPARE(from->value(), 10);
    const ScanTask task = m_page->scanTask();
    QCOMPARE(task.fromAddress, 10);
    QCOMPARE(task.toAddress, 10);
}

void tst_ScanWidget::labelsAndAsciiControls()
{
    child<QSpinBox>("func3AddressSpin")->setValue(0x2002);
    QCOMPARE(child<QLabel>("lbRegister")->text(), QStringLiteral("0x2002"));
    child<QSpinBox>("func3AddressSpin")->setValue(5);
    QCOMPARE(child<QLabel>("lbRegister")->text(), QStringLiteral("0x05"));
    QCOMPARE(child<QSpinBox>("spnDelimiter")->value(), 10);
    QCOMPARE(child<QLabel>("lbDelimiter")->text(), QStringLiteral("0x0a"));

    QVERIFY(!child<QSpinBox>("spnDelimiter")->isEnabled());
    child<QRadioButton>("rbASCII")->setChecked(true);
    QVERIFY(child<QSpinBox>("spnDelimiter")->isEnabled());
    child<QSpinBox>("spnDelimiter")->setValue(13);
    const ScanTask task = m_page->scanTask();
    QVERIFY(task.ascii);
    QCOMPARE(task.delimiter, 13);
    child<QRadioButton>("rbRTU")->setChecked(true);
    QVERIFY(!child<QSpinBox>("spnDelimiter")->isEnabled());
}

void tst_ScanWidget::settingsRoundTrip()
{
    QSignalSpy modified(m_page, &ScanWidget::scanSettingsModified);
    QMap<QString, QVariant> settings;
    settings.insert(QStringLiteral("ports"),
                    QStringList {QStringLiteral("/dev/ttyB"), QStringLiteral("/dev/gone")});
    settings.insert(QStringLiteral("speeds"),
                    QStringList {QStringLiteral("19200"), QStringLiteral("115200")});
    settings.insert(QStringLiteral("protocols"), QStringList {QStringLiteral("8E1")});
    settings.insert(QStringLiteral("use_17_func"), false);
    settings.insert(QStringLiteral("use_func_3"), true);
    settings.insert(QStringLiteral("func_3_addr"), 100);
    settings.insert(QStringLiteral("address_from"), 200);
    settings.insert(QStringLiteral("address_to"), 210);
    m_page->setScanSettings(settings);
    QCOMPARE(modified.size(), 0);

    const QMap<QString, QVariant> saved = m_page->scanSettings();
    QCOMPARE(saved.value(QStringLiteral("ports")).toStringList(),
             QStringList {QStringLiteral("/dev/ttyB")});
    QCOMPARE(saved.value(QStringLiteral("speeds")).toStringList(),
             (QStringList {QStringLiteral("115200"), QStringLiteral("19200")}));
    QCOMPARE(saved.value(QStringLiteral("protocols")).toStringList(),
             QStringList {QStringLiteral("8E1")});
    QCOMPARE(saved.value(QStringLiteral("use_17_func")).toBool(), false);
    QCOMPARE(saved.value(QStringLiteral("use_3_func")).toBool(), true);
    QVERIFY(!saved.contains(QStringLiteral("use_func_3")));
    QCOMPARE(saved.value(QStringLiteral("func_3_addr")).toInt(), 100);
    QCOMPARE(saved.value(QStringLiteral("address_from")).toInt(), 200);
    QCOMPARE(saved.value(QStringLiteral("address_to")).toInt(), 210);

    child<QSpinBox>("endAddrSpin")->setValue(220);
    QCOMPARE(modified.size(), 1);
}

void tst_ScanWidget::function3FlagDoesNotSurviveReload()
{
    child<QCheckBox>("func3CheckBox")->setChecked(true);
    const QMap<QString, QVariant> saved = m_page->scanSettings();
    QCOMPARE(saved.value(QStringLiteral("use_3_func")).toBool(), true);

    m_page->setScanSettings(saved);
    QVERIFY(!child<QCheckBox>("func3CheckBox")->isChecked());
    QCOMPARE(m_page->scanSettings().value(QStringLiteral("use_3_func")).toBool(), false);
}

void tst_ScanWidget::hitsGroupedByLine()
{
    m_page->appendFoundedDevice(lineA, hit(lineA, 5, 17));
    m_page->appendFoundedDevice(lineB, hit(lineB, 5, 17));
    m_page->appendFoundedDevice(lineA, hit(lineA, 9, 3));
    FoundedDevice words = hit(lineA, 11, 3);
    words.reply = QByteArray("AB", 2);
    m_page->appendFoundedDevice(lineA, words);

    auto *tree = child<QTreeWidget>("treeWidget");
    QCOMPARE(tree->columnCount(), 5);
    QCOMPARE(tree->headerItem()->text(4), QStringLiteral("Reply 17"));
    QCOMPARE(tree->topLevelItemCount(), 2);
    QTreeWidgetItem *a = tree->topLevelItem(0);
    QCOMPARE(a->text(0), QStringLiteral("/dev/ttyA"));
    QCOMPARE(a->childCount(), 3);
    QVERIFY(a->isExpanded());
    QCOMPARE(tree->topLevelItem(1)->childCount(), 1);

    QTreeWidgetItem *first = a->child(0);
    QCOMPARE(first->text(1), QStringLiteral("5"));
    QCOMPARE(first->checkState(1), Qt::Checked);
    QCOMPARE(first->text(2), QStringLiteral("9600"));
    QCOMPARE(first->text(4), QStringLiteral("Zolt-42 pH/5a 6f 6c 74 2d 34 32 20 70 48"));
    QCOMPARE(a->child(1)->text(3), QStringLiteral("513"));
    QCOMPARE(a->child(2)->text(3), QStringLiteral("AB/41 42"));
}

void tst_ScanWidget::onlyCheckedHitsAreAppended()
{
    ScanResult result;
    result[lineA].insert(5, hit(lineA, 5, 17));
    result[lineA].insert(6, hit(lineA, 6, 3));
    result[lineB].insert(7, hit(lineB, 7, 17));
    m_page->setResult(result);
    QCOMPARE(m_page->scanResult(), result);

    auto *tree = child<QTreeWidget>("treeWidget");
    tree->topLevelItem(0)->child(1)->setCheckState(1, Qt::Unchecked);
    tree->topLevelItem(1)->child(0)->setCheckState(1, Qt::Unchecked);
    ScanResult expected;
    expected[lineA].insert(5, hit(lineA, 5, 17));
    QCOMPARE(m_page->scanResult(), expected);

    QSignalSpy requested(m_page, &ScanWidget::appendRequested);
    child<QPushButton>("appendButton")->click();
    QCOMPARE(requested.size(), 1);
}

void tst_ScanWidget::doubleClickAppendsOneDevice()
{
    ScanResult result;
    result[lineA].insert(5, hit(lineA, 5, 17));
    result[lineA].insert(6, hit(lineA, 6, 3));
    m_page->setResult(result);
    auto *tree = child<QTreeWidget>("treeWidget");
    QTreeWidgetItem *six = tree->topLevelItem(0)->child(1);
    six->setCheckState(1, Qt::Unchecked);

    QSignalSpy one(m_page, &ScanWidget::appendOneDevice);
    emit tree->itemDoubleClicked(tree->topLevelItem(0), 0);
    QCOMPARE(one.size(), 0);
    emit tree->itemDoubleClicked(six, 2);
    QCOMPARE(one.size(), 1);
    ScanResult expected;
    expected[lineA].insert(6, hit(lineA, 6, 3));
    QCOMPARE(one.at(0).at(0).value<ScanResult>(), expected);
    QCOMPARE(six->checkState(1), Qt::Checked);
}

void tst_ScanWidget::noScanWhilePolling()
{
    Server server;
    Port *port = server.addPort(QStringLiteral("polled"));
    port->setSerialName(QStringLiteral("/nonexistent/ttyP"));
    Device *device = port->addDevice(QStringLiteral("dev"));
    QVERIFY(port->attachDeviceToPeriodRequest(device));
    QVERIFY(server.isPortsThreadWorked());
    m_page->setServer(&server);
    box(QStringLiteral("/dev/ttyA"))->setChecked(true);

    QList<MessageBox::Request> asked;
    MessageBox::setHook([&](const MessageBox::Request &request) {
        asked << request;
        return QMessageBox::Ok;
    });
    child<QPushButton>("startButton")->click();
    MessageBox::setHook(MessageBox::Hook());
    port->detachDeviceFromPeriodRequest(device);
    // One warning, and no scan that would have asked about /dev/ttyA.
    QCOMPARE(asked.size(), 1);
    QVERIFY(
        asked.first().text.startsWith(QStringLiteral("You have periodically requested devices!")));
}

#ifdef SIM_BINARY
// The page closes the tree's open ports, scans and lists the hits.
void tst_ScanWidget::scanFromThePage()
{
    SimProcess sim;
    QString why;
    QVERIFY2(sim.start({QStringLiteral("--scenario"),
                        QStringLiteral(DISCOVERY_DATA_DIR "/scan-line.json")},
                       &why),
             qPrintable(why));
    m_ports = QStringList {sim.path()};
    child<QPushButton>("btnRefresh")->click();
    box(sim.path())->setChecked(true);
    box(QStringLiteral("8N2"))->setChecked(false);
    box(QStringLiteral("8N1"))->setChecked(true);
    child<QSpinBox>("endAddrSpin")->setValue(2);
    child<QSpinBox>("startAddrSpin")->setValue(1);

    Server server;
    Port *port = server.addPort(QStringLiteral("other"));
    port->setSerialName(sim.path());
    port->setBaudrate(9600);
    QVERIFY(port->open());
    m_page->setServer(&server);

    m_page->show();
    child<QPushButton>("startButton")->click();
    QVERIFY(!port->isOpened());
    auto *tree = child<QTreeWidget>("treeWidget");
    QCOMPARE(tree->topLevelItemCount(), 1);
    QCOMPARE(tree->topLevelItem(0)->childCount(), 2);
    const ScanResult result = m_page->scanResult();
    QCOMPARE(
        result
            .value(SerialPortSettings(sim.path(), 9600, SerialPortProtocol(8, QLatin1Char('N'), 1)))
            .keys(),
        (QList<int> {1, 2}));
    QVERIFY(child<QPushButton>("startButton")->isEnabled());
}
#endif

QTEST_MAIN(tst_ScanWidget)
#include "tst_scanwidget.moc"
