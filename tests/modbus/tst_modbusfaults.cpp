// The master against a slave that misbehaves on purpose: broken checksums,
// foreign addresses, garbage, frames cut off or dribbled, lying byte counts,
// a line that hangs up. Every row runs for RTU and for ASCII where the fault
// exists in both.

#include "fakeslave.h"

#include "modbus/modbus.h"

#include <QElapsedTimer>
#include <QTest>

#include <cerrno>
#include <memory>

namespace {

const int responseTimeoutMs = 300;
const int byteTimeoutMs = 50;

using Ctx = std::unique_ptr<modbus_t, void (*)(modbus_t *)>;

void freeCtx(modbus_t *ctx)
{
    modbus_close(ctx);
    modbus_free(ctx);
}

Ctx openLine(FakeSlave &slave, FakeSlave::Framing framing, int address = 1)
{
    modbus_t *ctx = framing == FakeSlave::Rtu ? modbus_new_rtu(slave.path(), 115200, 'N', 8, 1)
                                              : modbus_new_ascii(slave.path(), 9600, 'E', 7, 1);
    if (!ctx || modbus_connect(ctx) != 0) {
        if (ctx)
            modbus_free(ctx);
        return Ctx(nullptr, freeCtx);
    }
    modbus_set_slave(ctx, address);
    const timeval response {0, responseTimeoutMs * 1000};
    const timeval byte {0, byteTimeoutMs * 1000};
    modbus_set_response_timeout(ctx, &response);
    modbus_set_byte_timeout(ctx, &byte);
    return Ctx(ctx, freeCtx);
}

QByteArray frame(FakeSlave::Framing framing, const QByteArray &body)
{
    return framing == FakeSlave::Rtu ? FakeSlave::rtu(body) : FakeSlave::ascii(body);
}

// The checksum spoiled, the rest intact.
QByteArray corrupt(FakeSlave::Framing framing, QByteArray wire)
{
    if (framing == FakeSlave::Rtu) {
        wire[wire.size() - 1] = char(wire.at(wire.size() - 1) ^ 0x5A);
    } else {
        const int pos = wire.size() - 3; // last LRC digit
        wire[pos] = wire.at(pos) == '0' ? '1' : '0';
    }
    return wire;
}

using Step = FakeSlave::Step;

} // namespace

Q_DECLARE_METATYPE(FakeSlave::Script)

class tst_ModbusFaults : public QObject
{
    Q_OBJECT

private slots:
    void readFaults_data();
    void readFaults();
    void requestOnTheWire();
    void staleBytesAreDropped();
    void reportSlaveIdLyingCount_data();
    void reportSlaveIdLyingCount();
    void rawVendorReplies();
    void broadcastExpectsNoReply();
    void refusedLocally();
    void hangUpGivesEio_data();
    void hangUpGivesEio();
    void asciiDelimiter();
    void reconnectKeepsRawMode();
};

