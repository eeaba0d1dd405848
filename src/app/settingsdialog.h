#ifndef SETTINGSDIALOG_H
#define SETTINGSDIALOG_H

#include "config/appsettings.h"

#include <QDialog>
#include <QFont>

class QFontDialog;
namespace Ui {
class SettingsDialog;
}

// Edits a copy of the preferences; the caller takes settings() back when
// the dialog is accepted.
class SettingsDialog : public QDialog
{
    Q_OBJECT
public:
    explicit SettingsDialog(QWidget *parent = nullptr);
    ~SettingsDialog() override;

    void setSettings(const AppSettings &settings);
    AppSettings settings() const { return m_settings; }
    QString fontText() const;

public slots:
    void accept() override;
    void on_btnFont_clicked();
    void onFontSelected(const QFont &font);
    void on_chkApplyCss_stateChanged(int state);
    void showFontProperties();

private:
    Ui::SettingsDialog *ui;
    AppSettings m_settings;
    QFont m_selectedFont;
};

#endif // SETTINGSDIALOG_H
