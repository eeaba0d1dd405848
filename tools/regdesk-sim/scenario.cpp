#include "scenario.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

namespace {

const char builtinDir[] = ":/templates";

FaultRule faultRule(const QVariant &v)
{
    FaultRule rule;
    if (v.typeId() == QMetaType::QVariantMap) {
        const QVariantMap m = v.toMap();
        rule.rate = m.value(QStringLiteral("rate"), 0.0).toDouble();
        rule.every = m.value(QStringLiteral("every"), 0).toInt();
    } else if (v.isValid()) {
        rule.rate = v.toDouble();
    }
    rule.rate = qBound(0.0, rule.rate, 1.0);
    rule.every = qMax(0, rule.every);
    return rule;
}

FaultSettings faultSettings(const QVariantMap &m)
{
    FaultSettings f;
    f.busy = faultRule(m.value(QStringLiteral("busy")));
    if (m.value(QStringLiteral("busy")).typeId() == QMetaType::QVariantMap) {
        const QVariantList codes
            = m.value(QStringLiteral("busy")).toMap().value(QStringLiteral("codes")).toList();
        if (!codes.isEmpty()) {
            f.busyCodes.clear();
            for (const QVariant &c : codes)
                f.busyCodes << c.toInt();
        }
    }
    f.badChecksum = faultRule(m.value(QStringLiteral("bad_crc")));
    f.silence = faultRule(m.value(QStringLiteral("silence")));
    f.garbage = faultRule(m.value(QStringLiteral("garbage")));
    f.wrongAddress = faultRule(m.value(QStringLiteral("wrong_address")));
    f.truncated = faultRule(m.value(QStringLiteral("truncated")));
    for (const QVariant &fn : m.value(QStringLiteral("functions")).toList())
        f.functions << fn.toInt();
    return f;
}

QDateTime dateTime(const QVariant &v)
{
    if (!v.isValid())
        return QDateTime();
    QDateTime dt = QDateTime::fromString(v.toString(), Qt::ISODate);
    if (!dt.isValid())
        dt = QDateTime::fromString(v.toString(), QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    return dt;
}

ChannelCurve curve(const QVariant &v)
{
    ChannelCurve c;
    if (v.typeId() != QMetaType::QVariantMap) {
        c.base = v.toDouble();
        c.fixed = true;
        return c;
    }
    const QVariantMap m = v.toMap();
    c.base = m.value(QStringLiteral("base")).toDouble();
    c.amplitude = m.value(QStringLiteral("amplitude")).toDouble();
    c.periodS = m.value(QStringLiteral("period_s"), 60.0).toDouble();
    if (c.periodS <= 0)
        c.periodS = 60.0;
    c.noise = m.value(QStringLiteral("noise")).toDouble();
    c.phase = m.value(QStringLiteral("phase")).toDouble();
    c.fixed = m.value(QStringLiteral("fixed"), false).toBool();
    return c;
}

bool readJsonFile(const QString &path, QVariantMap &out, QString &error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("cannot open %1").arg(path);
        return false;
    }
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError || !doc.isObject()) {
        error = QStringLiteral("%1: %2 at offset %3")
                    .arg(path, parseError.errorString())
                    .arg(parseError.offset);
        return false;
    }
    out = doc.object().toVariantMap();
    return true;
}

} // namespace

bool FaultSettings::active() const
{
    return busy.active() || badChecksum.active() || silence.active() || garbage.active()
        || wrongAddress.active() || truncated.active();
}

QVariantMap Scenario::loadTemplate(const QString &ref, const QString &baseDir, QString &error)
{
    QStringList candidates;
    if (QFileInfo(ref).isAbsolute())
        candidates << ref;
    else
        candidates << QDir(baseDir).filePath(ref);
    candidates << QStringLiteral("%1/%2").arg(QLatin1String(builtinDir), ref)
               << QStringLiteral("%1/%2.tpl").arg(QLatin1String(builtinDir), ref);
    for (const QString &path : candidates) {
        if (!QFileInfo(path).isFile())
            continue;
        QVariantMap map;
        if (!readJsonFile(path, map, error))
            return QVariantMap();
        if (map.value(QStringLiteral("device")).typeId() != QMetaType::QVariantMap) {
            error = QStringLiteral("%1 has no device map").arg(path);
            return QVariantMap();
        }
        return map;
    }
    // By the name inside the file, as the catalogue knows templates.
    const QStringList files = QDir(QLatin1String(builtinDir)).entryList({QStringLiteral("*.tpl")});
    for (const QString &file : files) {
        QVariantMap map;
        QString ignored;
        if (readJsonFile(QStringLiteral("%1/%2").arg(QLatin1String(builtinDir), file), map, ignored)
            && map.value(QStringLiteral("name")).toString() == ref)
            return map;
    }
    error = QStringLiteral("template '%1' not found").arg(ref);
    return QVariantMap();
}

