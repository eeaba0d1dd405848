#include "config/utils.h"

#include "app/debugqt.h"
#include "config/qjsonsettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <cmath>
#include <cstring>

void mySleep(int ms)
{
    if (ms > 0)
        QThread::msleep(ms);
}

void myUSleep(int us)
{
    if (us > 0)
        QThread::usleep(us);
}

QString byteBufferToString(const char *data, int length)
{
    if (!data || length <= 0)
        return QString();
    return QString::fromLatin1(QByteArray(data, length).toHex(' '));
}

QString byteBufferToString(const QByteArray &bytes)
{
    return byteBufferToString(bytes.constData(), int(bytes.size()));
}

uint extract_bits(const unsigned char *bytes, int start, int count)
{
    if (!bytes || count <= 0 || start < 0 || start + count > 64)
        return 0;
    uint64_t word = 0;
    for (int i = 7; i >= 0; --i)
        word = (word << 8) | bytes[i];
    return uint((word << (64 - start - count)) >> (64 - count));
}

uint set_bits(uint where, uint from, int start, int count)
{
    if (count <= 0 || start < 0 || start >= 32)
        return where;
    const uint ones = count >= 32 ? ~0u : ((1u << count) - 1);
    const uint mask = ones << start;
    return (where & ~mask) | ((from << start) & mask);
}

double round(double value, int digits)
{
    const double scale = std::pow(10.0, digits);
    return std::round(value * scale) / scale;
}

void vmap_merge(const QVariantMap &from, QVariantMap &into)
{
    if (into.isEmpty()) {
        into = from;
        return;
    }
    for (auto it = from.cbegin(); it != from.cend(); ++it)
        into[it.key()] = it.value();
}

void vmap_merge_new(const QVariantMap &from, QVariantMap &into)
{
    for (auto it = from.cbegin(); it != from.cend(); ++it) {
        if (!into.contains(it.key()))
            into.insert(it.key(), it.value());
    }
}

QVariant vmap_get(const QVariantMap &map, const QString &path)
{
    return vmap_get(map, path, QVariant());
}

QVariant vmap_get(const QVariantMap &map, const QString &path, const QVariant &defaultValue)
{
    const QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return defaultValue;
    QVariantMap current = map;
    for (int i = 0; i < parts.size() - 1; ++i) {
        const QVariant next = current.value(parts.at(i));
        if (next.typeId() != QMetaType::QVariantMap)
            return defaultValue;
        current = next.toMap();
    }
    return current.contains(parts.last()) ? current.value(parts.last()) : defaultValue;
}

static bool putPath(QVariantMap &map, const QStringList &parts, int index, const QVariant &value)
{
    const QString &key = parts.at(index);
    if (index == parts.size() - 1) {
        map[key] = value;
        return true;
    }
    QVariant &slot = map[key];
    if (slot.isValid() && slot.typeId() != QMetaType::QVariantMap)
        return false;
    QVariantMap child = slot.toMap();
    if (!putPath(child, parts, index + 1, value))
        return false;
    slot = child;
    return true;
}

bool vmap_put(QVariantMap &map, const QString &path, const QVariant &value)
{
    const QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return false;
    if (!putPath(map, parts, 0, value)) {
        SLOG_INFO << "dont understand" << path << map << value;
        return false;
    }
    return true;
}

QString searchHelpFile(const QString &name)
{
    const QString besideExecutable = QDir(QCoreApplication::applicationDirPath()).filePath(name);
    if (QFileInfo::exists(besideExecutable))
        return besideExecutable;
    return QStringLiteral(":/%1").arg(name);
}

QVariantMap loadConfig(const QString &path)
{
    QJsonSettings settings(path);
    QVariantMap result;
    for (const char *section : {"app", "srv", "common"}) {
        const QString key = QLatin1String(section);
        if (settings.contains(key))
            result.insert(key, settings.value(key));
    }
    return result;
}

bool saveConfig(const QVariantMap &map, const QString &path)
{
    QJsonSettings settings(path);
    for (const char *section : {"app", "srv", "common"}) {
        const QString key = QLatin1String(section);
        if (map.contains(key))
            settings.setValue(key, map.value(key));
    }
    settings.sync();
    return settings.status() == QSettings::NoError;
}

QString searchConfigFile(const QString &name)
{
    const QStringList candidates = {QDir::current().filePath(name),
                                    QDir(QCoreApplication::applicationDirPath()).filePath(name)};
    for (const QString &candidate : candidates) {
        if (QFileInfo::exists(candidate))
            return candidate;
    }
    return QString();
}
