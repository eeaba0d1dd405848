#include "exchange/portthread.h"
#include "exchange/scheduler.h"
#include "exchange/worker.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"
#include "portlockhold.h"
#include "simpeer.h"
#include "testsupport.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <mutex>
#include <vector>

// Channels move a little around their template values in the simulator.
static bool near(const QVariant &value, float expected)
{
    return std::fabs(value.toFloat() - expected) < 0.1f * expected;
}

// The polling engine of a port end to end, against the instrument simulator:
// instruments at addresses 1 and 2 answer; nothing answers at address 9.
class tst_Polling : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void attachedDevicesPollInPriorityOrder();
    void clearingTickDropsWhatItFinds();
    void oneShotSurvivesTicks();
    void oneShotWaitIsBounded();
    void detachingLastDeviceEndsThread();
    void silentDeviceSlowsOnlyItself_data();
    void silentDeviceSlowsOnlyItself();
    void removedTagLeavesTheQueue();
    void readDeviceTagsOnIdlePort();
    void hundredAndFirstDeviceIsRefused();

private:
    struct Exchange
    {
        Tag *tag;
        int result;
    };

    Device *addDevice(const QString &name, int address, int channels, int period);
    void record(Device *device);
    std::vector<Exchange> recorded();
    int goodReads(Tag *tag);
    // Holds the port lock from another thread, as a long exchange would.
    QThread *holdPortLock(int ms);

    SimPeer m_sim;
    QVariantMap m_template;
    Server *m_server = nullptr;
    Port *m_port = nullptr;
    // Standard types: written by the worker, read here, never shared implicitly.
    std::mutex m_recordLock;
    std::vector<Exchange> m_exchanges;
};

void tst_Polling::initTestCase()
{
    const QString tpl = QStringLiteral(POLLING_TEMPLATE);
    m_template = QJsonDocument::fromJson(readFile(tpl))
                     .toVariant()
                     .toMap()
                     .value(QStringLiteral("device"))
                     .toMap();
    QVERIFY(!m_template.isEmpty());
    m_template.remove(QStringLiteral("name"));
    QVERIFY(m_sim.start({QStringLiteral("--template"), QStringLiteral("1:") + tpl,
                         QStringLiteral("--template"), QStringLiteral("2:") + tpl}));
}

void tst_Polling::cleanupTestCase()
{
    m_sim.stop();
}

void tst_Polling::init()
{
    m_server = new Server;
    m_port = m_server->addPort(QStringLiteral("line"));
    m_port->setSerialName(m_sim.path());
    m_port->setBaudrate(115200);
    m_exchanges.clear();
}

void tst_Polling::cleanup()
{
    // The port stops its thread before its devices go.
    delete m_server;
    m_server = nullptr;
}

Device *tst_Polling::addDevice(const QString &name, int address, int channels, int period)
{
    Device *device = m_port->addDevice(name);
    device->load(m_template);
    device->setName(name);
    device->setAddress(address);
    device->setRequestTimeout(1);
    for (int i = channels + 1; i <= 8; ++i)
        device->removeChannelFromQueued(QStringLiteral("ch%1_value").arg(i));
    // What the editor does before it attaches a device.
    for (Tag *tag : device->channelTagsToQueue()) {
        tag->setPeriod(period);
        tag->setTimeStamp(QDateTime::currentDateTime());
    }
    return device;
}

void tst_Polling::record(Device *device)
{
    // Runs in the worker's thread as each exchange ends.
    for (Tag *tag : device->tags()) {
        connect(
            tag, &ServerItem::stateChanged, this,
            [this, tag] {
                std::lock_guard<std::mutex> locker(m_recordLock);
                m_exchanges.push_back({tag, tag->lastResult()});
            },
            Qt::DirectConnection);
    }
}

std::vector<tst_Polling::Exchange> tst_Polling::recorded()
{
    std::lock_guard<std::mutex> locker(m_recordLock);
    return m_exchanges;
}

int tst_Polling::goodReads(Tag *tag)
{
    int count = 0;
    for (const Exchange &e : recorded())
        count += (e.tag == tag && e.result == ServerItem::ResultGood) ? 1 : 0;
    return count;
}