void tst_ModbusFaults::readFaults_data()
{
    QTest::addColumn<int>("framing");
    QTest::addColumn<FakeSlave::Script>("script");
    QTest::addColumn<int>("expectedErrno"); // 0: success
    QTest::addColumn<int>("minMs");
    QTest::addColumn<int>("maxMs");

    for (const auto framing : {FakeSlave::Rtu, FakeSlave::Ascii}) {
        const char *tag = framing == FakeSlave::Rtu ? "rtu" : "ascii";
        const auto f
            = [framing](const char *hex) { return frame(framing, QByteArray::fromHex(hex)); };
        const QByteArray good = f("01030412345678");
        auto row
            = [tag](const char *name) -> QTestData & { return QTest::addRow("%s: %s", tag, name); };

        row("good") << int(framing) << FakeSlave::Script {{good}} << 0 << 0 << 200;
        row("no reply") << int(framing) << FakeSlave::Script {} << ETIMEDOUT
                        << responseTimeoutMs - 20 << responseTimeoutMs + 200;
        row("bad checksum") << int(framing) << FakeSlave::Script {{corrupt(framing, good)}}
                            << int(EMBBADCRC) << 0 << 200;
        row("exception") << int(framing) << FakeSlave::Script {{f("018302")}} << int(EMBXILADD) << 0
                         << 200;
        row("busy") << int(framing) << FakeSlave::Script {{f("018306")}} << int(EMBXSBUSY) << 0
                    << 200;
        row("exception code out of range")
            << int(framing) << FakeSlave::Script {{f("018320")}} << int(EMBBADEXC) << 0 << 200;
        row("other slave, then silence")
            << int(framing) << FakeSlave::Script {{f("02030412345678")}} << ETIMEDOUT
            << responseTimeoutMs - 20 << responseTimeoutMs + 200;
        row("other slave, then ours")
            << int(framing) << FakeSlave::Script {{f("0203040000FFFF")}, {good, 20}} << 0 << 0
            << 250;
        row("other function") << int(framing) << FakeSlave::Script {{f("01040412345678")}}
                              << int(EMBBADDATA) << 0 << 200;
        row("three registers for two")
            << int(framing) << FakeSlave::Script {{f("010306123456789ABC")}} << int(EMBBADDATA) << 0
            << 200;
        row("cut off midway") << int(framing) << FakeSlave::Script {{good.left(5)}} << ETIMEDOUT
                              << byteTimeoutMs - 10 << responseTimeoutMs - 50;
        row("one byte at a time") << int(framing) << FakeSlave::Script {{good, 0, 3}} << 0 << 0
                                  << 400;
        row("bytes slower than the byte timeout")
            << int(framing) << FakeSlave::Script {{good, 0, byteTimeoutMs * 2}} << ETIMEDOUT << 0
            << responseTimeoutMs;
        row("noise, silence, reply")
            << int(framing)
            << FakeSlave::Script {{QByteArray::fromHex("55aa17")}, {good, byteTimeoutMs * 2}} << 0
            << 0 << 300;
        // RTU has no marker to resync on: the noise spoils the frame's CRC.
        // ASCII skips everything up to the ':'.
        row("noise glued to the reply")
            << int(framing) << FakeSlave::Script {{QByteArray::fromHex("00ff") + good}}
            << (framing == FakeSlave::Rtu ? int(EMBBADCRC) : 0) << 0 << 200;
    }
    // ASCII only: a new ':' abandons a frame in progress; bad characters.
    const QByteArray good = FakeSlave::ascii(QByteArray::fromHex("01030412345678"));
    QTest::addRow("ascii: restart on ':'")
        << int(FakeSlave::Ascii) << FakeSlave::Script {{good.left(9) + good}} << 0 << 0 << 200;
    QTest::addRow("ascii: odd length")
        << int(FakeSlave::Ascii) << FakeSlave::Script {{QByteArray(":010304123\r\n")}}
        << int(EMBBADDATA) << 0 << 200;
    QTest::addRow("ascii: not hex")
        << int(FakeSlave::Ascii) << FakeSlave::Script {{QByteArray(":0103G41234567800\r\n")}}
        << int(EMBBADDATA) << 0 << 200;
    QTest::addRow("ascii: lower-case hex accepted")
        << int(FakeSlave::Ascii) << FakeSlave::Script {{good.toLower()}} << 0 << 0 << 200;
    // RTU only: a valid exception frame is exactly 5 bytes long.
    QTest::addRow("rtu: exception glued to noise")
        << int(FakeSlave::Rtu)
        << FakeSlave::Script {{FakeSlave::rtu(QByteArray::fromHex("018302")) + "zz"}}
        << int(EMBXILADD) << 0 << 200;
}

