#include "config/appsettings.h"
#include "config/devicetemplatecatalog.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"
#include "testsupport.h"

#include <QtTest>

// Every built-in template, loaded through the catalogue as the program does,
// checked for what the pages, the scan and the exchange rely on.
class tst_BuiltinTemplates : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void catalogueSize();
    void eachTemplate_data();
    void eachTemplate();
    void extendedByteOrderOnce();

private:
    struct Expected
    {
        const char *file;
        const char *id;
        const char *name;
        const char *templateKey;
        const char *modbusId; // nullptr: no key
        int tags;
        int address;
        const char *version;
    };
    static const QList<Expected> &table();
    ScopedWorkDir *m_work = nullptr;
};

const QList<tst_BuiltinTemplates::Expected> &tst_BuiltinTemplates::table()
{
    static const QList<Expected> rows = {
        {"Marn-11RT", "Marn-11RT", "Marn-11RT", "Marn-11RT", "Marn-11RT", 10, 1, "20210812120000"},
        {"Marn-14", "Marn-14", "Marn14T", "Marn-14", "Marn14T", 8, 3, "20191115153000"},
        {"Marn-20", "Marn-20", "Marn-20", "Marn-20", nullptr, 26, 3, "20180815153000"},
        {"Marn-20v2", "Marn-20", "Marn-20v2", "Marn-20v2", "Marn-20", 24, 3, "20240212140000"},
        {"Marn-32", "Marn-32", "Marn-32", "Marn-32", "Marn-32", 58, 1, "20230310110000"},
        {"Marn-32M", "Marn-32M", "Marn-32M", "Marn-32M", nullptr, 142, 2, "20180828170000"},
        {"Marn-32MK", "Marn-32MK", "Marn-32MK", "Marn-32MK", nullptr, 142, 2, "20180820090000"},
        {"Marn-32MKv2", "Marn-32MK", "Marn-32MKv2", "Marn-32MKv2", "Marn-32MK", 152, 2,
         "20190919140000"},
        {"Marn-32Mv2", "Marn-32M", "Marn-32Mv2", "Marn-32Mv2", "Marn-32M", 120, 2,
         "20230727113000"},
        {"Marn-40", "Marn-40", "Marn-40", "Marn-40", nullptr, 31, 3, "20181010090000"},
        {"Marn-40v2", "Marn-40", "Marn-40v2", "Marn-40v2", "Marn-40", 31, 3, "20240213140000"},
        {"Hevi-7", "Hevi-7", "Hevi-7", "Hevi-7", "Hevi-7", 159, 2, "20180924120000"},
        {"Tesk-6", "Tesk-6", "Tesk-6", "Tesk-6", "Tesk-6", 100, 2, "20180924150000"},
        {"Tesk-6v2", "Tesk-6", "Tesk-6v2", "Tesk-6v2", "Tesk-6", 56, 2, "20200803150000"},
        {"Tesk-6v3", "Tesk-6", "Tesk-6v3", "Tesk-6v3", "Tesk-6", 64, 2, "20221005140000"},
        {"Brod-5", "Brod-5", "Brod-5", "Brod-5", nullptr, 121, 2, "20210412140000"},
        {"Brod-5v2", "Brod-5", "Brod-5v2", "Brod-5v2", nullptr, 101, 2, "20230927100000"},
        {"Quil-61", "Quil-61", "Quil-61", "Quil-61", "Quil-61", 102, 2, "20180919150000"},
        {"Quil-62", "Quil-62", "Quil-62", "Quil-62", "Quil-61", 153, 2, "20180914151500"},
        {"Quil-72", "Quil-72", "Quil-72", "Quil-72", "Quil-72", 100, 2, "20180910110000"},
        {"Quil-72v2", "Quil-72", "Quil-72v2", "Quil-72v2", "Quil-72", 63, 2, "20240111140000"},
        {"Quil-82", "Quil-82", "Quil-82", "Quil-82", "Quil-82", 60, 2, "20210729103000"},
        {"Quil-82v2", "Quil-82", "Quil-82v2", "Quil-82v2", "Quil-82v2", 66, 2, "20230202144500"},
        {"Rumo-5", "Rumo-5", "Rumo5", "Rumo-5", "Rumo5", 17, 1, "20180815110000"},
        {"Chemins-Oxygen", "Chemins-Oxygen", "Chemins-Oxygen", "Chemins-Oxygen", "#F3#2002h", 15, 1,
         "20231002100000"},
        {"Chemins-Turbidity", "Chemins-Turbidity", "Chemins-Turbidity", "Chemins-Turbidity",
         "#F3#2002h", 11, 1, "20231002100000"},
        {"Chunye-CalciumIon", "Chunye-CalciumIon", "Chunye-CalciumIon", "Chunye-CalciumIon",
         "#F3#109#2", 28, 1, "20230110160000"},
        {"Chunye-Chlor", "Chunye-Chlor", "Chunye-Chlor", "Chunye-Chlor", "#F3#109#2", 16, 1,
         "20220728080000"},
        {"Chunye-Chlor420", "Chunye-Chlor420", "Chunye-Chlor420", "Chunye-Chlor420", "#F3#109#3",
         33, 1, "20220729080000"},
        {"Chunye-ChlorDioxid", "Chunye-ChlorDioxid", "Chunye-ChlorDioxid", "Chunye-ChlorDioxid",
         "#F3#109#2", 17, 1, "20230116100000"},
        {"Chunye-ChlorT", "Chunye-Chlor+T", "Chunye-Chlor+T", "Chunye-Chlor+T", "#F3#109#2", 17, 1,
         "20221004120000"},
        {"Chunye-Ozone", "Chunye-Ozone", "Chunye-Ozone", "Chunye-Ozone", "#F3#109#2", 17, 1,
         "20230116100000"},
        {"Chunye-TURB", "Chunye-Turb", "Chunye-Turb", "Chunye-Turb", "#F3#100#8", 35, 1,
         "20220721120000"},
        {"DDG_GYW", "DDG-GYW", "DDG-GYW", "DDG-GYW", "#F3#2000#4", 12, 1, "20220721120000"},
        {"Sifo-2H", "Sifo-2H", "Sifo-2H", "Sifo-2H", nullptr, 25, 6, "20180814140000"},
        {"Nengshi-CON", "Nengshi-CON", "Nengshi-CON", "Nengshi-CON", "Nengshi", 28, 1,
         "20210305120000"},
        {"Nengshi-pH-ORP", "Nengshi-pH-ORP", "Nengshi-pH-ORP", "Nengshi-pH-ORP", "Nengshi", 25, 1,
         "20201006110000"},
        {"Nengshi-pH", "Nengshi-pH", "Nengshi-pH", "Nengshi-pH", "Nengshi", 18, 1,
         "20200923153000"},
        {"Wemb-2H", "Wemb-2H", "Wemb-2H", "Wemb-2H", nullptr, 19, 1, "20180815100000"},
        {"Fenn-3", "Fenn-3", "Fenn-3", "Fenn-3", nullptr, 39, 1, "20180801010101"},
        {"Fenn-3v2", "Fenn-3", "Fenn-3v2", "Fenn-3v2", "Fenn-3", 37, 1, "20221024090000"},
        {"Fenn-2R", "Fenn-2R", "Fenn-2R", "Fenn-2R", "Fenn-2R", 58, 1, "20230309160000"},
        {"Fenn-9S", "Fenn-9S", "Fenn-9S", "Fenn-9S", nullptr, 199, 7, "20180808000000"},
        {"Fenn2R", "Fenn2R", "Fenn2R", "Fenn2R", "Fenn2R", 38, 7, "20180927090000"},
        {"Dorv-4", "Dorv-4", "Dorv-4", "Dorv-4", nullptr, 52, 1, "20180801100000"},
        {"Dorv-4v2", "Dorv-4", "Dorv-4v2", "Dorv-4v2", "Dorv-4", 34, 1, "20230125100000"},
        {"Lomt-7(Fenn-3)", "Lomt-7", "Lomt-7", "Lomt-7", nullptr, 132, 1, "20180801150000"},
        {"Lomt-7(Fenn-3v2)", "Lomt-7", "Lomt-7v2", "Lomt-7v2", "Lomt-7", 91, 1, "20231212120000"},
        {"VisiTraceDO", "VisiTraceDO", "VisiTraceDO", "VisiTraceDO", "LDOUM", 69, 1,
         "20230424170000"},
        {"Y510-B", "Y510-B", "Y510-B", "Y510-B", "Y510-B", 16, 1, "20220516110000"},
        {"Y610-B", "Y610-B", "Y610-B", "Y610-B", "Y610-B", 6, 1, "20220523110000"},
        {"custom", "Custom", "Custom", "Custom", "#F3#0", 23, 1, "20210817120000"},
        {"Zolt-21", "Zolt-21", "Zolt-21", "Zolt-21", nullptr, 35, 2, "20180809160000"},
        {"Zolt-21v2", "Zolt-21", "Zolt-21v2", "Zolt-21v2", "Zolt-21", 32, 2, "20220322100000"},
        {"Zolt-30", "Zolt-30", "Zolt30", "Zolt-30", "Zolt30", 26, 7, "20180927150000"},
        {"Zolt-30v1", "Zolt-30", "Zolt-30v1", "Zolt-30v1", "Zolt-30", 92, 2, "20181127130000"},
        {"Zolt-30v2", "Zolt-30", "Zolt-30v2", "Zolt-30v2", "Zolt-30", 63, 2, "2021053190000"},
        {"Zolt-31", "Zolt-31", "Zolt-31", "Zolt-31", "Zolt-31", 51, 2, "20210601140000"},
        {"Zolt-42", "Zolt-42", "Zolt-42", "Zolt-42", "Zolt-42", 58, 1, "20230310140000"},
        {"Zolt-42M", "Zolt-42M", "Zolt-42M", "Zolt-42M", nullptr, 140, 2, "20180511120000"},
        {"Zolt-42Mv2", "Zolt-42M", "Zolt-42Mv2", "Zolt-42Mv2", "Zolt-42M", 139, 2,
         "20180828120000"},
        {"Zolt-51", "Zolt-51", "Zolt51", "Zolt-51", "Zolt51", 26, 7, "20180927150000"},
        {"Zolt-51v1", "Zolt-51", "Zolt-51v1", "Zolt-51v1", "Zolt-51", 86, 2, "20180427170000"},
        {"Zolt-51v2", "Zolt-51", "Zolt-51v2", "Zolt-51v2", "Zolt-51", 55, 2, "20211018090000"},
        {"pH-Arc-Sensors", "pH-Arc-Sensors", "pH-Arc-Sensors", "pH-Arc-Sensors", "EPHUM0", 69, 1,
         "20190304170000"},
    };
    return rows;
}

