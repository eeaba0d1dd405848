#include "exchange/request.h"
#include "exchange/scheduler.h"
#include "exchange/worker.h"
#include "model/device.h"
#include "model/tag.h"

#include <QtTest>

#include <memory>
#include <mutex>
#include <vector>

// The queue of the polling engine without a line: tags of a device that has
// no port fail at once, so the worker runs through its heap quickly.
class tst_PollingQueue : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void heapServesHigherPriorityFirst();
    void clearQueueKeepsOneShots();
    void queueLimitDropsAndCounts();
    void ticksWithAndWithoutClearing();
    void emptyPeriodLosesItsTimer();

private:
    Tag *makeTag(const QString &name, int priority, int period = 50);
    Request *periodic(Tag *tag);
    void recordOrder(Tag *tag);

    std::unique_ptr<Device> m_device;
    std::mutex m_orderLock;
    std::vector<Tag *> m_order;
};

void tst_PollingQueue::init()
{
    m_device.reset(new Device(nullptr));
    m_order.clear();
}

void tst_PollingQueue::cleanup()
{
    m_device.reset();
}

Tag *tst_PollingQueue::makeTag(const QString &name, int priority, int period)
{
    Tag *tag = m_device->addTag(name);
    tag->setEnabled(true);
    tag->setRequestDelay(0);
    tag->setPriority(priority);
    tag->setPeriod(period);
    return tag;
}

Request *tst_PollingQueue::periodic(Tag *tag)
{
    auto *request = new Request;
    request->setTag(tag);
    return request;
}

void tst_PollingQueue::recordOrder(Tag *tag)
{
    // In the worker's thread, as the exchange ends.
    connect(
        tag, &ServerItem::stateChanged, this,
        [this, tag] {
            std::lock_guard<std::mutex> locker(m_orderLock);
            m_order.push_back(tag);
        },
        Qt::DirectConnection);
}

void tst_PollingQueue::heapServesHigherPriorityFirst()
{
    // Queued interleaved before the worker starts: the heap alone decides.
    QList<Tag *> first;
    QList<Tag *> second;
    for (int i = 0; i < 4; ++i) {
        first << makeTag(QStringLiteral("a%1").arg(i), 100);
        second << makeTag(QStringLiteral("b%1").arg(i), 99);
    }
    Tag *editor = makeTag(QStringLiteral("edit"), 99);
    for (Tag *tag : first + second + QList<Tag *> {editor})
        recordOrder(tag);

    Worker worker;
    for (int i = 0; i < 4; ++i) {
        worker.appendRequest(periodic(second.at(i)));
        worker.appendRequest(periodic(first.at(i)));
    }
    // A one-shot takes its tag's priority: the type's 65536 is overwritten.
    auto *oneShot = new Request;
    oneShot->setType(Request::Read);
    QCOMPARE(oneShot->priority(), int(Request::TypedPriority));
    oneShot->setTag(editor);
    QCOMPARE(oneShot->priority(), 99);
    worker.appendRequest(oneShot);
    QCOMPARE(worker.pendingCount(), 9);

    worker.start();
    QTRY_COMPARE(worker.stats().processed, quint64(9));
    worker.stop();
    QVERIFY(worker.wait(5000));

    QCOMPARE(int(m_order.size()), 9);
    for (int i = 0; i < 4; ++i)
        QVERIFY2(first.contains(m_order.at(i)), qPrintable(m_order.at(i)->name()));
    for (int i = 4; i < 9; ++i)
        QVERIFY2(!first.contains(m_order.at(i)), qPrintable(m_order.at(i)->name()));
    // No line: every exchange failed, none was dropped.
    const Worker::Stats s = worker.stats();
    QCOMPARE(s.failed, quint64(9));
    QCOMPARE(s.dropped, quint64(0));
    QCOMPARE(worker.failedTags().size(), 9);
}

void tst_PollingQueue::clearQueueKeepsOneShots()
{
    Worker worker; // never started: the heap only fills
    Tag *polled = makeTag(QStringLiteral("polled"), 100);
    Tag *edited = makeTag(QStringLiteral("edited"), 100);
    for (int i = 0; i < 5; ++i)
        worker.appendRequest(periodic(polled));
    auto *oneShot = new Request;
    oneShot->setTag(edited);
    oneShot->setOneShot(true);
    worker.appendRequest(oneShot);

    QCOMPARE(worker.clearQueue(), 5);
    QCOMPARE(worker.pendingCount(), 1);
    QCOMPARE(worker.stats().dropped, quint64(5));
    QCOMPARE(worker.clearQueue(), 0);
    QCOMPARE(worker.stats().dropped, quint64(5));

    // Taken back by its requester, it is no drop.
    QVERIFY(worker.withdrawOneShot(edited));
    QVERIFY(!worker.withdrawOneShot(edited));
    QCOMPARE(worker.pendingCount(), 0);
    QCOMPARE(worker.stats().dropped, quint64(5));
    QCOMPARE(worker.stats().scheduled, quint64(6));
}

