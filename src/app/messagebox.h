#ifndef MESSAGEBOX_H
#define MESSAGEBOX_H

#include <QMessageBox>
#include <QString>

#include <functional>

class QWidget;

// Every message box of the program goes through here, so that a test can
// answer it (and see what was asked) instead of blocking in a modal loop.
class MessageBox
{
public:
    struct Request
    {
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QString title;
        QString text;
        QMessageBox::StandardButtons buttons = QMessageBox::Ok;
        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    };

    // Returns the button that answers the request. While a hook is set no
    // box is shown at all.
    using Hook = std::function<QMessageBox::StandardButton(const Request &)>;

    static void setHook(const Hook &hook);
    static bool hasHook();

    static QMessageBox::StandardButton show(QWidget *parent, const Request &request);

    static QMessageBox::StandardButton
    warning(QWidget *parent, const QString &title, const QString &text,
            QMessageBox::StandardButtons buttons = QMessageBox::Ok,
            QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton
    critical(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButtons buttons = QMessageBox::Ok,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton
    information(QWidget *parent, const QString &title, const QString &text,
                QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton
    question(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

    // The title that boxes carry unless they name another.
    static QString appTitle() { return QStringLiteral("regdesk"); }
};

#endif // MESSAGEBOX_H
