#ifndef LOGWIDGET_H
#define LOGWIDGET_H

#include <QString>
#include <QWidget>

class Device;
namespace Ui {
class LogWidget;
}

// The traffic of one device: the lines its port exchanged with it, with a
// line limit, a search and saving to a file. The device editor feeds it by
// connecting its traffic signal to appendModbusMessage().
class LogWidget : public QWidget
{
    Q_OBJECT
public:
    explicit LogWidget(Device *device, QWidget *parent = nullptr);
    ~LogWidget() override;

    void setLinesCount(int count);
    int linesCount() const { return m_linesLimit; }
    QString text() const;
    QString statusText() const;
    // Writes the view to a file; a failure is told in a box unless quiet.
    bool saveLogFile(const QString &fileName, bool quiet = false);
    QString proposedFileName() const;

public slots:
    void appendModbusMessage(int address, const QString &text);

protected:
    void changeEvent(QEvent *event) override;

private slots:
    void on_spnLines_valueChanged(int count);
    void on_btnScrollToLast_toggled(bool on);
    void on_btnSearchUp_clicked();
    void on_btnSearchDown_clicked();
    void on_btnClear_clicked();
    void on_btnSaveAs_clicked();

private:
    Ui::LogWidget *ui;
    Device *m_device;
    int m_linesLimit;
    bool m_scrollToLast = true;
    QString m_lastSearch;
};

#endif // LOGWIDGET_H
