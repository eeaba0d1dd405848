// Bus scan timing against the simulator at 115200 baud with line-time
// emulation:
//  1. a silent range: what each address costs beyond the library's response
//     timeout, which is all a silent address should cost;
//  2. addresses 1 to 32 of a line of 10 instruments, with function 17.
// Prints the figures; run it on an otherwise idle machine.
#include "discovery/scanner.h"
#include "simprocess.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>

namespace {

const int responseTimeoutMs = 500; // the library's default, which the scanner keeps
const int baud = 115200;
const SerialPortProtocol framing(8, QLatin1Char('N'), 1);

QString writeScenario(const QTemporaryDir &dir)
{
    const QList<QPair<int, QString>> instruments {
        {1, "Zolt-51v2"},  {3, "Dorv-4v2"},   {5, "Marn-32MKv2"}, {8, "Tesk-6v3"},
        {11, "Zolt-21v2"}, {14, "Marn-40v2"}, {17, "Fenn-3v2"},   {20, "Quil-72v2"},
        {25, "Marn-20v2"}, {30, "Zolt-42Mv2"}};
    QJsonArray list;
    for (const auto &entry : instruments)
        list.append(QJsonObject {{"address", entry.first}, {"template", entry.second}});
    const QJsonObject scenario {
        {"line", QJsonObject {{"protocol", "RTU"}, {"baudrate", baud}, {"line_timing", true}}},
        {"instruments", list}};
    const QString path = dir.filePath(QStringLiteral("bench-scan.json"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return QString();
    file.write(QJsonDocument(scenario).toJson());
    return path;
}

struct Run
{
    qint64 totalMs = 0;
    QList<qint64> stepMs; // from one address to the next
    QList<qint64> hitMs; // from the address's start to its hit
    int found = 0;
};

Run scan(const QString &line, int from, int to)
{
    ScanTask task;
    task.ports << line;
    task.speeds << baud;
    task.protocols << framing;
    task.useFunction17 = true;
    task.fromAddress = from;
    task.toAddress = to;
    Scanner scanner;
    scanner.setScanTask(task);
    Run run;
    QElapsedTimer clock;
    qint64 last = -1;
    QObject::connect(&scanner, qOverload<int>(&Scanner::progress), [&](int) {
        const qint64 now = clock.nsecsElapsed() / 1000;
        if (last >= 0)
            run.stepMs << now - last;
        last = now;
    });
    QObject::connect(&scanner, &Scanner::deviceFounded,
                     [&]() { run.hitMs << clock.nsecsElapsed() / 1000 - last; });
    clock.start();
    scanner.start();
    run.totalMs = clock.elapsed();
    run.found = scanner.foundCount();
    return run;
}

double mean(const QList<qint64> &values)
{
    if (values.isEmpty())
        return 0;
    double sum = 0;
    for (qint64 v : values)
        sum += double(v);
    return sum / double(values.size());
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTextStream out(stdout);

    QTemporaryDir dir;
    const QString scenario = writeScenario(dir);
    SimProcess sim;
    QString why;
    if (scenario.isEmpty() || !sim.start({QStringLiteral("--scenario"), scenario}, &why)) {
        out << "simulator did not start: " << why << Qt::endl;
        return 1;
    }

    // 1. Twenty silent addresses.
    const int silent = 20;
    const Run quiet = scan(sim.path(), 101, 100 + silent);
    // Step times are in microseconds; the first address has no predecessor.
    const double stepMs = mean(quiet.stepMs) / 1000.0;
    const double overheadMs = stepMs - responseTimeoutMs;
    const double totalOverheadMs = double(quiet.totalMs) / silent - responseTimeoutMs;
    out << "silent scan, " << silent << " addresses, function 17, response timeout "
        << responseTimeoutMs << " ms:\n";
    out << "  total " << quiet.totalMs << " ms (" << silent * responseTimeoutMs
        << " ms of timeouts)\n";
    out << QStringLiteral("  per address: %1 ms, overhead %2 ms (%3 %)\n")
               .arg(stepMs, 0, 'f', 2)
               .arg(overheadMs, 0, 'f', 2)
               .arg(100.0 * overheadMs / responseTimeoutMs, 0, 'f', 2);
    out << QStringLiteral("  with the line open and close: overhead %1 ms per address (%2 %)\n")
               .arg(totalOverheadMs, 0, 'f', 2)
               .arg(100.0 * totalOverheadMs / responseTimeoutMs, 0, 'f', 2);

    // 2. Addresses 1 to 32 of the line of 10 instruments.
    const Run line = scan(sim.path(), 1, 32);
    const int silentOnLine = 32 - line.found;
    out << "scan of addresses 1-32, 10 instruments, " << baud
        << " baud with line timing, function 17:\n";
    out << "  found " << line.found << ", total " << line.totalMs << " ms (" << silentOnLine
        << " silent x " << responseTimeoutMs << " ms = " << silentOnLine * responseTimeoutMs
        << " ms)\n";
    out << QStringLiteral("  time per found instrument beyond the silent ones: %1 ms, of which the "
                          "exchange up to the hit %2 ms\n")
               .arg(double(line.totalMs - silentOnLine * responseTimeoutMs) / qMax(1, line.found),
                    0, 'f', 1)
               .arg(mean(line.hitMs) / 1000.0, 0, 'f', 1);
    out.flush();
    sim.stop();
    return line.found == 10 ? 0 : 2;
}
