#include "tests/host/commandline/commandlinetest.h"
#include "tests/support/mediaclips.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QJsonDocument>
#include <QJsonObject>

/*! Converting many files: what is named, what results are called, what is told. */
class TestConvertMany : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void aFolderIsConverted();
    void aMirroredTreeKeepsItsFolders();
    void aFolderNeedsAPlaceForItsResults();
    void aFolderWithoutMediaIsAnError();
    void filesCanBeListedOnStandardInput();
    void aResultCanBeNamed();
    void aWrongNameIsRefused_data();
    void aWrongNameIsRefused();
    void namesFollowATemplate();
    void thePictureCanBeInTheName();
    void aPictureCannotBeInTheNameOfASong();
    void skippingGoesOnWhereARunStopped();
    void aNameInUseCanBeAnError();
    void onlyAPartIsConverted();
    void programsGetALinePerEvent();
    void aQuietRunTellsOnlyWhatWentWrong();
    void aVerboseRunTellsWhatFfmpegDoes();
    void whatFailedIsRetried();
    void theNumberOfJobsIsChecked();

private:
    /*! All files below a folder, by their paths in it. */
    QStringList below(const char *folder) const
    {
        const QDir top(path(QString::fromUtf8(folder)));
        QStringList found;
        QDirIterator files(top.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            found << top.relativeFilePath(files.next());
        }
        found.sort();
        return found;
    }
    static QVector<QJsonObject> events(const CommandRun &run)
    {
        QVector<QJsonObject> events;
        const QStringList lines = run.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString &line : lines) {
            events << QJsonDocument::fromJson(line.toUtf8()).object();
        }
        return events;
    }
    CommandRun runWithInput(const char *line, const QByteArray &input) const
    {
        QProcess process;
        start(process, QStringList{QStringLiteral("--config"), config()} + words(line));
        process.write(input);
        process.closeWriteChannel();
        return CommandRun::of(process);
    }
};

void TestConvertMany::initTestCase()
{
    CommandLineTest::initTestCase();
    QVERIFY(MediaClips::makeSong(m_clips.filePath(QStringLiteral("song.wav"))));
}

void TestConvertMany::init()
{
    CommandLineTest::init();
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("in/sub")));
    for (const char *name : {"in/a.wav", "in/b.wav", "in/sub/c.wav"}) {
        QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("song.wav")),
                            path(QString::fromUtf8(name))));
    }
    QVERIFY(writeFile(path(QStringLiteral("in/notes.txt")), "no media"));
}

void TestConvertMany::aFolderIsConverted()
{
    const CommandRun result = run("convert in --preset A_MP3_1 --to out");
    QCOMPARE(result.err, QString());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.out.endsWith(QStringLiteral("\n2 of 2 files converted\n")));
    QCOMPARE(below("out"), words("a.mp3 b.mp3"));
}

void TestConvertMany::aMirroredTreeKeepsItsFolders()
{
    QCOMPARE(run("convert in --recursive --preset A_MP3_1 --to flat").exitCode, 0);
    QCOMPARE(below("flat"), words("a.mp3 b.mp3 c.mp3"));
    QCOMPARE(run("convert in -r --mirror --preset A_MP3_1 --to tree").exitCode, 0);
    QCOMPARE(below("tree"), words("a.mp3 b.mp3 sub/c.mp3"));
}

void TestConvertMany::aFolderNeedsAPlaceForItsResults()
{
    const CommandRun nowhere = run("convert in --preset A_MP3_1");
    QCOMPARE(nowhere.exitCode, 2);
    QCOMPARE(nowhere.err,
             QStringLiteral("vexconvert: say with --to where the results of a folder go\n"));
    const CommandRun itself = run("convert in --preset A_MP3_1 --to in");
    QCOMPARE(itself.exitCode, 2);
    QCOMPARE(below("in"), words("a.wav b.wav notes.txt sub/c.wav"));
}

void TestConvertMany::aFolderWithoutMediaIsAnError()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("empty")));
    const CommandRun result = run("convert empty --preset A_MP3_1 --to out");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.err, QStringLiteral("vexconvert: there are no media files in empty; name other "
                                        "files or folders, or look below them with --recursive\n"));
}

void TestConvertMany::filesCanBeListedOnStandardInput()
{
    QCOMPARE(
        runWithInput("convert - --preset A_MP3_1 --to out", "in/b.wav\nin/sub/c.wav\n").exitCode,
        0);
    QCOMPARE(below("out"), words("b.mp3 c.mp3"));
}

void TestConvertMany::aResultCanBeNamed()
{
    QCOMPARE(run("convert in/a.wav --preset A_MP3_1 -o new/my.song.mp3").exitCode, 0);
    QCOMPARE(below("new"), words("my.song.mp3"));
}

