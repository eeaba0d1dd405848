// The simulator through the project's own Modbus transport: identification
// of every family, the vendor functions (archives, journal, ring archive),
// the faults, ASCII framing, line timing and random bytes on the line.

#include "simprocess.h"

#include "modbus/modbus.h"
#include "modbus/modbusframe.h"

#include <QDate>
#include <QDateTime>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>
#include <QThread>
#include <QtEndian>

#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace {

const QString scenario = QStringLiteral(SIM_DATA_DIR "/test-scenario.json");

quint32 le32(const QByteArray &b, int at)
{
    return qFromLittleEndian<quint32>(reinterpret_cast<const uchar *>(b.constData() + at));
}

// Master context on a simulator line.
class Master
{
public:
    ~Master() { close(); }
    bool open(const QString &path, bool ascii = false, int responseMs = 500)
    {
        const QByteArray p = path.toLocal8Bit();
        m_ctx = ascii ? modbus_new_ascii(p.constData(), 9600, 'N', 8, 1)
                      : modbus_new_rtu(p.constData(), 9600, 'N', 8, 1);
        if (!m_ctx || modbus_connect(m_ctx) != 0)
            return false;
        const timeval response {responseMs / 1000, (responseMs % 1000) * 1000};
        const timeval byte {0, 50000};
        modbus_set_response_timeout(m_ctx, &response);
        modbus_set_byte_timeout(m_ctx, &byte);
        return true;
    }
    void close()
    {
        if (m_ctx) {
            modbus_close(m_ctx);
            modbus_free(m_ctx);
        }
        m_ctx = nullptr;
    }
    modbus_t *ctx() const { return m_ctx; }

    // Registers as the master keeps them in memory (host order).
    QByteArray read(int slave, int function, int address, int count, int *error = nullptr)
    {
        modbus_set_slave(m_ctx, slave);
        uint16_t regs[125];
        const int rc = function == 4 ? modbus_read_input_registers(m_ctx, address, count, regs)
                                     : modbus_read_registers(m_ctx, address, count, regs);
        if (error)
            *error = rc < 0 ? errno : 0;
        return rc < 0 ? QByteArray() : QByteArray(reinterpret_cast<const char *>(regs), rc * 2);
    }

    // A vendor request (slave, function, data); the reply without checksum.
    QByteArray raw(const QByteArray &request)
    {
        modbus_set_slave(m_ctx, uint8_t(request[0]));
        QByteArray req = request;
        if (modbus_send_raw_request(m_ctx, reinterpret_cast<uint8_t *>(req.data()), int(req.size()))
            < 0)
            return QByteArray();
        uint8_t rsp[MODBUS_MAX_ADU_LENGTH];
        const int n = modbus_receive_confirmation(m_ctx, rsp);
        return n < 2 ? QByteArray() : QByteArray(reinterpret_cast<const char *>(rsp), n - 2);
    }

    QByteArray reportSlaveId(int slave)
    {
        modbus_set_slave(m_ctx, slave);
        uint8_t dest[MODBUS_MAX_PDU_LENGTH];
        const int n = modbus_report_slave_id(m_ctx, dest);
        return n < 0 ? QByteArray() : QByteArray(reinterpret_cast<const char *>(dest), n);
    }

private:
    modbus_t *m_ctx = nullptr;
};

QByteArray bytes(std::initializer_list<int> list)
{
    QByteArray out;
    for (const int b : list)
        out.append(char(b));
    return out;
}

QByteArray blockRequest(int slave, quint32 address, int size)
{
    return bytes({slave, 0x41, int(address >> 24), int(address >> 16 & 0xFF),
                  int(address >> 8 & 0xFF), int(address & 0xFF), 0, size});
}

QByteArray journalBlock(int slave, int channel, quint32 address, int size)
{
    return bytes({slave, 0x45, 0, channel, int(address >> 24), int(address >> 16 & 0xFF),
                  int(address >> 8 & 0xFF), int(address & 0xFF), 0, size});
}

QDateTime journalDate(const QByteArray &rec)
{
    return QDateTime(QDate(2000 + uint8_t(rec[0]), uint8_t(rec[1]), uint8_t(rec[2])),
                     QTime(uint8_t(rec[3]), uint8_t(rec[4]), uint8_t(rec[5])));
}

