#ifndef WORKER_H
#define WORKER_H

#include <QHash>
#include <QList>
#include <QThread>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>

class Request;
class Tag;

// The thread that serves a port's queue of requests in priority order and
// does the blocking exchanges.
//
// Its locks are the standard library's: ThreadSanitizer follows them, where
// it cannot see into a Qt built without it.
class Worker : public QThread
{
    Q_OBJECT
public:
    static constexpr int DefaultQueueLimit = 10000;
    // Processing times kept for the average.
    static constexpr int TimeWindow = 1000;

    struct Stats
    {
        quint64 scheduled = 0;
        quint64 processed = 0;
        quint64 failed = 0;
        quint64 dropped = 0;
        int minTime = 0;
        int maxTime = 0;
        double avgTime = 0.0;
    };

    explicit Worker(QObject *parent = nullptr);
    ~Worker() override;

    // Takes the request over; false when the queue was full and the request deleted.
    bool appendRequest(Request *request);
    // Drops every pending request except the editors' one-shot ones; returns the count.
    int clearQueue();
    // Takes out the pending requests of these tags without counting them as dropped,
    // and returns once none of them is being exchanged either.
    int withdrawTags(const QList<Tag *> &tags);
    // Takes out the pending one-shot request of a tag; false when there was none.
    bool withdrawOneShot(Tag *tag);

    void stop();
    // Waits for the thread to end; what it did is then visible to the caller.
    void join();
    void setStopIfQueueEmpty(bool on = true) { m_stopIfQueueEmpty = on; }
    void setQueueLimit(int limit);
    int queueLimit() const { return m_queueLimit; }
    void displayStats() const;

    Stats stats() const;
    int pendingCount() const;
    // The tags of the pending requests, in no particular order.
    QList<Tag *> pendingTags() const;
    // Tags whose last polled exchange failed, with the result code.
    QHash<Tag *, int> failedTags() const;

signals:
    void requestProcessed();
    // The queue ran empty with stopIfQueueEmpty set: the thread ends.
    void queueDrained();

protected:
    void run() override;

private:
    void execute();
    void account(Request *request, bool ok);

    // One permit per request to serve.
    class Permits
    {
    public:
        void release();
        void acquire();
        int available() const;

    private:
        mutable std::mutex m_mutex;
        std::condition_variable m_posted;
        int m_count = 0;
    };

    std::deque<Request *> m_heap;
    std::atomic<int> m_queueLimit {DefaultQueueLimit};
    Permits m_permits;
    mutable std::mutex m_heapMutex;
    std::condition_variable m_exchangeDone;
    Tag *m_current = nullptr; // tag of the request in exchange, under the heap mutex
    std::atomic<bool> m_running {true};
    std::atomic<bool> m_stopIfQueueEmpty {false};
    // Set last in run(): Qt's own end of a thread is hidden from ThreadSanitizer.
    std::atomic<bool> m_ended {false};

    mutable std::mutex m_statsMutex;
    Stats m_stats;
    QList<int> m_times;
    qint64 m_timesSum = 0;
    QHash<Tag *, int> m_failedTags;
};

#endif // WORKER_H
