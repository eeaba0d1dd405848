#include "exchange/modbuslogger.h"

#include "config/utils.h"
#include "modbus/modbus.h"

#include <QMutex>
#include <QTime>

#include <atomic>

static std::atomic<ModbusLogger *> s_logger {nullptr};
static QMutex s_loggerMutex;

static QString now()
{
    return QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz"));
}

ModbusLogger::ModbusLogger(QObject *parent)
    : QObject(parent)
{
}

ModbusLogger *ModbusLogger::instance()
{
    ModbusLogger *logger = s_logger.load();
    if (logger)
        return logger;
    QMutexLocker locker(&s_loggerMutex);
    if (!s_logger.load())
        s_logger.store(new ModbusLogger);
    return s_logger.load();
}

void ModbusLogger::release()
{
    QMutexLocker locker(&s_loggerMutex);
    delete s_logger.exchange(nullptr);
}

void ModbusLogger::logRx(modbus_t *ctx, const uint8_t *bytes, uint8_t length)
{
    instance()->rxString(ctx, bytes, length);
}

void ModbusLogger::logTx(modbus_t *ctx, const uint8_t *bytes, uint8_t length)
{
    instance()->txString(ctx, bytes, length);
}

void ModbusLogger::logMessage(const QString &text)
{
    instance()->logString(text);
}

void ModbusLogger::rxString(modbus_t *ctx, const uint8_t *bytes, uint8_t length)
{
    timeval t1 {};
    timeval t2 {};
    modbus_get_response_time1(ctx, &t1);
    modbus_get_response_time2(ctx, &t2);
    // Only the microsecond part is shown here, unlike the per-device lines.
    emit rxData(QStringLiteral("%1 %2 RX(%3/%4): ")
                    .arg(now(), QString::fromLocal8Bit(modbus_get_dbg_context(ctx)))
                    .arg(t1.tv_usec / 1000)
                    .arg(t2.tv_usec / 1000)
                + byteBufferToString(reinterpret_cast<const char *>(bytes), length));
}

void ModbusLogger::txString(modbus_t *ctx, const uint8_t *bytes, uint8_t length)
{
    emit txData(QStringLiteral("%1 %2 TX(-/-): ")
                    .arg(now(), QString::fromLocal8Bit(modbus_get_dbg_context(ctx)))
                + byteBufferToString(reinterpret_cast<const char *>(bytes), length));
}

void ModbusLogger::logString(const QString &text)
{
    emit message(QStringLiteral("%1: %2").arg(now(), text));
}
