#ifndef MODBUSIDENTITY_H
#define MODBUSIDENTITY_H

#include <QString>

// What a device's modbus_id asks for as proof of identity, and how to get it.
class ModbusIdentity
{
public:
    enum Method {
        ReadRegisters, // "#F3#addr#count": any answer is proof
        Hamilton, // 8 registers at 1031 must contain the id
        Nengshi, // 10 input registers at 0
        Y510B, // 7 registers at 2304
        Y610B, // 6 registers at 9728, up to 10 attempts
        Function17, // the first token of the function 17 reply must equal the id
    };

    static ModbusIdentity parse(const QString &modbusId);

    Method method = Function17;
    QString id; // the modbus_id as given
    int address = 0;
    int count = 1;
};

#endif // MODBUSIDENTITY_H
