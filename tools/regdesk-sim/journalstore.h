#ifndef JOURNALSTORE_H
#define JOURNALSTORE_H

#include "scenario.h"

#include <QByteArray>
#include <QDateTime>

#include <cstdint>

// The calibration journal: per channel a ring of 999 fixed-size records,
// each a six-byte time stamp and a body laid out by the instrument's
// family. Serves the structure (0x46) and blocks (0x45).
class JournalStore
{
public:
    enum Family { PH, Ion, Oxygen, Sodium, OxygenShort };
    static constexpr int capacity = 999;
    static constexpr uint32_t emptyIndex = 1000;

    JournalStore(const JournalSettings &settings, const QString &templateName);

    Family family() const { return m_family; }
    int recordSize() const { return m_recordSize; }
    uint32_t newestIndex() const { return m_newest; }
    static int bodySize(Family family);
    static Family familyFor(const QString &templateName, const QString &name);

    // Record i of a channel as stored; a place never written reads as erased
    // (0xFF), whose year is out of range.
    QByteArray record(int channel, int index) const;
    QDateTime recordDate(int index) const;
    bool written(int index) const;

    QByteArray handle(const QByteArray &pdu) const;

private:
    JournalSettings m_settings;
    Family m_family;
    int m_recordSize;
    uint32_t m_newest;
    int m_count; // records written, in the order of the ring
    QDateTime m_first;
};

#endif // JOURNALSTORE_H
