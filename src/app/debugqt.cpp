#include "app/debugqt.h"

#include <QMutex>
#include <QStringView>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <malloc.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

std::atomic<DebugQt *> DebugQt::s_instance {nullptr};

namespace {

const QLatin1String kPrefix("__DEBUGQT_PREFIX__");

// Fields of the prefix part of a log line, in the order the macro writes them.
enum Field { FieldPrefix, FieldLevel, FieldFile, FieldFunction, FieldLine, FieldClass, FieldCount };

const char *levelWord(uint level)
{
    if (level & DebugQt::Error)
        return "err: ";
    if (level & DebugQt::Warning)
        return "warn: ";
    if (level & DebugQt::Info)
        return "info: ";
    if (level & DebugQt::User1)
        return "usr1: ";
    if (level & DebugQt::User2)
        return "usr2: ";
    return nullptr;
}

} // namespace

DebugQt *DebugQt::instance(uint flags, QObject *parent)
{
    DebugQt *self = s_instance.load(std::memory_order_acquire);
    if (self)
        return self;
    // Creation can be reached from the handler on any thread; build it once.
    static QBasicMutex creation;
    QMutexLocker locker(&creation);
    self = s_instance.load(std::memory_order_acquire);
    if (!self)
        self = new DebugQt(flags, parent);
    return self;
}

DebugQt::DebugQt(uint flags, QObject *parent)
    : QObject(parent)
    , m_flags(flags)
{
    s_instance.store(this, std::memory_order_release);
    m_previousHandler = qInstallMessageHandler(DebugQt::msg_handler);
}

DebugQt::~DebugQt()
{
    // The handler stays installed: a later message builds a fresh instance.
    DebugQt *self = this;
    s_instance.compare_exchange_strong(self, nullptr);
}

void DebugQt::emit_msg(const QString &text)
{
    emit msg(text);
}

void DebugQt::msg_handler(QtMsgType type, const QMessageLogContext &, const QString &incoming)
{
    DebugQt *self = instance();
    QString text = incoming;

    if (text.startsWith(kPrefix)) {
        const qsizetype p = text.indexOf(QLatin1String(" * "));
        const QList<QStringView> fields
            = p < 0 ? QList<QStringView>() : QStringView(text).left(p).split(u' ');
        // A line that merely looks prefixed but lacks the structure passes unchanged.
        if (fields.size() >= FieldCount) {
            const uint level = fields.at(FieldLevel).toUInt();
            const QMap<QString, uint> &masks = self->m_classMasks;
            uint mask = self->flags();
            if (!masks.isEmpty()) {
                const auto it = masks.constFind(fields.at(FieldClass).toString());
                if (it != masks.constEnd())
                    mask = it.value();
            }
            if (!(level & mask))
                return;

            const uint flags = self->flags();
            QString line;
            char buf[128];
            if (flags & ShowLevel) {
                if (const char *word = levelWord(level))
                    line += QLatin1String(word);
            }
            if (flags & (ShowDate | ShowTime)) {
                timeval tv;
                gettimeofday(&tv, nullptr);
                struct tm tmv;
                localtime_r(&tv.tv_sec, &tmv);
                if (flags & ShowDate) {
                    snprintf(buf, sizeof buf, "%02d.%02d.%02d ", (tmv.tm_year + 1900 - 2000) % 100,
                             tmv.tm_mon + 1, tmv.tm_mday);
                    line += QLatin1String(buf);
                }
                if (flags & ShowTime) {
                    snprintf(buf, sizeof buf, "%02d:%02d:%02d.%06li ", tmv.tm_hour, tmv.tm_min,
                             tmv.tm_sec, long(tv.tv_usec));
                    line += QLatin1String(buf);
                }
            }
            if (flags & ShowPidTid) {
                snprintf(buf, sizeof buf, "%u/%u ", unsigned(getpid()),
                         unsigned(syscall(SYS_gettid)));
                line += QLatin1String(buf);
            }
            if (flags & ShowMemory) {
                const struct mallinfo2 mi = mallinfo2();
                snprintf(buf, sizeof buf, "%zu/%zu ", mi.uordblks, mi.fordblks);
                line += QLatin1String(buf);
            }
            if (flags & ShowFileLine) {
                line += fields.at(FieldFile);
                line += u'[';
                line += fields.at(FieldLine);
                line += QLatin1String("] ");
            }
            if ((flags & ShowClass) && (flags & ShowFunction)) {
                line += fields.at(FieldClass);
                line += QLatin1String("::");
                line += fields.at(FieldFunction);
                line += QLatin1String("() ");
            } else if (flags & ShowFunction) {
                line += fields.at(FieldFunction);
                line += QLatin1String("() ");
            }
            if (!line.isEmpty())
                line += QLatin1String(": ");
            // The caller's words start after " * 0 ".
            if (flags & ShowText)
                line += QStringView(text).mid(qMin(p + 5, text.size()));
            text = line;
        }
    }

    if (text.isEmpty())
        return;

    const QByteArray utf8 = text.toUtf8();
    switch (type) {
    case QtDebugMsg:
    case QtInfoMsg:
        fprintf(stderr, "%s\n", utf8.constData());
        break;
    case QtWarningMsg:
        fprintf(stderr, "Warning: %s\n", utf8.constData());
        break;
    case QtCriticalMsg:
        fprintf(stderr, "Critical: %s\n", utf8.constData());
        break;
    case QtFatalMsg:
        fprintf(stderr, "Fatal: %s\n", utf8.constData());
        abort();
    }

    if (self->emitMessages())
        self->emit_msg(text);
}
