#ifndef FAULTINJECTOR_H
#define FAULTINJECTOR_H

#include "scenario.h"

#include <QByteArray>
#include <QHash>

#include <random>

// Decides, request by request, which faults strike the reply: the line's
// faults and the instrument's both apply. Random with a fixed seed, so a run
// repeats; "every" counts the requests each set of faults has seen.
class FaultInjector
{
public:
    struct Decision
    {
        bool silence = false;
        int busyCode = 0; // 0: no busy exception
        bool badChecksum = false;
        bool garbage = false;
        bool wrongAddress = false;
        bool truncated = false;
        bool any() const
        {
            return silence || busyCode || badChecksum || garbage || wrongAddress || truncated;
        }
    };

    explicit FaultInjector(quint32 seed);

    Decision decide(const FaultSettings &line, const FaultSettings *instrument, int function);
    QByteArray randomBytes(int count);
    int randomInt(int low, int high);

private:
    bool strikes(const FaultRule &rule, qint64 count);
    void apply(const FaultSettings &settings, int function, Decision &d);

    std::mt19937 m_rng;
    QHash<const FaultSettings *, qint64> m_counts;
};

#endif // FAULTINJECTOR_H
