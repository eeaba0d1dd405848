#ifndef ARCHIVESTORE_H
#define ARCHIVESTORE_H

#include "scenario.h"
#include "signalgenerator.h"

#include <QByteArray>
#include <QList>

#include <cstdint>

// The thirteen archives of the maker's instruments, one per recording
// period, lying one behind the other in one byte address space. The 1 s
// archive holds one record per second of the year, so a record's place
// tells its time stamp; records are made up on demand from the channel
// curves. Serves the structure (0x42), blocks (0x41) and the old block
// form (function 20, record number and length in registers).
class ArchiveStore
{
public:
    static constexpr int archiveCount = 13;

    ArchiveStore(const ArchiveSettings &settings, const QList<SignalGenerator> &curves);

    int recordSize() const { return m_recordSize; }
    uint32_t archiveSize(int archive) const;
    uint32_t archiveBase(int archive) const;
    static int period(int archive);
    // Second of the year as the master counts it.
    static uint32_t secondOfYear(const QDateTime &dt);

    // Bytes of the archive area from address on; past the end, nothing.
    QByteArray read(uint32_t address, int size) const;
    QByteArray record(int archive, uint32_t index) const;

    QByteArray handle(const QByteArray &pdu) const;

private:
    bool inHole(int archive, int year, uint32_t second) const;
    int year() const;

    ArchiveSettings m_settings;
    QList<SignalGenerator> m_curves;
    int m_recordSize;
    uint32_t m_total;
};

#endif // ARCHIVESTORE_H
