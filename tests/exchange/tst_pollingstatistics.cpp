#include "exchange/pollingstatistics.h"
#include "exchange/portthread.h"
#include "exchange/worker.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"
#include "portlockhold.h"

#include <QSignalSpy>
#include <QtTest>

// The statistics text and warnings of real polling threads on a port whose
// line does not exist: every exchange fails at once, and holding the port
// lock stands for a line that has stopped keeping up.
class tst_PollingStatistics : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void timeAndPortLines();
    void threadLinesAndProblemTags();
    void droppedWarningListsStaleDevices();
    void jamWarningWithoutDrops();
    void recentDropsMeasuredPerPeriod();
    void playActionBlinksWithTheWarning();

private:
    Device *polledDevice(const QString &name, int channels, int period);
    static QStringList lines(const QString &text) { return text.split(QLatin1Char('\n')); }

    Server *m_server = nullptr;
    Port *m_port = nullptr;
};

void tst_PollingStatistics::init()
{
    m_server = new Server;
    m_port = m_server->addPort(QStringLiteral("line"));
    m_port->setSerialName(QStringLiteral("/nonexistent/ttyNONE"));
}

void tst_PollingStatistics::cleanup()
{
    delete m_server;
    m_server = nullptr;
}

Device *tst_PollingStatistics::polledDevice(const QString &name, int channels, int period)
{
    Device *device = m_port->addDevice(name);
    device->setAddress(1);
    for (int i = 1; i <= channels; ++i) {
        Tag *tag = device->addTag(QStringLiteral("ch%1_value").arg(i));
        tag->setConfigGroup({QStringLiteral("channel"), QStringLiteral("Channel %1").arg(i)});
        tag->setRequestDelay(0);
        tag->setEnabled(true);
        tag->setPeriod(period);
        // As the editor does when polling starts.
        tag->setTimeStamp(QDateTime::currentDateTime());
        device->addChannel(tag);
    }
    return device;
}

void tst_PollingStatistics::timeAndPortLines()
{
    polledDevice(QStringLiteral("idle"), 2, 1000);
    m_server->addPort(QStringLiteral("other"));
    PollingStatistics stats;
    // "mm" in the date's place is minutes: the text has always looked so.
    const QString text = stats.build(m_server, QDateTime(QDate(2024, 3, 5), QTime(10, 7, 9)));
    QVERIFY2(text.startsWith(
                 QStringLiteral("Time: 05.07.2024 10:07:09\n------------------- statistics")),
             qPrintable(text));
    QVERIFY(text.contains(QStringLiteral("Port:line Devices:1 Tags:2\n")));
    QVERIFY(text.contains(QStringLiteral("Port:other Devices:0 Tags:0\n")));
    // No thread, no thread section and no warning.
    QVERIFY(text.endsWith(
        QStringLiteral("-------------------Thread statistics--------------------\n")));
    QVERIFY(stats.statusMessage().isEmpty());
    QVERIFY(!stats.hasWarning());
}