void tst_PollingQueue::queueLimitDropsAndCounts()
{
    Worker worker;
    QCOMPARE(worker.queueLimit(), 10000);
    worker.setQueueLimit(3);
    Tag *tag = makeTag(QStringLiteral("t"), 100);
    int accepted = 0;
    for (int i = 0; i < 5; ++i)
        accepted += worker.appendRequest(periodic(tag)) ? 1 : 0;
    QCOMPARE(accepted, 3);
    QCOMPARE(worker.pendingCount(), 3);
    const Worker::Stats s = worker.stats();
    QCOMPARE(s.scheduled, quint64(5));
    QCOMPARE(s.dropped, quint64(2));

    // Withdrawn requests of a detached device are not drops either.
    QCOMPARE(worker.withdrawTags({tag}), 3);
    QCOMPARE(worker.stats().dropped, quint64(2));
}

void tst_PollingQueue::ticksWithAndWithoutClearing()
{
    // The scheduler's timers run in this thread; the worker never starts, so
    // every request stays pending until a tick clears it.
    QList<Tag *> tags;
    for (int i = 0; i < 3; ++i)
        tags << makeTag(QStringLiteral("t%1").arg(i), 100, 20);
    Tag *disabled = makeTag(QStringLiteral("off"), 100, 20);
    disabled->setProperty("enabled", false);
    Tag *writeOnly = makeTag(QStringLiteral("wo"), 100, 20);
    writeOnly->setAccess(Tag::WriteOnly);

    Worker worker;
    Scheduler scheduler(&worker);
    for (Tag *tag : tags + QList<Tag *> {disabled, writeOnly})
        scheduler.addTag(tag);
    QCOMPARE(scheduler.queueCount(), 5);
    QCOMPARE(scheduler.minPollingPeriod(), 20);

    scheduler.setClearQueueIfTimeout(true);
    scheduler.start();
    QTRY_VERIFY(worker.stats().scheduled >= 12);
    // Each tick threw away the three of the tick before; disabled and
    // write-only tags are never queued.
    Worker::Stats s = worker.stats();
    QCOMPARE(s.scheduled % 3, quint64(0));
    QCOMPARE(worker.pendingCount(), 3);
    QCOMPARE(s.dropped, s.scheduled - 3);

    scheduler.setClearQueueIfTimeout(false);
    const quint64 before = s.scheduled;
    QTRY_VERIFY(worker.stats().scheduled >= before + 9);
    s = worker.stats();
    QCOMPARE(quint64(worker.pendingCount()), 3 + (s.scheduled - before));
    QCOMPARE(s.dropped, before - 3);
    scheduler.stop();
    QCOMPARE(scheduler.timerCount(), 0);
}

void tst_PollingQueue::emptyPeriodLosesItsTimer()
{
    Tag *fast = makeTag(QStringLiteral("fast"), 100, 20);
    Tag *slow = makeTag(QStringLiteral("slow"), 100, 30);
    // A tag without a period of its own takes the device's.
    Tag *inherited = makeTag(QStringLiteral("inherited"), 100, 0);
    m_device->setPollingPeriod(40);
    QCOMPARE(Scheduler::effectivePeriod(inherited), 40);

    Worker worker;
    Scheduler scheduler(&worker);
    scheduler.addTag(fast);
    scheduler.start();
    // Added while started: the new period gets its own timer.
    scheduler.addTag(slow);
    scheduler.addTag(inherited);
    QCOMPARE(scheduler.timerCount(), 3);
    QCOMPARE(scheduler.periods(), (QList<int> {20, 30, 40}));

    scheduler.removeTag(fast);
    QCOMPARE(scheduler.timerCount(), 2);
    QCOMPARE(scheduler.minPollingPeriod(), 30);
    // A changed period does not hide the tag from removal.
    inherited->setPeriod(500);
    scheduler.removeTag(inherited);
    QCOMPARE(scheduler.periods(), QList<int> {30});

    worker.clearQueue();
    const quint64 before = worker.stats().scheduled;
    QTRY_VERIFY(worker.stats().scheduled >= before + 3);
    // Only the slow tag is queued any more.
    QCOMPARE(quint64(worker.pendingCount()), worker.stats().scheduled - before);
    QVERIFY(worker.withdrawTags({fast, inherited}) == 0);

    scheduler.clear();
    QCOMPARE(scheduler.queueCount(), 0);
    QCOMPARE(scheduler.timerCount(), 0);
    scheduler.stop();
}

QTEST_GUILESS_MAIN(tst_PollingQueue)
#include "tst_pollingqueue.moc"
