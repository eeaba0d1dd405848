#include "config/devicetemplatecatalog.h"

#include "app/debugqt.h"
#include "config/appsettings.h"
#include "config/qjsonsettings.h"
#include "model/device.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

DeviceTemplateCatalog *DeviceTemplateCatalog::s_instance = nullptr;

static const QString GenericTemplate = QStringLiteral(":/templates/modbus_device.tpl");

DeviceTemplateCatalog::DeviceTemplateCatalog(QObject *parent)
    : QObject(parent)
{
}

DeviceTemplateCatalog::~DeviceTemplateCatalog()
{
    if (s_instance == this)
        s_instance = nullptr;
}

DeviceTemplateCatalog *DeviceTemplateCatalog::instance()
{
    if (!s_instance)
        s_instance = new DeviceTemplateCatalog;
    return s_instance;
}

void DeviceTemplateCatalog::release()
{
    delete s_instance;
    s_instance = nullptr;
}

QString DeviceTemplateCatalog::embeddedDir()
{
    return AppSettings::embedded_templates_dir();
}

static QStringList templateFiles(const QString &dir)
{
    const QString pattern = QStringLiteral("*.") + AppSettings::template_ext();
    return QDir(dir).entryList({pattern}, QDir::Files | QDir::Readable, QDir::Name);
}

void DeviceTemplateCatalog::loadTemplates(const QString &userDir)
{
    m_templates.clear();
    m_files.clear();
    m_names.clear();

    const QDir embedded(embeddedDir());
    LOG_INFO << qPrintable(QStringLiteral("Search templates in %1").arg(embedded.absolutePath()));
    QStringList overrides;
    for (const QString &fileName : templateFiles(embeddedDir())) {
        QString path = embedded.filePath(fileName);
        if (path != GenericTemplate) {
            const QFileInfo userFile(userDir + QLatin1Char('/') + fileName);
            if (userFile.exists()) {
                path = userFile.absoluteFilePath();
                overrides.append(path);
            }
        }
        appendTemplateData(path);
    }
    LOG_INFO << "complete";
    LOG_INFO << qPrintable(QStringLiteral("Search in %1").arg(userDir));
    const QDir user(userDir);
    if (!userDir.isEmpty() && user.exists()) {
        for (const QString &fileName : templateFiles(userDir)) {
            const QString path = QFileInfo(user.filePath(fileName)).absoluteFilePath();
            if (!overrides.contains(path))
                appendTemplateData(path);
        }
    }
    LOG_INFO << "complete";
    emit changed();
}

bool DeviceTemplateCatalog::appendTemplateData(const QString &path)
{
    QJsonSettings settings(path);
    const QStringList keys = settings.childKeys();
    // A name that is not text (or is empty) could never be looked up: as good as missing.
    if (!keys.contains(QLatin1String("id")) || !keys.contains(QLatin1String("name"))
        || settings.value(QStringLiteral("name")).toString().isEmpty()) {
        LOG_INFO << QStringLiteral("invalid template '%1'").arg(path) << keys;
        return false;
    }
    QVariantMap map;
    for (const QString &key : keys)
        map.insert(key, settings.value(key));
    const QString name = map.value(QStringLiteral("name")).toString();
    if (m_templates.contains(name)) {
        LOG_INFO << QStringLiteral("catalog already contains template '%1'").arg(name);
        return false;
    }
    m_templates.insert(name, map);
    m_files.insert(name, path);
    m_names.insert(path.section(QLatin1Char('/'), -1), name);
    LOG_INFO << "id =" << map.value(QStringLiteral("id")).toString();
    return true;
}

void DeviceTemplateCatalog::removeTemplateData(const QString &name)
{
    LOG_INFO << "remove template" << name;
    m_templates.remove(name);
    const QString path = m_files.take(name);
    m_names.remove(path.section(QLatin1Char('/'), -1));
}

bool DeviceTemplateCatalog::embedded_exists(const QString &name) const
{
    return QDir(embeddedDir()).exists(name + QLatin1Char('.') + AppSettings::template_ext());
}

bool DeviceTemplateCatalog::exists(const DeviceTemplateInfo &info) const
{
    return QDir(AppSettings::templates_dir()).exists(info.name + QLatin1Char('.') + info.ext);
}

bool DeviceTemplateCatalog::saveAsTemplate(Device *device, DeviceTemplateInfo &info)
{
    if (!device)
        return false;
    const QString path = AppSettings::templates_dir() + QDir::separator() + info.name
        + QLatin1Char('.') + AppSettings::template_ext();
    QSettings::Status status;
    {
        QJsonSettings settings(path);
        settings.setValue(QStringLiteral("id"), device->deviceTemplateName());
        settings.setValue(QStringLiteral("name"), info.name);
        settings.setValue(QStringLiteral("producer"), info.producer);
        settings.setValue(QStringLiteral("comment"), info.comment);
        settings.setValue(QStringLiteral("version"),
                          QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddhhmmss")));
        QVariantMap deviceMap = device->save();
        deviceMap.insert(QStringLiteral("name"), info.name);
        if (info.custom) {
            settings.setValue(QStringLiteral("id"), QStringLiteral("Custom"));
            deviceMap.insert(QStringLiteral("template"), QStringLiteral("Custom"));
        }
        settings.setValue(QStringLiteral("device"), deviceMap);
        settings.sync();
        status = settings.status();
    }
    loadTemplates(AppSettings::templates_dir());
    return status == QSettings::NoError;
}
