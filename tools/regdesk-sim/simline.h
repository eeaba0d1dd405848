#ifndef SIMLINE_H
#define SIMLINE_H

#include "scenario.h"

#include <QByteArray>
#include <QString>

#include <cstdint>

// The simulator's end of the line: the master side of a pseudo-terminal
// (whose slave path the master opens) or a real serial device.
class SimLine
{
public:
    enum ReadResult { Data, Timeout, HungUp, Failed };

    explicit SimLine(const LineSettings &settings);
    ~SimLine();

    bool open(QString &error);
    void close();
    // The path a master opens: the pseudo-terminal's slave or the device.
    QString path() const { return m_path; }

    // Waits up to timeoutMs for bytes. HungUp: no master has the
    // pseudo-terminal open.
    ReadResult read(QByteArray &out, int timeoutMs);
    bool write(const QByteArray &bytes);
    // Drops what waits in both directions.
    void discard();

    // Microseconds that count characters take on a real line.
    int64_t charactersUs(int count) const;
    int64_t silenceUs() const;

private:
    bool openPty(QString &error);
    bool openDevice(QString &error);

    LineSettings m_settings;
    int m_fd = -1;
    QString m_path;
    QString m_linked;
};

#endif // SIMLINE_H
