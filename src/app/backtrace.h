#ifndef BACKTRACE_H
#define BACKTRACE_H

#include <QList>
#include <QString>

#include <cstdio>

// The call stack of the current thread, as glibc's backtrace_symbols sees it.
class BackTrace
{
public:
    // One line of backtrace_symbols: "directory/module(symbol+offset) [address]".
    struct Frame
    {
        QString directory;
        QString module;
        QString address;
        QString symbol; // demangled; empty when the name is not a C++ one
        QString mangled;

        Frame() = default;
        explicit Frame(const char *line);

        QString printable() const;
    };

    QList<Frame> frames;

    // The frames of the caller, leaving out the innermost 'skip' ones.
    static BackTrace here(int skip);

    QString printable() const;
};

// Printable back trace of the caller and a newline, two frames skipped.
void backtrace_file(FILE *stream);
void backtrace_fd(int fd);

#endif // BACKTRACE_H
