#ifndef MODBUSRTUBACKEND_H
#define MODBUSRTUBACKEND_H

#include "modbus/modbuscontext.h"

// Modbus RTU: binary frames with CRC-16, delimited by silence on the line.
class ModbusRtuBackend : public ModbusBackend
{
public:
    int checksumLength() const override { return 2; }
    int send(modbus_t *ctx, const uint8_t *request, int length) override;
    int receive(modbus_t *ctx, int slave, uint8_t *frame) override;
};

#endif // MODBUSRTUBACKEND_H