quint32 secondOfYear(const QDateTime &dt)
{
    return quint32(QDate(dt.date().year(), 1, 1).daysTo(dt.date())) * 86400u
        + quint32(dt.time().msecsSinceStartOfDay() / 1000);
}

// The ring archive's documented reading: find the oldest frame at the lap
// switch (rolling dates back over frames whose time frame was overwritten),
// then take the records in two passes. Returns the record dates.
QList<QDateTime> parseRing(const QByteArray &img)
{
    auto at = [&](int i) { return i >= 0 && i < img.size() ? uint8_t(img[i]) : uint8_t(0); };
    auto frameDate = [&](int i) {
        return QDateTime(QDate(1999 + at(i + 1), at(i + 2), at(i + 3)),
                         QTime(at(i + 4), at(i + 5), at(i + 6)));
    };
    static const int seconds[8] = {1, 2, 5, 10, 15, 30, 60, 300};
    QList<QDateTime> dates;
    if (img.size() < 2 || at(1) == 0)
        return dates;
    const bool r0 = at(0) & 0x80;
    int channels = (at(0) >> 4) & 3;
    int interval = seconds[at(0) & 7];
    int size = int(img.size());
    int start = 0;
    QDateTime current;
    bool prevTime = at(0) & 0x40;
    for (int i = 0; i < size;) {
        const uint8_t h = at(i);
        const int step = channels == 2 ? 8 : 4;
        if (!(h & 0x40)) {
            prevTime = false;
            i += 4;
            continue;
        }
        const bool r = h & 0x80;
        if (r == r0) {
            prevTime = true;
            i += 8;
            continue;
        }
        int k = i;
        if (at(i + 1) == 0) {
            while (!prevTime && k - step >= 0 && !(at(k - step) & 0x40)
                   && bool(at(k - step) & 0x80) == r)
                k -= step;
            size = k;
            break;
        }
        channels = (h >> 4) & 3;
        interval = seconds[h & 7];
        start = i;
        if (!prevTime && bool(at(i - 4) & 0x80) == r) {
            current = frameDate(i);
            while (k - step >= 0 && !(at(k - step) & 0x40) && bool(at(k - step) & 0x80) == r) {
                k -= step;
                current = current.addSecs(-interval);
            }
            start = k;
        }
        break;
    }
    const QList<QPair<int, int>> passes {{start, size}, {0, start}};
    for (const auto &pass : passes) {
        for (int i = pass.first; i < pass.second;) {
            const uint8_t h = at(i);
            if (h & 0x40) {
                current = at(i + 1) ? frameDate(i) : QDateTime();
                i += 8;
                continue;
            }
            if (current.isValid())
                dates << current;
            i += channels == 2 ? 8 : 4;
            current = current.addSecs(interval);
        }
    }
    return dates;
}
} // namespace

class TestSimTransport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void reportSlaveId_data();
    void reportSlaveId();
    void sensorIdentification();
    void archiveStructureAndBlocks();
    void archiveOldBlockForm();
    void journal();
    void ringArchive();
    void faults();
    void busyOnlyWhereAsked();
    void asciiLine();
    void lineTiming();
    void randomBytesOnTheLine();

private:
    QByteArray readRing(int slave);

    SimProcess m_sim;
    Master m_master;
};

void TestSimTransport::initTestCase()
{
    QString why;
    QVERIFY2(m_sim.start({QStringLiteral("--scenario"), scenario}, &why), qPrintable(why));
    QVERIFY(m_master.open(m_sim.path()));
}

void TestSimTransport::cleanupTestCase()
{
    m_master.close();
    QCOMPARE(m_sim.stop(), 0);
}

void TestSimTransport::reportSlaveId_data()
{
    QTest::addColumn<int>("slave");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("text");
    QTest::newRow("long, date with colons")
        << 1 << 0x81 << "SimTest N042 2023 TEST 12345-07 01:02:2023 RS485";
    QTest::newRow("short with firmware") << 2 << 2 << "Zolt-30 pH 30211-05 03.02.2022";
    QTest::newRow("short with date") << 3 << 3 << "Quil-82 O2 11.11.2020";
    QTest::newRow("compact Zolt30") << 4 << 4 << "Zolt30";
    QTest::newRow("compact Marn14T") << 11 << 11 << "Marn14T";
    QTest::newRow("template date kept")
        << 5 << 5 << "Zolt-42 N123 2021 SIM 10203-01 01.01.2020 RS485";
}

