#ifndef MODBUSMEMORYLINK_H
#define MODBUSMEMORYLINK_H

#include "modbus/modbuslink.h"

#include <cstddef>
#include <vector>

// A scripted line for tests and fuzzers: the input shows up once the first
// request has been written, as bursts; the line falls silent once after each
// burst, and for good after the last (a wait then reports the timeout at
// once, so no real time passes). Written bytes are kept.
class ModbusMemoryLink : public ModbusLink
{
public:
    ModbusMemoryLink() = default;

    void appendBurst(const uint8_t *data, size_t length);
    // Splits data into bursts: every occurrence of separator ends one.
    void setInput(const uint8_t *data, size_t length, int separator);
    const std::vector<uint8_t> &written() const { return m_written; }
    // Makes every later operation fail with EIO, like an unplugged adapter.
    void setBroken(bool broken) { m_broken = broken; }

    int write(const uint8_t *data, int length, int64_t timeoutUs) override;
    int waitReadable(int64_t timeoutUs) override;
    int read(uint8_t *data, int size) override;
    int discardInput() override;

private:
    std::vector<std::vector<uint8_t>> m_bursts;
    size_t m_burst = 0;
    size_t m_offset = 0;
    bool m_broken = false;
    bool m_armed = false;
    std::vector<uint8_t> m_written;
};

#endif // MODBUSMEMORYLINK_H
