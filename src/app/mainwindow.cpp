#include "app/mainwindow.h"
#include "ui_mainwindow.h"

#include "app/application.h"
#include "app/debugqt.h"
#include "app/messagebox.h"
#include "app/serveritemeditor.h"
#include "app/settingsdialog.h"
#include "config/appsettings.h"
#include "config/configbackup.h"
#include "config/deviceadddialog.h"
#include "config/devicetemplatecatalog.h"
#include "config/saveastemplatedialog.h"
#include "discovery/scanresultimporter.h"
#include "discovery/scanwidget.h"
#include "exchange/pollingstatistics.h"
#include "model/device.h"
#include "model/port.h"
#include "model/server.h"
#include "model/tag.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QSaveFile>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QStyle>
#include <QTreeWidget>

#ifndef REGDESK_VERSION
#define REGDESK_VERSION "0"
#endif

namespace {
const char *const AppTitle = "regdesk";

// The classes whose font follows the user's choice.
const char *const FontClasses[]
    = {"QLabel",     "QLineEdit",    "QSpinBox",   "QDoubleSpinBox", "QComboBox",
       "QTableView", "QTableWidget", "QTabWidget", "QHeaderView"};

QString languageTitle(const QString &key)
{
    if (key.startsWith(QLatin1String("en")))
        return QStringLiteral("English");
    QString name = QLocale(key).nativeLanguageName();
    if (!name.isEmpty())
        name[0] = name.at(0).toUpper();
    return name.isEmpty() ? key : name;
}
} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui::MainWindow)
    , m_server(new Server)
    , m_stats(new PollingStatistics(this))
{
    qRegisterMetaType<ServerItem *>("ServerItem*");
    ui->setupUi(this);

    m_editor = new ServerItemEditor(ui->editorPane);
    ui->editorLayout->addWidget(m_editor);

    // The scan page is tall; it scrolls rather than make the window outgrow a laptop screen.
    auto *scanScroll = new QScrollArea(ui->tabScan);
    scanScroll->setWidgetResizable(true);
    scanScroll->setFrameShape(QFrame::NoFrame);
    m_scanWidget = new ScanWidget;
    m_scanWidget->setServer(m_server);
    scanScroll->setWidget(m_scanWidget);
    ui->scanLayout->addWidget(scanScroll);
    connect(m_scanWidget, &ScanWidget::appendRequested, this, &MainWindow::onAppendRequested);
    connect(m_scanWidget, &ScanWidget::appendOneDevice, this, &MainWindow::onAppendOneDevice);

    ui->splitter->setStretchFactor(0, 0);
    ui->splitter->setStretchFactor(1, 1);
    ui->splitter->setSizes({300, 900});

    // Long comments scroll sideways instead of being cut.
    ui->treeWidget->header()->setStretchLastSection(false);
    ui->treeWidget->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);

    m_rootItem = new QTreeWidgetItem(ui->treeWidget);
    m_rootItem->setData(0, Qt::UserRole, QVariant::fromValue<ServerItem *>(m_server));
    m_items.insert(m_server, m_rootItem);
    updateRootMark();

    setupActions();
    setupStatusBar();

    connect(m_server, &Server::loaded, this, &MainWindow::onServerLoaded);
    connect(m_editor, &ServerItemEditor::changed, this, &MainWindow::onChanged);
    connect(m_editor, &ServerItemEditor::editorAdded, this, &MainWindow::onEditorAdded);
    connect(this, &MainWindow::firstEvent, this, &MainWindow::onFirstEvent, Qt::QueuedConnection);
    connectTree(true);

    connect(&m_statTimer, &QTimer::timeout, this, &MainWindow::updateStatistics);
    connect(m_stats, &PollingStatistics::playChanged, this, &MainWindow::onPlayChanged);
    connect(&m_clockTimer, &QTimer::timeout, this, &MainWindow::updateCurrentTime);
    m_clockTimer.start(1000);
    updateCurrentTime();

    loadConfig();
    updateActions();
    qApp->installEventFilter(this);
    emit firstEvent();
}

// Every event of the application passes here first and goes on to the
// application's own filter.
bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    return qApp->QObject::eventFilter(watched, event);
}

MainWindow::~MainWindow()
{
    qApp->removeEventFilter(this);
    connectTree(false);
    // The tree is ours; the server takes no QObject parent.
    m_editor->setItem(nullptr);
    delete m_server;
    delete ui;
}

