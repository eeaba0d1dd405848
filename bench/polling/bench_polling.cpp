// Polling throughput and cost, against regdesk-sim on a pseudo-terminal.
//
//   bench_polling [--log] [--cpu]
//
// 1. Polled tags per second with the simulator emulating line time at 115200
//    and 9600 baud, against the limit of that line: request and reply frame
//    times, the 3.5-character silences, the pause after each exchange and the
//    tag's request delay.
// 2. CPU time of this process (the polling engine with its logging) while it
//    polls 200 tags every 100 ms: 25 instruments of 8 float channels.
// The log goes to /dev/null unless --log is given; the figures go to stdout.
// --cpu runs the second part only.
#include "app/debugqt.h"
#include "exchange/portthread.h"
#include "exchange/worker.h"
#include "modbus/modbusframe.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <sys/resource.h>

namespace {

const int Channels = 8;
const int RequestDelayMs = 1; // a tag's default

QVariantMap deviceTemplate()
{
    QVariantList tags;
    for (int i = 1; i <= Channels; ++i) {
        tags << QVariantMap {
            {"name", QStringLiteral("ch%1_value").arg(i)},
            {"address", QStringLiteral("%1h").arg(0x100 + 2 * (i - 1), 0, 16)},
            {"device_type", "float32"},
            {"read_func", 3},
            {"write_func", 16},
            {"access", "ReadOnly"},
            {"enabled", true},
            {"request_delay", RequestDelayMs},
            {"config_group", QStringList {"channel", QStringLiteral("Channel %1").arg(i)}},
            {"value", 1.5 + i}};
    }
    return {{"id", "BenchPoll"},
            {"name", "BenchPoll"},
            {"device", QVariantMap {{"enabled", true}, {"polling_period", 1000}, {"tags", tags}}}};
}

class Sim
{
public:
    ~Sim()
    {
        m_process.terminate();
        if (!m_process.waitForFinished(5000))
            m_process.kill();
        m_process.waitForFinished(3000);
    }
    bool start(const QStringList &arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(REGDESK_SIM), arguments);
        if (!m_process.waitForStarted(5000))
            return false;
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(10000))
                return false;
        }
        m_path = QString::fromLocal8Bit(m_process.readLine()).trimmed();
        return !m_path.isEmpty();
    }
    QString path() const { return m_path; }

private:
    QProcess m_process;
    QString m_path;
};

double cpuSeconds()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec)
        + double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