void TestSimTransport::reportSlaveId()
{
    QFETCH(int, slave);
    QFETCH(int, id);
    QFETCH(QString, text);
    const QByteArray reply = m_master.reportSlaveId(slave);
    QVERIFY(reply.size() > 2);
    QCOMPARE(uint8_t(reply[0]), uint8_t(id));
    QCOMPARE(uint8_t(reply[1]), uint8_t(0xFF));
    QCOMPARE(QString::fromLatin1(reply.mid(2)), text);
}

void TestSimTransport::sensorIdentification()
{
    int error = 0;
    // "#F3#109#2": two registers the template doesn't cover still answer.
    QCOMPARE(m_master.read(9, 3, 109, 2, &error).size(), 4);
    // Hamilton: the id lies in the master's memory image of 8 registers at 1031.
    QVERIFY(m_master.read(8, 3, 1031, 8).contains("EPHUM0"));
    // Nengshi: the third byte of 10 input registers at 0 tells pH (10).
    const QByteArray nengshi = m_master.read(6, 4, 0, 10, &error);
    QCOMPARE(nengshi.size(), 20);
    QCOMPARE(int(nengshi[2]), 10);
    // Y510-B: 7 registers at 2304 read as text after swapping each pair.
    QByteArray y510 = m_master.read(7, 3, 2304, 7);
    for (int i = 0; i + 1 < y510.size(); i += 2)
        std::swap(y510[i], y510[i + 1]);
    QCOMPARE(QString::fromLatin1(y510).remove(QChar(0)), QStringLiteral("Y510-B 4711"));
    // Y610-B: any answer of 6 registers at 9728.
    QCOMPARE(m_master.read(13, 3, 9728, 6, &error).size(), 12);
}

void TestSimTransport::archiveStructureAndBlocks()
{
    const QByteArray structure = m_master.raw(bytes({5, 0x42}));
    QCOMPARE(structure.size(), 59); // 61 with the checksum
    const quint32 recordSize = le32(structure, 3);
    QCOMPARE(recordSize, 24u);
    QList<quint32> sizes;
    for (int i = 0; i < 13; ++i)
        sizes << le32(structure, 7 + 4 * i);
    QCOMPARE(sizes.first() / sizes.at(4), 60u);
    QCOMPARE(sizes.first() / sizes.at(12), 86400u);

    // The one-minute archive from 00:05 on 1 February: the hole ends at 00:09:59.
    const int type = 4;
    const quint32 period = sizes.first() / sizes.at(type);
    const quint32 startSec = secondOfYear(QDateTime(QDate(2024, 2, 1), QTime(0, 5)));
    quint32 base = 0;
    for (int i = 0; i < type; ++i)
        base += sizes.at(i) * recordSize;
    const quint32 startAddr = base + recordSize * (startSec / period);
    const QByteArray block = m_master.raw(blockRequest(5, startAddr, 240));
    QCOMPARE(block.size(), 3 + 240);
    for (int k = 0; k < 10; ++k) {
        const QByteArray rec = block.mid(3 + k * 24, 24);
        const bool hole = k < 5;
        QCOMPARE(le32(rec, 0), hole ? 0u : 2024u);
        QCOMPARE(le32(rec, 4), hole ? 0u : startSec + k * period);
    }

    // The one-second archive: address = second of the year times the record size.
    const quint32 sec = secondOfYear(QDateTime(QDate(2024, 3, 15), QTime(12, 0, 7)));
    const QByteArray one = m_master.raw(blockRequest(5, sec * recordSize, 24));
    QCOMPARE(one.size(), 27);
    QCOMPARE(le32(one, 3), 2024u);
    QCOMPARE(le32(one, 7), sec);
    for (int v = 0; v < 4; ++v)
        QVERIFY(qIsFinite(qFromLittleEndian<float>(
            reinterpret_cast<const uchar *>(one.constData() + 11 + 4 * v))));

    // Past the end of the last archive: an exception, not data.
    quint32 total = 0;
    for (const quint32 s : sizes)
        total += s * recordSize;
    const QByteArray beyond = m_master.raw(blockRequest(5, total - 10, 24));
    QCOMPARE(beyond.toHex(), bytes({5, 0xC1, 2}).toHex());
}