QThread *tst_Polling::holdPortLock(int ms)
{
    QSemaphore *lock = m_port->portLock();
    auto *taken = new QSemaphore;
    QThread *holder = QThread::create([lock, taken, ms] {
        lock->acquire();
        taken->release();
        QThread::msleep(ulong(ms));
        lock->release();
    });
    holder->start();
    taken->acquire();
    delete taken;
    return holder;
}

void tst_Polling::attachedDevicesPollInPriorityOrder()
{
    Device *first = addDevice(QStringLiteral("first"), 1, 3, 150);
    Device *second = addDevice(QStringLiteral("second"), 2, 3, 150);
    record(first);
    record(second);
    QVERIFY(m_port->attachDeviceToPeriodRequest(first));
    QVERIFY(m_port->attachDeviceToPeriodRequest(second));
    QCOMPARE(first->priority(), 100);
    QCOMPARE(second->priority(), 99);
    for (Tag *tag : first->channelTagsToQueue())
        QCOMPARE(tag->priority(), 100);
    for (Tag *tag : second->channelTagsToQueue())
        QCOMPARE(tag->priority(), 99);
    QCOMPARE(m_port->priorityPool().first(), 98);
    QVERIFY(m_server->isPortsThreadWorked());

    Tag *ch2 = second->tag(QStringLiteral("ch2_value"));
    QTRY_VERIFY(near(ch2->value(), 2.5f));
    QTRY_VERIFY(near(first->tag(QStringLiteral("ch3_value"))->value(), 3.5f));

    // Let both devices' requests pile up behind a busy line.
    Worker *worker = m_port->portThread()->worker();
    PortLockHold hold(m_port);
    QTRY_VERIFY(worker->pendingCount() >= 10);
    const QList<Tag *> pending = worker->pendingTags();
    const QList<Tag *> firstTags = first->channelTagsToQueue();
    int ofFirst = 0;
    for (Tag *tag : pending)
        ofFirst += firstTags.contains(tag) ? 1 : 0;
    QVERIFY(ofFirst >= 3);
    QVERIFY(pending.size() - ofFirst >= 3);
    const int mark = int(recorded().size());
    hold.release();

    // The one in exchange ends first; then every pending request of the
    // first device comes out before any of the second's.
    QTRY_VERIFY(int(recorded().size()) >= mark + 1 + int(pending.size()));
    const std::vector<Exchange> order = recorded();
    for (int i = mark + 1; i <= mark + ofFirst; ++i)
        QVERIFY2(firstTags.contains(order.at(i).tag), qPrintable(QString::number(i - mark)));
    for (const Exchange &e : order)
        QCOMPARE(e.result, int(ServerItem::ResultGood));
}

void tst_Polling::clearingTickDropsWhatItFinds()
{
    m_port->setProperty("clear_queue_if_timeout", true);
    Device *device = addDevice(QStringLiteral("meter"), 1, 4, 60);
    QVERIFY(m_port->attachDeviceToPeriodRequest(device));
    PortThread *thread = m_port->portThread();
    QVERIFY(thread->clearQueueIfTimeout());
    QTRY_VERIFY(thread->processedRequestsCount() >= 4);

    PortLockHold hold(m_port);
    const quint64 start = thread->scheduledRequestsCount();
    QTRY_VERIFY(thread->scheduledRequestsCount() >= start + 20);
    // Read between two ticks: each tick dropped all the previous one left,
    // so only its own four wait, and one request is stuck in exchange.
    Worker::Stats s;
    int pending = -1;
    QTRY_VERIFY([&] {
        s = thread->worker()->stats();
        pending = thread->pendingRequestsCount();
        return pending == 4 && thread->worker()->stats().scheduled == s.scheduled;
    }());
    QCOMPARE(s.scheduled, s.processed + 1 + s.dropped + quint64(pending));
    QVERIFY(s.dropped >= 12);
    hold.release();

    QTRY_VERIFY(thread->processedRequestsCount() >= s.processed + 5);
    QVERIFY(thread->clearQueueIfTimeout());
}

