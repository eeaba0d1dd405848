#ifndef FAKESLAVE_H
#define FAKESLAVE_H

// A fault-injecting slave on a pseudo-terminal: a thread reads each request
// from the master side and answers with whatever bytes the test scripts,
// paced as the test wants. The master under test opens path().

#include "modbus/modbusframe.h"

#include <QByteArray>
#include <QList>
#include <QMutex>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <poll.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

class FakeSlave
{
public:
    enum Framing { Rtu, Ascii };

    struct Step
    {
        QByteArray bytes;
        int delayMs = 0; // before the bytes
        int byteGapMs = -1; // >= 0: one byte at a time with this gap
    };
    using Script = QList<Step>;
    // Given the request (RTU: with CRC; ASCII: the characters), the reply.
    using Handler = std::function<Script(const QByteArray &request)>;

    explicit FakeSlave(Framing framing)
        : m_framing(framing)
    {
        m_master = posix_openpt(O_RDWR | O_NOCTTY);
        if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0)
            return;
        char name[128];
        if (ptsname_r(m_master, name, sizeof name) != 0)
            return;
        m_path = name;
        makeRaw(m_master);
        // Keeps the slave side open between the master's connects.
        m_keep = ::open(name, O_RDWR | O_NOCTTY);
        if (m_keep >= 0)
            makeRaw(m_keep);
        m_thread = std::thread([this] { run(); });
    }

    ~FakeSlave()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
        if (m_keep >= 0)
            ::close(m_keep);
        if (m_master >= 0)
            ::close(m_master);
    }

    QByteArray path() const { return m_path; }
    // The character that ends an ASCII request (the master's delimiter).
    void setAsciiEnd(char end) { m_asciiEnd = end; }
    void setHandler(Handler handler)
    {
        QMutexLocker lock(&m_mutex);
        m_handler = std::move(handler);
    }
    // Closes the pty's master side: the line hangs up as if unplugged.
    void hangUp()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
        if (m_keep >= 0)
            ::close(m_keep);
        m_keep = -1;
        ::close(m_master);
        m_master = -1;
    }
    // Writes bytes to the line now, outside any exchange.
    void inject(const QByteArray &bytes) { writeAll(bytes); }
    // Waits until the slave has played its last reply to the end.
    void waitIdle() const
    {
        while (m_busy)
            usleep(1000);
    }
    QList<QByteArray> requests() const
    {
        QMutexLocker lock(&m_mutex);
        return m_requests;
    }

    static QByteArray rtu(const QByteArray &body)
    {
        QByteArray frame = body;
        frame.resize(body.size() + 2);
        ModbusFrame::appendCrc(reinterpret_cast<uint8_t *>(frame.data()), size_t(body.size()));
        return frame;
    }
    static QByteArray ascii(const QByteArray &body, char delimiter = '\n')
    {
        char out[1024];
        const size_t n
            = ModbusFrame::encodeAscii(reinterpret_cast<const uint8_t *>(body.data()),
                                       size_t(body.size()), uint8_t(delimiter), out, sizeof out);
        return QByteArray(out, int(n));
    }

private:
    static void makeRaw(int fd)
    {
        termios tios;
        if (tcgetattr(fd, &tios) == 0) {
            cfmakeraw(&tios);
            tcsetattr(fd, TCSANOW, &tios);
        }
    }

    // Length of the complete request at the start of buffer, 0 while incomplete.
    int requestEnd(const QByteArray &buffer) const
    {
        if (m_framing == Ascii) {
            const int end = buffer.indexOf(m_asciiEnd.load());
            return end < 0 ? 0 : end + 1;
        }
        const int length = ModbusFrame::requestLength(
            reinterpret_cast<const uint8_t *>(buffer.constData()), size_t(buffer.size()));
        return length > 0 && buffer.size() >= length ? length : 0;
    }

    void writeAll(const QByteArray &bytes)
    {
        int done = 0;
        while (done < bytes.size() && m_master >= 0) {
            const ssize_t rc
                = ::write(m_master, bytes.constData() + done, size_t(bytes.size() - done));
            if (rc > 0)
                done += int(rc);
            else if (rc < 0 && errno != EINTR && errno != EAGAIN)
                return;
        }
    }

    void play(const Script &script)
    {
        for (const Step &step : script) {
            if (step.delayMs > 0)
                usleep(useconds_t(step.delayMs) * 1000);
            if (step.byteGapMs < 0) {
                writeAll(step.bytes);
                continue;
            }
            for (int i = 0; i < step.bytes.size(); ++i) {
                if (i > 0 && step.byteGapMs > 0)
                    usleep(useconds_t(step.byteGapMs) * 1000);
                writeAll(step.bytes.mid(i, 1));
            }
        }
    }

    void run()
    {
        QByteArray buffer;
        while (!m_stop) {
            pollfd p {m_master, POLLIN, 0};
            const int ready = poll(&p, 1, 10);
            if (ready <= 0 || !(p.revents & POLLIN)) {
                // Silence ends a request whose length has no rule (vendor
                // functions); a hang-up without data is waited out.
                if (ready == 0 && !buffer.isEmpty() && m_framing == Rtu) {
                    const int length = ModbusFrame::requestLength(
                        reinterpret_cast<const uint8_t *>(buffer.constData()),
                        size_t(buffer.size()));
                    if (length == ModbusFrame::Unknown)
                        answer(buffer);
                }
                if (ready > 0)
                    usleep(5000);
                continue;
            }
            char chunk[512];
            const ssize_t n = ::read(m_master, chunk, sizeof chunk);
            if (n <= 0) {
                usleep(5000);
                continue;
            }
            buffer.append(chunk, int(n));
            // Requests sent back to back (broadcasts) can arrive in one read.
            for (int length = requestEnd(buffer); length > 0; length = requestEnd(buffer)) {
                QByteArray request = buffer.left(length);
                buffer.remove(0, length);
                answer(request);
            }
        }
    }

    void answer(QByteArray &buffer)
    {
        // Takes the request out of buffer.
        Handler handler;
        {
            QMutexLocker lock(&m_mutex);
            m_requests.append(buffer);
            handler = m_handler;
        }
        const QByteArray request = buffer;
        buffer.clear();
        if (handler) {
            m_busy = true;
            play(handler(request));
            m_busy = false;
        }
    }

    Framing m_framing;
    std::atomic<char> m_asciiEnd {'\n'};
    int m_master = -1;
    int m_keep = -1;
    QByteArray m_path;
    std::thread m_thread;
    std::atomic<bool> m_stop {false};
    std::atomic<bool> m_busy {false};
    mutable QMutex m_mutex;
    Handler m_handler;
    QList<QByteArray> m_requests;
};

#endif // FAKESLAVE_H
