#include "modbus/modbusseriallink.h"

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

int64_t monotonicUs()
{
    timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return int64_t(ts.tv_sec) * 1000000 + ts.tv_nsec / 1000;
}

// poll() with a microsecond budget that survives signals.
int pollFor(int fd, short events, int64_t timeoutUs)
{
    const int64_t deadline = monotonicUs() + (timeoutUs > 0 ? timeoutUs : 0);
    for (;;) {
        int64_t left = deadline - monotonicUs();
        if (left < 0)
            left = 0;
        pollfd p {fd, events, 0};
        const int rc = ::poll(&p, 1, int((left + 999) / 1000));
        if (rc < 0) {
            if (errno == EINTR)
                continue;
            return -1;
        }
        if (rc == 0)
            return 0;
        if (p.revents & POLLNVAL) {
            errno = EIO;
            return -1;
        }
        // A hang-up or error is reported as ready: the read or write that
        // follows turns it into EIO.
        return 1;
    }
}

} // namespace

speed_t ModbusSerialLink::speedConstant(int baud)
{
    switch (baud) {
    case 110:
        return B110;
    case 300:
        return B300;
    case 600:
        return B600;
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
#ifdef B57600
    case 57600:
        return B57600;
#endif
#ifdef B115200
    case 115200:
        return B115200;
#endif
#ifdef B230400
    case 230400:
        return B230400;
#endif
#ifdef B460800
    case 460800:
        return B460800;
#endif
#ifdef B500000
    case 500000:
        return B500000;
#endif
#ifdef B576000
    case 576000:
        return B576000;
#endif
#ifdef B921600
    case 921600:
        return B921600;
#endif
#ifdef B1000000
    case 1000000:
        return B1000000;
#endif
#ifdef B1152000
    case 1152000:
        return B1152000;
#endif
#ifdef B1500000
    case 1500000:
        return B1500000;
#endif
#ifdef B2000000
    case 2000000:
        return B2000000;
#endif
#ifdef B2500000
    case 2500000:
        return B2500000;
#endif
#ifdef B3000000
    case 3000000:
        return B3000000;
#endif
#ifdef B3500000
    case 3500000:
        return B3500000;
#endif
#ifdef B4000000
    case 4000000:
        return B4000000;
#endif
    default:
        return 0;
    }
}

