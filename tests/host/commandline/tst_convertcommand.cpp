#include "host/presets/folderlock.h"
#include "tests/host/commandline/commandlinetest.h"
#include "tests/support/mediaclips.h"
#include "tests/support/runningprocess.h"

#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>

#include <csignal>

/*! The subcommand that converts. */
class TestConvertCommand : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void aFileIsConverted();
    void aFittingPresetConverts();
    void oneBadFileDoesNotStopTheOthers();
    void resultsOfOneRunAreNotOverwritten();
    void aDryRunOnlyPrintsTheCommand();
    void aNameInUseIsNumberedUnlessOverwriting();
    void aResultHasItsSourcesDateOnDemand();
    void interruptingLeavesNothing_data();
    void interruptingLeavesNothing();
    void aKillLeavesNoToolRunning();
    void withoutFfmpegItSaysWhatToInstall();
    void aLackOfFileDescriptorsIsReported();
    void aPlaylistIsRefused();
    void theBitrateIsReachedOnAverageWhereAsked();
    void aResultIsNoLargerThanAsked();
    void anImpossibleSizeIsRefused_data();
    void anImpossibleSizeIsRefused();
    void aSampleIsAPartWithANameOfItsOwn();
    void whatASampleCannotBeIsRefused_data();
    void whatASampleCannotBeIsRefused();
    void aDamagedPresetIsRefused_data();
    void aDamagedPresetIsRefused();
    void aConversionDoesNotWaitForThePresets();
};

void TestConvertCommand::initTestCase()
{
    CommandLineTest::initTestCase();
    QVERIFY(MediaClips::makeFilm(m_clips.filePath(QStringLiteral("long.mp4")), 20));
}

void TestConvertCommand::aFileIsConverted()
{
    const CommandRun result = run("convert film.mp4 --preset V_MKV_1");
    QCOMPARE(result.err, QString());
    QCOMPARE(result.exitCode, 0);
    const QString target = path(QStringLiteral("film.mkv"));
    const MediaFacts facts = MediaClips::factsOf(target);
    QCOMPARE(facts.video()->codec, QStringLiteral("mpeg4"));
    const QStringList lines = result.out.trimmed().split(QLatin1Char('\n'));
    QVERIFY(lines.size() >= 2);
    QCOMPARE(lines.at(lines.size() - 2), QStringLiteral("film.mp4 -> ") + target);
    QCOMPARE(lines.constLast(), QStringLiteral("  ") + facts.summary());
    QVERIFY2(lines.constFirst().startsWith(QStringLiteral("film.mp4: ")),
             qPrintable(lines.constFirst()));
    QVERIFY(!result.out.contains(QLatin1Char('\r')));
}

void TestConvertCommand::aFittingPresetConverts()
{
    const CommandRun result = run("convert film.mp4 --type audio --format MP3 --target 320");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(MediaClips::factsOf(path(QStringLiteral("film.mp3"))).audio()->codec,
             QStringLiteral("mp3"));
    QCOMPARE(recentIds(), QStringList());
}

void TestConvertCommand::oneBadFileDoesNotStopTheOthers()
{
    QVERIFY(writeFile(path(QStringLiteral("bad.avi")), "no media"));
    const CommandRun result = run("convert missing.mp4 bad.avi film.mp4 --preset V_MKV_1");
    QCOMPARE(result.exitCode, 1);
    // Side by side, either may be the first to fail.
    QVERIFY(result.err.contains(
        QStringLiteral("vexconvert: missing.mp4: no such file; check its name\n")));
    QVERIFY(result.err.contains(QStringLiteral("vexconvert: bad.avi: cannot be read as media (")));
    QCOMPARE(result.err.count(QLatin1Char('\n')), 2);
    const QString last = result.out.section(QLatin1Char('\n'), -2);
    QVERIFY2(last.startsWith(QStringLiteral("1 of 3 files converted; failed: ")), qPrintable(last));
    QVERIFY(last.contains(QStringLiteral("missing.mp4")));
    QVERIFY(last.contains(QStringLiteral("bad.avi")));
    QCOMPARE(everything(), words("bad.avi film.mkv film.mp4"));
}

