#ifndef MODBUSLOGGER_H
#define MODBUSLOGGER_H

#include <QObject>
#include <QString>

#include <cstdint>

typedef struct _modbus modbus_t;

// A process-wide tap on every frame of every port, offered as text lines.
// The signals are emitted in the thread of the exchange.
class ModbusLogger : public QObject
{
    Q_OBJECT
public:
    static ModbusLogger *instance();
    static void release();

    // Debug handlers given to the Modbus contexts.
    static void logRx(modbus_t *ctx, const uint8_t *bytes, uint8_t length);
    static void logTx(modbus_t *ctx, const uint8_t *bytes, uint8_t length);
    static void logMessage(const QString &text);

    void rxString(modbus_t *ctx, const uint8_t *bytes, uint8_t length);
    void txString(modbus_t *ctx, const uint8_t *bytes, uint8_t length);
    void logString(const QString &text);

signals:
    void rxData(const QString &line);
    void txData(const QString &line);
    void message(const QString &line);

private:
    explicit ModbusLogger(QObject *parent = nullptr);
};

#endif // MODBUSLOGGER_H
