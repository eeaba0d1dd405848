#include "faultinjector.h"

FaultInjector::FaultInjector(quint32 seed)
    : m_rng(seed)
{
}

bool FaultInjector::strikes(const FaultRule &rule, qint64 count)
{
    if (rule.every > 0 && count % rule.every == 0)
        return true;
    if (rule.rate <= 0.0)
        return false;
    return std::uniform_real_distribution<double>(0.0, 1.0)(m_rng) < rule.rate;
}

void FaultInjector::apply(const FaultSettings &s, int function, Decision &d)
{
    if (!s.active() || (!s.functions.isEmpty() && !s.functions.contains(function)))
        return;
    const qint64 count = ++m_counts[&s];
    d.silence = d.silence || strikes(s.silence, count);
    if (!d.busyCode && strikes(s.busy, count) && !s.busyCodes.isEmpty())
        d.busyCode = s.busyCodes.at(randomInt(0, int(s.busyCodes.size()) - 1));
    d.badChecksum = d.badChecksum || strikes(s.badChecksum, count);
    d.garbage = d.garbage || strikes(s.garbage, count);
    d.wrongAddress = d.wrongAddress || strikes(s.wrongAddress, count);
    d.truncated = d.truncated || strikes(s.truncated, count);
}

FaultInjector::Decision FaultInjector::decide(const FaultSettings &line,
                                              const FaultSettings *instrument, int function)
{
    Decision d;
    apply(line, function, d);
    if (instrument)
        apply(*instrument, function, d);
    return d;
}

QByteArray FaultInjector::randomBytes(int count)
{
    QByteArray out(count, '\0');
    std::uniform_int_distribution<int> byte(0, 255);
    for (int i = 0; i < count; ++i)
        out[i] = char(byte(m_rng));
    return out;
}

int FaultInjector::randomInt(int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(m_rng);
}
