#ifndef FOUNDEDDEVICE_H
#define FOUNDEDDEVICE_H

#include "discovery/serialportsettings.h"

#include <QByteArray>
#include <QChar>
#include <QMap>
#include <QMetaType>
#include <QString>

// One hit of a bus scan: where it answered, and what.
class FoundedDevice
{
public:
    FoundedDevice() = default;
    FoundedDevice(const SerialPortSettings &settings, bool ascii, int address);

    SerialPortSettings settings() const;
    // The reply without the slave id and run indicator bytes of function 17.
    QByteArray replyPayload() const { return reply.mid(2); }
    // The first reply byte, as function 17 gives it; 0 without a reply.
    int slaveId() const { return reply.isEmpty() ? 0 : int(qint8(reply.at(0))); }

    bool operator==(const FoundedDevice &other) const;

    QString name;
    int baudRate = 0;
    int dataBits = 8;
    QChar parity = QLatin1Char('N');
    int stopBits = 2;
    bool ascii = false;
    int address = 0;
    int function = 0; // 17 or 3: which probe answered
    quint16 registerValue = 0; // the answer of a one-register read
    QByteArray reply; // empty for a one-register read
};

Q_DECLARE_METATYPE(FoundedDevice)

// Hits by line settings, then by address.
typedef QMap<SerialPortSettings, QMap<int, FoundedDevice>> ScanResult;

Q_DECLARE_METATYPE(ScanResult)

#endif // FOUNDEDDEVICE_H
