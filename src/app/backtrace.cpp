#include "app/backtrace.h"

#include <cerrno>
#include <cstdlib>
#include <cxxabi.h>
#include <execinfo.h>
#include <new>
#include <unistd.h>

BackTrace::Frame::Frame(const char *line)
{
    if (!line)
        return;
    // Delimiters must come in this order; the first one out of order ends the scan.
    enum Rank { None, Open, Plus, Close, LeftBracket, RightBracket };
    int rank = None;
    long slash = -1, open = -1, plus = -1, lbr = -1, rbr = -1;
    for (long i = 0; line[i]; ++i) {
        int found = None;
        switch (line[i]) {
        case '/':
            if (rank == None)
                slash = i;
            continue;
        case '(':
            found = Open;
            break;
        case '+':
            // Before the parenthesis a plus is part of the module path ("c++").
            if (rank == None)
                continue;
            found = Plus;
            break;
        case ')':
            found = Close;
            break;
        case '[':
            found = LeftBracket;
            break;
        case ']':
            found = RightBracket;
            break;
        default:
            continue;
        }
        if (found <= rank)
            break;
        rank = found;
        switch (found) {
        case Close:
            break; // only its place in the order matters
        case Open:
            open = i;
            break;
        case Plus:
            plus = i;
            break;
        case LeftBracket:
            lbr = i;
            break;
        case RightBracket:
            rbr = i;
            break;
        }
    }
    if (slash >= 0)
        directory = QString::fromLocal8Bit(line, slash);
    if (open >= 0)
        module = QString::fromLocal8Bit(line + slash + 1, open - slash - 1);
    if (open >= 0 && plus >= 0)
        mangled = QString::fromLocal8Bit(line + open + 1, plus - open - 1);
    if (lbr >= 0 && rbr >= 0)
        address = QString::fromLocal8Bit(line + lbr + 1, rbr - lbr - 1);

    if (!mangled.isEmpty()) {
        int status = 0;
        char *name
            = abi::__cxa_demangle(mangled.toLocal8Bit().constData(), nullptr, nullptr, &status);
        if (status == 0 && name)
            symbol = QString::fromLocal8Bit(name);
        free(name);
    }
}

QString BackTrace::Frame::printable() const
{
    return directory + QLatin1Char('/') + module + QLatin1String(": ")
        + (symbol.isEmpty() ? mangled : symbol) + QLatin1String(" [") + address + QLatin1Char(']');
}

BackTrace BackTrace::here(int skip)
{
    BackTrace trace;
    void *addresses[256];
    const int count = backtrace(addresses, 256);
    char **lines = backtrace_symbols(addresses, count);
    if (!lines) {
        fputs("malloc failed on retrieveing backtrace\n", stderr);
        return trace;
    }
    try {
        for (int i = qMax(skip, 0); i < count; ++i)
            trace.frames.append(Frame(lines[i]));
    } catch (const std::bad_alloc &) {
        fputs("There is not enough memory to retrieve backtrace\n", stderr);
    } catch (...) {
        fprintf(stderr, "Unknown exception in %s\n", __FUNCTION__);
    }
    free(lines);
    return trace;
}

QString BackTrace::printable() const
{
    QString text = QLatin1String("BT: obtained ") + QString::number(frames.size())
        + QLatin1String(" stack frames.\n");
    for (const Frame &frame : frames)
        text += frame.printable() + QLatin1Char('\n');
    return text;
}

void backtrace_file(FILE *stream)
{
    const QByteArray text = (BackTrace::here(2).printable() + QLatin1Char('\n')).toLocal8Bit();
    fwrite(text.constData(), 1, size_t(text.size()), stream);
    fflush(stream);
}

void backtrace_fd(int fd)
{
    const QByteArray text = (BackTrace::here(2).printable() + QLatin1Char('\n')).toLocal8Bit();
    const char *data = text.constData();
    qsizetype left = text.size();
    while (left > 0) {
        const ssize_t written = ::write(fd, data, size_t(left));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            break;
        data += written;
        left -= written;
    }
}