void MainWindow::setupActions()
{
    QStyle *s = style();
    ui->actionNew->setIcon(s->standardIcon(QStyle::SP_FileIcon));
    ui->actionOpen->setIcon(s->standardIcon(QStyle::SP_DialogOpenButton));
    ui->actionSave->setIcon(s->standardIcon(QStyle::SP_DialogSaveButton));
    ui->actionSaveAs->setIcon(QIcon(QStringLiteral(":/images/saveas.png")));
    ui->actionAdd->setIcon(QIcon(QStringLiteral(":/images/add.png")));
    ui->actionRemove->setIcon(QIcon(QStringLiteral(":/images/remove.png")));
    ui->actionCopy->setIcon(QIcon(QStringLiteral(":/images/copy.png")));
    ui->actionPaste->setIcon(QIcon(QStringLiteral(":/images/paste.png")));
    ui->actionSaveAsTemplate->setIcon(QIcon(QStringLiteral(":/images/template.png")));
    ui->actionSettings->setIcon(QIcon(QStringLiteral(":/images/settings.png")));
    ui->actionHelp->setIcon(QIcon(QStringLiteral(":/images/help.png")));
    ui->actionPlay->setIcon(QIcon(QStringLiteral(":/images/play.png")));
    ui->actionPlay->setVisible(false);

    connect(ui->actionAdd, &QAction::triggered, this, &MainWindow::addItem);
    connect(ui->actionRemove, &QAction::triggered, this, &MainWindow::deleteItem);
    connect(ui->actionSave, &QAction::triggered, this, &MainWindow::saveWithQuestion);
    connect(ui->actionSaveAs, &QAction::triggered, this, &MainWindow::saveAs);
    connect(ui->actionOpen, &QAction::triggered, this, &MainWindow::open);
    connect(ui->actionNew, &QAction::triggered, this, [this] { newTree(false); });
    connect(ui->actionSaveAsTemplate, &QAction::triggered, this, &MainWindow::saveAsTemplate);
    connect(ui->actionCopy, &QAction::triggered, this, &MainWindow::copy);
    connect(ui->actionPaste, &QAction::triggered, this, &MainWindow::paste);
    connect(ui->actionSettings, &QAction::triggered, this, &MainWindow::changeSettings);
    connect(ui->actionHelp, &QAction::triggered, this, &MainWindow::selectHelp);
    connect(ui->actionPlay, &QAction::triggered, this, &MainWindow::stopAllEditorsReadChannels);
}

void MainWindow::setupStatusBar()
{
    m_clockLabel = new QLabel(this);
    m_countsLabel = new QLabel(this);
    m_versionLabel = new QLabel(this);
    m_langSelector = new QComboBox(this);
    m_langSelector->setObjectName(QStringLiteral("langSelector"));
    m_clockLabel->setObjectName(QStringLiteral("clockLabel"));
    m_countsLabel->setObjectName(QStringLiteral("countsLabel"));
    m_versionLabel->setObjectName(QStringLiteral("versionLabel"));

    // English is the language of the sources and needs no catalogue.
    QStringList keys = Application::availableLanguages();
    if (!keys.contains(QLatin1String("en_US")))
        keys.prepend(QStringLiteral("en_US"));
    for (const QString &key : std::as_const(keys))
        m_langSelector->addItem(languageTitle(key), key);

    statusBar()->addPermanentWidget(m_countsLabel);
    statusBar()->addPermanentWidget(m_versionLabel);
    statusBar()->addPermanentWidget(m_langSelector);
    statusBar()->addPermanentWidget(m_clockLabel);
    connect(m_langSelector, &QComboBox::currentIndexChanged, this,
            &MainWindow::onLangSelectorIndexChanged);
    retranslate();
}

