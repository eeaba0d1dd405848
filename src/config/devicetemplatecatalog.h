#ifndef DEVICETEMPLATECATALOG_H
#define DEVICETEMPLATECATALOG_H

#include "config/devicetemplateinfo.h"

#include <QMap>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

class Device;

// All device templates by name: the built-in ones under ":/templates" and the
// user's in the templates directory, where a file of the same name shadows a
// built-in one.
class DeviceTemplateCatalog : public QObject
{
    Q_OBJECT
public:
    static DeviceTemplateCatalog *instance();
    static void release();

    void loadTemplates(const QString &userDir);
    bool appendTemplateData(const QString &path);
    void removeTemplateData(const QString &name);

    QVariantMap template_map(const QString &name) const { return m_templates.value(name); }
    QStringList templateNames() const { return m_templates.keys(); }
    QString templateFile(const QString &name) const { return m_files.value(name); }
    QString templateNameByFile(const QString &fileName) const { return m_names.value(fileName); }

    bool embedded_exists(const QString &name) const;
    bool exists(const DeviceTemplateInfo &info) const;

    bool saveAsTemplate(Device *device, DeviceTemplateInfo &info);

    static QString embeddedDir();

signals:
    void changed();

private:
    explicit DeviceTemplateCatalog(QObject *parent = nullptr);
    ~DeviceTemplateCatalog() override;

    static DeviceTemplateCatalog *s_instance;

    QMap<QString, QVariantMap> m_templates; // by "name"
    QMap<QString, QString> m_files; // "name" -> path
    QMap<QString, QString> m_names; // file name -> "name"
};

#endif // DEVICETEMPLATECATALOG_H
