#include "app/dummyeditor.h"
#include "app/guitestsupport.h"
#include "app/ipporteditor.h"
#include "app/porteditor.h"
#include "app/rtuporteditor.h"
#include "app/serveritemeditor.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "testsupport.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>

// The pages of the root and of a port: the manual, the serial line and the
// rule that two ports never share a serial device.
class tst_PortEditor : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void serialNameClashWarnsAndRestores();
    void newSerialNameRenamesPort();
    void lineSettingsReachThePort();
    void typeDecidesNameEditing();
    void checkAndRawRequestOnMissingDevice();
    void manualPage();
    void hostChoosesPageByItem();

private:
    void choose(const QString &serialName);

    std::unique_ptr<ScopedWorkDir> m_dir;
    Server *m_server = nullptr;
    Port *m_first = nullptr;
    Port *m_second = nullptr;
    PortEditor *m_editor = nullptr;
};

void tst_PortEditor::initTestCase()
{
    WarningGuard::install();
}

void tst_PortEditor::init()
{
    m_dir = std::make_unique<ScopedWorkDir>();
    m_server = new Server;
    m_first = m_server->addPort(QStringLiteral("/dev/ttyREGDESK1"));
    QVERIFY(m_first->setSerialName(QStringLiteral("/dev/ttyREGDESK1")));
    m_second = m_server->addPort(QStringLiteral("/dev/ttyREGDESK2"));
    QVERIFY(m_second->setSerialName(QStringLiteral("/dev/ttyREGDESK2")));
    m_editor = new PortEditor;
    m_editor->setItem(m_second);
}

void tst_PortEditor::cleanup()
{
    delete m_editor;
    delete m_server;
    m_dir.reset();
    QVERIFY(WarningGuard::check());
}

void tst_PortEditor::choose(const QString &serialName)
{
    auto *box = m_editor->findChild<QComboBox *>(QStringLiteral("portChoiceComboBox"));
    int index = box->findData(serialName);
    if (index < 0) {
        // Typed in by hand: the editable box appends the text as an item.
        box->addItem(serialName, serialName);
        index = box->count() - 1;
    }
    box->setCurrentIndex(index);
}

void tst_PortEditor::serialNameClashWarnsAndRestores()
{
    BoxRecorder boxes;
    QSignalSpy changed(m_editor, &IServerItemEditor::changed);
    auto *box = m_editor->findChild<QComboBox *>(QStringLiteral("portChoiceComboBox"));
    QCOMPARE(box->currentText(), QStringLiteral("/dev/ttyREGDESK2"));
    // The names in use are offered even when the devices aren't plugged in.
    QVERIFY(box->findData(QStringLiteral("/dev/ttyREGDESK1")) >= 0);

    choose(QStringLiteral("/dev/ttyREGDESK1"));
    QVERIFY(boxes.texts().contains(QStringLiteral("Serial port /dev/ttyREGDESK1 already exists!")));
    QCOMPARE(boxes.requests.last().title, QStringLiteral("regdesk"));
    QCOMPARE(m_second->serialName(), QStringLiteral("/dev/ttyREGDESK2"));
    QCOMPARE(m_second->name(), QStringLiteral("/dev/ttyREGDESK2"));
    QCOMPARE(box->currentText(), QStringLiteral("/dev/ttyREGDESK2"));
    QCOMPARE(changed.count(), 0);
}

void tst_PortEditor::newSerialNameRenamesPort()
{
    BoxRecorder boxes;
    QSignalSpy changed(m_editor, &IServerItemEditor::changed);
    choose(QStringLiteral("/dev/ttyREGDESK7"));
    // An absent device is accepted after a warning: the port may be plugged in later.
    QCOMPARE(boxes.texts(),
             QStringList(QStringLiteral("Serial port /dev/ttyREGDESK7 not exists!")));
    QCOMPARE(m_second->serialName(), QStringLiteral("/dev/ttyREGDESK7"));
    QCOMPARE(m_second->name(), QStringLiteral("/dev/ttyREGDESK7"));
    QCOMPARE(m_server->portByName(QStringLiteral("/dev/ttyREGDESK7")), m_second);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_editor->findChild<QLineEdit *>(QStringLiteral("nameEdit"))->text(),
             QStringLiteral("/dev/ttyREGDESK7"));
}

