#include "app/application.h"
#include "app/guitestsupport.h"
#include "app/mainwindow.h"
#include "config/appsettings.h"
#include "config/deviceadddialog.h"
#include "config/devicetemplatecatalog.h"
#include "config/saveastemplatedialog.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"
#include "testsupport.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>

#include <cmath>
#include <csignal>
#include <memory>
#include <sys/resource.h>

// The main window's tree, actions, clipboard and file commands, with every
// message box answered by the test.
class tst_MainWindow : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void deviceMarks_data();
    void deviceMarks();
    void rootMarkFollowsModified();
    void actionTable_data();
    void actionTable();
    void addPortAndDevicesThroughDialog();
    void copyPasteAndRemove();
    void removeAsksAndCancelKeeps();
    void saveAndReopen();
    void backupAfterTwoSaves();
    void rollbackAfterFailedWrite();
    void nanQuestionFixesEitherWay_data();
    void nanQuestionFixesEitherWay();
    void okToContinueAnswers_data();
    void okToContinueAnswers();
    void currentItemOfRemovedDevice();
    void statisticsSavedUnderLog();
    void saveActionAsks();
    void saveDeviceAsTemplate();
    void languageBoxSwitchesWindow();

private:
    Device *addDevice(Port *port, const QString &name, const QString &templateName);
    QAction *action(const char *name) const;
    // The scan page has a tree of the same name: look on the devices page.
    QTreeWidget *deviceTree() const
    {
        return m_window->findChild<QWidget *>(QStringLiteral("tabDevices"))
            ->findChild<QTreeWidget *>(QStringLiteral("treeWidget"));
    }
    void selectTab(int index);

    std::unique_ptr<ScopedWorkDir> m_dir;
    std::unique_ptr<MainWindow> m_window;
};

void tst_MainWindow::initTestCase()
{
    WarningGuard::install();
}

void tst_MainWindow::init()
{
    m_dir = std::make_unique<ScopedWorkDir>();
    DeviceTemplateCatalog::instance()->loadTemplates(AppSettings::templates_dir());
    m_window = std::make_unique<MainWindow>();
    QCoreApplication::processEvents();
}

void tst_MainWindow::cleanup()
{
    MessageBox::setHook({});
    m_window.reset();
    AppSettings::release();
    DeviceTemplateCatalog::release();
    m_dir.reset();
    QVERIFY(WarningGuard::check());
}

Device *tst_MainWindow::addDevice(Port *port, const QString &name, const QString &templateName)
{
    Device *device = port->addDevice(name);
    m_window->setDeviceTemplate(device, templateName);
    m_window->addDeviceInTree(port, device);
    return device;
}

QAction *tst_MainWindow::action(const char *name) const
{
    return m_window->findChild<QAction *>(QLatin1String(name));
}

void tst_MainWindow::selectTab(int index)
{
    m_window->findChild<QTabWidget *>(QStringLiteral("mainTabWidget"))->setCurrentIndex(index);
}

void tst_MainWindow::deviceMarks_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("problem"); // "", "nan", "error"
    QTest::addColumn<bool>("comments");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");

    QTest::newRow("from file") << 1 << "" << false << "dev" << QColor(Qt::black);
    QTest::newRow("new") << 32 << "" << false << "+dev" << QColor(Qt::black);
    QTest::newRow("read") << 5 << "" << false << "dev [>]" << QColor(Qt::darkGreen);
    QTest::newRow("read, changed") << 7 << "" << false << "dev [>*]" << QColor(Qt::darkGreen);
    QTest::newRow("read with NaN") << 5 << "nan" << false << "dev [>]" << QColor(Qt::magenta);
    QTest::newRow("written with error") << 9 << "error" << false << "dev [<]" << QColor(Qt::red);
    QTest::newRow("error wins over NaN") << 4 << "both" << false << "dev [>]" << QColor(Qt::red);
    QTest::newRow("NaN unseen from file") << 1 << "nan" << false << "dev" << QColor(Qt::black);
    QTest::newRow("comment") << 33 << "" << true << "+dev [@] pH meter" << QColor(Qt::black);
}