void TestConvertMany::aWrongNameIsRefused_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("mistake");
    const QString forOne = QStringLiteral("--output names the result of one file; for several use "
                                          "--to and --name");
    QTest::newRow("several files") << QStringLiteral("in/a.wav in/b.wav -o x.mp3") << forOne;
    QTest::newRow("two names") << QStringLiteral("in/a.wav -o x.mp3 --to out") << forOne;
    QTest::newRow("another kind")
        << QStringLiteral("in/a.wav -o x.ogg")
        << QStringLiteral("the preset writes a .mp3 file; end the name \"x.ogg\" with \".mp3\", or "
                          "choose another preset");
    QTest::newRow("template") << QStringLiteral("in/a.wav --name {title}")
                              << QStringLiteral("--name: there is no field {title}; the fields "
                                                "are: {name}, {preset}, {date}, {n}, {width}, "
                                                "{height}");
    QTest::newRow("if it exists")
        << QStringLiteral("in/a.wav --if-exists replace")
        << QStringLiteral("--if-exists is one of rename|skip|overwrite|error, not \"replace\"");
    QTest::newRow("mirror") << QStringLiteral("in/a.wav --mirror")
                            << QStringLiteral("--mirror needs a folder for the results: --to DIR");
}

void TestConvertMany::aWrongNameIsRefused()
{
    QFETCH(QString, arguments);
    QFETCH(QString, mistake);
    const QStringList given = arguments.split(QLatin1Char(' '));
    const CommandRun result = run(words("convert --preset A_MP3_1") + given);
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.err, QStringLiteral("vexconvert: %1\n").arg(mistake));
    QCOMPARE(below("in"), words("a.wav b.wav notes.txt sub/c.wav"));
}

void TestConvertMany::namesFollowATemplate()
{
    QFile source(path(QStringLiteral("in/a.wav")));
    QVERIFY(source.open(QIODevice::ReadWrite));
    QVERIFY(source.setFileTime(QDateTime(QDate(2020, 2, 29), QTime(12, 0)),
                               QFileDevice::FileModificationTime));
    source.close();
    QCOMPARE(run("convert in/b.wav in/a.wav --preset A_MP3_1 --to out --name "
                 "{n}_{name}_{preset}_{date}")
                 .exitCode,
             0);
    QVERIFY(QFile::copy(path(QStringLiteral("in/a.wav")), path(QStringLiteral("in/.wav"))));
    QCOMPARE(run("convert in/.wav --preset A_MP3_1 --to only --name {name}").exitCode, 0);
    QCOMPARE(below("only"), words(".wav.mp3"));
    QVERIFY(below("out").contains(QStringLiteral("2_a_A_MP3_1_2020-02-29.mp3")));
    QVERIFY(below("out").constFirst().startsWith(QStringLiteral("1_b_A_MP3_1_")));
}

void TestConvertMany::thePictureCanBeInTheName()
{
    QCOMPARE(run("convert film.mp4 --preset V_MP4_2 --to out --name {width}x{height}").exitCode, 0);
    QCOMPARE(below("out"), words("120x90.mp4"));
    QCOMPARE(MediaClips::factsOf(path(QStringLiteral("out/120x90.mp4"))).video()->displaySize(),
             QSize(120, 90));
}

void TestConvertMany::aPictureCannotBeInTheNameOfASong()
{
    const CommandRun result = run("convert in/a.wav --preset A_MP3_1 --to out --name {width}");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.err, QStringLiteral("vexconvert: in/a.wav: the output has no picture, so its "
                                        "name can't hold the picture's width or height\n"));
}

void TestConvertMany::skippingGoesOnWhereARunStopped()
{
    QCOMPARE(run("convert in/a.wav --preset A_MP3_1 --to out").exitCode, 0);
    const QByteArray before = contentOf(path(QStringLiteral("out/a.mp3")));
    QVERIFY(QFile::copy(path(QStringLiteral("in/a.wav")), path(QStringLiteral("in/a.w64"))));
    const char *const again = "convert in --preset A_MP3_2 --to out --if-exists skip";
    const CommandRun second = run(again);
    QCOMPARE(second.exitCode, 0);
    QVERIFY(second.out.endsWith(QStringLiteral("\n2 of 3 files converted; 1 skipped\n")));
    QCOMPARE(contentOf(path(QStringLiteral("out/a.mp3"))), before);
    // Two sources of one name have a result each, and the next run knows both.
    QCOMPARE(below("out"), QStringList({QStringLiteral("a (2).mp3"), QStringLiteral("a.mp3"),
                                        QStringLiteral("b.mp3")}));
    const CommandRun third = run(again);
    QCOMPARE(third.exitCode, 0);
    QVERIFY(third.out.endsWith(QStringLiteral("\n0 of 3 files converted; 3 skipped\n")));
    QCOMPARE(below("out").size(), 3);
}

void TestConvertMany::aNameInUseCanBeAnError()
{
    QVERIFY(writeFile(path(QStringLiteral("in/a.mp3")), "old"));
    const CommandRun result = run("convert in/a.wav in/b.wav --preset A_MP3_1 --if-exists error");
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.err.contains(
        QStringLiteral("there is a file %1 already").arg(path(QStringLiteral("in/a.mp3")))));
    QVERIFY(result.out.endsWith(QStringLiteral("1 of 2 files converted; failed: in/a.wav\n")));
    QCOMPARE(contentOf(path(QStringLiteral("in/a.mp3"))), QByteArray("old"));
}

