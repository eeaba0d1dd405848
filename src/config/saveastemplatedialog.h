#ifndef SAVEASTEMPLATEDIALOG_H
#define SAVEASTEMPLATEDIALOG_H

#include "config/devicetemplateinfo.h"

#include <QDialog>
#include <QStringList>

namespace Ui {
class SaveAsTemplateDialog;
}

// Collects the name, producer and comment under which a device is saved as
// a template. Names of files the catalogue already holds can't be chosen.
class SaveAsTemplateDialog : public QDialog
{
    Q_OBJECT
public:
    explicit SaveAsTemplateDialog(QWidget *parent = nullptr);
    ~SaveAsTemplateDialog() override;

    void setDeviceTemplateInfo(const DeviceTemplateInfo &info);
    DeviceTemplateInfo deviceTemplateInfo() const;
    void set_denied_names(const QStringList &names);

public slots:
    void by_id_changed(const QString &text);

private:
    Ui::SaveAsTemplateDialog *ui;
    QStringList m_denied_names;
    DeviceTemplateInfo m_info;
};

#endif // SAVEASTEMPLATEDIALOG_H
