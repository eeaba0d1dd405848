#include "simline.h"

#include "modbus/modbusframe.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace {

speed_t speedFor(int baud)
{
    switch (baud) {
    case 1200:
        return B1200;
    case 2400:
        return B2400;
    case 4800:
        return B4800;
    case 9600:
        return B9600;
    case 19200:
        return B19200;
    case 38400:
        return B38400;
    case 57600:
        return B57600;
    case 115200:
        return B115200;
    case 230400:
        return B230400;
    default:
        return B0;
    }
}

} // namespace

SimLine::SimLine(const LineSettings &settings)
    : m_settings(settings)
{
}

SimLine::~SimLine()
{
    close();
}

bool SimLine::open(QString &error)
{
    return m_settings.device.isEmpty() ? openPty(error) : openDevice(error);
}

bool SimLine::openPty(QString &error)
{
    m_fd = posix_openpt(O_RDWR | O_NOCTTY);
    if (m_fd < 0 || grantpt(m_fd) != 0 || unlockpt(m_fd) != 0) {
        error = QStringLiteral("pseudo-terminal: %1")
                    .arg(QString::fromLocal8Bit(std::strerror(errno)));
        close();
        return false;
    }
    char name[128];
    if (ptsname_r(m_fd, name, sizeof name) != 0) {
        error = QStringLiteral("ptsname: %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
        close();
        return false;
    }
    fcntl(m_fd, F_SETFL, fcntl(m_fd, F_GETFL) | O_NONBLOCK);
    m_path = QString::fromLocal8Bit(name);
    if (!m_settings.link.isEmpty()) {
        const QByteArray link = QFile::encodeName(m_settings.link);
        const QFileInfo info(m_settings.link);
        // Only a stale link is replaced, never a file of someone else's.
        if (info.isSymLink())
            ::unlink(link.constData());
        else if (info.exists()) {
            error = QStringLiteral("%1 exists and is not a symbolic link").arg(m_settings.link);
            close();
            return false;
        }
        if (::symlink(name, link.constData()) != 0) {
            error = QStringLiteral("symlink %1: %2")
                        .arg(m_settings.link, QString::fromLocal8Bit(std::strerror(errno)));
            close();
            return false;
        }
        m_linked = m_settings.link;
    }
    return true;
}

bool SimLine::openDevice(QString &error)
{
    const QByteArray path = QFile::encodeName(m_settings.device);
    m_fd = ::open(path.constData(), O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (m_fd < 0) {
        error = QStringLiteral("%1: %2").arg(m_settings.device,
                                             QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    termios tios;
    std::memset(&tios, 0, sizeof tios);
    const speed_t speed = speedFor(m_settings.baudrate);
    if (speed == B0 || tcgetattr(m_fd, &tios) != 0) {
        error = QStringLiteral("%1: unsupported line settings").arg(m_settings.device);
        close();
        return false;
    }
    cfmakeraw(&tios);
    cfsetispeed(&tios, speed);
    cfsetospeed(&tios, speed);
    tios.c_cflag |= CLOCAL | CREAD;
    tios.c_cflag &= ~(CSIZE | PARENB | PARODD | CSTOPB);
    tios.c_cflag |= m_settings.dataBits == 7 ? CS7 : CS8;
    if (m_settings.parity != 'N')
        tios.c_cflag |= PARENB | (m_settings.parity == 'O' ? PARODD : 0);
    if (m_settings.stopBits == 2)
        tios.c_cflag |= CSTOPB;
    tios.c_cc[VMIN] = 0;
    tios.c_cc[VTIME] = 0;
    if (tcsetattr(m_fd, TCSANOW, &tios) != 0) {
        error = QStringLiteral("%1: %2").arg(m_settings.device,
                                             QString::fromLocal8Bit(std::strerror(errno)));
        close();
        return false;
    }
    m_path = m_settings.device;
    return true;
}

void SimLine::close()
{
    if (!m_linked.isEmpty()) {
        // Remove the link only while it still leads to this line.
        if (QFileInfo(m_linked).symLinkTarget() == m_path)
            ::unlink(QFile::encodeName(m_linked).constData());
        m_linked.clear();
    }
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}

SimLine::ReadResult SimLine::read(QByteArray &out, int timeoutMs)
{
    out.clear();
    pollfd p {m_fd, POLLIN, 0};
    const int n = ::poll(&p, 1, timeoutMs);
    if (n < 0)
        return errno == EINTR ? Timeout : Failed;
    if (n == 0)
        return Timeout;
    if (p.revents & POLLIN) {
        char buf[1024];
        const ssize_t got = ::read(m_fd, buf, sizeof buf);
        if (got > 0) {
            out = QByteArray(buf, int(got));
            return Data;
        }
        if (got < 0 && (errno == EAGAIN || errno == EINTR))
            return Timeout;
        // EIO: the master closed its end of the pseudo-terminal.
        return m_settings.device.isEmpty() ? HungUp : Failed;
    }
    if (p.revents & (POLLHUP | POLLERR))
        return m_settings.device.isEmpty() ? HungUp : Failed;
    return Timeout;
}

bool SimLine::write(const QByteArray &bytes)
{
    int done = 0;
    int tries = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(m_fd, bytes.constData() + done, size_t(bytes.size() - done));
        if (n > 0) {
            done += int(n);
            continue;
        }
        if (n < 0 && (errno == EAGAIN || errno == EINTR) && ++tries < 100) {
            pollfd p {m_fd, POLLOUT, 0};
            ::poll(&p, 1, 10);
            continue;
        }
        return false;
    }
    return true;
}

void SimLine::discard()
{
    tcflush(m_fd, TCIOFLUSH);
}

int64_t SimLine::charactersUs(int count) const
{
    // ASCII characters carry 7 data bits when the framing says so; the
    // character time follows the framing either way.
    return int64_t(count)
        * ModbusFrame::characterTimeUs(m_settings.baudrate, m_settings.dataBits, m_settings.parity,
                                       m_settings.stopBits);
}

int64_t SimLine::silenceUs() const
{
    return ModbusFrame::frameSilenceUs(m_settings.baudrate, m_settings.dataBits, m_settings.parity,
                                       m_settings.stopBits);
}
