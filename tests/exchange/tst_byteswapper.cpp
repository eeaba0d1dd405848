#include "exchange/byteswapper.h"

#include <QtTest>

// Byte order rules of register images.
class tst_ByteSwapper : public QObject
{
    Q_OBJECT
private slots:
    void swap_data();
    void swap();
    void convert_data();
    void convert();
    void inverseRule();
};

void tst_ByteSwapper::swap_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("n");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("pairs") << QByteArray::fromHex("11223344") << 2
                           << QByteArray::fromHex("22114433");
    QTest::newRow("whole") << QByteArray::fromHex("11223344") << 4
                           << QByteArray::fromHex("44332211");
    QTest::newRow("n below 1") << QByteArray::fromHex("112233") << 0
                               << QByteArray::fromHex("112233");
    QTest::newRow("not a multiple") << QByteArray::fromHex("112233") << 2 << QByteArray();
    QTest::newRow("empty") << QByteArray() << 2 << QByteArray();
}

void tst_ByteSwapper::swap()
{
    QFETCH(QByteArray, data);
    QFETCH(int, n);
    QFETCH(QByteArray, expected);
    QCOMPARE(ByteSwapper::swap_byteorder(data, n), expected);
}

void tst_ByteSwapper::convert_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray four = QByteArray::fromHex("11223344");
    QTest::newRow("1032") << four << "1032" << QByteArray::fromHex("22114433");
    QTest::newRow("0123 unchanged") << four << "0123" << four;
    QTest::newRow("3210 reverses") << four << "3210" << QByteArray::fromHex("44332211");
    QTest::newRow("short rule fills the front") << four << "10" << QByteArray::fromHex("22110000");
    QTest::newRow("rule longer than data") << QByteArray::fromHex("1122") << "1032" << QByteArray();
    const QByteArray fourteen = QByteArray::fromHex("000102030405060708090a0b0c0d");
    QTest::newRow("extended with base 10")
        << fourteen << "1032547698!1032" << QByteArray::fromHex("010003020504070609080b0a0d0c");
    QTest::newRow("base marks") << fourteen << "!0~0"
                                << QByteArray::fromHex("0a000000000000000000000000000000").left(14);
}

void tst_ByteSwapper::convert()
{
    QFETCH(QByteArray, data);
    QFETCH(QString, rule);
    QFETCH(QByteArray, expected);
    QCOMPARE(ByteSwapper::convert(data, rule), expected);
}

void tst_ByteSwapper::inverseRule()
{
    QCOMPARE(ByteSwapper::inverseRule(QStringLiteral("0123")), QStringLiteral("1032"));
    QCOMPARE(ByteSwapper::inverseRule(QStringLiteral("012")), QStringLiteral("102"));
}

QTEST_GUILESS_MAIN(tst_ByteSwapper)
#include "tst_byteswapper.moc"
