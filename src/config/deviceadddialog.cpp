#include "config/deviceadddialog.h"
#include "ui_deviceadddialog.h"

#include "app/debugqt.h"
#include "app/messagebox.h"
#include "config/appsettings.h"
#include "config/devicetemplatecatalog.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>

DeviceAddDialog::DeviceAddDialog(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::DeviceAddDialog)
{
    ui->setupUi(this);
    // One line per template; the description shows whole in its tool tip.
    ui->tableWidget->setWordWrap(false);
    QHeaderView *header = ui->tableWidget->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(ColDescription, QHeaderView::Stretch);
    connect(ui->tableWidget, &QTableWidget::itemChanged, this, &DeviceAddDialog::updateOkButton);
    connect(ui->tableWidget, &QTableWidget::itemDoubleClicked, this,
            &DeviceAddDialog::onItemDoubleClicked);
    connect(ui->tableWidget, &QWidget::customContextMenuRequested, this,
            &DeviceAddDialog::onCustomMenuRequested);
    fillTableFromDeviceTemplateCatalog();
    updateOkButton();
}

DeviceAddDialog::~DeviceAddDialog()
{
    delete ui;
}

void DeviceAddDialog::fillTableFromDeviceTemplateCatalog()
{
    const QSignalBlocker blocker(ui->tableWidget);
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    const QStringList names = catalog->templateNames();
    for (const QString &name : names)
        appendInfoFromDeviceTemplate(catalog->template_map(name), catalog->templateFile(name));
    ui->tableWidget->resizeColumnsToContents();
}

void DeviceAddDialog::appendInfoFromDeviceTemplate(const QVariantMap &map, const QString &path)
{
    QTableWidget *table = ui->tableWidget;
    // Sorting while rows are filled would move the row under our hands.
    table->setSortingEnabled(false);
    const int row = table->rowCount();
    table->insertRow(row);

    QString mark;
    if (path.startsWith(AppSettings::embedded_templates_dir()))
        mark = QStringLiteral("L");
    else if (!DeviceTemplateCatalog::instance()
                  ->templateNameByFile(QFileInfo(path).fileName())
                  .isEmpty())
        mark = QStringLiteral("U");
    else
        mark = QStringLiteral("F");

    const QString texts[] = {
        mark,
        map.value(QStringLiteral("name")).toString(),
        map.value(QStringLiteral("id")).toString(),
        map.value(QStringLiteral("producer")).toString(),
        map.value(QStringLiteral("comment")).toString(),
        map.value(QStringLiteral("version")).toString(),
    };
    for (int column = ColMark; column <= ColVersion; ++column) {
        auto *item = new QTableWidgetItem(texts[column]);
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
        if (column == ColName) {
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            item->setCheckState(Qt::Unchecked);
            item->setData(Qt::UserRole, path);
        }
        if (column == ColDescription)
            item->setToolTip(texts[column]);
        table->setItem(row, column, item);
    }
    table->setSortingEnabled(true);
    table->sortItems(ColName, Qt::AscendingOrder);
}

int DeviceAddDialog::checkedCount() const
{
    int count = 0;
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QTableWidgetItem *item = ui->tableWidget->item(row, ColName);
        if (item && item->checkState() == Qt::Checked)
            ++count;
    }
    return count;
}

int DeviceAddDialog::rowOf(const QString &name) const
{
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QTableWidgetItem *item = ui->tableWidget->item(row, ColName);
        if (item && item->text() == name)
            return row;
    }
    return -1;
}

QVariantMap DeviceAddDialog::userSelection() const
{
    QVariantMap selection;
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QTableWidgetItem *item = ui->tableWidget->item(row, ColName);
        if (item && item->checkState() == Qt::Checked)
            selection.insert(item->text(), ui->tableWidget->item(row, ColTemplate)->text());
    }
    return selection;
}

void DeviceAddDialog::updateOkButton()
{
    const bool any = checkedCount() > 0;
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(any);
    ui->btnResetAll->setEnabled(any);
}

void DeviceAddDialog::on_btnResetAll_clicked()
{
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        QTableWidgetItem *item = ui->tableWidget->item(row, ColName);
        if (item && item->checkState() == Qt::Checked)
            item->setCheckState(Qt::Unchecked);
    }
}

void DeviceAddDialog::onItemDoubleClicked(QTableWidgetItem *item)
{
    if (!item)
        return;
    QTableWidgetItem *check = ui->tableWidget->item(item->row(), ColName);
    if (!check)
        return;
    check->setCheckState(check->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    // The mouse event knows about Ctrl too, should the key have gone to another window.
    const bool ctrl
        = ctrlPressed || QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier);
    if (!ctrl && checkedCount() == 1 && item->isSelected() && check->checkState() == Qt::Checked)
        accept();
}

void DeviceAddDialog::keyPressEvent(QKeyEvent *event)
{
    ctrlPressed = event->modifiers().testFlag(Qt::ControlModifier);
    LOG_INFO << (ctrlPressed ? "true" : "false");
    QDialog::keyPressEvent(event);
}

void DeviceAddDialog::keyReleaseEvent(QKeyEvent *event)
{
    ctrlPressed = event->modifiers().testFlag(Qt::ControlModifier);
    LOG_INFO << (ctrlPressed ? "true" : "false");
    QDialog::keyReleaseEvent(event);
}

QMenu *DeviceAddDialog::createContextMenu(int row)
{
    auto *menu = new QMenu(this);
    menu->addAction(tr("Refresh templates list"), this, &DeviceAddDialog::onRefreshList);
    const QTableWidgetItem *item = ui->tableWidget->item(row, ColName);
    if (item
        && !item->data(Qt::UserRole).toString().startsWith(AppSettings::embedded_templates_dir()))
        menu->addAction(tr("Delete"), this, &DeviceAddDialog::onRemoveRecord);
    return menu;
}

void DeviceAddDialog::onCustomMenuRequested(const QPoint &point)
{
    const QModelIndex index = ui->tableWidget->indexAt(point);
    if (index.isValid())
        ui->tableWidget->setCurrentCell(index.row(), index.column());
    QMenu *menu = createContextMenu(index.isValid() ? index.row() : -1);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(ui->tableWidget->viewport()->mapToGlobal(point));
}

void DeviceAddDialog::onRefreshList()
{
    ui->tableWidget->setRowCount(0);
    DeviceTemplateCatalog::instance()->loadTemplates(AppSettings::templates_dir());
    fillTableFromDeviceTemplateCatalog();
    updateOkButton();
}

void DeviceAddDialog::onRemoveRecord()
{
    const int row = ui->tableWidget->currentRow();
    QTableWidgetItem *item = ui->tableWidget->item(row, ColName);
    if (!item)
        return;
    const QString path = item->data(Qt::UserRole).toString();
    if (path.startsWith(AppSettings::embedded_templates_dir()))
        return;
    if (MessageBox::warning(this, tr("Template deleting"),
                            tr("Do you want to delete this template?"),
                            QMessageBox::Yes | QMessageBox::Cancel)
        != QMessageBox::Yes)
        return;
    LOG_INFO << ">>> remove file:" << path;
    QFile::remove(path);
    LOG_INFO << ">>> remove template:" << item->text();
    DeviceTemplateCatalog::instance()->removeTemplateData(item->text());
    LOG_INFO << "remove row:" << row;
    ui->tableWidget->removeRow(row);
    updateOkButton();
}