void MainWindow::retranslate()
{
    m_versionLabel->setText(tr("Version: %1").arg(QStringLiteral(REGDESK_VERSION)));
    updateCounts();
    updateRootMark();
    updateWindowTitle();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::connectTree(bool on)
{
    if (on)
        connect(ui->treeWidget, &QTreeWidget::currentItemChanged, this,
                &MainWindow::currentTreeWidgetItemChanged, Qt::UniqueConnection);
    else
        disconnect(ui->treeWidget, &QTreeWidget::currentItemChanged, this,
                   &MainWindow::currentTreeWidgetItemChanged);
}

// ---------------------------------------------------------------- tree

QList<Port *> MainWindow::ports() const
{
    return m_server->ports();
}

QStringList MainWindow::portNames() const
{
    return m_server->portNames();
}

Port *MainWindow::portByName(const QString &name) const
{
    return m_server->portByName(name);
}

Port *MainWindow::portBySerialName(const QString &name) const
{
    for (Port *port : m_server->ports())
        if (port->serialName() == name)
            return port;
    return nullptr;
}

ServerItem *MainWindow::serverItem(const QTreeWidgetItem *item)
{
    return item ? item->data(0, Qt::UserRole).value<ServerItem *>() : nullptr;
}

ServerItem *MainWindow::currentServerItem() const
{
    return serverItem(ui->treeWidget->currentItem());
}

void MainWindow::setCurrentServerItem(ServerItem *item)
{
    if (QTreeWidgetItem *treeItem = m_items.value(item))
        ui->treeWidget->setCurrentItem(treeItem);
}

QTreeWidgetItem *MainWindow::addPortInTree(Port *port)
{
    if (!port)
        return nullptr;
    if (QTreeWidgetItem *existing = m_items.value(port))
        return existing;
    auto *item = new QTreeWidgetItem(m_rootItem);
    item->setData(0, Qt::UserRole, QVariant::fromValue<ServerItem *>(port));
    m_items.insert(port, item);
    updatePortStatusInTree(port);
    m_rootItem->setExpanded(true);
    updateCounts();
    return item;
}

QTreeWidgetItem *MainWindow::addDeviceInTree(Port *port, Device *device)
{
    QTreeWidgetItem *portItem = addPortInTree(port);
    if (!portItem || !device)
        return nullptr;
    if (QTreeWidgetItem *existing = m_items.value(device))
        return existing;
    auto *item = new QTreeWidgetItem(portItem);
    item->setData(0, Qt::UserRole, QVariant::fromValue<ServerItem *>(device));
    m_items.insert(device, item);
    updateDeviceStatusInTree(device);
    portItem->setExpanded(true);
    updateCounts();
    return item;
}

bool MainWindow::portThreadWorks(const Port *port) const
{
    return port && port->isPortThreadWorked();
}

void MainWindow::updateRootMark()
{
    m_rootItem->setText(0, tr("Ports & Devices"));
    QFont font = m_rootItem->font(0);
    font.setBold(isWindowModified());
    font.setItalic(isWindowModified());
    m_rootItem->setFont(0, font);
}

void MainWindow::updatePortStatusInTree(Port *port)
{
    QTreeWidgetItem *item = m_items.value(port);
    if (!item)
        return;
    if (portThreadWorks(port)) {
        const bool problems = port->hasDevicesWithProblemTags();
        item->setText(0,
                      port->name() + QLatin1Char(' ')
                          + (problems ? QStringLiteral("[#]") : QStringLiteral("[@]")));
        item->setForeground(0, problems ? QColor(Qt::red) : QColor(Qt::darkGreen));
    } else {
        item->setText(0, port->name());
        item->setForeground(0, QColor(Qt::black));
    }
    item->setToolTip(0, port->serialName());
}

void MainWindow::updateDeviceStatusInTree(Device *device)
{
    QTreeWidgetItem *item = m_items.value(device);
    if (!item)
        return;
    QStringList parts;
    parts << (device->hasDeviceTagStateFlag(Device::Pasted) ? QStringLiteral("+") : QString())
            + device->name();
    parts << device->deviceTagsStateToShortString();
    if (AppSettings::instance()->isInsertComments())
        parts << device->comment();
    parts.removeAll(QString());
    item->setText(0, parts.join(QLatin1Char(' ')));
    item->setToolTip(0, device->comment());
    QFont font = item->font(0);
    font.setBold(device->deviceId() != 0);
    item->setFont(0, font);
    QColor color(Qt::black);
    if (device->hasDeviceTagStateFlag(Device::ReadFromDevice)
        || device->hasDeviceTagStateFlag(Device::WrittenToDevice)) {
        if (device->hasTagsWithErrors(true))
            color = Qt::red;
        else if (device->hasTagsWithNan())
            color = Qt::magenta;
        else
            color = Qt::darkGreen;
    }
    item->setForeground(0, color);
}

void MainWindow::refreshAllDeviceMarks()
{
    for (Port *port : m_server->ports())
        for (Device *device : port->devices())
            updateDeviceStatusInTree(device);
}

void MainWindow::updateCounts()
{
    m_countsLabel->setText(
        tr("ports: %1, devices: %2").arg(m_server->portCount()).arg(m_server->deviceCount()));
}

void MainWindow::currentTreeWidgetItemChanged(QTreeWidgetItem *current, QTreeWidgetItem *)
{
    ServerItem *item = serverItem(current);
    if (auto *device = qobject_cast<Device *>(item))
        updateDeviceStatusInTree(device);
    m_editor->setItem(item);
    updateActions();
}

void MainWindow::updateActions()
{
    const int tab = ui->mainTabWidget->currentIndex();
    const bool onDevices = tab == TabDevices;
    const bool onPlot = tab == TabPlot;
    ServerItem *item = currentServerItem();
    const int type = item ? item->type() : 0;
    auto *port = qobject_cast<Port *>(item);
    auto *device = qobject_cast<Device *>(item);

    ui->actionSave->setEnabled(isWindowModified());
    ui->actionAdd->setEnabled(
        onPlot || (onDevices && (type == ServerItem::ItemServer || type == ServerItem::ItemPort)));

    bool removable = false;
    if (port)
        removable = !portThreadWorks(port) && !port->hasArchivatedDevices();
    else if (device)
        removable = !device->hasDeviceTagStateFlag(Device::Polled)
            && !device->hasDeviceTagStateFlag(Device::ArchiveDownload);
    ui->actionRemove->setEnabled(onPlot || (onDevices && removable));

    ui->actionSaveAsTemplate->setEnabled(onDevices && device);
    ui->actionCopy->setEnabled(onDevices && device);
    ui->actionPaste->setEnabled(
        onDevices && !m_clipboard.isEmpty()
        && (port || (device && device->deviceTemplateName() == m_clipboardTemplate)));
}

void MainWindow::on_mainTabWidget_currentChanged(int index)
{
    if (index == TabStatistics)
        doUpdateStatistics();
    updateActions();
}

void MainWindow::onChanged(ServerItem *item)
{
    if (auto *device = qobject_cast<Device *>(item))
        updateDeviceStatusInTree(device);
    else if (auto *port = qobject_cast<Port *>(item))
        updatePortStatusInTree(port);
    serverModified();
}

void MainWindow::onEditorAdded()
{
    m_editor->updateEditorsSizePolicy(m_editor->currentWidget());
}

void MainWindow::selectHelp()
{
    ui->mainTabWidget->setCurrentIndex(TabDevices);
    ui->treeWidget->setCurrentItem(m_rootItem);
}

void MainWindow::stopAllEditorsReadChannels()
{
    m_editor->stopAllEditorsReadChannels();
    serverModified();
}

void MainWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1) {
        selectHelp();
        return;
    }
    QMainWindow::keyPressEvent(event);
}

