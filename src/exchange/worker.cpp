#include "exchange/worker.h"

#include "app/debugqt.h"
#include "exchange/request.h"
#include "model/tag.h"

#include <algorithm>

#include <sys/prctl.h>

void Worker::Permits::release()
{
    {
        std::lock_guard<std::mutex> locker(m_mutex);
        ++m_count;
    }
    m_posted.notify_one();
}

void Worker::Permits::acquire()
{
    std::unique_lock<std::mutex> locker(m_mutex);
    m_posted.wait(locker, [this] { return m_count > 0; });
    --m_count;
}

int Worker::Permits::available() const
{
    std::lock_guard<std::mutex> locker(m_mutex);
    return m_count;
}

Worker::Worker(QObject *parent)
    : QThread(parent)
{
}

Worker::~Worker()
{
    if (isRunning())
        stop();
    join();
    for (Request *request : m_heap)
        delete request;
    m_heap.clear();
}

bool Worker::appendRequest(Request *request)
{
    if (!request)
        return false;
    {
        std::lock_guard<std::mutex> locker(m_statsMutex);
        ++m_stats.scheduled;
    }
    bool queued = false;
    {
        std::unique_lock<std::mutex> locker(m_heapMutex);
        if (int(m_heap.size()) < m_queueLimit) {
            m_heap.push_back(request);
            std::push_heap(m_heap.begin(), m_heap.end(), RequestCompare());
            queued = true;
        }
    }
    if (!queued) {
        std::lock_guard<std::mutex> locker(m_statsMutex);
        ++m_stats.dropped;
        delete request;
    }
    m_permits.release();
    return queued;
}

int Worker::clearQueue()
{
    std::deque<Request *> dropped;
    {
        std::unique_lock<std::mutex> locker(m_heapMutex);
        // An editor waits for its one-shot request: it stays.
        const bool all = !m_running;
        auto keep = std::stable_partition(m_heap.begin(), m_heap.end(), [all](const Request *r) {
            return !all && r->isOneShot();
        });
        dropped.assign(keep, m_heap.end());
        m_heap.erase(keep, m_heap.end());
        std::make_heap(m_heap.begin(), m_heap.end(), RequestCompare());
    }
    const int count = int(dropped.size());
    LOG_INFO << QStringLiteral("*** dropping %1 requests").arg(count);
    if (count > 0) {
        std::lock_guard<std::mutex> locker(m_statsMutex);
        m_stats.dropped += quint64(count);
    }
    // The permits stay: the loop runs through them on the emptier heap.
    for (Request *request : dropped)
        delete request;
    return count;
}

int Worker::withdrawTags(const QList<Tag *> &tags)
{
    std::deque<Request *> taken;
    {
        std::unique_lock<std::mutex> locker(m_heapMutex);
        auto keep = std::stable_partition(m_heap.begin(), m_heap.end(), [&tags](const Request *r) {
            return !tags.contains(r->tag());
        });
        taken.assign(keep, m_heap.end());
        m_heap.erase(keep, m_heap.end());
        std::make_heap(m_heap.begin(), m_heap.end(), RequestCompare());
        // The tags may be deleted once this returns: let their exchange end first.
        m_exchangeDone.wait(locker,
                            [this, &tags] { return !m_current || !tags.contains(m_current); });
    }
    {
        std::lock_guard<std::mutex> locker(m_statsMutex);
        for (Tag *tag : tags)
            m_failedTags.remove(tag);
    }
    for (Request *request : taken)
        delete request;
    return int(taken.size());
}

bool Worker::withdrawOneShot(Tag *tag)
{
    Request *taken = nullptr;
    {
        std::unique_lock<std::mutex> locker(m_heapMutex);
        auto it = std::find_if(m_heap.begin(), m_heap.end(), [tag](const Request *r) {
            return r->isOneShot() && r->tag() == tag;
        });
        if (it == m_heap.end())
            return false;
        taken = *it;
        m_heap.erase(it);
        std::make_heap(m_heap.begin(), m_heap.end(), RequestCompare());
    }
    delete taken;
    return true;
}

void Worker::stop()
{
    m_running = false;
    clearQueue();
    m_permits.release();
}

void Worker::join()
{
    wait();
    (void)m_ended.load(std::memory_order_acquire);
}

void Worker::setQueueLimit(int limit)
{
    m_queueLimit = limit > 0 ? limit : DefaultQueueLimit;
}

void Worker::displayStats() const
{
    const Stats s = stats();
    LOG_INFO << QStringLiteral(
                    "**** requests scheduled: %1, requests processed: %2, requests dropped: %3")
                    .arg(s.scheduled)
                    .arg(s.processed)
                    .arg(s.dropped);
}

Worker::Stats Worker::stats() const
{
    std::lock_guard<std::mutex> locker(m_statsMutex);
    Stats s = m_stats;
    s.avgTime = m_times.isEmpty() ? 0.0 : double(m_timesSum) / double(m_times.size());
    return s;
}

int Worker::pendingCount() const
{
    std::unique_lock<std::mutex> locker(m_heapMutex);
    return int(m_heap.size());
}

QList<Tag *> Worker::pendingTags() const
{
    std::unique_lock<std::mutex> locker(m_heapMutex);
    QList<Tag *> tags;
    tags.reserve(qsizetype(m_heap.size()));
    for (const Request *request : m_heap)
        tags.append(request->tag());
    return tags;
}

QHash<Tag *, int> Worker::failedTags() const
{
    std::lock_guard<std::mutex> locker(m_statsMutex);
    return m_failedTags;
}

void Worker::run()
{
    // The pauses around each exchange are a millisecond or so at high baud
    // rates: the default slack of 50 us on every sleep would cost the line a few
    // per cent.
    prctl(PR_SET_TIMERSLACK, 1UL, 0UL, 0UL, 0UL);
    execute();
    if (m_stopIfQueueEmpty)
        emit queueDrained();
    m_ended.store(true, std::memory_order_release);
}

void Worker::execute()
{
    while (m_running) {
        m_permits.acquire();
        Request *request = nullptr;
        {
            std::unique_lock<std::mutex> locker(m_heapMutex);
            if (!m_running)
                break;
            if (!m_heap.empty()) {
                std::pop_heap(m_heap.begin(), m_heap.end(), RequestCompare());
                request = m_heap.back();
                m_heap.pop_back();
                m_current = request->tag();
            }
        }
        if (request) {
            const bool ok = request->process();
            request->setProcessingTime(request->tag() ? request->tag()->processingTime() : 0);
            account(request, ok);
            {
                std::unique_lock<std::mutex> locker(m_heapMutex);
                m_current = nullptr;
                m_exchangeDone.notify_all();
            }
            emit requestProcessed();
            delete request;
        }
        if (m_permits.available() == 0 && m_stopIfQueueEmpty) {
            LOG_INFO << "worker finished queue proceccing";
            m_running = false;
        }
    }
}

void Worker::account(Request *request, bool ok)
{
    std::lock_guard<std::mutex> locker(m_statsMutex);
    ++m_stats.processed;
    Tag *tag = request->tag();
    if (ok) {
        const int time = request->processingTime();
        m_times.append(time);
        m_timesSum += time;
        while (m_times.size() > TimeWindow)
            m_timesSum -= m_times.takeFirst();
        if (m_stats.minTime == 0 || time < m_stats.minTime)
            m_stats.minTime = time;
        if (time > m_stats.maxTime)
            m_stats.maxTime = time;
        m_failedTags.remove(tag);
    } else {
        ++m_stats.failed;
        if (tag)
            m_failedTags.insert(tag, tag->lastResult());
    }
}
