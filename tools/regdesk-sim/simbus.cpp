#include "simbus.h"

#include <cstdio>

namespace {

void logFrame(const char *direction, const QByteArray &bytes)
{
    std::fprintf(stderr, "regdesk-sim: %s %s\n", direction, bytes.toHex(' ').constData());
}

} // namespace

SimBus::SimBus(const Scenario &scenario)
    : m_scenario(scenario)
    , m_framer(scenario.line.protocol, scenario.line.delimiter)
    , m_faults(scenario.line.seed)
{
    for (const InstrumentSettings &settings : scenario.instruments)
        m_instruments.push_back(
            std::make_unique<Instrument>(settings, scenario.line.readOnlyException));
}

SimBus::~SimBus() = default;

Instrument *SimBus::instrument(int address) const
{
    for (const auto &ins : m_instruments) {
        if (ins->address() == address)
            return ins.get();
    }
    return nullptr;
}

const QList<Instrument *> SimBus::instruments() const
{
    QList<Instrument *> list;
    for (const auto &ins : m_instruments)
        list << ins.get();
    return list;
}

SimBus::Reply SimBus::process(const QByteArray &adu)
{
    Reply reply;
    if (adu.size() < 2)
        return reply;
    ++m_requests;
    if (m_verbose)
        logFrame("rx", adu);
    reply.requestChars = int(m_framer.encode(adu).size());
    const int address = uint8_t(adu[0]);
    const QByteArray pdu = adu.mid(1);
    const int function = uint8_t(pdu[0]);
    if (address == 0) {
        // Broadcast: every instrument acts, none answers.
        for (const auto &ins : m_instruments)
            ins->handle(pdu);
        return reply;
    }
    Instrument *ins = instrument(address);
    if (!ins)
        return reply;
    const FaultInjector::Decision fault
        = m_faults.decide(m_scenario.faults, &ins->settings().faults, function);
    if (fault.silence) {
        if (m_verbose)
            std::fprintf(stderr, "regdesk-sim: fault: silence\n");
        return reply;
    }
    const QByteArray answer
        = fault.busyCode ? Instrument::exception(function, fault.busyCode) : ins->handle(pdu);
    if (answer.isEmpty())
        return reply;
    QByteArray out;
    if (fault.wrongAddress)
        out.append(char(address % 247 + 1));
    else
        out.append(char(address));
    out.append(answer);
    if (m_verbose)
        logFrame("tx", out);
    reply.bytes = m_framer.encode(out, fault.badChecksum);
    if (fault.truncated)
        reply.bytes.truncate(qMax(1, int(reply.bytes.size()) / 2));
    if (fault.garbage)
        reply.bytes.prepend(m_faults.randomBytes(m_faults.randomInt(1, 8)));
    if (m_verbose && fault.any())
        std::fprintf(stderr, "regdesk-sim: fault:%s%s%s%s%s%s\n", fault.busyCode ? " busy" : "",
                     fault.badChecksum ? " bad-checksum" : "", fault.garbage ? " garbage" : "",
                     fault.wrongAddress ? " wrong-address" : "",
                     fault.truncated ? " truncated" : "", fault.silence ? " silence" : "");
    reply.delayMs = ins->settings().replyDelayMs >= 0 ? ins->settings().replyDelayMs
                                                      : m_scenario.line.replyDelayMs;
    ++m_replies;
    return reply;
}