void tst_Polling::oneShotSurvivesTicks()
{
    m_port->setProperty("clear_queue_if_timeout", true);
    Device *device = addDevice(QStringLiteral("meter"), 1, 3, 50);
    QVERIFY(m_port->attachDeviceToPeriodRequest(device));
    PortThread *thread = m_port->portThread();
    Tag *setpoint = device->tag(QStringLiteral("setpoint"));
    QTRY_VERIFY(thread->processedRequestsCount() >= 3);

    // The line is busy for several ticks, each of which clears the queue;
    // the editor's request must not go with them.
    QThread *holder = holdPortLock(400);
    const quint64 before = thread->scheduledRequestsCount();
    QVERIFY(m_port->processTagByThread(setpoint, false));
    QVERIFY(thread->scheduledRequestsCount() >= before + 6);
    QCOMPARE(setpoint->lastResult(), int(ServerItem::ResultGood));
    QCOMPARE(setpoint->value().toInt(), 7);
    QVERIFY(thread->clearQueueIfTimeout());
    QVERIFY(holder->wait(5000));
    delete holder;

    // A write sends the value the tag held when it was queued.
    setpoint->setValue(321);
    QVERIFY(m_port->processTagByThread(setpoint, true));
    QCOMPARE(setpoint->lastResult(), int(ServerItem::ResultGood));
    setpoint->setValue(0);
    QVERIFY(m_port->processTagByThread(setpoint, false));
    QCOMPARE(setpoint->value().toInt(), 321);

    // Access refusals never reach the queue.
    const quint64 scheduled = thread->scheduledRequestsCount();
    Tag *command = device->tag(QStringLiteral("command"));
    QVERIFY(!m_port->processTagByThread(command, false));
    QVERIFY(!m_port->processTagByThread(device->tag(QStringLiteral("ch1_value")), true));
    QVERIFY(thread->scheduledRequestsCount() - scheduled < 6); // ticks only
}

void tst_Polling::oneShotWaitIsBounded()
{
    Device *device = addDevice(QStringLiteral("meter"), 1, 2, 100);
    QVERIFY(m_port->attachDeviceToPeriodRequest(device));
    PortThread *thread = m_port->portThread();
    Tag *setpoint = device->tag(QStringLiteral("setpoint"));
    QTRY_VERIFY(thread->processedRequestsCount() >= 2);

    // Stuck behind an exchange that does not end: a clear error, not a hang.
    m_port->setOneShotTimeout(300);
    QThread *holder = holdPortLock(3000);
    // A tick's request is stuck in exchange, the other waits: so does ours.
    QTRY_VERIFY(thread->pendingRequestsCount() >= 1);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!m_port->processTagByThread(setpoint, false));
    const qint64 waited = timer.elapsed();
    QVERIFY2(waited >= 300 && waited < 2500, qPrintable(QString::number(waited)));
    QCOMPARE(setpoint->lastResult(), int(ServerItem::ResultTimeout));
    QVERIFY2(setpoint->errorString().contains(QStringLiteral("300 ms")),
             qPrintable(setpoint->errorString()));
    // It was taken out of the queue, not left to run later.
    QVERIFY(!thread->worker()->pendingTags().contains(setpoint));
    QVERIFY(holder->wait(10000));
    delete holder;

    // A normal exchange is not affected by the bound.
    QVERIFY(m_port->processTagByThread(setpoint, false));
    QCOMPARE(setpoint->lastResult(), int(ServerItem::ResultGood));

    // A full queue refuses the request at once.
    thread->worker()->setQueueLimit(2);
    PortLockHold hold(m_port);
    QTRY_VERIFY(thread->pendingRequestsCount() >= 2);
    timer.restart();
    QVERIFY(!m_port->processTagByThread(setpoint, false));
    QVERIFY(timer.elapsed() < 250);
    hold.release();
    QCOMPARE(setpoint->lastResult(), int(ServerItem::ResultPortError));
    QVERIFY(setpoint->errorString().contains(QStringLiteral("full")));
    thread->worker()->setQueueLimit(Worker::DefaultQueueLimit);
}

