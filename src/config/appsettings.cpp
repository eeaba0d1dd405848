#include "config/appsettings.h"

#include "app/debugqt.h"
#include "config/qjsonsettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

AppSettings *AppSettings::s_instance = nullptr;

namespace {

struct Paths
{
    QString data;
    QString cfg;
    QString log;
    QString archives;
    QString deviceArchives;
    QString templates;
    QString css;
    QString cfgFileName;
};

Paths &paths()
{
    static Paths p;
    return p;
}

QString joined(const QString &dir, const QString &name)
{
    return dir + QDir::separator() + name;
}

QString createdDir(const QString &path)
{
    if (!QDir(path).exists())
        QDir().mkpath(path);
    return path;
}

void writeStartupFile(const QString &cfgFileName)
{
    QJsonSettings startup(AppSettings::startup_fn());
    startup.setValue(QStringLiteral("cfg_filename"), cfgFileName);
    startup.sync();
}

bool writtenAsExpected(const QString &file, const QVariantMap &serverMap)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return false;
    QSettings::SettingsMap map;
    return QJsonSettings::readJsonFile(device, map)
        && map.value(QStringLiteral("srv")).toMap() == serverMap;
}

} // namespace

AppSettings::AppSettings()
{
    if (paths().data.isEmpty())
        initPaths();
}

AppSettings *AppSettings::instance()
{
    if (!s_instance)
        s_instance = new AppSettings;
    return s_instance;
}

void AppSettings::release()
{
    delete s_instance;
    s_instance = nullptr;
}

void AppSettings::initPaths()
{
    Paths &p = paths();
    p.data = QDir(QStringLiteral("./")).absolutePath();
    p.cfg = joined(p.data, QStringLiteral("cfg"));
    p.log = joined(p.data, QStringLiteral("log"));
    p.archives = joined(p.data, QStringLiteral("archives"));
    p.deviceArchives = joined(p.data, QStringLiteral("device_archives"));
    p.templates = joined(p.data, QStringLiteral("templates"));
    p.css = joined(p.data, QStringLiteral("css"));
    p.cfgFileName.clear();
}

QString AppSettings::data_dir()
{
    return paths().data;
}
QString AppSettings::cfg_dir()
{
    return paths().cfg;
}
QString AppSettings::log_dir()
{
    return paths().log;
}
QString AppSettings::archives_dir()
{
    return createdDir(paths().archives);
}
QString AppSettings::device_archives_dir()
{
    return createdDir(paths().deviceArchives);
}
QString AppSettings::templates_dir()
{
    return createdDir(paths().templates);
}
QString AppSettings::css_dir()
{
    return paths().css;
}
QString AppSettings::log_fn()
{
    return joined(paths().log, QLatin1String(LogBaseName));
}
QString AppSettings::startup_fn()
{
    return joined(paths().cfg, QLatin1String(StartupBaseName));
}
QString AppSettings::default_cfg_fn()
{
    return joined(paths().cfg, QLatin1String(ConfigBaseName));
}
QString AppSettings::cfg_fn()
{
    return paths().cfgFileName;
}

QString AppSettings::tagViewModeToString(int mode)
{
    switch (mode) {
    case FULL:
        return QStringLiteral("FULL");
    case COMPACT:
        return QStringLiteral("COMPACT");
    default:
        return QStringLiteral("UNKNOWN");
    }
}

int AppSettings::tagViewModeFromString(const QString &text)
{
    return text.toUpper() == QLatin1String("COMPACT") ? COMPACT : FULL;
}

void AppSettings::setLogViewLinesLimit(int limit)
{
    if (limit < 1 || limit > 9999)
        return;
    m_logViewLinesLimit = limit;
}

void AppSettings::createDefaultConfig()
{
    for (const QString &dir :
         {paths().cfg, paths().templates, paths().log, paths().archives, paths().deviceArchives}) {
        if (!QDir(dir).exists())
            QDir().mkpath(dir);
    }
    writeStartupFile(default_cfg_fn());
}

void AppSettings::set_cfg_fn(const QString &name)
{
    if (name.isEmpty()) {
        paths().cfgFileName.clear();
        return;
    }
    QString path = name;
    if (QFileInfo(path).isRelative())
        path = joined(paths().cfg, path);
    paths().cfgFileName = path;
    writeStartupFile(path);
}

