#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>

// The data side of a tag: addresses, enum texts, value texts, limits, the
// JSON form and its deliberate quirks.
class tst_Tag : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void address_data();
    void address();
    void enumStrings();
    void extractBitClamps();
    void valueToString_data();
    void valueToString();
    void nanAndLimits();
    void valuesLookup();
    void replaceTextInValues();
    void jsonMissingKeys();
    void jsonRoundTripKeepsEveryKey();
    void jsonConditionalKeys();
    void byteswapFollowsDevice();
    void wrongTypesFallBack();
    void lengths();
    void valueSetterStampsAndSignals();

private:
    Server *m_server = nullptr;
    Device *m_device = nullptr;
};

void tst_Tag::init()
{
    m_server = new Server;
    Port *port = m_server->addPort(QStringLiteral("p"));
    m_device = port->addDevice(QStringLiteral("d"));
}

void tst_Tag::cleanup()
{
    delete m_server;
    m_server = nullptr;
}

void tst_Tag::address_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<uint>("expected");
    QTest::newRow("000h") << "000h" << 0u;
    QTest::newRow("ABCh") << "ABCh" << 2748u;
    QTest::newRow("abcH") << "abcH" << 2748u;
    QTest::newRow("0x10") << "0x10" << 16u;
    QTest::newRow("0X1A") << "0X1A" << 26u;
    QTest::newRow("decimal") << "10" << 10u;
    QTest::newRow("hex without marker") << "ABC" << 0u;
    QTest::newRow("garbage") << "12z" << 0u;
    QTest::newRow("empty") << "" << 0u;
    QTest::newRow("blank inside") << "1 0h" << 0u;
}

void tst_Tag::address()
{
    QFETCH(QString, text);
    QFETCH(uint, expected);
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    tag->setAddressText(text);
    QCOMPARE(tag->address(), expected);
}

void tst_Tag::enumStrings()
{
    QCOMPARE(Tag::deviceTypeFromString(QStringLiteral("FLOAT32")), int(Tag::dtFloat32));
    // A misspelt type quietly becomes a signed 32-bit tag.
    QCOMPARE(Tag::deviceTypeFromString(QStringLiteral("unit32")), int(Tag::dtInt32));
    QCOMPARE(Tag::deviceTypeToString(8), QStringLiteral("Invalid"));
    QCOMPARE(Tag::deviceTypeLength(Tag::dtFloat64), 8);
    QCOMPARE(Tag::deviceTypeLength(Tag::dtByteArray), 0);
    QCOMPARE(Tag::serverTypeFromString(QStringLiteral("bool")), int(Tag::stBool));
    QCOMPARE(Tag::serverTypeFromString(QStringLiteral("bytearray")), int(Tag::stInt32));
    QCOMPARE(Tag::serverTypeToString(7), QStringLiteral("Invalid"));
    QCOMPARE(Tag::accessTypeToString(Tag::ReadWrite, true), QStringLiteral("R/W"));
    QCOMPARE(Tag::accessTypeToString(Tag::WriteOnly), QStringLiteral("WriteOnly"));
    QCOMPARE(Tag::accessTypeFromString(QStringLiteral("readwrite")), int(Tag::ReadWrite));
    QCOMPARE(Tag::accessTypeFromString(QStringLiteral("R/W")), int(Tag::ReadOnly));
    QCOMPARE(Tag::tagTypeFromString(QStringLiteral("SEPARATE")), int(Tag::ttSeparate));
    QCOMPARE(Tag::tagTypeFromString(QStringLiteral("bogus")), int(Tag::ttNormal));
    QCOMPARE(Tag::tagTypeToString(5), QStringLiteral("Invalid"));
}

void tst_Tag::extractBitClamps()
{
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    tag->setDeviceType(Tag::dtInt16);
    tag->setExtractBitTo(16);
    QCOMPARE(tag->extractBitTo(), 16); // the width itself, not width - 1
    tag->setExtractBitFrom(16);
    QCOMPARE(tag->extractBitFrom(), 15);
    QCOMPARE(tag->extractBitTo(), 16);
    tag->setExtractBitTo(3);
    QCOMPARE(tag->extractBitFrom(), 3); // pulled down
    tag->setExtractBitFrom(9);
    QCOMPARE(tag->extractBitTo(), 9); // pulled up

    tag->setDeviceType(Tag::dtByteArray);
    tag->setExtractBitFrom(4);
    QCOMPARE(tag->extractBitFrom(), -1);
    tag->setExtractBitTo(4);
    QCOMPARE(tag->extractBitTo(), 0);

    // Loading clamps "extract_bit_to" without pulling "from" down.
    Tag *loaded = m_device->addTag(QStringLiteral("u"));
    loaded->load({{"device_type", "uint16"},
                  {"use_bit_extraction", true},
                  {"extract_bit_from", 40},
                  {"extract_bit_to", 99}});
    QCOMPARE(loaded->extractBitFrom(), 15);
    QCOMPARE(loaded->extractBitTo(), 16);
}

