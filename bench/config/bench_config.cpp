// Load and save of a large configuration: 8 ports x 32 devices x 150 tags.
// Prints wall time and memory for each step.
#include "config/appsettings.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

#include <malloc.h>
#include <sys/resource.h>

static long peakRssKiB()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

static double heapMiB()
{
    return double(mallinfo2().uordblks) / (1024.0 * 1024.0);
}

static void fillTree(Server &server, int ports, int devices, int tags)
{
    for (int p = 0; p < ports; ++p) {
        Port *port = server.addPort(QStringLiteral("Port%1").arg(p));
        port->setSerialName(QStringLiteral("/dev/ttyUSB%1").arg(p));
        for (int d = 0; d < devices; ++d) {
            Device *device = port->addDevice(QStringLiteral("Device%1").arg(d));
            device->setDeviceTemplateName(QStringLiteral("Zolt-42M"));
            for (int t = 0; t < tags; ++t) {
                Tag *tag = device->addTag(QStringLiteral("tag_%1").arg(t));
                tag->load({{"device_type", t % 3 ? "float32" : "uint16"},
                           {"address", QStringLiteral("%1h").arg(t * 2, 3, 16, QLatin1Char('0'))},
                           {"access", "ReadWrite"},
                           {"read_func", 3},
                           {"write_func", 16},
                           {"comment", QStringLiteral("Параметр %1").arg(t)},
                           {"limits", QVariantList {0, 1000}},
                           {"config_group", QStringList {t < 4 ? "Channel" : "Control", "Группа"}},
                           {"values",
                            t % 10 == 0 ? QVariantMap {{"0", "выключено"}, {"1", "включено"}}
                                        : QVariantMap()},
                           {"value", t * 1.5}});
            }
        }
    }
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTemporaryDir dir;
    QDir::setCurrent(dir.path());
    AppSettings::initPaths();
    AppSettings *settings = AppSettings::instance();
    settings->load();

    QElapsedTimer timer;
    Server source;
    timer.start();
    fillTree(source, 8, 32, 150);
    out << "tree built: " << source.tagCount() << " tags in " << timer.elapsed() << " ms\n";

    timer.restart();
    settings->setServerMap(source.save());
    const qint64 treeMs = timer.elapsed();
    const bool saved = settings->save();
    const qint64 saveMs = timer.elapsed();
    out << "save: " << saveMs << " ms (tree " << treeMs << " ms, file " << saveMs - treeMs
        << " ms, " << (saved ? "ok" : "FAILED") << "), size "
        << QFileInfo(AppSettings::cfg_fn()).size() / 1024 << " KiB\n";
    out.flush();

    // A copy under another name, so that the settings cache can't serve it.
    const QString copy = AppSettings::cfg_fn() + QStringLiteral(".copy");
    QFile::copy(AppSettings::cfg_fn(), copy);
    const double heapBefore = heapMiB();
    timer.restart();
    AppSettings::release();
    settings = AppSettings::instance();
    settings->loadConfig(copy);
    const qint64 parseMs = timer.elapsed();
    Server loaded;
    loaded.load(settings->serverMap());
    const qint64 loadMs = timer.elapsed();
    out << "load: " << loadMs << " ms (parse " << parseMs << " ms, tree " << loadMs - parseMs
        << " ms), " << loaded.tagCount() << " tags\n";
    out << "heap in use after load: " << heapMiB() << " MiB (+" << heapMiB() - heapBefore
        << " MiB), peak RSS " << peakRssKiB() / 1024 << " MiB\n";
    return loaded.tagCount() == source.tagCount() && saved ? 0 : 1;
}
