#ifndef QJSONSETTINGS_H
#define QJSONSETTINGS_H

#include <QSettings>

// QSettings stored as one indented JSON object. The format is registered once,
// under the extension "json", with case-sensitive keys.
class QJsonSettings : public QSettings
{
    Q_OBJECT
public:
    explicit QJsonSettings(const QString &fileName, QObject *parent = nullptr);

    static QSettings::Format format();

    static bool readJsonFile(QIODevice &device, QSettings::SettingsMap &map);
    static bool writeJsonFile(QIODevice &device, const QSettings::SettingsMap &map);
};

#endif // QJSONSETTINGS_H