void TestSimTransport::archiveOldBlockForm()
{
    // Function 20, record number and length in registers: 12 registers from 0
    // are the first record of the one-second archive.
    const QByteArray reply = m_master.raw(bytes({5, 20, 7, 6, 0, 0, 0, 0, 0, 12}));
    QCOMPARE(reply.size(), 5 + 24);
    QCOMPARE(int(uint8_t(reply[2])), 26);
    QCOMPARE(le32(reply, 5), 2024u);
    QCOMPARE(le32(reply, 9), 0u);
}

void TestSimTransport::journal()
{
    // pH family, ten records from 1 March 2024 08:00, one an hour.
    QByteArray s = m_master.raw(bytes({2, 0x46, 0, 1}));
    QCOMPARE(s.size(), 11); // 13 with the checksum
    QCOMPARE(le32(s, 3), 44u);
    QCOMPARE(le32(s, 7), 9u);
    QByteArray block = m_master.raw(journalBlock(2, 1, 0, 220));
    QCOMPARE(block.size(), 3 + 220);
    for (int r = 0; r < 5; ++r)
        QCOMPARE(journalDate(block.mid(3 + 44 * r, 6)),
                 QDateTime(QDate(2024, 3, 1), QTime(8 + r, 0)));
    block = m_master.raw(journalBlock(2, 1, 440, 44));
    QCOMPARE(uint8_t(block[3]), uint8_t(0xFF)); // the eleventh was never written

    // A full ring whose newest record is 100: 101 is the oldest.
    s = m_master.raw(bytes({3, 0x46, 0, 1}));
    QCOMPARE(le32(s, 3), 35u);
    QCOMPARE(le32(s, 7), 100u);
    const QDateTime first(QDate(2022, 1, 1), QTime(0, 0));
    const QByteArray oldest = m_master.raw(journalBlock(3, 1, 101 * 35, 35));
    QCOMPARE(journalDate(oldest.mid(3, 6)), first);
    const QByteArray newest = m_master.raw(journalBlock(3, 1, 100 * 35, 35));
    QCOMPARE(journalDate(newest.mid(3, 6)), first.addSecs(998LL * 12 * 3600));
    const QByteArray zero = m_master.raw(journalBlock(3, 1, 0, 35));
    QCOMPARE(journalDate(zero.mid(3, 6)), first.addSecs(898LL * 12 * 3600));

    // An empty journal says 1000.
    s = m_master.raw(bytes({10, 0x46, 0, 1}));
    QCOMPARE(le32(s, 3), 56u);
    QCOMPARE(le32(s, 7), 1000u);
}

QByteArray TestSimTransport::readRing(int slave)
{
    QByteArray image;
    for (int i = 0; i < 512; ++i) {
        const int address = i * 64;
        const QByteArray reply
            = m_master.raw(bytes({slave, 20, 7, 6, 0, 0, address >> 8, address & 0xFF, 0, 64}));
        if (reply.size() != 133) // 135 with the checksum
            return QByteArray();
        image.append(reply.mid(5));
    }
    return image;
}

