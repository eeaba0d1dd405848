#ifndef MODBUSASCIIBACKEND_H
#define MODBUSASCIIBACKEND_H

#include "modbus/modbuscontext.h"

// Modbus ASCII: ':' hex pairs, LRC, CR and a delimiter (LF unless changed).
class ModbusAsciiBackend : public ModbusBackend
{
public:
    explicit ModbusAsciiBackend(uint8_t delimiter)
        : m_delimiter(delimiter)
    {
    }
    int checksumLength() const override { return 1; }
    int send(modbus_t *ctx, const uint8_t *request, int length) override;
    int receive(modbus_t *ctx, int slave, uint8_t *frame) override;
    uint8_t delimiter() const { return m_delimiter; }

private:
    uint8_t m_delimiter;
};

#endif // MODBUSASCIIBACKEND_H
