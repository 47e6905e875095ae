#include "tests/host/commandline/commandlinetest.h"
#include "tests/support/mediaclips.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/*! "vexconvert user export" and "import". */
class TestUserExchange : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void presetsTravelToAnotherMachine();
    void onlyTheNamedPresetsAreExported();
    void anExistingFileIsNotReplacedUnasked();
    void aDryRunChangesNothing();
    void nothingIsImportedWhereOneIsRefused();
    void conflictsAreSettledAsAsked();
    void aPresetOfHandBrakeIsImportedAndUsed();

private:
    QStringList titles() const
    {
        QStringList all;
        const QJsonArray list =
            QJsonDocument::fromJson(run("user list --json").out.toUtf8()).array();
        for (const QJsonValue &preset : list) {
            all << preset[QStringLiteral("title")].toString();
        }
        return all;
    }
};

void TestUserExchange::presetsTravelToAnotherMachine()
{
    QCOMPARE(run("user add V_MP4_2 --title Mine --frame-rate 25 --audio-bitrate 192").exitCode, 0);
    QCOMPARE(run("user note 1001 trains").exitCode, 0);
    const CommandRun exported = run("user export -");
    QCOMPARE(exported.exitCode, 0);
    QVERIFY(writeFile(path(QStringLiteral("mine.json")), exported.out.toUtf8()));

    const QStringList there = {QStringLiteral("--config"), path(QStringLiteral("there"))};
    const CommandRun imported = run(there + words("user import mine.json"));
    QCOMPARE(imported.err, QString());
    QVERIFY2(imported.out.endsWith(QStringLiteral("\nimported: 1001\n")), qPrintable(imported.out));
    QCOMPARE(run(there + words("user list --json")).out, run("user list --json").out);
    QCOMPARE(run(there + words("user note 1001")).out, QStringLiteral("trains\n"));
}

void TestUserExchange::onlyTheNamedPresetsAreExported()
{
    for (const char *title : {"One", "Two", "Three"}) {
        QCOMPARE(
            run(words("user add V_MP4_2 --title") + QStringList{QLatin1String(title)}).exitCode, 0);
    }
    QCOMPARE(run("user export 1003 1001 some.json").out, QStringLiteral("some.json: 2 presets\n"));
    const QByteArray file = contentOf(path(QStringLiteral("some.json")));
    QVERIFY(file.contains("\"One\"") && file.contains("\"Three\"") && !file.contains("\"Two\""));
    const CommandRun refused = run("user export V_MP4_2 some.json");
    QCOMPARE(refused.exitCode, 2);
    QVERIFY(refused.err.contains(QStringLiteral("V_MP4_2 isn't yours")));
}

void TestUserExchange::anExistingFileIsNotReplacedUnasked()
{
    QCOMPARE(run("user add V_MP4_2 --title One").exitCode, 0);
    QVERIFY(writeFile(path(QStringLiteral("file.json")), "precious"));
    QCOMPARE(run("user export file.json").exitCode, 1);
    QCOMPARE(contentOf(path(QStringLiteral("file.json"))), QByteArray("precious"));
    QCOMPARE(run("user export file.json --overwrite").exitCode, 0);
    QVERIFY(contentOf(path(QStringLiteral("file.json"))).contains("\"One\""));
}

void TestUserExchange::aDryRunChangesNothing()
{
    QVERIFY(writeFile(path(QStringLiteral("new.json")),
                      R"({"version": 1, "presets": [{"title": "New", "base": "V_MP4_2"}]})"));
    const CommandRun dry = run("user import new.json --dry-run");
    QCOMPARE(dry.exitCode, 0);
    QCOMPARE(dry.out, QStringLiteral("Title  Format  Result\nNew    MP4     new\n"));
    QCOMPARE(titles(), QStringList());
}

