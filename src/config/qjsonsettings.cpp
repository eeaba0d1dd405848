#include "config/qjsonsettings.h"

#include "app/debugqt.h"

#include <QIODevice>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

QJsonSettings::QJsonSettings(const QString &fileName, QObject *parent)
    : QSettings(fileName, format(), parent)
{
}

QSettings::Format QJsonSettings::format()
{
    static const QSettings::Format jsonFormat = QSettings::registerFormat(
        QStringLiteral("json"), readJsonFile, writeJsonFile, Qt::CaseSensitive);
    return jsonFormat;
}

static int lineOfOffset(const QByteArray &data, int offset)
{
    return int(data.left(offset).count('\n')) + 1;
}

bool QJsonSettings::readJsonFile(QIODevice &device, QSettings::SettingsMap &map)
{
    const QByteArray data = device.readAll();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(data, &error);
    if (error.error != QJsonParseError::NoError) {
        SLOG_ERR << "parse error at line: " << lineOfOffset(data, error.offset) << " ["
                 << error.errorString() << "]";
        return false;
    }
    if (!document.isObject()) {
        SLOG_ERR << "parse error at line: " << 1 << " [" << QStringLiteral("not a JSON object")
                 << "]";
        return false;
    }
    map = document.object().toVariantMap();
    return true;
}

bool QJsonSettings::writeJsonFile(QIODevice &device, const QSettings::SettingsMap &map)
{
    const QJsonDocument document(QJsonObject::fromVariantMap(map));
    const QByteArray bytes = document.toJson(QJsonDocument::Indented);
    // A short write (a full disk) must fail the save, so the old file stays whole.
    return device.write(bytes) == bytes.size();
}