void tst_ModbusFaults::readFaults()
{
    QFETCH(int, framing);
    QFETCH(FakeSlave::Script, script);
    QFETCH(int, expectedErrno);
    QFETCH(int, minMs);
    QFETCH(int, maxMs);

    const auto fr = FakeSlave::Framing(framing);
    FakeSlave slave(fr);
    slave.setHandler([script](const QByteArray &) { return script; });
    Ctx ctx = openLine(slave, fr);
    QVERIFY(ctx);

    uint16_t regs[2] = {0, 0};
    QElapsedTimer timer;
    timer.start();
    errno = 0;
    const int rc = modbus_read_registers(ctx.get(), 0, 2, regs);
    const int err = errno;
    const qint64 elapsed = timer.elapsed();

    if (expectedErrno == 0) {
        QCOMPARE(rc, 2);
        QCOMPARE(regs[0], uint16_t(0x1234));
        QCOMPARE(regs[1], uint16_t(0x5678));
    } else {
        QCOMPARE(rc, -1);
        QCOMPARE(err, expectedErrno);
    }
    QVERIFY2(elapsed >= minMs && elapsed <= maxMs, qPrintable(QString::number(elapsed)));

    // Whatever happened, the reply times are ordered and within the exchange.
    timeval t1, t2;
    QCOMPARE(modbus_get_response_time1(ctx.get(), &t1), 0);
    QCOMPARE(modbus_get_response_time2(ctx.get(), &t2), 0);
    const qint64 us1 = qint64(t1.tv_sec) * 1000000 + t1.tv_usec;
    const qint64 us2 = qint64(t2.tv_sec) * 1000000 + t2.tv_usec;
    QVERIFY(us1 <= us2);
    QVERIFY(us2 <= elapsed * 1000 + 1000);
    if (script.isEmpty()) {
        QCOMPARE(modbus_get_rx_msg(ctx.get())->length, 0);
        QCOMPARE(us1, us2);
    }

    // The line is usable again at once: nothing of the fault lingers.
    slave.waitIdle();
    slave.setHandler([fr](const QByteArray &) {
        return FakeSlave::Script {{frame(fr,
                                         QByteArray::fromHex("0103040001"
                                                             "0002"))}};
    });
    QCOMPARE(modbus_read_registers(ctx.get(), 0, 2, regs), 2);
    QCOMPARE(regs[1], uint16_t(2));
}

void tst_ModbusFaults::requestOnTheWire()
{
    // The frame bytes as published examples give them, and the records and
    // handlers that carry them to the traffic log.
    static QList<QByteArray> rx, tx;
    static QByteArray labelSeen;
    rx.clear();
    tx.clear();
    for (const auto fr : {FakeSlave::Rtu, FakeSlave::Ascii}) {
        FakeSlave slave(fr);
        slave.setHandler([fr](const QByteArray &) {
            return FakeSlave::Script {{frame(fr, QByteArray::fromHex("01030400640065"))}};
        });
        Ctx ctx = openLine(slave, fr);
        QVERIFY(ctx);
        modbus_set_rx_dbg_handler(ctx.get(), [](modbus_t *c, const uint8_t *b, uint8_t n) {
            rx.append(QByteArray(reinterpret_cast<const char *>(b), n));
            labelSeen = modbus_get_dbg_context(c);
        });
        modbus_set_tx_dbg_handler(ctx.get(), [](modbus_t *, const uint8_t *b, uint8_t n) {
            tx.append(QByteArray(reinterpret_cast<const char *>(b), n));
        });
        {
            QByteArray label = "pump/level";
            modbus_set_dbg_context(ctx.get(), label.constData());
            label.fill('x'); // the library keeps its own copy
        }
        uint16_t regs[2];
        QCOMPARE(modbus_read_registers(ctx.get(), 0x006B, 2, regs), 2);
        QCOMPARE(labelSeen, QByteArray("pump/level"));

        const QByteArray onWire = slave.requests().value(0);
        const modbus_msg_t *txMsg = modbus_get_tx_msg(ctx.get());
        const modbus_msg_t *rxMsg = modbus_get_rx_msg(ctx.get());
        const QByteArray txRecord(reinterpret_cast<const char *>(txMsg->buf), txMsg->length);
        const QByteArray rxRecord(reinterpret_cast<const char *>(rxMsg->buf), rxMsg->length);
        if (fr == FakeSlave::Rtu) {
            QCOMPARE(onWire.toHex(), QByteArray("0103006b0002b5d7"));
            QCOMPARE(txRecord, onWire);
            QCOMPARE(rxRecord, FakeSlave::rtu(QByteArray::fromHex("01030400640065")));
        } else {
            QCOMPARE(onWire, QByteArray(":0103006B00028F\r\n"));
            QCOMPARE(txRecord.toHex(), QByteArray("0103006b00028f"));
            QCOMPARE(rxRecord.toHex(), QByteArray("010304006400652f"));
        }
        QCOMPARE(tx.last(), txRecord);
        QCOMPARE(rx.last(), rxRecord);

        modbus_clear_txrx_bufs(ctx.get());
        QCOMPARE(modbus_get_tx_msg(ctx.get())->length, 0);
        QCOMPARE(modbus_get_rx_msg(ctx.get())->length, 0);
    }
    QCOMPARE(modbus_get_rx_msg(nullptr)->length, 0);
    QCOMPARE(modbus_get_tx_msg(nullptr)->length, 0);
    QVERIFY(!modbus_get_dbg_context(nullptr));
}

