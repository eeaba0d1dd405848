#ifndef MODBUSSERIALLINK_H
#define MODBUSSERIALLINK_H

#include "modbus/modbuslink.h"

#include <termios.h>

// A tty (real port, USB adapter or pseudo-terminal) in raw mode.
class ModbusSerialLink : public ModbusLink
{
public:
    // Opens device exclusively and applies the line settings; nullptr and
    // errno on failure.
    static ModbusSerialLink *open(const char *device, int baud, char parity, int dataBits,
                                  int stopBits);
    // Adopts a descriptor opened elsewhere; it is closed with the link.
    explicit ModbusSerialLink(int fd);
    ~ModbusSerialLink() override;

    int write(const uint8_t *data, int length, int64_t timeoutUs) override;
    int waitReadable(int64_t timeoutUs) override;
    int read(uint8_t *data, int size) override;
    int discardInput() override;
    int descriptor() const override { return m_fd; }

    // termios speed constant for a baud rate, 0 when the system has none.
    static speed_t speedConstant(int baud);

private:
    int m_fd;
    bool m_restore = false;
    struct termios m_saved
    {
    };
};

#endif // MODBUSSERIALLINK_H
