#include "exchange/channel.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"

#include <QSignalSpy>
#include <QtTest>

// A device's JSON form, tag and channel collections, snapshots and marks.
class tst_Device : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void jsonKeys();
    void loadReplacesTagsAndChannels();
    void handEditMakesCustom();
    void cashTimeout();
    void snapshotsAndRollback();
    void snapshotWithoutStateKey();
    void pasteMarksChanged();
    void deviceDataValues();
    void shortAndLongMarks_data();
    void shortAndLongMarks();
    void exceptionalAnswers_data();
    void exceptionalAnswers();
    void delayByBaudrate_data();
    void delayByBaudrate();
    void channelQueue();
    void portSettingsInTags();
    void nanTags();

private:
    Tag *channelTag(const QString &name);

    Server *m_server = nullptr;
    Port *m_port = nullptr;
    Device *m_device = nullptr;
};

void tst_Device::init()
{
    m_server = new Server;
    m_port = m_server->addPort(QStringLiteral("p"));
    m_device = m_port->addDevice(QStringLiteral("d"));
}

void tst_Device::cleanup()
{
    delete m_server;
    m_server = nullptr;
}

Tag *tst_Device::channelTag(const QString &name)
{
    Tag *tag = m_device->addTag(name);
    tag->setConfigGroup({QStringLiteral("Channel"), QStringLiteral("ИП 1")});
    return tag;
}

void tst_Device::jsonKeys()
{
    QVariantMap saved = m_device->save();
    QVERIFY(!saved.contains("use_cash"));
    QVERIFY(!saved.contains("cash_timeout"));
    QVERIFY(!saved.contains("firmware_date"));
    QVERIFY(saved.contains("byteswap_enabled")); // the constructor leaves the swap off
    QCOMPARE(saved.value("protocol").toString(), QStringLiteral("MODBUS_RTU"));

    m_device->load({{"name", "dev"},
                    {"template", "Zolt-21"},
                    {"use_cash", true},
                    {"cash_timeout", 0},
                    {"response_timeout", 300},
                    {"address", 9},
                    {"producer", "Vexlor Works"}});
    QCOMPARE(m_device->name(), QStringLiteral("dev"));
    QCOMPARE(m_device->deviceModbusID(), QStringLiteral("Zolt-21")); // from the template
    QVERIFY(m_device->byteSwappingEnabled()); // missing means on
    QCOMPARE(m_device->cashTimeout(), 70);
    QCOMPARE(m_device->responceTimeout(), 300);
    QCOMPARE(m_device->address(), 0); // the address is set from its tag, not read here
    saved = m_device->save();
    QCOMPARE(saved.value("use_cash"), QVariant(true));
    QCOMPARE(saved.value("cash_timeout").toInt(), 70);
    QCOMPARE(saved.value("response_timeout").toInt(), 300);
    QVERIFY(!saved.contains("byteswap_enabled"));
    QVERIFY(!saved.contains("producer"));

    // A device saved without the cache loads it as unset.
    m_device->setUseCash(false);
    Device *other = m_port->addDevice(QStringLiteral("other"));
    other->load(m_device->save());
    QVERIFY(!other->isUseCash());
    QVERIFY(!other->property("use_cash").isValid());
}

void tst_Device::loadReplacesTagsAndChannels()
{
    channelTag(QStringLiteral("old"));
    m_device->addChannel(m_device->tag(QStringLiteral("old")));
    const QVariantMap map = {
        {"name", "d"},
        {"tags",
         QVariantList {
             QVariantMap {{"name", "ch1_value"}, {"config_group", QStringList {"channel", "x"}}},
             QVariantMap {{"name", "setting"}},
             QString("not a map"),
             QVariantMap {{"name", ""}},
         }},
    };
    QSignalSpy deleting(m_device, &Device::tagsDeleting);
    QVERIFY(m_device->load(map));
    QCOMPARE(deleting.count(), 1);
    QCOMPARE(m_device->tagIds(), (QStringList {"ch1_value", "setting"}));
    QCOMPARE(m_device->ChannelNames(), QStringList {"ch1_value"});
    QCOMPARE(m_device->queuedChannels(), QStringList {"ch1_value"});
    QVERIFY(!m_device->tag(QStringLiteral("old")));
}

