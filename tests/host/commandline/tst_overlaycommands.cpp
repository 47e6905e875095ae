#include "tests/host/commandline/commandlinetest.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/*! Overlays of the catalogue, as the subcommands see them. */
class TestOverlayCommands : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsAddedAndChangedIsListedFoundAndConverted();
    void hiddenPresetsAreGone();
    void anOldIdIsThePresetThatHasMoved();
    void recentlyUsedPresetsFollowAnAlias();
    void favoritesAndDefaultsFollowAnAlias();
    void theBaseOfAnOwnPresetFollowsAnAlias();
    void aBaseThatAnOverlayChangesIsReported();
    void aMistakeIsReportedAndTheRestIsUsed();
    void theCheckReadsOverlays();

private:
    void overlay(const QByteArray &json) const
    {
        QVERIFY(QDir().mkpath(config() + QStringLiteral("/catalogues")));
        QVERIFY(writeFile(config() + QStringLiteral("/catalogues/1.json"), json));
    }
    /*! Moves the preset "V_MP4_2" to "V_MKV_2" in another format. */
    void moveThePreset() const
    {
        overlay(R"({
            "category": "Video",
            "groups": [{ "name": "MKV", "presets": [
              { "id": "V_MKV_2", "like": "V_MP4_2", "extension": "mkv" } ] }]
        })");
        QVERIFY(writeFile(config() + QStringLiteral("/catalogues/2.json"),
                          R"({ "hide": { "presets": ["V_MP4_2"] },
                               "aliases": { "V_MP4_2": "V_MKV_2" } })"));
    }
};

void TestOverlayCommands::whatIsAddedAndChangedIsListedFoundAndConverted()
{
    overlay(R"({
        "category": "Device",
        "change": { "V_MP4_2": { "videoParam": { "bitrateKbps": 4000 } } },
        "groups": [{ "name": "Phone", "icon": "fmt_mp4", "presets": [
          { "id": "D_PHONE_1", "like": "V_MP4_2", "title": "Pocket" } ] }]
    })");
    const CommandRun formats = run("formats --tag device");
    QVERIFY2(formats.out.contains(QStringLiteral("\nPhone   device  1\n")),
             qPrintable(formats.out));
    QCOMPARE(formats.err, QString());
    QVERIFY(run("presets MP4").out.contains(QStringLiteral("at most 4,000")));
    QVERIFY(run("search pocket").out.contains(QStringLiteral("D_PHONE_1")));
    QVERIFY(run("show D_PHONE_1").out.contains(QStringLiteral("at most 4,000")));
    const CommandRun converted =
        run({QStringLiteral("convert"), path(QStringLiteral("film.mp4")),
             QStringLiteral("--preset"), QStringLiteral("D_PHONE_1"), QStringLiteral("--output"),
             path(QStringLiteral("pocket.mp4"))});
    QCOMPARE(converted.exitCode, 0);
    QVERIFY(QFile::exists(path(QStringLiteral("pocket.mp4"))));
}

void TestOverlayCommands::hiddenPresetsAreGone()
{
    overlay(R"({ "hide": { "presets": ["V_MP4_2"], "formats": ["MKV"] } })");
    const QString listed = run("presets").out;
    QVERIFY(listed.contains(QStringLiteral("V_MP4_1")));
    QVERIFY(!listed.contains(QStringLiteral("V_MP4_2")));
    QVERIFY(!listed.contains(QStringLiteral("V_MKV_1")));
    QCOMPARE(run("show V_MP4_2").exitCode, 2);
}

void TestOverlayCommands::anOldIdIsThePresetThatHasMoved()
{
    moveThePreset();
    QVERIFY(run("show V_MP4_2").out.startsWith(QStringLiteral("Id       V_MKV_2\n")));
    const CommandRun converted = run(
        {QStringLiteral("convert"), path(QStringLiteral("film.mp4")), QStringLiteral("--preset"),
         QStringLiteral("V_MP4_2"), QStringLiteral("--output"), path(QStringLiteral("moved.mkv"))});
    QVERIFY2(converted.exitCode == 0, qPrintable(converted.err));
    QCOMPARE(recentIds(), QStringList(QStringLiteral("V_MKV_2")));
}

