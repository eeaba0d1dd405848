#include "app/guitestsupport.h"
#include "app/mainwindow.h"
#include "app/settingsdialog.h"
#include "config/appsettings.h"
#include "config/devicetemplatecatalog.h"
#include "testsupport.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

// The preferences dialog edits a copy; what it gives back is what the main
// window applies.
class tst_SettingsDialog : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void roundTrip();
    void changesAndCssWarning();
    void cssDisablesFont();
    void mainWindowAppliesLogMask();

private:
    std::unique_ptr<ScopedWorkDir> m_dir;
};

void tst_SettingsDialog::initTestCase()
{
    WarningGuard::install();
}

void tst_SettingsDialog::init()
{
    m_dir = std::make_unique<ScopedWorkDir>();
}

void tst_SettingsDialog::cleanup()
{
    MessageBox::setHook({});
    AppSettings::release();
    m_dir.reset();
    QVERIFY(WarningGuard::check());
}

static AppSettings sample()
{
    AppSettings s = *AppSettings::instance();
    s.setLogFlags({QStringLiteral("ERR"), QStringLiteral("INFO")});
    s.setInsertComments(true);
    s.setApplyCss(false);
    s.setAutosaveDefault(true);
    QFont font(QStringLiteral("DejaVu Sans"), 11);
    font.setBold(true);
    s.setFont(font);
    s.setLanguage(QStringLiteral("en_US"));
    s.setCurrentItem(QStringLiteral("p d"));
    return s;
}

void tst_SettingsDialog::roundTrip()
{
    BoxRecorder boxes;
    SettingsDialog dialog;
    const AppSettings in = sample();
    dialog.setSettings(in);
    QVERIFY(dialog.findChild<QCheckBox *>(QStringLiteral("b_dbg_err"))->isChecked());
    QVERIFY(!dialog.findChild<QCheckBox *>(QStringLiteral("b_dbg_warn"))->isChecked());
    QVERIFY(dialog.findChild<QCheckBox *>(QStringLiteral("b_dbg_info"))->isChecked());
    QCOMPARE(dialog.fontText(), QStringLiteral("DejaVu Sans 11pt bold"));
    dialog.accept();
    const AppSettings out = dialog.settings();
    QCOMPARE(out.logFlags(), in.logFlags());
    QCOMPARE(out.isInsertComments(), true);
    QCOMPARE(out.isApplyCss(), false);
    QCOMPARE(out.isAutosaveDefault(), true);
    QCOMPARE(out.font(), in.font());
    // What the dialog doesn't show passes through untouched.
    QCOMPARE(out.language(), in.language());
    QCOMPARE(out.currentItem(), in.currentItem());
    QVERIFY(boxes.requests.isEmpty());
}

void tst_SettingsDialog::changesAndCssWarning()
{
    BoxRecorder boxes;
    SettingsDialog dialog;
    dialog.setSettings(sample());
    for (const char *name : {"b_dbg_err", "b_dbg_warn", "b_dbg_info"})
        dialog.findChild<QCheckBox *>(QLatin1String(name))->setChecked(true);
    dialog.findChild<QCheckBox *>(QStringLiteral("b_dbg_info"))->setChecked(false);
    dialog.findChild<QCheckBox *>(QStringLiteral("chkAddComments"))->setChecked(false);
    dialog.findChild<QCheckBox *>(QStringLiteral("chkApplyCss"))->setChecked(true);
    QFont italic(QStringLiteral("DejaVu Serif"), 9);
    italic.setItalic(true);
    dialog.onFontSelected(italic);
    QCOMPARE(dialog.fontText(), QStringLiteral("DejaVu Serif 9pt italic"));
    dialog.accept();
    QCOMPARE(
        boxes.texts(),
        QStringList(QStringLiteral("Changes w'll take effect after the program is restarted.")));
    const AppSettings out = dialog.settings();
    QCOMPARE(out.logFlags(), QStringList({QStringLiteral("ERR"), QStringLiteral("WARN")}));
    QVERIFY(!out.isInsertComments());
    QVERIFY(out.isApplyCss());
    QCOMPARE(out.font().family(), QStringLiteral("DejaVu Serif"));
}

void tst_SettingsDialog::cssDisablesFont()
{
    SettingsDialog dialog;
    AppSettings s = sample();
    s.setApplyCss(true);
    dialog.setSettings(s);
    auto *button = dialog.findChild<QPushButton *>(QStringLiteral("btnFont"));
    QVERIFY(!button->isEnabled());
    dialog.findChild<QCheckBox *>(QStringLiteral("chkApplyCss"))->setChecked(false);
    QVERIFY(button->isEnabled());
}

void tst_SettingsDialog::mainWindowAppliesLogMask()
{
    BoxRecorder boxes;
    DeviceTemplateCatalog::instance()->loadTemplates(AppSettings::templates_dir());
    {
        MainWindow window;
        QVERIFY(!window.isWindowModified());
        // All three log boxes off: only the layout bits stay.
        onNextDialog<SettingsDialog>([](SettingsDialog *dialog) {
            for (const char *name : {"b_dbg_err", "b_dbg_warn", "b_dbg_info"})
                dialog->findChild<QCheckBox *>(QLatin1String(name))->setChecked(false);
            dialog->findChild<QCheckBox *>(QStringLiteral("chkAddComments"))->setChecked(true);
            dialog->accept();
        });
        window.changeSettings();
        QCOMPARE(AppSettings::instance()->logFlags(), QStringList());
        QCOMPARE(DebugQt::instance()->flags(), uint(0x8ED0000));
        QVERIFY(AppSettings::instance()->isInsertComments());
        QVERIFY(window.isWindowModified());

        onNextDialog<SettingsDialog>([](SettingsDialog *dialog) {
            dialog->findChild<QCheckBox *>(QStringLiteral("b_dbg_warn"))->setChecked(true);
            dialog->accept();
        });
        window.changeSettings();
        QCOMPARE(DebugQt::instance()->flags(), uint(0x8ED0002));
        // Cancel leaves the preferences alone.
        onNextDialog<SettingsDialog>([](SettingsDialog *dialog) {
            dialog->findChild<QCheckBox *>(QStringLiteral("b_dbg_info"))->setChecked(true);
            dialog->reject();
        });
        window.changeSettings();
        QCOMPARE(AppSettings::instance()->logFlags(), QStringList(QStringLiteral("WARN")));
        boxes.answers << QMessageBox::No;
        window.close();
    }
    DebugQt::instance()->setFlags(DebugQt::LayoutFlags | DebugQt::Error);
    DeviceTemplateCatalog::release();
}

QTEST_MAIN(tst_SettingsDialog)
#include "tst_settingsdialog.moc"
