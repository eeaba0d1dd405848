#include "registermap.h"

RegisterMap::RegisterMap()
    : m_regs(size, 0)
    , m_regFlags(size, 0)
    , m_bits(size, 0)
    , m_bitFlags(size, 0)
{
}

void RegisterMap::coverRegisters(unsigned address, int count, int flags)
{
    for (int i = 0; i < count && address + i < size; ++i)
        m_regFlags[address + i] |= uint8_t(flags);
}

void RegisterMap::coverBit(unsigned address, int flags)
{
    if (address < size)
        m_bitFlags[address] |= uint8_t(flags);
}

bool RegisterMap::registersAllow(unsigned address, int count, int flags) const
{
    if (count < 1 || address + count > size)
        return false;
    for (int i = 0; i < count; ++i) {
        if ((m_regFlags[address + i] & flags) != flags)
            return false;
    }
    return true;
}

bool RegisterMap::registersCovered(unsigned address, int count) const
{
    if (count < 1 || address + count > size)
        return false;
    for (int i = 0; i < count; ++i) {
        if (m_regFlags[address + i] == 0)
            return false;
    }
    return true;
}

bool RegisterMap::bitsAllow(unsigned address, int count, int flags) const
{
    if (count < 1 || address + count > size)
        return false;
    for (int i = 0; i < count; ++i) {
        if ((m_bitFlags[address + i] & flags) != flags)
            return false;
    }
    return true;
}

void RegisterMap::setReg(unsigned address, uint16_t value)
{
    if (address < size)
        m_regs[address] = value;
}

QByteArray RegisterMap::wire(unsigned address, int count) const
{
    QByteArray out;
    out.reserve(count * 2);
    for (int i = 0; i < count; ++i) {
        const uint16_t v = reg(address + i);
        out.append(char(v >> 8));
        out.append(char(v & 0xFF));
    }
    return out;
}

void RegisterMap::setWire(unsigned address, const QByteArray &bytes)
{
    for (int i = 0; i < bytes.size(); i += 2) {
        const uint16_t high = uint8_t(bytes[i]);
        const uint16_t low
            = i + 1 < bytes.size() ? uint8_t(bytes[i + 1]) : uint8_t(reg(address + i / 2) & 0xFF);
        setReg(address + i / 2, uint16_t(high << 8 | low));
    }
}

void RegisterMap::setBit(unsigned address, bool on)
{
    if (address < size)
        m_bits[address] = on ? 1 : 0;
}
