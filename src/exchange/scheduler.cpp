#include "exchange/scheduler.h"

#include "app/debugqt.h"
#include "exchange/request.h"
#include "exchange/worker.h"
#include "model/device.h"
#include "model/tag.h"

#include <QTimerEvent>

Scheduler::Scheduler(Worker *worker, QObject *parent)
    : QObject(parent)
    , m_worker(worker)
{
    // Queued whenever the caller is not in the scheduler's thread: timers can
    // only be started and killed there.
    connect(this, &Scheduler::startNewTimer, this, &Scheduler::onStartNewTimer);
    connect(this, &Scheduler::stopOldTimer, this, &Scheduler::onStopOldTimer);
}

Scheduler::~Scheduler() = default;

int Scheduler::effectivePeriod(const Tag *tag)
{
    if (!tag)
        return 1000;
    if (tag->period() > 0)
        return tag->period();
    const Device *device = tag->device();
    if (device && device->pollingPeriod() > 0)
        return device->pollingPeriod();
    return 1000;
}

void Scheduler::addTag(Tag *tag)
{
    if (!tag)
        return;
    const int period = effectivePeriod(tag);
    bool newTimer = false;
    {
        std::lock_guard<std::mutex> locker(m_mutex);
        newTimer = m_started && !m_periodToTimer.contains(period);
        QList<Tag *> &list = m_tags[period];
        if (!list.contains(tag))
            list.append(tag);
    }
    LOG_INFO
        << QStringLiteral("add tag '%1' with period %2 to scheduler").arg(tag->name()).arg(period);
    // Emitted unlocked: in the scheduler's own thread the slot runs at once.
    if (newTimer)
        emit startNewTimer(period);
}

void Scheduler::removeTag(Tag *tag)
{
    int emptied = -1;
    {
        std::lock_guard<std::mutex> locker(m_mutex);
        // Searched in every period: the tag's own may have changed since it was added.
        for (auto it = m_tags.begin(); it != m_tags.end(); ++it) {
            if (!it.value().removeAll(tag))
                continue;
            if (it.value().isEmpty()) {
                emptied = it.key();
                m_tags.erase(it);
            }
            break;
        }
    }
    if (emptied >= 0)
        emit stopOldTimer(emptied);
}

void Scheduler::start()
{
    std::lock_guard<std::mutex> locker(m_mutex);
    for (auto it = m_tags.cbegin(); it != m_tags.cend(); ++it) {
        if (!m_periodToTimer.contains(it.key()))
            startTimerLocked(it.key());
    }
    m_started = true;
}

void Scheduler::stop()
{
    LOG_INFO << "stopping scheduler";
    std::lock_guard<std::mutex> locker(m_mutex);
    m_started = false;
    for (auto it = m_timerToPeriod.cbegin(); it != m_timerToPeriod.cend(); ++it)
        killTimer(it.key());
    m_timerToPeriod.clear();
    m_periodToTimer.clear();
}

void Scheduler::clear()
{
    QList<int> periods;
    {
        std::lock_guard<std::mutex> locker(m_mutex);
        periods = m_tags.keys();
        m_tags.clear();
    }
    for (int period : qAsConst(periods))
        emit stopOldTimer(period);
}

int Scheduler::minPollingPeriod() const
{
    std::lock_guard<std::mutex> locker(m_mutex);
    return m_tags.isEmpty() ? 0 : m_tags.firstKey();
}

int Scheduler::queueCount() const
{
    std::lock_guard<std::mutex> locker(m_mutex);
    int count = 0;
    for (const QList<Tag *> &list : m_tags)
        count += int(list.size());
    return count;
}

QList<int> Scheduler::periods() const
{
    std::lock_guard<std::mutex> locker(m_mutex);
    return m_tags.keys();
}

int Scheduler::timerCount() const
{
    std::lock_guard<std::mutex> locker(m_mutex);
    return int(m_timerToPeriod.size());
}

void Scheduler::startTimerLocked(int period)
{
    const int id = startTimer(period);
    if (id == 0)
        return;
    m_timerToPeriod.insert(id, period);
    m_periodToTimer.insert(period, id);
}

void Scheduler::onStartNewTimer(int period)
{
    LOG_INFO << "!!! start timer with period" << period;
    std::lock_guard<std::mutex> locker(m_mutex);
    // Tags of the period may have gone again, or a second signal came first.
    if (m_started && m_tags.contains(period) && !m_periodToTimer.contains(period))
        startTimerLocked(period);
}

void Scheduler::onStopOldTimer(int period)
{
    std::lock_guard<std::mutex> locker(m_mutex);
    if (m_tags.contains(period) || !m_periodToTimer.contains(period))
        return;
    const int id = m_periodToTimer.take(period);
    m_timerToPeriod.remove(id);
    killTimer(id);
}

void Scheduler::timerEvent(QTimerEvent *event)
{
    if (!m_started)
        return;
    // The tags are handled under the lock, so that a device detached from the
    // interface thread is never queued again once removeTag has returned.
    std::lock_guard<std::mutex> locker(m_mutex);
    const int period = m_timerToPeriod.value(event->timerId(), -1);
    if (period < 0 || !m_tags.contains(period)) {
        LOG_INFO << QStringLiteral("there's no tags belonging to timer '%1'").arg(event->timerId());
        return;
    }
    LOG_INFO << QStringLiteral("###processing tags with %1 period###").arg(period);
    const QList<Tag *> tags = m_tags.value(period);
    // Everything still pending, of any period, goes: the flag's name is older
    // than its meaning.
    if (m_clearQueueIfTimeout)
        m_worker->clearQueue();
    for (Tag *tag : tags) {
        if (!tag || !tag->enabled())
            continue;
        if (tag->access() != Tag::ReadOnly && tag->access() != Tag::ReadWrite)
            continue;
        auto *request = new Request;
        request->setTag(tag);
        m_worker->appendRequest(request);
    }
}
