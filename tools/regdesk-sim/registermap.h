#ifndef REGISTERMAP_H
#define REGISTERMAP_H

#include <QByteArray>

#include <cstdint>
#include <vector>

// An instrument's memory as the line sees it: 65536 registers and 65536 bits,
// each with the functions allowed on it. A place no tag covers has no flags
// and answers with "illegal data address".
class RegisterMap
{
public:
    enum Flag {
        ReadHolding = 1, // function 3
        ReadInput = 2, // function 4
        Write = 4, // functions 6 and 16 (5 and 15 for bits)
        ReadBit = 8, // functions 1 and 2
    };

    RegisterMap();

    void coverRegisters(unsigned address, int count, int flags);
    void coverBit(unsigned address, int flags);
    // True when every place of the range has all of flags.
    bool registersAllow(unsigned address, int count, int flags) const;
    bool registersCovered(unsigned address, int count) const;
    bool bitsAllow(unsigned address, int count, int flags) const;

    uint16_t reg(unsigned address) const { return address < size ? m_regs[address] : 0; }
    void setReg(unsigned address, uint16_t value);
    // Registers as on the wire: most significant byte first.
    QByteArray wire(unsigned address, int count) const;
    // Stores wire bytes from address on; an odd last byte fills the high half.
    void setWire(unsigned address, const QByteArray &bytes);

    bool bit(unsigned address) const { return address < size && m_bits[address]; }
    void setBit(unsigned address, bool on);

    static constexpr unsigned size = 65536;

private:
    std::vector<uint16_t> m_regs;
    std::vector<uint8_t> m_regFlags;
    std::vector<uint8_t> m_bits;
    std::vector<uint8_t> m_bitFlags;
};

#endif // REGISTERMAP_H
