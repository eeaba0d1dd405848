#ifndef SIMPEER_H
#define SIMPEER_H

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QThread>

#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

// The instrument simulator as a child process; its first line of output is
// the path of the line to open. Spawned rather than forked: ThreadSanitizer
// does not allow threads after a fork of a threaded process.
class SimPeer
{
public:
    ~SimPeer() { stop(); }

    bool start(const QStringList &arguments)
    {
        int fds[2];
        if (pipe2(fds, O_CLOEXEC) != 0)
            return false;
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, fds[1], STDOUT_FILENO);
        QList<QByteArray> args {QByteArrayLiteral(REGDESK_SIM)};
        for (const QString &arg : arguments)
            args << arg.toLocal8Bit();
        std::vector<char *> argv;
        for (QByteArray &arg : args)
            argv.push_back(arg.data());
        argv.push_back(nullptr);
        const int rc = posix_spawn(&m_pid, REGDESK_SIM, &actions, nullptr, argv.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        ::close(fds[1]);
        m_out = fds[0];
        if (rc != 0) {
            m_pid = -1;
            return false;
        }
        QByteArray line;
        QElapsedTimer timer;
        timer.start();
        while (!line.contains('\n') && timer.elapsed() < 10000) {
            pollfd p {m_out, POLLIN, 0};
            if (poll(&p, 1, 100) <= 0)
                continue;
            char buffer[256];
            const ssize_t n = ::read(m_out, buffer, sizeof buffer);
            if (n <= 0)
                break;
            line.append(buffer, int(n));
        }
        m_path = QString::fromLocal8Bit(line.left(line.indexOf('\n'))).trimmed();
        return !m_path.isEmpty();
    }

    void stop()
    {
        if (m_pid > 0) {
            ::kill(m_pid, SIGTERM);
            int status = 0;
            for (int i = 0; i < 500 && waitpid(m_pid, &status, WNOHANG) == 0; ++i)
                QThread::msleep(10);
            if (waitpid(m_pid, &status, WNOHANG) == 0) {
                ::kill(m_pid, SIGKILL);
                waitpid(m_pid, &status, 0);
            }
            m_pid = -1;
        }
        if (m_out >= 0)
            ::close(m_out);
        m_out = -1;
    }

    QString path() const { return m_path; }

private:
    pid_t m_pid = -1;
    int m_out = -1;
    QString m_path;
};

#endif // SIMPEER_H
