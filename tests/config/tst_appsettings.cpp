#include "config/appsettings.h"
#include "config/configbackup.h"
#include "config/qjsonsettings.h"
#include "testsupport.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

// Start-up and configuration files, first run, preferences and the .bak rules.
class tst_AppSettings : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();

    void firstRunMakesDirectories();
    void startupNamesDeletedFile();
    void relativeNameGoesUnderCfg();
    void preferencesRoundTrip();
    void emptyLanguageAndLinesLimit();
    void unparsableConfigLoadsDefaults();
    void saveFailsOnUnwritableFile();
    void saveOverCorruptFileReplacesIt();
    void backupAfterTwoSaves();
    void backupAndRollbackFailures();
    void tagViewModes();
};

static QVariantMap jsonFile(const QString &path)
{
    return QJsonDocument::fromJson(readFile(path)).object().toVariantMap();
}

void tst_AppSettings::cleanup()
{
    AppSettings::release();
}

void tst_AppSettings::firstRunMakesDirectories()
{
    ScopedWorkDir work;
    AppSettings *settings = AppSettings::instance();
    QVERIFY(settings->load());
    for (const char *dir : {"cfg", "log", "archives", "device_archives", "templates"})
        QVERIFY2(QDir(work.filePath(QLatin1String(dir))).exists(), dir);
    const QString startup = work.filePath(QStringLiteral("cfg/regdeskstart.cfg"));
    QVERIFY(QFile::exists(startup));
    QCOMPARE(jsonFile(startup).value("cfg_filename").toString(), AppSettings::default_cfg_fn());
    // No configuration file is made: the tree starts empty.
    QVERIFY(!QFile::exists(AppSettings::default_cfg_fn()));
    QVERIFY(settings->serverMap().isEmpty());
    QCOMPARE(AppSettings::cfg_fn(), AppSettings::default_cfg_fn());
    QCOMPARE(settings->language(), QStringLiteral("ru_RU"));
}

void tst_AppSettings::startupNamesDeletedFile()
{
    ScopedWorkDir work;
    QDir().mkpath(work.filePath(QStringLiteral("cfg")));
    const QString gone = work.filePath(QStringLiteral("elsewhere/mine.cfg"));
    QVERIFY(writeFile(AppSettings::startup_fn(),
                      QJsonDocument(QJsonObject {{"cfg_filename", gone}}).toJson()));
    AppSettings *settings = AppSettings::instance();
    QVERIFY(settings->load());
    // The name stays in use although the file is gone...
    QCOMPARE(AppSettings::cfg_fn(), gone);
    // ...and the first save creates it.
    QDir().mkpath(work.filePath(QStringLiteral("elsewhere")));
    settings->setServerMap({{"ports", QVariantList()}});
    QVERIFY(settings->save());
    QVERIFY(QFile::exists(gone));
    QCOMPARE(jsonFile(AppSettings::startup_fn()).value("cfg_filename").toString(), gone);
}

void tst_AppSettings::relativeNameGoesUnderCfg()
{
    ScopedWorkDir work;
    AppSettings::createDefaultConfig();
    AppSettings::set_cfg_fn(QStringLiteral("plant.cfg"));
    QCOMPARE(AppSettings::cfg_fn(), AppSettings::cfg_dir() + QDir::separator() + "plant.cfg");
    AppSettings::set_cfg_fn(QString());
    QCOMPARE(AppSettings::cfg_fn(), QString());
    // Clearing touches no file.
    QCOMPARE(jsonFile(AppSettings::startup_fn()).value("cfg_filename").toString(),
             AppSettings::cfg_dir() + QDir::separator() + "plant.cfg");
}

void tst_AppSettings::preferencesRoundTrip()
{
    ScopedWorkDir work;
    AppSettings *settings = AppSettings::instance();
    settings->load();
    settings->setLogFlags({"ERR", "INFO"});
    settings->setApplyCss(true);
    settings->setUpdateStatByTimer(true);
    settings->setUpdateStatTimer(QTime(0, 5, 0, 250));
    settings->setGeometry(QByteArray("\x01\x02\xff", 3));
    settings->setCurrentItem(QStringLiteral("Port0 Device1"));
    settings->setConfigComment(QStringLiteral("цех 2"));
    settings->setTagViewMode(AppSettings::COMPACT);
    settings->setLanguage(QStringLiteral("en_US"));
    settings->setServerMap({{"ports", QVariantList {QVariantMap {{"name", "Port0"}}}}});
    settings->setScanSettings({{"baud", 9600}});
    settings->setLogViewLinesLimit(50);
    QVERIFY(settings->save());

    const QVariantMap file = jsonFile(AppSettings::cfg_fn());
    QCOMPARE(file.keys(), (QStringList {"app", "scan_settings", "srv"}));
    const QVariantMap app = file.value("app").toMap();
    QVERIFY(!app.contains("log_view_lines_limit"));
    QVERIFY(!app.contains("srv"));
    QCOMPARE(app.value("update_stat_timer").toString(), QStringLiteral("00:05:00.250"));
    QCOMPARE(app.value("rt_tag_view_mode").toString(), QStringLiteral("COMPACT"));

    AppSettings copy = *settings;
    AppSettings::release();
    AppSettings *again = AppSettings::instance();
    QVERIFY(again->loadConfig(AppSettings::cfg_fn()));
    QCOMPARE(again->logFlags(), copy.logFlags());
    QVERIFY(again->isApplyCss());
    QCOMPARE(again->updateStatTimer(), QTime(0, 5, 0, 250));
    QCOMPARE(again->geometry(), copy.geometry());
    QCOMPARE(again->currentItem(), copy.currentItem());
    QCOMPARE(again->configComment(), copy.configComment());
    QCOMPARE(again->tagViewMode(), int(AppSettings::COMPACT));
    QCOMPARE(again->language(), QStringLiteral("en_US"));
    QCOMPARE(again->serverMap(), copy.serverMap());
    QCOMPARE(again->scanSettings().value("baud").toInt(), 9600);
    QCOMPARE(again->logViewLinesLimit(), 1000); // the running limit never reaches the file
}