void tst_PollingStatistics::threadLinesAndProblemTags()
{
    // Slow enough for every tick to be served, even under a sanitizer.
    Device *device = polledDevice(QStringLiteral("meter"), 2, 200);
    QVERIFY(m_port->attachDeviceToPeriodRequest(device));
    PortThread *thread = m_port->portThread();
    QTRY_VERIFY(thread->failedRequestsCount() >= 4);

    QString warning;
    const QStringList head = lines(
        PollingStatistics::buildThreadStat(m_port, QDateTime::currentSecsSinceEpoch(), &warning));
    QCOMPARE(head.at(0),
             QStringLiteral("/nonexistent/ttyNONE: Thread ID:%1  1 devices scheduled")
                 .arg(thread->threadId()));
    QVERIFY(thread->threadId() > 0);
    const QStringList labels = {
        QStringLiteral("  scheduled requests:"),
        QStringLiteral("    processed requests:"),
        QStringLiteral("    current queue size:"),
        QStringLiteral("    pending requests:"),
        QStringLiteral("    dropped requests:"),
        QStringLiteral("    *total failed requests:"),
        QStringLiteral("    *total dropped requests:"),
        QStringLiteral("    processing time, ms(min/avg/max):"),
    };
    for (int i = 0; i < labels.size(); ++i) {
        const QString line = head.at(i + 1);
        QVERIFY2(line.startsWith(labels.at(i).leftJustified(40, QLatin1Char('.'))),
                 qPrintable(line));
        QVERIFY2(!line.mid(40).isEmpty() && line.at(40) != QLatin1Char('.'), qPrintable(line));
    }
    QCOMPARE(head.at(3).mid(40), QStringLiteral("2"));
    QVERIFY(head.at(1).mid(40).toULongLong() >= head.at(6).mid(40).toULongLong());
    // Failed exchanges keep no processing time.
    QCOMPARE(head.at(8).mid(40), QStringLiteral("0/0/0"));

    const QString errors = PollingStatistics::buildErrorsStat(m_port, &warning);
    QVERIFY2(
        errors.startsWith(QStringLiteral(
            "WARNING! There are devices with problems!!!\nDevices with problem tags: \nmeter;")),
        qPrintable(errors));
    QVERIFY(errors.contains(QStringLiteral("    ch1_value")));
    QVERIFY(errors.contains(QStringLiteral("    ch2_value")));
    QCOMPARE(warning, QStringLiteral("WARNING! There are devices with problems!!!"));

    PollingStatistics stats;
    const QString text = stats.build(m_server, QDateTime::currentDateTime());
    QVERIFY(text.contains(QStringLiteral("Thread ID:")));
    QVERIFY(text.endsWith(
        QStringLiteral("---------------------------------------------------------\n\n")));
    QCOMPARE(stats.statusMessage(), warning);
    QVERIFY(stats.hasWarning());
}

void tst_PollingStatistics::droppedWarningListsStaleDevices()
{
    Device *stale = polledDevice(QStringLiteral("stale"), 3, 40);
    Device *idle = polledDevice(QStringLiteral("idle"), 1, 100000);
    m_port->setProperty("clear_queue_if_timeout", true);
    QVERIFY(m_port->attachDeviceToPeriodRequest(stale));
    QVERIFY(m_port->attachDeviceToPeriodRequest(idle));
    PortThread *thread = m_port->portThread();
    QVERIFY(thread->clearQueueIfTimeout());

    // A line that does not keep up: the worker waits for the port lock while
    // every tick throws the last one's requests away.
    PortLockHold hold(m_port);
    QTRY_VERIFY(thread->totalDroppedRequestsCount() >= 6);
    QTRY_VERIFY_WITH_TIMEOUT(stale->hasChannelTagsWithTimeStampTimeout(), 5000);
    QString warning;
    const QString text
        = PollingStatistics::buildThreadStat(m_port, QDateTime::currentSecsSinceEpoch(), &warning);
    hold.release();

    QCOMPARE(warning, QStringLiteral("WARNING! There are dropped requests!!!"));
    const int at = text.indexOf(warning);
    QVERIFY(at > 0);
    QCOMPARE(text.mid(at),
             QStringLiteral(
                 "WARNING! There are dropped requests!!!\n"
                 "There are devices with non-updated tags!!!\n"
                 "It's necessary to change the number of devices or their periodically polls\n"
                 "\nDevices with tags timeout timestamp:\n"
                 "  stale\n"));
}

