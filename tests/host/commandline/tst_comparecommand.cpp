#include "tests/host/commandline/commandlinetest.h"
#include "tests/support/mediaclips.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/*! The subcommand that tries several presets on a part of a file. */
class TestCompareCommand : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { CommandLineTest::initTestCase(); }
    void eachPresetHasItsFigures();
    void aPresetThatFailsDoesNotStopTheOthers();
    void aPictureShowsThemSideBySide();
    void whatCannotBeComparedIsSaid_data();
    void whatCannotBeComparedIsSaid();
};

void TestCompareCommand::eachPresetHasItsFigures()
{
    const CommandRun result =
        run("compare film.mp4 --preset V_MP4_2 --preset V_MKV_1 --sample 0.5 --json");
    QCOMPARE(result.err, QString());
    QCOMPARE(result.exitCode, 0);
    const QJsonArray trials = QJsonDocument::fromJson(result.out.toUtf8()).array();
    QCOMPARE(trials.size(), 2);
    QCOMPARE(trials.at(0)[QStringLiteral("preset")].toString(), QStringLiteral("V_MP4_2"));
    QCOMPARE(trials.at(1)[QStringLiteral("preset")].toString(), QStringLiteral("V_MKV_1"));
    for (const QJsonValue &trial : trials) {
        const double bytes = trial[QStringLiteral("bytes")].toDouble();
        const double whole = trial[QStringLiteral("wholeBytes")].toDouble();
        const double ssim = trial[QStringLiteral("ssim")].toDouble();
        QVERIFY(bytes > 0);
        QVERIFY2(whole > 1.7 * bytes && whole < 2.3 * bytes, qPrintable(result.out));
        QVERIFY(trial[QStringLiteral("speed")].toDouble() > 0);
        QVERIFY2(ssim > 0.8 && ssim <= 1, qPrintable(result.out));
    }
    // Nothing is kept.
    QCOMPARE(everything(), QStringList{QStringLiteral("film.mp4")});
}

void TestCompareCommand::aPresetThatFailsDoesNotStopTheOthers()
{
    QVERIFY(MediaClips::makeSong(path(QStringLiteral("song.flac"))));
    const CommandRun result = run("compare song.flac --preset V_MKV_1 --preset A_MP3_2");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.err,
             QStringLiteral("vexconvert: V_MKV_1: has no video; choose an audio preset\n"));
    QVERIFY2(result.out.contains(QStringLiteral("A_MP3_2")), qPrintable(result.out));
}

void TestCompareCommand::aPictureShowsThemSideBySide()
{
    const CommandRun result = run("compare film.mp4 --preset V_MP4_2 --preset V_MKV_1 "
                                  "--preset A_MP3_1 --sample 0.5 --picture all.png");
    QCOMPARE(result.err, QString());
    QCOMPARE(result.exitCode, 0);
    // The smallest has 90 lines; audio has no picture.
    const MediaFacts picture = MediaClips::factsOf(path(QStringLiteral("all.png")));
    QCOMPARE(picture.video()->displaySize(), QSize(3 * 120, 90));
}

void TestCompareCommand::whatCannotBeComparedIsSaid_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("error");
    QTest::newRow("no file") << "--preset V_MP4_1 --preset V_MP4_2" << 2 << "give one file";
    QTest::newRow("one preset") << "film.mp4 --preset V_MP4_1" << 2 << "name two presets or more";
    QTest::newRow("an unknown preset")
        << "film.mp4 --preset V_MP4_1 --preset V_NO_1" << 2 << "V_NO_1";
    QTest::newRow("a missing file")
        << "none.mp4 --preset V_MP4_1 --preset V_MP4_2" << 1 << "none.mp4: no such file";
}

void TestCompareCommand::whatCannotBeComparedIsSaid()
{
    QFETCH(QString, arguments);
    QFETCH(QString, error);
    const CommandRun result =
        run(QStringList{QStringLiteral("compare")} + arguments.split(QLatin1Char(' ')));
    QTEST(result.exitCode, "exitCode");
    QVERIFY2(result.err.contains(error), qPrintable(result.err));
    QCOMPARE(everything(), QStringList{QStringLiteral("film.mp4")});
}

QTEST_GUILESS_MAIN(TestCompareCommand)
#include "tst_comparecommand.moc"
