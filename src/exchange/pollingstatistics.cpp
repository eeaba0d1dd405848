#include "exchange/pollingstatistics.h"

#include "exchange/portthread.h"
#include "exchange/worker.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"

#include <cmath>

namespace {

const QString PlayIcon = QStringLiteral(":/images/play.png");
const QString PlayErrorIcon = QStringLiteral(":/images/play_err.png");
const int LabelWidth = 40;

QString resultText(const Tag *tag, int code)
{
    // The tag's own text belongs to the polling thread; the code says enough.
    return code == ServerItem::ResultModbusError ? QStringLiteral("Modbus error")
                                                 : tag->getErrorString(code, 0);
}

} // namespace

PollingStatistics::PollingStatistics(QObject *parent)
    : QObject(parent)
    , m_playIcon(PlayIcon)
{
}

QString PollingStatistics::statLine(const QString &label, const QString &value)
{
    return label.leftJustified(LabelWidth, QLatin1Char('.')) + value + QLatin1Char('\n');
}

QString PollingStatistics::buildThreadStat(Port *port, qint64 now, QString *warning)
{
    PortThread *thread = port ? port->portThread() : nullptr;
    if (!thread)
        return QString();
    QString text = QStringLiteral("%1: Thread ID:%2  %3 devices scheduled\n")
                       .arg(port->serialName())
                       .arg(thread->threadId())
                       .arg(port->scheduledDeviceCount());
    const Worker::Stats s = thread->worker()->stats();
    const quint64 recentDropped = thread->droppedRequestsCount(now);
    text += statLine(QStringLiteral("  scheduled requests:"), QString::number(s.scheduled));
    text += statLine(QStringLiteral("    processed requests:"), QString::number(s.processed));
    text += statLine(QStringLiteral("    current queue size:"),
                     QString::number(thread->queueCount()));
    text += statLine(QStringLiteral("    pending requests:"),
                     QString::number(thread->pendingRequestsCount()));
    text += statLine(QStringLiteral("    dropped requests:"), QString::number(recentDropped));
    text += statLine(QStringLiteral("    *total failed requests:"), QString::number(s.failed));
    text += statLine(QStringLiteral("    *total dropped requests:"), QString::number(s.dropped));
    text += statLine(
        QStringLiteral("    processing time, ms(min/avg/max):"),
        QStringLiteral("%1/%2/%3").arg(s.minTime).arg(qRound(s.avgTime)).arg(s.maxTime));

    QString found;
    if (recentDropped > 0)
        found = QStringLiteral("WARNING! There are dropped requests!!!");
    else if (thread->queueDelay())
        found = QStringLiteral("WARNING! There there was a traffic jam in queue!!!");
    if (found.isEmpty())
        return text;
    if (warning && warning->isEmpty())
        *warning = found;
    text += found + QLatin1Char('\n');
    text += QStringLiteral("There are devices with non-updated tags!!!\n");
    text += QStringLiteral(
        "It's necessary to change the number of devices or their periodically polls\n");
    text += QStringLiteral("\nDevices with tags timeout timestamp:\n");
    for (Device *device : port->scheduledDevices()) {
        if (device->hasChannelTagsWithTimeStampTimeout())
            text += QStringLiteral("  %1\n").arg(device->name());
    }
    return text;
}

QString PollingStatistics::buildErrorsStat(Port *port, QString *warning)
{
    PortThread *thread = port ? port->portThread() : nullptr;
    if (!thread)
        return QString();
    const QHash<Tag *, int> failed = thread->worker()->failedTags();
    QString blocks;
    for (Device *device : port->scheduledDevices()) {
        QString lines;
        for (Tag *tag : thread->deviceTags(device)) {
            QString problem;
            if (failed.contains(tag))
                problem = resultText(tag, failed.value(tag));
            else if (tag->enabled() && tag->isTimeStampTimeout())
                problem = QStringLiteral("Timeout");
            if (!problem.isEmpty())
                lines += QStringLiteral("    %1%2\n")
                             .arg(tag->name().leftJustified(LabelWidth - 4, QLatin1Char('.')),
                                  problem);
        }
        if (!lines.isEmpty())
            blocks += QStringLiteral(" \n%1%2\n")
                          .arg(device->name(), device->portSettingsToString(false))
                + lines;
    }
    if (blocks.isEmpty())
        return QString();
    const QString found
        = QStringLiteral("WARNING! ") + QStringLiteral("There are devices with problems!!!");
    if (warning && warning->isEmpty())
        *warning = found;
    return found + QStringLiteral("\nDevices with problem tags:") + blocks;
}

QString PollingStatistics::build(const Server *server, const QDateTime &now)
{
    // "mm" twice: the month's place shows the minutes, as it always has.
    QString text
        = QStringLiteral("Time: %1").arg(now.toString(QStringLiteral("dd.mm.yyyy hh:mm:ss")));
    text += QStringLiteral("\n------------------- statistics --------------------\n");
    const QList<Port *> ports = server ? server->ports() : QList<Port *>();
    for (const Port *port : ports) {
        text += QStringLiteral("Port:%1 Devices:%2 Tags:%3\n")
                    .arg(port->name())
                    .arg(port->childCount())
                    .arg(port->activeTags().size());
    }
    text += QStringLiteral("-------------------Thread statistics--------------------\n");
    QString warning;
    for (Port *port : ports) {
        if (!port->isPortThreadWorked())
            continue;
        text += buildThreadStat(port, now.toSecsSinceEpoch(), &warning);
        text += buildErrorsStat(port, &warning);
        text += QStringLiteral("---------------------------------------------------------\n\n");
    }
    m_statusMessage = warning;
    if (!warning.isEmpty()) {
        m_warning = true;
        if (m_active)
            setPlay(m_playVisible, PlayErrorIcon);
    }
    return text;
}

void PollingStatistics::setPollingActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    m_warning = false;
    if (!active)
        m_statusMessage.clear();
    setPlay(active, PlayIcon);
}

void PollingStatistics::blink()
{
    if (!m_active)
        return;
    // While hidden the icon takes the warning, so that it shows at the next blink.
    const bool visible = !m_playVisible;
    setPlay(visible, visible ? m_playIcon : (m_warning ? PlayErrorIcon : PlayIcon));
}

void PollingStatistics::setPlay(bool visible, const QString &icon)
{
    if (visible == m_playVisible && icon == m_playIcon)
        return;
    m_playVisible = visible;
    m_playIcon = icon;
    emit playChanged(visible, icon);
}
