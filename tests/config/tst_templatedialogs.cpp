#include "app/guitestsupport.h"
#include "config/appsettings.h"
#include "config/deviceadddialog.h"
#include "config/devicetemplatecatalog.h"
#include "config/saveastemplatedialog.h"
#include "testsupport.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>

// The two dialogs between the user and the template catalogue.
class tst_TemplateDialogs : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void tableShowsCatalogueWithMarks();
    void doubleClickPicksOne();
    void doubleClickWithAnotherCheckedOnlyToggles();
    void ctrlDoubleClickBuildsSelection();
    void resetAllAndOkButton();
    void deleteOnlyForUserTemplates();
    void saveAsTemplateNameRules();

private:
    QTableWidget *table(DeviceAddDialog &dialog) const
    {
        return dialog.findChild<QTableWidget *>(QStringLiteral("tableWidget"));
    }
    void doubleClick(DeviceAddDialog &dialog, const QString &name);
    void setCtrl(DeviceAddDialog &dialog, bool held);

    std::unique_ptr<ScopedWorkDir> m_dir;
};

void tst_TemplateDialogs::initTestCase()
{
    WarningGuard::install();
}

void tst_TemplateDialogs::init()
{
    m_dir = std::make_unique<ScopedWorkDir>();
    // One user template beside the built-in ones.
    QVERIFY(writeFile(AppSettings::templates_dir() + QStringLiteral("/MyMeter.tpl"),
                      R"({"id": "Custom", "name": "MyMeter", "producer": "Plant", "comment": "mine",
                          "version": "1", "device": {"name": "MyMeter", "tags": []}})"));
    DeviceTemplateCatalog::instance()->loadTemplates(AppSettings::templates_dir());
}

void tst_TemplateDialogs::cleanup()
{
    MessageBox::setHook({});
    DeviceTemplateCatalog::release();
    AppSettings::release();
    m_dir.reset();
    QVERIFY(WarningGuard::check());
}

void tst_TemplateDialogs::doubleClick(DeviceAddDialog &dialog, const QString &name)
{
    QTableWidget *t = table(dialog);
    QTableWidgetItem *cell = t->item(dialog.rowOf(name), DeviceAddDialog::ColDescription);
    t->setCurrentItem(cell);
    emit t->itemDoubleClicked(cell);
}

void tst_TemplateDialogs::setCtrl(DeviceAddDialog &dialog, bool held)
{
    // As the platform sends them: the state before the key, which Qt turns
    // into the state after it for modifier keys.
    QKeyEvent event(held ? QEvent::KeyPress : QEvent::KeyRelease, Qt::Key_Control,
                    held ? Qt::NoModifier : Qt::ControlModifier);
    QCoreApplication::sendEvent(&dialog, &event);
}

void tst_TemplateDialogs::tableShowsCatalogueWithMarks()
{
    DeviceAddDialog dialog;
    QTableWidget *t = table(dialog);
    QCOMPARE(t->rowCount(), DeviceTemplateCatalog::instance()->templateNames().size());
    const int mine = dialog.rowOf(QStringLiteral("MyMeter"));
    QCOMPARE(t->item(mine, DeviceAddDialog::ColMark)->text(), QStringLiteral("U"));
    QCOMPARE(t->item(mine, DeviceAddDialog::ColTemplate)->text(), QStringLiteral("Custom"));
    QCOMPARE(t->item(mine, DeviceAddDialog::ColProducer)->text(), QStringLiteral("Plant"));
    QCOMPARE(t->item(dialog.rowOf(QStringLiteral("Zolt-21")), DeviceAddDialog::ColMark)->text(),
             QStringLiteral("L"));
    // Sorted by name, and nothing is editable.
    for (int row = 1; row < t->rowCount(); ++row)
        QVERIFY(t->item(row - 1, 1)->text() <= t->item(row, 1)->text());
    for (int column = 0; column < t->columnCount(); ++column)
        QVERIFY(!(t->item(mine, column)->flags() & Qt::ItemIsEditable));
}

void tst_TemplateDialogs::doubleClickPicksOne()
{
    DeviceAddDialog dialog;
    doubleClick(dialog, QStringLiteral("Marn14T"));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.userSelection(),
             QVariantMap({{QStringLiteral("Marn14T"), QStringLiteral("Marn-14")}}));
}

void tst_TemplateDialogs::doubleClickWithAnotherCheckedOnlyToggles()
{
    DeviceAddDialog dialog;
    table(dialog)->item(dialog.rowOf(QStringLiteral("Zolt-21")), 1)->setCheckState(Qt::Checked);
    doubleClick(dialog, QStringLiteral("Marn14T"));
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(dialog.checkedCount(), 2);
    // A second double click takes the row back out; one row is left, but the
    // clicked row is no longer checked, so the dialog stays.
    doubleClick(dialog, QStringLiteral("Marn14T"));
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(dialog.userSelection().keys(), QStringList(QStringLiteral("Zolt-21")));
}

