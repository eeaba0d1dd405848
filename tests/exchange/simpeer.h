#ifndef SIMPEER_H
#define SIMPEER_H

#include <QProcess>
#include <QStringList>

// The instrument simulator as a child process; its first line of output is
// the path of the line to open.
class SimPeer
{
public:
    ~SimPeer() { stop(); }

    bool start(const QStringList &arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(REGDESK_SIM), arguments);
        if (!m_process.waitForStarted(5000))
            return false;
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(10000))
                return false;
        }
        m_path = QString::fromLocal8Bit(m_process.readLine()).trimmed();
        return !m_path.isEmpty();
    }

    void stop()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.terminate();
        if (!m_process.waitForFinished(5000)) {
            m_process.kill();
            m_process.waitForFinished(3000);
        }
    }

    QString path() const { return m_path; }

private:
    QProcess m_process;
    QString m_path;
};

#endif // SIMPEER_H
