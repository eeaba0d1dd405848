#ifndef SIMPROCESS_H
#define SIMPROCESS_H

// Runs the simulator as a child process for a test and stops it again:
// start() waits for the line path on its first output line.

#include <QElapsedTimer>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <csignal>

class SimProcess
{
public:
    ~SimProcess() { stop(); }

    bool start(const QStringList &args, QString *why = nullptr)
    {
        m_process.setProgram(QStringLiteral(SIM_BINARY));
        m_process.setArguments(args);
        m_process.setProcessChannelMode(QProcess::SeparateChannels);
        m_process.start();
        if (!m_process.waitForStarted(5000)) {
            if (why)
                *why = m_process.errorString();
            return false;
        }
        QElapsedTimer clock;
        clock.start();
        while (!m_process.canReadLine() && clock.elapsed() < 10000) {
            if (m_process.state() == QProcess::NotRunning || !m_process.waitForReadyRead(200)) {
                if (m_process.state() == QProcess::NotRunning)
                    break;
            }
        }
        if (!m_process.canReadLine()) {
            if (why)
                *why = QString::fromLocal8Bit(m_process.readAllStandardError());
            stop();
            return false;
        }
        m_path = QString::fromLocal8Bit(m_process.readLine()).trimmed();
        return true;
    }

    QString path() const { return m_path; }
    bool running() const { return m_process.state() == QProcess::Running; }
    QProcess &process() { return m_process; }

    // SIGTERM first, as a user would; the exit code tells whether it ended cleanly.
    int stop()
    {
        if (m_process.state() == QProcess::NotRunning)
            return m_process.exitCode();
        ::kill(pid_t(m_process.processId()), SIGTERM);
        if (!m_process.waitForFinished(5000)) {
            m_process.kill();
            m_process.waitForFinished(2000);
            return -1;
        }
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

private:
    QProcess m_process;
    QString m_path;
};

#endif // SIMPROCESS_H
