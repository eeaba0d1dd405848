#ifndef PORTTHREAD_H
#define PORTTHREAD_H

#include <QHash>
#include <QList>
#include <QThread>

#include <atomic>

class Device;
class Port;
class Request;
class Scheduler;
class Tag;
class Worker;

// The polling of one port: an event loop in which the scheduler's timers fire,
// and the worker thread that does the exchanges.
class PortThread : public QThread
{
    Q_OBJECT
public:
    explicit PortThread(Port *port, QObject *parent = nullptr);
    ~PortThread() override;

    Port *port() const { return m_port; }
    void setPort(Port *port) { m_port = port; }
    Worker *worker() const { return m_worker; }
    Scheduler *scheduler() const { return m_scheduler; }

    // Puts the device's polled channel tags into the scheduler; false for a
    // device of another port.
    bool attachDevice(Device *device);
    // Takes the device's tags out of the scheduler and the queue.
    void removeDevice(Device *device);
    QList<Tag *> deviceTags(Device *device) const { return m_deviceTags.value(device); }

    // Queues a one-shot request with the tag's current value; null when the
    // queue was full and it was dropped.
    Request *tagToRequest(Tag *tag, bool write);
    // Runs the worker through its queue once, then lets both threads end.
    void startOnce();
    // Waits for the thread to end; what it did is then visible to the caller.
    void join();

    bool clearQueueIfTimeout() const;
    void setClearQueueIfTimeout(bool on);

    // Statistics.
    qint64 threadId() const { return m_threadId; }
    int minPollingPeriod() const;
    quint64 scheduledRequestsCount() const;
    quint64 processedRequestsCount() const;
    quint64 failedRequestsCount() const;
    quint64 totalDroppedRequestsCount() const;
    // Requests dropped recently: the growth of the total, measured again only
    // once more than the shortest polling period has passed; now in seconds
    // since the epoch.
    quint64 droppedRequestsCount(qint64 now);
    int queueCount() const;
    int pendingRequestsCount() const;
    int minProcessingTime() const;
    int maxProcessingTime() const;
    double avgProcessingTime() const;
    // More requests wait than twice the number of polled tags.
    bool queueDelay() const;

signals:
    void requestProcessed();

protected:
    void run() override;

private slots:
    void onTagDeleting(QObject *tag);

private:
    Worker *m_worker;
    Scheduler *m_scheduler;
    Port *m_port;
    std::atomic<qint64> m_threadId {0};
    // Set last in run(): Qt's own end of a thread is hidden from ThreadSanitizer.
    std::atomic<bool> m_ended {false};
    QHash<Device *, QList<Tag *>> m_deviceTags;
    int m_minPollingPeriod = 0;
    quint64 m_droppedSnapshot = 0;
    qint64 m_droppedSnapshotTime = 0;
    quint64 m_recentDropped = 0;
};

#endif // PORTTHREAD_H
