#include "discovery/foundeddevice.h"

FoundedDevice::FoundedDevice(const SerialPortSettings &settings, bool ascii, int address)
    : name(settings.name)
    , baudRate(settings.baudRate)
    , dataBits(settings.protocol.dataBits)
    , parity(settings.protocol.parity)
    , stopBits(settings.protocol.stopBits)
    , ascii(ascii)
    , address(address)
{
}

SerialPortSettings FoundedDevice::settings() const
{
    return SerialPortSettings(name, baudRate, SerialPortProtocol(dataBits, parity, stopBits));
}

bool FoundedDevice::operator==(const FoundedDevice &other) const
{
    return name == other.name && baudRate == other.baudRate && dataBits == other.dataBits
        && parity == other.parity && stopBits == other.stopBits && ascii == other.ascii
        && address == other.address && function == other.function
        && registerValue == other.registerValue && reply == other.reply;
}
