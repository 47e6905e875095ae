#include "tests/host/commandline/commandlinetest.h"
#include "tests/support/mediaclips.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

/*! Plans, what runs them, and watches. */
class TestPlanCommands : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void aPlanNeedsNoConfiguration();
    void aPlanFixesItsNames();
    void oneJobOfAPlanIsRun();
    void runningAgainConvertsNothingTwice();
    void twoRunsAtOnceWriteEachResultOnce();
    void aKilledRunIsFinishedByTheNext();
    void whatAKilledRunLeftIsRemoved();
    void aSourceThatVanishedIsNamed();
    void anInvalidLineDoesNotStopTheOthers();
    void aMissingJobIsAnError_data();
    void aMissingJobIsAnError();
    void aPlanCannotKnowThePicture();
    void aWatchConvertsWhatArrives();

private:
    bool makeSongs(int count) const
    {
        bool made = QDir(m_folder->path()).mkpath(QStringLiteral("in"));
        for (int number = 1; number <= count; ++number) {
            made = made && QFile::copy(m_clips.filePath(QStringLiteral("song.wav")),
                                       path(QStringLiteral("in/%1.wav").arg(number)));
        }
        return made;
    }
    bool plan(const char *line) const
    {
        const CommandRun planned = run(line);
        return planned.exitCode == 0 &&
               writeFile(path(QStringLiteral("plan")), planned.out.toUtf8());
    }
    QStringList results() const
    {
        return QDir(path(QStringLiteral("out")))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QProcess *startRun() const
    {
        auto *process = new QProcess;
        start(*process, words("run plan"));
        return process;
    }

    static QStringList statuses(const CommandRun &run)
    {
        QStringList statuses;
        const QStringList lines = run.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString &line : lines) {
            const QJsonObject result = QJsonDocument::fromJson(line.toUtf8()).object();
            statuses << QStringLiteral("%1 %2")
                            .arg(result.value(QStringLiteral("index")).toInt())
                            .arg(result.value(QStringLiteral("status")).toString());
        }
        statuses.sort();
        return statuses;
    }
};

void TestPlanCommands::initTestCase()
{
    CommandLineTest::initTestCase();
    QVERIFY(MediaClips::makeSong(m_clips.filePath(QStringLiteral("song.wav"))));
}

void TestPlanCommands::aPlanNeedsNoConfiguration()
{
    QVERIFY(plan("plan film.mp4 --preset V_MP4_2 --to out --end 0.5"));
    m_environment.insert(QStringLiteral("VEX_EXPORT_CATALOGUE"), QStringLiteral("/nowhere"));
    const CommandRun result = run("run plan");
    QCOMPARE(result.err, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(statuses(result), QStringList(QStringLiteral("1 converted")));
    const MediaFacts facts = MediaClips::factsOf(path(QStringLiteral("out/film.mp4")));
    QCOMPARE(facts.video()->displaySize(), QSize(120, 90));
    QVERIFY(facts.duration < 0.8);
}

void TestPlanCommands::aPlanFixesItsNames()
{
    QVERIFY(makeSongs(1));
    QVERIFY(QFile::copy(path(QStringLiteral("in/1.wav")), path(QStringLiteral("in/1.w64"))));
    QVERIFY(plan("plan in --preset A_MP3_1 --to out"));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("out")));
    QVERIFY(writeFile(path(QStringLiteral("out/1 (2).mp3")), "there"));
    QCOMPARE(statuses(run("run plan")),
             QStringList({QStringLiteral("1 converted"), QStringLiteral("2 skipped")}));
    QCOMPARE(results(), QStringList({QStringLiteral("1 (2).mp3"), QStringLiteral("1.mp3")}));
    QCOMPARE(run("run plan --if-exists error").exitCode, 1);
    QCOMPARE(statuses(run("run plan --if-exists overwrite")),
             QStringList({QStringLiteral("1 converted"), QStringLiteral("2 converted")}));
    QCOMPARE(run("run plan --if-exists rename").exitCode, 2);
}

void TestPlanCommands::oneJobOfAPlanIsRun()
{
    QVERIFY(makeSongs(3));
    QVERIFY(plan("plan in --preset A_MP3_1 --to out"));
    QCOMPARE(statuses(run("run plan --index 2")), QStringList(QStringLiteral("2 converted")));
    QCOMPARE(results(), words("2.mp3"));
}

void TestPlanCommands::runningAgainConvertsNothingTwice()
{
    QVERIFY(makeSongs(2));
    QVERIFY(plan("plan in --preset A_MP3_1 --to out"));
    QCOMPARE(run("run plan").exitCode, 0);
    const CommandRun again = run("run plan");
    QCOMPARE(again.exitCode, 0);
    QCOMPARE(statuses(again),
             QStringList({QStringLiteral("1 skipped"), QStringLiteral("2 skipped")}));
    QCOMPARE(results(), words("1.mp3 2.mp3"));
}

void TestPlanCommands::twoRunsAtOnceWriteEachResultOnce()
{
    QVERIFY(makeSongs(6));
    QVERIFY(plan("plan in --preset A_MP3_1 --to out"));
    const std::unique_ptr<QProcess> one(startRun());
    const std::unique_ptr<QProcess> other(startRun());
    QCOMPARE(CommandRun::of(*one).exitCode, 0);
    QCOMPARE(CommandRun::of(*other).exitCode, 0);
    QCOMPARE(results(), words("1.mp3 2.mp3 3.mp3 4.mp3 5.mp3 6.mp3"));
}