ModbusSerialLink *ModbusSerialLink::open(const char *device, int baud, char parity, int dataBits,
                                         int stopBits)
{
    const speed_t speed = speedConstant(baud);
    if (speed == 0) {
        errno = EINVAL;
        return nullptr;
    }
    const int fd = ::open(device, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return nullptr;
    // Exclusive use: a second open of the device fails with EBUSY. Devices
    // without the ioctl (some adapters) still work, only unguarded.
    ioctl(fd, TIOCEXCL);

    struct termios tios;
    if (tcgetattr(fd, &tios) != 0) {
        const int err = errno;
        ::close(fd);
        errno = err == EINVAL ? ENOTTY : err;
        return nullptr;
    }
    auto *link = new ModbusSerialLink(fd);
    link->m_saved = tios;
    link->m_restore = true;

    cfsetispeed(&tios, speed);
    cfsetospeed(&tios, speed);
    tios.c_cflag |= CREAD | CLOCAL;
    tios.c_cflag &= ~(CSIZE | PARENB | PARODD | CSTOPB | CRTSCTS);
    tios.c_cflag |= dataBits == 7 ? CS7 : CS8;
    if (stopBits == 2)
        tios.c_cflag |= CSTOPB;
    if (parity == 'E') {
        tios.c_cflag |= PARENB;
    } else if (parity == 'O') {
        tios.c_cflag |= PARENB | PARODD;
    }
    tios.c_lflag &= ~(ICANON | ECHO | ECHOE | ECHOK | ECHONL | ISIG | IEXTEN);
    tios.c_iflag &= ~(IXON | IXOFF | IXANY | ICRNL | INLCR | IGNCR | ISTRIP | BRKINT | PARMRK
                      | INPCK | IGNBRK);
    if (parity != 'N')
        tios.c_iflag |= INPCK;
    tios.c_oflag &= ~OPOST;
    // VMIN 1 with O_NONBLOCK: an empty line reads as EAGAIN, so a read of 0
    // bytes can only mean a hang-up.
    tios.c_cc[VMIN] = 1;
    tios.c_cc[VTIME] = 0;
    if (tcsetattr(fd, TCSANOW, &tios) != 0) {
        // Pseudo-terminals have no character framing and may refuse a
        // request for 7 bits or parity as a whole (EINVAL). The raw mode is
        // what matters there: keep the line's own framing and speed, ask
        // again, and carry on whatever the answer. Only a device that is
        // not a tty is fatal, and tcgetattr() has caught that above.
        struct termios current;
        if (tcgetattr(fd, &current) == 0) {
            const tcflag_t framing = CSIZE | PARENB | PARODD | CSTOPB;
            tios.c_cflag = (tios.c_cflag & ~framing) | (current.c_cflag & framing);
            tios.c_iflag &= ~INPCK;
            cfsetispeed(&tios, cfgetispeed(&current));
            cfsetospeed(&tios, cfgetospeed(&current));
            tcsetattr(fd, TCSANOW, &tios);
        }
    }
    tcflush(fd, TCIOFLUSH);
    return link;
}

ModbusSerialLink::ModbusSerialLink(int fd)
    : m_fd(fd)
{
}

ModbusSerialLink::~ModbusSerialLink()
{
    if (m_fd < 0)
        return;
    if (m_restore)
        tcsetattr(m_fd, TCSANOW, &m_saved);
    ::close(m_fd);
}

int ModbusSerialLink::write(const uint8_t *data, int length, int64_t timeoutUs)
{
    const int64_t deadline = monotonicUs() + timeoutUs;
    int done = 0;
    while (done < length) {
        const ssize_t rc = ::write(m_fd, data + done, size_t(length - done));
        if (rc > 0) {
            done += int(rc);
            continue;
        }
        if (rc < 0 && errno == EINTR)
            continue;
        if (rc < 0 && errno != EAGAIN) {
            // A vanished USB adapter or a hung-up pty: the caller closes on EIO.
            if (errno == ENXIO || errno == ENODEV || errno == EPIPE)
                errno = EIO;
            return -1;
        }
        const int64_t left = deadline - monotonicUs();
        if (left <= 0) {
            errno = ETIMEDOUT;
            return -1;
        }
        const int ready = pollFor(m_fd, POLLOUT, left);
        if (ready < 0)
            return -1;
    }
    return done;
}

int ModbusSerialLink::waitReadable(int64_t timeoutUs)
{
    return pollFor(m_fd, POLLIN, timeoutUs);
}

int ModbusSerialLink::read(uint8_t *data, int size)
{
    for (;;) {
        const ssize_t rc = ::read(m_fd, data, size_t(size));
        if (rc > 0)
            return int(rc);
        if (rc == 0) {
            // Either an empty line (a descriptor set up with VMIN 0) or end
            // of file after a hang-up; only the latter raises POLLHUP.
            pollfd p {m_fd, POLLIN, 0};
            if (::poll(&p, 1, 0) > 0 && (p.revents & (POLLHUP | POLLERR | POLLNVAL))) {
                errno = EIO;
                return -1;
            }
            return 0;
        }
        if (errno == EINTR)
            continue;
        if (errno == EAGAIN)
            return 0;
        if (errno == ENXIO || errno == ENODEV)
            errno = EIO;
        return -1;
    }
}

int ModbusSerialLink::discardInput()
{
    tcflush(m_fd, TCIFLUSH);
    // Bytes can sit in a pty's or an adapter's buffer beyond what tcflush()
    // reaches; read them away without waiting.
    int dropped = 0;
    uint8_t scratch[256];
    for (int round = 0; round < 16; ++round) {
        const ssize_t rc = ::read(m_fd, scratch, sizeof scratch);
        if (rc <= 0)
            break;
        dropped += int(rc);
    }
    return dropped;
}
