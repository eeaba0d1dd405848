// Checksums, ASCII coding and the length rules that decide where a frame ends.

#include "modbus/modbusframe.h"

#include <QTest>

namespace {

QByteArray bytes(const char *hex)
{
    return QByteArray::fromHex(hex);
}

const uint8_t *u8(const QByteArray &a)
{
    return reinterpret_cast<const uint8_t *>(a.constData());
}

} // namespace

class tst_ModbusFrame : public QObject
{
    Q_OBJECT

private slots:
    void checksums();
    void asciiCoding_data();
    void asciiCoding();
    void replyLength_data();
    void replyLength();
    void requestAndExpectedLength();
    void silence();
};

void tst_ModbusFrame::checksums()
{
    // Published examples: read 3 registers at 0x006B of slave 0x11.
    const QByteArray request = bytes("1103006b0003");
    QCOMPARE(ModbusFrame::crc16(u8(request), size_t(request.size())), uint16_t(0x8776));
    QByteArray framed = request;
    framed.resize(request.size() + 2);
    QCOMPARE(
        ModbusFrame::appendCrc(reinterpret_cast<uint8_t *>(framed.data()), size_t(request.size())),
        size_t(8));
    QCOMPARE(framed.toHex(), QByteArray("1103006b00037687"));
    QVERIFY(ModbusFrame::crcValid(u8(framed), size_t(framed.size())));
    framed[3] = char(framed.at(3) ^ 1);
    QVERIFY(!ModbusFrame::crcValid(u8(framed), size_t(framed.size())));
    QVERIFY(!ModbusFrame::crcValid(u8(framed), 2));

    QCOMPARE(ModbusFrame::lrc(u8(request), size_t(request.size())), uint8_t(0x7E));
    QVERIFY(ModbusFrame::lrcValid(u8(bytes("1103006b00037e")), 7));
    QVERIFY(!ModbusFrame::lrcValid(u8(bytes("1103006b00037f")), 7));
}

void tst_ModbusFrame::asciiCoding_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("result"); // decoded length, -1 refused

    QTest::newRow("upper") << QByteArray("1103006B00037E") << 7;
    QTest::newRow("lower") << QByteArray("1103006b00037e") << 7;
    QTest::newRow("odd") << QByteArray("110") << -1;
    QTest::newRow("not hex") << QByteArray("11G3") << -1;
    QTest::newRow("blank") << QByteArray("11 3") << -1;
    QTest::newRow("high bit") << QByteArray("11\xb3") + "3" << -1;
    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("too long for the buffer") << QByteArray(2 * 300, 'A') << -1;
}

void tst_ModbusFrame::asciiCoding()
{
    QFETCH(QByteArray, text);
    QFETCH(int, result);
    uint8_t out[256];
    QCOMPARE(ModbusFrame::decodeAscii(text.constData(), size_t(text.size()), out, sizeof out),
             result);
}

void tst_ModbusFrame::replyLength_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("countHint");

    QTest::newRow("too short to tell") << bytes("01") << int(ModbusFrame::NeedMore) << false;
    QTest::newRow("exception") << bytes("0183") << 5 << false;
    QTest::newRow("fc3 needs count") << bytes("0103") << int(ModbusFrame::NeedMore) << false;
    QTest::newRow("fc3") << bytes("010304") << 9 << false;
    QTest::newRow("fc1 max") << bytes("0101fa") << 255 << false;
    QTest::newRow("fc5") << bytes("0105") << 8 << false;
    QTest::newRow("fc16") << bytes("0110") << 8 << false;
    QTest::newRow("fc17 hint") << bytes("011107") << 12 << true;
    QTest::newRow("vendor hint") << bytes("014104") << 9 << true;
    QTest::newRow("fc24 two-byte count") << bytes("01180006") << 12 << false;
    QTest::newRow("fc43 unknown") << bytes("012b") << int(ModbusFrame::Unknown) << false;
}

void tst_ModbusFrame::replyLength()
{
    QFETCH(QByteArray, start);
    QFETCH(int, length);
    QFETCH(bool, countHint);
    bool hint = !countHint;
    QCOMPARE(ModbusFrame::replyLength(u8(start), size_t(start.size()), &hint), length);
    if (length > 0)
        QCOMPARE(hint, countHint);
}

void tst_ModbusFrame::requestAndExpectedLength()
{
    QCOMPARE(ModbusFrame::requestLength(u8(bytes("0103")), 2), 8);
    QCOMPARE(ModbusFrame::requestLength(u8(bytes("011000000002")), 6), int(ModbusFrame::NeedMore));
    QCOMPARE(ModbusFrame::requestLength(u8(bytes("01100000000204")), 7), 13);
    QCOMPARE(ModbusFrame::requestLength(u8(bytes("0111")), 2), 4);
    QCOMPARE(ModbusFrame::requestLength(u8(bytes("0141")), 2), int(ModbusFrame::Unknown));

    QCOMPARE(ModbusFrame::expectedReplyLength(u8(bytes("010100000013")), 6), 5 + 3);
    QCOMPARE(ModbusFrame::expectedReplyLength(u8(bytes("01030000007d")), 6), 5 + 250);
    QCOMPARE(ModbusFrame::expectedReplyLength(u8(bytes("0106000a0001")), 6), 8);
    QCOMPARE(ModbusFrame::expectedReplyLength(u8(bytes("0111")), 2), int(ModbusFrame::Unknown));
}

void tst_ModbusFrame::silence()
{
    // 11-bit characters at 9600 baud: 1146 us each, t3.5 = 4 ms; fixed above 19200.
    QCOMPARE(ModbusFrame::characterTimeUs(9600, 8, 'E', 1), qint64(1146));
    QCOMPARE(ModbusFrame::frameSilenceUs(9600, 8, 'N', 2), qint64(4011));
    QCOMPARE(ModbusFrame::frameSilenceUs(19200, 8, 'E', 1), qint64(2005));
    QCOMPARE(ModbusFrame::frameSilenceUs(115200, 8, 'N', 1), qint64(1750));
}

QTEST_GUILESS_MAIN(tst_ModbusFrame)
#include "tst_modbusframe.moc"
