#include "config/utils.h"

#include <QtTest>

// The free helpers: bit fields, hexadecimal dumps, rounding, nested maps.
class tst_Utils : public QObject
{
    Q_OBJECT
private slots:
    void bits();
    void hexDump();
    void rounding();
    void mapMerge();
    void mapPaths();
};

void tst_Utils::bits()
{
    const unsigned char bytes[8] = {0x12, 0xCD, 0xAB, 0x00, 0, 0, 0, 0};
    QCOMPARE(extract_bits(bytes, 8, 8), 0xCDu);
    QCOMPARE(extract_bits(bytes, 0, 32), 0x00ABCD12u);
    QCOMPARE(extract_bits(bytes, 4, 4), 0x1u);
    QCOMPARE(extract_bits(bytes, 60, 8), 0u); // beyond the word: nothing, no overrun
    QCOMPARE(set_bits(0xFF00, 5, 4, 4), 0xFF50u);
    QCOMPARE(set_bits(0xFF00, 5, 4, 0), 0xFF00u);
    QCOMPARE(set_bits(0xFFFF, 0, 4, 4), 0xFF0Fu);
    QCOMPARE(set_bits(0, 0xFFFFFFFF, 0, 32), 0xFFFFFFFFu);
}

void tst_Utils::hexDump()
{
    QCOMPARE(byteBufferToString(QByteArray::fromHex("01ab00ff")), QStringLiteral("01 ab 00 ff"));
    QCOMPARE(byteBufferToString("x", 0), QString());
    QCOMPARE(byteBufferToString(nullptr, 5), QString());
}

void tst_Utils::rounding()
{
    QCOMPARE(round(2.5, 0), 3.0);
    QCOMPARE(round(-2.5, 0), -3.0);
    QCOMPARE(round(1.2345, 2), 1.23);
    QCOMPARE(round(-1.235, 1), -1.2);
}

void tst_Utils::mapMerge()
{
    QVariantMap into;
    vmap_merge({{"a", 1}}, into);
    QCOMPARE(into, (QVariantMap {{"a", 1}}));
    vmap_merge({{"a", 2}, {"b", 3}}, into);
    QCOMPARE(into, (QVariantMap {{"a", 2}, {"b", 3}}));
    vmap_merge_new({{"a", 9}, {"c", 4}}, into);
    QCOMPARE(into, (QVariantMap {{"a", 2}, {"b", 3}, {"c", 4}}));
}

void tst_Utils::mapPaths()
{
    QVariantMap map;
    QVERIFY(vmap_put(map, QStringLiteral("/a//b/c"), 5));
    QCOMPARE(vmap_get(map, QStringLiteral("a/b/c")).toInt(), 5);
    QVERIFY(!vmap_get(map, QStringLiteral("a/x/c")).isValid());
    QCOMPARE(vmap_get(map, QStringLiteral("a/b/c/d"), 7).toInt(), 7);
    QVERIFY(vmap_put(map, QStringLiteral("a/b2"), "x"));
    QCOMPARE(map.value("a").toMap().size(), 2);
    // A scalar on the way is not overwritten.
    QVERIFY(!vmap_put(map, QStringLiteral("a/b2/z"), 1));
    QCOMPARE(vmap_get(map, QStringLiteral("a/b2")).toString(), QStringLiteral("x"));
    QVERIFY(!vmap_put(map, QStringLiteral("//"), 1));
}

QTEST_GUILESS_MAIN(tst_Utils)
#include "tst_utils.moc"
