// The simulator's standard functions, checked by masters that owe nothing to
// this project: a libmodbus client and mbpoll, both on the simulator's pty.

#include "simprocess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {

const QString scenario = QStringLiteral(SIM_DATA_DIR "/test-scenario.json");

QString hexText(const QByteArray &text)
{
    QStringList parts;
    for (const char c : text)
        parts << QStringLiteral("%1").arg(uint8_t(c), 2, 16, QLatin1Char('0'));
    return parts.join(QLatin1Char(' '));
}

qint64 cpuTicks(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return -1;
    const QString text = QString::fromLatin1(stat.readAll());
    const QStringList fields
        = text.mid(text.lastIndexOf(QLatin1Char(')')) + 2).split(QLatin1Char(' '));
    return fields.size() > 12 ? fields.at(11).toLongLong() + fields.at(12).toLongLong() : -1;
}

} // namespace

class TestSimPeers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void libmodbusClient_data();
    void libmodbusClient();
    void identificationReply();
    void channelsMove();
    void mbpollReadsAndWrites();
    void idleWithoutClientAndCleanStop();

private:
    QStringList client(int slave, const QStringList &ops);
    QString mbpoll(const QStringList &args);

    SimProcess m_sim;
};

void TestSimPeers::initTestCase()
{
    QString why;
    QVERIFY2(m_sim.start({QStringLiteral("--scenario"), scenario}, &why), qPrintable(why));
}

void TestSimPeers::cleanupTestCase()
{
    QCOMPARE(m_sim.stop(), 0);
}