void tst_MainWindow::deviceMarks()
{
    QFETCH(int, state);
    QFETCH(QString, problem);
    QFETCH(bool, comments);
    QFETCH(QString, text);
    QFETCH(QColor, color);

    AppSettings::instance()->setInsertComments(comments);
    Port *port = m_window->server()->addPort(QStringLiteral("p"));
    m_window->addPortInTree(port);
    Device *device = port->addDevice(QStringLiteral("dev"));
    device->setEnabled(true);
    device->setComment(QStringLiteral("pH meter"));
    // Errors count on the measured channels only.
    Tag *tag = device->addTag(QStringLiteral("t"));
    tag->setEnabled(true);
    tag->setConfigGroup({QStringLiteral("Channel"), QStringLiteral("ch 1")});
    if (problem == QLatin1String("nan") || problem == QLatin1String("both"))
        tag->setValue(std::nan(""));
    if (problem == QLatin1String("error") || problem == QLatin1String("both"))
        tag->updateState(ServerItem::ResultTimeout);
    // The comment row also tries a polled device (bit 16) with the tag good.
    device->setDeviceTagState(comments ? state | Device::Polled : state);
    m_window->addDeviceInTree(port, device);

    QTreeWidgetItem *item = m_window->treeItem(device);
    QVERIFY(item);
    QCOMPARE(item->text(0), text);
    QCOMPARE(item->foreground(0).color(), color);
    QCOMPARE(item->toolTip(0), device->comment());
    QVERIFY(!item->font(0).bold());
    device->setDeviceId(3);
    m_window->updateDeviceStatusInTree(device);
    QVERIFY(item->font(0).bold());
}

void tst_MainWindow::rootMarkFollowsModified()
{
    QTreeWidgetItem *root = m_window->treeItem(m_window->server());
    QCOMPARE(root->text(0), QStringLiteral("Ports & Devices"));
    QVERIFY(!root->font(0).bold());
    QVERIFY(!m_window->isWindowModified());
    m_window->serverModified();
    QVERIFY(m_window->isWindowModified());
    QVERIFY(root->font(0).bold() && root->font(0).italic());
    QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("regdesk - [*]")));
}

void tst_MainWindow::actionTable_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("current"); // none, root, port, device, polled, download, other
    QTest::addColumn<bool>("withClipboard");
    QTest::addColumn<QString>("enabled"); // letters: A add, R remove, T template, C copy, P paste

    QTest::newRow("root") << 0 << "root" << true << "A";
    QTest::newRow("port, empty clipboard") << 0 << "port" << false << "AR";
    QTest::newRow("port, clipboard") << 0 << "port" << true << "ARP";
    QTest::newRow("device, same template") << 0 << "device" << true << "RTCP";
    QTest::newRow("device, other template") << 0 << "other" << true << "RTC";
    QTest::newRow("polled device") << 0 << "polled" << true << "TCP";
    QTest::newRow("device in download") << 0 << "download" << false << "TC";
    QTest::newRow("port with a download") << 0 << "downloadport" << false << "A";
    QTest::newRow("statistics tab") << 2 << "device" << true << "";
    QTest::newRow("scan tab") << 1 << "port" << true << "";
    QTest::newRow("plot tab") << 3 << "device" << true << "AR";
    QTest::newRow("plot tab, nothing current") << 3 << "none" << true << "AR";
    QTest::newRow("nothing current") << 0 << "none" << true << "";
}

