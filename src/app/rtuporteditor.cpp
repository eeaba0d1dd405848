#include "app/rtuporteditor.h"
#include "ui_rtuporteditor.h"

#include "app/debugqt.h"
#include "app/messagebox.h"
#include "config/utils.h"
#include "model/port.h"
#include "model/server.h"

#include <QSemaphore>
#include <QSerialPortInfo>
#include <QSignalBlocker>

namespace {
// How long a hand-made request waits for the exchange in progress on the line.
constexpr int RawRequestLockWait = 3000;

QString greenText(const QString &text)
{
    return QStringLiteral("<p style=\"color: green;\">%1</p>").arg(text.toHtmlEscaped());
}

QString redText(const QString &text)
{
    return QStringLiteral("<p style=\"color: red;\">%1</p>").arg(text.toHtmlEscaped());
}

// Parses "01 03 00 00 00 01" or "010300000001"; an odd digit or a stray
// character gives an empty array.
QByteArray parseHex(const QString &text)
{
    QString digits = text;
    digits.remove(QLatin1Char(' ')).remove(QLatin1Char(':')).remove(QLatin1Char(','));
    if (digits.isEmpty() || digits.size() % 2)
        return {};
    QByteArray bytes;
    for (int i = 0; i < digits.size(); i += 2) {
        bool ok = false;
        const int value = digits.mid(i, 2).toInt(&ok, 16);
        if (!ok)
            return {};
        bytes.append(char(value));
    }
    return bytes;
}
} // namespace

RTUPortEditor::RTUPortEditor(QWidget *parent)
    : IServerItemEditor(parent)
    , ui(new Ui::RTUPortEditor)
{
    ui->setupUi(this);
    fillLineBoxes();
    ui->b_check->setEnabled(false);
}

RTUPortEditor::~RTUPortEditor()
{
    delete ui;
}

QStringList RTUPortEditor::devices_available()
{
    QStringList names;
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &info : ports)
        names.append(info.systemLocation());
    return names;
}

void RTUPortEditor::fillLineBoxes()
{
    const QSignalBlocker b1(ui->cmbBaudrate), b2(ui->cmbDataBits), b3(ui->cmbParity),
        b4(ui->cmbStopBits);
    for (int baud : {1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200})
        ui->cmbBaudrate->addItem(QString::number(baud), baud);
    for (int bits : {7, 8})
        ui->cmbDataBits->addItem(QString::number(bits), bits);
    for (const char *parity : {"N", "E", "O"})
        ui->cmbParity->addItem(QString(), QString::fromLatin1(parity));
    for (int bits : {1, 2})
        ui->cmbStopBits->addItem(QString::number(bits), bits);
    retranslateParity();
}

void RTUPortEditor::retranslateParity()
{
    ui->cmbParity->setItemText(0, tr("N (none)"));
    ui->cmbParity->setItemText(1, tr("E (even)"));
    ui->cmbParity->setItemText(2, tr("O (odd)"));
}

void RTUPortEditor::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        retranslateParity();
    }
    IServerItemEditor::changeEvent(event);
}

void RTUPortEditor::setItem(ServerItem *item)
{
    auto *port = qobject_cast<Port *>(item);
    if (!port)
        return;
    m_port = port;
    LOG_INFO << "finding port: " << port->serialName();
    showPort();
}

void RTUPortEditor::disconnectEditor()
{
    m_port = nullptr;
}

