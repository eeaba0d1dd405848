#ifndef STDERRCAPTURE_H
#define STDERRCAPTURE_H

#include <QByteArray>
#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

// Sends descriptor 2 to a temporary file for the life of the object;
// take() restores it and returns what was written.
class StderrCapture
{
public:
    StderrCapture()
    {
        fflush(stderr);
        if (m_file.open()) {
            m_saved = dup(STDERR_FILENO);
            dup2(m_file.handle(), STDERR_FILENO);
        }
    }
    ~StderrCapture() { restore(); }

    QByteArray take()
    {
        restore();
        m_file.seek(0);
        return m_file.readAll();
    }

private:
    void restore()
    {
        if (m_saved < 0)
            return;
        fflush(stderr);
        dup2(m_saved, STDERR_FILENO);
        close(m_saved);
        m_saved = -1;
    }

    QTemporaryFile m_file;
    int m_saved = -1;
};

#endif // STDERRCAPTURE_H