void tst_Device::handEditMakesCustom()
{
    m_device->load({{"template", "Zolt-21"}, {"tags", QVariantList {QVariantMap {{"name", "a"}}}}});
    QCOMPARE(m_device->deviceTemplateName(), QStringLiteral("Zolt-21"));
    QSignalSpy spy(m_device, &Device::deviceTemplateChanged);
    QVERIFY(m_device->removeChildren(0, 1));
    QCOMPARE(m_device->deviceTemplateName(), QStringLiteral("custom"));
    QCOMPARE(spy.count(), 1);
    m_device->setDeviceTemplateName(QStringLiteral("Zolt-21"));
    QVERIFY(m_device->insertChildren(0, 1));
    QCOMPARE(m_device->deviceTemplateName(), QStringLiteral("custom"));
}

void tst_Device::cashTimeout()
{
    m_device->setCashTimeout(0);
    QCOMPARE(m_device->cashTimeout(), 70);
    m_device->setCashTimeout(-3);
    QCOMPARE(m_device->cashTimeout(), 70);
    m_device->setCashTimeout(150);
    QCOMPARE(m_device->cashTimeout(), 150);
}

void tst_Device::snapshotsAndRollback()
{
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    tag->setValue(1.0f);
    m_device->setDeviceTagState(Device::FromFile);
    m_device->backupTagsInFileData();
    QVERIFY(m_device->hasFileData());
    QCOMPARE(m_device->fileData().value("device_tag_state").toInt(), int(Device::FromFile));

    // Read from the instrument.
    m_device->tag(QStringLiteral("t"))->setValue(2.0f);
    m_device->setDeviceTagState(Device::ReadFromDevice);
    m_device->backupTagsInDeviceData();

    // Back to the file: the rollback keeps what was undone.
    m_device->restoreTagsFromFileData();
    QCOMPARE(m_device->tag(QStringLiteral("t"))->value().toFloat(), 1.0f);
    QCOMPARE(m_device->deviceTagState(), int(Device::FromFile));
    QVERIFY(m_device->hasRollback());
    m_device->compareTagsAfterRestore();
    QVERIFY(m_device->tag(QStringLiteral("t"))->isModified());

    m_device->rollbackTags();
    QCOMPARE(m_device->tag(QStringLiteral("t"))->value().toFloat(), 2.0f);
    QCOMPARE(m_device->deviceTagState(), int(Device::ReadFromDevice));
    // What was undone sits in the buffer.
    QVERIFY(m_device->hasBackup());
    m_device->restoreTags();
    QCOMPARE(m_device->tag(QStringLiteral("t"))->value().toFloat(), 1.0f);

    // The buffer keeps no state: restoring from it gives state 0.
    m_device->backupTags();
    QVERIFY(!m_device->backup().contains("device_tag_state"));
    QVERIFY(!m_device->hasRollback());
    m_device->restoreTags();
    QCOMPARE(m_device->deviceTagState(), 0);
    QCOMPARE(m_device->deviceTagsStateToShortString(), QString());
    QCOMPARE(m_device->deviceTagsStateToLongString(), QStringLiteral("from file"));
}

void tst_Device::snapshotWithoutStateKey()
{
    // Restores with empty snapshots change nothing.
    m_device->setDeviceTagState(Device::Changed);
    m_device->restoreTagsFromDeviceData();
    m_device->restoreTags();
    m_device->rollbackTags();
    QCOMPARE(m_device->deviceTagState(), int(Device::Changed));
    QVERIFY(!m_device->hasRollback());
}

