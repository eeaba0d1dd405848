#include "app/debugqt.h"

#include "stderrcapture.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

const QString kLine
    = QStringLiteral("__DEBUGQT_PREFIX__ %1 ../src/model/server.cpp load 288 %2 * 0 emit loaded()");

QString prefixed(uint level, const QString &className = QStringLiteral("Server"))
{
    return kLine.arg(level).arg(className);
}

constexpr uint kAllLevels = DebugQt::Error | DebugQt::Warning | DebugQt::Info | DebugQt::Free1
    | DebugQt::Free2 | DebugQt::User1 | DebugQt::User2;

} // namespace

// Logs through the real macro, as every class of the program does.
class Logger : public QObject
{
    Q_OBJECT
public:
    int load()
    {
        LOG_INFO << "emit loaded()";
        return __LINE__ - 1;
    }
};

class tst_DebugQt : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void levelFilter_data();
    void levelFilter();
    void layout_data();
    void layout();
    void clockAndProcessFields();
    void messageTypes_data();
    void messageTypes();
    void emptyFatalReturns();
    void emitOnlyWhenEnabled();
    void realMacroLine();
    void singletonKeepsFirstArguments();

private:
    // Runs the handler with stderr captured; returns what was printed.
    QByteArray handle(QtMsgType type, const QString &text);

    DebugQt *m_debug = nullptr;
    QSignalSpy *m_spy = nullptr;
};

void tst_DebugQt::initTestCase()
{
    m_debug = DebugQt::instance(DebugQt::StartFlags, this);
    QVERIFY(m_debug);
}

void tst_DebugQt::init()
{
    m_debug->setEmitMessages(true);
    m_debug->classMasks().clear();
    m_spy = new QSignalSpy(m_debug, &DebugQt::msg);
}

void tst_DebugQt::cleanup()
{
    delete m_spy;
    m_spy = nullptr;
    m_debug->classMasks().clear();
    m_debug->setFlags(DebugQt::StartFlags);
}

QByteArray tst_DebugQt::handle(QtMsgType type, const QString &text)
{
    StderrCapture capture;
    DebugQt::msg_handler(type, QMessageLogContext(), text);
    return capture.take();
}

void tst_DebugQt::levelFilter_data()
{
    QTest::addColumn<uint>("flags");
    QTest::addColumn<uint>("level");
    QTest::addColumn<QString>("maskedClass");
    QTest::addColumn<uint>("classMask");
    QTest::addColumn<bool>("passes");

    const uint text = DebugQt::ShowText;
    QTest::newRow("level on") << (text | DebugQt::Info) << 4u << QString() << 0u << true;
    QTest::newRow("level off") << (text | DebugQt::Error | DebugQt::Warning) << 4u << QString()
                               << 0u << false;
    QTest::newRow("level zero") << (text | kAllLevels) << 0u << QString() << 0u << false;
    QTest::newRow("class mask drops")
        << (text | kAllLevels) << 4u << QStringLiteral("Server") << uint(DebugQt::Error) << false;
    QTest::newRow("class mask lets through")
        << (text | DebugQt::Error) << 4u << QStringLiteral("Server") << uint(DebugQt::Info) << true;
}

void tst_DebugQt::levelFilter()
{
    QFETCH(uint, flags);
    QFETCH(uint, level);
    QFETCH(QString, maskedClass);
    QFETCH(uint, classMask);
    QFETCH(bool, passes);

    m_debug->setFlags(flags);
    if (!maskedClass.isEmpty())
        m_debug->classMasks().insert(maskedClass, classMask);

    const QByteArray out = handle(QtDebugMsg, prefixed(level));
    if (passes) {
        QCOMPARE(out, QByteArray("emit loaded()\n"));
        QCOMPARE(m_spy->count(), 1);
        QCOMPARE(m_spy->at(0).at(0).toString(), QStringLiteral("emit loaded()"));
    } else {
        QCOMPARE(out, QByteArray());
        QCOMPARE(m_spy->count(), 0);
    }
}

