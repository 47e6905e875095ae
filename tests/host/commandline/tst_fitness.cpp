#include "tests/host/commandline/commandlinetest.h"
#include "tests/support/mediaclips.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

/*! What "search" and "show" say of presets that can't be used. */
class TestFitness : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatThisFfmpegLacksIsSaid();
    void whatDoesNotSuitAFileIsSaid();
    void aFileThatCannotBeReadIsAnError();

private:
    /*! Lets the program find an ffmpeg without x264. */
    void hideEncoder();
};

void TestFitness::hideEncoder()
{
    const QString folder = path(QStringLiteral("bin"));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(MediaClips::makeStandIn(folder, QStringLiteral("exec \"$REAL\" \"$@\""),
                                    QStringLiteral("libx264")));
    m_environment.insert(QStringLiteral("PATH"),
                         QString::fromLocal8Bit(MediaClips::pathWith(folder)));
}

void TestFitness::whatThisFfmpegLacksIsSaid()
{
    QVERIFY(!run("show V_MP4_2").out.contains(QStringLiteral("can't be used")));
    hideEncoder();
    const QString show = run("show V_MP4_2").out;
    QVERIFY2(show.contains(QStringLiteral("V_MP4_2 can't be used: needs the encoder libx264 for "
                                          "h264, which this ffmpeg lacks")),
             qPrintable(show));
    QVERIFY2(show.contains(QStringLiteral("; nearest: V_MP4_1\n")), qPrintable(show));
    const QJsonArray found =
        QJsonDocument::fromJson(run("search tiny --json").out.toUtf8()).array();
    QCOMPARE(found.size(), 1);
    QCOMPARE(found[0][QStringLiteral("instead")].toString(), QStringLiteral("V_MP4_1"));
    QVERIFY(!found[0][QStringLiteral("problem")].toString().isEmpty());
}

void TestFitness::whatDoesNotSuitAFileIsSaid()
{
    QVERIFY(MediaClips::make(path(QStringLiteral("tone.wav")),
                             QStringLiteral("-f lavfi -i sine=duration=1")));
    QVERIFY(run("show V_MKV_1 --for tone.wav")
                .out.contains(QStringLiteral("V_MKV_1 can't be used: has no video")));
    QVERIFY(!run("show A_MP3_1 --for tone.wav").out.contains(QStringLiteral("can't be used")));
    QVERIFY(!run("show V_MKV_1 --for film.mp4").out.contains(QStringLiteral("can't be used")));
    QVERIFY(run("search plain --for tone.wav")
                .out.contains(QStringLiteral("V_MKV_1 can't be used: has no video")));
}

void TestFitness::aFileThatCannotBeReadIsAnError()
{
    QVERIFY(writeFile(path(QStringLiteral("text.mp4")), "no film"));
    for (const char *line : {"show V_MKV_1 --for text.mp4", "search plain --for missing.mp4"}) {
        const CommandRun result = run(line);
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(result.out, QString());
        QVERIFY2(result.err.contains(QStringLiteral(".mp4 ")), qPrintable(result.err));
    }
}

QTEST_GUILESS_MAIN(TestFitness)
#include "tst_fitness.moc"