void tst_Device::pasteMarksChanged()
{
    QSignalSpy spy(m_device, &ServerItem::modified);
    m_device->setDeviceTagState(Device::FromFile);
    const QVariantMap clip = {{"name", "d"}, {"tags", QVariantList {QVariantMap {{"name", "x"}}}}};
    QVERIFY(m_device->pasteFromClipboard(clip));
    QVERIFY(m_device->hasDeviceTagStateFlag(Device::Changed));
    QCOMPARE(spy.count(), 1);
    QVERIFY(m_device->tag(QStringLiteral("x")));
    QVERIFY(m_device->hasBackup());
}

void tst_Device::deviceDataValues()
{
    Tag *tag = m_device->addTag(QStringLiteral("t"));
    QVERIFY(!m_device->valueFromDeviceData(QStringLiteral("t")).isValid());
    tag->setDeviceType(Tag::dtInt16);
    tag->setValue(4);
    m_device->setValueInDeviceData(QStringLiteral("t"), 17);
    QCOMPARE(m_device->valueFromDeviceData(QStringLiteral("t")).toInt(), 17);
    m_device->setValueInDeviceData(QStringLiteral("nope"), 1);
    QVERIFY(!m_device->valueFromDeviceData(QStringLiteral("nope")).isValid());
    QCOMPARE(tag->value().toInt(), 4);
}

void tst_Device::shortAndLongMarks_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("shortMark");
    QTest::addColumn<QString>("longText");
    QTest::newRow("file") << 1 << ""
                          << "from file";
    QTest::newRow("read changed written") << (1 | 4 | 2 | 8) << "[>*<]"
                                          << "form device / changed / saved in device";
    QTest::newRow("polled") << 16 << "[@]"
                            << "from file / periodically requested";
    QTest::newRow("download") << (4 | 64) << "[>!]"
                              << "form device";
}

void tst_Device::shortAndLongMarks()
{
    QFETCH(int, state);
    QFETCH(QString, shortMark);
    QFETCH(QString, longText);
    m_device->setEnabled(true);
    m_device->setDeviceTagState(state);
    QCOMPARE(m_device->deviceTagsStateToShortString(), shortMark);
    QCOMPARE(m_device->deviceTagsStateToLongString(), longText);
}

void tst_Device::exceptionalAnswers_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("retry");
    QTest::addColumn<QString>("text");
    QTest::newRow("illegal value")
        << QByteArray::fromHex("05c103") << false << "illegal data value";
    QTest::newRow("busy with another")
        << QByteArray::fromHex("05c104") << true << "the device is busy with another request";
    QTest::newRow("accepted") << QByteArray::fromHex("05c105") << true
                              << "request accepted for execution";
    QTest::newRow("busy") << QByteArray::fromHex("05c106") << true << "device busy";
    QTest::newRow("unknown") << QByteArray::fromHex("05c101") << false << "unknown answer";
    QTest::newRow("another address") << QByteArray::fromHex("06c106") << false << "";
    QTest::newRow("not an exception") << QByteArray::fromHex("054106") << false << "";
    QTest::newRow("short") << QByteArray::fromHex("05") << false << "";
}

void tst_Device::exceptionalAnswers()
{
    QFETCH(QByteArray, answer);
    QFETCH(bool, retry);
    QFETCH(QString, text);
    m_device->setAddress(5);
    QString result = QStringLiteral("stale");
    QCOMPARE(m_device->getExceptionalAnswerText(answer, 0x41, result), retry);
    QCOMPARE(result, text);
}

void tst_Device::delayByBaudrate_data()
{
    QTest::addColumn<int>("baud");
    QTest::addColumn<int>("protocol");
    QTest::addColumn<int>("delay");
    QTest::newRow("1200") << 1200 << 0 << 29;
    QTest::newRow("9600") << 9600 << 0 << 4;
    QTest::newRow("115200") << 115200 << 0 << 1;
    QTest::newRow("9600 ascii") << 9600 << 1 << 20;
    QTest::newRow("unknown") << 14400 << 0 << 0;
}