void tst_AppSettings::emptyLanguageAndLinesLimit()
{
    ScopedWorkDir work;
    const QString file = work.filePath(QStringLiteral("x.cfg"));
    QVERIFY(writeFile(file, R"({"app": {"language": "", "log_view_lines_limit": 10000}})"));
    AppSettings *settings = AppSettings::instance();
    settings->loadConfig(file);
    QCOMPARE(settings->language(), QStringLiteral("ru_RU"));
    QCOMPARE(settings->logViewLinesLimit(), 1000);
    QVERIFY(writeFile(file, R"({"app": {"language": "en_US", "log_view_lines_limit": 250}})"));
    AppSettings::release();
    settings = AppSettings::instance();
    settings->loadConfig(file);
    QCOMPARE(settings->logViewLinesLimit(), 250);
    settings->setLogViewLinesLimit(0);
    QCOMPARE(settings->logViewLinesLimit(), 250);
}

void tst_AppSettings::unparsableConfigLoadsDefaults()
{
    ScopedWorkDir work;
    const QString file = work.filePath(QStringLiteral("broken.cfg"));
    QVERIFY(writeFile(file, "{\"srv\": {\"ports\": [ {\"name\": \"cut"));
    AppSettings *settings = AppSettings::instance();
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("parse error at line")));
    QVERIFY(settings->loadConfig(file));
    QVERIFY(settings->serverMap().isEmpty());
    QCOMPARE(settings->language(), QStringLiteral("ru_RU"));
    QCOMPARE(AppSettings::cfg_fn(), file);
}

void tst_AppSettings::saveFailsOnUnwritableFile()
{
    ScopedWorkDir work;
    AppSettings *settings = AppSettings::instance();
    settings->load();
    // Missing directories on the way are made.
    const QString inMissingDir = work.filePath(QStringLiteral("missing/dir/x.cfg"));
    AppSettings::set_cfg_fn(inMissingDir);
    QVERIFY(settings->save());
    QVERIFY(QFile::exists(inMissingDir));
    // Root writes everywhere, so make the write fail by the shape of the path.
    const QString isDirectory = work.filePath(QStringLiteral("adir"));
    QDir().mkpath(isDirectory);
    AppSettings::set_cfg_fn(isDirectory);
    QVERIFY(!settings->save());
    QVERIFY(QFileInfo(isDirectory).isDir());
}

void tst_AppSettings::saveOverCorruptFileReplacesIt()
{
    ScopedWorkDir work;
    AppSettings *settings = AppSettings::instance();
    settings->load();
    const QString file = AppSettings::cfg_fn();
    QVERIFY(writeFile(file, "not json at all"));
    settings->setServerMap({{"ports", QVariantList {QVariantMap {{"name", "P"}}}}});
    QVERIFY(settings->save());
    QCOMPARE(jsonFile(file).value("srv").toMap(), settings->serverMap());
}

void tst_AppSettings::backupAfterTwoSaves()
{
    ScopedWorkDir work;
    AppSettings *settings = AppSettings::instance();
    settings->load();
    const QString file = AppSettings::cfg_fn();
    const QString bak = file + ".bak";

    // First save of a new file: nothing to back up, no failure.
    QVERIFY(backupConfigFile(file));
    QVERIFY(!QFile::exists(bak));
    settings->setConfigComment(QStringLiteral("first"));
    QVERIFY(settings->save());
    const QByteArray first = readFile(file);

    QVERIFY(backupConfigFile(file));
    settings->setConfigComment(QStringLiteral("second"));
    QVERIFY(settings->save());
    QCOMPARE(readFile(bak), first);
    QVERIFY(readFile(file) != first);

    // A failed save is undone from the backup.
    QVERIFY(writeFile(file, "half written"));
    QVERIFY(rollbackBackupConfigFile(file));
    QCOMPARE(readFile(file), first);
}

void tst_AppSettings::backupAndRollbackFailures()
{
    ScopedWorkDir work;
    ConfigBackupError error;
    QVERIFY(!backupConfigFile(QString(), &error));
    QVERIFY(!rollbackBackupConfigFile(QString(), &error));
    const QString file = work.filePath(QStringLiteral("a.cfg"));
    QVERIFY(!rollbackBackupConfigFile(file, &error));
    QCOMPARE(error.title, QStringLiteral("Error"));
    QCOMPARE(error.text, QStringLiteral("backup file '%1.bak' not exists!").arg(file));
    // A backup that can't be replaced: a directory stands in its place.
    QVERIFY(writeFile(file, "x"));
    QDir().mkpath(file + ".bak/inside");
    QVERIFY(!backupConfigFile(file, &error));
    QCOMPARE(error.title, QStringLiteral("Error"));
    QVERIFY(error.text.startsWith(QStringLiteral("can't remove file")));
}

void tst_AppSettings::tagViewModes()
{
    QCOMPARE(AppSettings::tagViewModeFromString(QStringLiteral("compact")),
             int(AppSettings::COMPACT));
    QCOMPARE(AppSettings::tagViewModeFromString(QStringLiteral("other")), int(AppSettings::FULL));
    QCOMPARE(AppSettings::tagViewModeToString(5), QStringLiteral("UNKNOWN"));
}

QTEST_GUILESS_MAIN(tst_AppSettings)
#include "tst_appsettings.moc"