void tst_Tag::valueToString_data()
{
    QTest::addColumn<int>("deviceType");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("small float") << int(Tag::dtFloat32) << QVariant(1.5f) << "1.5";
    QTest::newRow("6 digits") << int(Tag::dtFloat32) << QVariant(123.456789f) << "123.457";
    QTest::newRow("7 digits") << int(Tag::dtFloat32) << QVariant(1234.5678f) << "1234.568";
    QTest::newRow("8 digits") << int(Tag::dtFloat32) << QVariant(12345.678f) << "12345.678";
    QTest::newRow("above 99999.999 falls through")
        << int(Tag::dtFloat32) << QVariant(100000.0f) << QVariant(100000.0f).toString();
    QTest::newRow("integer type") << int(Tag::dtInt16) << QVariant(-5) << "-5";
}

void tst_Tag::valueToString()
{
    QFETCH(int, deviceType);
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    tag->setDeviceType(deviceType);
    tag->setValue(value);
    QCOMPARE(tag->valueToString(), expected);
}

void tst_Tag::nanAndLimits()
{
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    tag->setValue(std::numeric_limits<float>::quiet_NaN());
    QVERIFY(tag->isValueNaN());
    QCOMPARE(tag->valueToString(), QStringLiteral("nan"));
    // No limits, no verdict.
    QVERIFY(!tag->isValueLimitsOut());
    tag->setLimits(QVariantList {0, 10.5});
    QVERIFY(tag->isValueLimitsOut()); // NaN is out
    tag->setValue(10.5f);
    QVERIFY(!tag->isValueLimitsOut()); // bounds included
    tag->setValue(-0.1f);
    QVERIFY(tag->isValueLimitsOut());
    tag->setValue(std::numeric_limits<float>::infinity());
    QVERIFY(tag->isValueNaN());
    // Three limits count as none.
    tag->setLimits(QVariantList {0, 1, 2});
    QVERIFY(!tag->isValueLimitsOut());
    tag->setLimits(QVariantList {0, 1});
    tag->setLimits(5, 6);
    QCOMPARE(tag->limits(), (QVariantList {5, 6}));

    // A NaN is saved as text, and comes back as NaN.
    tag->setValue(std::numeric_limits<float>::quiet_NaN());
    const QVariantMap saved = tag->save();
    QCOMPARE(saved.value("value").toString(), QStringLiteral("nan"));
    Tag *copy = m_device->addTag(QStringLiteral("copy"));
    copy->load(saved);
    QVERIFY(std::isnan(copy->value().toFloat()));
}

void tst_Tag::valuesLookup()
{
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    QCOMPARE(tag->valueFromValues(QStringLiteral("5")), QString());
    tag->setValues({{"05", "five"}, {"3", "three"}, {"u7", "prefixed"}});
    QCOMPARE(tag->valueFromValues(QStringLiteral("5")), QStringLiteral("five"));
    QCOMPARE(tag->valueFromValues(QStringLiteral("3")), QStringLiteral("three"));
    QCOMPARE(tag->valueFromValues(QStringLiteral("-3")), QString());
    tag->setValue(3);
    QCOMPARE(tag->valueFromValues(), QStringLiteral("three"));
    tag->setProperty("values_prefix", "u");
    QCOMPARE(tag->valueFromValues(QStringLiteral("5")), QString());
    QCOMPARE(tag->valueFromValues(QStringLiteral("7")), QStringLiteral("prefixed"));
    // The prefix is never saved.
    QVERIFY(!tag->save().contains("values_prefix"));
}