// ---------------------------------------------------------------- editing

void MainWindow::addItem()
{
    const int tab = ui->mainTabWidget->currentIndex();
    // The plot page chooses its own tags; it has none to offer yet.
    if (tab == TabPlot)
        return;
    ServerItem *item = currentServerItem();
    if (!item)
        return;
    if (item->type() == ServerItem::ItemServer) {
        Port *port = m_server->addPort(tr("Port %1").arg(m_server->portCount()));
        if (!port)
            return;
        addPortInTree(port);
        serverModified();
        return;
    }
    auto *port = qobject_cast<Port *>(item);
    if (!port)
        return;
    DeviceAddDialog dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QVariantMap selection = dialog.userSelection();
    for (auto it = selection.cbegin(); it != selection.cend(); ++it) {
        Device *device = port->addDevice(it.key(), -1);
        if (!device)
            continue;
        setDeviceTemplate(device, it.key());
        addDeviceInTree(port, device);
        device->setDeviceTagState(Device::Pasted);
        updateDeviceStatusInTree(device);
    }
    serverModified();
}

void MainWindow::setDeviceTemplate(Device *device, const QString &templateId)
{
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    QVariantMap deviceMap
        = catalog->template_map(templateId).value(QStringLiteral("device")).toMap();
    QVariantMap templateMap = catalog->template_map(templateId);
    if (deviceMap.isEmpty()) {
        MessageBox::warning(this, tr("Warning"),
                            tr("Not found temlate %1 for device").arg(templateId));
        LOG_ERR << QStringLiteral("Error loading device data from template '%1'").arg(templateId);
        const QString fallback = QStringLiteral("modbus_device.") + AppSettings::template_ext();
        templateMap = catalog->template_map(catalog->templateNameByFile(fallback));
        deviceMap = templateMap.value(QStringLiteral("device")).toMap();
    }
    const QString name = device->name();
    device->load(deviceMap);
    // The name given by the caller stays: loading a template must not rename the device.
    if (device->name() != name)
        device->setName(name);
    const QString comment = templateMap.value(QStringLiteral("comment")).toString();
    if (!comment.isEmpty())
        device->setComment(comment);
    const QString producer = templateMap.value(QStringLiteral("producer")).toString();
    if (!producer.isEmpty())
        device->setProperty("producer", producer);
    device->setPortSettingsInTags();
}

void MainWindow::copy()
{
    auto *device = qobject_cast<Device *>(currentServerItem());
    if (!device)
        return;
    m_editor->saveFieldsInTagsAllEditors();
    m_clipboard = device->save();
    m_clipboardTemplate = device->deviceTemplateName();
    updateActions();
}

void MainWindow::paste()
{
    if (m_clipboard.isEmpty())
        return;
    ServerItem *item = currentServerItem();
    if (auto *port = qobject_cast<Port *>(item)) {
        Device *device = port->addDevice(m_clipboard.value(QStringLiteral("name")).toString(), -1);
        if (!device)
            return;
        const QString name = device->name();
        device->load(m_clipboard);
        if (device->name() != name)
            device->setName(name);
        device->setAddress(m_clipboard.value(QStringLiteral("address")).toInt());
        device->setComment(device->comment() + tr("{copy}"));
        addDeviceInTree(port, device);
        device->setDeviceTagState(Device::Pasted);
        updateDeviceStatusInTree(device);
        serverModified();
    } else if (auto *device = qobject_cast<Device *>(item)) {
        if (device->deviceTemplateName() != m_clipboardTemplate)
            return;
        if (m_editor->pasteFromClipboard(m_clipboard)) {
            updateDeviceStatusInTree(device);
            serverModified();
        }
    }
}

void MainWindow::deleteItem()
{
    ServerItem *item = currentServerItem();
    if (auto *device = qobject_cast<Device *>(item))
        removeDevice(device, true);
    else if (auto *port = qobject_cast<Port *>(item))
        removePort(port, true);
}

