#ifndef PORTEDITOR_H
#define PORTEDITOR_H

#include "app/iserveritemeditor.h"

class IPPortEditor;
class Port;
class RTUPortEditor;
namespace Ui {
class PortEditor;
}

// The page of a port: its name, whether it is used, its kind, and the page
// of that kind below.
class PortEditor : public IServerItemEditor
{
    Q_OBJECT
public:
    explicit PortEditor(QWidget *parent = nullptr);
    ~PortEditor() override;

    RTUPortEditor *rtuEditor() const { return m_rtu; }
    IPPortEditor *ipEditor() const { return m_ip; }

public slots:
    void setItem(ServerItem *item) override;
    void disconnectEditor() override;

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void on_nameEdit_editingFinished();
    void on_enabledCheckBox_toggled(bool on);
    void onTypeChanged(int index);
    void onSubPageChanged();

private:
    void retranslateTypes();
    void showType(int type);

    Ui::PortEditor *ui;
    RTUPortEditor *m_rtu;
    IPPortEditor *m_ip;
    Port *m_port = nullptr;
};

#endif // PORTEDITOR_H
