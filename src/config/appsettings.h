#ifndef APPSETTINGS_H
#define APPSETTINGS_H

#include <QByteArray>
#include <QFont>
#include <QString>
#include <QStringList>
#include <QTime>
#include <QVariantMap>

// Where the process keeps its files and what the user prefers. A singleton,
// also copied by value for the settings dialog.
class AppSettings
{
public:
    enum TagViewMode { FULL = 0, COMPACT = 1 };

    static constexpr const char *StartupBaseName = "regdeskstart.cfg";
    static constexpr const char *ConfigBaseName = "regdeskcfg.cfg";
    static constexpr const char *LogBaseName = "regdeskcfg.log";
    static constexpr const char *TemplateExtension = "tpl";
    static constexpr const char *TimeFormat = "HH:mm:ss.zzz";
    static constexpr const char *EmbeddedTemplatesDir = ":/templates";
    static constexpr const char *EmbeddedConfig = ":cfg/gantry.cfg";

    static AppSettings *instance();
    static void release();

    AppSettings(const AppSettings &other) = default;
    AppSettings &operator=(const AppSettings &other) = default;

    // Rebuilds the directory names from the current working directory; the
    // constructor does it once, tests call it after changing directory.
    static void initPaths();

    bool load();
    bool loadConfig(const QString &file);
    bool save();
    static void createDefaultConfig();
    static void set_cfg_fn(const QString &name);
    static QString cfg_fn();

    static QString data_dir();
    static QString cfg_dir();
    static QString log_dir();
    static QString archives_dir();
    static QString device_archives_dir();
    static QString templates_dir();
    static QString css_dir();
    static QString log_fn();
    static QString startup_fn();
    static QString default_cfg_fn();
    static QString template_ext() { return QLatin1String(TemplateExtension); }
    static QString embedded_templates_dir() { return QLatin1String(EmbeddedTemplatesDir); }

    static QString tagViewModeToString(int mode);
    static int tagViewModeFromString(const QString &text);

    QStringList logFlags() const { return m_logFlags; }
    void setLogFlags(const QStringList &flags) { m_logFlags = flags; }
    bool isLogFileEnabled() const { return m_logFileEnabled; }
    void setLogFileEnabled(bool on) { m_logFileEnabled = on; }
    bool isInsertComments() const { return m_insertComments; }
    void setInsertComments(bool on) { m_insertComments = on; }
    bool isApplyCss() const { return m_applyCss; }
    void setApplyCss(bool on) { m_applyCss = on; }
    bool isAutosaveDefault() const { return m_autosaveDefault; }
    void setAutosaveDefault(bool on) { m_autosaveDefault = on; }
    QFont font() const { return m_font; }
    void setFont(const QFont &font) { m_font = font; }
    QVariantMap serverMap() const { return m_serverMap; }
    void setServerMap(const QVariantMap &map) { m_serverMap = map; }
    QVariantMap scanSettings() const { return m_scanSettings; }
    void setScanSettings(const QVariantMap &map) { m_scanSettings = map; }
    bool isUpdateStatByTimer() const { return m_updateStatByTimer; }
    void setUpdateStatByTimer(bool on) { m_updateStatByTimer = on; }
    QTime updateStatTimer() const { return m_updateStatTimer; }
    void setUpdateStatTimer(const QTime &time) { m_updateStatTimer = time; }
    QString language() const { return m_language; }
    void setLanguage(const QString &language) { m_language = language; }
    QByteArray geometry() const { return m_geometry; }
    void setGeometry(const QByteArray &geometry) { m_geometry = geometry; }
    QByteArray splitter() const { return m_splitter; }
    void setSplitter(const QByteArray &state) { m_splitter = state; }
    QString currentItem() const { return m_currentItem; }
    void setCurrentItem(const QString &item) { m_currentItem = item; }
    QString configComment() const { return m_configComment; }
    void setConfigComment(const QString &comment) { m_configComment = comment; }
    int tagViewMode() const { return m_tagViewMode; }
    void setTagViewMode(int mode) { m_tagViewMode = TagViewMode(mode); }
    int logViewLinesLimit() const { return m_logViewLinesLimit; }
    void setLogViewLinesLimit(int limit);

    // The preferences as written under "app".
    QVariantMap appMap() const;
    void applyAppMap(const QVariantMap &app);

private:
    AppSettings();

    static AppSettings *s_instance;

    QStringList m_logFlags;
    bool m_logFileEnabled = false;
    bool m_insertComments = false;
    bool m_applyCss = false;
    bool m_autosaveDefault = false;
    QFont m_font;
    QVariantMap m_serverMap;
    QVariantMap m_scanSettings;
    bool m_updateStatByTimer = false;
    QTime m_updateStatTimer;
    QString m_language;
    QByteArray m_geometry;
    QByteArray m_splitter;
    QString m_currentItem;
    QString m_configComment;
    TagViewMode m_tagViewMode = FULL;
    int m_logViewLinesLimit = 1000;
};

#endif // APPSETTINGS_H