void TestConvertCommand::resultsOfOneRunAreNotOverwritten()
{
    QVERIFY(QFile::copy(path(QStringLiteral("film.mp4")), path(QStringLiteral("film.mov"))));
    QCOMPARE(run("convert film.mp4 film.mov --preset V_MKV_1 --overwrite").exitCode, 0);
    QVERIFY(QFile::exists(path(QStringLiteral("film.mkv"))));
    QVERIFY(QFile::exists(path(QStringLiteral("film (2).mkv"))));

    // Nor is a file that is still to be converted.
    QVERIFY(QFile::copy(path(QStringLiteral("film.mp4")), path(QStringLiteral("film.m4v"))));
    const QByteArray before = contentOf(path(QStringLiteral("film.mp4")));
    QCOMPARE(run("convert film.m4v film.mp4 --preset V_MP4_2 --overwrite").exitCode, 0);
    QCOMPARE(contentOf(path(QStringLiteral("film.mp4"))), before);
}

void TestConvertCommand::aDryRunOnlyPrintsTheCommand()
{
    QVERIFY(QFile::rename(path(QStringLiteral("film.mp4")), path(QStringLiteral("it's.mp4"))));
    const CommandRun result =
        run({QStringLiteral("convert"), QStringLiteral("it's.mp4"), QStringLiteral("--preset"),
             QStringLiteral("V_MP4_1"), QStringLiteral("--dry-run")});
    QCOMPARE(result.exitCode, 0);
    const QString command = result.out.section(QLatin1Char('\n'), 0, 0);
    QCOMPARE(command,
             QStringLiteral(
                 "ffmpeg -nostdin -hide_banner -v error -progress pipe:1 -y "
                 "-protocol_whitelist file -format_whitelist "
                 "mov,mp4,m4a,3gp,3g2,mj2 -i 'file:%1/it'\\''s.mp4' -map 0:0 -map 0:1 -c:v:0 copy "
                 "-c:a:0 copy -movflags +faststart -f mp4 'file:%1/it'\\''s "
                 "(2).mp4'")
                 .arg(m_folder->path()));
    QVERIFY2(result.out.section(QLatin1Char('\n'), 1).startsWith(QStringLiteral("# at most ")),
             qPrintable(result.out));
    QCOMPARE(everything(), QStringList{QStringLiteral("it's.mp4")});
    QVERIFY(!QFile::exists(config()));
}

void TestConvertCommand::aNameInUseIsNumberedUnlessOverwriting()
{
    QVERIFY(writeFile(path(QStringLiteral("film.mkv")), "mine"));
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1").exitCode, 0);
    QCOMPARE(contentOf(path(QStringLiteral("film.mkv"))), QByteArray("mine"));
    QVERIFY(QFile::exists(path(QStringLiteral("film (2).mkv"))));
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1 --overwrite").exitCode, 0);
    QVERIFY(contentOf(path(QStringLiteral("film.mkv"))) != QByteArray("mine"));
    QCOMPARE(everything().size(), 3);
}

void TestConvertCommand::aResultHasItsSourcesDateOnDemand()
{
    const QDateTime date(QDate(2019, 5, 6), QTime(7, 8, 9));
    QFile source(path(QStringLiteral("film.mp4")));
    QVERIFY(source.open(QIODevice::ReadWrite));
    QVERIFY(source.setFileTime(date, QFileDevice::FileModificationTime));
    source.close();
    const QString target = path(QStringLiteral("film.mkv"));
    const auto dateOfTarget = [&target] { return QFileInfo(target).lastModified(); };

    QCOMPARE(run("convert film.mp4 --preset V_MKV_1 --keep-dates").exitCode, 0);
    QCOMPARE(dateOfTarget(), date);
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1 --overwrite").exitCode, 0);
    QVERIFY(dateOfTarget() != date);
}

