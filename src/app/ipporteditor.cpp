#include "app/ipporteditor.h"

#include "model/port.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

IPPortEditor::IPPortEditor(QWidget *parent)
    : IServerItemEditor(parent)
    , m_addrLabel(new QLabel(this))
    , m_addrEdit(new QLineEdit(this))
    , m_checkButton(new QPushButton(this))
    , m_openCloseButton(new QPushButton(this))
    , m_status(new QLabel(this))
{
    m_addrEdit->setObjectName(QStringLiteral("addrEdit"));
    m_checkButton->setObjectName(QStringLiteral("checkButton"));
    m_openCloseButton->setObjectName(QStringLiteral("openCloseButton"));
    m_openCloseButton->setCheckable(true);
    m_status->setTextFormat(Qt::RichText);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_addrLabel, 0, 0);
    layout->addWidget(m_addrEdit, 0, 1);
    layout->addWidget(m_checkButton, 1, 0);
    layout->addWidget(m_openCloseButton, 1, 1, Qt::AlignLeft);
    layout->addWidget(m_status, 2, 0, 1, 2);
    layout->setRowStretch(3, 1);
    retranslate();
    QMetaObject::connectSlotsByName(this);
}

void IPPortEditor::retranslate()
{
    m_addrLabel->setText(tr("IP Address:"));
    m_checkButton->setText(tr("Check"));
    m_openCloseButton->setText(m_openCloseButton->isChecked() ? tr("Close") : tr("Open"));
}

void IPPortEditor::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    IServerItemEditor::changeEvent(event);
}

void IPPortEditor::setItem(ServerItem *item)
{
    auto *port = qobject_cast<Port *>(item);
    if (!port)
        return;
    m_port = port;
    const QSignalBlocker blocker(m_openCloseButton);
    m_addrEdit->setText(port->ipAddress());
    m_addrEdit->setEnabled(!port->isOpened());
    m_openCloseButton->setChecked(port->isOpened());
    m_status->clear();
    retranslate();
}

void IPPortEditor::disconnectEditor()
{
    m_port = nullptr;
}

void IPPortEditor::on_addrEdit_editingFinished()
{
    if (!m_port || m_addrEdit->text() == m_port->ipAddress())
        return;
    m_port->setProperty("ip_address", m_addrEdit->text());
    emit changed();
}

void IPPortEditor::on_checkButton_clicked()
{
    if (!m_port)
        return;
    if (m_port->open()) {
        m_status->setText(QStringLiteral("<p style=\"color: green;\">%1</p>").arg(tr("Success.")));
        m_port->close();
    } else {
        m_status->setText(QStringLiteral("<p style=\"color: red;\">%1</p>")
                              .arg(tr("Failure: %1.").arg(m_port->errorString()).toHtmlEscaped()));
    }
}

void IPPortEditor::on_openCloseButton_toggled(bool on)
{
    if (!m_port)
        return;
    if (!on) {
        m_port->close();
        m_status->setText(QStringLiteral("<p style=\"color: green;\">%1</p>").arg(tr("Closed")));
    } else if (m_port->open()) {
        m_status->setText(QStringLiteral("<p style=\"color: green;\">%1</p>").arg(tr("Opened")));
    } else {
        m_status->setText(QStringLiteral("<p style=\"color: red;\">%1</p>")
                              .arg(m_port->errorString().toHtmlEscaped()));
        const QSignalBlocker blocker(m_openCloseButton);
        m_openCloseButton->setChecked(false);
    }
    m_addrEdit->setEnabled(!m_port->isOpened());
    retranslate();
}