void MainWindow::removeDevice(Device *device, bool ask)
{
    if (!device)
        return;
    if (ask
        && MessageBox::warning(this, QLatin1String(AppTitle),
                               tr("Do you really want to remove device %1?").arg(device->name()),
                               QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Cancel)
            != QMessageBox::Yes)
        return;
    QTreeWidgetItem *item = m_items.take(device);
    if (!item) {
        LOG_ERR << "Mapping ERROR for " << device->name() << "QTreeWidgetItem:" << item;
        LOG_ERR << "Take current item...";
        item = ui->treeWidget->currentItem();
    }
    delete item;
    m_editor->removeDeviceEditor(device);
    if (Port *port = device->port())
        port->removeDevice(device->name());
    updateCounts();
    if (ask)
        serverModified();
}

void MainWindow::removePort(Port *port, bool ask)
{
    if (!port)
        return;
    if (ask
        && MessageBox::warning(this, QLatin1String(AppTitle),
                               tr("Do you really want to remove port %1?").arg(port->name()),
                               QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Cancel)
            != QMessageBox::Yes)
        return;
    for (Device *device : port->devices())
        removeDevice(device, false);
    if (m_editor->currentItem() == port)
        m_editor->setItem(nullptr);
    QTreeWidgetItem *item = m_items.take(port);
    m_server->removePort(port->name());
    delete item;
    updateCounts();
    if (ask)
        serverModified();
}

void MainWindow::newTree(bool force)
{
    if (!force) {
        if (!okToContinue())
            return;
        if (MessageBox::warning(this, QLatin1String(AppTitle),
                                tr("Do you really want to delete ALL items?"),
                                QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Cancel)
            != QMessageBox::Yes)
            return;
    }
    connectTree(false);
    ui->treeWidget->setCurrentItem(m_rootItem);
    for (Port *port : m_server->ports())
        removePort(port, false);
    connectTree(true);
    setCurrentFile(QString());
    ui->treeWidget->setCurrentItem(m_rootItem);
    m_editor->setItem(m_server);
    updateActions();
}

void MainWindow::serverModified()
{
    if (!isWindowModified() && !AppSettings::cfg_fn().isEmpty()) {
        if (!backupConfigFile())
            return;
    }
    setWindowModified(true);
    updateRootMark();
    updateActions();
    updateCounts();
    doUpdateStatistics();
    if (!m_server->isPortsThreadWorked()) {
        m_statTimer.stop();
        statusBar()->clearMessage();
        m_stats->setPollingActive(false);
    } else if (!m_statTimer.isActive()) {
        m_statTimer.setInterval(PollingStatistics::UpdateInterval);
        m_statTimer.start();
        m_stats->setPollingActive(true);
    }
}

void MainWindow::on_txtConfigComment_textEdited(const QString &text)
{
    AppSettings::instance()->setConfigComment(text);
    serverModified();
}

void MainWindow::onLangSelectorIndexChanged(int index)
{
    const QSignalBlocker blocker(m_editor);
    const QString key = m_langSelector->itemData(index).toString();
    Application::setLanguage(key);
    AppSettings::instance()->setLanguage(key);
    serverModified();
}

// ---------------------------------------------------------------- files

void MainWindow::updateWindowTitle()
{
    const QString file = AppSettings::cfg_fn();
    const QString shown = file.isEmpty() ? tr("Untitled") : QFileInfo(file).fileName();
    setWindowTitle(QStringLiteral("%1 - [*]%2").arg(QLatin1String(AppTitle), shown));
}

void MainWindow::setCurrentFile(const QString &fileName)
{
    AppSettings::set_cfg_fn(fileName);
    setWindowModified(false);
    updateRootMark();
    updateWindowTitle();
}

void MainWindow::showBackupError(const QString &title, const QString &text)
{
    MessageBox::critical(this, title, text);
}

bool MainWindow::backupConfigFile()
{
    ConfigBackupError error;
    if (::backupConfigFile(AppSettings::cfg_fn(), &error))
        return true;
    if (!error.text.isEmpty())
        showBackupError(error.title, error.text);
    return false;
}

bool MainWindow::rollbackBackupConfigFile()
{
    ConfigBackupError error;
    if (::rollbackBackupConfigFile(AppSettings::cfg_fn(), &error))
        return true;
    if (!error.text.isEmpty())
        showBackupError(error.title, error.text);
    return false;
}

bool MainWindow::saveConfigFile(const QString &path)
{
    AppSettings *settings = AppSettings::instance();
    settings->setConfigComment(ui->txtConfigComment->text());
    settings->setServerMap(m_server->save());
    settings->setScanSettings(m_scanWidget->scanSettings());
    settings->setGeometry(saveGeometry());
    settings->setSplitter(ui->splitter->saveState());
    QString current;
    if (ServerItem *item = currentServerItem()) {
        if (auto *device = qobject_cast<Device *>(item))
            current = (device->port() ? device->port()->name() : QString()) + QLatin1Char(' ')
                + device->name();
        else
            current = item->name();
    }
    settings->setCurrentItem(current.trimmed());
    AppSettings::set_cfg_fn(path);
    if (!settings->save()) {
        MessageBox::critical(this, QLatin1String(AppTitle), tr("Config file write error!"));
        return false;
    }
    return true;
}

