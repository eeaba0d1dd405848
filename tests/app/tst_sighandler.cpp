#include <QProcess>
#include <QTest>

// Runs the child helper in each situation and checks how it ends.
class tst_SigHandler : public QObject
{
    Q_OBJECT

private slots:
    void outcome_data();
    void outcome();
};

void tst_SigHandler::outcome_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<bool>("crashes");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QStringList>("stderrHas");

    const QString segv = QStringLiteral("*** Segmentation fault ***");
    const QString bt = QStringLiteral("BT: obtained");
    QTest::newRow("SIGSEGV fault") << QStringList {"segv"} << false << 139
                                   << QStringList {"signal 11(", ") catched", segv, bt};
    QTest::newRow("SIGSEGV raised")
        << QStringList {"raise", "11"} << false << 139 << QStringList {"warn: ", segv, bt};
    QTest::newRow("SIGTERM") << QStringList {"raise", "15"} << false << 0
                             << QStringList {"signal 15('Terminated') catched"};
    QTest::newRow("SIGHUP") << QStringList {"raise", "1"} << false << 0
                            << QStringList {"signal 1('Hangup') catched"};
    QTest::newRow("SIGINT by hand")
        << QStringList {"call", "2"} << false << 0 << QStringList {"signal 2('Interrupt') catched"};
    QTest::newRow("other signal returns")
        << QStringList {"call", "10"} << false << 3 << QStringList {"signal 10(", "survived"};
    QTest::newRow("fatal message aborts")
        << QStringList {"fatal", "boom"} << true << 0 << QStringList {"Fatal: boom"};
    QTest::newRow("empty fatal message returns")
        << QStringList {"fatal", ""} << false << 3 << QStringList {"survived"};
}

void tst_SigHandler::outcome()
{
    QFETCH(QStringList, args);
    QFETCH(bool, crashes);
    QFETCH(int, exitCode);
    QFETCH(QStringList, stderrHas);

    QProcess child;
    child.start(QStringLiteral(SIGHANDLER_CHILD), args);
    QVERIFY(child.waitForFinished(60000));
    const QString err = QString::fromLocal8Bit(child.readAllStandardError());
    if (crashes) {
        QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    } else {
        QVERIFY2(child.exitStatus() == QProcess::NormalExit, qPrintable(err));
        QVERIFY2(child.exitCode() == exitCode, qPrintable(err));
    }
    for (const QString &piece : stderrHas)
        QVERIFY2(err.contains(piece), qPrintable(piece + QLatin1String(" not in: ") + err));
    if (!crashes && exitCode == 139) {
        // The trace reaches down into the faulting program.
        QVERIFY2(err.contains(QLatin1String("/sighandler_child")), qPrintable(err));
    }
}

QTEST_GUILESS_MAIN(tst_SigHandler)
#include "tst_sighandler.moc"
