#include "discovery/scanner.h"

#include "app/debugqt.h"
#include "app/messagebox.h"
#include "config/utils.h"
#include "exchange/modbuslogger.h"
#include "modbus/modbus.h"
#include "model/port.h"
#include "model/server.h"

#include <QCoreApplication>
#include <QProgressDialog>

#include <algorithm>
#include <cerrno>
#include <cstring>

Scanner::Scanner(QObject *parent)
    : QObject(parent)
{
}

Scanner::~Scanner()
{
    closeModbus();
    delete m_dialog;
}

void Scanner::start()
{
    doScan(false);
}

int Scanner::foundCount() const
{
    int count = 0;
    for (const auto &devices : m_result)
        count += int(devices.size());
    return count;
}

void Scanner::cancel()
{
    m_cancelled = true;
    if (m_dialog)
        m_dialog->cancel();
}

bool Scanner::cancelled() const
{
    // A dialog closed under us (its parent went away) ends the scan as well.
    return m_cancelled || !m_dialog || m_dialog->wasCanceled();
}

void Scanner::closeModbus()
{
    if (!m_ctx)
        return;
    modbus_flush(m_ctx);
    modbus_close(m_ctx);
    modbus_free(m_ctx);
    m_ctx = nullptr;
}

void Scanner::closePortsOnLine(const QString &serialName)
{
    if (!m_server)
        return;
    // A line has one user at a time; the port reopens on its next exchange.
    for (Port *port : m_server->ports()) {
        if (port->serialName() == serialName && port->isOpened()) {
            LOG_INFO << QStringLiteral("close port '%1' for the scan").arg(port->name());
            port->close();
        }
    }
}

bool Scanner::askOpenError(const QString &port, const QString &error)
{
    if (m_openErrorQuestion)
        return m_openErrorQuestion(port, error);
    return MessageBox::question(m_parentWidget, tr("Confirmation required"),
                                tr("Error opening port '%1' (%2), continue?").arg(port, error),
                                QMessageBox::Yes | QMessageBox::No)
        == QMessageBox::Yes;
}

bool Scanner::openLine(const QString &port, int speed, const SerialPortProtocol &protocol,
                       bool &skipSpeed)
{
    skipSpeed = false;
    closeModbus();
    const QByteArray device = port.toLocal8Bit();
    const char parity = protocol.parity.toLatin1();
    if (m_task.ascii) {
        modbus_ascii_set_delimiter(m_task.delimiter);
        m_ctx = modbus_new_ascii(device.constData(), speed, parity, protocol.dataBits,
                                 protocol.stopBits);
    } else {
        m_ctx = modbus_new_rtu(device.constData(), speed, parity, protocol.dataBits,
                               protocol.stopBits);
    }
    closePortsOnLine(port);
    if (!m_ctx || modbus_connect(m_ctx) == -1) {
        const QString error = QString::fromLocal8Bit(modbus_strerror(errno));
        LOG_INFO << QStringLiteral("error opening port '%1' - %2").arg(port, error);
        closeModbus();
        skipSpeed = !askOpenError(port, error);
        return false;
    }
    modbus_set_tx_dbg_handler(m_ctx, &ModbusLogger::logTx);
    modbus_set_rx_dbg_handler(m_ctx, &ModbusLogger::logRx);
    const QString context
        = QStringLiteral("SCAN %1/%2/%3").arg(port).arg(speed).arg(protocol.toString());
    modbus_set_dbg_context(m_ctx, context.toLocal8Bit().constData());
    // Let the line settle after the open before the first request.
    mySleep(50);
    modbus_flush(m_ctx);
    return true;
}

void Scanner::updateLabel(const SerialPortSettings &settings, int address)
{
    if (!m_dialog)
        return;
    m_dialog->setLabelText(tr("scanning port: %1, speed: %2, slave: %3, total founded: %4")
                               .arg(settings.name)
                               .arg(settings.baudRate)
                               .arg(address)
                               .arg(foundCount()));
}