bool MainWindow::okToContinue()
{
    if (m_server->hasPortWithArchivatedDevices()) {
        MessageBox::warning(this, QLatin1String(AppTitle),
                            tr("You have devices with downloading archive!\n"
                               "Stop download archive and try again."));
        return false;
    }
    if (m_server->isPortsThreadWorked()) {
        MessageBox::warning(this, QLatin1String(AppTitle),
                            tr("You have periodically requested devices!\n"
                               "Stop devices requesting and try again."));
        return false;
    }
    if (m_editor->getModbusBusyAllEditors()) {
        MessageBox::warning(this, QLatin1String(AppTitle),
                            tr("You have pending read/write operations!\n"
                               "Stop operations and try again."));
        return false;
    }
    if (!isWindowModified())
        return true;
    const auto answer = MessageBox::warning(
        this, QLatin1String(AppTitle),
        tr("Configuration has been modified.\nDo you want to save your changes?"),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    if (answer == QMessageBox::Yes)
        return save();
    return answer == QMessageBox::No;
}

bool MainWindow::askToCorrectTagsWithNan()
{
    for (Port *port : m_server->ports()) {
        for (Device *device : port->devices()) {
            if (!device->hasTagsWithNan())
                continue;
            const auto answer
                = MessageBox::warning(this, QLatin1String(AppTitle),
                                      tr("Device %1 has tags with Not-a-Number value!\n"
                                         "To fix them to Null before saving config?")
                                          .arg(device->name()),
                                      QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Yes);
            // The box offers no "No": either answer fixes the tags and the save goes on.
            if (answer == QMessageBox::No)
                return false;
            device->fixTagsWithNanToNull();
        }
    }
    return true;
}

bool MainWindow::save()
{
    if (!askToCorrectTagsWithNan())
        return false;
    if (AppSettings::cfg_fn().isEmpty()) {
        saveAs();
        return !isWindowModified();
    }
    m_editor->saveFieldsInTagsAllEditors();
    if (!backupConfigFile())
        return false;
    const QString file = AppSettings::cfg_fn();
    if (!saveConfigFile(file)) {
        rollbackBackupConfigFile();
        return false;
    }
    setCurrentFile(file);
    updateActions();
    resetAllDeviceStatusAfterSave();
    statusBar()->showMessage(
        tr("Configuration saved on %1").arg(QDateTime::currentDateTime().toString(Qt::TextDate)));
    return true;
}

QString MainWindow::startDirectory() const
{
    const QString file = AppSettings::cfg_fn();
    if (!file.isEmpty() && QFileInfo::exists(file))
        return QFileInfo(file).absolutePath();
    return AppSettings::cfg_dir();
}

void MainWindow::saveAs()
{
    const QString dir = startDirectory();
    if (!askToCorrectTagsWithNan())
        return;
    const QString name = QFileDialog::getSaveFileName(
        this, tr("Save As.."), dir, tr("Configuration files (*.cfg);;All files (*)"));
    if (!name.isEmpty())
        saveAsFile(name);
}

bool MainWindow::saveAsFile(const QString &fileName)
{
    if (fileName.isEmpty())
        return false;
    m_editor->saveFieldsInTagsAllEditors();
    if (!saveConfigFile(fileName))
        return false;
    setCurrentFile(fileName);
    updateActions();
    resetAllDeviceStatusAfterSave();
    statusBar()->showMessage(
        tr("Configuration saved on %1 in file %2")
            .arg(QDateTime::currentDateTime().toString(QStringLiteral("dd.MM.yy hh:mm")),
                 QFileInfo(fileName).fileName()));
    return true;
}

void MainWindow::saveWithQuestion()
{
    if (ui->mainTabWidget->currentIndex() == TabStatistics) {
        saveStatistics();
        return;
    }
    if (MessageBox::question(this, QLatin1String(AppTitle),
                             tr("Do you want to save your configuration?"),
                             QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)
        == QMessageBox::Yes)
        save();
}

QString MainWindow::saveStatistics()
{
    QDir().mkpath(AppSettings::log_dir());
    const QString name
        = QStringLiteral("%1%2stat_%3")
              .arg(AppSettings::log_dir(), QDir::separator(),
                   QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddThh-mm-ss")));
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)
        || file.write(ui->statisticsTextEdit->toPlainText().toUtf8()) < 0 || !file.commit()) {
        MessageBox::warning(
            this, tr("Save statistics"),
            tr("Cannot open file for writing statistics log: %1").arg(file.errorString()));
        return QString();
    }
    statusBar()->showMessage(tr("Statistics have been successfully saved to file"));
    return name;
}

void MainWindow::open()
{
    if (!okToContinue())
        return;
    const QString name = QFileDialog::getOpenFileName(
        this, tr("Open cfg.."), startDirectory(), tr("Configuration files (*.cfg);;All files (*)"));
    if (!name.isEmpty())
        loadConfigFile(name);
}

