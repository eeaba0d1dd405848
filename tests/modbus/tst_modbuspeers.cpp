// The master against independent slaves: Debian's libmodbus (RTU, a helper
// program on its own pty) and pymodbus (ASCII, behind a socat pty pair).
// Both serve the same map, so every function runs against both.

#include "modbus/modbus.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

namespace {

enum Peer { LibmodbusRtu, PymodbusAscii };

// A running peer and a connected master context on its line.
class PeerLine
{
public:
    ~PeerLine() { stop(); }

    bool start(Peer peer, QString *why)
    {
        m_peer = peer;
        return peer == LibmodbusRtu ? startRtu(why) : startAscii(why);
    }

    modbus_t *ctx() const { return m_ctx; }
    QProcess &peerProcess() { return m_peer == LibmodbusRtu ? m_slave : m_socat; }

    void stop()
    {
        if (m_ctx) {
            modbus_close(m_ctx);
            modbus_free(m_ctx);
            m_ctx = nullptr;
        }
        for (QProcess *p : {&m_slave, &m_socat}) {
            if (p->state() != QProcess::NotRunning) {
                p->kill();
                p->waitForFinished(2000);
            }
        }
    }

    void setTimeouts(int responseMs, int byteMs)
    {
        const timeval response {responseMs / 1000, (responseMs % 1000) * 1000};
        const timeval byte {byteMs / 1000, (byteMs % 1000) * 1000};
        modbus_set_response_timeout(m_ctx, &response);
        modbus_set_byte_timeout(m_ctx, &byte);
    }

private:
    bool openContext(const QByteArray &path, QString *why)
    {
        m_ctx = m_peer == LibmodbusRtu ? modbus_new_rtu(path, 115200, 'N', 8, 1)
                                       : modbus_new_ascii(path, 9600, 'E', 7, 1);
        if (!m_ctx || modbus_connect(m_ctx) != 0) {
            *why = QString("connect %1: %2").arg(QString(path), modbus_strerror(errno));
            return false;
        }
        modbus_set_slave(m_ctx, 1);
        setTimeouts(300, 100);
        return true;
    }

    bool startRtu(QString *why)
    {
        m_slave.start(RTU_PEER, {"--pty", "--slave", "1"});
        if (!m_slave.waitForStarted(3000) || !m_slave.waitForReadyRead(3000)) {
            *why = "libmodbus peer did not start";
            return false;
        }
        return openContext(m_slave.readLine().trimmed(), why);
    }

    bool startAscii(QString *why)
    {
        const QString socat = QStandardPaths::findExecutable("socat");
        if (socat.isEmpty() || !QFileInfo::exists("/usr/bin/python3")) {
            *why = "socat or python3 missing";
            return false;
        }
        const QString a = m_dir.filePath("master");
        const QString b = m_dir.filePath("slave");
        m_socat.start(
            socat,
            {QString("pty,raw,echo=0,link=%1").arg(a), QString("pty,raw,echo=0,link=%1").arg(b)});
        QElapsedTimer timer;
        timer.start();
        while (!(QFileInfo::exists(a) && QFileInfo::exists(b)) && timer.elapsed() < 3000)
            QTest::qWait(10);
        m_slave.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_slave.start("/usr/bin/python3", {ASCII_PEER, b, "1"});
        if (!m_slave.waitForStarted(3000)) {
            *why = "pymodbus peer did not start";
            return false;
        }
        if (!openContext(QFile::encodeName(a), why))
            return false;
        // pymodbus takes a moment to import and open its port.
        uint16_t reg;
        setTimeouts(200, 100);
        while (timer.elapsed() < 15000) {
            if (modbus_read_registers(m_ctx, 0, 1, &reg) == 1) {
                setTimeouts(300, 100);
                return true;
            }
        }
        *why = "pymodbus peer does not answer";
        return false;
    }

    Peer m_peer = LibmodbusRtu;
    QTemporaryDir m_dir;
    QProcess m_slave;
    QProcess m_socat;
    modbus_t *m_ctx = nullptr;
};

} // namespace

