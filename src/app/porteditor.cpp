#include "app/porteditor.h"
#include "ui_porteditor.h"

#include "app/ipporteditor.h"
#include "app/rtuporteditor.h"
#include "model/port.h"

#include <QSignalBlocker>

PortEditor::PortEditor(QWidget *parent)
    : IServerItemEditor(parent)
    , ui(new Ui::PortEditor)
    , m_rtu(new RTUPortEditor)
    , m_ip(new IPPortEditor)
{
    ui->setupUi(this);
    ui->typeComboBox->addItem(QString(), int(Port::MODBUS_RTU));
    ui->typeComboBox->addItem(QString(), int(Port::MODBUS_TCP));
    retranslateTypes();
    ui->stackedWidget->addWidget(m_rtu);
    ui->stackedWidget->addWidget(m_ip);
    connect(ui->typeComboBox, &QComboBox::currentIndexChanged, this, &PortEditor::onTypeChanged);
    connect(m_rtu, &RTUPortEditor::changed, this, &PortEditor::onSubPageChanged);
    connect(m_ip, &IPPortEditor::changed, this, &PortEditor::onSubPageChanged);
}

PortEditor::~PortEditor()
{
    delete ui;
}

void PortEditor::retranslateTypes()
{
    ui->typeComboBox->setItemText(0, tr("Serial"));
    ui->typeComboBox->setItemText(1, tr("TCP (not supported)"));
}

void PortEditor::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        const QSignalBlocker blocker(ui->typeComboBox);
        ui->retranslateUi(this);
        retranslateTypes();
    }
    IServerItemEditor::changeEvent(event);
}

void PortEditor::setItem(ServerItem *item)
{
    auto *port = qobject_cast<Port *>(item);
    if (!port)
        return;
    m_port = port;
    const QSignalBlocker b1(ui->typeComboBox), b2(ui->nameEdit), b3(ui->enabledCheckBox);
    ui->typeComboBox->setCurrentIndex(ui->typeComboBox->findData(port->portType()));
    ui->nameEdit->setText(port->name());
    ui->enabledCheckBox->setChecked(port->enabled());
    m_rtu->setItem(port);
    m_ip->setItem(port);
    showType(port->portType());
}

void PortEditor::disconnectEditor()
{
    m_rtu->disconnectEditor();
    m_ip->disconnectEditor();
    m_port = nullptr;
}

void PortEditor::showType(int type)
{
    ui->stackedWidget->setCurrentWidget(type == Port::MODBUS_TCP ? static_cast<QWidget *>(m_ip)
                                                                 : m_rtu);
    // The name of a serial port follows its device.
    ui->nameEdit->setReadOnly(type != Port::MODBUS_TCP);
}

void PortEditor::on_nameEdit_editingFinished()
{
    if (!m_port || ui->nameEdit->isReadOnly() || ui->nameEdit->text() == m_port->name())
        return;
    m_port->setName(ui->nameEdit->text());
    {
        const QSignalBlocker blocker(ui->nameEdit);
        ui->nameEdit->setText(m_port->name());
    }
    emit changed(m_port);
}

void PortEditor::on_enabledCheckBox_toggled(bool on)
{
    if (!m_port)
        return;
    m_port->setEnabled(on);
    emit changed(m_port);
}

void PortEditor::onTypeChanged(int index)
{
    if (!m_port || index < 0)
        return;
    const int type = ui->typeComboBox->itemData(index).toInt();
    m_port->setPortType(type);
    showType(type);
    emit changed(m_port);
}

void PortEditor::onSubPageChanged()
{
    if (!m_port)
        return;
    const QSignalBlocker blocker(ui->nameEdit);
    ui->nameEdit->setText(m_port->name());
    emit changed(m_port);
}
