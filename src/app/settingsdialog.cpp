#include "app/settingsdialog.h"
#include "ui_settingsdialog.h"

#include "app/messagebox.h"

#include <QFontDialog>

SettingsDialog::SettingsDialog(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::SettingsDialog)
    , m_settings(*AppSettings::instance())
{
    ui->setupUi(this);
    setSettings(m_settings);
}

SettingsDialog::~SettingsDialog()
{
    delete ui;
}

void SettingsDialog::setSettings(const AppSettings &settings)
{
    m_settings = settings;
    m_selectedFont = settings.font();
    const QStringList flags = settings.logFlags();
    ui->b_dbg_err->setChecked(flags.contains(QLatin1String("ERR")));
    ui->b_dbg_warn->setChecked(flags.contains(QLatin1String("WARN")));
    ui->b_dbg_info->setChecked(flags.contains(QLatin1String("INFO")));
    ui->chkAddComments->setChecked(settings.isInsertComments());
    ui->chkAutoSaveDefault->setChecked(settings.isAutosaveDefault());
    ui->chkApplyCss->setChecked(settings.isApplyCss());
    on_chkApplyCss_stateChanged(settings.isApplyCss() ? Qt::Checked : Qt::Unchecked);
    showFontProperties();
}

QString SettingsDialog::fontText() const
{
    return ui->lbFont->text();
}

void SettingsDialog::showFontProperties()
{
    const QFont &font = m_selectedFont;
    ui->lbFont->setText(QStringLiteral("%1 %2pt %3 %4")
                            .arg(font.family())
                            .arg(font.pointSize())
                            .arg(font.style() != QFont::StyleNormal ? tr("italic") : QString())
                            .arg(font.weight() > QFont::Normal ? tr("bold") : QString())
                            .simplified());
}

void SettingsDialog::on_chkApplyCss_stateChanged(int state)
{
    // A style sheet sets its own fonts.
    const bool css = state == Qt::Checked;
    ui->lbFont->setEnabled(!css);
    ui->btnFont->setEnabled(!css);
}

void SettingsDialog::on_btnFont_clicked()
{
    QFontDialog dialog(m_selectedFont, this);
    dialog.setWindowTitle(tr("Select Font"));
    connect(&dialog, &QFontDialog::currentFontChanged, this, &SettingsDialog::onFontSelected);
    if (dialog.exec() == QDialog::Accepted)
        onFontSelected(dialog.selectedFont());
}

void SettingsDialog::onFontSelected(const QFont &font)
{
    m_selectedFont = font;
    showFontProperties();
}

void SettingsDialog::accept()
{
    QStringList flags;
    if (ui->b_dbg_err->isChecked())
        flags << QStringLiteral("ERR");
    if (ui->b_dbg_warn->isChecked())
        flags << QStringLiteral("WARN");
    if (ui->b_dbg_info->isChecked())
        flags << QStringLiteral("INFO");
    m_settings.setLogFlags(flags);
    m_settings.setInsertComments(ui->chkAddComments->isChecked());
    if (ui->chkApplyCss->isChecked() != m_settings.isApplyCss())
        MessageBox::warning(this, MessageBox::appTitle(),
                            tr("Changes w'll take effect after the program is restarted."));
    m_settings.setApplyCss(ui->chkApplyCss->isChecked());
    m_settings.setAutosaveDefault(ui->chkAutoSaveDefault->isChecked());
    m_settings.setFont(m_selectedFont);
    QDialog::accept();
}
