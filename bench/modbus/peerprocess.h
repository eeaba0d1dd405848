#ifndef PEERPROCESS_H
#define PEERPROCESS_H

// Starts a program with its stdout on a pipe and kills it when done.

#include <csignal>
#include <cstdio>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

class PeerProcess
{
public:
    explicit PeerProcess(std::vector<std::string> argv)
    {
        int fds[2];
        if (pipe(fds) != 0)
            return;
        m_pid = fork();
        if (m_pid == 0) {
            dup2(fds[1], 1);
            close(fds[0]);
            close(fds[1]);
            std::vector<char *> args;
            for (std::string &a : argv)
                args.push_back(a.data());
            args.push_back(nullptr);
            execv(args[0], args.data());
            _exit(127);
        }
        close(fds[1]);
        m_out = fdopen(fds[0], "r");
    }
    ~PeerProcess()
    {
        if (m_pid > 0) {
            kill(m_pid, SIGTERM);
            waitpid(m_pid, nullptr, 0);
        }
        if (m_out)
            fclose(m_out);
    }
    // The next line of the program's output, without its newline.
    std::string readLine()
    {
        char line[512];
        if (!m_out || !fgets(line, sizeof line, m_out))
            return {};
        std::string s(line);
        while (!s.empty() && (s.back() == '\n' || s.back() == '\r'))
            s.pop_back();
        return s;
    }
    // Waits for the program to end by itself.
    int wait()
    {
        int status = 0;
        if (m_pid > 0 && waitpid(m_pid, &status, 0) == m_pid)
            m_pid = -1;
        return status;
    }

private:
    pid_t m_pid = -1;
    FILE *m_out = nullptr;
};

#endif // PEERPROCESS_H
