#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "discovery/foundeddevice.h"

#include <QMainWindow>
#include <QMap>
#include <QPointer>
#include <QTimer>
#include <QVariantMap>

class Device;
class PollingStatistics;
class Port;
class QComboBox;
class QLabel;
class QTreeWidgetItem;
class ScanWidget;
class Server;
class ServerItem;
class ServerItemEditor;
namespace Ui {
class MainWindow;
}

// The window of the program: the tree of ports and devices on the left, the
// page of the current item on the right, the file commands, the clipboard of
// devices and the statistics.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    enum MainTab { TabDevices = 0, TabScan = 1, TabStatistics = 2, TabPlot = 3 };

    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    Server *server() const { return m_server; }
    ServerItemEditor *itemEditor() const { return m_editor; }

    // Helpers for the pages.
    QList<Port *> ports() const;
    QStringList portNames() const;
    Port *portByName(const QString &name) const;
    Port *portBySerialName(const QString &name) const;
    QTreeWidgetItem *addPortInTree(Port *port);
    QTreeWidgetItem *addDeviceInTree(Port *port, Device *device);
    QTreeWidgetItem *treeItem(ServerItem *item) const { return m_items.value(item); }
    static ServerItem *serverItem(const QTreeWidgetItem *item);
    ServerItem *currentServerItem() const;
    void setCurrentServerItem(ServerItem *item);

    void updateDeviceStatusInTree(Device *device);
    void updatePortStatusInTree(Port *port);
    void setDeviceTemplate(Device *device, const QString &templateId);

    // Scan page.
    ScanWidget *scanWidget() const { return m_scanWidget; }
    void appendScannedDevices(const ScanResult &result);

    // Files.
    bool loadConfigFile(const QString &path);
    bool saveConfigFile(const QString &path);
    bool backupConfigFile();
    bool rollbackBackupConfigFile();
    bool okToContinue();
    bool askToCorrectTagsWithNan();
    bool save();
    // The part of Save As after a file has been chosen.
    bool saveAsFile(const QString &fileName);
    // Writes the statistics text under the log directory; the file name or empty.
    QString saveStatistics();
    void resetAllDeviceStatusAfterSave();
    void removeDevice(Device *device, bool ask);
    void removePort(Port *port, bool ask);

    QVariantMap clipboard() const { return m_clipboard; }
    QString clipboardTemplate() const { return m_clipboardTemplate; }
    QString statisticsText() const;

    void applyAppSettings();

public slots:
    void addItem();
    void deleteItem();
    void saveWithQuestion();
    void saveAs();
    void open();
    void newTree(bool force = false);
    void saveAsTemplate();
    void copy();
    void paste();
    void changeSettings();
    void selectHelp();
    void stopAllEditorsReadChannels();
    void serverModified();
    void updateActions();
    void updateStatistics();

signals:
    void firstEvent();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private slots:
    void onAppendRequested();
    void onAppendOneDevice(const ScanResult &result);
    void onServerLoaded();
    void onChanged(ServerItem *item);
    void onEditorAdded();
    void onFirstEvent();
    void currentTreeWidgetItemChanged(QTreeWidgetItem *current, QTreeWidgetItem *previous);
    void onLangSelectorIndexChanged(int index);
    void on_mainTabWidget_currentChanged(int index);
    void on_txtConfigComment_textEdited(const QString &text);
    void updateCurrentTime();
    void onPlayChanged(bool visible, const QString &icon);

private:
    void setupActions();
    void setupStatusBar();
    void retranslate();
    void connectTree(bool on);
    void loadConfig();
    bool loadConfigData();
    void setCurrentFile(const QString &fileName);
    void updateWindowTitle();
    void updateRootMark();
    void updateCounts();
    void doUpdateStatistics();
    void refreshAllDeviceMarks();
    void showBackupError(const QString &title, const QString &text);
    QString startDirectory() const;
    bool portThreadWorks(const Port *port) const;

    Ui::MainWindow *ui;
    Server *m_server;
    PollingStatistics *m_stats;
    ServerItemEditor *m_editor;
    ScanWidget *m_scanWidget;
    QTreeWidgetItem *m_rootItem;
    QMap<ServerItem *, QTreeWidgetItem *> m_items;
    QVariantMap m_clipboard;
    QString m_clipboardTemplate;
    QLabel *m_clockLabel;
    QLabel *m_countsLabel;
    QLabel *m_versionLabel;
    QComboBox *m_langSelector;
    QTimer m_statTimer;
    QTimer m_clockTimer;
};

#endif // MAINWINDOW_H