void spin(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

// The time one polled tag takes on the line: request (8 characters), silence,
// reply (9 characters), then the larger of the silence and the pauses the
// polling inserts before the next request.
double lineLimit(int baud, int pauseMs)
{
    const double c = double(ModbusFrame::characterTimeUs(baud, 8, 'N', 1));
    const double s = double(ModbusFrame::frameSilenceUs(baud, 8, 'N', 1));
    const double gap = std::max(s, double(pauseMs + RequestDelayMs) * 1000.0);
    return 1e6 / (8 * c + s + 9 * c + gap);
}

struct Result
{
    double tagsPerSecond = 0;
    double directPerSecond = 0;
    double avgExchangeMs = 0;
    double cpuPercent = 0;
    quint64 failed = 0;
    quint64 dropped = 0;
};

Result poll(const QString &tpl, int baud, bool lineTiming, int devices, int period, int warmupMs,
            int windowMs, bool direct = false)
{
    Result result;
    QStringList args = {QStringLiteral("--baud"), QString::number(baud)};
    if (lineTiming)
        args << QStringLiteral("--line-timing");
    for (int d = 1; d <= devices; ++d)
        args << QStringLiteral("--template") << QStringLiteral("%1:%2").arg(d).arg(tpl);
    Sim sim;
    if (!sim.start(args)) {
        std::fprintf(stdout, "cannot start %s\n", REGDESK_SIM);
        return result;
    }
    const QVariantMap map = deviceTemplate().value(QStringLiteral("device")).toMap();
    Server server;
    Port *port = server.addPort(QStringLiteral("bench"));
    port->setSerialName(sim.path());
    port->setBaudrate(baud);
    port->setStopbits(1);
    // The queue is cleared at every tick: an overloaded line keeps a short queue.
    port->setProperty("clear_queue_if_timeout", true);
    for (int d = 1; d <= devices; ++d) {
        Device *device = port->addDevice(QStringLiteral("d%1").arg(d));
        device->load(map);
        device->setAddress(d);
        for (Tag *tag : device->channelTagsToQueue()) {
            tag->setPeriod(period);
            tag->setTimeStamp(QDateTime::currentDateTime());
        }
    }
    if (direct) {
        // The same tags read in a loop on this thread, without the engine.
        const QList<Tag *> tags = port->device(QStringLiteral("d1"))->channelTagsToQueue();
        QElapsedTimer wall;
        wall.start();
        int count = 0;
        while (wall.elapsed() < windowMs / 2) {
            tags.at(count % tags.size())->read();
            ++count;
        }
        result.directPerSecond = count * 1e9 / double(wall.nsecsElapsed());
    }
    for (int d = 1; d <= devices; ++d)
        port->attachDeviceToPeriodRequest(port->device(QStringLiteral("d%1").arg(d)));
    spin(warmupMs);
    PortThread *thread = port->portThread();
    const quint64 processed0 = thread->processedRequestsCount();
    const quint64 failed0 = thread->failedRequestsCount();
    const double cpu0 = cpuSeconds();
    QElapsedTimer wall;
    wall.start();
    spin(windowMs);
    const double seconds = double(wall.nsecsElapsed()) / 1e9;
    result.cpuPercent = 100.0 * (cpuSeconds() - cpu0) / seconds;
    result.tagsPerSecond = double(thread->processedRequestsCount() - processed0) / seconds;
    result.failed = thread->failedRequestsCount() - failed0;
    result.dropped = thread->totalDroppedRequestsCount();
    result.avgExchangeMs = thread->avgProcessingTime();
    return result;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const bool log = app.arguments().contains(QStringLiteral("--log"));
    const bool cpuOnly = app.arguments().contains(QStringLiteral("--cpu"));
    // The engine logs as the application does; only the figures are wanted here.
    DebugQt::instance(DebugQt::StartFlags, nullptr);
    if (!log && !std::freopen("/dev/null", "w", stderr))
        return 1;

    QTemporaryDir dir;
    const QString tpl = dir.filePath(QStringLiteral("benchpoll.tpl"));
    {
        QFile file(tpl);
        if (!file.open(QIODevice::WriteOnly)
            || file.write(QJsonDocument::fromVariant(deviceTemplate()).toJson()) <= 0)
            return 1;
    }

    if (!cpuOnly) {
        std::printf(
            "Polling throughput (1 instrument, %d float channels every 10 ms, line emulated by "
            "regdesk-sim):\n",
            Channels);
        struct Line
        {
            int baud;
            int pauseMs;
            int windowMs;
        };
        for (const Line &line : {Line {115200, 1, 6000}, Line {9600, 4, 8000}}) {
            const Result r = poll(tpl, line.baud, true, 1, 10, 1500, line.windowMs, true);
            const double limit = lineLimit(line.baud, line.pauseMs);
            std::printf(
                "  %6d baud: %6.1f tags/s, line limit %6.1f tags/s (%.1f %%), failed %llu;\n"
                "              exchange %.1f ms on average; the same tags read in a plain "
                "loop: %.1f tags/s\n",
                line.baud, r.tagsPerSecond, limit, 100.0 * r.tagsPerSecond / limit,
                (unsigned long long)r.failed, r.avgExchangeMs, r.directPerSecond);
        }
        std::fflush(stdout);
    }

    std::printf("CPU time of polling 200 tags every 100 ms (25 instruments x %d channels), 10 s:\n",
                Channels);
    const Result slow = poll(tpl, 115200, true, 25, 100, 1500, 10000);
    std::printf("  115200 baud emulated: %5.2f %% of one core, %6.1f tags/s (the line carries at "
                "most %.1f)\n",
                slow.cpuPercent, slow.tagsPerSecond, lineLimit(115200, 1));
    const Result fast = poll(tpl, 115200, false, 25, 100, 1500, 10000);
    std::printf("  pty at full speed:    %5.2f %% of one core, %6.1f tags/s\n", fast.cpuPercent,
                fast.tagsPerSecond);
    delete DebugQt::instance();
    return 0;
}
