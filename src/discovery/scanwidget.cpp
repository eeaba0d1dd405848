#include "discovery/scanwidget.h"
#include "ui_scanwidget.h"

#include "app/debugqt.h"
#include "app/messagebox.h"
#include "config/utils.h"
#include "model/port.h"
#include "model/server.h"

#include <QCheckBox>
#include <QSerialPortInfo>
#include <QTreeWidgetItem>

namespace {

const char *const protocolProperty = "protocol";
const char *const keyPorts = "ports";
const char *const keySpeeds = "speeds";
const char *const keyProtocols = "protocols";
const char *const keyUse17 = "use_17_func";
const char *const keyUse3 = "use_3_func";
// The flag is read back under another key than it is written, so that the
// function 3 box starts unchecked after a reload: kept as users know it.
const char *const keyUse3Read = "use_func_3";
const char *const keyFunc3Addr = "func_3_addr";
const char *const keyFrom = "address_from";
const char *const keyTo = "address_to";

enum Column { ColumnPort = 0, ColumnAddress, ColumnBaudrate, ColumnReply3, ColumnReply17 };

QString key(const char *text)
{
    return QLatin1String(text);
}

} // namespace

ScanWidget::ScanWidget(QWidget *parent)
    : QWidget(parent)
    , ui(new Ui::ScanWidget)
{
    ui->setupUi(this);
    for (QCheckBox *box :
         {ui->checkBox1200, ui->checkBox2400, ui->checkBox4800, ui->checkBox9600, ui->checkBox19200,
          ui->checkBox38400, ui->checkBox57600, ui->checkBox115200}) {
        m_speedBoxes.insert(box->text(), box);
        connect(box, &QCheckBox::toggled, this, &ScanWidget::onControlChanged);
    }
    connect(ui->func17CheckBox, &QCheckBox::toggled, this, &ScanWidget::onControlChanged);
    connect(ui->func3CheckBox, &QCheckBox::toggled, this, &ScanWidget::onControlChanged);
    const auto spinChanged = qOverload<int>(&QSpinBox::valueChanged);
    connect(ui->func3AddressSpin, spinChanged, this, &ScanWidget::onControlChanged);
    connect(ui->startAddrSpin, spinChanged, this, &ScanWidget::onControlChanged);
    connect(ui->endAddrSpin, spinChanged, this, &ScanWidget::onControlChanged);
    connect(ui->treeWidget, &QTreeWidget::itemDoubleClicked, this,
            &ScanWidget::onItemDoubleClicked);
    setupProtocols();
    m_portProvider = &ScanWidget::availablePorts;
    setupPorts();
    on_rbASCII_toggled(ui->rbASCII->isChecked());
    on_func3AddressSpin_valueChanged(ui->func3AddressSpin->value());
    on_spnDelimiter_valueChanged(ui->spnDelimiter->value());
    updateStartButton();
}

ScanWidget::~ScanWidget()
{
    delete ui;
}

QStringList ScanWidget::availablePorts()
{
    QStringList names;
    for (const QSerialPortInfo &info : QSerialPortInfo::availablePorts())
        names << info.systemLocation();
    names.sort();
    return names;
}

void ScanWidget::setPortProvider(const PortProvider &provider)
{
    m_portProvider = provider ? provider : PortProvider(&ScanWidget::availablePorts);
    setupPorts();
}

void ScanWidget::setupProtocols()
{
    const QList<QChar> parities {QLatin1Char('N'), QLatin1Char('E'), QLatin1Char('O')};
    int row = 0;
    for (QChar parity : parities) {
        int column = 0;
        for (int stopBits : {1, 2}) {
            const SerialPortProtocol protocol(8, parity, stopBits);
            auto *box = new QCheckBox(protocol.toString(), ui->grpProtocols);
            box->setProperty(protocolProperty, QVariant::fromValue(protocol));
            box->setChecked(protocol.toString() == QLatin1String("8N2"));
            connect(box, &QCheckBox::toggled, this, &ScanWidget::onControlChanged);
            ui->protocolItemsLayout->addWidget(box, row, column++);
            m_protocolBoxes << box;
        }
        ++row;
    }
}

void ScanWidget::setupPorts()
{
    const QStringList checked = checkedTexts(m_portBoxes);
    qDeleteAll(m_portBoxes);
    m_portBoxes.clear();
    for (const QString &name : m_portProvider()) {
        auto *box = new QCheckBox(name, ui->grpPorts);
        box->setChecked(checked.contains(name));
        connect(box, &QCheckBox::toggled, this, &ScanWidget::onControlChanged);
        ui->portItemsLayout->addWidget(box);
        m_portBoxes << box;
    }
    updateStartButton();
}