void TestConvertMany::onlyAPartIsConverted()
{
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1 --to out --start 0.2 --end 0:00.6").exitCode,
             0);
    const double duration = MediaClips::factsOf(path(QStringLiteral("out/film.mkv"))).duration;
    QVERIFY2(duration > 0.3 && duration < 0.55, qPrintable(QString::number(duration)));
    const CommandRun wrong = run("convert film.mp4 --preset V_MKV_1 --start soon");
    QCOMPARE(wrong.exitCode, 2);
    QCOMPARE(wrong.err, QStringLiteral("vexconvert: --start takes a time such as 1:02:03.5 or a "
                                       "number of seconds\n"));
}

void TestConvertMany::programsGetALinePerEvent()
{
    QVERIFY(writeFile(path(QStringLiteral("in/bad.wav")), "no media"));
    const CommandRun result = run("convert in --preset A_MP3_1 --to out --json --jobs 1");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.err, QString());
    QStringList seen;
    for (const QJsonObject &event : events(result)) {
        const QString kind = event.value(QStringLiteral("event")).toString();
        if (kind != QLatin1String("progress")) {
            seen << QStringLiteral("%1 %2 %3 %4")
                        .arg(event.value(QStringLiteral("index")).toInt())
                        .arg(kind, event.value(QStringLiteral("source")).toString(),
                             event.value(QStringLiteral("status")).toString())
                        .trimmed();
        }
    }
    QCOMPARE(seen, QStringList({QStringLiteral("1 planned in/a.wav"),
                                QStringLiteral("1 result in/a.wav converted"),
                                QStringLiteral("2 planned in/b.wav"),
                                QStringLiteral("2 result in/b.wav converted"),
                                QStringLiteral("3 planned in/bad.wav"),
                                QStringLiteral("3 result in/bad.wav failed")}));
    const QJsonObject failed = events(result).constLast();
    QVERIFY(failed.value(QStringLiteral("error"))
                .toString()
                .startsWith(QStringLiteral("cannot be read as media (")));
    const QJsonObject planned =
        events(run("convert in/a.wav --preset A_MP3_1 --json --dry-run")).constLast();
    QCOMPARE(planned.value(QStringLiteral("target")).toString(), path(QStringLiteral("in/a.mp3")));
    QVERIFY(
        planned.value(QStringLiteral("command")).toString().startsWith(QStringLiteral("ffmpeg ")));
}

void TestConvertMany::aQuietRunTellsOnlyWhatWentWrong()
{
    const CommandRun result = run("convert in/a.wav missing.wav --preset A_MP3_1 --quiet");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.out, QString());
    QCOMPARE(result.err, QStringLiteral("vexconvert: missing.wav: no such file; check its name\n"));
}

void TestConvertMany::aVerboseRunTellsWhatFfmpegDoes()
{
    const CommandRun result = run("convert in/a.wav --preset A_MP3_1 --verbose");
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.err.startsWith(QStringLiteral("ffmpeg -nostdin ")), qPrintable(result.err));
    QVERIFY2(result.err.contains(QStringLiteral("Stream mapping:")), qPrintable(result.err));
    QCOMPARE(below("in"), words("a.mp3 a.wav b.wav notes.txt sub/c.wav"));
}

void TestConvertMany::whatFailedIsRetried()
{
    QVERIFY(writeFile(path(QStringLiteral("in/sub/bad.wav")), "no media"));
    const char *const line = "convert in -r --mirror --preset A_MP3_1 --to out --json";
    const CommandRun first = run(line);
    QCOMPARE(first.exitCode, 1);
    QVERIFY(writeFile(path(QStringLiteral("log")), first.out.toUtf8()));
    QVERIFY(QFile::remove(path(QStringLiteral("in/sub/bad.wav"))));
    QVERIFY(QFile::copy(path(QStringLiteral("in/a.wav")), path(QStringLiteral("in/sub/bad.wav"))));
    const CommandRun retry = run(words(line) + words("--retry-failed log"));
    QCOMPARE(retry.exitCode, 0);
    QCOMPARE(below("out"), words("a.mp3 b.mp3 sub/bad.mp3 sub/c.mp3"));
    QVERIFY(writeFile(path(QStringLiteral("log")), first.out.toUtf8() + retry.out.toUtf8()));
    const CommandRun nothing = run(words(line) + words("--retry-failed log"));
    QCOMPARE(nothing.exitCode, 0);
    QCOMPARE(nothing.out, QString());
}

void TestConvertMany::theNumberOfJobsIsChecked()
{
    for (const char *const jobs : {"0", "many", "1025"}) {
        const CommandRun result =
            run(words("convert in/a.wav --preset A_MP3_1 --jobs") + words(jobs));
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(result.err, QStringLiteral("vexconvert: --jobs takes a number from 1 to 1024\n"));
    }
}

QTEST_GUILESS_MAIN(TestConvertMany)
#include "tst_convertmany.moc"