void TestConvertCommand::interruptingLeavesNothing_data()
{
    QTest::addColumn<int>("signalNumber");
    QTest::newRow("Ctrl-C") << SIGINT;
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("terminal closed") << SIGHUP;
}

void TestConvertCommand::interruptingLeavesNothing()
{
    QFETCH(int, signalNumber);
    const QTemporaryDir tools;
    QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("long.mp4")),
                        path(QStringLiteral("long.mp4"))));
    const QByteArray before = contentOf(path(QStringLiteral("long.mp4")));
    QVERIFY(MediaClips::makeStandIn(tools.path(), QStringLiteral("exec $REAL -re \"$@\"")));
    m_environment.insert(QStringLiteral("PATH"),
                         QString::fromLocal8Bit(MediaClips::pathWith(tools.path())));

    GroupProcess process;
    start(process, QStringList{QStringLiteral("--config"), config()} +
                       words("convert long.mp4 --preset V_MKV_1"));
    QByteArray result;
    while (!result.contains("long.mp4: ") && process.waitForReadyRead(patience)) {
        result += process.readAllStandardOutput();
    }
    QCOMPARE(everything().size(), 3);
    QCOMPARE(::kill(-pid_t(process.processId()), signalNumber), 0);
    const CommandRun ended = CommandRun::of(process);
    QCOMPARE(ended.exitCode, 1);
    QCOMPARE(ended.err, QStringLiteral("vexconvert: long.mp4: stopped; nothing was written\n"));
    QCOMPARE(ended.out, QString());
    QCOMPARE(everything(), words("film.mp4 long.mp4"));
    QCOMPARE(contentOf(path(QStringLiteral("long.mp4"))), before);
}

void TestConvertCommand::aKillLeavesNoToolRunning()
{
    const QTemporaryDir tools;
    QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("long.mp4")),
                        path(QStringLiteral("long.mp4"))));
    // A helper that the tool starts outlives it, unless somebody ends it.
    QVERIFY(MediaClips::makeStandIn(tools.path(),
                                    QStringLiteral("sleep 1000 & echo $! > \"${0%/*}/helper\"\n"
                                                   "exec $REAL -re \"$@\"")));
    m_environment.insert(QStringLiteral("PATH"),
                         QString::fromLocal8Bit(MediaClips::pathWith(tools.path())));
    QProcess process;
    start(process, QStringList{QStringLiteral("--config"), config()} +
                       words("convert long.mp4 --preset V_MKV_1"));
    QByteArray result;
    while (!result.contains("long.mp4: ") && process.waitForReadyRead(patience)) {
        result += process.readAllStandardOutput();
    }
    const qint64 helper =
        contentOf(tools.filePath(QStringLiteral("helper"))).trimmed().toLongLong();
    QVERIFY(isRunning(helper));
    process.kill();
    QVERIFY(process.waitForFinished(patience));
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(helper), patience);
}

void TestConvertCommand::withoutFfmpegItSaysWhatToInstall()
{
    m_environment.insert(QStringLiteral("PATH"), m_folder->path());
    const CommandRun result = run("convert film.mp4 --preset V_MKV_1");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.err, QStringLiteral("vexconvert: film.mp4: ffmpeg is not on the PATH; install "
                                        "ffmpeg (Debian: apt-get install ffmpeg) and try again\n"));
    QCOMPARE(run("formats").exitCode, 0);
}

void TestConvertCommand::aLackOfFileDescriptorsIsReported()
{
    const QString reason = QStringLiteral("vexconvert: film.mp4: ffprobe couldn't be started (");
    bool isSaid = false;
    for (int limit = 6; limit <= 18; ++limit) {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.setWorkingDirectory(m_folder->path());
        process.start(
            QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"), QStringLiteral("ulimit -n %1; exec \"$0\" \"$@\"").arg(limit),
             QStringLiteral(VEXCONVERT), QStringLiteral("--config"), config(),
             QStringLiteral("convert"), QStringLiteral("film.mp4"), QStringLiteral("--preset"),
             QStringLiteral("V_MKV_1"), QStringLiteral("--dry-run")});
        const CommandRun result = CommandRun::of(process);
        QVERIFY2(!result.err.contains(QStringLiteral("PATH")), qPrintable(result.err));
        QVERIFY2(result.err.count(QStringLiteral("film.mp4: ")) <= 1, qPrintable(result.err));
        isSaid = isSaid || (result.exitCode == 1 && result.err.contains(reason));
    }
    QVERIFY(isSaid);
}