void tst_ModbusFaults::staleBytesAreDropped()
{
    // A late reply left on the line must not be taken for the next answer.
    FakeSlave slave(FakeSlave::Rtu);
    Ctx ctx = openLine(slave, FakeSlave::Rtu);
    QVERIFY(ctx);
    slave.inject(FakeSlave::rtu(QByteArray::fromHex("0103040bad0bad")));
    QTest::qWait(30);
    slave.setHandler([](const QByteArray &) {
        return FakeSlave::Script {{FakeSlave::rtu(QByteArray::fromHex("0103040001"
                                                                      "0002"))}};
    });
    uint16_t regs[2];
    QCOMPARE(modbus_read_registers(ctx.get(), 0, 2, regs), 2);
    QCOMPARE(regs[0], uint16_t(1));
}

void tst_ModbusFaults::reportSlaveIdLyingCount_data()
{
    QTest::addColumn<int>("framing");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QByteArray>("payload");

    const QByteArray text = "\x2a\xffZolt-42 N123 12345-01 01.02.2020";
    const char count = char(text.size());
    for (const auto fr : {FakeSlave::Rtu, FakeSlave::Ascii}) {
        const char *tag = fr == FakeSlave::Rtu ? "rtu" : "ascii";
        QTest::addRow("%s: honest", tag)
            << int(fr) << frame(fr, "\x01\x11" + QByteArray(1, count) + text) << text;
        QTest::addRow("%s: count too small", tag)
            << int(fr) << frame(fr, "\x01\x11" + QByteArray(1, char(count - 10)) + text) << text;
        QTest::addRow("%s: count too large", tag)
            << int(fr) << frame(fr, "\x01\x11" + QByteArray(1, char(count + 40)) + text) << text;
    }
}

void tst_ModbusFaults::reportSlaveIdLyingCount()
{
    QFETCH(int, framing);
    QFETCH(QByteArray, reply);
    QFETCH(QByteArray, payload);
    const auto fr = FakeSlave::Framing(framing);
    FakeSlave slave(fr);
    slave.setHandler([reply](const QByteArray &) { return FakeSlave::Script {{reply}}; });
    Ctx ctx = openLine(slave, fr);
    QVERIFY(ctx);
    uint8_t dest[MODBUS_MAX_PDU_LENGTH] = {};
    QElapsedTimer timer;
    timer.start();
    const int rc = modbus_report_slave_id(ctx.get(), dest);
    QCOMPARE(rc, payload.size());
    QCOMPARE(QByteArray(reinterpret_cast<char *>(dest), rc), payload);
    // A lying count costs at most the byte timeout, never the response timeout.
    QVERIFY(timer.elapsed() < responseTimeoutMs);
}

void tst_ModbusFaults::rawVendorReplies()
{
    FakeSlave slave(FakeSlave::Rtu);
    Ctx ctx = openLine(slave, FakeSlave::Rtu);
    QVERIFY(ctx);
    uint8_t rsp[MODBUS_MAX_ADU_LENGTH];

    // Archive block (0x41): slave, function, byte count, data.
    const QByteArray block = FakeSlave::rtu(QByteArray::fromHex("014104deadbeef"));
    slave.setHandler([block](const QByteArray &) { return FakeSlave::Script {{block}}; });
    uint8_t blockRequest[] = {0x01, 0x41, 0x00, 0x00, 0x10, 0x00, 0x04};
    QCOMPARE(modbus_send_raw_request(ctx.get(), blockRequest, int(sizeof blockRequest)), 9);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(modbus_receive_confirmation(ctx.get(), rsp), block.size());
    QCOMPARE(QByteArray(reinterpret_cast<char *>(rsp), block.size()), block);
    QVERIFY(timer.elapsed() < byteTimeoutMs); // the count told the end
    QCOMPARE(slave.requests().value(0), FakeSlave::rtu(QByteArray::fromHex("01410000100004")));

    // A reply without a byte count ends when the line falls silent.
    const QByteArray fixed = FakeSlave::rtu(QByteArray::fromHex("01460102030405"));
    slave.setHandler([fixed](const QByteArray &) { return FakeSlave::Script {{fixed}}; });
    uint8_t journalRequest[] = {0x01, 0x46};
    QVERIFY(modbus_send_raw_request(ctx.get(), journalRequest, 2) > 0);
    QCOMPARE(modbus_receive_confirmation(ctx.get(), rsp), fixed.size());
    QCOMPARE(QByteArray(reinterpret_cast<char *>(rsp), fixed.size()), fixed);

    // An exception reply is a frame for the caller to judge, not an error.
    slave.setHandler([](const QByteArray &) {
        return FakeSlave::Script {{FakeSlave::rtu(QByteArray::fromHex("01c106"))}};
    });
    QVERIFY(modbus_send_raw_request(ctx.get(), blockRequest, int(sizeof blockRequest)) > 0);
    QCOMPARE(modbus_receive_confirmation(ctx.get(), rsp), 5);
    QCOMPARE(rsp[2], uint8_t(6));

    // Standard function through the raw path: length from the function.
    slave.setHandler([](const QByteArray &) {
        return FakeSlave::Script {{FakeSlave::rtu(QByteArray::fromHex("01030400010002"))}};
    });
    uint8_t read[] = {0x01, 0x03, 0x00, 0x00, 0x00, 0x02};
    QVERIFY(modbus_send_raw_request(ctx.get(), read, 6) > 0);
    QCOMPARE(modbus_receive_confirmation(ctx.get(), rsp), 9);

    uint8_t tooShort[] = {0x01};
    QCOMPARE(modbus_send_raw_request(ctx.get(), tooShort, 1), -1);
    QCOMPARE(errno, EINVAL);
}