void tst_MainWindow::actionTable()
{
    QFETCH(int, tab);
    QFETCH(QString, current);
    QFETCH(bool, withClipboard);
    QFETCH(QString, enabled);

    Port *port = m_window->server()->addPort(QStringLiteral("p"));
    m_window->addPortInTree(port);
    Device *zolt = addDevice(port, QStringLiteral("zolt"), QStringLiteral("Zolt-21"));
    Device *marn = addDevice(port, QStringLiteral("marn"), QStringLiteral("Marn14T"));
    if (withClipboard) {
        m_window->setCurrentServerItem(zolt);
        m_window->copy();
    }

    QTreeWidget *tree = deviceTree();
    if (current == QLatin1String("none")) {
        tree->setCurrentItem(nullptr);
    } else if (current == QLatin1String("root")) {
        m_window->setCurrentServerItem(m_window->server());
    } else if (current == QLatin1String("port")) {
        m_window->setCurrentServerItem(port);
    } else if (current == QLatin1String("other")) {
        m_window->setCurrentServerItem(marn);
    } else if (current == QLatin1String("downloadport")) {
        marn->setDeviceTagStateFlag(Device::ArchiveDownload);
        m_window->setCurrentServerItem(port);
    } else {
        if (current == QLatin1String("polled"))
            zolt->setDeviceTagStateFlag(Device::Polled);
        if (current == QLatin1String("download"))
            zolt->setDeviceTagStateFlag(Device::ArchiveDownload);
        m_window->setCurrentServerItem(zolt);
    }
    selectTab(tab);
    m_window->updateActions();

    QCOMPARE(action("actionAdd")->isEnabled(), enabled.contains(QLatin1Char('A')));
    QCOMPARE(action("actionRemove")->isEnabled(), enabled.contains(QLatin1Char('R')));
    QCOMPARE(action("actionSaveAsTemplate")->isEnabled(), enabled.contains(QLatin1Char('T')));
    QCOMPARE(action("actionCopy")->isEnabled(), enabled.contains(QLatin1Char('C')));
    QCOMPARE(action("actionPaste")->isEnabled(), enabled.contains(QLatin1Char('P')));
    // Nothing was changed by hand, so there is nothing to save.
    QVERIFY(!action("actionSave")->isEnabled());
    m_window->serverModified();
    QVERIFY(action("actionSave")->isEnabled());
}

void tst_MainWindow::addPortAndDevicesThroughDialog()
{
    BoxRecorder boxes;
    m_window->setCurrentServerItem(m_window->server());
    action("actionAdd")->trigger();
    QCOMPARE(m_window->server()->portCount(), 1);
    Port *port = m_window->server()->ports().first();
    QCOMPARE(port->name(), QStringLiteral("Port_0"));
    QVERIFY(m_window->treeItem(port));
    QVERIFY(m_window->isWindowModified());

    // A double click on one row picks that template at once.
    m_window->setCurrentServerItem(port);
    onNextDialog<DeviceAddDialog>([](DeviceAddDialog *dialog) {
        auto *table = dialog->findChild<QTableWidget *>(QStringLiteral("tableWidget"));
        const int row = dialog->rowOf(QStringLiteral("Zolt-21v2"));
        QTableWidgetItem *cell = table->item(row, DeviceAddDialog::ColTemplate);
        table->setCurrentItem(cell);
        emit table->itemDoubleClicked(cell);
    });
    action("actionAdd")->trigger();
    QCOMPARE(port->devices().size(), 1);
    Device *device = port->devices().first();
    QCOMPARE(device->name(), QStringLiteral("Zolt-21v2"));
    QCOMPARE(device->deviceTemplateName(), QStringLiteral("Zolt-21v2"));
    QVERIFY(device->tags().size() > 10);
    QCOMPARE(device->deviceTagState(), int(Device::Pasted));
    QVERIFY(m_window->treeItem(device)->text(0).startsWith(QStringLiteral("+Zolt-21v2")));

    // Two checked rows give two devices; the same template twice gets a unique name.
    onNextDialog<DeviceAddDialog>([](DeviceAddDialog *dialog) {
        auto *table = dialog->findChild<QTableWidget *>(QStringLiteral("tableWidget"));
        table->item(dialog->rowOf(QStringLiteral("Zolt-21v2")), DeviceAddDialog::ColName)
            ->setCheckState(Qt::Checked);
        table->item(dialog->rowOf(QStringLiteral("Marn14T")), DeviceAddDialog::ColName)
            ->setCheckState(Qt::Checked);
        dialog->accept();
    });
    action("actionAdd")->trigger();
    QCOMPARE(port->devices().size(), 3);
    const QStringList ids = port->deviceIds();
    QCOMPARE(QSet<QString>(ids.begin(), ids.end()).size(), 3);
    QVERIFY(boxes.requests.isEmpty());
}

