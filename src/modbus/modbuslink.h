#ifndef MODBUSLINK_H
#define MODBUSLINK_H

#include <cstdint>

// The byte pipe under a Modbus context: a serial line, or a scripted buffer
// that lets tests and fuzzers drive the framing without a device.
// Failures return -1 with errno set; a line that has gone away reports EIO.
class ModbusLink
{
public:
    virtual ~ModbusLink() = default;

    // Writes all of data, waiting up to timeoutUs for room. length or -1.
    virtual int write(const uint8_t *data, int length, int64_t timeoutUs) = 0;
    // Waits up to timeoutUs (0 polls) for input: 1 ready, 0 silence, -1 error.
    virtual int waitReadable(int64_t timeoutUs) = 0;
    // Reads what is there, at most size bytes: the count, 0 when nothing
    // waits, -1 on error.
    virtual int read(uint8_t *data, int size) = 0;
    // Drops pending input; the count dropped when known.
    virtual int discardInput() = 0;
    virtual int descriptor() const { return -1; }
};

#endif // MODBUSLINK_H
