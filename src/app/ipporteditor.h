#ifndef IPPORTEDITOR_H
#define IPPORTEDITOR_H

#include "app/iserveritemeditor.h"

class Port;
class QLabel;
class QLineEdit;
class QPushButton;

// The address of a Modbus TCP port. Such a port is kept in the
// configuration but never opens; the buttons say so.
class IPPortEditor : public IServerItemEditor
{
    Q_OBJECT
public:
    explicit IPPortEditor(QWidget *parent = nullptr);

public slots:
    void setItem(ServerItem *item) override;
    void disconnectEditor() override;

signals:
    void changed();

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void on_addrEdit_editingFinished();
    void on_checkButton_clicked();
    void on_openCloseButton_toggled(bool on);

private:
    void retranslate();

    Port *m_port = nullptr;
    QLabel *m_addrLabel;
    QLineEdit *m_addrEdit;
    QPushButton *m_checkButton;
    QPushButton *m_openCloseButton;
    QLabel *m_status;
};

#endif // IPPORTEDITOR_H