class tst_ModbusPeers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void functions_data();
    void functions();
    void exceptions_data();
    void exceptions();
    void timeouts_data();
    void timeouts();
    void rawRequest_data();
    void rawRequest();
    void broadcast();
    void peerVanishes_data();
    void peerVanishes();

private:
    void addPeers();
    PeerLine *line(int peer);
    PeerLine m_lines[2];
    bool m_started[2] = {false, false};
    QString m_why[2];
};

void tst_ModbusPeers::initTestCase()
{
    m_started[LibmodbusRtu] = m_lines[LibmodbusRtu].start(LibmodbusRtu, &m_why[LibmodbusRtu]);
    m_started[PymodbusAscii] = m_lines[PymodbusAscii].start(PymodbusAscii, &m_why[PymodbusAscii]);
    QVERIFY2(m_started[LibmodbusRtu], qPrintable(m_why[LibmodbusRtu]));
    QVERIFY2(m_started[PymodbusAscii], qPrintable(m_why[PymodbusAscii]));
}

void tst_ModbusPeers::cleanupTestCase()
{
    m_lines[0].stop();
    m_lines[1].stop();
}

void tst_ModbusPeers::addPeers()
{
    QTest::addColumn<int>("peer");
    QTest::newRow("libmodbus rtu") << int(LibmodbusRtu);
    QTest::newRow("pymodbus ascii") << int(PymodbusAscii);
}

PeerLine *tst_ModbusPeers::line(int peer)
{
    return m_started[peer] ? &m_lines[peer] : nullptr;
}

void tst_ModbusPeers::functions_data()
{
    addPeers();
}

void tst_ModbusPeers::functions()
{
    QFETCH(int, peer);
    PeerLine *l = line(peer);
    QVERIFY(l);
    modbus_t *ctx = l->ctx();
    modbus_set_slave(ctx, 1);

    // Reads of the initial map, including the largest quantities.
    uint16_t regs[MODBUS_MAX_READ_REGISTERS];
    QCOMPARE(modbus_read_registers(ctx, 100, 2, regs), 2);
    QCOMPARE(regs[0], uint16_t(0x1000 + 100));
    QCOMPARE(regs[1], uint16_t(0x1000 + 101));
    QCOMPARE(modbus_read_input_registers(ctx, 800, MODBUS_MAX_READ_REGISTERS, regs),
             MODBUS_MAX_READ_REGISTERS);
    QCOMPARE(regs[0], uint16_t(0x2000 + 800));
    QCOMPARE(regs[MODBUS_MAX_READ_REGISTERS - 1], uint16_t(0x2000 + 800 + 124));
    uint8_t bits[20];
    QCOMPARE(modbus_read_bits(ctx, 101, 11, bits), 11);
    for (int i = 0; i < 11; ++i)
        QCOMPARE(int(bits[i]), (101 + i) % 2);
    QCOMPARE(modbus_read_input_bits(ctx, 30, 17, bits), 17);
    for (int i = 0; i < 17; ++i)
        QCOMPARE(int(bits[i]), int((30 + i) % 3 == 0));

    // Writes, read back.
    QCOMPARE(modbus_write_register(ctx, 10, 0xA55A), 1);
    QCOMPARE(modbus_read_registers(ctx, 10, 1, regs), 1);
    QCOMPARE(regs[0], uint16_t(0xA55A));
    const uint16_t values[MODBUS_MAX_WRITE_REGISTERS] = {0xFFFF, 0, 0x1234};
    QCOMPARE(modbus_write_registers(ctx, 20, MODBUS_MAX_WRITE_REGISTERS, values),
             MODBUS_MAX_WRITE_REGISTERS);
    QCOMPARE(modbus_read_registers(ctx, 20, 3, regs), 3);
    QCOMPARE(regs[0], uint16_t(0xFFFF));
    QCOMPARE(regs[2], uint16_t(0x1234));
    QCOMPARE(modbus_write_bit(ctx, 40, 1), 1);
    QCOMPARE(modbus_write_bit(ctx, 41, 0), 1);
    QCOMPARE(modbus_read_bits(ctx, 40, 2, bits), 2);
    QCOMPARE(int(bits[0]), 1);
    QCOMPARE(int(bits[1]), 0);
    const uint8_t pattern[10] = {1, 1, 0, 1, 0, 0, 0, 1, 1, 0};
    QCOMPARE(modbus_write_bits(ctx, 50, 10, pattern), 10);
    QCOMPARE(modbus_read_bits(ctx, 50, 10, bits), 10);
    QCOMPARE(QByteArray(reinterpret_cast<char *>(bits), 10),
             QByteArray(reinterpret_cast<const char *>(pattern), 10));

    // Function 17: the peers' own identification.
    uint8_t id[MODBUS_MAX_PDU_LENGTH];
    const int n = modbus_report_slave_id(ctx, id);
    QVERIFY(n >= 3);
    const QByteArray payload(reinterpret_cast<char *>(id), n);
    if (peer == LibmodbusRtu) {
        QCOMPARE(uint8_t(payload.at(1)), uint8_t(0xFF)); // run indicator
        QVERIFY(payload.mid(2).startsWith("LMB"));
    } else {
        QCOMPARE(payload,
                 QByteArray("\x2a"
                            "ASCIIPEER 01\xff"));
    }

    // Response times: the reply's start lies inside the exchange.
    timeval t1, t2;
    modbus_get_response_time1(ctx, &t1);
    modbus_get_response_time2(ctx, &t2);
    const qint64 us1 = qint64(t1.tv_sec) * 1000000 + t1.tv_usec;
    const qint64 us2 = qint64(t2.tv_sec) * 1000000 + t2.tv_usec;
    QVERIFY(us1 > 0);
    QVERIFY(us1 <= us2);
    QVERIFY(us2 < 300000);
}

