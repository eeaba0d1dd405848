#include "editor/logwidget.h"
#include "ui_logwidget.h"

#include "app/debugqt.h"
#include "app/messagebox.h"
#include "config/appsettings.h"
#include "model/device.h"
#include "model/port.h"

#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFontDatabase>
#include <QSaveFile>
#include <QScrollBar>
#include <QSignalBlocker>

LogWidget::LogWidget(Device *device, QWidget *parent)
    : QWidget(parent)
    , ui(new Ui::LogWidget)
    , m_device(device)
    , m_linesLimit(AppSettings::instance()->logViewLinesLimit())
{
    ui->setupUi(this);
    ui->modbusLogTextEdit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    ui->modbusLogTextEdit->document()->setMaximumBlockCount(m_linesLimit);
    {
        const QSignalBlocker blocker(ui->spnLines);
        ui->spnLines->setValue(m_linesLimit);
    }
    ui->btnScrollToLast->setChecked(m_scrollToLast);
}

LogWidget::~LogWidget()
{
    delete ui;
}

void LogWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

QString LogWidget::text() const
{
    return ui->modbusLogTextEdit->toPlainText();
}

QString LogWidget::statusText() const
{
    return ui->lbStatus->text();
}

void LogWidget::setLinesCount(int count)
{
    ui->spnLines->setValue(count);
}

void LogWidget::appendModbusMessage(int address, const QString &text)
{
    // Devices on a shared port each see only their own traffic.
    if (!m_device || address != m_device->address())
        return;
    QScrollBar *bar = ui->modbusLogTextEdit->verticalScrollBar();
    const int position = bar->value();
    const bool atEnd = position == bar->maximum();
    ui->modbusLogTextEdit->appendPlainText(text);
    const QString search = ui->txtSearch->text();
    if (!search.isEmpty() && text.contains(search))
        ui->lbStatus->setText(text);
    if (m_scrollToLast) {
        ui->modbusLogTextEdit->moveCursor(QTextCursor::End);
    } else if (atEnd) {
        // Keep the reader a little above the end, so that new lines don't drag the view along.
        bar->setValue(bar->maximum() - bar->pageStep() / 2);
    } else {
        bar->setValue(position);
    }
}

void LogWidget::on_spnLines_valueChanged(int count)
{
    AppSettings::instance()->setLogViewLinesLimit(count);
    m_linesLimit = count;
    ui->modbusLogTextEdit->document()->setMaximumBlockCount(count);
    ui->lbStatus->setText(tr("Lines: %1").arg(count));
}

void LogWidget::on_btnScrollToLast_toggled(bool on)
{
    LOG_INFO << "Scroll to last:" << on;
    m_scrollToLast = on;
    ui->modbusLogTextEdit->setCenterOnScroll(!on);
}

void LogWidget::on_btnSearchUp_clicked()
{
    m_lastSearch = ui->txtSearch->text();
    if (!m_lastSearch.isEmpty())
        ui->modbusLogTextEdit->find(m_lastSearch, QTextDocument::FindBackward);
}

void LogWidget::on_btnSearchDown_clicked()
{
    m_lastSearch = ui->txtSearch->text();
    if (!m_lastSearch.isEmpty())
        ui->modbusLogTextEdit->find(m_lastSearch);
}

void LogWidget::on_btnClear_clicked()
{
    ui->modbusLogTextEdit->clear();
}

QString LogWidget::proposedFileName() const
{
    QString serial;
    QString name;
    int address = 0;
    if (m_device) {
        name = m_device->name();
        address = m_device->address();
        if (const Port *port = m_device->port())
            serial = port->serialName();
    }
    serial.remove(QStringLiteral("/dev/")).replace(QLatin1Char('/'), QLatin1Char('_'));
    const QString base
        = QStringLiteral("%1_%2-[%3]_%4.log")
              .arg(name, serial)
              .arg(address)
              .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddThh-mm-ss")));
    return AppSettings::log_dir() + QDir::separator() + base;
}

void LogWidget::on_btnSaveAs_clicked()
{
    const QString name = QFileDialog::getSaveFileName(this, tr("Save As..."), proposedFileName(),
                                                      tr("Logs (*.log);;All files (*.*)"));
    if (!name.isEmpty())
        saveLogFile(name);
}

bool LogWidget::saveLogFile(const QString &fileName, bool quiet)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)
        || file.write(ui->modbusLogTextEdit->toPlainText().toUtf8()) < 0 || !file.commit()) {
        if (!quiet)
            MessageBox::warning(this, tr("Save report"),
                                tr("Cannot open file for writing log: %1").arg(file.errorString()));
        return false;
    }
    ui->lbStatus->setText(tr("/ %1 Log file: %2").arg(ui->spnLines->value()).arg(fileName));
    return true;
}