void TestPlanCommands::aKilledRunIsFinishedByTheNext()
{
    QVERIFY(makeSongs(4));
    QVERIFY(plan("plan in --preset A_MP3_1 --to out"));
    {
        const std::unique_ptr<QProcess> killed(startRun());
        QVERIFY(killed->waitForReadyRead(patience));
        killed->kill();
        QVERIFY(killed->waitForFinished(patience));
    }
    QCOMPARE(run("run plan").exitCode, 0);
    QCOMPARE(results(), words("1.mp3 2.mp3 3.mp3 4.mp3"));
    for (const QString &name : results()) {
        QVERIFY(MediaClips::factsOf(path(QStringLiteral("out/") + name)).audio() != nullptr);
    }
}

void TestPlanCommands::whatAKilledRunLeftIsRemoved()
{
    QVERIFY(makeSongs(2));
    QVERIFY(plan("plan in --preset A_MP3_1 --to out"));
    QCOMPARE(run("run plan").exitCode, 0);
    QTemporaryDir tools;
    const QDir started(tools.path());
    QVERIFY(MediaClips::makeStandIn(
        tools.path(), QStringLiteral("touch '%1'/$$.started; exec sleep 60").arg(tools.path())));
    m_environment.insert(QStringLiteral("PATH"),
                         QString::fromLocal8Bit(MediaClips::pathWith(tools.path())));
    QProcess killed;
    start(killed, words("run plan --jobs 1 --if-exists overwrite"));
    QTRY_VERIFY_WITH_TIMEOUT(!started.entryList({QStringLiteral("*.started")}).isEmpty(), patience);
    QVERIFY(results().size() > 2);
    killed.kill();
    QVERIFY(killed.waitForFinished(patience));
    QCOMPARE(run("run plan").exitCode, 0);
    QCOMPARE(results(), words("1.mp3 2.mp3"));
}

void TestPlanCommands::aSourceThatVanishedIsNamed()
{
    QVERIFY(makeSongs(2));
    QVERIFY(plan("plan in --preset A_MP3_1 --to out"));
    QVERIFY(QFile::remove(path(QStringLiteral("in/1.wav"))));
    const CommandRun result = run("run plan");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(statuses(result),
             QStringList({QStringLiteral("1 failed"), QStringLiteral("2 converted")}));
    QVERIFY(result.out.contains(QStringLiteral("no such file; check its name")));
}

void TestPlanCommands::anInvalidLineDoesNotStopTheOthers()
{
    QVERIFY(makeSongs(2));
    QVERIFY(plan("plan in --preset A_MP3_1 --to out"));
    const QByteArray lines = contentOf(path(QStringLiteral("plan")));
    QVERIFY(writeFile(path(QStringLiteral("plan")), lines.left(100) + '\n' + lines));
    const CommandRun result = run("run plan");
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.err.startsWith(QStringLiteral("vexconvert: plan: line 1 is no whole job (")),
             qPrintable(result.err));
    QCOMPARE(statuses(result),
             QStringList({QStringLiteral("2 converted"), QStringLiteral("3 converted")}));
}

void TestPlanCommands::aMissingJobIsAnError_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("mistake");
    QTest::newRow("line") << QStringLiteral("plan --index 3") << 1
                          << QStringLiteral("the plan plan has no line 3");
    QTest::newRow("number") << QStringLiteral("plan --index 0") << 2
                            << QStringLiteral("--index takes the number of a line, from 1");
    QTest::newRow("file") << QStringLiteral("other") << 1
                          << QStringLiteral("can't read the plan other (No such file or "
                                            "directory); name one that \"vexconvert "
                                            "plan\" wrote");
    QTest::newRow("none named") << QString() << 2
                                << QStringLiteral("name one plan: vexconvert run PLAN");
}

void TestPlanCommands::aMissingJobIsAnError()
{
    QFETCH(QString, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, mistake);
    QVERIFY(makeSongs(2));
    QVERIFY(plan("plan in --preset A_MP3_1 --to out"));
    const CommandRun result =
        run(words("run") + arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(result.exitCode, exitCode);
    QCOMPARE(result.err, QStringLiteral("vexconvert: %1\n").arg(mistake));
}

void TestPlanCommands::aPlanCannotKnowThePicture()
{
    const CommandRun result = run("plan film.mp4 --preset V_MP4_2 --to out --name {width}");
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.err, QStringLiteral("vexconvert: a name that is fixed before the source is "
                                        "read can't have {width} or {height}; leave them out\n"));
}

void TestPlanCommands::aWatchConvertsWhatArrives()
{
    QVERIFY(makeSongs(1));
    const QStringList line = QStringList{QStringLiteral("--config"), config()} +
                             words("watch in --preset A_MP3_1 --to out");
    for (const char *const expected : {"1.mp3 2.mp3", "1.mp3 2.mp3 3.mp3"}) {
        GroupProcess watch;
        start(watch, line);
        QVERIFY(watch.waitForStarted(patience));
        const QString arriving = path(QStringLiteral("in/%1.wav").arg(words(expected).size()));
        QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("song.wav")), arriving));
        QTRY_COMPARE_WITH_TIMEOUT(QDir(path(QStringLiteral("out"))).entryList(QDir::Files),
                                  words(expected), patience);
        const auto isDone = [this, &arriving] {
            return contentOf(path(QStringLiteral("out/.vexconvert-watched.jsonl")))
                       .count(arriving.toUtf8()) == 2;
        };
        QTRY_VERIFY_WITH_TIMEOUT(isDone(), patience);
        QCOMPARE(::kill(pid_t(watch.processId()), SIGTERM), 0);
        QCOMPARE(CommandRun::of(watch).exitCode, 0);
    }
}

QTEST_GUILESS_MAIN(TestPlanCommands)
#include "tst_plancommands.moc"