void tst_ModbusPeers::exceptions_data()
{
    addPeers();
}

void tst_ModbusPeers::exceptions()
{
    QFETCH(int, peer);
    PeerLine *l = line(peer);
    QVERIFY(l);
    modbus_t *ctx = l->ctx();
    uint16_t regs[4];
    // Both ends of the map: the last register reads, one past fails.
    QCOMPARE(modbus_read_registers(ctx, 1023, 1, regs), 1);
    QCOMPARE(modbus_read_registers(ctx, 1023, 2, regs), -1);
    QCOMPARE(errno, int(EMBXILADD));
    QCOMPARE(modbus_write_register(ctx, 1024, 1), -1);
    QCOMPARE(errno, int(EMBXILADD));
    if (peer == LibmodbusRtu) {
        // Exceptions on demand by address.
        QCOMPARE(modbus_read_registers(ctx, 0x7F06, 1, regs), -1);
        QCOMPARE(errno, int(EMBXSBUSY));
        QCOMPARE(modbus_read_input_bits(ctx, 0x7F01, 1, reinterpret_cast<uint8_t *>(regs)), -1);
        QCOMPARE(errno, int(EMBXILFUN));
    }
    // A quantity of zero is the slave's to refuse (libmodbus waits its own
    // response timeout of 500 ms before it answers that one).
    l->setTimeouts(900, 100);
    QCOMPARE(modbus_read_registers(ctx, 0, 0, regs), -1);
    QCOMPARE(errno, int(EMBXILVAL));
    l->setTimeouts(300, 100);
}

void tst_ModbusPeers::timeouts_data()
{
    addPeers();
}