void tst_TemplateDialogs::ctrlDoubleClickBuildsSelection()
{
    DeviceAddDialog dialog;
    setCtrl(dialog, true);
    doubleClick(dialog, QStringLiteral("Marn14T"));
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    doubleClick(dialog, QStringLiteral("MyMeter"));
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(dialog.userSelection(),
             QVariantMap({{QStringLiteral("Marn14T"), QStringLiteral("Marn-14")},
                          {QStringLiteral("MyMeter"), QStringLiteral("Custom")}}));
    setCtrl(dialog, false);
    doubleClick(dialog, QStringLiteral("MyMeter"));
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(dialog.checkedCount(), 1);
}

void tst_TemplateDialogs::resetAllAndOkButton()
{
    DeviceAddDialog dialog;
    auto *ok = dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    auto *reset = dialog.findChild<QPushButton *>(QStringLiteral("btnResetAll"));
    QVERIFY(!ok->isEnabled() && !reset->isEnabled());
    table(dialog)->item(dialog.rowOf(QStringLiteral("Zolt-21")), 1)->setCheckState(Qt::Checked);
    table(dialog)->item(dialog.rowOf(QStringLiteral("Zolt30")), 1)->setCheckState(Qt::Checked);
    QVERIFY(ok->isEnabled() && reset->isEnabled());
    reset->click();
    QCOMPARE(dialog.checkedCount(), 0);
    QVERIFY(!ok->isEnabled() && !reset->isEnabled());
}

void tst_TemplateDialogs::deleteOnlyForUserTemplates()
{
    BoxRecorder boxes;
    DeviceAddDialog dialog;
    auto actions = [&dialog](const QString &name) {
        std::unique_ptr<QMenu> menu(dialog.createContextMenu(dialog.rowOf(name)));
        QStringList texts;
        for (QAction *action : menu->actions())
            texts << action->text();
        return texts;
    };
    QCOMPARE(actions(QStringLiteral("Zolt-21")),
             QStringList(QStringLiteral("Refresh templates list")));
    QCOMPARE(actions(QStringLiteral("MyMeter")),
             QStringList({QStringLiteral("Refresh templates list"), QStringLiteral("Delete")}));

    const QString file = AppSettings::templates_dir() + QStringLiteral("/MyMeter.tpl");
    const int rows = table(dialog)->rowCount();
    table(dialog)->setCurrentCell(dialog.rowOf(QStringLiteral("MyMeter")), 1);
    boxes.answers << QMessageBox::Cancel;
    dialog.onRemoveRecord();
    QVERIFY(QFile::exists(file));
    boxes.answers << QMessageBox::Yes;
    dialog.onRemoveRecord();
    QCOMPARE(boxes.requests.last().title, QStringLiteral("Template deleting"));
    QVERIFY(!QFile::exists(file));
    QCOMPARE(table(dialog)->rowCount(), rows - 1);
    QVERIFY(DeviceTemplateCatalog::instance()->template_map(QStringLiteral("MyMeter")).isEmpty());
    dialog.onRefreshList();
    QCOMPARE(table(dialog)->rowCount(), rows - 1);
}

void tst_TemplateDialogs::saveAsTemplateNameRules()
{
    SaveAsTemplateDialog dialog;
    DeviceTemplateInfo info;
    info.name = QStringLiteral("tank");
    info.producer = QStringLiteral("Plant");
    info.comment = QStringLiteral("two\nlines");
    info.path = AppSettings::templates_dir();
    info.ext = QStringLiteral("tpl");
    dialog.setDeviceTemplateInfo(info);
    dialog.set_denied_names({QStringLiteral("Zolt-21.tpl"), QStringLiteral("MyMeter.tpl")});
    auto *ok = dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    auto *name = dialog.findChild<QLineEdit *>(QStringLiteral("le_id"));
    QVERIFY(ok->isEnabled());

    name->setText(QStringLiteral("Zolt-21"));
    QVERIFY(!ok->isEnabled());
    name->setText(QStringLiteral("Zolt-21a"));
    QVERIFY(ok->isEnabled());
    // Typing goes through the validator: a blank or a slash never gets in.
    name->clear();
    QTest::keyClicks(name, QStringLiteral("my tank/2"));
    QCOMPARE(name->text(), QStringLiteral("mytank2"));

    dialog.findChild<QCheckBox *>(QStringLiteral("chkCreateCustom"))->setChecked(true);
    const DeviceTemplateInfo out = dialog.deviceTemplateInfo();
    QCOMPARE(out.name, QStringLiteral("mytank2"));
    QCOMPARE(out.producer, info.producer);
    QCOMPARE(out.comment, info.comment);
    QCOMPARE(out.path, info.path);
    QVERIFY(out.custom);
    QCOMPARE(dialog.findChild<QLineEdit *>(QStringLiteral("txtTemplatePath"))->text(), info.path);
}

QTEST_MAIN(tst_TemplateDialogs)
#include "tst_templatedialogs.moc"
