#include "config/appsettings.h"
#include "config/devicetemplatecatalog.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"
#include "testsupport.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QtTest>

// Built-in and user templates: shadowing, invalid and duplicate files, saving a
// device as a template, and making a device from one.
class tst_DeviceTemplateCatalog : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();

    void customTemplateAsShipped();
    void userFileShadowsBuiltIn();
    void duplicateNameIsRefused();
    void fileWithoutIdIsInvalid();
    void saveAsTemplateRoundTrip();
    void saveAsCustomTemplate();
    void unknownNameGivesEmptyMap();
};

static void writeTemplate(const QString &path, const QVariantMap &map)
{
    QVERIFY(writeFile(path, QJsonDocument(QJsonObject::fromVariantMap(map)).toJson()));
}

void tst_DeviceTemplateCatalog::cleanup()
{
    DeviceTemplateCatalog::release();
    AppSettings::release();
}

void tst_DeviceTemplateCatalog::customTemplateAsShipped()
{
    ScopedWorkDir work;
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    QSignalSpy changed(catalog, &DeviceTemplateCatalog::changed);
    catalog->loadTemplates(AppSettings::templates_dir());
    QCOMPARE(changed.count(), 1);
    QVERIFY(catalog->embedded_exists(QStringLiteral("custom")));
    const QVariantMap custom = catalog->template_map(QStringLiteral("Custom"));
    QCOMPARE(custom.value("id").toString(), QStringLiteral("Custom"));
    QCOMPARE(custom.value("comment").toString(), QStringLiteral("Шаблон для настройки"));
    QCOMPARE(custom.value("version").toString(), QStringLiteral("20210817120000"));
    QCOMPARE(catalog->templateNameByFile(QStringLiteral("custom.tpl")), QStringLiteral("Custom"));

    // A device made from it.
    Server server;
    Device *device = server.addPort(QStringLiteral("p"))->addDevice(QStringLiteral("d"));
    QVERIFY(device->load(custom.value("device").toMap()));
    QCOMPARE(device->name(), QStringLiteral("Custom_device")); // blanks are not kept in names
    QCOMPARE(device->deviceModbusID(), QStringLiteral("#F3#0"));
    QCOMPARE(device->deviceTemplateName(), QStringLiteral("Custom"));
    QCOMPARE(device->tags().size(), 23);
    Tag *baud = device->tag(QStringLiteral("baudrate"));
    QCOMPARE(baud->address(), 0u);
    QCOMPARE(baud->valueFromValues(QStringLiteral("7")), QStringLiteral("115200 бит/с"));
    QCOMPARE(device->tag(QStringLiteral("parity"))->valueFromValues(QStringLiteral("2")),
             QStringLiteral("по четности"));
    QCOMPARE(device->tag(QStringLiteral("address"))->serverType(), int(Tag::stInt16));
    QCOMPARE(device->tag(QStringLiteral("register_10"))->address(), 0x19u);
    QVERIFY(!device->tag(QStringLiteral("protocol"))->enabled());
    Tag *ch8 = device->tag(QStringLiteral("ch_param_8"));
    QVERIFY(ch8->isChannel());
    QCOMPARE(ch8->configGroupName(), QStringLiteral("ИП 8"));
    QCOMPARE(ch8->address(), 0xFFFu);
    QCOMPARE(device->ChannelNames().size(), 8);
}

void tst_DeviceTemplateCatalog::userFileShadowsBuiltIn()
{
    ScopedWorkDir work;
    const QString userDir = AppSettings::templates_dir();
    writeTemplate(
        userDir + "/custom.tpl",
        {{"id", "Custom"}, {"name", "Custom"}, {"comment", "мой"}, {"device", QVariantMap()}});
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    catalog->loadTemplates(userDir);
    QCOMPARE(catalog->template_map(QStringLiteral("Custom")).value("comment").toString(),
             QStringLiteral("мой"));
    QCOMPARE(catalog->templateFile(QStringLiteral("Custom")),
             QFileInfo(userDir + "/custom.tpl").absoluteFilePath());
    // Loaded once, not twice.
    QCOMPARE(catalog->templateNames().count(QStringLiteral("Custom")), 1);
}