void TestSimTransport::ringArchive()
{
    // Two channels, wrapped: the newest lap (marker clear) starts at 0 with
    // a time frame, the older lap follows; time frames stay 8-aligned.
    QByteArray image = readRing(4);
    QCOMPARE(image.size(), 65536);
    QCOMPARE(uint8_t(image[0]) & 0xC0, 0x40);
    QCOMPARE((uint8_t(image[0]) >> 4) & 3, 2);
    int switches = 0;
    bool r = false;
    int timeFrames = 0;
    for (int i = 0; i < image.size();) {
        const uint8_t h = uint8_t(image[i]);
        if ((h & 0x80) != 0 && !r)
            ++switches;
        r = h & 0x80;
        if (h & 0x40) {
            QCOMPARE(i % 8, 0);
            QVERIFY(uint8_t(image[i + 1]) != 0);
            const QDate date(1999 + uint8_t(image[i + 1]), uint8_t(image[i + 2]),
                             uint8_t(image[i + 3]));
            QVERIFY(date >= QDate(2024, 6, 1) && date < QDate(2024, 7, 1));
            ++timeFrames;
            i += 8;
        } else {
            const quint32 w
                = qFromBigEndian<quint32>(reinterpret_cast<const uchar *>(image.constData() + i));
            const double kdop = (int(w >> 19 & 0x7FF) - 512) / 10.0; // Zolt: offset 512
            const double kosn = (int(w >> 7 & 0xFFF) - 1024) / 100.0; // mode 0
            QVERIFY2(kdop > 16.0 && kdop < 24.0 && kosn > 5.0 && kosn < 9.0,
                     qPrintable(QStringLiteral("%1 %2 at %3").arg(kdop).arg(kosn).arg(i)));
            i += 4;
        }
    }
    QCOMPARE(switches, 1);
    QVERIFY(timeFrames > 100);
    // Read as documented, the records of both laps follow one another every
    // 5 s, the oldest surviving one first.
    QList<QDateTime> dates = parseRing(image);
    QVERIFY(dates.size() > 7000);
    for (int i = 1; i < dates.size(); ++i)
        QVERIFY2(dates.at(i - 1).secsTo(dates.at(i)) == 5, qPrintable(QString::number(i)));
    QVERIFY(dates.first() > QDateTime(QDate(2024, 6, 1), QTime(0, 0)));

    // Never wrapped: the first lap carries the marker, and a format label of
    // the next lap ends the written part.
    image = readRing(11);
    QCOMPARE(image.size(), 65536);
    int label = -1;
    for (int i = 0; i < image.size() && label < 0;) {
        const uint8_t h = uint8_t(image[i]);
        if ((h & 0x40) && image[i + 1] == 0)
            label = i;
        else
            QVERIFY(h & 0x80);
        i += (h & 0x40) ? 8 : 4;
    }
    QCOMPARE(label, 8 + 300 * 4 + 2 * 8);
    QCOMPARE(uint8_t(image[label]) & 0x80, 0);
    dates = parseRing(image);
    QCOMPARE(dates.size(), 300);
    QCOMPARE(dates.first(), QDateTime(QDate(2024, 6, 1), QTime(0, 0)));
    QCOMPARE(dates.last(), QDateTime(QDate(2024, 6, 1), QTime(4, 59)));

    // Formatted: nothing but the label.
    image = readRing(12);
    QCOMPARE(image.left(2).toHex(), QByteArray("4000"));
}

void TestSimTransport::faults()
{
    Master m;
    QVERIFY(m.open(m_sim.path(), false, 200));
    struct Case
    {
        int slave;
        int error;
    };
    const Case cases[] = {{20, EMBXSBUSY}, {21, EMBBADCRC}, {22, ETIMEDOUT}, {23, ETIMEDOUT}};
    for (const Case &c : cases) {
        int error = 0;
        QVERIFY(m.read(c.slave, 3, 0x10, 1, &error).isEmpty());
        QCOMPARE(error, c.error);
        modbus_flush(m.ctx());
        // The line is in step again for the next good request.
        QCOMPARE(m.read(1, 3, 0x14, 2).size(), 4);
    }
    for (const int slave : {24, 25}) {
        int error = 0;
        m.read(slave, 3, 0x10, 1, &error);
        QThread::msleep(60);
        modbus_flush(m.ctx());
        QCOMPARE(m.read(1, 3, 0x14, 2).size(), 4);
    }
    // A cut reply or garbage never reads as a good one.
    int error = 0;
    QVERIFY(m.read(24, 3, 0x10, 1, &error).isEmpty());
}

void TestSimTransport::busyOnlyWhereAsked()
{
    // Busy on every second archive block only: the second request gets
    // code 4 or 5, its repeat the data; register reads are never touched.
    QCOMPARE(m_master.raw(blockRequest(26, 0, 16)).size(), 3 + 16);
    const QByteArray busy = m_master.raw(blockRequest(26, 0, 16));
    QCOMPARE(busy.size(), 3);
    QCOMPARE(uint8_t(busy[1]), uint8_t(0xC1));
    QVERIFY(busy[2] == 4 || busy[2] == 5);
    QCOMPARE(m_master.raw(blockRequest(26, 0, 16)).size(), 3 + 16);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(m_master.read(26, 3, 0x10, 1).size(), 2);
}