void tst_Device::delayByBaudrate()
{
    QFETCH(int, baud);
    QFETCH(int, protocol);
    QFETCH(int, delay);
    m_port->setBaudrate(baud);
    m_device->setProtocolType(protocol);
    QCOMPARE(m_device->getDelayByBaudrate(), delay);
}

void tst_Device::channelQueue()
{
    Tag *plain = m_device->addTag(QStringLiteral("plain"));
    QVERIFY(!m_device->addChannel(plain));
    Tag *ch = channelTag(QStringLiteral("ch1_value"));
    QVERIFY(m_device->addChannel(ch));
    QVERIFY(m_device->addChannel(ch)); // already there
    QCOMPARE(m_device->Channels().size(), 1);
    m_device->addChannelToQueued(QStringLiteral("ch1_value"));
    m_device->addChannelToQueued(QStringLiteral("ghost"));
    m_device->setEnabled(false);
    QVERIFY(m_device->channelTagsToQueue().isEmpty());
    m_device->setEnabled(true);
    QCOMPARE(m_device->channelTagsToQueue(), (QList<Tag *> {ch, nullptr}));

    // A new value reaches the device's channel signal.
    QSignalSpy spy(m_device, &Device::appendChannelData);
    ch->setValue(1.5f);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("ch1_value"));
    Channel *channel = m_device->channelByName(QStringLiteral("ch1_value"));
    channel->setDeadBand(1.0);
    ch->setValue(2.0f); // within the dead band
    QCOMPARE(spy.count(), 1);
    for (int i = 0; i < 12; ++i)
        ch->setValue(float(10 * i));
    QCOMPARE(channel->points().size(), 10);
    QCOMPARE(channel->points().last().y(), 110.0);

    m_device->removeChannel(ch);
    QVERIFY(m_device->ChannelNames().isEmpty());
    QCOMPARE(m_device->queuedChannels(), QStringList {"ghost"});
}

void tst_Device::portSettingsInTags()
{
    for (const char *name : {"address", "baudrate", "parity", "protocol"})
        m_device->addTag(QLatin1String(name));
    m_device->setAddress(12);
    m_device->setProtocolType(1);
    m_device->setPortSettings(SerialPortSettings(QStringLiteral("/dev/ttyUSB0"), 9600,
                                                 SerialPortProtocol(8, QLatin1Char('E'), 1)));
    m_device->setPortSettingsInTags();
    QCOMPARE(m_device->tag(QStringLiteral("address"))->value().toInt(), 12);
    QCOMPARE(m_device->tag(QStringLiteral("baudrate"))->value().toInt(), 3);
    QCOMPARE(m_device->tag(QStringLiteral("parity"))->value().toInt(), 2);
    QCOMPARE(m_device->tag(QStringLiteral("protocol"))->value().toInt(), 1);
    QCOMPARE(m_device->portSettingsToString(true), QStringLiteral("/dev/ttyUSB0 ; 9600 ; 8E1"));
    QCOMPARE(m_device->portSettingsToString(false), QStringLiteral(";9600; 8E1"));
}

void tst_Device::nanTags()
{
    Tag *a = m_device->addTag(QStringLiteral("a"));
    Tag *b = m_device->addTag(QStringLiteral("b"));
    a->setValue(std::numeric_limits<float>::quiet_NaN());
    b->setValue(1.0f);
    QCOMPARE(m_device->tagsWithNan(), QList<Tag *> {a});
    m_device->fixTagsWithNanToNull();
    QVERIFY(!a->value().isValid());
    QVERIFY(!m_device->hasTagsWithNan());
}

QTEST_GUILESS_MAIN(tst_Device)
#include "tst_device.moc"
