#include "app/application.h"
#include "app/debugqt.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString hello()
{
    return QCoreApplication::translate("tst", "Hello");
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

bool copyCatalogue(const QString &which, const QString &dir, const QString &name)
{
    return QFile::copy(QStringLiteral(TEST_QM_DIR "/%1.qm").arg(which), dir + '/' + name);
}

} // namespace

// Catalogues are class-wide, so the slots build on each other in order.
class tst_Application : public QObject
{
    Q_OBJECT
public:
    explicit tst_Application(const QString &dataHome)
        : m_dataHome(dataHome)
    {
    }

private slots:
    void setLanguageWithoutCatalogues();
    void translationKeys();
    void setLanguage();
    void unknownLanguageKeepsLocale();
    void laterFileReplacesKey();
    void reloadReplacesInstalledCatalogue();
    void readAllFiles();
    void loadCss();

private:
    QString m_dataHome;
};

void tst_Application::setLanguageWithoutCatalogues()
{
    QVERIFY(Application::availableLanguages().isEmpty());
    Application::setLanguage(QStringLiteral("ru_RU"));
    QCOMPARE(Application::language(), QString());
    QCOMPARE(hello(), QStringLiteral("Hello"));

    Application::loadTranslations(QStringLiteral("/nonexistent/lang"));
    Application::loadTranslations(QString());
    QVERIFY(Application::availableLanguages().isEmpty());
}

void tst_Application::translationKeys()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString p = dir.path();
    QVERIFY(copyCatalogue("hello_a", p, "app_ru_ru.qm"));
    QVERIFY(copyCatalogue("hello_a", p, "x_y.qm"));
    QVERIFY(copyCatalogue("hello_a", p, "Regdesk_EN_us.qm"));
    QVERIFY(copyCatalogue("hello_a", p, "plain.qm")); // no "_": not a catalogue name
    QVERIFY(copyCatalogue("hello_a", p, "app_de_de.ts")); // wrong suffix
    QVERIFY(writeFile(p + "/broken_fr_fr.qm", "not a catalogue"));
    QVERIFY(writeFile(p + "/empty_it_it.qm", QByteArray()));
    QVERIFY(QDir(p).mkdir("dir_es_es.qm"));

    Application::loadTranslations(p);
    QStringList keys = Application::availableLanguages();
    keys.sort();
    QCOMPARE(keys, QStringList({"en_US", "ru_RU", "x_Y"}));
    // Nothing is installed by loading alone.
    QCOMPARE(hello(), QStringLiteral("Hello"));
}

void tst_Application::setLanguage()
{
    Application::setLanguage(QStringLiteral("ru_RU"));
    QCOMPARE(Application::language(), QStringLiteral("ru_RU"));
    QCOMPARE(hello(), QStringLiteral("Привет"));

    // Switching removes the old catalogue before installing the new one.
    Application::setLanguage(QStringLiteral("x_Y"));
    QCOMPARE(Application::language(), QStringLiteral("x_Y"));
    QCOMPARE(hello(), QStringLiteral("Привет"));
    Application::setLanguage(QStringLiteral("ru_RU"));
}

void tst_Application::unknownLanguageKeepsLocale()
{
    Application::setLanguage(QStringLiteral("de_DE"));
    QCOMPARE(Application::language(), QStringLiteral("ru_RU"));
    QCOMPARE(hello(), QStringLiteral("Hello"));
    // Keys are exact: the case rule applies to file names only.
    Application::setLanguage(QStringLiteral("ru_ru"));
    QCOMPARE(hello(), QStringLiteral("Hello"));
    QCOMPARE(Application::language(), QStringLiteral("ru_RU"));
}

void tst_Application::laterFileReplacesKey()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    // Listed by name: "b_..." comes after "a_..." and wins the shared key.
    QVERIFY(copyCatalogue("hello_b", dir.path(), "b_RU_ru.qm"));
    QVERIFY(copyCatalogue("hello_a", dir.path(), "a_ru_ru.qm"));
    Application::loadTranslations(QDir(dir.path()));
    QCOMPARE(Application::availableLanguages().count(QStringLiteral("ru_RU")), 1);

    Application::setLanguage(QStringLiteral("ru_RU"));
    QCOMPARE(hello(), QStringLiteral("Здравствуйте"));
}

