#include "modbus/modbusmemorylink.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

void ModbusMemoryLink::appendBurst(const uint8_t *data, size_t length)
{
    m_bursts.emplace_back(data, data + length);
}

void ModbusMemoryLink::setInput(const uint8_t *data, size_t length, int separator)
{
    m_bursts.clear();
    m_burst = 0;
    m_offset = 0;
    m_bursts.emplace_back();
    for (size_t i = 0; i < length; ++i) {
        if (int(data[i]) == separator)
            m_bursts.emplace_back();
        else
            m_bursts.back().push_back(data[i]);
    }
}

int ModbusMemoryLink::write(const uint8_t *data, int length, int64_t)
{
    if (m_broken) {
        errno = EIO;
        return -1;
    }
    m_written.insert(m_written.end(), data, data + length);
    m_armed = true;
    return length;
}

int ModbusMemoryLink::waitReadable(int64_t)
{
    if (m_broken) {
        errno = EIO;
        return -1;
    }
    if (!m_armed)
        return 0;
    if (m_burst < m_bursts.size() && m_offset < m_bursts[m_burst].size())
        return 1;
    // The burst is spent: report one silence and move on to the next.
    if (m_burst < m_bursts.size()) {
        ++m_burst;
        m_offset = 0;
    }
    return 0;
}

int ModbusMemoryLink::read(uint8_t *data, int size)
{
    if (m_broken) {
        errno = EIO;
        return -1;
    }
    if (!m_armed || m_burst >= m_bursts.size() || size <= 0)
        return 0;
    const std::vector<uint8_t> &burst = m_bursts[m_burst];
    const size_t count = std::min(size_t(size), burst.size() - m_offset);
    if (count)
        std::memcpy(data, burst.data() + m_offset, count);
    m_offset += count;
    return int(count);
}

int ModbusMemoryLink::discardInput()
{
    if (!m_armed || m_burst >= m_bursts.size())
        return 0;
    const int dropped = int(m_bursts[m_burst].size() - m_offset);
    m_offset = m_bursts[m_burst].size();
    return dropped;
}