void RTUPortEditor::showPort()
{
    const QSignalBlocker b0(ui->portChoiceComboBox), b1(ui->cmbBaudrate), b2(ui->cmbDataBits),
        b3(ui->cmbParity), b4(ui->cmbStopBits), b5(ui->chkClearQueueIfTimeOut),
        b6(ui->chkClearPort);
    update_serials(devices_available());
    ui->cmbBaudrate->setCurrentIndex(ui->cmbBaudrate->findData(m_port->baudrate()));
    ui->cmbDataBits->setCurrentIndex(ui->cmbDataBits->findData(m_port->dataBits()));
    ui->cmbParity->setCurrentIndex(ui->cmbParity->findData(QString(m_port->parity())));
    ui->cmbStopBits->setCurrentIndex(ui->cmbStopBits->findData(m_port->stopBits()));
    ui->chkClearQueueIfTimeOut->setChecked(m_port->clearQueueIfTimeout());
    ui->chkClearPort->setChecked(m_port->clearPort());
    ui->b_check->setEnabled(!m_port->serialName().trimmed().isEmpty());
    ui->lbCheckStatus->clear();
    ui->lbRawStatus->clear();
}

void RTUPortEditor::update_serials(const QStringList &list)
{
    const QString current = ui->portChoiceComboBox->currentText();
    // Devices named by other ports stay choosable even when unplugged.
    QStringList merged = list;
    if (m_port) {
        if (Server *server = m_port->server()) {
            for (const Port *other : server->ports())
                if (!merged.contains(other->serialName()))
                    merged.append(other->serialName());
        }
    }
    if (!current.isEmpty() && !merged.contains(current))
        merged.append(current);
    LOG_INFO << "list1 =" << list;
    LOG_INFO << "list =" << merged;
    ui->portChoiceComboBox->clear();
    for (const QString &name : std::as_const(merged))
        ui->portChoiceComboBox->addItem(name, name);
    const QString wanted = m_port ? m_port->serialName() : current;
    ui->portChoiceComboBox->setCurrentIndex(ui->portChoiceComboBox->findData(wanted));
}

void RTUPortEditor::on_btnRefresh_clicked()
{
    const QSignalBlocker blocker(ui->portChoiceComboBox);
    update_serials(devices_available());
}

void RTUPortEditor::on_portChoiceComboBox_currentIndexChanged(int index)
{
    const QString text = index < 0 ? ui->portChoiceComboBox->currentText()
                                   : ui->portChoiceComboBox->itemText(index);
    if (!m_port || text == m_port->serialName())
        return;
    if (text.trimmed().isEmpty() || !devices_available().contains(text.trimmed()))
        MessageBox::warning(this, MessageBox::appTitle(),
                            tr("Serial port %1 not exists!").arg(text));
    if (!m_port->setSerialName(text)) {
        MessageBox::warning(this, MessageBox::appTitle(),
                            tr("Serial port %1 already exists!").arg(text));
        const QSignalBlocker blocker(ui->portChoiceComboBox);
        int back = ui->portChoiceComboBox->findData(m_port->serialName());
        if (back < 0) {
            ui->portChoiceComboBox->addItem(m_port->serialName(), m_port->serialName());
            back = ui->portChoiceComboBox->count() - 1;
        }
        ui->portChoiceComboBox->setCurrentIndex(back);
        return;
    }
    ui->b_check->setEnabled(!text.trimmed().isEmpty());
    // A serial port is named after its device.
    m_port->setName(text);
    emit changed();
}

void RTUPortEditor::on_cmbBaudrate_currentIndexChanged(int index)
{
    if (!m_port || index < 0)
        return;
    m_port->setBaudrate(ui->cmbBaudrate->itemData(index).toInt());
    emit changed();
}

void RTUPortEditor::on_cmbDataBits_currentIndexChanged(int index)
{
    if (!m_port || index < 0)
        return;
    m_port->setDatabits(ui->cmbDataBits->itemData(index).toInt());
    emit changed();
}

void RTUPortEditor::on_cmbParity_currentIndexChanged(int index)
{
    if (!m_port || index < 0)
        return;
    m_port->setParity(ui->cmbParity->itemData(index).toString().at(0));
    emit changed();
}

void RTUPortEditor::on_cmbStopBits_currentIndexChanged(int index)
{
    if (!m_port || index < 0)
        return;
    m_port->setStopbits(ui->cmbStopBits->itemData(index).toInt());
    emit changed();
}

