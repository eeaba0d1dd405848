// regdesk-sim: plays the instruments at the other end of a Modbus line.
//
//   regdesk-sim --scenario FILE [--link /tmp/ttyREGDESK0] [options]
//   regdesk-sim --template 1:Zolt-42 --template 2:Marn-32 [options]
//
// Prints the path a master opens (the pseudo-terminal's slave end, or the
// device) as the first line of its standard output, then serves until
// SIGTERM or SIGINT.

#include "scenario.h"
#include "simbus.h"
#include "simline.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <ctime>

namespace {

volatile std::sig_atomic_t g_stop = 0;

void onSignal(int)
{
    g_stop = 1;
}

void installSignals()
{
    struct sigaction sa;
    sa.sa_handler = onSignal;
    sigemptyset(&sa.sa_mask);
    sa.sa_flags = 0; // no restart: poll and sleeps return at once
    sigaction(SIGTERM, &sa, nullptr);
    sigaction(SIGINT, &sa, nullptr);
    sigaction(SIGHUP, &sa, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
}

void sleepUs(int64_t us)
{
    if (us <= 0)
        return;
    timespec ts {time_t(us / 1000000), long(us % 1000000) * 1000};
    while (!g_stop && nanosleep(&ts, &ts) != 0 && errno == EINTR) { }
}

int fail(const QString &text)
{
    std::fprintf(stderr, "regdesk-sim: %s\n", qPrintable(text));
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("regdesk-sim"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A virtual bus of Modbus instruments for tests, demos and training."));
    parser.addHelpOption();
    const QCommandLineOption scenarioOpt(QStringLiteral("scenario"),
                                         QStringLiteral("Scenario file (JSON)."),
                                         QStringLiteral("file"));
    const QCommandLineOption templateOpt(
        QStringLiteral("template"),
        QStringLiteral("An instrument without a scenario, as address:template; repeatable."),
        QStringLiteral("addr:name"));
    const QCommandLineOption linkOpt(QStringLiteral("link"),
                                     QStringLiteral("Symbolic link to the pseudo-terminal."),
                                     QStringLiteral("path"));
    const QCommandLineOption deviceOpt(
        QStringLiteral("device"),
        QStringLiteral("Serve a real serial device instead of a pseudo-terminal."),
        QStringLiteral("path"));
    const QCommandLineOption protocolOpt(QStringLiteral("protocol"),
                                         QStringLiteral("rtu or ascii."), QStringLiteral("name"));
    const QCommandLineOption delimiterOpt(QStringLiteral("delimiter"),
                                          QStringLiteral("ASCII frame end after CR (default 10)."),
                                          QStringLiteral("code"));
    const QCommandLineOption baudOpt(QStringLiteral("baud"), QStringLiteral("Baud rate."),
                                     QStringLiteral("rate"));
    const QCommandLineOption parityOpt(QStringLiteral("parity"), QStringLiteral("N, E or O."),
                                       QStringLiteral("p"));
    const QCommandLineOption dataBitsOpt(QStringLiteral("databits"), QStringLiteral("7 or 8."),
                                         QStringLiteral("n"));
    const QCommandLineOption stopBitsOpt(QStringLiteral("stopbits"), QStringLiteral("1 or 2."),
                                         QStringLiteral("n"));
    const QCommandLineOption timingOpt(
        QStringLiteral("line-timing"),
        QStringLiteral("Take as long per frame as a real line at the baud rate."));
    const QCommandLineOption seedOpt(QStringLiteral("seed"),
                                     QStringLiteral("Seed of the fault injection."),
                                     QStringLiteral("n"));
    const QCommandLineOption verboseOpt(QStringLiteral("verbose"),
                                        QStringLiteral("Log every frame on standard error."));
    const QCommandLineOption checkOpt(
        QStringLiteral("check"),
        QStringLiteral("Load the scenario, list the instruments and quit."));
    parser.addOptions({scenarioOpt, templateOpt, linkOpt, deviceOpt, protocolOpt, delimiterOpt,
                       baudOpt, parityOpt, dataBitsOpt, stopBitsOpt, timingOpt, seedOpt, verboseOpt,
                       checkOpt});
    parser.process(app);

    Scenario scenario;
    QString error;
    if (parser.isSet(scenarioOpt)) {
        if (!Scenario::load(parser.value(scenarioOpt), scenario, error))
            return fail(error);
    } else if (parser.isSet(templateOpt)) {
        QVariantList instruments;
        for (const QString &entry : parser.values(templateOpt)) {
            const int colon = entry.indexOf(QLatin1Char(':'));
            if (colon < 1)
                return fail(
                    QStringLiteral("--template wants address:template, not '%1'").arg(entry));
            instruments << QVariantMap {{QStringLiteral("address"), entry.left(colon).toInt()},
                                        {QStringLiteral("template"), entry.mid(colon + 1)}};
        }
        if (!Scenario::fromMap({{QStringLiteral("instruments"), instruments}}, QDir::currentPath(),
                               scenario, error))
            return fail(error);
    } else {
        return fail(QStringLiteral("give --scenario or --template (see --help)"));
    }

    LineSettings &line = scenario.line;
    if (parser.isSet(linkOpt))
        line.link = parser.value(linkOpt);
    if (parser.isSet(deviceOpt))
        line.device = parser.value(deviceOpt);
    if (parser.isSet(protocolOpt)) {
        const QString p = parser.value(protocolOpt).toLower();
        if (p != QLatin1String("rtu") && p != QLatin1String("ascii"))
            return fail(QStringLiteral("unknown protocol '%1'").arg(p));
        line.protocol = p == QLatin1String("ascii") ? 1 : 0;
    }
    if (parser.isSet(delimiterOpt))
        line.delimiter = parser.value(delimiterOpt).toInt() & 0xFF;
    if (parser.isSet(baudOpt))
        line.baudrate = parser.value(baudOpt).toInt();
    if (parser.isSet(parityOpt))
        line.parity = parser.value(parityOpt).toUpper().toLatin1().append('N').at(0);
    if (parser.isSet(dataBitsOpt))
        line.dataBits = parser.value(dataBitsOpt).toInt();
    if (parser.isSet(stopBitsOpt))
        line.stopBits = parser.value(stopBitsOpt).toInt();
    if (parser.isSet(timingOpt))
        line.lineTiming = true;
    if (parser.isSet(seedOpt))
        line.seed = parser.value(seedOpt).toUInt();
    if (line.baudrate <= 0 || (line.parity != 'N' && line.parity != 'E' && line.parity != 'O'))
        return fail(QStringLiteral("invalid line settings"));

    SimBus bus(scenario);
    bus.setVerbose(parser.isSet(verboseOpt));
    if (parser.isSet(checkOpt)) {
        for (const Instrument *ins : bus.instruments())
            std::printf("%d %s %d tags\n", ins->address(), qPrintable(ins->name()),
                        int(ins->tags().size()));
        return 0;
    }

    installSignals();
    SimLine port(line);
    if (!port.open(error))
        return fail(error);
    std::printf("%s\n", qPrintable(port.path()));
    std::fflush(stdout);
    std::fprintf(stderr, "regdesk-sim: %d instrument(s) on %s%s%s, %s %d %d%c%d%s\n",
                 int(scenario.instruments.size()), qPrintable(port.path()),
                 line.link.isEmpty() ? "" : " -> ", qPrintable(line.link),
                 line.protocol ? "ASCII" : "RTU", line.baudrate, line.dataBits, line.parity,
                 line.stopBits, line.lineTiming ? ", line timing" : "");

    const int silenceMs = int(qMax<int64_t>(20, port.silenceUs() / 1000));
    int status = 0;
    bool hungUp = false;
    while (!g_stop) {
        QByteArray in;
        const SimLine::ReadResult result
            = port.read(in, bus.framer().hasPending() ? silenceMs : 250);
        QList<QByteArray> frames;
        if (result == SimLine::Data) {
            hungUp = false;
            frames = bus.framer().feed(in);
        } else if (result == SimLine::Timeout) {
            if (bus.framer().hasPending())
                frames = bus.framer().silence();
        } else if (result == SimLine::HungUp) {
            // Nobody has the line open: drop the rest and wait for the next
            // master without spinning.
            if (!hungUp)
                bus.framer().silence();
            hungUp = true;
            sleepUs(50000);
            continue;
        } else {
            status = fail(QStringLiteral("the line failed"));
            break;
        }
        for (const QByteArray &frame : std::as_const(frames)) {
            const SimBus::Reply reply = bus.process(frame);
            int64_t waitUs = int64_t(reply.delayMs) * 1000;
            if (line.lineTiming && !reply.bytes.isEmpty())
                waitUs += port.charactersUs(reply.requestChars) + port.silenceUs()
                    + port.charactersUs(int(reply.bytes.size()));
            sleepUs(waitUs);
            if (g_stop)
                break;
            if (!reply.bytes.isEmpty())
                port.write(reply.bytes);
        }
    }
    port.close();
    std::fprintf(stderr, "regdesk-sim: stopped after %lld requests, %lld replies\n",
                 (long long)bus.requests(), (long long)bus.replies());
    return status;
}