void tst_MainWindow::copyPasteAndRemove()
{
    BoxRecorder boxes;
    Port *port = m_window->server()->addPort(QStringLiteral("p"));
    m_window->addPortInTree(port);
    Device *zolt = addDevice(port, QStringLiteral("zolt"), QStringLiteral("Zolt-21"));
    zolt->setAddress(5);
    zolt->setComment(QStringLiteral("tank 1"));
    zolt->tags().first()->setValue(7);

    m_window->setCurrentServerItem(zolt);
    action("actionCopy")->trigger();
    QCOMPARE(m_window->clipboardTemplate(), QStringLiteral("Zolt-21"));

    // On a port: a new device with the values, the address and a marked comment.
    m_window->setCurrentServerItem(port);
    QVERIFY(action("actionPaste")->isEnabled());
    action("actionPaste")->trigger();
    QCOMPARE(port->devices().size(), 2);
    Device *copy = port->devices().last();
    QVERIFY(copy->name() != zolt->name());
    QCOMPARE(copy->address(), 5);
    QCOMPARE(copy->comment(), QStringLiteral("tank 1{copy}"));
    QCOMPARE(copy->tags().first()->value().toInt(), 7);
    QVERIFY(m_window->treeItem(copy)->text(0).startsWith(QLatin1Char('+')));

    // On a device of the same template: the values go over it and it is marked changed.
    Device *other = addDevice(port, QStringLiteral("other"), QStringLiteral("Zolt-21"));
    m_window->setCurrentServerItem(other);
    action("actionPaste")->trigger();
    QCOMPARE(other->tags().first()->value().toInt(), 7);
    QVERIFY(other->hasDeviceTagStateFlag(Device::Changed));

    // Remove with Yes: the device, its tree item and its name are gone.
    boxes.answers << QMessageBox::Yes;
    m_window->setCurrentServerItem(copy);
    const QString copyName = copy->name();
    action("actionRemove")->trigger();
    QCOMPARE(boxes.requests.size(), 1);
    QCOMPARE(boxes.requests.first().defaultButton, QMessageBox::Cancel);
    QVERIFY(!port->device(copyName));
    QCOMPARE(port->devices().size(), 2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    // A port goes with its devices.
    boxes.answers << QMessageBox::Yes;
    m_window->setCurrentServerItem(port);
    action("actionRemove")->trigger();
    QCOMPARE(m_window->server()->portCount(), 0);
    QCOMPARE(m_window->treeItem(m_window->server())->childCount(), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_MainWindow::removeAsksAndCancelKeeps()
{
    BoxRecorder boxes;
    Port *port = m_window->server()->addPort(QStringLiteral("p"));
    m_window->addPortInTree(port);
    Device *device = addDevice(port, QStringLiteral("d"), QStringLiteral("Zolt-21"));
    m_window->setCurrentServerItem(device);
    // The default answer of the box, Cancel, keeps everything.
    action("actionRemove")->trigger();
    m_window->setCurrentServerItem(port);
    action("actionRemove")->trigger();
    QCOMPARE(boxes.texts(),
             QStringList({QStringLiteral("Do you really want to remove device d?"),
                          QStringLiteral("Do you really want to remove port p?")}));
    QCOMPARE(port->devices().size(), 1);
    QCOMPARE(m_window->server()->portCount(), 1);
    QVERIFY(!m_window->isWindowModified());
}

void tst_MainWindow::saveAndReopen()
{
    BoxRecorder boxes;
    Port *port = m_window->server()->addPort(QStringLiteral("/dev/ttyUSB0"));
    port->setSerialName(QStringLiteral("/dev/ttyUSB0"));
    port->setBaudrate(9600);
    m_window->addPortInTree(port);
    Device *device = addDevice(port, QStringLiteral("zolt"), QStringLiteral("Zolt-21"));
    device->setDeviceTagState(Device::Pasted);
    // The address tag is what a device carries through a load.
    device->setAddress(9);
    device->tag(QStringLiteral("address"))->setValue(9);
    Port *second = m_window->server()->addPort(QStringLiteral("/dev/ttyUSB1"));
    m_window->addPortInTree(second);
    addDevice(second, QStringLiteral("marn"), QStringLiteral("Marn14T"));
    m_window->setCurrentServerItem(device);
    m_window->serverModified();

    const QString file = m_dir->filePath(QStringLiteral("cfg/two.cfg"));
    QVERIFY(m_window->saveAsFile(file));
    QVERIFY(!m_window->isWindowModified());
    QCOMPARE(AppSettings::cfg_fn(), file);
    // A new device loses its "+" with the save.
    QCOMPARE(device->deviceTagState(), int(Device::FromFile));
    QCOMPARE(m_window->treeItem(device)->text(0), QStringLiteral("zolt"));
    // The start-up file names the configuration for the next start.
    const QJsonObject startup
        = QJsonDocument::fromJson(readFile(AppSettings::startup_fn())).object();
    QCOMPARE(startup.value(QStringLiteral("cfg_filename")).toString(), file);

    QVERIFY(m_window->loadConfigFile(file));
    QCOMPARE(m_window->server()->portNames(),
             QStringList({QStringLiteral("/dev/ttyUSB0"), QStringLiteral("/dev/ttyUSB1")}));
    Port *loaded = m_window->server()->portByName(QStringLiteral("/dev/ttyUSB0"));
    QCOMPARE(loaded->baudrate(), 9600);
    QCOMPARE(loaded->devices().size(), 1);
    Device *zolt = loaded->device(QStringLiteral("zolt"));
    QVERIFY(zolt);
    QCOMPARE(zolt->address(), 9);
    QCOMPARE(zolt->deviceTemplateName(), QStringLiteral("Zolt-21"));
    QVERIFY(m_window->treeItem(zolt));
    QCOMPARE(AppSettings::instance()->currentItem(), QStringLiteral("/dev/ttyUSB0 zolt"));
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(boxes.requests.isEmpty());
}

void tst_MainWindow::backupAfterTwoSaves()
{
    BoxRecorder boxes;
    const QString file = m_dir->filePath(QStringLiteral("cfg/a.cfg"));
    Port *port = m_window->server()->addPort(QStringLiteral("p"));
    m_window->addPortInTree(port);
    QVERIFY(m_window->saveAsFile(file));
    const QByteArray first = readFile(file);
    QVERIFY(!QFile::exists(file + QStringLiteral(".bak")));

    // The first change after a save copies the file aside.
    addDevice(port, QStringLiteral("d"), QStringLiteral("Zolt-21"));
    m_window->serverModified();
    QCOMPARE(readFile(file + QStringLiteral(".bak")), first);

    QVERIFY(m_window->save());
    const QByteArray second = readFile(file);
    QVERIFY(second != first);
    QCOMPARE(readFile(file + QStringLiteral(".bak")), first);

    m_window->serverModified();
    QVERIFY(m_window->save());
    QCOMPARE(readFile(file + QStringLiteral(".bak")), second);
    QVERIFY(boxes.requests.isEmpty());
}

void tst_MainWindow::rollbackAfterFailedWrite()
{
    BoxRecorder boxes;
    // An empty configuration file, and a disk that takes no byte more: the
    // backup needs no write, the new configuration can't be written.
    const QString file = m_dir->filePath(QStringLiteral("cfg/full.cfg"));
    QVERIFY(writeFile(file, QByteArray()));
    AppSettings::set_cfg_fn(file);
    Port *port = m_window->server()->addPort(QStringLiteral("p"));
    m_window->addPortInTree(port);
    addDevice(port, QStringLiteral("d"), QStringLiteral("Zolt-21"));
    m_window->serverModified();
    QVERIFY(QFile::exists(file + QStringLiteral(".bak")));

    rlimit old {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
    const auto oldHandler = signal(SIGXFSZ, SIG_IGN);
    rlimit full = old;
    full.rlim_cur = 0;
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
    const bool saved = m_window->save();
    setrlimit(RLIMIT_FSIZE, &old);
    signal(SIGXFSZ, oldHandler);

    QVERIFY(!saved);
    // The write error was told, the file stands as before, and the window stays modified.
    QCOMPARE(boxes.texts(), QStringList(QStringLiteral("Config file write error!")));
    QVERIFY(QFile::exists(file));
    QCOMPARE(readFile(file), QByteArray());
    QVERIFY(m_window->isWindowModified());
    QVERIFY(m_window->findChild<QAction *>(QStringLiteral("actionSave"))->isEnabled());

    // With room again the same save goes through.
    QVERIFY(m_window->save());
    QVERIFY(readFile(file).contains("Zolt-21"));
    QCOMPARE(readFile(file + QStringLiteral(".bak")), QByteArray());
}

void tst_MainWindow::nanQuestionFixesEitherWay_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("Yes") << QMessageBox::Yes;
    QTest::newRow("Cancel") << QMessageBox::Cancel;
}

void tst_MainWindow::nanQuestionFixesEitherWay()
{
    QFETCH(QMessageBox::StandardButton, answer);
    BoxRecorder boxes;
    boxes.answers << answer;
    Port *port = m_window->server()->addPort(QStringLiteral("p"));
    m_window->addPortInTree(port);
    Device *device = addDevice(port, QStringLiteral("d"), QStringLiteral("Zolt-21"));
    Tag *tag = device->tags().first();
    tag->setValue(std::nan(""));
    const QString file = m_dir->filePath(QStringLiteral("cfg/nan.cfg"));
    AppSettings::set_cfg_fn(file);
    m_window->serverModified();

    QVERIFY(m_window->save());
    QCOMPARE(boxes.requests.size(), 1);
    QCOMPARE(boxes.requests.first().text,
             QStringLiteral("Device d has tags with Not-a-Number value!\n"
                            "To fix them to Null before saving config?"));
    QCOMPARE(boxes.requests.first().defaultButton, QMessageBox::Yes);
    QVERIFY(!device->hasTagsWithNan());
    QVERIFY(QFile::exists(file));
    QVERIFY(!readFile(file).contains("nan"));
}

void tst_MainWindow::okToContinueAnswers_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<bool>("result");
    QTest::addColumn<bool>("saved");
    QTest::newRow("Yes saves") << QMessageBox::Yes << true << true;
    QTest::newRow("No drops") << QMessageBox::No << true << false;
    QTest::newRow("Cancel stays") << QMessageBox::Cancel << false << false;
}

void tst_MainWindow::okToContinueAnswers()
{
    QFETCH(QMessageBox::StandardButton, answer);
    QFETCH(bool, result);
    QFETCH(bool, saved);
    BoxRecorder boxes;
    const QString file = m_dir->filePath(QStringLiteral("cfg/q.cfg"));
    AppSettings::set_cfg_fn(file);
    QVERIFY(m_window->okToContinue());
    QVERIFY(boxes.requests.isEmpty());

    m_window->server()->addPort(QStringLiteral("p"));
    m_window->serverModified();
    boxes.answers << answer;
    QCOMPARE(m_window->okToContinue(), result);
    QCOMPARE(QFile::exists(file), saved);

    // A device in download refuses before anything is asked.
    Port *port = m_window->server()->ports().first();
    Device *device = port->addDevice(QStringLiteral("d"));
    device->setDeviceTagStateFlag(Device::ArchiveDownload);
    boxes.requests.clear();
    QVERIFY(!m_window->okToContinue());
    QCOMPARE(boxes.requests.size(), 1);
    QVERIFY(boxes.requests.first().text.startsWith(
        QStringLiteral("You have devices with downloading archive!")));
    device->setDeviceTagStateFlag(Device::ArchiveDownload, false);
}

void tst_MainWindow::currentItemOfRemovedDevice()
{
    BoxRecorder boxes;
    Port *port = m_window->server()->addPort(QStringLiteral("p"));
    m_window->addPortInTree(port);
    Device *first = addDevice(port, QStringLiteral("first"), QStringLiteral("Zolt-21"));
    Device *gone = addDevice(port, QStringLiteral("gone"), QStringLiteral("Zolt-21"));
    m_window->setCurrentServerItem(gone);
    const QString file = m_dir->filePath(QStringLiteral("cfg/c.cfg"));
    QVERIFY(m_window->saveAsFile(file));
    QCOMPARE(AppSettings::instance()->currentItem(), QStringLiteral("p gone"));

    // Reopened with the saved device: it is selected once the event loop turns.
    m_window.reset();
    m_window = std::make_unique<MainWindow>();
    QTRY_COMPARE(MainWindow::serverItem(deviceTree()->currentItem())->name(),
                 QStringLiteral("gone"));

    // Without it, the selection made by the load (the first item) stays.
    Port *loaded = m_window->server()->ports().first();
    m_window->setCurrentServerItem(loaded->device(QStringLiteral("first")));
    m_window->removeDevice(loaded->device(QStringLiteral("gone")), false);
    m_window->setCurrentServerItem(loaded);
    QVERIFY(m_window->saveAsFile(file));
    QCOMPARE(AppSettings::instance()->currentItem(), QStringLiteral("p"));
    QJsonObject object = QJsonDocument::fromJson(readFile(file)).object();
    QJsonObject app = object.value(QStringLiteral("app")).toObject();
    app.insert(QStringLiteral("current_item"), QStringLiteral("p gone"));
    object.insert(QStringLiteral("app"), app);
    QVERIFY(writeFile(file, QJsonDocument(object).toJson()));
    m_window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_window = std::make_unique<MainWindow>();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    ServerItem *current = m_window->currentServerItem();
    QVERIFY(current);
    QCOMPARE(current->name(), QStringLiteral("p"));
    Q_UNUSED(first)
}

void tst_MainWindow::statisticsSavedUnderLog()
{
    BoxRecorder boxes;
    Port *port = m_window->server()->addPort(QStringLiteral("p"));
    m_window->addPortInTree(port);
    addDevice(port, QStringLiteral("d"), QStringLiteral("Zolt-21"));
    selectTab(MainWindow::TabStatistics);
    QVERIFY(m_window->statisticsText().contains(QStringLiteral("Port:p Devices:1 Tags:")));
    // On the statistics tab Save writes the text instead of the configuration.
    action("actionSave")->setEnabled(true);
    action("actionSave")->trigger();
    const QStringList files = QDir(AppSettings::log_dir()).entryList({QStringLiteral("stat_*")});
    QCOMPARE(files.size(), 1);
    QCOMPARE(readFile(QDir(AppSettings::log_dir()).filePath(files.first())),
             m_window->statisticsText().toUtf8());
    QVERIFY(boxes.requests.isEmpty());
}

void tst_MainWindow::saveActionAsks()
{
    BoxRecorder boxes;
    const QString file = m_dir->filePath(QStringLiteral("cfg/asked.cfg"));
    AppSettings::set_cfg_fn(file);
    m_window->server()->addPort(QStringLiteral("p"));
    m_window->serverModified();
    boxes.answers << QMessageBox::No;
    action("actionSave")->trigger();
    QCOMPARE(boxes.texts(), QStringList(QStringLiteral("Do you want to save your configuration?")));
    QVERIFY(!QFile::exists(file));
    boxes.answers << QMessageBox::Yes;
    action("actionSave")->trigger();
    QVERIFY(QFile::exists(file));
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(!action("actionSave")->isEnabled());
}

void tst_MainWindow::saveDeviceAsTemplate()
{
    BoxRecorder boxes;
    Port *port = m_window->server()->addPort(QStringLiteral("p"));
    m_window->addPortInTree(port);
    Device *device = addDevice(port, QStringLiteral("tank"), QStringLiteral("Zolt-21"));
    device->tags().first()->setValue(std::nan(""));
    m_window->setCurrentServerItem(device);

    // "No" to the Not-a-Number question ends the command before the dialog.
    boxes.answers << QMessageBox::No;
    action("actionSaveAsTemplate")->trigger();
    QVERIFY(device->hasTagsWithNan());

    bool okEnabledForBuiltIn = true;
    onNextDialog<SaveAsTemplateDialog>([&okEnabledForBuiltIn](SaveAsTemplateDialog *dialog) {
        auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("le_id"));
        auto *ok = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
        QCOMPARE(name->text(), QStringLiteral("tank"));
        // A name whose file the catalogue holds can't be taken.
        name->setText(QStringLiteral("Zolt-21"));
        okEnabledForBuiltIn = ok->isEnabled();
        name->setText(QStringLiteral("tank_a"));
        ok->click();
    });
    boxes.answers << QMessageBox::Cancel; // fixes the tags as Yes does
    action("actionSaveAsTemplate")->trigger();
    QVERIFY(!okEnabledForBuiltIn);
    QVERIFY(!device->hasTagsWithNan());
    const QString file = AppSettings::templates_dir() + QStringLiteral("/tank_a.tpl");
    QVERIFY(QFile::exists(file));
    const QVariantMap saved
        = DeviceTemplateCatalog::instance()->template_map(QStringLiteral("tank_a"));
    QCOMPARE(saved.value(QStringLiteral("id")).toString(), QStringLiteral("Zolt-21"));
    QCOMPARE(boxes.requests.size(), 2);
}

void tst_MainWindow::languageBoxSwitchesWindow()
{
    Application::loadTranslations(QStringLiteral(":/lang"));
    QVERIFY(Application::availableLanguages().contains(QStringLiteral("ru_RU")));
    m_window.reset();
    m_window = std::make_unique<MainWindow>();
    QCoreApplication::processEvents();
    auto *box = m_window->findChild<QComboBox *>(QStringLiteral("langSelector"));
    auto *tabs = m_window->findChild<QTabWidget *>(QStringLiteral("mainTabWidget"));
    QTreeWidgetItem *root = m_window->treeItem(m_window->server());

    // Russian unless the configuration says otherwise.
    QCOMPARE(box->currentData().toString(), QStringLiteral("ru_RU"));
    QCOMPARE(action("actionAdd")->text(), QStringLiteral("Добавить"));
    QCOMPARE(root->text(0), QStringLiteral("Порты и приборы"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("Сканирование"));
    QVERIFY(!m_window->isWindowModified());

    box->setCurrentIndex(box->findData(QStringLiteral("en_US")));
    QCoreApplication::processEvents();
    QCOMPARE(action("actionAdd")->text(), QStringLiteral("Add"));
    QCOMPARE(root->text(0), QStringLiteral("Ports & Devices"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("Scanning"));
    // The choice is part of the configuration.
    QCOMPARE(AppSettings::instance()->language(), QStringLiteral("en_US"));
    QVERIFY(m_window->isWindowModified());

    box->setCurrentIndex(box->findData(QStringLiteral("ru_RU")));
    QCoreApplication::processEvents();
    QCOMPARE(action("actionRemove")->text(), QStringLiteral("Удалить"));
    Application::setLanguage(QStringLiteral("en_US"));
    QCoreApplication::processEvents();
}

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