void tst_PortEditor::lineSettingsReachThePort()
{
    auto set = [this](const char *box, const QVariant &data) {
        auto *combo = m_editor->findChild<QComboBox *>(QLatin1String(box));
        const int index = combo->findData(data);
        QVERIFY(index >= 0);
        combo->setCurrentIndex(index);
    };
    QSignalSpy changed(m_editor, &IServerItemEditor::changed);
    set("cmbBaudrate", 19200);
    set("cmbDataBits", 7);
    set("cmbParity", QStringLiteral("E"));
    set("cmbStopBits", 1);
    m_editor->findChild<QCheckBox *>(QStringLiteral("chkClearPort"))->setChecked(true);
    QCOMPARE(m_second->baudrate(), 19200);
    QCOMPARE(m_second->dataBits(), 7);
    QCOMPARE(m_second->parity(), QLatin1Char('E'));
    QCOMPARE(m_second->stopBits(), 1);
    QVERIFY(m_second->clearPort());
    QCOMPARE(changed.count(), 5);

    // Showing another port doesn't write into it.
    const int baud = m_first->baudrate();
    m_editor->setItem(m_first);
    QCOMPARE(m_first->baudrate(), baud);
    QCOMPARE(m_editor->findChild<QComboBox *>(QStringLiteral("cmbBaudrate"))->currentData().toInt(),
             baud);
}

void tst_PortEditor::typeDecidesNameEditing()
{
    auto *name = m_editor->findChild<QLineEdit *>(QStringLiteral("nameEdit"));
    auto *type = m_editor->findChild<QComboBox *>(QStringLiteral("typeComboBox"));
    auto *stack = m_editor->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    QVERIFY(name->isReadOnly());
    QCOMPARE(stack->currentWidget(), static_cast<QWidget *>(m_editor->rtuEditor()));
    type->setCurrentIndex(type->findData(int(Port::MODBUS_TCP)));
    QCOMPARE(m_second->portType(), int(Port::MODBUS_TCP));
    QVERIFY(!name->isReadOnly());
    QCOMPARE(stack->currentWidget(), static_cast<QWidget *>(m_editor->ipEditor()));
    name->setText(QStringLiteral("plant gateway"));
    emit name->editingFinished();
    QCOMPARE(m_second->name(), QStringLiteral("plant_gateway"));
    auto *address = m_editor->findChild<QLineEdit *>(QStringLiteral("addrEdit"));
    address->setText(QStringLiteral("10.0.0.5:502"));
    emit address->editingFinished();
    QCOMPARE(m_second->ipAddress(), QStringLiteral("10.0.0.5:502"));
}

void tst_PortEditor::checkAndRawRequestOnMissingDevice()
{
    auto *check = m_editor->findChild<QPushButton *>(QStringLiteral("b_check"));
    auto *checkStatus = m_editor->findChild<QLabel *>(QStringLiteral("lbCheckStatus"));
    QVERIFY(check->isEnabled());
    check->click();
    QVERIFY(checkStatus->text().startsWith(QStringLiteral("<p style=\"color: red;\">Failure: ")));
    QVERIFY(!m_second->isOpened());

    auto *request = m_editor->findChild<QLineEdit *>(QStringLiteral("txtRawRequest"));
    auto *send = m_editor->findChild<QPushButton *>(QStringLiteral("btnSendRawRequest"));
    auto *status = m_editor->findChild<QLabel *>(QStringLiteral("lbRawStatus"));
    request->setText(QStringLiteral("01 0"));
    send->click();
    QVERIFY(status->text().contains(QStringLiteral("hexadecimal")));
    request->setText(QStringLiteral("01 03 00 00 00 01"));
    send->click();
    QVERIFY(status->text().contains(QStringLiteral("Failure: ")));
    // The port lock is given back whatever happened.
    QCOMPARE(m_second->portLock()->available(), 1);
}

void tst_PortEditor::manualPage()
{
    DummyEditor missing(nullptr, m_dir->filePath(QStringLiteral("nothing.txt")));
    QCOMPARE(missing.text(), QStringLiteral("Can't open help file"));
    DummyEditor manual;
    QVERIFY(manual.text().contains(QStringLiteral("Назначение")));
    QVERIFY(manual.text().contains(QStringLiteral("device_archives")));
}

void tst_PortEditor::hostChoosesPageByItem()
{
    ServerItemEditor host;
    host.setItem(m_server);
    QCOMPARE(host.currentWidget(), host.editorForType(ServerItem::ItemServer));
    host.setItem(m_first);
    QCOMPARE(host.currentWidget(), host.editorForType(ServerItem::ItemPort));
    Device *device = m_first->addDevice(QStringLiteral("d"));
    host.setItem(device);
    QVERIFY(host.currentWidget() != host.editorForType(ServerItem::ItemPort));
    QCOMPARE(host.currentDeviceEditor(), nullptr);
    // A change on the port page reaches the host's signal.
    QSignalSpy changed(&host, &ServerItemEditor::changed);
    host.setItem(m_first);
    auto *check = host.findChild<QCheckBox *>(QStringLiteral("enabledCheckBox"));
    check->setChecked(!check->isChecked());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().value<ServerItem *>(), static_cast<ServerItem *>(m_first));
}

QTEST_MAIN(tst_PortEditor)
#include "tst_porteditor.moc"