void tst_PollingStatistics::jamWarningWithoutDrops()
{
    Device *device = polledDevice(QStringLiteral("meter"), 2, 20);
    QVERIFY(m_port->attachDeviceToPeriodRequest(device));
    PortThread *thread = m_port->portThread();
    QVERIFY(!thread->queueDelay());

    PortLockHold hold(m_port);
    QTRY_VERIFY(thread->pendingRequestsCount() > 4);
    QVERIFY(thread->queueDelay());
    QString warning;
    const QString text
        = PollingStatistics::buildThreadStat(m_port, QDateTime::currentSecsSinceEpoch(), &warning);
    hold.release();

    QCOMPARE(warning, QStringLiteral("WARNING! There there was a traffic jam in queue!!!"));
    QVERIFY(text.contains(PollingStatistics::statLine(
        QStringLiteral("    *total dropped requests:"), QStringLiteral("0"))));
    QVERIFY(text.contains(QStringLiteral("It's necessary to change the number of devices")));
    // Once the line is free again the queue drains and the warning goes.
    QTRY_VERIFY(!thread->queueDelay());
}

void tst_PollingStatistics::recentDropsMeasuredPerPeriod()
{
    Device *device = polledDevice(QStringLiteral("meter"), 1, 20);
    m_port->setProperty("clear_queue_if_timeout", true);
    QVERIFY(m_port->attachDeviceToPeriodRequest(device));
    PortThread *thread = m_port->portThread();
    QCOMPARE(thread->minPollingPeriod(), 20);

    PortLockHold hold(m_port);
    QTRY_VERIFY(thread->totalDroppedRequestsCount() >= 2);
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    const quint64 first = thread->droppedRequestsCount(now);
    QVERIFY(first >= 2);
    const quint64 total = thread->totalDroppedRequestsCount();
    QTRY_VERIFY(thread->totalDroppedRequestsCount() > total);
    // Within the same second nothing is measured again...
    QCOMPARE(thread->droppedRequestsCount(now), first);
    // ...a second later it is the growth since the last measure.
    const quint64 later = thread->droppedRequestsCount(now + 1);
    QVERIFY(later >= 1);
    QVERIFY(later <= thread->totalDroppedRequestsCount() - first);
    hold.release();
}

void tst_PollingStatistics::playActionBlinksWithTheWarning()
{
    PollingStatistics stats;
    QSignalSpy changes(&stats, &PollingStatistics::playChanged);
    QVERIFY(!stats.isPlayVisible());
    stats.blink(); // not polling: nothing blinks
    QCOMPARE(changes.count(), 0);

    stats.setPollingActive(true);
    QVERIFY(stats.isPlayVisible());
    QCOMPARE(stats.playIcon(), QStringLiteral(":/images/play.png"));
    stats.blink();
    QVERIFY(!stats.isPlayVisible());
    stats.blink();
    QVERIFY(stats.isPlayVisible());
    QCOMPARE(stats.playIcon(), QStringLiteral(":/images/play.png"));

    // A warning turns the icon at once, and it stays while the action blinks.
    Device *device = polledDevice(QStringLiteral("meter"), 1, 20);
    QVERIFY(m_port->attachDeviceToPeriodRequest(device));
    QTRY_VERIFY(m_port->portThread()->failedRequestsCount() >= 1);
    stats.build(m_server, QDateTime::currentDateTime());
    QVERIFY(stats.hasWarning());
    QCOMPARE(stats.playIcon(), QStringLiteral(":/images/play_err.png"));
    stats.blink();
    QVERIFY(!stats.isPlayVisible());
    QCOMPARE(stats.playIcon(), QStringLiteral(":/images/play_err.png"));
    stats.blink();
    QVERIFY(stats.isPlayVisible());
    QCOMPARE(stats.playIcon(), QStringLiteral(":/images/play_err.png"));

    // Polling stopped: hidden, and the next start begins without the warning.
    QVERIFY(m_port->detachDeviceFromPeriodRequest(device));
    stats.setPollingActive(m_server->isPortsThreadWorked());
    QVERIFY(!stats.isPlayVisible());
    QVERIFY(stats.statusMessage().isEmpty());
    stats.setPollingActive(true);
    QVERIFY(!stats.hasWarning());
    QCOMPARE(stats.playIcon(), QStringLiteral(":/images/play.png"));
    QCOMPARE(changes.last().at(0).toBool(), true);
}

QTEST_GUILESS_MAIN(tst_PollingStatistics)
#include "tst_pollingstatistics.moc"