void TestSimTransport::asciiLine()
{
    SimProcess sim;
    QString why;
    QVERIFY2(
        sim.start({"--template", "1:Zolt-21", "--protocol", "ascii", "--delimiter", "10"}, &why),
        qPrintable(why));
    Master m;
    QVERIFY(m.open(sim.path(), true));
    QByteArray regs = m.read(1, 3, 0, 3);
    QCOMPARE(regs.size(), 6);
    QCOMPARE(qFromLittleEndian<quint16>(reinterpret_cast<const uchar *>(regs.constData() + 4)),
             quint16(1));
    modbus_set_slave(m.ctx(), 1);
    QCOMPARE(modbus_write_register(m.ctx(), 1, 2), 1);
    regs = m.read(1, 3, 1, 1);
    QCOMPARE(qFromLittleEndian<quint16>(reinterpret_cast<const uchar *>(regs.constData())),
             quint16(2));
    QVERIFY(m.reportSlaveId(1).mid(2).startsWith("Zolt-21 "));
    m.close();
    QCOMPARE(sim.stop(), 0);
}

void TestSimTransport::lineTiming()
{
    SimProcess sim;
    QString why;
    QVERIFY2(sim.start({"--template", "1:Zolt-21", "--line-timing", "--baud", "9600"}, &why),
             qPrintable(why));
    Master m;
    QVERIFY(m.open(sim.path()));
    // 8 + 9 characters of 10 bits at 9600 baud and the silence between: 21 ms.
    const int64_t expectedUs = 17 * ModbusFrame::characterTimeUs(9600, 8, 'N', 1)
        + ModbusFrame::frameSilenceUs(9600, 8, 'N', 1);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 10; ++i)
        QCOMPARE(m.read(1, 3, 0, 2).size(), 4);
    const qint64 perRead = clock.nsecsElapsed() / 10000;
    QVERIFY2(
        perRead >= expectedUs && perRead < expectedUs + 30000,
        qPrintable(QStringLiteral("%1 us per read, line needs %2").arg(perRead).arg(expectedUs)));
    m.close();
    QCOMPARE(sim.stop(), 0);
}

void TestSimTransport::randomBytesOnTheLine()
{
    Master m;
    QVERIFY(m.open(m_sim.path()));
    const int fd = modbus_get_socket(m.ctx());
    QRandomGenerator rng(12345);
    for (int round = 0; round < 20; ++round) {
        QByteArray noise(64 + int(rng.bounded(400)), '\0');
        for (char &c : noise)
            c = char(rng.bounded(256));
        QVERIFY(::write(fd, noise.constData(), size_t(noise.size())) == noise.size());
        if (round % 2) {
            // Straight behind the noise, no silence: still found and answered.
            QByteArray req = bytes({1, 3, 0, 0x14, 0, 2});
            req.resize(8);
            ModbusFrame::appendCrc(reinterpret_cast<uint8_t *>(req.data()), 6);
            QVERIFY(::write(fd, req.constData(), 8) == 8);
            QByteArray heard;
            QElapsedTimer clock;
            clock.start();
            while (!heard.contains(QByteArray::fromHex("010304123456")) && clock.elapsed() < 500) {
                pollfd p {fd, POLLIN, 0};
                char buf[512];
                if (::poll(&p, 1, 50) > 0) {
                    const ssize_t n = ::read(fd, buf, sizeof buf);
                    if (n > 0)
                        heard.append(buf, int(n));
                }
            }
            QVERIFY2(heard.contains(QByteArray::fromHex("010304123456")),
                     heard.toHex(' ').constData());
            modbus_flush(m.ctx());
        } else {
            QThread::msleep(40);
            modbus_flush(m.ctx());
        }
        QCOMPARE(m.read(1, 3, 0x14, 2).size(), 4);
    }
    QVERIFY(m_sim.running());
}

QTEST_GUILESS_MAIN(TestSimTransport)
#include "tst_simtransport.moc"