// Rebuilds the port boxes only when the system's list has changed.
void ScanWidget::checkPorts()
{
    QStringList shown;
    for (const QCheckBox *box : std::as_const(m_portBoxes))
        shown << box->text();
    if (shown != m_portProvider())
        setupPorts();
}

void ScanWidget::on_btnRefresh_clicked()
{
    setupPorts();
}

QStringList ScanWidget::checkedTexts(const QList<QCheckBox *> &boxes)
{
    QStringList texts;
    for (const QCheckBox *box : boxes) {
        if (box->isChecked())
            texts << box->text();
    }
    return texts;
}

void ScanWidget::onControlChanged()
{
    updateStartButton();
    if (!m_loading)
        emit scanSettingsModified();
}

void ScanWidget::updateStartButton()
{
    const bool functions = ui->func17CheckBox->isChecked() || ui->func3CheckBox->isChecked();
    ui->startButton->setEnabled(!checkedTexts(m_portBoxes).isEmpty()
                                && !checkedTexts(m_speedBoxes.values()).isEmpty()
                                && !checkedTexts(m_protocolBoxes).isEmpty() && functions);
}

void ScanWidget::on_startAddrSpin_valueChanged(int value)
{
    if (value > ui->endAddrSpin->value())
        ui->endAddrSpin->setValue(value);
}

void ScanWidget::on_endAddrSpin_valueChanged(int value)
{
    if (value < ui->startAddrSpin->value())
        ui->startAddrSpin->setValue(value);
}

void ScanWidget::on_func3AddressSpin_valueChanged(int value)
{
    ui->lbRegister->setText(QStringLiteral("0x%1").arg(value, 2, 16, QLatin1Char('0')));
}

void ScanWidget::on_spnDelimiter_valueChanged(int value)
{
    ui->lbDelimiter->setText(QStringLiteral("0x%1").arg(value, 2, 16, QLatin1Char('0')));
}

void ScanWidget::on_rbASCII_toggled(bool checked)
{
    ui->spnDelimiter->setEnabled(checked);
    ui->lbDelimiter->setEnabled(checked);
    ui->lbDelimiterTitle->setEnabled(checked);
}

QMap<QString, QVariant> ScanWidget::scanSettings() const
{
    QMap<QString, QVariant> map;
    map.insert(key(keyPorts), checkedTexts(m_portBoxes));
    map.insert(key(keySpeeds), checkedTexts(m_speedBoxes.values()));
    map.insert(key(keyProtocols), checkedTexts(m_protocolBoxes));
    map.insert(key(keyUse17), ui->func17CheckBox->isChecked());
    map.insert(key(keyUse3), ui->func3CheckBox->isChecked());
    map.insert(key(keyFunc3Addr), ui->func3AddressSpin->value());
    map.insert(key(keyFrom), ui->startAddrSpin->value());
    map.insert(key(keyTo), ui->endAddrSpin->value());
    return map;
}

void ScanWidget::setScanSettings(const QMap<QString, QVariant> &settings)
{
    m_loading = true;
    const auto checkTexts = [](const QList<QCheckBox *> &boxes, const QStringList &texts) {
        for (QCheckBox *box : boxes)
            box->setChecked(texts.contains(box->text()));
    };
    if (settings.contains(key(keyPorts)))
        checkTexts(m_portBoxes, settings.value(key(keyPorts)).toStringList());
    if (settings.contains(key(keySpeeds)))
        checkTexts(m_speedBoxes.values(), settings.value(key(keySpeeds)).toStringList());
    if (settings.contains(key(keyProtocols)))
        checkTexts(m_protocolBoxes, settings.value(key(keyProtocols)).toStringList());
    if (settings.contains(key(keyUse17)))
        ui->func17CheckBox->setChecked(settings.value(key(keyUse17)).toBool());
    // Never written under this key, so in practice the box returns to unchecked.
    ui->func3CheckBox->setChecked(settings.value(key(keyUse3Read)).toBool());
    if (settings.contains(key(keyFunc3Addr)))
        ui->func3AddressSpin->setValue(settings.value(key(keyFunc3Addr)).toInt());
    // The upper bound first, so that the spins do not pull each other off the saved pair.
    if (settings.contains(key(keyTo)))
        ui->endAddrSpin->setValue(settings.value(key(keyTo)).toInt());
    if (settings.contains(key(keyFrom)))
        ui->startAddrSpin->setValue(settings.value(key(keyFrom)).toInt());
    if (settings.contains(key(keyTo)))
        ui->endAddrSpin->setValue(settings.value(key(keyTo)).toInt());
    m_loading = false;
    updateStartButton();
}

