#ifndef DEVICEADDDIALOG_H
#define DEVICEADDDIALOG_H

#include <QDialog>
#include <QVariantMap>

class QTableWidgetItem;
namespace Ui {
class DeviceAddDialog;
}

// Picks one or more templates of the catalogue for new devices on a port.
// A double click picks a single template at once; with Ctrl held it only
// adds to the selection.
class DeviceAddDialog : public QDialog
{
    Q_OBJECT
public:
    enum Column { ColMark, ColName, ColTemplate, ColProducer, ColDescription, ColVersion };

    explicit DeviceAddDialog(QWidget *parent = nullptr);
    ~DeviceAddDialog() override;

    // Template name -> template id, one entry per checked row.
    QVariantMap userSelection() const;
    int checkedCount() const;
    int rowOf(const QString &name) const;
    // The actions of the context menu of a row, for the menu and for tests.
    QMenu *createContextMenu(int row);

public slots:
    void updateOkButton();
    void onCustomMenuRequested(const QPoint &point);
    void onItemDoubleClicked(QTableWidgetItem *item);
    void on_btnResetAll_clicked();
    void onRefreshList();
    void onRemoveRecord();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    void fillTableFromDeviceTemplateCatalog();
    void appendInfoFromDeviceTemplate(const QVariantMap &map, const QString &path);

    Ui::DeviceAddDialog *ui;
    bool ctrlPressed = false;
};

#endif // DEVICEADDDIALOG_H
