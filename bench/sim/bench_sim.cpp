// Reads of 2 holding registers per second by the project's master against
// the simulator, without line timing (the pty's own speed) and with it at
// three baud rates, beside the line's limit for one such exchange (request,
// silence, reply; the master's silence before its next request comes on top).
//
//   bench_sim [seconds per case, default 2]

#include "modbus/modbus.h"
#include "modbus/modbusframe.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <csignal>
#include <cstdio>

namespace {

struct Result
{
    double perSecond = 0;
    int failures = 0;
};

Result run(int baud, bool timing, int seconds)
{
    QProcess sim;
    QStringList args {"--template", "1:Zolt-21", "--baud", QString::number(baud)};
    if (timing)
        args << "--line-timing";
    sim.start(QStringLiteral(SIM_BINARY), args);
    Result result;
    if (!sim.waitForStarted(5000) || !sim.waitForReadyRead(5000))
        return result;
    const QByteArray path = sim.readLine().trimmed();
    modbus_t *ctx = modbus_new_rtu(path.constData(), baud, 'N', 8, 1);
    if (ctx && modbus_connect(ctx) == 0) {
        modbus_set_slave(ctx, 1);
        uint16_t regs[2];
        QElapsedTimer clock;
        clock.start();
        int reads = 0;
        while (clock.elapsed() < seconds * 1000) {
            if (modbus_read_registers(ctx, 0, 2, regs) == 2)
                ++reads;
            else
                ++result.failures;
        }
        result.perSecond = reads * 1000.0 / double(clock.elapsed());
        modbus_close(ctx);
    }
    if (ctx)
        modbus_free(ctx);
    ::kill(pid_t(sim.processId()), SIGTERM);
    sim.waitForFinished(3000);
    return result;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const int seconds = argc > 1 ? qMax(1, atoi(argv[1])) : 2;
    std::printf("%-24s %12s %12s %9s\n", "case", "reads/s", "line limit", "failures");
    // The master keeps its own 3.5-character silence before each request, so
    // the untimed case runs at 115200 to show the simulator's own pace.
    const Result free = run(115200, false, seconds);
    std::printf("%-24s %12.1f %12s %9d\n", "no line timing (115200)", free.perSecond, "-",
                free.failures);
    for (const int baud : {9600, 19200, 115200}) {
        // 8-byte request, 9-byte reply, 8N1, and the silence before the reply.
        const double cycleUs = 17.0 * double(ModbusFrame::characterTimeUs(baud, 8, 'N', 1))
            + double(ModbusFrame::frameSilenceUs(baud, 8, 'N', 1));
        const Result r = run(baud, true, seconds);
        std::printf("%-24s %12.1f %12.1f %9d\n",
                    qPrintable(QStringLiteral("line timing %1").arg(baud)), r.perSecond,
                    1e6 / cycleUs, r.failures);
    }
    return 0;
}
