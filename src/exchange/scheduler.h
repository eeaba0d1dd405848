#ifndef SCHEDULER_H
#define SCHEDULER_H

#include <QList>
#include <QMap>
#include <QObject>

#include <atomic>
#include <mutex>

class Tag;
class Worker;

// Puts the polled tags into the worker's queue, one timer per polling period.
// Lives in the port's thread, so that its timers fire there; tags are added and
// removed from the interface thread.
class Scheduler : public QObject
{
    Q_OBJECT
public:
    explicit Scheduler(Worker *worker, QObject *parent = nullptr);
    ~Scheduler() override;

    void addTag(Tag *tag);
    void removeTag(Tag *tag);
    // In the scheduler's thread: a timer for each period without one.
    void start();
    // In the scheduler's thread: all timers killed.
    void stop();
    void clear();

    bool isStarted() const { return m_started; }
    int minPollingPeriod() const;
    int queueCount() const;
    QList<int> periods() const;
    int timerCount() const;

    bool clearQueueIfTimeout() const { return m_clearQueueIfTimeout; }
    void setClearQueueIfTimeout(bool on) { m_clearQueueIfTimeout = on; }

    // The period a tag is polled with: its own, else its device's, else a second.
    static int effectivePeriod(const Tag *tag);

signals:
    void startNewTimer(int period);
    void stopOldTimer(int period);

protected:
    void timerEvent(QTimerEvent *event) override;

private slots:
    void onStartNewTimer(int period);
    void onStopOldTimer(int period);

private:
    void startTimerLocked(int period);

    QMap<int, QList<Tag *>> m_tags;
    QMap<int, int> m_timerToPeriod;
    QMap<int, int> m_periodToTimer;
    Worker *m_worker;
    std::atomic<bool> m_started {false};
    std::atomic<bool> m_clearQueueIfTimeout {false};
    mutable std::mutex m_mutex; // a standard lock, which ThreadSanitizer follows
};

#endif // SCHEDULER_H
