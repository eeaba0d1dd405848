#ifndef POLLINGSTATISTICS_H
#define POLLINGSTATISTICS_H

#include <QDateTime>
#include <QObject>
#include <QString>

class Port;
class Server;

// The statistics of the polling threads as the main window shows them: the
// text, the warning for the status bar, and the blinking "play" action.
class PollingStatistics : public QObject
{
    Q_OBJECT
public:
    // Refresh of the text and blink of the action while a thread polls.
    static constexpr int UpdateInterval = 3000;
    static constexpr int BlinkInterval = 1000;

    explicit PollingStatistics(QObject *parent = nullptr);

    // The whole text at `now`; keeps the first warning found for statusMessage().
    QString build(const Server *server, const QDateTime &now);
    // The warning of the last build, empty when there was none.
    QString statusMessage() const { return m_statusMessage; }
    bool hasWarning() const { return m_warning; }

    // Head line and eight counter lines of one polled port, then the overload
    // warnings; now in seconds since the epoch.
    static QString buildThreadStat(Port *port, qint64 now, QString *warning = nullptr);
    // Attached devices with failed or stale polled tags; empty when none.
    static QString buildErrorsStat(Port *port, QString *warning = nullptr);
    // A label padded with dots, then its value.
    static QString statLine(const QString &label, const QString &value);

    // The "play" action: shown and blinking while a thread polls.
    void setPollingActive(bool active);
    bool isPollingActive() const { return m_active; }
    void blink();
    bool isPlayVisible() const { return m_playVisible; }
    QString playIcon() const { return m_playIcon; }

signals:
    void playChanged(bool visible, const QString &icon);

private:
    void setPlay(bool visible, const QString &icon);

    QString m_statusMessage;
    bool m_warning = false;
    bool m_active = false;
    bool m_playVisible = false;
    QString m_playIcon;
};

#endif // POLLINGSTATISTICS_H
