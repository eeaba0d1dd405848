#ifndef SIGNALGENERATOR_H
#define SIGNALGENERATOR_H

#include "scenario.h"

#include <cstdint>

// A measured quantity that moves: a slow sine around a base value plus a
// little noise. The noise is a hash of the time, so a value at a given
// moment is always the same, which lets archives be made up on demand.
class SignalGenerator
{
public:
    SignalGenerator() = default;
    explicit SignalGenerator(const ChannelCurve &curve, uint32_t salt = 0);

    // A curve fitting a tag's limits and starting value: 5 % of the range
    // as amplitude, 0.5 % as noise, a period between 40 and 100 s.
    static ChannelCurve curveFor(double start, bool hasLimits, double low, double high,
                                 uint32_t salt);

    double at(double seconds) const;
    const ChannelCurve &curve() const { return m_curve; }

private:
    ChannelCurve m_curve;
    uint32_t m_salt = 0;
};

#endif // SIGNALGENERATOR_H