void tst_BuiltinTemplates::initTestCase()
{
    m_work = new ScopedWorkDir;
    DeviceTemplateCatalog::instance()->loadTemplates(AppSettings::templates_dir());
}

void tst_BuiltinTemplates::cleanupTestCase()
{
    DeviceTemplateCatalog::release();
    delete m_work;
}

void tst_BuiltinTemplates::catalogueSize()
{
    QCOMPARE(table().size(), 65);
    QCOMPARE(DeviceTemplateCatalog::instance()->templateNames().size(), 65);
    int total = 0;
    for (const Expected &row : table())
        total += row.tags;
    QCOMPARE(total, 3888);
}

void tst_BuiltinTemplates::eachTemplate_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < table().size(); ++i)
        QTest::newRow(table().at(i).file) << i;
}

static bool isTwoNumbers(const QVariant &v)
{
    const QVariantList list = v.toList();
    if (list.size() != 2)
        return false;
    for (const QVariant &item : list) {
        const int type = item.typeId();
        if (type != QMetaType::Double && type != QMetaType::LongLong && type != QMetaType::Int)
            return false;
    }
    return true;
}

// Registers [first, last] that a tag occupies on its read or write side.
static QPair<uint, uint> registerSpan(const Tag *tag)
{
    const int bytes
        = tag->deviceType() == Tag::dtByteArray ? tag->arraySize() : tag->deviceTypeLength();
    const uint count = uint(qMax(1, (bytes + 1) / 2));
    return {tag->address(), tag->address() + count - 1};
}