void tst_ModbusPeers::timeouts()
{
    QFETCH(int, peer);
    PeerLine *l = line(peer);
    QVERIFY(l);
    modbus_t *ctx = l->ctx();
    uint16_t regs[2];

    if (peer == LibmodbusRtu) {
        // The slave answers 80 ms late: a shorter timeout fails, a longer
        // one succeeds, and the late reply of the first does not leak into
        // the next exchange.
        l->setTimeouts(40, 20);
        QCOMPARE(modbus_read_registers(ctx, 0x7E08, 2, regs), -1);
        QCOMPARE(errno, ETIMEDOUT);
        l->setTimeouts(300, 100);
        QTest::qWait(100);
        QCOMPARE(modbus_read_registers(ctx, 5, 2, regs), 2);
        QCOMPARE(regs[0], uint16_t(0x1005));
        QCOMPARE(modbus_read_registers(ctx, 0x7E08, 1, regs), 1);
        QCOMPARE(regs[0], uint16_t(0x1000));
    }

    // Another address: the peer keeps quiet, the whole timeout passes.
    modbus_set_slave(ctx, 7);
    modbus_clear_txrx_bufs(ctx);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(modbus_read_registers(ctx, 0, 2, regs), -1);
    QCOMPARE(errno, ETIMEDOUT);
    QVERIFY(timer.elapsed() >= 290);
    QCOMPARE(modbus_get_rx_msg(ctx)->length, 0);
    modbus_set_slave(ctx, 1);
    if (peer == LibmodbusRtu) {
        // libmodbus takes the frame after a request for another slave for
        // that slave's reply and ignores it. Feed it one that it reads as
        // exactly one 8-byte reply (byte count 3), so that it is in step again.
        l->setTimeouts(50, 20);
        modbus_read_registers(ctx, 0x0300, 1, regs);
        l->setTimeouts(300, 100);
    }
    QCOMPARE(modbus_read_registers(ctx, 0, 2, regs), 2);
}

void tst_ModbusPeers::rawRequest_data()
{
    addPeers();
}

void tst_ModbusPeers::rawRequest()
{
    QFETCH(int, peer);
    PeerLine *l = line(peer);
    QVERIFY(l);
    modbus_t *ctx = l->ctx();
    uint8_t request[] = {1, 0x04, 0x00, 0x07, 0x00, 0x02};
    const int sent = modbus_send_raw_request(ctx, request, int(sizeof request));
    QCOMPARE(sent, peer == LibmodbusRtu ? 8 : 17);
    uint8_t rsp[MODBUS_MAX_ADU_LENGTH];
    const int n = modbus_receive_confirmation(ctx, rsp);
    // Address, function, count, 4 data bytes and the check field.
    QCOMPARE(n, peer == LibmodbusRtu ? 9 : 8);
    QCOMPARE(QByteArray(reinterpret_cast<char *>(rsp), 7).toHex(), QByteArray("01040420072008"));
}

void tst_ModbusPeers::broadcast()
{
    // libmodbus applies a broadcast write and stays silent.
    PeerLine *l = line(LibmodbusRtu);
    QVERIFY(l);
    modbus_t *ctx = l->ctx();
    modbus_set_slave(ctx, MODBUS_BROADCAST_ADDRESS);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(modbus_write_register(ctx, 77, 0x7777), 1);
    QVERIFY(timer.elapsed() < 100);
    modbus_set_slave(ctx, 1);
    QTest::qWait(20);
    uint16_t reg = 0;
    QCOMPARE(modbus_read_registers(ctx, 77, 1, &reg), 1);
    QCOMPARE(reg, uint16_t(0x7777));
}

void tst_ModbusPeers::peerVanishes_data()
{
    addPeers();
}

void tst_ModbusPeers::peerVanishes()
{
    // Killing the peer (RTU) or the pty pair (ASCII) makes the line hang up.
    QFETCH(int, peer);
    PeerLine *l = line(peer);
    QVERIFY(l);
    l->peerProcess().kill();
    l->peerProcess().waitForFinished(2000);
    uint16_t regs[1];
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(modbus_read_registers(l->ctx(), 0, 1, regs), -1);
    QCOMPARE(errno, EIO);
    QVERIFY(timer.elapsed() < 200);
}

QTEST_GUILESS_MAIN(tst_ModbusPeers)
#include "tst_modbuspeers.moc"