ScanTask ScanWidget::scanTask() const
{
    ScanTask task;
    task.ports = checkedTexts(m_portBoxes);
    for (const QString &text : checkedTexts(m_speedBoxes.values()))
        task.speeds.insert(text.toInt());
    for (const QCheckBox *box : m_protocolBoxes) {
        if (box->isChecked())
            task.protocols << box->property(protocolProperty).value<SerialPortProtocol>();
    }
    task.ascii = ui->rbASCII->isChecked();
    task.delimiter = ui->spnDelimiter->value();
    task.useFunction3 = ui->func3CheckBox->isChecked();
    task.function3Register = ui->func3AddressSpin->value();
    task.function3Count = ui->func3CountSpin->value();
    task.useFunction17 = ui->func17CheckBox->isChecked();
    task.fromAddress = ui->startAddrSpin->value();
    task.toAddress = ui->endAddrSpin->value();
    return task;
}

void ScanWidget::clearTree()
{
    ui->treeWidget->clear();
    m_items.clear();
}

void ScanWidget::on_startButton_clicked()
{
    checkPorts();
    updateStartButton();
    clearTree();
    if (!ui->startButton->isEnabled())
        return;
    // The scanner works outside the port lock: a polled line must not be scanned.
    if (m_server && m_server->isPortsThreadWorked()) {
        MessageBox::warning(this, MessageBox::appTitle(),
                            tr("You have periodically requested devices!\n"
                               "Stop devices requesting and try again."));
        return;
    }
    const ScanTask task = scanTask();
    // The scanner needs the lines to itself.
    if (m_server) {
        for (Port *port : m_server->ports()) {
            if (port->isOpened())
                port->close();
        }
    }
    Scanner scanner;
    scanner.setScanTask(task);
    scanner.setParentWidget(window());
    scanner.setServer(m_server);
    scanner.setOpenErrorQuestion(m_openErrorQuestion);
    connect(&scanner, &Scanner::deviceFounded, this, &ScanWidget::appendFoundedDevice);
    ui->startButton->setEnabled(false);
    scanner.start();
    updateStartButton();
}

void ScanWidget::on_appendButton_clicked()
{
    emit appendRequested();
}

QString ScanWidget::replyToString(const QByteArray &reply)
{
    return QStringLiteral("%1/%2").arg(QString::fromLatin1(reply), byteBufferToString(reply));
}

void ScanWidget::appendFoundedDevice(const SerialPortSettings &settings,
                                     const FoundedDevice &device)
{
    QTreeWidgetItem *parent = m_items.value(settings);
    if (!parent) {
        parent = new QTreeWidgetItem(ui->treeWidget);
        parent->setText(ColumnPort, settings.name);
        parent->setText(
            ColumnBaudrate,
            QStringLiteral("%1 %2").arg(settings.baudRate).arg(settings.protocol.toString()));
        parent->setData(ColumnPort, Qt::UserRole, QVariant::fromValue(settings));
        m_items.insert(settings, parent);
    }
    auto *item = new QTreeWidgetItem(parent);
    item->setText(ColumnAddress, QString::number(device.address));
    item->setCheckState(ColumnAddress, Qt::Checked);
    item->setText(ColumnBaudrate, QString::number(device.baudRate));
    item->setData(ColumnPort, Qt::UserRole, QVariant::fromValue(device));
    if (device.function == 17)
        item->setText(ColumnReply17, replyToString(device.replyPayload()));
    else if (device.function == 3)
        item->setText(ColumnReply3,
                      device.reply.isEmpty() ? QString::number(device.registerValue)
                                             : replyToString(device.reply));
    parent->setExpanded(true);
    ui->treeWidget->resizeColumnToContents(ColumnPort);
}

void ScanWidget::setResult(const ScanResult &result)
{
    clearTree();
    for (auto it = result.cbegin(); it != result.cend(); ++it) {
        for (const FoundedDevice &device : it.value())
            appendFoundedDevice(it.key(), device);
    }
}

ScanResult ScanWidget::scanResult() const
{
    ScanResult result;
    for (auto it = m_items.cbegin(); it != m_items.cend(); ++it) {
        const QTreeWidgetItem *parent = it.value();
        for (int i = 0; i < parent->childCount(); ++i) {
            const QTreeWidgetItem *child = parent->child(i);
            if (child->checkState(ColumnAddress) != Qt::Checked)
                continue;
            const FoundedDevice device
                = child->data(ColumnPort, Qt::UserRole).value<FoundedDevice>();
            result[it.key()].insert(device.address, device);
        }
    }
    return result;
}

void ScanWidget::onItemDoubleClicked(QTreeWidgetItem *item, int column)
{
    Q_UNUSED(column)
    if (!item || !item->parent())
        return;
    item->setCheckState(ColumnAddress, Qt::Checked);
    const SerialPortSettings settings
        = item->parent()->data(ColumnPort, Qt::UserRole).value<SerialPortSettings>();
    const FoundedDevice device = item->data(ColumnPort, Qt::UserRole).value<FoundedDevice>();
    ScanResult result;
    result[settings].insert(device.address, device);
    emit appendOneDevice(result);
}