void tst_BuiltinTemplates::eachTemplate()
{
    QFETCH(int, row);
    const Expected &expected = table().at(row);
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    const QString name
        = catalog->templateNameByFile(QLatin1String(expected.file) + QStringLiteral(".tpl"));
    QCOMPARE(name, QLatin1String(expected.name));
    const QVariantMap map = catalog->template_map(name);
    for (const char *key : {"id", "name", "producer", "comment", "version", "device"})
        QVERIFY2(map.contains(QLatin1String(key)), key);
    QCOMPARE(map.value("id").toString(), QLatin1String(expected.id));
    QCOMPARE(map.value("version").toString(), QLatin1String(expected.version));
    const QVariantMap deviceMap = map.value("device").toMap();
    QCOMPARE(deviceMap.value("template").toString(), QLatin1String(expected.templateKey));
    QCOMPARE(deviceMap.value("address").toInt(), expected.address);
    QCOMPARE(deviceMap.value("protocol").toString(), QStringLiteral("MODBUS_RTU"));
    if (expected.modbusId)
        QCOMPARE(deviceMap.value("modbus_id").toString(), QLatin1String(expected.modbusId));
    else
        QVERIFY(!deviceMap.contains("modbus_id"));

    const QVariantList tagMaps = deviceMap.value("tags").toList();
    QCOMPARE(tagMaps.size(), expected.tags);
    QSet<QString> names;
    for (const QVariant &entry : tagMaps) {
        const QVariantMap tag = entry.toMap();
        const QString tagName = tag.value("name").toString();
        QVERIFY2(!names.contains(tagName), qPrintable(tagName));
        names.insert(tagName);
        for (const char *key : {"access", "address", "comment", "device_type", "enabled", "name",
                                "read_func", "write_func"})
            QVERIFY2(tag.contains(QLatin1String(key)), qPrintable(tagName + ": " + key));
        const QString deviceType = tag.value("device_type").toString();
        QVERIFY2(Tag::deviceTypeToString(Tag::deviceTypeFromString(deviceType)) == deviceType,
                 qPrintable(tagName + ": " + deviceType));
        if (tag.contains("server_type")) {
            const QString serverType = tag.value("server_type").toString();
            QVERIFY2(Tag::serverTypeToString(Tag::serverTypeFromString(serverType)) == serverType,
                     qPrintable(tagName + ": " + serverType));
        }
        const QString access = tag.value("access").toString();
        QVERIFY2(Tag::accessTypeToString(Tag::accessTypeFromString(access)) == access,
                 qPrintable(tagName + ": " + access));
        QVERIFY2(QList<int>({0, 1, 2, 3, 4}).contains(tag.value("read_func").toInt()),
                 qPrintable(tagName));
        QVERIFY2(QList<int>({0, 4, 5, 6, 15, 16}).contains(tag.value("write_func").toInt()),
                 qPrintable(tagName));
        if (tag.contains("limits") && !tag.value("limits").toList().isEmpty()
            && tag.value("limits").toList().size() != 3)
            QVERIFY2(isTwoNumbers(tag.value("limits")), qPrintable(tagName));
    }

    // Loaded as a device: no two tags on one register unless they share a
    // block or split a register into bit fields.
    Server server;
    Device *device = server.addPort(QStringLiteral("p"))->addDevice(QStringLiteral("d"));
    QVERIFY(device->load(deviceMap));
    QCOMPARE(device->tags().size(), expected.tags);
    const QList<Tag *> tags = device->tags();
    for (int i = 0; i < tags.size(); ++i) {
        for (int j = i + 1; j < tags.size(); ++j) {
            Tag *a = tags.at(i);
            Tag *b = tags.at(j);
            // Disabled placeholders (the generic template's channels) may share a register.
            if (a->readFunc() == 0 || b->readFunc() == 0 || !a->enabled() || !b->enabled())
                continue;
            const bool bitSpace = [](int f) { return f == 1 || f == 2; }(a->readFunc());
            if (bitSpace != (b->readFunc() == 1 || b->readFunc() == 2))
                continue;
            if (a->readFunc() != b->readFunc() && (a->readFunc() == 4 || b->readFunc() == 4))
                continue; // input registers and holding registers are separate spaces
            const auto sa = registerSpan(a);
            const auto sb = registerSpan(b);
            if (sa.second < sb.first || sb.second < sa.first)
                continue;
            const bool grouped = a->tagType() == Tag::ttSeparate || b->tagType() == Tag::ttSeparate;
            const bool bitFields = (a->useBitExtraction() || a->useBitExtractionReadOnly())
                || (b->useBitExtraction() || b->useBitExtractionReadOnly());
            QVERIFY2(grouped || bitFields,
                     qPrintable(QStringLiteral("%1 and %2 overlap").arg(a->name(), b->name())));
        }
    }
    // Instruments that are configured over the line carry their network tags.
    if (QLatin1String(expected.file) != QLatin1String("Y610-B"))
        QVERIFY2(device->hasChildName(QStringLiteral("address")), "address tag");
}

void tst_BuiltinTemplates::extendedByteOrderOnce()
{
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    int count = 0;
    for (const QString &name : catalog->templateNames()) {
        const QVariantList tags
            = catalog->template_map(name).value("device").toMap().value("tags").toList();
        for (const QVariant &tag : tags) {
            if (tag.toMap().value("byteorder").toString() == QLatin1String("1032547698!1032"))
                ++count;
        }
    }
    QCOMPARE(count, 1);
}

QTEST_GUILESS_MAIN(tst_BuiltinTemplates)
#include "tst_builtintemplates.moc"