void tst_DeviceTemplateCatalog::duplicateNameIsRefused()
{
    ScopedWorkDir work;
    const QString userDir = AppSettings::templates_dir();
    writeTemplate(userDir + "/another.tpl",
                  {{"id", "X"}, {"name", "Custom"}, {"comment", "clash"}});
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    QTest::ignoreMessage(
        QtDebugMsg,
        QRegularExpression(QStringLiteral("catalog already contains template 'Custom'")));
    catalog->loadTemplates(userDir);
    QCOMPARE(catalog->template_map(QStringLiteral("Custom")).value("comment").toString(),
             QStringLiteral("Шаблон для настройки"));
    QVERIFY(catalog->templateNameByFile(QStringLiteral("another.tpl")).isEmpty());
}

void tst_DeviceTemplateCatalog::fileWithoutIdIsInvalid()
{
    ScopedWorkDir work;
    const QString userDir = AppSettings::templates_dir();
    writeTemplate(userDir + "/noid.tpl",
                  {{"name", "NoId"}, {"device", QVariantMap {{"name", "x"}}}});
    writeTemplate(userDir + "/good.tpl", {{"id", "Good"}, {"name", "Good"}});
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression(QStringLiteral("invalid template '.*noid.tpl'")));
    catalog->loadTemplates(userDir);
    QVERIFY(!catalog->templateNames().contains(QStringLiteral("NoId")));
    QVERIFY(catalog->templateNames().contains(QStringLiteral("Good")));
    catalog->removeTemplateData(QStringLiteral("Good"));
    QVERIFY(!catalog->templateNames().contains(QStringLiteral("Good")));
    QVERIFY(catalog->templateNameByFile(QStringLiteral("good.tpl")).isEmpty());
}

void tst_DeviceTemplateCatalog::saveAsTemplateRoundTrip()
{
    ScopedWorkDir work;
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    catalog->loadTemplates(AppSettings::templates_dir());
    Server server;
    Device *device = server.addPort(QStringLiteral("p"))->addDevice(QStringLiteral("d"));
    device->load(catalog->template_map(QStringLiteral("Custom")).value("device").toMap());
    device->tag(QStringLiteral("register_1"))->setAddressText(QStringLiteral("200h"));
    device->tag(QStringLiteral("register_1"))->setValue(77);

    DeviceTemplateInfo info;
    info.name = QStringLiteral("My pump");
    info.producer = QStringLiteral("Plant");
    info.comment = QStringLiteral("насос");
    info.ext = AppSettings::template_ext();
    QVERIFY(!catalog->exists(info));
    QVERIFY(catalog->saveAsTemplate(device, info));
    QVERIFY(catalog->exists(info));

    const QVariantMap saved = catalog->template_map(QStringLiteral("My pump"));
    QCOMPARE(saved.value("id").toString(), QStringLiteral("Custom"));
    QCOMPARE(saved.value("producer").toString(), QStringLiteral("Plant"));
    QCOMPARE(saved.value("version").toString().size(), 14);
    const QVariantMap deviceMap = saved.value("device").toMap();
    QCOMPARE(deviceMap.value("name").toString(), QStringLiteral("My pump"));

    // Present values become the defaults of new copies.
    Device *copy = server.portByName(QStringLiteral("p"))->addDevice(QStringLiteral("copy"));
    copy->load(deviceMap);
    QCOMPARE(copy->tag(QStringLiteral("register_1"))->address(), 0x200u);
    QCOMPARE(copy->tag(QStringLiteral("register_1"))->value().toInt(), 77);
}

void tst_DeviceTemplateCatalog::saveAsCustomTemplate()
{
    ScopedWorkDir work;
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    Server server;
    Device *device = server.addPort(QStringLiteral("p"))->addDevice(QStringLiteral("d"));
    device->setDeviceTemplateName(QStringLiteral("Zolt-21"));
    DeviceTemplateInfo info;
    info.name = QStringLiteral("generic");
    info.custom = true;
    QVERIFY(catalog->saveAsTemplate(device, info));
    const QVariantMap saved = catalog->template_map(QStringLiteral("generic"));
    QCOMPARE(saved.value("id").toString(), QStringLiteral("Custom"));
    QCOMPARE(saved.value("device").toMap().value("template").toString(), QStringLiteral("Custom"));
}

void tst_DeviceTemplateCatalog::unknownNameGivesEmptyMap()
{
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    QVERIFY(catalog->template_map(QStringLiteral("nope")).isEmpty());
    // The generic fallback file is not among the built-in ones.
    QVERIFY(!catalog->embedded_exists(QStringLiteral("modbus_device")));
}

QTEST_GUILESS_MAIN(tst_DeviceTemplateCatalog)
#include "tst_devicetemplatecatalog.moc"