void tst_DebugQt::layout_data()
{
    QTest::addColumn<uint>("flags");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("expected");

    const uint lw = kAllLevels | DebugQt::ShowLevel | DebugQt::ShowText;
    QTest::newRow("text only") << (kAllLevels | uint(DebugQt::ShowText)) << prefixed(4)
                               << "emit loaded()";
    QTest::newRow("err word") << lw << prefixed(1) << "err: : emit loaded()";
    QTest::newRow("warn word") << lw << prefixed(2) << "warn: : emit loaded()";
    QTest::newRow("info word") << lw << prefixed(4) << "info: : emit loaded()";
    QTest::newRow("free level has no word") << lw << prefixed(8) << "emit loaded()";
    QTest::newRow("usr1 word") << lw << prefixed(32) << "usr1: : emit loaded()";
    QTest::newRow("usr2 word") << lw << prefixed(64) << "usr2: : emit loaded()";
    QTest::newRow("lowest level bit wins") << lw << prefixed(6) << "warn: : emit loaded()";

    const uint base = kAllLevels | DebugQt::ShowText;
    QTest::newRow("file and line") << (base | DebugQt::ShowFileLine) << prefixed(4)
                                   << "../src/model/server.cpp[288] : emit loaded()";
    QTest::newRow("function alone")
        << (base | DebugQt::ShowFunction) << prefixed(4) << "load() : emit loaded()";
    QTest::newRow("class and function") << (base | DebugQt::ShowFunction | DebugQt::ShowClass)
                                        << prefixed(4) << "Server::load() : emit loaded()";
    QTest::newRow("class alone adds nothing")
        << (base | DebugQt::ShowClass) << prefixed(4) << "emit loaded()";
    QTest::newRow("static class") << (base | DebugQt::ShowFunction | DebugQt::ShowClass)
                                  << prefixed(4, QStringLiteral("static"))
                                  << "static::load() : emit loaded()";
    QTest::newRow("all but clock")
        << (base | DebugQt::ShowLevel | DebugQt::ShowFileLine | DebugQt::ShowFunction
            | DebugQt::ShowClass)
        << prefixed(4) << "info: ../src/model/server.cpp[288] Server::load() : emit loaded()";
    QTest::newRow("layout without text")
        << (kAllLevels | uint(DebugQt::ShowLevel)) << prefixed(1) << "err: : ";
    QTest::newRow("text keeps asterisks")
        << base << QStringLiteral("__DEBUGQT_PREFIX__ 4 f.cpp f 1 A * 0 a * b") << "a * b";
    QTest::newRow("text keeps its blanks")
        << base << QStringLiteral("__DEBUGQT_PREFIX__ 4 f.cpp f 1 A * 0  two  blanks ")
        << " two  blanks ";
    // Not from the log macro: printed as it came, whatever the flags.
    QTest::newRow("plain Qt message") << uint(DebugQt::ShowLevel) << "QWidget: something"
                                      << "QWidget: something";
    QTest::newRow("prefix without structure")
        << (kAllLevels | uint(DebugQt::ShowText)) << "__DEBUGQT_PREFIX__ broken line"
        << "__DEBUGQT_PREFIX__ broken line";
}

void tst_DebugQt::layout()
{
    QFETCH(uint, flags);
    QFETCH(QString, message);
    QFETCH(QString, expected);

    m_debug->setFlags(flags);
    const QByteArray out = handle(QtDebugMsg, message);
    QCOMPARE(QString::fromUtf8(out), expected + QLatin1Char('\n'));
    QCOMPARE(m_spy->count(), 1);
    QCOMPARE(m_spy->at(0).at(0).toString(), expected);
}

void tst_DebugQt::clockAndProcessFields()
{
    m_debug->setFlags(DebugQt::Info | DebugQt::ShowDate | DebugQt::ShowTime | DebugQt::ShowPidTid
                      | DebugQt::ShowMemory | DebugQt::ShowText);
    const QString out = QString::fromUtf8(handle(QtDebugMsg, prefixed(4)));
    const QRegularExpression re(QStringLiteral(
        R"(^(\d\d)\.(\d\d)\.(\d\d) (\d\d):(\d\d):(\d\d)\.(\d{6}) (\d+)/(\d+) (\d+)/(\d+) : emit loaded\(\)\n$)"));
    const QRegularExpressionMatch m = re.match(out);
    QVERIFY2(m.hasMatch(), qPrintable(out));

    const QDate today = QDate::currentDate();
    QCOMPARE(m.captured(1).toInt(), today.year() - 2000);
    QVERIFY(m.captured(2).toInt() >= 1 && m.captured(2).toInt() <= 12);
    QVERIFY(m.captured(3).toInt() >= 1 && m.captured(3).toInt() <= 31);
    QVERIFY(m.captured(4).toInt() < 24);
    QCOMPARE(m.captured(8).toLongLong(), qint64(getpid()));
    QCOMPARE(m.captured(9).toLongLong(), qint64(syscall(SYS_gettid)));
}