void tst_ModbusFaults::broadcastExpectsNoReply()
{
    FakeSlave slave(FakeSlave::Rtu);
    Ctx ctx = openLine(slave, FakeSlave::Rtu, 0);
    QVERIFY(ctx);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(modbus_write_register(ctx.get(), 0x10, 0xBEEF), 1);
    const uint16_t values[3] = {1, 2, 3};
    QCOMPARE(modbus_write_registers(ctx.get(), 0x10, 3, values), 3);
    QVERIFY(timer.elapsed() < responseTimeoutMs);
    QTRY_COMPARE(slave.requests().size(), 2);
    QCOMPARE(slave.requests().at(0), FakeSlave::rtu(QByteArray::fromHex("00060010beef")));

    uint16_t regs[1];
    QCOMPARE(modbus_read_registers(ctx.get(), 0, 1, regs), -1);
    QCOMPARE(errno, EINVAL);
}

void tst_ModbusFaults::refusedLocally()
{
    // Limits and bad arguments fail before anything reaches the line.
    FakeSlave slave(FakeSlave::Rtu);
    Ctx ctx = openLine(slave, FakeSlave::Rtu);
    QVERIFY(ctx);
    uint16_t regs[MODBUS_MAX_READ_REGISTERS + 1];
    uint8_t bits[MODBUS_MAX_READ_BITS + 1] = {};
    QCOMPARE(modbus_read_registers(ctx.get(), 0, MODBUS_MAX_READ_REGISTERS + 1, regs), -1);
    QCOMPARE(errno, int(EMBMDATA));
    QCOMPARE(modbus_read_input_bits(ctx.get(), 0, MODBUS_MAX_READ_BITS + 1, bits), -1);
    QCOMPARE(errno, int(EMBMDATA));
    QCOMPARE(modbus_write_registers(ctx.get(), 0, MODBUS_MAX_WRITE_REGISTERS + 1, regs), -1);
    QCOMPARE(errno, int(EMBMDATA));
    QCOMPARE(modbus_write_bits(ctx.get(), 0, MODBUS_MAX_WRITE_BITS + 1, bits), -1);
    QCOMPARE(errno, int(EMBMDATA));
    QCOMPARE(modbus_read_registers(ctx.get(), 0x10000, 1, regs), -1);
    QCOMPARE(errno, EINVAL);
    QCOMPARE(modbus_set_slave(ctx.get(), 248), -1);
    QCOMPARE(modbus_get_slave(ctx.get()), 1);
    QTest::qWait(20);
    QVERIFY(slave.requests().isEmpty());

    const timeval bad {0, 1000000};
    QCOMPARE(modbus_set_response_timeout(ctx.get(), &bad), -1);
    const timeval t {1, 500000};
    QCOMPARE(modbus_set_response_timeout(ctx.get(), &t), 0);
    timeval back {};
    modbus_get_response_timeout(ctx.get(), &back);
    QCOMPARE(back.tv_sec, time_t(1));
    QCOMPARE(back.tv_usec, suseconds_t(500000));

    modbus_close(ctx.get());
    QCOMPARE(modbus_read_registers(ctx.get(), 0, 1, regs), -1);
    QCOMPARE(errno, EBADF);

    QVERIFY(!modbus_new_rtu("/dev/null", 9600, 'X', 8, 1));
    QCOMPARE(errno, EINVAL);
    modbus_t *missing = modbus_new_rtu("/nonexistent/tty", 9600, 'N', 8, 1);
    QVERIFY(missing);
    QCOMPARE(modbus_connect(missing), -1);
    QCOMPARE(errno, ENOENT);
    modbus_free(missing);
    modbus_t *notTty = modbus_new_rtu("/dev/null", 9600, 'N', 8, 1);
    QCOMPARE(modbus_connect(notTty), -1);
    QCOMPARE(errno, ENOTTY);
    modbus_free(notTty);

    QCOMPARE(QByteArray(modbus_strerror(EMBBADCRC)), QByteArray("Invalid CRC"));
    QCOMPARE(QByteArray(modbus_strerror(EMBXILADD)), QByteArray("Illegal data address"));
    QCOMPARE(QByteArray(modbus_strerror(ETIMEDOUT)), QByteArray("Connection timed out"));
    QCOMPARE(EMBBADCRC, 112345691);
}

