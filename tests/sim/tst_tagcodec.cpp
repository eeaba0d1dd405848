// The simulator's encoding must be the mirror image of the master's: what it
// puts on the wire, the master's own byte swapper and rule decode back into
// the template's value.

#include "tagcodec.h"

#include "exchange/byteswapper.h"
#include "model/tag.h"

#include <QTest>

#include <algorithm>

namespace {

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

SimTag makeTag(int deviceType, bool swap, const QString &rule = QString(), int width = 0)
{
    SimTag t;
    t.deviceType = deviceType;
    t.width = width ? width : Tag::deviceTypeLength(deviceType);
    t.swap = swap;
    t.byteorderEnabled = !rule.isEmpty();
    t.byteorder = rule;
    return t;
}

// The master's read path: registers reach memory in host (little-endian)
// order, the port swaps for a swapping device, then the tag's rule.
QByteArray masterMemory(const SimTag &tag, const QByteArray &wire)
{
    QByteArray memory = wire;
    for (int i = 0; i + 1 < memory.size(); i += 2)
        std::swap(memory[i], memory[i + 1]);
    memory.truncate(tag.width);
    if (tag.swap)
        memory = ByteSwapper::swap_byteorder(ByteSwapper::swap_byteorder(memory, 2), tag.width);
    if (tag.byteorderEnabled)
        memory = ByteSwapper::convert(memory, tag.byteorder);
    return memory;
}

} // namespace

class TestTagCodec : public QObject
{
    Q_OBJECT

private slots:
    void wireBytes_data();
    void wireBytes();
    void masterDecodesEveryEncoding_data();
    void masterDecodesEveryEncoding();
    void bitFieldsShareRegister();
    void templateFields();
};

void TestTagCodec::wireBytes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("swap");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("wire");

    QTest::newRow("float swap on")
        << int(Tag::dtFloat32) << true << QString() << QVariant(1.0) << hex("3f800000");
    QTest::newRow("float swap off")
        << int(Tag::dtFloat32) << false << QString() << QVariant(1.0) << hex("00003f80");
    QTest::newRow("uint32 swap on, high word first")
        << int(Tag::dtUInt32) << true << QString() << QVariant(0x12345678) << hex("12345678");
    QTest::newRow("uint32 swap off, low word first")
        << int(Tag::dtUInt32) << false << QString() << QVariant(0x12345678) << hex("56781234");
    QTest::newRow("int16 same both ways")
        << int(Tag::dtInt16) << false << QString() << QVariant(-2) << hex("fffe");
    QTest::newRow("rule 3210 on a swapping device")
        << int(Tag::dtFloat32) << true << QStringLiteral("3210") << QVariant(1.0)
        << hex("0000803f");
}

void TestTagCodec::wireBytes()
{
    QFETCH(int, type);
    QFETCH(bool, swap);
    QFETCH(QString, rule);
    QFETCH(QVariant, value);
    QFETCH(QByteArray, wire);
    const SimTag tag = makeTag(type, swap, rule);
    QCOMPARE(TagCodec::encode(tag, value, QByteArray()).toHex(), wire.toHex());
}

void TestTagCodec::masterDecodesEveryEncoding_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("swap");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QVariant>("value");

    const QList<QPair<int, QVariant>> values {
        {Tag::dtInt16, -12345},       {Tag::dtUInt16, 54321}, {Tag::dtInt32, -123456789},
        {Tag::dtUInt32, 4000000000u}, {Tag::dtFloat32, 3.25}, {Tag::dtFloat64, 0.1}};
    const QStringList rules {QString(),
                             QStringLiteral("1032"),
                             QStringLiteral("3210"),
                             QStringLiteral("2301"),
                             QStringLiteral("76543210"),
                             QStringLiteral("10"),
                             QStringLiteral("01")};
    for (const auto &v : values) {
        for (const bool swap : {true, false}) {
            for (const QString &rule : rules) {
                // A rule fills as many bytes as it has digits.
                if (!rule.isEmpty() && rule.size() != Tag::deviceTypeLength(v.first))
                    continue;
                QTest::addRow("%s swap %d rule %s", qPrintable(Tag::deviceTypeToString(v.first)),
                              int(swap), qPrintable(rule.isEmpty() ? QStringLiteral("none") : rule))
                    << v.first << swap << rule << v.second;
            }
        }
    }
}

void TestTagCodec::masterDecodesEveryEncoding()
{
    QFETCH(int, type);
    QFETCH(bool, swap);
    QFETCH(QString, rule);
    QFETCH(QVariant, value);
    const SimTag tag = makeTag(type, swap, rule);
    const QByteArray wire = TagCodec::encode(tag, value, QByteArray());
    QCOMPARE(wire.size(), tag.registers() * 2);
    QCOMPARE(masterMemory(tag, wire).toHex(), TagCodec::valueBytes(tag, value).toHex());
}

void TestTagCodec::bitFieldsShareRegister()
{
    SimTag low = makeTag(Tag::dtUInt16, true);
    low.bitField = true;
    low.bitFrom = 0;
    low.bitTo = 3;
    SimTag high = low;
    high.bitFrom = 8;
    high.bitTo = 11;
    QByteArray wire = hex("f0f0");
    wire = TagCodec::encode(low, 5, wire);
    wire = TagCodec::encode(high, 9, wire);
    // Each field lands in its bits; the bits of neither stay as they were.
    QCOMPARE(wire.toHex(), QByteArray("f9f5"));
    QCOMPARE(TagCodec::decode(low, wire).toUInt(), 5u);
    QCOMPARE(TagCodec::decode(high, wire).toUInt(), 9u);
}

void TestTagCodec::templateFields()
{
    // A separate member sits at its offset and swaps like the device; a
    // byte array never swaps, whatever the device does; the extended rule
    // of one built-in template reaches past the tenth byte.
    const QVariantMap member {{"name", "b"},
                              {"address", "030h"},
                              {"type", "separate"},
                              {"address_offset", 2},
                              {"registers_count", 4},
                              {"device_type", "float32"},
                              {"byteswap_enabled", false}};
    const SimTag sep = TagCodec::fromTemplate(member, true);
    QCOMPARE(sep.address, 0x32u);
    QCOMPARE(sep.blockAddress, 0x30u);
    QCOMPARE(sep.blockRegisters, 4);
    QVERIFY(sep.swap);

    const QVariantMap array {{"name", "sn"},
                             {"address", "0x0900"},
                             {"device_type", "bytearray"},
                             {"array_size", 14},
                             {"byteorder", "1032547698!1032"},
                             {"byteorder_enabled", true}};
    const SimTag text = TagCodec::fromTemplate(array, true);
    QVERIFY(!text.swap);
    QCOMPARE(text.width, 14);
    const QByteArray wire = TagCodec::encode(text, QStringLiteral("ABCDEFGHIJKLMN"), QByteArray());
    QCOMPARE(masterMemory(text, wire), QByteArray("ABCDEFGHIJKLMN"));
}

QTEST_GUILESS_MAIN(TestTagCodec)
#include "tst_tagcodec.moc"
