#ifndef INSTRUMENT_H
#define INSTRUMENT_H

#include "registermap.h"
#include "scenario.h"
#include "signalgenerator.h"
#include "tagcodec.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QMap>

#include <memory>

class ArchiveStore;
class Identification;
class JournalStore;
class RingArchive;

// One simulated instrument at one address: its register map built from a
// template, the moving channel values, identification and the vendor
// functions. handle() turns a request PDU into a reply PDU.
class Instrument
{
public:
    Instrument(const InstrumentSettings &settings, int readOnlyException);
    ~Instrument();

    int address() const { return m_settings.address; }
    QString name() const { return m_settings.name; }
    const InstrumentSettings &settings() const { return m_settings; }
    RegisterMap &registers() { return m_map; }
    const QList<SimTag> &tags() const { return m_tags; }
    const SimTag *tag(const QString &name) const;

    // The value the master reads for a tag now.
    QVariant tagValue(const QString &name);
    // The value a tag starts with: the scenario's, the template's, or a
    // neutral one within its limits.
    QVariant startValue(const SimTag &tag) const;
    // The tag follows a curve.
    bool isMoving(const QString &name) const;
    // Stores a tag's value as a write from the line would.
    bool setTagValue(const QString &name, const QVariant &value);

    // pdu: function code and data. Returns the reply PDU; empty for none
    // (a broadcast gets no reply either way).
    QByteArray handle(const QByteArray &pdu);

    static QByteArray exception(int function, int code);

    // Seconds since the simulator started, the time base of the curves.
    double uptime() const;

private:
    void buildMap();
    void refreshChannels();
    void writeTag(const SimTag &tag, const QVariant &value);

    QByteArray readBits(int function, const QByteArray &pdu);
    QByteArray readRegisters(int function, const QByteArray &pdu);
    QByteArray writeCoil(const QByteArray &pdu);
    QByteArray writeRegister(const QByteArray &pdu);
    QByteArray writeCoils(const QByteArray &pdu);
    QByteArray writeRegisters(const QByteArray &pdu);
    int writeRefusal(unsigned address, int count, bool bits) const;

    InstrumentSettings m_settings;
    int m_readOnlyException;
    bool m_deviceSwap = true;
    RegisterMap m_map;
    QList<SimTag> m_tags;
    QList<QPair<int, SignalGenerator>> m_channels; // index into m_tags
    QElapsedTimer m_clock;
    std::unique_ptr<Identification> m_identification;
    std::unique_ptr<ArchiveStore> m_archives;
    std::unique_ptr<JournalStore> m_journal;
    std::unique_ptr<RingArchive> m_ring;
};

#endif // INSTRUMENT_H
