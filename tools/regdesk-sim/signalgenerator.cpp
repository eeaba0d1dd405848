#include "signalgenerator.h"

#include <cmath>

namespace {

// A value in -1..1 from a 64-bit hash (splitmix64).
double hashNoise(uint64_t x)
{
    x += 0x9E3779B97F4A7C15ull;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ull;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBull;
    x ^= x >> 31;
    return double(x >> 11) / double(1ull << 52) - 1.0;
}

} // namespace

SignalGenerator::SignalGenerator(const ChannelCurve &curve, uint32_t salt)
    : m_curve(curve)
    , m_salt(salt)
{
}

ChannelCurve SignalGenerator::curveFor(double start, bool hasLimits, double low, double high,
                                       uint32_t salt)
{
    ChannelCurve c;
    double range = hasLimits ? std::fabs(high - low) : std::fabs(start) * 0.2;
    if (range <= 0 || !std::isfinite(range))
        range = 1.0;
    c.base = start;
    if (hasLimits && (start < qMin(low, high) || start > qMax(low, high) || start == 0.0))
        c.base = low + (high - low) * 0.4;
    c.amplitude = range * 0.05;
    c.noise = range * 0.005;
    c.periodS = 40.0 + double(salt % 61);
    c.phase = double(salt % 628) / 100.0;
    return c;
}

double SignalGenerator::at(double seconds) const
{
    if (m_curve.fixed)
        return m_curve.base;
    const double wave
        = m_curve.amplitude * std::sin(2.0 * M_PI * seconds / m_curve.periodS + m_curve.phase);
    const uint64_t tick = uint64_t(std::llround(seconds * 10.0));
    const double noise = m_curve.noise * hashNoise(tick * 1000003ull + m_salt);
    return m_curve.base + wave + noise;
}
