#ifndef GUITESTSUPPORT_H
#define GUITESTSUPPORT_H

#include "app/debugqt.h"
#include "app/messagebox.h"

#include <QApplication>
#include <QDialog>
#include <QList>
#include <QStringList>
#include <QTimer>
#include <QtTest>

#include <functional>

// Answers every message box with the next queued button (or the default
// one) and keeps what was asked.
class BoxRecorder
{
public:
    BoxRecorder()
    {
        MessageBox::setHook([this](const MessageBox::Request &request) {
            requests.append(request);
            if (!answers.isEmpty())
                return answers.takeFirst();
            return request.defaultButton != QMessageBox::NoButton ? request.defaultButton
                                                                  : QMessageBox::Ok;
        });
    }
    ~BoxRecorder() { MessageBox::setHook({}); }

    QStringList texts() const
    {
        QStringList result;
        for (const MessageBox::Request &request : requests)
            result << request.text;
        return result;
    }

    QList<QMessageBox::StandardButton> answers;
    QList<MessageBox::Request> requests;
};

// Qt warnings that nobody expected fail the test in which they appear.
// The log channel is created first so that it doesn't replace this handler.
class WarningGuard
{
public:
    static void install()
    {
        DebugQt::instance(DebugQt::LayoutFlags | DebugQt::Error);
        // The test machine's environment, not the program.
        allowed() << QStringLiteral("XDG_RUNTIME_DIR not set")
                  << QStringLiteral("This plugin does not support propagateSizeHints()");
        qInstallMessageHandler(&WarningGuard::handler);
    }
    static QStringList &unexpected()
    {
        static QStringList list;
        return list;
    }
    static QStringList &allowed()
    {
        static QStringList list;
        return list;
    }
    // Call from cleanup(): fails with the warnings of the test that just ran.
    static bool check()
    {
        const QStringList found = unexpected();
        unexpected().clear();
        if (found.isEmpty())
            return true;
        fprintf(stderr, "unexpected Qt warnings:\n%s\n", qPrintable(found.join(QLatin1Char('\n'))));
        return false;
    }

private:
    static void handler(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (text.startsWith(QLatin1String("__DEBUGQT_PREFIX__"))
            || text.startsWith(QLatin1String("\"__DEBUGQT_PREFIX__"))) {
            DebugQt::msg_handler(type, context, text);
            return;
        }
        if (type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg) {
            for (const QString &pattern : allowed())
                if (text.contains(pattern))
                    return;
            unexpected().append(text);
        }
        fprintf(stderr, "%s\n", qPrintable(text));
    }
};

// Runs `action` on the next modal dialog of type T once it is shown.
template<typename T> void onNextDialog(const std::function<void(T *)> &action)
{
    auto *timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, action] {
        if (auto *dialog = qobject_cast<T *>(QApplication::activeModalWidget())) {
            timer->stop();
            timer->deleteLater();
            action(dialog);
        }
    });
    timer->start();
}

#endif // GUITESTSUPPORT_H
