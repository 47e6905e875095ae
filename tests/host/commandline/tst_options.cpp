#include "tests/host/commandline/commandlinetest.h"

#include <QDir>

/*! Defaults of options, and mistyped names. */
class TestOptions : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void defaultsComeFromTheFile();
    void theEnvironmentComesBeforeTheFile();
    void theCommandLineComesFirst();
    void aDescribedPresetComesBeforeADefaultOne();
    void aDefaultThatDoesNotApplyIsIgnored();
    void theEnvironmentNamesTheConfiguration();
    void anInvalidDefaultIsNamed_data();
    void anInvalidDefaultIsNamed();
    void whatHasNoDefaultsIgnoresTheFile();
    void aMistypedNameIsGuessed_data();
    void aMistypedNameIsGuessed();

private:
    bool writeDefaults(const QByteArray &lines) const
    {
        return QDir().mkpath(config()) && writeFile(config() + QLatin1String("/config.ini"), lines);
    }
    bool isConvertedTo(const char *result) const
    {
        return QFile::exists(path(QString::fromUtf8(result)));
    }
};

void TestOptions::defaultsComeFromTheFile()
{
    QVERIFY(writeDefaults("preset=A_MP3_1\nto=out\nname=\"{name}, {n}\"\nquiet=true\n"));
    const CommandRun result = run("convert film.mp4");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.out, QString());
    QVERIFY(isConvertedTo("out/film, 1.mp3"));
}

void TestOptions::theEnvironmentComesBeforeTheFile()
{
    QVERIFY(writeDefaults("preset=A_MP3_1\nif-exists=error\nquiet=true\n"));
    m_environment.insert(QStringLiteral("VEXCONVERT_PRESET"), QStringLiteral("V_MKV_1"));
    m_environment.insert(QStringLiteral("VEXCONVERT_IF_EXISTS"), QStringLiteral("skip"));
    m_environment.insert(QStringLiteral("VEXCONVERT_QUIET"), QStringLiteral("false"));
    QVERIFY(writeFile(path(QStringLiteral("film.mkv")), "there"));
    const CommandRun result = run("convert film.mp4");
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.out.startsWith(QStringLiteral("film.mp4: skipped")));
}

void TestOptions::theCommandLineComesFirst()
{
    QVERIFY(writeDefaults("preset=A_MP3_1\nto=out\n"));
    m_environment.insert(QStringLiteral("VEXCONVERT_TO"), QStringLiteral("elsewhere"));
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1 --to here").exitCode, 0);
    QVERIFY(isConvertedTo("here/film.mkv"));
    // A name of one's own says where, too.
    QCOMPARE(run("convert film.mp4 -o there/mine.mp3").exitCode, 0);
    QVERIFY(isConvertedTo("there/mine.mp3"));
    QVERIFY(!QDir(path(QStringLiteral("out"))).exists());
    QVERIFY(!QDir(path(QStringLiteral("elsewhere"))).exists());
}

void TestOptions::aDescribedPresetComesBeforeADefaultOne()
{
    QVERIFY(writeDefaults("preset=V_MKV_1\n"));
    QCOMPARE(run("convert film.mp4 --type audio --format MP3 --target 320").exitCode, 0);
    QVERIFY(isConvertedTo("film.mp3"));
}

void TestOptions::aDefaultThatDoesNotApplyIsIgnored()
{
    QVERIFY(writeDefaults("preset=A_MP3_1\nmirror=true\nrecursive=true\n"));
    QCOMPARE(run("convert film.mp4").exitCode, 0);
    QVERIFY(isConvertedTo("film.mp3"));
}

void TestOptions::theEnvironmentNamesTheConfiguration()
{
    QVERIFY(writeDefaults("preset=A_MP3_1\n"));
    m_environment.insert(QStringLiteral("VEXCONVERT_CONFIG"), config());
    QProcess process;
    start(process, words("convert film.mp4"));
    QCOMPARE(CommandRun::of(process).exitCode, 0);
    QVERIFY(isConvertedTo("film.mp3"));
    QVERIFY(QFile::exists(config() + QLatin1String("/recently.json")));
}

void TestOptions::anInvalidDefaultIsNamed_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("mistake");
    QTest::newRow("unknown") << QByteArray("job=2\n")
                             << QStringLiteral("\"job\" is no option with a default; did you mean "
                                               "\"jobs\"?");
    QTest::newRow("of one run only")
        << QByteArray("output=a.mp3\n") << QStringLiteral("\"output\" is no option with a default");
    QTest::newRow("comma") << QByteArray("to=a, b\n")
                           << QStringLiteral("the value of \"to\" has a comma; put it into quotes");
    QTest::newRow("flag") << QByteArray("mirror=yes\n")
                          << QStringLiteral("mirror is \"yes\"; it must be true or false");
}

void TestOptions::anInvalidDefaultIsNamed()
{
    QFETCH(QByteArray, lines);
    QFETCH(QString, mistake);
    QVERIFY(writeDefaults(lines));
    const CommandRun result = run("convert film.mp4 --preset A_MP3_1");
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.err, QStringLiteral("vexconvert: %1/config.ini: %2\n").arg(config(), mistake));
}

void TestOptions::whatHasNoDefaultsIgnoresTheFile()
{
    QVERIFY(writeDefaults("job=2\n"));
    QCOMPARE(run("formats").exitCode, 0);
}

void TestOptions::aMistypedNameIsGuessed_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("guess");
    const auto guess = [](const char *name) {
        return QStringLiteral("; did you mean \"%1\"?\n").arg(QLatin1String(name));
    };
    QTest::newRow("subcommand") << QStringLiteral("convret film.mp4") << guess("convert");
    QTest::newRow("option") << QStringLiteral("convert film.mp4 --preest A_MP3_1")
                            << guess("preset");
    QTest::newRow("preset") << QStringLiteral("convert film.mp4 --preset A_MP_1")
                            << guess("A_MP3_1");
    QTest::newRow("format") << QStringLiteral("presets MP33") << guess("MP3");
    QTest::newRow("nothing like it")
        << QStringLiteral("presets Betamax") << QStringLiteral("finds one\n");
}

void TestOptions::aMistypedNameIsGuessed()
{
    QFETCH(QString, arguments);
    QFETCH(QString, guess);
    const CommandRun result = run(arguments.split(QLatin1Char(' ')));
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.err.endsWith(guess), qPrintable(result.err));
}

QTEST_GUILESS_MAIN(TestOptions)
#include "tst_options.moc"
