#include "tests/host/commandline/commandlinetest.h"

#include <QFile>

/*! What the command prints on a terminal, which script(1) gives it. */
class TestTerminal : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void helpOfASubcommandIsAlsoASubcommand_data();
    void helpOfASubcommandIsAlsoASubcommand();
    void longHelpIsShownInThePager();
    void lessIsThePagerUnlessAnotherIsAsked();
    void helpIsPrintedWhereAPagerMakesNoSense_data();
    void helpIsPrintedWhereAPagerMakesNoSense();
    void progressOverwritesItsLineButOnADumbTerminal_data();
    void progressOverwritesItsLineButOnADumbTerminal();
    void nothingIsColoured();

private:
    /*! The output of the command on a terminal of 24 lines. */
    QString onTerminal(const char *arguments)
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.setWorkingDirectory(m_folder->path());
        process.start(
            QStringLiteral("script"),
            {QStringLiteral("-qec"),
             QStringLiteral("'" VEXCONVERT "' --config config ") + QString::fromUtf8(arguments),
             QStringLiteral("/dev/null")});
        return CommandRun::of(process).out;
    }

    void set(const char *variable, const char *value)
    {
        m_environment.insert(QString::fromUtf8(variable), QString::fromUtf8(value));
    }

private Q_SLOTS:
    void init()
    {
        CommandLineTest::init();
        set("TERM", "xterm");
        set("PAGER", "sed 's/^/paged: /'");
    }
};

void TestTerminal::helpOfASubcommandIsAlsoASubcommand_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("same");
    QTest::newRow("alone") << QStringLiteral("help") << QStringLiteral("--help");
    QTest::newRow("subcommand") << QStringLiteral("help convert")
                                << QStringLiteral("convert --help");
    QTest::newRow("itself") << QStringLiteral("help help") << QStringLiteral("--help");
    QTest::newRow("unknown") << QStringLiteral("help bogus") << QStringLiteral("bogus");
}

void TestTerminal::helpOfASubcommandIsAlsoASubcommand()
{
    QFETCH(QString, line);
    QFETCH(QString, same);
    const CommandRun help = run(line.split(QLatin1Char(' ')));
    const CommandRun other = run(same.split(QLatin1Char(' ')));
    QVERIFY(!(other.out + other.err).isEmpty());
    QCOMPARE(help.out, other.out);
    QCOMPARE(help.err, other.err);
    QCOMPARE(help.exitCode, other.exitCode);
}

void TestTerminal::longHelpIsShownInThePager()
{
    for (const char *arguments : {"help convert", "convert --help", "--help"}) {
        const QString out = onTerminal(arguments);
        QVERIFY2(out.startsWith(QStringLiteral("paged: Usage: vexconvert ")), qPrintable(out));
        QCOMPARE(out.count(QStringLiteral("Usage: ")), 1);
    }
}

void TestTerminal::lessIsThePagerUnlessAnotherIsAsked()
{
    QFile less(path(QStringLiteral("less")));
    QVERIFY(less.open(QIODevice::WriteOnly));
    less.write("#!/bin/sh\necho \"less $LESS\"\ncat\n");
    less.close();
    QVERIFY(less.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    m_environment.insert(QStringLiteral("PATH"), path(QString()) + QLatin1Char(':') +
                                                     m_environment.value(QStringLiteral("PATH")));
    m_environment.remove(QStringLiteral("PAGER"));
    m_environment.remove(QStringLiteral("LESS"));
    QVERIFY(onTerminal("help convert").startsWith(QStringLiteral("less FRX\r\nUsage: ")));
    set("LESS", "-S");
    QVERIFY(onTerminal("help convert").startsWith(QStringLiteral("less -S\r\nUsage: ")));
}

void TestTerminal::helpIsPrintedWhereAPagerMakesNoSense_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("arguments");
    const QByteArray help("help convert");
    QTest::newRow("no terminal") << QByteArray() << QByteArray() << help + " | cat";
    QTest::newRow("a terminal without a cursor")
        << QByteArray("TERM") << QByteArray("dumb") << help;
    QTest::newRow("a text that fits") << QByteArray() << QByteArray() << QByteArray("help formats");
    QTest::newRow("no pager") << QByteArray("PAGER") << QByteArray() << help;
    QTest::newRow("cat") << QByteArray("PAGER") << QByteArray("cat") << help;
    QTest::newRow("a pager that is missing")
        << QByteArray("PAGER") << QByteArray("/nowhere/pager 2>&-") << help;
}

void TestTerminal::helpIsPrintedWhereAPagerMakesNoSense()
{
    QFETCH(QByteArray, variable);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, arguments);
    if (!variable.isEmpty()) {
        set(variable.constData(), value.constData());
    }
    const QString out = onTerminal(arguments.constData());
    QVERIFY2(out.startsWith(QStringLiteral("Usage: vexconvert ")), qPrintable(out));
    QCOMPARE(out.count(QStringLiteral("Usage: ")), 1);
}

void TestTerminal::progressOverwritesItsLineButOnADumbTerminal_data()
{
    QTest::addColumn<QByteArray>("terminal");
    QTest::addColumn<bool>("isOverwriting");
    QTest::newRow("xterm") << QByteArray("xterm") << true;
    QTest::newRow("dumb") << QByteArray("dumb") << false;
    QTest::newRow("unknown") << QByteArray() << false;
}

void TestTerminal::progressOverwritesItsLineButOnADumbTerminal()
{
    QFETCH(QByteArray, terminal);
    QFETCH(bool, isOverwriting);
    set("TERM", terminal.constData());
    const QString out = onTerminal("convert film.mp4 --preset V_MP4_2");
    QVERIFY2(out.contains(QStringLiteral("film.mp4 -> ")), qPrintable(out));
    QCOMPARE(out.contains(QStringLiteral("\r\x1b[K")), isOverwriting);
    QCOMPARE(out.contains(QLatin1Char('\x1b')), isOverwriting);
}

void TestTerminal::nothingIsColoured()
{
    const QRegularExpression colour(QStringLiteral("\x1b\\[[0-9;]*m"));
    for (const char *arguments : {"convert film.mp4 --preset V_MP4_2 --verbose", "formats"}) {
        const QString out = onTerminal(arguments);
        QVERIFY(!out.isEmpty());
        QVERIFY2(!out.contains(colour), qPrintable(out));
    }
}

QTEST_GUILESS_MAIN(TestTerminal)

#include "tst_terminal.moc"