void tst_Polling::detachingLastDeviceEndsThread()
{
    Device *first = addDevice(QStringLiteral("first"), 1, 2, 100);
    Device *second = addDevice(QStringLiteral("second"), 2, 2, 100);
    QSignalSpy finished(m_port, &Port::threadFinished);
    QVERIFY(m_port->attachDeviceToPeriodRequest(first));
    QVERIFY(m_port->attachDeviceToPeriodRequest(second));
    // Attaching again changes nothing.
    QVERIFY(m_port->attachDeviceToPeriodRequest(first));
    QCOMPARE(m_port->scheduledDeviceCount(), 2);
    QPointer<PortThread> thread = m_port->portThread();
    QTRY_VERIFY(thread->processedRequestsCount() >= 8);

    QVERIFY(m_port->detachDeviceFromPeriodRequest(first));
    QVERIFY(!m_port->detachDeviceFromPeriodRequest(first));
    QVERIFY(m_port->isPortThreadWorked());
    QCOMPARE(thread->queueCount(), 2);
    QCOMPARE(m_port->priorityPool().first(), 100);
    QVERIFY(!thread->worker()->pendingTags().contains(first->tag(QStringLiteral("ch1_value"))));

    QVERIFY(m_port->detachDeviceFromPeriodRequest(second));
    QVERIFY(!m_port->isPortThreadWorked());
    QVERIFY(!m_server->isPortsThreadWorked());
    QVERIFY(!m_port->portThread());
    QTRY_COMPARE(finished.count(), 1);
    QTRY_VERIFY(thread.isNull());
    // A device keeps its tags' priority after detaching.
    QCOMPARE(second->tag(QStringLiteral("ch1_value"))->priority(), 99);
    QCOMPARE(m_port->priorityPool().mid(0, 2), (QList<int> {99, 100}));

    // No thread: the caller exchanges directly.
    Tag *setpoint = second->tag(QStringLiteral("setpoint"));
    QVERIFY(!m_port->processTagByThread(setpoint, false));

    // A new thread with counters from zero.
    QVERIFY(m_port->attachDeviceToPeriodRequest(second));
    QCOMPARE(second->priority(), 99);
    PortThread *next = m_port->portThread();
    QVERIFY(next);
    QCOMPARE(next->scheduledRequestsCount(), quint64(0));
    QCOMPARE(next->processedRequestsCount(), quint64(0));
    QCOMPARE(next->totalDroppedRequestsCount(), quint64(0));
    QTRY_VERIFY(next->processedRequestsCount() >= 2);
}

void tst_Polling::silentDeviceSlowsOnlyItself_data()
{
    QTest::addColumn<bool>("silentFirst");
    QTest::addColumn<int>("silentTags");
    QTest::addColumn<int>("period");
    // Attached first, the silent device has the line first, but its one
    // timeout a tick leaves room for the others.
    QTest::newRow("silent first") << true << 1 << 400;
    // Attached second, its timeouts outrun the period and its queue grows,
    // behind the answering device's requests.
    QTest::newRow("silent second, overloaded") << false << 8 << 300;
}

void tst_Polling::silentDeviceSlowsOnlyItself()
{
    QFETCH(bool, silentFirst);
    QFETCH(int, silentTags);
    QFETCH(int, period);
    Device *live = addDevice(QStringLiteral("live"), 1, 2, period);
    Device *silent = addDevice(QStringLiteral("silent"), 9, silentTags, period);
    record(live);
    record(silent);
    QElapsedTimer timer;
    timer.start();
    if (silentFirst)
        QVERIFY(m_port->attachDeviceToPeriodRequest(silent));
    QVERIFY(m_port->attachDeviceToPeriodRequest(live));
    if (!silentFirst)
        QVERIFY(m_port->attachDeviceToPeriodRequest(silent));
    PortThread *thread = m_port->portThread();
    Tag *live1 = live->tag(QStringLiteral("ch1_value"));
    Tag *live2 = live->tag(QStringLiteral("ch2_value"));

    QTRY_VERIFY_WITH_TIMEOUT(goodReads(live1) >= 6 && goodReads(live2) >= 6, 15000);
    if (!silentFirst)
        QTRY_VERIFY_WITH_TIMEOUT(thread->queueDelay(), 15000);
    const qint64 elapsed = timer.elapsed();
    const quint64 failed = thread->failedRequestsCount();
    QVERIFY(failed >= 2);
    // Each failure cost the silent device a whole response timeout.
    QVERIFY2(quint64(elapsed) >= failed * 150,
             qPrintable(QStringLiteral("%1 ms, %2 failed").arg(elapsed).arg(failed)));
    // The answering device was polled at nearly every tick and lost nothing.
    const qint64 ticks = elapsed / period;
    QVERIFY2(goodReads(live1) >= ticks / 2,
             qPrintable(QStringLiteral("%1 reads in %2 ticks").arg(goodReads(live1)).arg(ticks)));
    QCOMPARE(thread->totalDroppedRequestsCount(), quint64(0));
    QVERIFY(!std::isnan(live1->value().toFloat()));
    // A failed channel read leaves a gap in the curve.
    Tag *failedChannel = nullptr;
    for (const Exchange &e : recorded()) {
        if (e.tag->device() == silent)
            failedChannel = e.tag;
    }
    QVERIFY(failedChannel);
    QVERIFY(std::isnan(failedChannel->value().toFloat()));

    QVERIFY(m_port->detachDeviceFromPeriodRequest(silent));
    QVERIFY(m_port->detachDeviceFromPeriodRequest(live));
    for (const Exchange &e : recorded()) {
        if (e.tag->device() == live)
            QCOMPARE(e.result, int(ServerItem::ResultGood));
        else
            QCOMPARE(e.result, int(ServerItem::ResultTimeout));
    }
}

