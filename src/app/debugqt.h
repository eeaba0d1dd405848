#ifndef DEBUGQT_H
#define DEBUGQT_H

#include <QDebug>
#include <QMap>
#include <QObject>
#include <QString>

#include <atomic>

// The one log channel of the process. Every statement builds a QDebug chain
// that starts with a recognisable prefix; msg_handler() parses that prefix,
// filters by level mask and lays the line out according to the flags.
class DebugQt : public QObject
{
    Q_OBJECT
public:
    enum Level : uint {
        Error = 1,
        Warning = 2,
        Info = 4,
        Free1 = 8,
        Free2 = 16,
        User1 = 32,
        User2 = 64,
    };

    enum Layout : uint {
        ShowText = 0x10000,
        ShowDate = 0x20000,
        ShowTime = 0x40000,
        ShowPidTid = 0x80000,
        ShowMemory = 0x100000,
        ShowFileLine = 0x200000,
        ShowFunction = 0x400000,
        ShowLevel = 0x800000,
        ShowClass = 0x8000000,
    };

    static constexpr uint StartFlags = 0x8ED0007;
    static constexpr uint LayoutFlags = 0x8ED0000;
    static constexpr uint FallbackFlags = 0x8ED0003;

    static DebugQt *instance(uint flags = FallbackFlags, QObject *parent = nullptr);
    ~DebugQt() override;

    // Read by every logging thread without a lock; atomics keep that cheap and defined.
    uint flags() const { return m_flags.load(std::memory_order_relaxed); }
    void setFlags(uint flags) { m_flags.store(flags, std::memory_order_relaxed); }

    bool emitMessages() const { return m_emitMessages.load(std::memory_order_relaxed); }
    void setEmitMessages(bool on) { m_emitMessages.store(on, std::memory_order_relaxed); }

    // The handler that was installed before this one (kept, never called).
    QtMessageHandler previousHandler() const { return m_previousHandler; }

    // Per-class level masks; a class found here is filtered by its own mask.
    QMap<QString, uint> &classMasks() { return m_classMasks; }

    static void msg_handler(QtMsgType type, const QMessageLogContext &context, const QString &text);
    void emit_msg(const QString &text);

signals:
    void msg(const QString &text);

private:
    DebugQt(uint flags, QObject *parent);

    static std::atomic<DebugQt *> s_instance;
    std::atomic<uint> m_flags;
    QMap<QString, uint> m_classMasks;
    QtMessageHandler m_previousHandler = nullptr;
    std::atomic<bool> m_emitMessages {false};
};

#define DEBUGQT_CHAIN(level, className)                                                            \
    QDebug(QtDebugMsg) << "__DEBUGQT_PREFIX__" << int(level) << __FILE__ << __FUNCTION__           \
                       << __LINE__ << (className) << "*" << 0

// In member functions of QObject classes: the run-time class names the line.
#define DQT_LOG(level) DEBUGQT_CHAIN(level, metaObject()->className())
// In free and static functions, and in classes without a meta-object.
#define DQT_SLOG(level) DEBUGQT_CHAIN(level, "static")

#define LOG_ERR DQT_LOG(DebugQt::Error)
#define LOG_WARN DQT_LOG(DebugQt::Warning)
#define LOG_INFO DQT_LOG(DebugQt::Info)
#define SLOG_ERR DQT_SLOG(DebugQt::Error)
#define SLOG_WARN DQT_SLOG(DebugQt::Warning)
#define SLOG_INFO DQT_SLOG(DebugQt::Info)

#endif // DEBUGQT_H
