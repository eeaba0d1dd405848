#include "exchange/portthread.h"

#include "app/debugqt.h"
#include "exchange/request.h"
#include "exchange/scheduler.h"
#include "exchange/worker.h"
#include "model/device.h"
#include "model/port.h"
#include "model/tag.h"

#include <sys/syscall.h>
#include <unistd.h>

PortThread::PortThread(Port *port, QObject *parent)
    : QThread(parent)
    , m_worker(new Worker)
    , m_scheduler(new Scheduler(m_worker))
    , m_port(port)
{
    // The scheduler's timers must belong to the polling thread.
    m_scheduler->moveToThread(this);
    connect(m_worker, &Worker::requestProcessed, this, &PortThread::requestProcessed);
    // A worker that ran through its queue once takes the event loop with it.
    connect(m_worker, &Worker::queueDrained, this, &QThread::quit, Qt::DirectConnection);
}

PortThread::~PortThread()
{
    if (isRunning())
        quit();
    join();
    // Both threads have ended in run(); nothing of theirs runs any more.
    delete m_scheduler;
    delete m_worker;
}

void PortThread::run()
{
    m_threadId = qint64(::syscall(SYS_gettid));
    m_scheduler->start();
    m_worker->start(QThread::InheritPriority);
    exec();
    // Still in the polling thread, where the timers can be killed.
    m_scheduler->stop();
    m_worker->stop();
    m_worker->join();
    m_ended.store(true, std::memory_order_release);
}

void PortThread::join()
{
    wait();
    (void)m_ended.load(std::memory_order_acquire);
}

bool PortThread::attachDevice(Device *device)
{
    if (!device)
        return false;
    if (!m_port)
        m_port = device->port();
    if (device->port() != m_port) {
        LOG_INFO << "Device port is not thread port";
        return false;
    }
    QList<Tag *> tags;
    for (Tag *tag : device->channelTagsToQueue()) {
        if (tag && !tags.contains(tag)) {
            tags.append(tag);
            m_scheduler->addTag(tag);
            // A tag removed by hand while polled must leave the queue first.
            connect(tag, &Tag::deleting, this, &PortThread::onTagDeleting, Qt::DirectConnection);
        }
    }
    m_deviceTags.insert(device, tags);
    m_minPollingPeriod = m_scheduler->minPollingPeriod();
    m_worker->setStopIfQueueEmpty(false);
    return true;
}

void PortThread::removeDevice(Device *device)
{
    const QList<Tag *> tags = m_deviceTags.take(device);
    for (Tag *tag : tags) {
        disconnect(tag, &Tag::deleting, this, &PortThread::onTagDeleting);
        m_scheduler->removeTag(tag);
    }
    m_worker->withdrawTags(tags);
    m_minPollingPeriod = m_scheduler->minPollingPeriod();
}

void PortThread::onTagDeleting(QObject *object)
{
    // Only the pointer is used: the tag is half destroyed.
    Tag *tag = static_cast<Tag *>(object);
    for (QList<Tag *> &tags : m_deviceTags)
        tags.removeAll(tag);
    m_scheduler->removeTag(tag);
    m_worker->withdrawTags({tag});
}

Request *PortThread::tagToRequest(Tag *tag, bool write)
{
    auto *request = new Request;
    // The type first: setTag then overwrites the type's priority with the tag's.
    request->setType(write ? Request::Write : Request::Read);
    request->setTag(tag);
    request->setValue(tag->value());
    request->setOneShot(true);
    return m_worker->appendRequest(request) ? request : nullptr;
}

void PortThread::startOnce()
{
    m_worker->setStopIfQueueEmpty(true);
    start(QThread::InheritPriority);
}

bool PortThread::clearQueueIfTimeout() const
{
    return m_scheduler->clearQueueIfTimeout();
}

void PortThread::setClearQueueIfTimeout(bool on)
{
    m_scheduler->setClearQueueIfTimeout(on);
}

int PortThread::minPollingPeriod() const
{
    return m_minPollingPeriod;
}

quint64 PortThread::scheduledRequestsCount() const
{
    return m_worker->stats().scheduled;
}

quint64 PortThread::processedRequestsCount() const
{
    return m_worker->stats().processed;
}

quint64 PortThread::failedRequestsCount() const
{
    return m_worker->stats().failed;
}

quint64 PortThread::totalDroppedRequestsCount() const
{
    return m_worker->stats().dropped;
}

quint64 PortThread::droppedRequestsCount(qint64 now)
{
    if ((now - m_droppedSnapshotTime) * 1000 > m_minPollingPeriod) {
        const quint64 total = totalDroppedRequestsCount();
        m_recentDropped = total - m_droppedSnapshot;
        m_droppedSnapshot = total;
        m_droppedSnapshotTime = now;
    }
    return m_recentDropped;
}

int PortThread::queueCount() const
{
    return m_scheduler->queueCount();
}

int PortThread::pendingRequestsCount() const
{
    return m_worker->pendingCount();
}

int PortThread::minProcessingTime() const
{
    return m_worker->stats().minTime;
}

int PortThread::maxProcessingTime() const
{
    return m_worker->stats().maxTime;
}

double PortThread::avgProcessingTime() const
{
    return m_worker->stats().avgTime;
}

bool PortThread::queueDelay() const
{
    return pendingRequestsCount() > 2 * queueCount();
}