bool AppSettings::load()
{
    if (!QFileInfo::exists(startup_fn()))
        createDefaultConfig();
    QString name;
    {
        QJsonSettings startup(startup_fn());
        name = startup.value(QStringLiteral("cfg_filename")).toString();
    }
    // A start-up file without a name (or unreadable) falls back to the default file.
    if (name.isEmpty())
        name = default_cfg_fn();
    if (!QFileInfo::exists(name))
        createDefaultConfig();
    loadConfig(name);
    return true;
}

bool AppSettings::loadConfig(const QString &file)
{
    {
        QJsonSettings settings(file);
        m_serverMap = settings.value(QStringLiteral("srv")).toMap();
        m_scanSettings = settings.value(QStringLiteral("scan_settings")).toMap();
        applyAppMap(settings.value(QStringLiteral("app")).toMap());
    }
    set_cfg_fn(file);
    return true;
}

void AppSettings::applyAppMap(const QVariantMap &constApp)
{
    QVariantMap app = constApp; // the index operator of a missing key gives an invalid value
    m_logFileEnabled = app[QStringLiteral("log_file_enabled")].toBool();
    m_logFlags = app[QStringLiteral("log_flags")].toStringList();
    m_insertComments = app[QStringLiteral("insert_comments")].toBool();
    m_applyCss = app[QStringLiteral("apply_css")].toBool();
    m_autosaveDefault = app[QStringLiteral("autosave_default")].toBool();
    const QString font = app[QStringLiteral("font")].toString();
    if (!font.isEmpty())
        m_font.fromString(font);
    m_updateStatByTimer = app[QStringLiteral("update_stat_by_timer")].toBool();
    m_updateStatTimer = QTime::fromString(app[QStringLiteral("update_stat_timer")].toString(),
                                          QLatin1String(TimeFormat));
    m_geometry = QByteArray::fromBase64(app[QStringLiteral("geometry")].toString().toLatin1());
    m_splitter = QByteArray::fromBase64(app[QStringLiteral("splitter")].toString().toLatin1());
    m_currentItem = app[QStringLiteral("current_item")].toString();
    m_language = app[QStringLiteral("language")].toString();
    m_configComment = app[QStringLiteral("config_comment")].toString();
    m_tagViewMode
        = TagViewMode(tagViewModeFromString(app[QStringLiteral("rt_tag_view_mode")].toString()));
    // Applied when present and sane, but never written back.
    if (app.contains(QStringLiteral("log_view_lines_limit")))
        setLogViewLinesLimit(app[QStringLiteral("log_view_lines_limit")].toInt());
    if (m_language.isEmpty())
        m_language = QStringLiteral("ru_RU");
}

QVariantMap AppSettings::appMap() const
{
    QVariantMap app;
    app.insert(QStringLiteral("log_flags"), m_logFlags);
    app.insert(QStringLiteral("log_file_enabled"), m_logFileEnabled);
    app.insert(QStringLiteral("insert_comments"), m_insertComments);
    app.insert(QStringLiteral("apply_css"), m_applyCss);
    app.insert(QStringLiteral("autosave_default"), m_autosaveDefault);
    app.insert(QStringLiteral("font"), m_font.toString());
    app.insert(QStringLiteral("update_stat_by_timer"), m_updateStatByTimer);
    app.insert(QStringLiteral("update_stat_timer"),
               m_updateStatTimer.toString(QLatin1String(TimeFormat)));
    app.insert(QStringLiteral("language"), m_language);
    app.insert(QStringLiteral("geometry"), QString::fromLatin1(m_geometry.toBase64()));
    app.insert(QStringLiteral("splitter"), QString::fromLatin1(m_splitter.toBase64()));
    app.insert(QStringLiteral("current_item"), m_currentItem);
    app.insert(QStringLiteral("config_comment"), m_configComment);
    app.insert(QStringLiteral("rt_tag_view_mode"), tagViewModeToString(m_tagViewMode));
    return app;
}

bool AppSettings::save()
{
    const QString file = cfg_fn();
    QSettings::Status status;
    {
        QJsonSettings settings(file);
        settings.setValue(QStringLiteral("srv"), m_serverMap);
        settings.setValue(QStringLiteral("scan_settings"), m_scanSettings);
        settings.setValue(QStringLiteral("app"), appMap());
        settings.sync();
        status = settings.status();
    }
    // A file that was unreadable before is rewritten whole; the format error of
    // that read must not hide whether the new content reached the disk.
    if (status == QSettings::FormatError && writtenAsExpected(file, m_serverMap))
        status = QSettings::NoError;
    if (status != QSettings::NoError)
        return false;
    writeStartupFile(file);
    return true;
}
