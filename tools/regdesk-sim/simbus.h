#ifndef SIMBUS_H
#define SIMBUS_H

#include "faultinjector.h"
#include "instrument.h"
#include "lineframer.h"
#include "scenario.h"

#include <QByteArray>
#include <QList>

#include <memory>

// The instruments on one line: takes a request frame, lets the addressed
// instrument answer, and puts the faults of the scenario on the reply.
class SimBus
{
public:
    struct Reply
    {
        QByteArray bytes; // line bytes, framed; empty: no reply
        int delayMs = 0; // think time before the reply
        int requestChars = 0;
    };

    explicit SimBus(const Scenario &scenario);
    ~SimBus();

    Reply process(const QByteArray &adu);
    LineFramer &framer() { return m_framer; }
    Instrument *instrument(int address) const;
    const QList<Instrument *> instruments() const;
    void setVerbose(bool on) { m_verbose = on; }

    qint64 requests() const { return m_requests; }
    qint64 replies() const { return m_replies; }

private:
    Scenario m_scenario;
    LineFramer m_framer;
    FaultInjector m_faults;
    std::vector<std::unique_ptr<Instrument>> m_instruments;
    bool m_verbose = false;
    qint64 m_requests = 0;
    qint64 m_replies = 0;
};

#endif // SIMBUS_H