void tst_ModbusFaults::hangUpGivesEio_data()
{
    QTest::addColumn<int>("framing");
    QTest::newRow("rtu") << int(FakeSlave::Rtu);
    QTest::newRow("ascii") << int(FakeSlave::Ascii);
}

void tst_ModbusFaults::hangUpGivesEio()
{
    // The adapter is pulled while the master waits for a reply: the caller
    // must see EIO (to close the port), not a timeout.
    QFETCH(int, framing);
    const auto fr = FakeSlave::Framing(framing);
    auto slave = std::make_unique<FakeSlave>(fr);
    Ctx ctx = openLine(*slave, fr);
    QVERIFY(ctx);
    FakeSlave *raw = slave.get();
    std::thread pull([raw] {
        usleep(50000);
        raw->hangUp();
    });
    uint16_t regs[2];
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(modbus_read_registers(ctx.get(), 0, 2, regs), -1);
    QCOMPARE(errno, EIO);
    QVERIFY(timer.elapsed() < responseTimeoutMs);
    pull.join();
    QCOMPARE(modbus_write_register(ctx.get(), 0, 1), -1);
    QCOMPARE(errno, EIO);
}

void tst_ModbusFaults::asciiDelimiter()
{
    // The delimiter is taken when a context is made; later changes leave it.
    FakeSlave slave(FakeSlave::Ascii);
    slave.setAsciiEnd('#');
    slave.setHandler([](const QByteArray &) {
        return FakeSlave::Script {{FakeSlave::ascii(QByteArray::fromHex("01060001abcd"), '#')}};
    });
    modbus_ascii_set_delimiter(0x100 | '#');
    modbus_t *ctx = modbus_new_ascii(slave.path(), 9600, 'E', 7, 1);
    modbus_ascii_set_delimiter('\n');
    QVERIFY(ctx);
    QCOMPARE(modbus_connect(ctx), 0);
    modbus_set_slave(ctx, 1);
    QCOMPARE(modbus_write_register(ctx, 1, 0xABCD), 1);
    QVERIFY(slave.requests().value(0).endsWith("\r#"));
    freeCtx(ctx);
}

void tst_ModbusFaults::reconnectKeepsRawMode()
{
    // A pty refuses 7E1 once it has been set up; the second open must still
    // get raw mode, or CR turns into LF and the request is echoed back.
    FakeSlave slave(FakeSlave::Ascii);
    slave.setHandler([](const QByteArray &) {
        return FakeSlave::Script {{FakeSlave::ascii(QByteArray::fromHex("01030400010002"))}};
    });
    Ctx ctx = openLine(slave, FakeSlave::Ascii);
    QVERIFY(ctx);
    uint16_t regs[2];
    for (int round = 0; round < 3; ++round) {
        QCOMPARE(modbus_read_registers(ctx.get(), 0, 2, regs), 2);
        modbus_close(ctx.get());
        QCOMPARE(modbus_connect(ctx.get()), 0);
    }
    QCOMPARE(modbus_read_registers(ctx.get(), 0, 2, regs), 2);
    QCOMPARE(slave.requests().size(), 4);
}

QTEST_GUILESS_MAIN(tst_ModbusFaults)
#include "tst_modbusfaults.moc"