void RTUPortEditor::on_chkClearQueueIfTimeOut_toggled(bool on)
{
    if (!m_port)
        return;
    m_port->setProperty("clear_queue_if_timeout", on);
    emit changed();
}

void RTUPortEditor::on_chkClearPort_toggled(bool on)
{
    if (!m_port)
        return;
    m_port->setProperty("clear_port", on);
    emit changed();
}

void RTUPortEditor::on_b_check_clicked()
{
    if (!m_port || ui->b_check->isCheckable())
        return;
    ui->lbCheckStatus->clear();
    if (m_port->isOpened())
        m_port->close();
    if (m_port->open()) {
        ui->lbCheckStatus->setText(greenText(tr("Success.")));
        m_port->close();
    } else {
        ui->lbCheckStatus->setText(redText(tr("Failure: %1.").arg(m_port->errorString())));
    }
}

void RTUPortEditor::on_b_check_toggled(bool on)
{
    if (!m_port || !ui->b_check->isCheckable())
        return;
    if (!on) {
        m_port->close();
        ui->lbCheckStatus->setText(greenText(tr("Closed")));
        return;
    }
    if (m_port->open()) {
        ui->lbCheckStatus->setText(greenText(tr("Opened")));
    } else {
        ui->lbCheckStatus->setText(redText(m_port->errorString()));
        const QSignalBlocker blocker(ui->b_check);
        ui->b_check->setChecked(false);
    }
}

void RTUPortEditor::on_btnOpenRawRequest_clicked()
{
    if (!m_port)
        return;
    ui->lbRawStatus->clear();
    if (m_port->isOpened() || m_port->open())
        ui->lbRawStatus->setText(greenText(tr("Opened")));
    else
        ui->lbRawStatus->setText(redText(tr("Failure: %1.").arg(m_port->errorString())));
}

void RTUPortEditor::on_btnCloseRawRequest_clicked()
{
    if (!m_port)
        return;
    m_port->close();
    ui->lbRawStatus->setText(greenText(tr("Closed")));
}

void RTUPortEditor::on_btnSendRawRequest_clicked()
{
    if (!m_port)
        return;
    const QByteArray request = parseHex(ui->txtRawRequest->text());
    if (request.size() < 2) {
        ui->lbRawStatus->setText(redText(
            tr("The request must be pairs of hexadecimal digits: address, function, data.")));
        return;
    }
    sendRawRequest(request);
}

void RTUPortEditor::sendRawRequest(const QByteArray &request)
{
    // The polling thread may be in the middle of an exchange on this line.
    QSemaphore *lock = m_port->portLock();
    if (!lock->tryAcquire(1, RawRequestLockWait)) {
        ui->lbRawStatus->setText(redText(tr("The port is busy, try again.")));
        return;
    }
    if (!m_port->isOpened() && !m_port->open()) {
        lock->release();
        ui->lbRawStatus->setText(redText(tr("Failure: %1.").arg(m_port->errorString())));
        return;
    }
    QString rx;
    QString tx;
    const QByteArray reply = m_port->sendRawRequest(request, rx, tx, true);
    lock->release();
    if (!tx.isEmpty())
        ui->txtRawResponseLog->appendPlainText(tx);
    if (!rx.isEmpty())
        ui->txtRawResponseLog->appendPlainText(rx);
    if (reply.isEmpty()) {
        ui->lbRawStatus->setText(redText(tr("Failure: %1.").arg(m_port->errorString())));
        return;
    }
    ui->txtRawResponseLog->appendPlainText(tr("Reply: %1").arg(byteBufferToString(reply)));
    ui->lbRawStatus->setText(greenText(tr("Success.")));
}

void RTUPortEditor::on_btnClearRawResponseLog_clicked()
{
    ui->txtRawResponseLog->clear();
}
