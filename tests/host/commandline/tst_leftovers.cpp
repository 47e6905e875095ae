#include "tests/support/commandrun.h"
#include "tests/support/mediaclips.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

/*! The command itself, killed in the middle of its work. */
class TestLeftovers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void theNextConversionRemovesWhatAKilledOneWrote();
    void filesOfARunningConversionStay();

private:
    QStringList hidden() const
    {
        return QDir(m_folder->path())
            .entryList({QStringLiteral(".*")},
                       QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QStringList results() const { return QDir(m_folder->path()).entryList(QDir::Files); }
    void start(QProcess &process, const QString &clip, const QByteArray &searchPath) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("PATH"), QString::fromLocal8Bit(searchPath));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(VEXCONVERT),
                      {QStringLiteral("--config"), m_clips.filePath(QStringLiteral("config")),
                       QStringLiteral("convert"), m_clips.filePath(clip),
                       QStringLiteral("--preset"), QStringLiteral("Video_MKV_001"),
                       QStringLiteral("--to"), m_folder->path()});
    }
    void startSlowly(QProcess &process) const
    {
        start(process, QStringLiteral("long.mp4"), MediaClips::pathWith(m_tools.path()));
        // The first line of output means that ffmpeg is writing.
        QVERIFY(process.waitForReadyRead(patience));
    }
    CommandRun convertFilm() const
    {
        QProcess process;
        start(process, QStringLiteral("film.mp4"), qgetenv("PATH"));
        return CommandRun::of(process);
    }

    QTemporaryDir m_clips;
    QTemporaryDir m_tools;
    std::optional<QTemporaryDir> m_folder;
};

void TestLeftovers::initTestCase()
{
    QVERIFY(MediaClips::makeFilm(m_clips.filePath(QStringLiteral("film.mp4"))));
    QVERIFY(MediaClips::makeFilm(m_clips.filePath(QStringLiteral("long.mp4")), 8));
    QVERIFY(MediaClips::makeStandIn(m_tools.path(), QStringLiteral("exec $REAL -re \"$@\"")));
}

void TestLeftovers::init()
{
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
}

void TestLeftovers::theNextConversionRemovesWhatAKilledOneWrote()
{
    QProcess killed;
    startSlowly(killed);
    killed.kill();
    QVERIFY(killed.waitForFinished());
    QCOMPARE(hidden().size(), 1);
    QCOMPARE(convertFilm().exitCode, 0);
    QCOMPARE(hidden(), QStringList());
    QCOMPARE(results(), QStringList{QStringLiteral("film.mkv")});
}

void TestLeftovers::filesOfARunningConversionStay()
{
    QProcess living;
    startSlowly(living);
    const QStringList before = hidden();
    QCOMPARE(before.size(), 1);
    QCOMPARE(convertFilm().exitCode, 0);
    QCOMPARE(living.state(), QProcess::Running);
    QCOMPARE(hidden(), before);
    QCOMPARE(CommandRun::of(living).exitCode, 0);
    QCOMPARE(hidden(), QStringList());
    QCOMPARE(results(), QStringList({QStringLiteral("film.mkv"), QStringLiteral("long.mkv")}));
}

QTEST_GUILESS_MAIN(TestLeftovers)
#include "tst_leftovers.moc"
