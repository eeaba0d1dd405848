#ifndef SCENARIO_H
#define SCENARIO_H

#include <QDateTime>
#include <QList>
#include <QString>
#include <QVariantMap>

// What a simulator run plays: the line, the instruments on it with their
// templates, archives and journals, and the faults. Read from a JSON file
// (see the README's "Simulator" section for the keys); the records below are
// plain values with the defaults a scenario may leave out.

// A fault that strikes a reply at random with the given rate (0..1), or
// every n-th request when "every" is above 0.
struct FaultRule
{
    double rate = 0.0;
    int every = 0;
    bool active() const { return rate > 0.0 || every > 0; }
};

struct FaultSettings
{
    FaultRule busy; // exception with one of busyCodes
    QList<int> busyCodes {4, 5, 6};
    FaultRule badChecksum; // CRC (RTU) or LRC (ASCII) damaged
    FaultRule silence; // no reply at all
    FaultRule garbage; // random bytes before the reply
    FaultRule wrongAddress; // reply under another slave address
    FaultRule truncated; // reply cut short
    QList<int> functions; // function codes the faults apply to; empty: all
    bool active() const;
};

struct LineSettings
{
    QString device; // a real serial device; empty: a pseudo-terminal
    QString link; // symlink to the pseudo-terminal's slave end
    int protocol = 0; // 0 RTU, 1 ASCII
    int delimiter = 10; // ASCII frame end after CR
    int baudrate = 9600;
    char parity = 'N';
    int dataBits = 8;
    int stopBits = 1;
    bool lineTiming = false; // pace frames as a real line at this baud rate
    int replyDelayMs = 0; // the instruments' think time
    int readOnlyException = 2; // exception for a write to a read-only register
    quint32 seed = 1;
};

// A channel tag's curve: base + amplitude * sin(2 pi t / period) + noise.
struct ChannelCurve
{
    double base = 0.0;
    double amplitude = 0.0;
    double periodS = 60.0;
    double noise = 0.0;
    double phase = 0.0;
    bool fixed = false;
};

struct IdentificationSettings
{
    // "long", "short" (model, text, firmware, date), "short_date" (model,
    // text, date), "compact" (the model alone, no blank) or "none" (no reply).
    QString form = QStringLiteral("long");
    QString model; // first token; default the template's modbus_id
    QString serial = QStringLiteral("N123");
    QString year = QStringLiteral("2021");
    QString text = QStringLiteral("SIM");
    QString firmware = QStringLiteral("10203-01");
    QString firmwareDate; // dd.MM.yyyy; default the template's date or today
    QString dateSeparator = QStringLiteral(".");
    QString tail = QStringLiteral("RS485");
    int slaveId = -1; // first reply byte; -1: the instrument's address
    int runIndicator = 0xFF;
    QString sensorText; // text at the outside sensors' id registers
};

struct ArchiveHole
{
    int archive = -1; // -1: every archive
    QDateTime from, to;
};

struct ArchiveSettings
{
    bool enabled = false;
    int valuesPerRecord = 4;
    int year = 0; // 0: the current year
    QList<ArchiveHole> holes;
    bool futureIsHole = true; // records later than now belong to last year
};

struct JournalSettings
{
    bool enabled = false;
    QString family; // ph, ion, oxygen, sodium, oxygen_short; default by template
    int recordSize = 0; // 0: by family
    int records = 10; // records written (at most 999)
    int newest = -1; // index of the newest record; 1000: empty; -1: by records
    bool wrapped = false; // the ring went round: all 999 records valid
    QDateTime first; // date of the oldest record
    int stepMinutes = 24 * 60;
};

struct RingSettings
{
    bool enabled = false;
    bool formatted = false; // erased: format label, no data
    bool wrapped = false; // the writer went round the 64 KiB ring
    int channels = 0; // 0 channel 0, 1 channel 1, 2 both
    int intervalCode = 0; // 0..7, as in the time frame
    int records = 2000; // records written, whole laps included
    int timeFrameEvery = 100; // records between time frames
    QDateTime start; // date of the first record
    int mode = 0; // 0: kosn = value * 100 + 1024; 1: kosn = value (+1024 Zolt)
};

struct InstrumentSettings
{
    int address = 1;
    QString templateRef;
    QVariantMap templateMap; // the template file as loaded
    QString name;
    QVariantMap values; // tag name -> starting value
    QMap<QString, ChannelCurve> curves;
    IdentificationSettings identification;
    ArchiveSettings archives;
    JournalSettings journal;
    RingSettings ring;
    FaultSettings faults;
    int replyDelayMs = -1; // -1: the line's
};

struct Scenario
{
    LineSettings line;
    QList<InstrumentSettings> instruments;
    FaultSettings faults;

    // Reads a scenario file; false with a reason on any error.
    static bool load(const QString &path, Scenario &out, QString &error);
    static bool fromMap(const QVariantMap &map, const QString &baseDir, Scenario &out,
                        QString &error);
    // A template by file path (absolute or relative to baseDir), by file
    // name under the built-in templates, or by its "name".
    static QVariantMap loadTemplate(const QString &ref, const QString &baseDir, QString &error);
};

#endif // SCENARIO_H
