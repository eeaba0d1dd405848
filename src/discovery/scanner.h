#ifndef SCANNER_H
#define SCANNER_H

#include "discovery/foundeddevice.h"
#include "discovery/serialportsettings.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QProgressDialog>
#include <QSet>
#include <QString>

#include <functional>

class QWidget;
class Server;
typedef struct _modbus modbus_t;

// What one scan walks through.
struct ScanTask
{
    QList<QString> ports; // serial names, in this order
    QSet<int> speeds;
    QList<SerialPortProtocol> protocols;
    bool ascii = false;
    int delimiter = 10; // ASCII frame end after CR
    bool useFunction3 = false;
    int function3Register = 0;
    int function3Count = 1;
    bool useFunction17 = true;
    int fromAddress = 1;
    int toAddress = 247; // inclusive
};

// Walks every selected line, speed and framing and probes each address with
// function 17, function 3 or both. It runs on the interface thread behind a
// window-modal progress dialog, with a Modbus context of its own and the
// library's default timeouts; the port lock is not taken, so the lines it
// scans must not be polled. One Scanner serves one scan.
class Scanner : public QObject
{
    Q_OBJECT
public:
    // Asked when a line cannot be opened: true goes on with the next
    // framing, false leaves the remaining framings of this speed.
    typedef std::function<bool(const QString &port, const QString &error)> OpenErrorQuestion;

    explicit Scanner(QObject *parent = nullptr);
    ~Scanner() override;

    void setParentWidget(QWidget *widget) { m_parentWidget = widget; }
    void setScanTask(const ScanTask &task) { m_task = task; }
    ScanTask scanTask() const { return m_task; }
    // The tree whose open ports on a scanned line are closed first.
    void setServer(Server *server) { m_server = server; }
    void setOpenErrorQuestion(const OpenErrorQuestion &question) { m_openErrorQuestion = question; }

    // Returns after the scan has ended or was cancelled.
    void start();
    ScanResult result() const { return m_result; }
    int foundCount() const;

    // The dialog's range and the number of addresses stepped through.
    int progressMaximum() const { return m_progressMaximum; }
    int stepCount() const { return m_step; }
    QProgressDialog *progressDialog() const { return m_dialog; }

    void closeModbus();

public slots:
    // Takes effect before the next address.
    void cancel();

signals:
    void deviceFounded(const SerialPortSettings &settings, const FoundedDevice &device);
    void started();
    void finished();
    void stopped();
    void progress(int value);
    void progress(const QString &text, int value, int maximum);

private:
    void doScan(bool resume);
    bool cancelled() const;
    bool openLine(const QString &port, int speed, const SerialPortProtocol &protocol,
                  bool &skipSpeed);
    void closePortsOnLine(const QString &serialName);
    void probe(const SerialPortSettings &settings, int address);
    void recordHit(const SerialPortSettings &settings, const FoundedDevice &device);
    void updateLabel(const SerialPortSettings &settings, int address);
    bool askOpenError(const QString &port, const QString &error);

    ScanTask m_task;
    ScanResult m_result;
    modbus_t *m_ctx = nullptr;
    QPointer<QWidget> m_parentWidget;
    Server *m_server = nullptr;
    QPointer<QProgressDialog> m_dialog;
    OpenErrorQuestion m_openErrorQuestion;
    int m_progressMaximum = -1;
    int m_step = 0;
    bool m_cancelled = false;
};

#endif // SCANNER_H