void tst_Polling::removedTagLeavesTheQueue()
{
    Device *device = addDevice(QStringLiteral("meter"), 1, 3, 20);
    QVERIFY(m_port->attachDeviceToPeriodRequest(device));
    PortThread *thread = m_port->portThread();
    QTRY_VERIFY(thread->processedRequestsCount() >= 6);

    // Removed by hand while polled: gone from the scheduler and the queue
    // before it is destroyed, and the rest goes on.
    QPointer<Tag> removed = device->tag(QStringLiteral("ch2_value"));
    device->removeTag(QStringLiteral("ch2_value"));
    QTRY_VERIFY(removed.isNull());
    QCOMPARE(thread->queueCount(), 2);
    QCOMPARE(thread->deviceTags(device).size(), 2);
    const quint64 processed = thread->processedRequestsCount();
    QTRY_VERIFY(thread->processedRequestsCount() >= processed + 6);
    QVERIFY(m_port->detachDeviceFromPeriodRequest(device));
}

void tst_Polling::readDeviceTagsOnIdlePort()
{
    Device *device = addDevice(QStringLiteral("meter"), 2, 0, 1000);
    QSignalSpy finished(m_port, &Port::threadFinished);
    m_port->readDeviceTagsByThread(device);
    // The thread runs through its queue once and ends by itself.
    QTRY_COMPARE(finished.count(), 1);
    QVERIFY(!m_port->isPortThreadWorked());
    QVERIFY(near(device->tag(QStringLiteral("ch8_value"))->value(), 8.5f));
    QCOMPARE(device->tag(QStringLiteral("setpoint"))->value().toInt(), 7);
    QCOMPARE(device->tag(QStringLiteral("ch8_value"))->lastResult(), int(ServerItem::ResultGood));
    QCOMPARE(m_port->priorityPool().size(), Port::MaxPolledDevices);
}

void tst_Polling::hundredAndFirstDeviceIsRefused()
{
    // No channels: attached without a single exchange.
    QList<Device *> devices;
    for (int i = 0; i < Port::MaxPolledDevices + 1; ++i)
        devices << m_port->addDevice(QStringLiteral("d%1").arg(i));
    for (int i = 0; i < Port::MaxPolledDevices; ++i)
        QVERIFY(m_port->attachDeviceToPeriodRequest(devices.at(i)));
    QCOMPARE(devices.last()->priority(), m_port->priority());
    QCOMPARE(devices.at(Port::MaxPolledDevices - 1)->priority(), 1);
    QVERIFY(m_port->priorityPool().isEmpty());

    Device *extra = devices.last();
    QVERIFY(!m_port->attachDeviceToPeriodRequest(extra));
    QVERIFY2(extra->errorString().contains(QStringLiteral("at most 100 devices")),
             qPrintable(extra->errorString()));
    QVERIFY(!m_port->isDeviceAttached(extra));
    QCOMPARE(m_port->scheduledDeviceCount(), Port::MaxPolledDevices);

    // A freed priority goes to the next device.
    QVERIFY(m_port->detachDeviceFromPeriodRequest(devices.at(39)));
    QVERIFY(m_port->attachDeviceToPeriodRequest(extra));
    QCOMPARE(extra->priority(), 61);

    // A device of another port is never polled here.
    Port *other = m_server->addPort(QStringLiteral("other"));
    QVERIFY(!m_port->attachDeviceToPeriodRequest(other->addDevice(QStringLiteral("foreign"))));
}

QTEST_GUILESS_MAIN(tst_Polling)
#include "tst_polling.moc"