void tst_DebugQt::messageTypes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("expected");

    const QString raw = QStringLiteral("QObject: plain warning");
    QTest::newRow("debug") << int(QtDebugMsg) << raw << raw;
    QTest::newRow("info") << int(QtInfoMsg) << raw << raw;
    QTest::newRow("warning") << int(QtWarningMsg) << raw << "Warning: " + raw;
    QTest::newRow("critical") << int(QtCriticalMsg) << raw << "Critical: " + raw;
    QTest::newRow("prefixed warning")
        << int(QtWarningMsg) << prefixed(4) << QStringLiteral("Warning: emit loaded()");
    QTest::newRow("utf-8") << int(QtDebugMsg) << QStringLiteral("Прибор №5 ответил")
                           << QStringLiteral("Прибор №5 ответил");
}

void tst_DebugQt::messageTypes()
{
    QFETCH(int, type);
    QFETCH(QString, message);
    QFETCH(QString, expected);

    // No level at all: a message without the prefix still passes.
    m_debug->setFlags(DebugQt::ShowText);
    if (message.startsWith(QLatin1String("__DEBUGQT")))
        m_debug->setFlags(DebugQt::ShowText | DebugQt::Info);
    const QByteArray out = handle(QtMsgType(type), message);
    QCOMPARE(QString::fromUtf8(out), expected + QLatin1Char('\n'));
    QCOMPARE(m_spy->count(), 1);
    // The signal carries the line without the type word.
    QVERIFY(expected.endsWith(m_spy->at(0).at(0).toString()));
}

void tst_DebugQt::emptyFatalReturns()
{
    // Level passes but nothing of the line is shown: no output, no abort.
    m_debug->setFlags(DebugQt::Info);
    QCOMPARE(handle(QtFatalMsg, prefixed(4)), QByteArray());
    // Text shown, but the caller wrote nothing after the fixed fields.
    m_debug->setFlags(DebugQt::Info | DebugQt::ShowText);
    QCOMPARE(handle(QtFatalMsg, QStringLiteral("__DEBUGQT_PREFIX__ 4 f.cpp f 1 A * 0")),
             QByteArray());
    // Filtered out by level.
    m_debug->setFlags(DebugQt::Error | DebugQt::ShowText);
    QCOMPARE(handle(QtFatalMsg, prefixed(4)), QByteArray());
    QCOMPARE(handle(QtFatalMsg, QString()), QByteArray());
    // A level that is not a number is level 0 and never passes.
    m_debug->setFlags(0xffffffff);
    QCOMPARE(handle(QtFatalMsg, QStringLiteral("__DEBUGQT_PREFIX__ x f.cpp f 1 A * 0 boom")),
             QByteArray());
    QCOMPARE(m_spy->count(), 0);
}

void tst_DebugQt::emitOnlyWhenEnabled()
{
    m_debug->setFlags(DebugQt::Info | DebugQt::ShowText);
    m_debug->setEmitMessages(false);
    QCOMPARE(handle(QtDebugMsg, prefixed(4)), QByteArray("emit loaded()\n"));
    QCOMPARE(m_spy->count(), 0);
}

void tst_DebugQt::realMacroLine()
{
    m_debug->setFlags(DebugQt::Error | DebugQt::Info | DebugQt::ShowLevel | DebugQt::ShowFileLine
                      | DebugQt::ShowFunction | DebugQt::ShowClass | DebugQt::ShowText);
    Logger logger;
    int line = 0;
    {
        StderrCapture capture;
        line = logger.load();
        const QString out = QString::fromUtf8(capture.take());
        const QString expected
            = QStringLiteral(
                  "info: ../tests/app/tst_debugqt.cpp[%1] Logger::load() : emit loaded()\n")
                  .arg(line);
        QCOMPARE(out, expected);
    }
    {
        StderrCapture capture;
        SLOG_ERR << "from" << 42 << QStringLiteral("quoted");
        const int here = __LINE__ - 1;
        QCOMPARE(QString::fromUtf8(capture.take()),
                 QStringLiteral("err: ../tests/app/tst_debugqt.cpp[%1] static::realMacroLine() : "
                                "from 42 \"quoted\"\n")
                     .arg(here));
    }
    // A level outside the mask costs the caller nothing visible.
    m_debug->setFlags(DebugQt::Error | DebugQt::ShowText);
    {
        StderrCapture capture;
        logger.load();
        QCOMPARE(capture.take(), QByteArray());
    }
    QCOMPARE(m_spy->count(), 2);
}

void tst_DebugQt::singletonKeepsFirstArguments()
{
    QCOMPARE(DebugQt::instance(0x1, nullptr), m_debug);
    QCOMPARE(m_debug->flags(), DebugQt::StartFlags);
    QCOMPARE(m_debug->parent(), this);
    QVERIFY(qInstallMessageHandler(nullptr) == &DebugQt::msg_handler);
    qInstallMessageHandler(&DebugQt::msg_handler);
}

QTEST_GUILESS_MAIN(tst_DebugQt)
#include "tst_debugqt.moc"