void tst_Tag::replaceTextInValues()
{
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    tag->setValues({{"1", "one"}, {"02", "two"}});
    QSignalSpy spy(tag, &Tag::textInValuesChanged);
    tag->replaceTextInValues(1, QStringLiteral("ONE"));
    tag->replaceTextInValues(2, QStringLiteral("TWO"));
    QCOMPARE(tag->values().value("1").toString(), QStringLiteral("ONE"));
    QCOMPARE(tag->values().value("02").toString(), QStringLiteral("TWO"));
    QCOMPARE(spy.count(), 2);
    // An unknown key stores nothing but leaves both empty keys behind.
    tag->replaceTextInValues(9, QStringLiteral("nine"));
    QCOMPARE(spy.count(), 2);
    QVERIFY(tag->values().contains("9"));
    QVERIFY(tag->values().contains("09"));
    QCOMPARE(tag->values().value("9").toString(), QString());
    tag->replaceTextInValues(-1, QStringLiteral("minus"));
    QVERIFY(!tag->values().contains("-1"));
    tag->setProperty("values_prefix", "p");
    tag->replaceTextInValues(4, QStringLiteral("four"));
    QCOMPARE(tag->values().value("p4").toString(), QStringLiteral("four"));
    QCOMPARE(spy.count(), 3);
}

void tst_Tag::jsonMissingKeys()
{
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    tag->setLimits(QVariantList {1, 2});
    tag->setValues({{"1", "x"}});
    tag->setValue(7.0f);
    tag->load({{"name", "t"}});
    // Missing value becomes 0, missing limits and values are cleared.
    QCOMPARE(tag->value().toInt(), 0);
    QVERIFY(tag->limits().isEmpty());
    QVERIFY(tag->values().isEmpty());
    QCOMPARE(tag->deviceType(), int(Tag::dtFloat32));
    QCOMPARE(tag->addressText(), QStringLiteral("0"));
    QCOMPARE(tag->byteOrder(), QStringLiteral("0123"));
    QCOMPARE(tag->requestDelay(), 1);
}

void tst_Tag::jsonRoundTripKeepsEveryKey()
{
    const QVariantMap source = {
        {"type", "separate"},
        {"name", "block"},
        {"enabled", true},
        {"polling_period", 500},
        {"address", "100h"},
        {"priority", 7},
        {"device_type", "uint16"},
        {"server_type", "int16"},
        {"read_func", 3},
        {"write_func", 16},
        {"decimal_point", 2},
        {"byteorder", "10"},
        {"byteorder_enabled", true},
        {"byteswap_enabled", false},
        {"access", "ReadWrite"},
        {"comment", "Комментарий"},
        {"request_delay", 30},
        {"use_bit_extraction", true},
        {"use_bit_extraction_read_only", true},
        {"extract_bit_from", 4},
        {"extract_bit_to", 7},
        {"config_group", QStringList {"Control", "Управление"}},
        {"address_offset", 2},
        {"registers_count", 4},
        {"tags_group", QStringList {"a", "b"}},
        {"value", 12},
        {"limits", QVariantList {0, 100}},
        {"values", QVariantMap {{"0", "off"}, {"1", "on"}}},
        {"modified", true},
    };
    m_device->setByteSwappingEnabled(true);
    Tag *tag = m_device->addTag(QStringLiteral("block"));
    tag->load(source);
    QVariantMap saved = tag->save();
    QCOMPARE(saved.keys(), source.keys());
    for (auto it = source.cbegin(); it != source.cend(); ++it)
        QCOMPARE(saved.value(it.key()).toString(), it.value().toString());
    QCOMPARE(saved.value("config_group").toStringList(),
             source.value("config_group").toStringList());
    QCOMPARE(saved.value("limits").toList(), source.value("limits").toList());
}

void tst_Tag::jsonConditionalKeys()
{
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    QVariantMap saved = tag->save();
    for (const char *key :
         {"type", "decimal_point", "byteorder_enabled", "use_bit_extraction", "extract_bit_from",
          "address_offset", "tags_group", "values", "array_size"})
        QVERIFY2(!saved.contains(key), key);
    for (const char *key :
         {"name", "enabled", "polling_period", "address", "priority", "device_type", "server_type",
          "read_func", "write_func", "byteorder", "access", "comment", "request_delay",
          "config_group", "value", "limits", "modified"})
        QVERIFY2(saved.contains(key), key);

    // A byte array saves its size and no server type, and never reads one.
    Tag *array = m_device->addTag(QStringLiteral("array"));
    array->load({{"device_type", "bytearray"}, {"array_size", 12}, {"server_type", "int16"}});
    QCOMPARE(array->serverType(), int(Tag::stFloat32));
    saved = array->save();
    QCOMPARE(saved.value("array_size").toInt(), 12);
    QVERIFY(!saved.contains("server_type"));

    // Without "server_type" the device type's word is used.
    Tag *plain = m_device->addTag(QStringLiteral("plain"));
    plain->load({{"device_type", "uint32"}});
    QCOMPARE(plain->serverType(), int(Tag::stUInt32));
    // "array_size" of a non-array tag is not read; separate-only keys of a normal tag neither.
    plain->load({{"device_type", "int16"}, {"array_size", 5}, {"address_offset", 3}});
    QCOMPARE(plain->arraySize(), 0);
    QCOMPARE(plain->addressOffset(), 0);
    // Floats are stored as 32-bit floats and saved as text.
    plain->load({{"device_type", "float64"}, {"value", 0.1}});
    QCOMPARE(plain->value().typeId(), int(QMetaType::Float));
    QCOMPARE(plain->save().value("value").toString(), QStringLiteral("0.1"));
}