QStringList TestSimPeers::client(int slave, const QStringList &ops)
{
    QProcess p;
    p.start(QStringLiteral(SIM_CLIENT), QStringList {m_sim.path(), QString::number(slave)} + ops);
    if (!p.waitForFinished(15000)) {
        p.kill();
        p.waitForFinished();
        return {};
    }
    return QString::fromLocal8Bit(p.readAllStandardOutput())
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QString TestSimPeers::mbpoll(const QStringList &args)
{
    QProcess p;
    p.start(QStringLiteral(MBPOLL_PROGRAM),
            QStringList {QStringLiteral("-m"), QStringLiteral("rtu"), QStringLiteral("-b"),
                         QStringLiteral("9600"), QStringLiteral("-P"), QStringLiteral("none"),
                         QStringLiteral("-0"), QStringLiteral("-1"), QStringLiteral("-q")}
                + args);
    if (!p.waitForFinished(15000)) {
        p.kill();
        p.waitForFinished();
    }
    return QString::fromLocal8Bit(p.readAllStandardOutput() + p.readAllStandardError());
}

void TestSimPeers::libmodbusClient_data()
{
    QTest::addColumn<QStringList>("ops");
    QTest::addColumn<QStringList>("expected");

    // The template's values as the wire carries them.
    QTest::newRow("uint16") << QStringList {"r3:0x10:1"} << QStringList {"ok 04d2"};
    QTest::newRow("float, swapping device: high word first")
        << QStringList {"r3:0x12:2"} << QStringList {"ok 3f80 0000"};
    QTest::newRow("uint32 read-only") << QStringList {"r3:0x14:2"} << QStringList {"ok 1234 5678"};
    QTest::newRow("float of a tag that doesn't swap")
        << QStringList {"r3:0x1a:2"} << QStringList {"ok 0000 3f80"};
    QTest::newRow("rule 1032") << QStringList {"r3:0x1c:2"} << QStringList {"ok 803f 0000"};
    QTest::newRow("two bit fields in one register")
        << QStringList {"r3:0x20:1"} << QStringList {"ok 0905"};
    QTest::newRow("separate block read whole")
        << QStringList {"r3:0x30:4"} << QStringList {"ok 0007 0000 4020 0000"};
    QTest::newRow("byte array as the master keeps it")
        << QStringList {"r3:0x40:4"} << QStringList {"ok 4953 2d4d 4554 5453"};
    QTest::newRow("input register") << QStringList {"r4:0x104:1"} << QStringList {"ok 002a"};

    // Writes are kept; what no tag covers, or covers read-only, is refused.
    QTest::newRow("write 16, read back")
        << QStringList {"w16:0x10:4321", "r3:0x10:1"} << QStringList {"ok", "ok 10e1"};
    QTest::newRow("write 6, read back")
        << QStringList {"w6:0x11:0xfff0", "r3:0x11:1"} << QStringList {"ok", "ok fff0"};
    QTest::newRow("write-only command") << QStringList {"w6:0x50:7"} << QStringList {"ok"};
    QTest::newRow("range ends")
        << QStringList {"r3:0x10:14", "r3:0x10:15", "r3:0x0f:2"}
        << QStringList {"ok 10e1 fff0 3f80 0000 1234 5678 3fb9 9999 9999 999a 0000 3f80 803f 0000",
                        "exc 2", "exc 2"};
    QTest::newRow("input register by function 3")
        << QStringList {"r3:0x104:1"} << QStringList {"exc 2"};
    QTest::newRow("write to read-only") << QStringList {"w16:0x14:1,2"} << QStringList {"exc 2"};
    QTest::newRow("coil write and read")
        << QStringList {"r1:0x200:1", "w5:0x200:0", "r1:0x200:1", "w15:0x200:1", "r1:0x200:1"}
        << QStringList {"ok 1", "ok", "ok 0", "ok", "ok 1"};
    QTest::newRow("discrete input refuses writes")
        << QStringList {"r2:0x201:1", "w5:0x201:0"} << QStringList {"ok 1", "exc 2"};
    QTest::newRow("bits beyond the map") << QStringList {"r1:0x200:3"} << QStringList {"exc 2"};
}

void TestSimPeers::libmodbusClient()
{
    QFETCH(QStringList, ops);
    QFETCH(QStringList, expected);
    QCOMPARE(client(1, ops), expected);
}

void TestSimPeers::identificationReply()
{
    const QStringList reply = client(1, {QStringLiteral("id")});
    QCOMPARE(reply.size(), 1);
    // Slave id 0x81, run indicator, then the long form of the text.
    QCOMPARE(reply.first(),
             QStringLiteral("ok 81 ff ")
                 + hexText("SimTest N042 2023 TEST 12345-07 01:02:2023 RS485"));
    QCOMPARE(client(99, {QStringLiteral("r3:0x10:1")}), QStringList {QStringLiteral("timeout")});
}

void TestSimPeers::channelsMove()
{
    // ch1_value runs a 2 s sine around 7 with an amplitude of 0.5.
    QList<float> seen;
    for (int i = 0; i < 3; ++i) {
        const QStringList r = client(1, {QStringLiteral("r4:0x100:2")});
        QCOMPARE(r.size(), 1);
        const QStringList words = r.first().split(QLatin1Char(' '));
        QCOMPARE(words.size(), 3);
        const quint32 bits
            = words.at(1).toUInt(nullptr, 16) << 16 | words.at(2).toUInt(nullptr, 16);
        float v;
        std::memcpy(&v, &bits, 4);
        QVERIFY2(v > 6.4f && v < 7.6f, qPrintable(QString::number(v)));
        seen << v;
        QThread::msleep(300);
    }
    QVERIFY(seen.at(0) != seen.at(1) || seen.at(1) != seen.at(2));
}

void TestSimPeers::mbpollReadsAndWrites()
{
    if (QStringLiteral(MBPOLL_PROGRAM).isEmpty()
        || !QFileInfo(QStringLiteral(MBPOLL_PROGRAM)).isExecutable())
        QSKIP("mbpoll is not installed");
    const QString a = QStringLiteral("-a"), t = QStringLiteral("-t"), r = QStringLiteral("-r"),
                  c = QStringLiteral("-c");
    const QString path = m_sim.path();

    QString out = mbpoll({a, "1", t, "4:float", "-B", r, "18", c, "1", path});
    QVERIFY2(out.contains(QRegularExpression(QStringLiteral("\\[18\\]:\\s+1(\\.0+)?\\b"))),
             qPrintable(out));

    out = mbpoll({a, "1", t, "4", r, "32", path, "0x0A0B"});
    QVERIFY2(out.contains(QStringLiteral("Written 1 references")), qPrintable(out));
    out = mbpoll({a, "1", t, "4:hex", r, "32", c, "1", path});
    QVERIFY2(out.contains(QStringLiteral("0x0A0B")), qPrintable(out));

    out = mbpoll({a, "1", t, "3", r, "260", c, "1", path});
    QVERIFY2(out.contains(QRegularExpression(QStringLiteral("\\[260\\]:\\s+42\\b"))),
             qPrintable(out));

    out = mbpoll({a, "1", t, "4", r, "20", path, "1", "2"});
    QVERIFY2(out.contains(QStringLiteral("Illegal data address")), qPrintable(out));
}

void TestSimPeers::idleWithoutClientAndCleanStop()
{
    QTemporaryDir dir;
    const QString link = dir.filePath(QStringLiteral("ttySIM"));
    SimProcess sim;
    QString why;
    QVERIFY2(sim.start({QStringLiteral("--template"), QStringLiteral("3:Zolt-21"),
                        QStringLiteral("--link"), link},
                       &why),
             qPrintable(why));
    QCOMPARE(QFileInfo(link).symLinkTarget(), sim.path());

    // A master comes and goes twice; in between nobody holds the line.
    for (int i = 0; i < 2; ++i) {
        QProcess p;
        p.start(QStringLiteral(SIM_CLIENT), {link, QStringLiteral("3"), QStringLiteral("r3:0:3")});
        QVERIFY(p.waitForFinished(10000));
        QCOMPARE(QString::fromLocal8Bit(p.readAllStandardOutput()).trimmed(),
                 QStringLiteral("ok 0003 0000 0003"));
    }
    const qint64 before = cpuTicks(sim.process().processId());
    QThread::msleep(1000);
    const qint64 spent = cpuTicks(sim.process().processId()) - before;
    QVERIFY2(before >= 0 && spent < 20,
             qPrintable(QStringLiteral("%1 ticks in one idle second").arg(spent)));

    QCOMPARE(sim.stop(), 0);
    QVERIFY(!QFileInfo::exists(link) && !QFileInfo(link).isSymLink());
}

QTEST_GUILESS_MAIN(TestSimPeers)
#include "tst_simpeers.moc"