void TestConvertCommand::aPlaylistIsRefused()
{
    QVERIFY(writeFile(path(QStringLiteral("holiday.mp4")),
                      "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n"
                      "film.mp4\n#EXT-X-ENDLIST\n"));
    const CommandRun result = run("convert holiday.mp4 --preset V_MKV_1");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.err, QStringLiteral("vexconvert: holiday.mp4: is a playlist; choose the files "
                                        "that it lists\n"));
    QCOMPARE(everything(), words("film.mp4 holiday.mp4"));
}

void TestConvertCommand::theBitrateIsReachedOnAverageWhereAsked()
{
    const QString most = run("convert film.mp4 --preset V_MP4_2 --dry-run").out;
    QVERIFY2(most.contains(QStringLiteral(" -maxrate:v:0 500k ")), qPrintable(most));
    QVERIFY2(!most.contains(QStringLiteral(" -b:v:0 ")), qPrintable(most));
    const QString average = run("convert film.mp4 --preset V_MP4_2 --average --dry-run").out;
    QVERIFY2(average.contains(QStringLiteral(" -b:v:0 500k ")), qPrintable(average));
}

void TestConvertCommand::aResultIsNoLargerThanAsked()
{
    QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("long.mp4")),
                        path(QStringLiteral("long.mp4"))));
    const CommandRun told = run("convert long.mp4 --preset V_MP4_2 --fit-size 350kB");
    QCOMPARE(told.err, QString());
    QCOMPARE(told.exitCode, 0);
    const qint64 bytes = QFileInfo(path(QStringLiteral("long (2).mp4"))).size();
    QVERIFY2(bytes > 0 && bytes <= 350000, qPrintable(QString::number(bytes)));
}

void TestConvertCommand::anImpossibleSizeIsRefused_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("reason");
    const QString number = QStringLiteral("--fit-size takes a size such as 25MB, 700kB or 1.5GB");
    QTest::newRow("a word") << QStringLiteral("small") << 2 << number;
    QTest::newRow("nothing") << QStringLiteral("0") << 2 << number;
    QTest::newRow("less than nothing") << QStringLiteral("-1") << 2 << number;
    QTest::newRow("less than the sound") << QStringLiteral("0.001") << 1 << QString();
}

void TestConvertCommand::anImpossibleSizeIsRefused()
{
    QFETCH(QString, size);
    QFETCH(int, exitCode);
    QFETCH(QString, reason);
    const CommandRun told = run(words("convert film.mp4 --preset V_MP4_2") +
                                QStringList{QStringLiteral("--size=") + size});
    QCOMPARE(told.exitCode, exitCode);
    QVERIFY2(!told.err.isEmpty() && told.err.contains(reason), qPrintable(told.err));
    QCOMPARE(everything(), QStringList{QStringLiteral("film.mp4")});
}

void TestConvertCommand::aSampleIsAPartWithANameOfItsOwn()
{
    QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("long.mp4")),
                        path(QStringLiteral("long.mp4"))));
    const CommandRun told = run("convert long.mp4 --preset V_MP4_1 --sample 2s@95%");
    QCOMPARE(told.err, QString());
    QCOMPARE(told.exitCode, 0);
    // It is as long as asked, although its place is near the end.
    const MediaFacts facts = MediaClips::factsOf(path(QStringLiteral("long sample.mp4")));
    QVERIFY2(qAbs(facts.duration - 2) < 0.1, qPrintable(QString::number(facts.duration)));
    QVERIFY2(told.out.contains(QStringLiteral("all of it would have about ")),
             qPrintable(told.out));
    QCOMPARE(run("convert long.mp4 --preset V_MP4_1 --sample 1:00").exitCode, 0);
    const MediaFacts whole = MediaClips::factsOf(path(QStringLiteral("long sample (2).mp4")));
    QVERIFY2(qAbs(whole.duration - 20) < 0.1, qPrintable(QString::number(whole.duration)));
}

