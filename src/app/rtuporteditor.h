#ifndef RTUPORTEDITOR_H
#define RTUPORTEDITOR_H

#include "app/iserveritemeditor.h"

#include <QStringList>

class Port;
namespace Ui {
class RTUPortEditor;
}

// The serial line of a port: device, speed and framing, a check that the
// device opens, and a panel for sending raw frames by hand.
class RTUPortEditor : public IServerItemEditor
{
    Q_OBJECT
public:
    explicit RTUPortEditor(QWidget *parent = nullptr);
    ~RTUPortEditor() override;

    // The serial devices of the system, by their device file.
    static QStringList devices_available();

    Port *port() const { return m_port; }
    void update_serials(const QStringList &list);

public slots:
    void setItem(ServerItem *item) override;
    void disconnectEditor() override;

signals:
    void changed();

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void on_portChoiceComboBox_currentIndexChanged(int index);
    void on_btnRefresh_clicked();
    void on_cmbBaudrate_currentIndexChanged(int index);
    void on_cmbDataBits_currentIndexChanged(int index);
    void on_cmbParity_currentIndexChanged(int index);
    void on_cmbStopBits_currentIndexChanged(int index);
    void on_chkClearQueueIfTimeOut_toggled(bool on);
    void on_chkClearPort_toggled(bool on);
    void on_b_check_clicked();
    void on_b_check_toggled(bool on);
    void on_btnOpenRawRequest_clicked();
    void on_btnCloseRawRequest_clicked();
    void on_btnSendRawRequest_clicked();
    void on_btnClearRawResponseLog_clicked();

private:
    void fillLineBoxes();
    void retranslateParity();
    void showPort();
    void sendRawRequest(const QByteArray &request);

    Ui::RTUPortEditor *ui;
    Port *m_port = nullptr;
};

#endif // RTUPORTEDITOR_H
