#include "config/appsettings.h"
#include "config/devicetemplatecatalog.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"
#include "testsupport.h"

#include <QDirIterator>
#include <QtTest>

// Every malformed configuration and template loads what it can, or nothing,
// and never crashes; the sanitizer build runs the same files.
class tst_BadInput : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();

    void configurations_data();
    void configurations();
    void templates();
    void veryLargeAndDeepFiles();
    void wrongTypesKeepWhatIsValid();

private:
    static void loadConfiguration(const QString &path, Server &server);
    QString m_badDir;
};

void tst_BadInput::initTestCase()
{
    m_badDir = testDataDir() + QStringLiteral("/bad");
    QVERIFY2(QDir(m_badDir).exists(), qPrintable(m_badDir));
}

void tst_BadInput::cleanup()
{
    DeviceTemplateCatalog::release();
    AppSettings::release();
}

void tst_BadInput::loadConfiguration(const QString &path, Server &server)
{
    AppSettings *settings = AppSettings::instance();
    QVERIFY(settings->loadConfig(path));
    server.load(settings->serverMap());
    // Whatever was loaded must save again and survive a second round.
    const QVariantMap saved = server.save();
    Server again;
    again.load(saved);
    QCOMPARE(again.save(), saved);
}

void tst_BadInput::configurations_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &name : QDir(m_badDir).entryList({"*.cfg"}, QDir::Files, QDir::Name))
        QTest::newRow(qPrintable(name)) << name;
}

void tst_BadInput::configurations()
{
    QFETCH(QString, file);
    ScopedWorkDir work;
    Server server;
    server.addPort(QStringLiteral("before"));
    loadConfiguration(m_badDir + QLatin1Char('/') + file, server);
    // A file that gives no ports leaves the tree as it stood.
    if (AppSettings::instance()->serverMap().value("ports").toList().isEmpty())
        QCOMPARE(server.portNames(), QStringList {"before"});
}

void tst_BadInput::templates()
{
    ScopedWorkDir work;
    const QString userDir = AppSettings::templates_dir();
    for (const QString &name : QDir(m_badDir).entryList({"*.tpl"}, QDir::Files))
        QVERIFY(QFile::copy(m_badDir + QLatin1Char('/') + name, userDir + QLatin1Char('/') + name));
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    catalog->loadTemplates(userDir);
    QVERIFY(catalog->templateNames().contains(QStringLiteral("Custom")));
    QVERIFY(!catalog->templateNames().contains(QStringLiteral("Broken")));
    QVERIFY(!catalog->templateNames().contains(QStringLiteral("NoName")));

    // Devices made from whatever did load never crash.
    Server server;
    Port *port = server.addPort(QStringLiteral("p"));
    for (const QString &name : catalog->templateNames()) {
        Device *device = port->addDevice(QStringLiteral("d"));
        device->load(catalog->template_map(name).value("device").toMap());
    }
    QVERIFY(port->device(QStringLiteral("d")));
    // A template whose name is not text is refused like one without a name.
    QVERIFY(catalog->templateNameByFile(QStringLiteral("template_odd_types.tpl")).isEmpty());
    const QVariantMap tagsAsMap = catalog->template_map(QStringLiteral("MapTags"));
    QVERIFY(!tagsAsMap.isEmpty());
    Device *fromMap = port->addDevice(QStringLiteral("map"));
    QVERIFY(fromMap->load(tagsAsMap.value("device").toMap()));
    QVERIFY(fromMap->tags().isEmpty());
}

void tst_BadInput::veryLargeAndDeepFiles()
{
    ScopedWorkDir work;
    // Nesting far deeper than any parser should follow.
    const QString deep = work.filePath(QStringLiteral("deep.cfg"));
    QVERIFY(writeFile(deep, "{\"srv\":" + QByteArray(100000, '[') + QByteArray(100000, ']') + "}"));
    Server server;
    loadConfiguration(deep, server);
    QCOMPARE(server.portCount(), 0);

    // A long text value and a long list of nameless tags.
    QByteArray big = "{\"srv\": {\"ports\": [{\"name\": \"P\", \"devices\": [{\"name\": \"D\", "
                     "\"comment\": \"";
    big += QByteArray(8 * 1024 * 1024, 'x');
    big += "\", \"tags\": [";
    for (int i = 0; i < 20000; ++i)
        big += i ? ",{}" : "{}";
    big += "]}]}]}}";
    const QString large = work.filePath(QStringLiteral("large.cfg"));
    QVERIFY(writeFile(large, big));
    Server bigServer;
    loadConfiguration(large, bigServer);
    QCOMPARE(bigServer.deviceCount(), 1);
    QCOMPARE(bigServer.tagCount(), 0);
}

void tst_BadInput::wrongTypesKeepWhatIsValid()
{
    ScopedWorkDir work;
    Server server;
    loadConfiguration(m_badDir + QStringLiteral("/config_wrong_types.cfg"), server);
    Port *p1 = server.portByName(QStringLiteral("P1"));
    QVERIFY(p1);
    QCOMPARE(p1->baudrate(), 115200);
    QCOMPARE(p1->parity(), QLatin1Char('N'));
    QCOMPARE(p1->stopBits(), 2);
    QCOMPARE(p1->dataBits(), 8);
    QCOMPARE(p1->deviceIds(), QStringList());
    Port *p2 = server.portByName(QStringLiteral("P2"));
    QVERIFY(p2);
    QCOMPARE(p2->deviceIds(), (QStringList {"D1", "D2"}));
    Device *d2 = p2->device(QStringLiteral("D2"));
    // A number where a name belongs reads as its text.
    QCOMPARE(d2->tagIds(), (QStringList {"42", "t1", "t2", "t3", "t4", "t5"}));
    QVERIFY(d2->tag(QStringLiteral("t2"))->isValueNaN()
            || d2->tag(QStringLiteral("t2"))->value().toFloat() == 0.0f);
    Tag *t5 = d2->tag(QStringLiteral("t5"));
    QVERIFY(t5->extractBitFrom() <= 15);
    QVERIFY(t5->extractBitTo() <= 16);
    QCOMPARE(AppSettings::instance()->language(), QStringLiteral("5"));
}

QTEST_GUILESS_MAIN(tst_BadInput)
#include "tst_badinput.moc"