void TestConvertCommand::whatASampleCannotBeIsRefused_data()
{
    QTest::addColumn<QString>("options");
    QTest::newRow("a word") << "--sample some";
    QTest::newRow("no time") << "--sample 0s@10%";
    QTest::newRow("beyond the end") << "--sample 2s@101%";
    QTest::newRow("another cut") << "--sample 2s --start 3";
    QTest::newRow("a size") << "--sample 2s --fit-size 1MB";
}

void TestConvertCommand::whatASampleCannotBeIsRefused()
{
    QFETCH(QString, options);
    const CommandRun told =
        run(words("convert film.mp4 --preset V_MP4_1") + options.split(QLatin1Char(' ')));
    QCOMPARE(told.exitCode, 2);
    QVERIFY2(told.err.contains(QStringLiteral("--sample ")), qPrintable(told.err));
    QCOMPARE(everything(), QStringList{QStringLiteral("film.mp4")});
}

void TestConvertCommand::aDamagedPresetIsRefused_data()
{
    QTest::addColumn<QByteArray>("good");
    QTest::addColumn<QByteArray>("bad");
    QTest::newRow("extension") << QByteArray("\"mkv\"") << '"' + QByteArray(300, 'x') + '"';
    QTest::newRow("path") << QByteArray("\"mkv\"") << QByteArray("\"../mkv\"");
    QTest::newRow("encoder") << QByteArray("\"mpeg4\"") << QByteArray("\"mpeg4 -y\"");
}

void TestConvertCommand::aDamagedPresetIsRefused()
{
    QFETCH(QByteArray, good);
    QFETCH(QByteArray, bad);
    QCOMPARE(run({QStringLiteral("user"), QStringLiteral("add"), QStringLiteral("V_MKV_1"),
                  QStringLiteral("--title"), QStringLiteral("Mine")})
                 .exitCode,
             0);
    const QString file = config() + QStringLiteral("/formatCache.json");
    QByteArray presets = contentOf(file);
    QVERIFY2(presets.contains(good), presets.constData());
    QVERIFY(writeFile(file, presets.replace(good, bad)));
    const QString id =
        run("user list").out.section(QLatin1Char('\n'), 1).section(QLatin1Char(' '), 0, 0);
    const CommandRun result = run(
        {QStringLiteral("convert"), QStringLiteral("film.mp4"), QStringLiteral("--preset"), id});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.err.endsWith(QStringLiteral("; choose another preset\n")),
             qPrintable(result.err));
    QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
    QCOMPARE(everything(), words("film.mp4"));
}

void TestConvertCommand::aConversionDoesNotWaitForThePresets()
{
    FolderLock lock;
    QVERIFY(lock.lock(config(), 0));
    const QString holder = QStringLiteral("%1 (process %2 on %3)")
                               .arg(QCoreApplication::applicationName())
                               .arg(QCoreApplication::applicationPid())
                               .arg(QSysInfo::machineHostName());
    const CommandRun convert = run("convert film.mp4 --preset V_MKV_1");
    QCOMPARE(convert.exitCode, 0);
    QCOMPARE(convert.err,
             QStringLiteral("vexconvert: the preset isn't noted as recently used: %1 is using the "
                            "presets in %2; close it, or try again when it is done\n")
                 .arg(holder, config()));
    QVERIFY(QFile::exists(path(QStringLiteral("film.mkv"))));
    QCOMPARE(run("user list").err, QString());
}

QTEST_GUILESS_MAIN(TestConvertCommand)
#include "tst_convertcommand.moc"
