#include "app/backtrace.h"

#include <QTemporaryFile>
#include <QTest>

#include <cstdio>
#include <unistd.h>

class tst_BackTrace : public QObject
{
    Q_OBJECT

private slots:
    void frameParsing_data();
    void frameParsing();
    void here();
    void writers();
};

void tst_BackTrace::frameParsing_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("mangled");
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("printable");

    QTest::newRow("c++ symbol")
        << QByteArray("/usr/lib/x86_64-linux-gnu/libQt6Core.so.6(_ZN7QObject5eventEP6QEvent+0x1d) "
                      "[0x7f12deadbeef]")
        << "/usr/lib/x86_64-linux-gnu"
        << "libQt6Core.so.6"
        << "_ZN7QObject5eventEP6QEvent"
        << "QObject::event(QEvent*)"
        << "0x7f12deadbeef"
        << "/usr/lib/x86_64-linux-gnu/libQt6Core.so.6: QObject::event(QEvent*) [0x7f12deadbeef]";
    QTest::newRow("c symbol keeps mangled form")
        << QByteArray("/lib/x86_64-linux-gnu/libc.so.6(__libc_start_main+0x85) [0x7f0000001234]")
        << "/lib/x86_64-linux-gnu"
        << "libc.so.6"
        << "__libc_start_main" << QString() << "0x7f0000001234"
        << "/lib/x86_64-linux-gnu/libc.so.6: __libc_start_main [0x7f0000001234]";
    QTest::newRow("offset only") << QByteArray("./regdesk(+0x1c2f4) [0x55d0c1a2b2f4]") << "."
                                 << "regdesk" << QString() << QString() << "0x55d0c1a2b2f4"
                                 << "./regdesk:  [0x55d0c1a2b2f4]";
    QTest::newRow("address only") << QByteArray("[0x7ffd1234]") << QString() << QString()
                                  << QString() << QString() << "0x7ffd1234"
                                  << "/:  [0x7ffd1234]";
    QTest::newRow("no directory") << QByteArray("regdesk(main+0x10) [0x2]") << QString()
                                  << "regdesk"
                                  << "main" << QString() << "0x2"
                                  << "/regdesk: main [0x2]";
    QTest::newRow("plus in directory")
        << QByteArray("/usr/lib/c++/libfoo.so(_Z3foov+0x4) [0x9]") << "/usr/lib/c++"
        << "libfoo.so"
        << "_Z3foov"
        << "foo()"
        << "0x9"
        << "/usr/lib/c++/libfoo.so: foo() [0x9]";
    QTest::newRow("unterminated") << QByteArray("/a/b(sym+0x1") << "/a"
                                  << "b"
                                  << "sym" << QString() << QString() << "/a/b: sym []";
    QTest::newRow("empty") << QByteArray() << QString() << QString() << QString() << QString()
                           << QString() << "/:  []";
    // Out of order: the scan stops at the first delimiter that comes too late.
    QTest::newRow("close before open") << QByteArray("/a/b)c(d+1) [0x2]") << "/a" << QString()
                                       << QString() << QString() << QString() << "/a/:  []";
    QTest::newRow("bracket inside parentheses")
        << QByteArray("/a/b(c]d+1) [0x2]") << "/a"
        << "b" << QString() << QString() << QString() << "/a/b:  []";
    QTest::newRow("bracket before parentheses") << QByteArray("[0x2] /a/b(c+1)") << QString()
                                                << QString() << QString() << QString() << "0x2"
                                                << "/:  [0x2]";
    QTest::newRow("slash after open ignored") << QByteArray("/a/b(c/d+0x1) [0x3]") << "/a"
                                              << "b"
                                              << "c/d" << QString() << "0x3"
                                              << "/a/b: c/d [0x3]";
    QTest::newRow("bad mangling") << QByteArray("/a/b(_Z+0x1) [0x3]") << "/a"
                                  << "b"
                                  << "_Z" << QString() << "0x3"
                                  << "/a/b: _Z [0x3]";
}

void tst_BackTrace::frameParsing()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, directory);
    QFETCH(QString, module);
    QFETCH(QString, mangled);
    QFETCH(QString, symbol);
    QFETCH(QString, address);
    QFETCH(QString, printable);

    const BackTrace::Frame frame(line.isNull() ? "" : line.constData());
    QCOMPARE(frame.directory, directory);
    QCOMPARE(frame.module, module);
    QCOMPARE(frame.mangled, mangled);
    QCOMPARE(frame.symbol, symbol);
    QCOMPARE(frame.address, address);
    QCOMPARE(frame.printable(), printable);
}

void tst_BackTrace::here()
{
    const BackTrace full = BackTrace::here(0);
    QVERIFY(full.frames.size() > 3);
    const BackTrace skipped = BackTrace::here(2);
    QCOMPARE(skipped.frames.size(), full.frames.size() - 2);
    // Every frame of a real trace carries at least its address.
    for (const BackTrace::Frame &frame : full.frames)
        QVERIFY(!frame.address.isEmpty());

    const QString text = skipped.printable();
    QVERIFY(text.startsWith(
        QStringLiteral("BT: obtained %1 stack frames.\n").arg(skipped.frames.size())));
    QCOMPARE(text.count(QLatin1Char('\n')), skipped.frames.size() + 1);
    QVERIFY(text.endsWith(QLatin1Char('\n')));

    QCOMPARE(BackTrace::here(100000).printable(), QStringLiteral("BT: obtained 0 stack frames.\n"));
    QCOMPARE(BackTrace::here(-5).frames.size(), full.frames.size());
}

void tst_BackTrace::writers()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    backtrace_fd(file.handle());
    {
        FILE *stream = fdopen(dup(file.handle()), "w");
        QVERIFY(stream);
        backtrace_file(stream);
        fclose(stream);
    }
    file.seek(0);
    const QByteArray all = file.readAll();
    QCOMPARE(all.count("BT: obtained "), 2);
    QVERIFY(all.startsWith("BT: obtained "));
    // Each trace is followed by an empty line.
    QVERIFY(all.endsWith("\n\n"));
    QCOMPARE(all.count("]\n\nBT: obtained "), 1);
}

QTEST_GUILESS_MAIN(tst_BackTrace)
#include "tst_backtrace.moc"