void tst_Application::reloadReplacesInstalledCatalogue()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QVERIFY(copyCatalogue("hello_a", dir.path(), "app_ru_ru.qm"));
    // The installed catalogue is replaced while in use: the new one must take
    // its place and the old one must not linger as installed or dangle.
    Application::loadTranslations(dir.path());
    QCOMPARE(hello(), QStringLiteral("Привет"));
    Application::setLanguage(QStringLiteral("x_Y"));
    QCOMPARE(hello(), QStringLiteral("Привет"));
    Application::setLanguage(QStringLiteral("none"));
    QCOMPARE(hello(), QStringLiteral("Hello"));
    QCOMPARE(Application::language(), QStringLiteral("x_Y"));
}

void tst_Application::readAllFiles()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString p = dir.path();
    QVERIFY(writeFile(p + "/b.css", "B{}\n"));
    QVERIFY(writeFile(p + "/a.css", "A{}\n"));
    QVERIFY(writeFile(p + "/c.txt", "C\n"));
    QVERIFY(writeFile(p + "/u.css", "QLabel { font-family: \"Шрифт\"; }\n"));
    QVERIFY(QDir(p).mkdir("d.css"));
    QVERIFY(writeFile(p + "/d.css/inner.css", "INNER\n"));

    const QString expected = QStringLiteral("A{}\nB{}\nQLabel { font-family: \"Шрифт\"; }\n");
    QCOMPARE(Application::readAllFiles(p, {"*.css"}), expected);
    QCOMPARE(Application::readAllFiles(p, {"*.css", "*.txt"}),
             QStringLiteral("A{}\nB{}\nC\nQLabel { font-family: \"Шрифт\"; }\n"));
    QCOMPARE(Application::readAllFiles(QString(), {"*.css"}), QString());
    QCOMPARE(Application::readAllFiles(p + "/missing", {"*.css"}), QString());
}

void tst_Application::loadCss()
{
    auto *app = qobject_cast<Application *>(QCoreApplication::instance());
    QVERIFY(app);
    const QString dataDir = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QVERIFY2(dataDir.startsWith(m_dataHome), qPrintable(dataDir));

    QTemporaryDir work;
    QVERIFY(work.isValid());
    const QString oldCurrent = QDir::currentPath();
    QVERIFY(QDir::setCurrent(work.path()));
    auto restore = qScopeGuard([&] { QDir::setCurrent(oldCurrent); });

    const QString untouched = QStringLiteral("QWidget { margin: 1px; }");
    app->setStyleSheet(untouched);
    if (!QDir(QStringLiteral(":/css")).exists()) {
        app->loadCss();
        QCOMPARE(app->styleSheet(), untouched);
    }

    // The working directory is tried when the data directory has no sheets.
    QVERIFY(QDir(work.path()).mkdir("css"));
    QVERIFY(writeFile(work.path() + "/css/2.css", "QPushButton { color: red; }"));
    QVERIFY(writeFile(work.path() + "/css/1.css", "QLabel { color: blue; }\n"));
    app->loadCss();
    QCOMPARE(app->styleSheet(),
             QStringLiteral("QLabel { color: blue; }\nQPushButton { color: red; }"));

    // The data directory comes first, even with no sheet in it.
    QVERIFY(QDir().mkpath(dataDir + "/css"));
    app->loadCss();
    QCOMPARE(app->styleSheet(), QString());
    QVERIFY(writeFile(dataDir + "/css/main.css", "QLineEdit { color: green; }"));
    app->loadCss();
    QCOMPARE(app->styleSheet(), QStringLiteral("QLineEdit { color: green; }"));
}

int main(int argc, char *argv[])
{
    // Keep the data directory of the application away from the real home.
    QTemporaryDir dataHome;
    if (!dataHome.isValid())
        return 1;
    qputenv("XDG_DATA_HOME", QFile::encodeName(dataHome.path()));

    DebugQt::instance(DebugQt::StartFlags, nullptr);
    Application app(argc, argv);
    tst_Application test(dataHome.path());
    QTEST_SET_MAIN_SOURCE_PATH
    const int result = QTest::qExec(&test, argc, argv);
    delete DebugQt::instance();
    return result;
}

#include "tst_application.moc"