void TestUserExchange::nothingIsImportedWhereOneIsRefused()
{
    QVERIFY(writeFile(path(QStringLiteral("mixed.json")), R"({"version": 1, "presets": [
        {"title": "Good", "base": "V_MP4_2"},
        {"title": "Wrong", "base": "V_MP4_2", "settings": {"frame-rate": "9999"}}]})"));
    const CommandRun refused = run("user import mixed.json");
    QCOMPARE(refused.exitCode, 1);
    QVERIFY2(refused.out.contains(QStringLiteral("refused: the preset's video.frameRate is 9999")),
             qPrintable(refused.out));
    QVERIFY2(refused.err.contains(QStringLiteral("nothing is imported, as 1 of 2 presets are "
                                                 "refused")),
             qPrintable(refused.err));
    QCOMPARE(titles(), QStringList());
    QCOMPARE(run("user import mixed.json --skip-refused").exitCode, 0);
    QCOMPARE(titles(), QStringList{QStringLiteral("Good")});
}

void TestUserExchange::conflictsAreSettledAsAsked()
{
    QCOMPARE(run("user add V_MP4_2 --title Mine").exitCode, 0);
    QVERIFY(writeFile(path(QStringLiteral("other.json")), R"({"version": 1, "presets": [
        {"title": "Mine", "base": "V_MP4_2", "settings": {"audio-bitrate": "192"}}]})"));
    QCOMPARE(run("user import other.json --on-conflict skip").exitCode, 0);
    QCOMPARE(titles(), QStringList{QStringLiteral("Mine")});
    QCOMPARE(run("user import other.json").exitCode, 0);
    QCOMPARE(titles(), (QStringList{QStringLiteral("Mine"), QStringLiteral("Mine (2)")}));
    QCOMPARE(run("user import other.json --on-conflict replace").exitCode, 0);
    QVERIFY(run("show 1001").out.contains(QStringLiteral("192")));
    const CommandRun refused = run("user import other.json --on-conflict ask");
    QCOMPARE(refused.exitCode, 2);
    QVERIFY(
        refused.err.contains(QStringLiteral("--on-conflict is one of keep-both, replace, skip")));
}

void TestUserExchange::aPresetOfHandBrakeIsImportedAndUsed()
{
    QVERIFY(writeFile(path(QStringLiteral("hb.json")), R"({"PresetList": [{
        "PresetName": "Small", "FileFormat": "av_mp4", "VideoEncoder": "x264",
        "VideoQualityType": 2, "VideoQualitySlider": 30.0, "VideoPreset": "superfast",
        "VideoFramerate": "12.5", "VideoFramerateMode": "pfr", "PictureWidth": 64,
        "PictureHeight": 64, "PictureGrain": "much",
        "AudioList": [{"AudioEncoder": "av_aac", "AudioBitrate": 64, "AudioMixdown": "mono"}]}]})"));
    const CommandRun imported = run("user import hb.json");
    QCOMPARE(imported.exitCode, 0);
    QVERIFY2(imported.out.contains(QStringLiteral("PictureGrain")), qPrintable(imported.out));
    const CommandRun plan = run("convert film.mp4 --preset 1001 --dry-run");
    QVERIFY2(plan.out.contains(QStringLiteral("-crf:v:0 30")) &&
                 plan.out.contains(QStringLiteral("-preset:v:0 superfast")),
             qPrintable(plan.out + plan.err));
    QCOMPARE(run("convert film.mp4 --preset 1001").exitCode, 0);
    const MediaFacts facts = MediaClips::factsOf(path(QStringLiteral("film (2).mp4")));
    QCOMPARE(facts.video()->codec, QStringLiteral("h264"));
    QCOMPARE(facts.video()->frameRate.toText(), QStringLiteral("25/2"));
    QCOMPARE(facts.video()->displaySize().width(), 64);
    QCOMPARE(facts.audio()->channels, 1);
}

QTEST_GUILESS_MAIN(TestUserExchange)
#include "tst_userexchange.moc"
