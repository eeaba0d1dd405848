#include "discovery/serialportsettings.h"

#include "model/port.h"

bool SerialPortSettings::operator<(const SerialPortSettings &other) const
{
    if (name != other.name)
        return name < other.name;
    if (baudRate != other.baudRate)
        return baudRate < other.baudRate;
    return protocol.toString() < other.protocol.toString();
}

bool SerialPortSettings::equalsTo(const Port *port) const
{
    return port && name == port->serialName() && baudRate == port->baudrate()
        && protocol.parity == port->parity() && protocol.dataBits == port->dataBits()
        && protocol.stopBits == port->stopBits();
}