void tst_Tag::byteswapFollowsDevice()
{
    m_device->setByteSwappingEnabled(false);
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    tag->load({{"name", "t"}});
    QVERIFY(!tag->byteSwappingEnabled());
    QVERIFY(!tag->save().contains("byteswap_enabled"));
    tag->load({{"byteswap_enabled", true}});
    QCOMPARE(tag->save().value("byteswap_enabled"), QVariant(true));
    m_device->setByteSwappingEnabled(true);
    QVERIFY(!tag->save().contains("byteswap_enabled"));
}

void tst_Tag::wrongTypesFallBack()
{
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    tag->load({{"address", QVariantList {1, 2}},
               {"read_func", "three"},
               {"limits", "0..10"},
               {"values", QVariantList {"a"}},
               {"config_group", 5},
               {"device_type", 17},
               {"request_delay", QVariantMap {{"x", 1}}}});
    QCOMPARE(tag->address(), 0u);
    QCOMPARE(tag->readFunc(), 0);
    QVERIFY(tag->values().isEmpty());
    QCOMPARE(tag->requestDelay(), 0);
    QCOMPARE(tag->deviceType(), int(Tag::dtInt32));
    QVERIFY(tag->configGroupID().isEmpty());
    QVERIFY(!tag->isChannel());
}

void tst_Tag::lengths()
{
    Tag *a = m_device->addTag(QStringLiteral("a"));
    a->load({{"device_type", "int16"}, {"address", "100h"}, {"access", "ReadWrite"}});
    Tag *b = m_device->addTag(QStringLiteral("b"));
    b->load({{"type", "separate"},
             {"device_type", "float32"},
             {"address", "100h"},
             {"access", "ReadOnly"},
             {"address_offset", 2},
             {"registers_count", 4}});
    Tag *c = m_device->addTag(QStringLiteral("c"));
    c->load({{"device_type", "bytearray"}, {"array_size", 6}});
    QCOMPARE(a->deviceTypeLengthToRead(), 2);
    QCOMPARE(c->deviceTypeLengthToRead(), 6);
    QCOMPARE(b->deviceTypeLengthToRead(), 8); // registers count wins when reading

    // Writing builds the group from every tag at the same address, and counts
    // this tag's width for each writable member.
    QCOMPARE(b->deviceTypeLengthToWrite(), 4);
    QCOMPARE(b->tagsGroup(), (QStringList {"a", "b"}));
    b->setRegistersCount(0);
    QCOMPARE(b->deviceTypeLengthToRead(), 8); // a and b are readable, 4 bytes each
}

void tst_Tag::valueSetterStampsAndSignals()
{
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    QVERIFY(tag->timestamp().isNull());
    QSignalSpy spy(tag, &Tag::valueChanged);
    tag->setValue(3.5f);
    QCOMPARE(spy.count(), 1);
    QVERIFY(!tag->timestamp().isNull());
    tag->setPeriod(0);
    QVERIFY(!tag->isTimeStampTimeout());
    tag->setPeriod(100);
    tag->setTimeStamp(QDateTime::currentDateTime().addSecs(-2));
    QVERIFY(tag->isTimeStampTimeout());
    tag->setPeriod(5000);
    QVERIFY(!tag->isTimeStampTimeout());

    QSignalSpy writeSpy(tag, &Tag::writeRequest);
    tag->writeValueScheduled(9);
    QCOMPARE(writeSpy.count(), 1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(tag->value().toInt(), 9);
}

QTEST_GUILESS_MAIN(tst_Tag)
#include "tst_tag.moc"
