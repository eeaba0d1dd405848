#ifndef SCANWIDGET_H
#define SCANWIDGET_H

#include "discovery/foundeddevice.h"
#include "discovery/scanner.h"

#include <QMap>
#include <QPointer>
#include <QStringList>
#include <QVariant>
#include <QWidget>

#include <functional>

class QAbstractButton;
class QCheckBox;
class QTreeWidgetItem;
class Server;

namespace Ui {
class ScanWidget;
}

// The page on which a bus scan is set up and run, its hits listed, and the
// chosen ones handed on to be appended to the tree.
class ScanWidget : public QWidget
{
    Q_OBJECT
public:
    typedef std::function<QStringList()> PortProvider;

    explicit ScanWidget(QWidget *parent = nullptr);
    ~ScanWidget() override;

    // The tree whose open ports are closed before a scan.
    void setServer(Server *server) { m_server = server; }
    // The serial lines offered; by default the system's serial ports.
    void setPortProvider(const PortProvider &provider);
    void setOpenErrorQuestion(const Scanner::OpenErrorQuestion &question)
    {
        m_openErrorQuestion = question;
    }

    QMap<QString, QVariant> scanSettings() const;
    void setScanSettings(const QMap<QString, QVariant> &settings);

    // The hits whose box is checked.
    ScanResult scanResult() const;
    ScanTask scanTask() const;

    static QStringList availablePorts();

public slots:
    void appendFoundedDevice(const SerialPortSettings &settings, const FoundedDevice &device);
    void setResult(const ScanResult &result);
    void updateStartButton();
    void onItemDoubleClicked(QTreeWidgetItem *item, int column);

signals:
    void scanSettingsModified();
    void appendRequested();
    void appendOneDevice(const ScanResult &result);

private slots:
    void on_btnRefresh_clicked();
    void on_startButton_clicked();
    void on_appendButton_clicked();
    void on_startAddrSpin_valueChanged(int value);
    void on_endAddrSpin_valueChanged(int value);
    void on_func3AddressSpin_valueChanged(int value);
    void on_spnDelimiter_valueChanged(int value);
    void on_rbASCII_toggled(bool checked);

private:
    void setupProtocols();
    void setupPorts();
    void checkPorts();
    void clearTree();
    void onControlChanged();
    static QStringList checkedTexts(const QList<QCheckBox *> &boxes);
    static QString replyToString(const QByteArray &reply);

    Ui::ScanWidget *ui;
    QMap<QString, QCheckBox *> m_speedBoxes;
    QList<QCheckBox *> m_portBoxes;
    QList<QCheckBox *> m_protocolBoxes;
    QMap<SerialPortSettings, QTreeWidgetItem *> m_items;
    Server *m_server = nullptr;
    PortProvider m_portProvider;
    Scanner::OpenErrorQuestion m_openErrorQuestion;
    bool m_loading = false;
};

#endif // SCANWIDGET_H