void MainWindow::resetAllDeviceStatusAfterSave()
{
    for (Port *port : m_server->ports()) {
        for (Device *device : port->devices()) {
            device->clearFileData();
            int s = device->deviceTagState();
            if (s & (Device::Polled | Device::ArchiveDownload)) {
                const bool changed = s & Device::Changed;
                s &= ~(Device::Changed | Device::WrittenToDevice | Device::Pasted);
                if (changed)
                    s &= ~Device::ReadFromDevice;
                s |= Device::FromFile;
            } else if (!((s & Device::ReadFromDevice) && (s & Device::WrittenToDevice))) {
                s = ((s & Device::ReadFromDevice) && !(s & Device::Changed)) ? 5 : 1;
            } else {
                s = 13;
            }
            device->setDeviceTagState(s);
            updateDeviceStatusInTree(device);
        }
    }
    m_editor->reloadFileBufferOfCurrenEditor();
    m_editor->updateButtonsAllEditors();
}

bool MainWindow::loadConfigFile(const QString &path)
{
    newTree(true);
    AppSettings *settings = AppSettings::instance();
    settings->loadConfig(path);
    if (!loadConfigData())
        return false;
    applyAppSettings();
    m_rootItem->setExpanded(true);
    const QSignalBlocker blocker(ui->txtConfigComment);
    ui->txtConfigComment->setText(settings->configComment());
    return true;
}

bool MainWindow::loadConfigData()
{
    AppSettings *settings = AppSettings::instance();
    const bool ok = m_server->load(settings->serverMap());
    m_scanWidget->setScanSettings(settings->scanSettings());
    if (ok && m_rootItem->childCount() > 0)
        ui->treeWidget->setCurrentItem(m_rootItem->child(0));
    setCurrentFile(AppSettings::cfg_fn());
    return ok;
}

void MainWindow::loadConfig()
{
    AppSettings *settings = AppSettings::instance();
    settings->load();
    loadConfigData();
    applyAppSettings();
    const QSignalBlocker blocker(ui->txtConfigComment);
    ui->txtConfigComment->setText(settings->configComment());
    if (!ui->treeWidget->currentItem())
        ui->treeWidget->setCurrentItem(m_rootItem);
}

void MainWindow::onServerLoaded()
{
    for (Port *port : m_server->ports()) {
        addPortInTree(port);
        for (Device *device : port->devices()) {
            if (Tag *address = device->tag(QStringLiteral("address")))
                device->setAddress(address->value().toInt());
            addDeviceInTree(port, device);
        }
    }
    ui->treeWidget->setCurrentItem(m_rootItem);
    updateActions();
    doUpdateStatistics();
}

void MainWindow::onFirstEvent()
{
    const QString current = AppSettings::instance()->currentItem();
    if (current.isEmpty())
        return;
    const QString portName = current.section(QLatin1Char(' '), 0, 0);
    const QString deviceName = current.section(QLatin1Char(' '), 1);
    Port *port = m_server->portByName(portName);
    if (!port)
        return;
    ServerItem *target = port;
    if (!deviceName.isEmpty()) {
        // A device removed since the save leaves the selection made by the load.
        target = port->device(deviceName);
        if (!target)
            return;
    }
    setCurrentServerItem(target);
}

void MainWindow::applyAppSettings()
{
    AppSettings *settings = AppSettings::instance();
    uint mask = DebugQt::LayoutFlags;
    const QStringList flags = settings->logFlags();
    if (flags.contains(QLatin1String("ERR")))
        mask |= DebugQt::Error;
    if (flags.contains(QLatin1String("WARN")))
        mask |= DebugQt::Warning;
    if (flags.contains(QLatin1String("INFO")))
        mask |= DebugQt::Info;
    DebugQt::instance(DebugQt::FallbackFlags)->setFlags(mask);

    Application::setLanguage(settings->language());
    {
        const QSignalBlocker blocker(m_langSelector);
        int index = m_langSelector->findData(settings->language());
        if (index < 0)
            index = m_langSelector->findData(QStringLiteral("en_US"));
        m_langSelector->setCurrentIndex(index);
    }
    if (!settings->geometry().isEmpty())
        restoreGeometry(settings->geometry());
    if (!settings->splitter().isEmpty())
        ui->splitter->restoreState(settings->splitter());

    const QFont font = settings->font();
    if (font.resolveMask() & QFont::FamiliesResolved
        || font.resolveMask() & QFont::FamilyResolved) {
        // Small first, so that the tab bar doesn't keep a size taken from a larger font.
        QFont small = font;
        small.setPointSize(7);
        ui->mainTabWidget->setFont(small);
        for (const char *className : FontClasses)
            QApplication::setFont(font, className);
        ui->mainTabWidget->setFont(font);
    } else {
        LOG_INFO << "default font";
        settings->setFont(ui->mainTabWidget->widget(0)->font());
    }
}

