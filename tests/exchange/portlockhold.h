#ifndef PORTLOCKHOLD_H
#define PORTLOCKHOLD_H

#include "model/port.h"

#include <QSemaphore>

// Holds a port lock for a scope, so that a failed check never leaves the
// worker blocked behind it.
class PortLockHold
{
public:
    explicit PortLockHold(Port *port)
        : m_lock(port->portLock())
    {
        m_lock->acquire();
    }
    ~PortLockHold() { release(); }
    void release()
    {
        if (m_lock)
            m_lock->release();
        m_lock = nullptr;
    }

private:
    QSemaphore *m_lock;
};

#endif // PORTLOCKHOLD_H