void TestOverlayCommands::recentlyUsedPresetsFollowAnAlias()
{
    const auto convertWith = [this](const char *id, const char *name) {
        return run({QStringLiteral("convert"), path(QStringLiteral("film.mp4")),
                    QStringLiteral("--preset"), QLatin1String(id), QStringLiteral("--output"),
                    path(QLatin1String(name))})
            .exitCode;
    };
    QCOMPARE(convertWith("V_MP4_2", "1.mp4"), 0);
    moveThePreset();
    QCOMPARE(convertWith("A_MP3_1", "2.mp3"), 0);
    QCOMPARE(recentIds(), QStringList({QStringLiteral("A_MP3_1"), QStringLiteral("V_MKV_2")}));
}

void TestOverlayCommands::favoritesAndDefaultsFollowAnAlias()
{
    QCOMPARE(run("favorite add V_MP4_2").exitCode, 0);
    QCOMPARE(run("default video V_MP4_2").exitCode, 0);
    moveThePreset();
    QVERIFY(run("favorite list").out.contains(QStringLiteral("V_MKV_2")));
    QVERIFY(run("default").out.contains(QStringLiteral("video    V_MKV_2")));
    QCOMPARE(run("favorite remove V_MP4_2").exitCode, 0);
    QVERIFY(!run("favorite list").out.contains(QStringLiteral("V_MKV_2")));
}

void TestOverlayCommands::theBaseOfAnOwnPresetFollowsAnAlias()
{
    QCOMPARE(run("user add V_MP4_2 --title Mine").exitCode, 0);
    moveThePreset();
    const CommandRun compared = run("user diff 1001");
    QCOMPARE(compared.out, QStringLiteral("Preset 1001 has the values of its base V_MKV_2.\n"));
    QCOMPARE(compared.exitCode, 0);
}

void TestOverlayCommands::aBaseThatAnOverlayChangesIsReported()
{
    QCOMPARE(run("user add V_MP4_2 --title Mine").exitCode, 0);
    QCOMPARE(run("user diff 1001").out,
             QStringLiteral("Preset 1001 has the values of its base V_MP4_2.\n"));
    overlay(R"({ "change": { "V_MP4_2": { "videoParam": { "bitrateKbps": 4000 } } } })");
    const QString compared = run("user diff 1001").out;
    QVERIFY2(compared.contains(QStringLiteral("video-bitrate  at most 4,000  at most 500")),
             qPrintable(compared));
    const QJsonObject json =
        QJsonDocument::fromJson(run("user diff 1001 --json").out.toUtf8()).object();
    QVERIFY2(!json.isEmpty(), qPrintable(compared));
    QVERIFY(
        run("show 1001")
            .out.contains(QStringLiteral("V_MP4_2, which has changed since; see \"user diff\"")));
    QVERIFY(QFile::remove(config() + QStringLiteral("/catalogues/1.json")));
    QCOMPARE(run("user diff 1001").out,
             QStringLiteral("Preset 1001 has the values of its base V_MP4_2.\n"));
}

void TestOverlayCommands::aMistakeIsReportedAndTheRestIsUsed()
{
    overlay(R"({ "hide": { "presets": ["V_NONE", "V_MP4_2"] } })");
    const CommandRun listed = run("presets MP4");
    QCOMPARE(listed.exitCode, 0);
    QVERIFY(!listed.out.contains(QStringLiteral("V_MP4_2")));
    QCOMPARE(listed.err, QStringLiteral("vexconvert: %1/catalogues/1.json: hide.presets[0]: no "
                                        "preset has the id \"V_NONE\"; \"vexconvert presets\" "
                                        "lists the ids; left out\n")
                             .arg(config()));
}

void TestOverlayCommands::theCheckReadsOverlays()
{
    overlay(R"({
        "category": "Device",
        "hide": { "presets": ["V_NONE"], "formats": ["MKV", "MP3"] },
        "groups": [{ "name": "Phone", "icon": "fmt_mp4", "presets": [
          { "id": "Device_PHONE_001", "like": "V_MP4_2", "title": "Pocket" } ] }]
    })");
    const CommandRun checked = run("check-catalogue");
    QCOMPARE(checked.exitCode, 1);
    QVERIFY(checked.out.contains(QStringLiteral("1.json: hide.presets[0]: no preset has the id")));
    QVERIFY2(checked.out.contains(QStringLiteral("\nPhone   device  1        1  ")),
             qPrintable(checked.out));
    QVERIFY(!checked.out.contains(QStringLiteral("\nMKV ")));
    QVERIFY(checked.out.contains(QStringLiteral("3 of 3 presets convert as expected")));
}

QTEST_GUILESS_MAIN(TestOverlayCommands)
#include "tst_overlaycommands.moc"
