#ifndef SERIALPORTSETTINGS_H
#define SERIALPORTSETTINGS_H

#include <QChar>
#include <QMetaType>
#include <QString>

class Port;

// One serial framing, as "8N2".
class SerialPortProtocol
{
public:
    SerialPortProtocol() = default;
    SerialPortProtocol(int dataBits, QChar parity, int stopBits)
        : dataBits(dataBits)
        , parity(parity)
        , stopBits(stopBits)
    {
    }

    QString toString() const
    {
        return QStringLiteral("%1%2%3").arg(dataBits).arg(parity).arg(stopBits);
    }

    bool operator==(const SerialPortProtocol &other) const
    {
        return dataBits == other.dataBits && parity == other.parity && stopBits == other.stopBits;
    }

    int dataBits = 8;
    QChar parity = QLatin1Char('N');
    int stopBits = 2;
};

Q_DECLARE_METATYPE(SerialPortProtocol)

// The line settings with which a device was found or last checked; also a map key.
class SerialPortSettings
{
public:
    SerialPortSettings() = default;
    SerialPortSettings(const QString &name, int baudRate, const SerialPortProtocol &protocol)
        : name(name)
        , baudRate(baudRate)
        , protocol(protocol)
    {
    }

    bool operator<(const SerialPortSettings &other) const;
    bool operator==(const SerialPortSettings &other) const
    {
        return name == other.name && baudRate == other.baudRate && protocol == other.protocol;
    }
    bool equalsTo(const Port *port) const;

    QString name;
    int baudRate = 0;
    SerialPortProtocol protocol;
};

Q_DECLARE_METATYPE(SerialPortSettings)

#endif // SERIALPORTSETTINGS_H