void MainWindow::changeSettings()
{
    AppSettings *settings = AppSettings::instance();
    SettingsDialog dialog(this);
    dialog.setSettings(*settings);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const bool comments = settings->isInsertComments();
    *settings = dialog.settings();
    // Keep the window as it stands rather than jumping to stored sizes.
    settings->setGeometry(QByteArray());
    settings->setSplitter(QByteArray());
    applyAppSettings();
    if (comments != settings->isInsertComments())
        refreshAllDeviceMarks();
    serverModified();
    updateActions();
}

void MainWindow::saveAsTemplate()
{
    auto *device = qobject_cast<Device *>(currentServerItem());
    if (!device)
        return;
    m_editor->saveFieldsInTagsAllEditors();
    if (device->hasTagsWithNan()) {
        const auto answer = MessageBox::warning(
            this, QLatin1String(AppTitle),
            tr("Device %1 has tags with Not-a-Number value!\n"
               "To fix them to Null before saving template?")
                .arg(device->name()),
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
        if (answer == QMessageBox::No)
            return;
        device->fixTagsWithNanToNull();
    }
    DeviceTemplateCatalog *catalog = DeviceTemplateCatalog::instance();
    DeviceTemplateInfo info;
    info.name = device->name();
    info.comment = device->comment();
    info.producer = device->producer();
    info.path = AppSettings::templates_dir();
    info.ext = AppSettings::template_ext();
    QStringList denied;
    for (const QString &name : catalog->templateNames())
        denied.append(QFileInfo(catalog->templateFile(name)).fileName());

    SaveAsTemplateDialog dialog(this);
    dialog.setDeviceTemplateInfo(info);
    dialog.set_denied_names(denied);
    if (dialog.exec() != QDialog::Accepted)
        return;
    info = dialog.deviceTemplateInfo();
    if (catalog->exists(info)
        && MessageBox::question(
               this, tr("Confirmation required"),
               tr("Template '%1' already exists. Do you want to overwrite it?").arg(info.name),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            != QMessageBox::Yes)
        return;
    if (catalog->saveAsTemplate(device, info))
        statusBar()->showMessage(
            tr("Device was saved as template in file %1")
                .arg(QDir(info.path).filePath(info.name + QLatin1Char('.') + info.ext)));
}

// ---------------------------------------------------------------- statistics

QString MainWindow::statisticsText() const
{
    return ui->statisticsTextEdit->toPlainText();
}

void MainWindow::updateStatistics()
{
    doUpdateStatistics();
}

void MainWindow::doUpdateStatistics()
{
    QScrollBar *bar = ui->statisticsTextEdit->verticalScrollBar();
    const int position = bar->value();
    for (Port *port : m_server->ports())
        updatePortStatusInTree(port);
    const QString text = m_stats->build(m_server, QDateTime::currentDateTime());
    {
        const QSignalBlocker blocker(bar);
        ui->statisticsTextEdit->setPlainText(text);
        bar->setValue(position);
    }
    if (!m_statTimer.isActive())
        return;
    if (m_stats->statusMessage().isEmpty())
        statusBar()->clearMessage();
    else
        statusBar()->showMessage(m_stats->statusMessage());
}

void MainWindow::updateCurrentTime()
{
    m_clockLabel->setText(QStringLiteral("<p style=\"font: bold;\"> %1 </p>")
                              .arg(QTime::currentTime().toString(QStringLiteral("hh:mm:ss"))));
    if (m_statTimer.isActive())
        m_stats->blink();
}

void MainWindow::onPlayChanged(bool visible, const QString &icon)
{
    ui->actionPlay->setVisible(visible);
    ui->actionPlay->setIcon(QIcon(icon));
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!okToContinue()) {
        event->ignore();
        return;
    }
    connectTree(false);
    event->accept();
}

// Scan page: hits chosen on the page become ports and devices of the tree.

void MainWindow::onAppendRequested()
{
    appendScannedDevices(m_scanWidget->scanResult());
}

void MainWindow::onAppendOneDevice(const ScanResult &result)
{
    appendScannedDevices(result);
}

void MainWindow::appendScannedDevices(const ScanResult &result)
{
    ScanResultImporter importer(m_server);
    importer.setClashQuestion([this](int address, const Port *port) {
        return MessageBox::warning(
                   this, QLatin1String(AppTitle),
                   tr("device with address %1 already exists on port %2. To add device?")
                       .arg(address)
                       .arg(port->name()),
                   QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Yes)
            == QMessageBox::Yes;
    });
    importer.setTemplateApplier([this](Device *device, const QString &templateName) {
        setDeviceTemplate(device, templateName);
    });
    connect(&importer, &ScanResultImporter::portAdded, this,
            [this](Port *port) { addPortInTree(port); });
    connect(&importer, &ScanResultImporter::deviceAdded, this, [this](Port *port, Device *device) {
        addDeviceInTree(port, device);
        updateDeviceStatusInTree(device);
    });
    const int count = int(importer.append(result).size());
    if (count > 0) {
        serverModified();
        MessageBox::information(this, tr("Information"), tr("%1 device(s) appended").arg(count));
    } else {
        MessageBox::warning(this, tr("Warning"), tr("No devices were appended"));
    }
}