bool Scenario::load(const QString &path, Scenario &out, QString &error)
{
    QVariantMap map;
    if (!readJsonFile(path, map, error))
        return false;
    return fromMap(map, QFileInfo(path).absolutePath(), out, error);
}

bool Scenario::fromMap(const QVariantMap &map, const QString &baseDir, Scenario &out,
                       QString &error)
{
    out = Scenario();
    const QVariantMap line = map.value(QStringLiteral("line")).toMap();
    LineSettings &l = out.line;
    l.device = line.value(QStringLiteral("device")).toString();
    l.link = line.value(QStringLiteral("link")).toString();
    const QString protocol
        = line.value(QStringLiteral("protocol"), QStringLiteral("RTU")).toString();
    if (protocol.compare(QLatin1String("ascii"), Qt::CaseInsensitive) == 0)
        l.protocol = 1;
    else if (protocol.compare(QLatin1String("rtu"), Qt::CaseInsensitive) == 0)
        l.protocol = 0;
    else {
        error = QStringLiteral("unknown protocol '%1'").arg(protocol);
        return false;
    }
    l.delimiter = line.value(QStringLiteral("delimiter"), 10).toInt() & 0xFF;
    l.baudrate = line.value(QStringLiteral("baudrate"), 9600).toInt();
    const QString parity
        = line.value(QStringLiteral("parity"), QStringLiteral("N")).toString().toUpper();
    l.parity = parity.isEmpty() ? 'N' : parity.at(0).toLatin1();
    l.dataBits = line.value(QStringLiteral("databits"), 8).toInt();
    l.stopBits = line.value(QStringLiteral("stopbits"), 1).toInt();
    l.lineTiming = line.value(QStringLiteral("line_timing"), false).toBool();
    l.replyDelayMs = qMax(0, line.value(QStringLiteral("reply_delay_ms"), 0).toInt());
    l.readOnlyException = line.value(QStringLiteral("readonly_exception"), 2).toInt();
    l.seed = line.value(QStringLiteral("seed"), 1).toUInt();
    if (l.baudrate <= 0 || (l.parity != 'N' && l.parity != 'E' && l.parity != 'O') || l.dataBits < 7
        || l.dataBits > 8 || l.stopBits < 1 || l.stopBits > 2) {
        error = QStringLiteral("invalid line settings");
        return false;
    }

    out.faults = faultSettings(map.value(QStringLiteral("faults")).toMap());

    QList<int> used;
    for (const QVariant &entry : map.value(QStringLiteral("instruments")).toList()) {
        const QVariantMap m = entry.toMap();
        InstrumentSettings ins;
        ins.address = m.value(QStringLiteral("address"), 1).toInt();
        if (ins.address < 1 || ins.address > 247 || used.contains(ins.address)) {
            error = QStringLiteral("invalid or repeated instrument address %1").arg(ins.address);
            return false;
        }
        used << ins.address;
        ins.templateRef = m.value(QStringLiteral("template")).toString();
        ins.templateMap = loadTemplate(ins.templateRef, baseDir, error);
        if (ins.templateMap.isEmpty())
            return false;
        ins.name = m.value(QStringLiteral("name"), ins.templateMap.value(QStringLiteral("name")))
                       .toString();
        ins.values = m.value(QStringLiteral("values")).toMap();
        const QVariantMap channels = m.value(QStringLiteral("channels")).toMap();
        for (auto it = channels.cbegin(); it != channels.cend(); ++it)
            ins.curves.insert(it.key(), curve(it.value()));
        ins.replyDelayMs = m.value(QStringLiteral("reply_delay_ms"), -1).toInt();

        const QVariantMap id = m.value(QStringLiteral("identification")).toMap();
        IdentificationSettings &is = ins.identification;
        is.form = id.value(QStringLiteral("form"), is.form).toString().toLower();
        is.model = id.value(QStringLiteral("model")).toString();
        is.serial = id.value(QStringLiteral("serial"), is.serial).toString();
        is.year = id.value(QStringLiteral("year"), is.year).toString();
        is.text = id.value(QStringLiteral("text"), is.text).toString();
        is.firmware = id.value(QStringLiteral("firmware"), is.firmware).toString();
        is.firmwareDate = id.value(QStringLiteral("firmware_date")).toString();
        is.dateSeparator = id.value(QStringLiteral("date_separator"), is.dateSeparator).toString();
        is.tail = id.value(QStringLiteral("tail"), is.tail).toString();
        is.slaveId = id.value(QStringLiteral("slave_id"), -1).toInt();
        is.runIndicator = id.value(QStringLiteral("run_indicator"), 0xFF).toInt() & 0xFF;
        is.sensorText = id.value(QStringLiteral("sensor_text")).toString();

        if (m.contains(QStringLiteral("archives"))) {
            const QVariantMap a = m.value(QStringLiteral("archives")).toMap();
            ArchiveSettings &as = ins.archives;
            as.enabled = true;
            as.valuesPerRecord
                = qBound(1, a.value(QStringLiteral("values_per_record"), 4).toInt(), 60);
            as.year = a.value(QStringLiteral("year"), 0).toInt();
            as.futureIsHole = a.value(QStringLiteral("future_is_hole"), true).toBool();
            for (const QVariant &h : a.value(QStringLiteral("holes")).toList()) {
                const QVariantMap hm = h.toMap();
                ArchiveHole hole;
                hole.archive = hm.value(QStringLiteral("archive"), -1).toInt();
                hole.from = dateTime(hm.value(QStringLiteral("from")));
                hole.to = dateTime(hm.value(QStringLiteral("to")));
                if (!hole.from.isValid() || !hole.to.isValid()) {
                    error = QStringLiteral("archive hole needs valid 'from' and 'to'");
                    return false;
                }
                as.holes << hole;
            }
        }
        if (m.contains(QStringLiteral("journal"))) {
            const QVariantMap j = m.value(QStringLiteral("journal")).toMap();
            JournalSettings &js = ins.journal;
            js.enabled = true;
            js.family = j.value(QStringLiteral("family")).toString().toLower();
            js.recordSize = j.value(QStringLiteral("record_size"), 0).toInt();
            js.records = qBound(0, j.value(QStringLiteral("records"), 10).toInt(), 999);
            js.newest = j.value(QStringLiteral("newest"), -1).toInt();
            js.wrapped = j.value(QStringLiteral("wrapped"), false).toBool();
            js.first = dateTime(j.value(QStringLiteral("first")));
            js.stepMinutes
                = qMax(1, j.value(QStringLiteral("step_minutes"), js.stepMinutes).toInt());
        }
        if (m.contains(QStringLiteral("ring_archive"))) {
            const QVariantMap r = m.value(QStringLiteral("ring_archive")).toMap();
            RingSettings &rs = ins.ring;
            rs.enabled = true;
            rs.formatted = r.value(QStringLiteral("formatted"), false).toBool();
            rs.wrapped = r.value(QStringLiteral("wrapped"), false).toBool();
            rs.channels = qBound(0, r.value(QStringLiteral("channels"), 0).toInt(), 2);
            rs.intervalCode = qBound(0, r.value(QStringLiteral("interval_code"), 0).toInt(), 15);
            rs.records = qMax(0, r.value(QStringLiteral("records"), rs.records).toInt());
            rs.timeFrameEvery
                = qMax(1, r.value(QStringLiteral("time_frame_every"), rs.timeFrameEvery).toInt());
            rs.start = dateTime(r.value(QStringLiteral("start")));
            rs.mode = r.value(QStringLiteral("mode"), 0).toInt();
        }
        ins.faults = faultSettings(m.value(QStringLiteral("faults")).toMap());
        out.instruments << ins;
    }
    if (out.instruments.isEmpty()) {
        error = QStringLiteral("the scenario has no instruments");
        return false;
    }
    return true;
}
