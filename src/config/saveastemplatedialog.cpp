#include "config/saveastemplatedialog.h"
#include "ui_saveastemplatedialog.h"

#include "app/debugqt.h"

#include <QPushButton>
#include <QRegularExpressionValidator>

SaveAsTemplateDialog::SaveAsTemplateDialog(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::SaveAsTemplateDialog)
{
    ui->setupUi(this);
    // The name becomes a file name: no blanks, no path characters.
    ui->le_id->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("^[A-Za-z0-9_-]+$")), ui->le_id));
    connect(ui->le_id, &QLineEdit::textChanged, this, &SaveAsTemplateDialog::by_id_changed);
}

SaveAsTemplateDialog::~SaveAsTemplateDialog()
{
    delete ui;
}

void SaveAsTemplateDialog::setDeviceTemplateInfo(const DeviceTemplateInfo &info)
{
    m_info = info;
    ui->txtTemplatePath->setText(info.path);
    ui->le_id->setText(info.name);
    ui->le_producer->setText(info.producer);
    ui->pte_comment->setPlainText(info.comment);
    ui->chkCreateCustom->setChecked(info.custom);
}

DeviceTemplateInfo SaveAsTemplateDialog::deviceTemplateInfo() const
{
    DeviceTemplateInfo info = m_info;
    info.name = ui->le_id->text();
    info.producer = ui->le_producer->text();
    info.comment = ui->pte_comment->toPlainText();
    info.custom = ui->chkCreateCustom->isChecked();
    return info;
}

void SaveAsTemplateDialog::set_denied_names(const QStringList &names)
{
    m_denied_names = names;
    by_id_changed(ui->le_id->text());
}

void SaveAsTemplateDialog::by_id_changed(const QString &text)
{
    LOG_INFO << "m_denied_names =" << m_denied_names.join(QStringLiteral(", "));
    const QString ext = m_info.ext.isEmpty() ? QStringLiteral("tpl") : m_info.ext;
    const QString fileName = text + QLatin1Char('.') + ext;
    ui->buttonBox->button(QDialogButtonBox::Ok)
        ->setEnabled(!text.isEmpty() && !m_denied_names.contains(fileName));
}