void Scanner::recordHit(const SerialPortSettings &settings, const FoundedDevice &device)
{
    m_result[settings].insert(device.address, device);
    LOG_INFO << QStringLiteral("founded device at port='%1', address=%2, reply='%3'")
                    .arg(settings.name)
                    .arg(device.address)
                    .arg(device.reply.isEmpty() ? QString::number(device.registerValue)
                                                : byteBufferToString(device.reply));
    updateLabel(settings, device.address);
    QCoreApplication::processEvents();
    emit deviceFounded(settings, device);
}

// Returns after the address was served; a function 17 hit already served the events.
void Scanner::probe(const SerialPortSettings &settings, int address)
{
    modbus_set_slave(m_ctx, address);
    if (m_task.useFunction17) {
        uint8_t buffer[256];
        std::memset(buffer, 0, sizeof buffer);
        errno = 0;
        const int rc = modbus_report_slave_id(m_ctx, buffer);
        if (rc > 0) {
            FoundedDevice device(settings, m_task.ascii, address);
            device.function = 17;
            device.reply = QByteArray(reinterpret_cast<const char *>(buffer),
                                      std::min(rc, int(sizeof buffer)));
            recordHit(settings, device);
            return;
        }
    }
    if (m_task.useFunction3) {
        uint16_t words[128];
        std::memset(words, 0, sizeof words);
        errno = 0;
        const int count = m_task.function3Count;
        // The library refuses counts above 125 before it writes anything.
        const int rc = modbus_read_registers(m_ctx, m_task.function3Register, count, words);
        if (rc > 0) {
            FoundedDevice device(settings, m_task.ascii, address);
            device.function = 3;
            if (count == 1)
                device.registerValue = words[0];
            else
                device.reply = QByteArray(reinterpret_cast<const char *>(words), count * 2);
            recordHit(settings, device);
        }
    }
    QCoreApplication::processEvents(QEventLoop::AllEvents, 150);
}

void Scanner::doScan(bool resume)
{
    Q_UNUSED(resume)
    m_result.clear();
    m_step = 0;
    m_cancelled = false;
    QList<int> speeds = m_task.speeds.values();
    std::sort(speeds.begin(), speeds.end());

    const int addresses = m_task.toAddress - m_task.fromAddress + 1;
    m_progressMaximum = (m_task.useFunction3 || m_task.useFunction17)
        ? addresses * int(speeds.size()) * int(m_task.ports.size()) * int(m_task.protocols.size())
            - 1
        : -1;
    delete m_dialog;
    m_dialog = new QProgressDialog(m_parentWidget);
    m_dialog->setWindowTitle(tr("Scanning.."));
    m_dialog->setCancelButtonText(tr("Cancel"));
    m_dialog->setMinimum(0);
    m_dialog->setMaximum(m_progressMaximum);
    m_dialog->setWindowModality(Qt::WindowModal);
    m_dialog->setMinimumDuration(0);
    emit started();

    const auto abort = [this]() {
        closeModbus();
        delete m_dialog;
        m_dialog = nullptr;
        emit stopped();
    };

    for (const QString &port : std::as_const(m_task.ports)) {
        for (int speed : std::as_const(speeds)) {
            closeModbus();
            for (const SerialPortProtocol &protocol : std::as_const(m_task.protocols)) {
                if (cancelled())
                    return abort();
                bool skipSpeed = false;
                if (!openLine(port, speed, protocol, skipSpeed)) {
                    if (skipSpeed)
                        break;
                    continue;
                }
                const SerialPortSettings settings(port, speed, protocol);
                for (int address = m_task.fromAddress; address <= m_task.toAddress; ++address) {
                    if (cancelled())
                        return abort();
                    updateLabel(settings, address);
                    // A modal dialog serves the events in setValue: Cancel may come here.
                    m_dialog->setValue(m_step);
                    if (cancelled())
                        return abort();
                    emit progress(m_step);
                    probe(settings, address);
                    ++m_step;
                }
                QCoreApplication::processEvents();
            }
        }
    }
    closeModbus();
    delete m_dialog;
    m_dialog = nullptr;
    emit finished();
}
