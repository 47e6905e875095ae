#include "tests/host/commandline/commandlinetest.h"
#include "tests/support/mediaclips.h"

#include <QDir>

/*! The subcommands for the user's own and recently used presets. */
class TestPresetCommands : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void usedPresetsAreListedMostRecentFirst();
    void aUsedPresetIsForgotten();
    void aUsersPresetIsCreatedChangedAndDeleted();
    void aUsersAudioPresetConverts();
    void aDeletedPresetStaysUsableWhileRecentlyUsed();
    void aDamagedFileIsNeverOverwritten_data();
    void aDamagedFileIsNeverOverwritten();
    void theGoodCopyOfADamagedFileIsUsedAndReported();
    void unusablePresetsAreKeptInAnotherFile();
};

void TestPresetCommands::usedPresetsAreListedMostRecentFirst()
{
    QCOMPARE(run("recent").out, QStringLiteral("No presets have been used yet.\n"));
    for (const char *line :
         {"convert missing.mp4 --preset V_MKV_1", "convert missing.mp4 --preset A_MP3_1",
          "convert missing.mp4 --preset V_MP4_2", "convert missing.mp4 --preset V_MKV_1"}) {
        QCOMPARE(run(line).exitCode, 1);
    }
    QCOMPARE(
        run("recent").out,
        QStringLiteral("Id       Title  File  Video  Size    Fps     Video kbps   Audio  "
                       "Channels  Hz      Audio kbps\n"
                       "V_MKV_1  Plain  mkv   mpeg4  source  source  auto         mp3    "
                       "source    source  auto\n"
                       "V_MP4_2  Tiny   mp4   h264   160x90  25      at most 500  aac    2     "
                       "    48000   96\n"
                       "A_MP3_1  High   mp3   -      -       -       -            mp3    2     "
                       "    44100   320\n"));
}

void TestPresetCommands::aUsedPresetIsForgotten()
{
    run("convert missing.mp4 --preset V_MKV_1");
    run("convert missing.mp4 --preset A_MP3_1");
    const CommandRun result = run("recent delete V_MKV_1");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.out, QStringLiteral("V_MKV_1 is no longer listed as recently used\n"));
    QCOMPARE(recentIds(), QStringList{QStringLiteral("A_MP3_1")});
}

void TestPresetCommands::aUsersPresetIsCreatedChangedAndDeleted()
{
    QVERIFY(
        run("user list").out.startsWith(QStringLiteral("You have no presets of your own yet; ")));
    const CommandRun added =
        run({QStringLiteral("user"), QStringLiteral("add"), QStringLiteral("V_MP4_2"),
             QStringLiteral("--title"), QStringLiteral("My own"), QStringLiteral("--video-encoder"),
             QStringLiteral("mpeg4"), QStringLiteral("--frame-rate"), QStringLiteral("29.97"),
             QStringLiteral("--audio-bitrate"), QStringLiteral("192")});
    QCOMPARE(added.err, QString());
    QCOMPARE(added.out, QStringLiteral("1001 added to MP4\n"));
    QCOMPARE(
        run("user list").out,
        QStringLiteral("Id    Title   File  Video  Size    Fps    Video kbps   Audio  Channels "
                       " Hz     Audio kbps\n"
                       "1001  My own  mp4   mpeg4  160x90  29.97  at most 500  aac    2        "
                       " 48000  192\n"));
    QVERIFY(run("presets MP4").out.contains(QStringLiteral("\n1001     My own")));
    QVERIFY(run("show 1001").out.contains(QStringLiteral("Made by  you")));
    QCOMPARE(run("convert film.mp4 --preset 1001").exitCode, 0);
    const MediaFacts facts = MediaClips::factsOf(path(QStringLiteral("film (2).mp4")));
    QCOMPARE(facts.video()->codec, QStringLiteral("mpeg4"));
    QCOMPARE(facts.video()->frameRate.toText(), QStringLiteral("25"));
    QCOMPARE(facts.video()->displaySize(), QSize(120, 90));

    const CommandRun changed = run("user change 1001 --video-bitrate 4000 --title New");
    QCOMPARE(changed.out, QStringLiteral("1001 changed\n"));
    const QString list = run("user list").out;
    QVERIFY2(list.contains(
                 QStringLiteral("1001  New    mp4   mpeg4  160x90  29.97  at most 4,000  aac")),
             qPrintable(list));

    QCOMPARE(run("user delete 1001").out,
             QStringLiteral("1001 deleted; \"vexconvert user undo\" brings it back\n"));
    QCOMPARE(recentIds(), QStringList());
    QCOMPARE(run("show 1001").exitCode, 2);
}

void TestPresetCommands::aUsersAudioPresetConverts()
{
    QCOMPARE(run("user add A_MP3_1 --title Low --audio-bitrate 128 --channel 1").exitCode, 0);
    QCOMPARE(run("convert film.mp4 --preset 1001").exitCode, 0);
    const MediaFacts facts = MediaClips::factsOf(path(QStringLiteral("film.mp3")));
    QVERIFY(facts.videoTracks.isEmpty());
    QCOMPARE(facts.audio()->channels, 1);
}

void TestPresetCommands::aDeletedPresetStaysUsableWhileRecentlyUsed()
{
    // A preset of a catalogue that is no longer served lives on among the recently used ones.
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1").exitCode, 0);
    QCOMPARE(run("convert missing.mp4 --preset A_MP3_1").exitCode, 1);
    m_environment.insert(QStringLiteral("VEX_EXPORT_CATALOGUE"),
                         m_clips.filePath(QStringLiteral("catalogue/2.json")));
    QVERIFY(run("show V_MKV_1").out.contains(QStringLiteral("only among the recently used")));
    QCOMPARE(run("convert film.mp4 --preset V_MKV_1").exitCode, 0);
    QVERIFY(QFile::exists(path(QStringLiteral("film (2).mkv"))));
    QCOMPARE(recentIds(), words("V_MKV_1 A_MP3_1"));
    const CommandRun refused = run("user add V_MKV_1 --title x");
    QCOMPARE(refused.exitCode, 2);
    QVERIFY(refused.err.contains(QStringLiteral("is only among the recently used ones")));
}

void TestPresetCommands::aDamagedFileIsNeverOverwritten_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    for (const char *file : {"recently.json", "formatCache.json"}) {
        QTest::addRow("%s, truncated", file)
            << QString::fromLatin1(file) << QByteArray("[{\"id\": ");
        QTest::addRow("%s, not an array", file) << QString::fromLatin1(file) << QByteArray("{}");
    }
}

void TestPresetCommands::aDamagedFileIsNeverOverwritten()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QVERIFY(QDir().mkpath(config()));
    const QString damaged = config() + QLatin1Char('/') + file;
    QVERIFY(writeFile(damaged, content));
    const QString complaint = QStringLiteral("%1 is damaged and there is no good copy of it; fix "
                                             "it, or move it away to start anew\n")
                                  .arg(damaged);

    for (const char *line : {"user add V_MP4_1 --title x", "user list --json", "recent --json"}) {
        const CommandRun refused = run(line);
        QCOMPARE(refused.exitCode, 1);
        QCOMPARE(refused.out, QString());
        QCOMPARE(refused.err, QStringLiteral("vexconvert: ") + complaint);
    }
    const CommandRun formats = run("formats");
    QCOMPARE(formats.exitCode, 0);
    QCOMPARE(formats.err, QStringLiteral("vexconvert: ") + complaint);
    // A conversion needs no file of the user's.
    const CommandRun convert = run("convert film.mp4 --preset V_MKV_1");
    QCOMPARE(convert.exitCode, 0);
    QCOMPARE(convert.err,
             QStringLiteral("vexconvert: the preset isn't noted as recently used: ") + complaint);

    QCOMPARE(contentOf(damaged), content);
    QCOMPARE(QDir(config()).entryList({QStringLiteral("*.json*")}, QDir::Files), QStringList{file});
}

void TestPresetCommands::theGoodCopyOfADamagedFileIsUsedAndReported()
{
    QCOMPARE(run("user add V_MP4_1 --title x").exitCode, 0);
    const QString file = config() + QStringLiteral("/formatCache.json");
    QVERIFY(writeFile(file, {}));
    const CommandRun list = run("user list");
    QCOMPARE(list.exitCode, 0);
    QCOMPARE(list.err, QStringLiteral("vexconvert: %1 was empty; its last good copy, "
                                      "formatCache.json.bak, is in its place\n")
                           .arg(file));
    QVERIFY(list.out.contains(QStringLiteral("\n1001  x")));
    QCOMPARE(run("user list").err, QString());
}

void TestPresetCommands::unusablePresetsAreKeptInAnotherFile()
{
    QVERIFY(QDir().mkpath(config()));
    const QString file = config() + QStringLiteral("/formatCache.json");
    QVERIFY(writeFile(file, "[{\"title\": \"MP4\", \"group\": [{\"id\": \"unusable\"}]}]"));
    const CommandRun add = run("user add V_MP4_1 --title x");
    QCOMPARE(add.exitCode, 0);
    QCOMPARE(add.err, QStringLiteral("vexconvert: %1 holds presets without settings "
                                     "(\"outPutNode\"), which can't be used; they are kept in "
                                     "formatCache.json.unusable\n")
                          .arg(file));
    QVERIFY(contentOf(file).contains("1001"));
    QVERIFY(contentOf(file + QStringLiteral(".unusable")).contains("\"unusable\""));
    QCOMPARE(run("user delete 1001").err, QString());
}

QTEST_GUILESS_MAIN(TestPresetCommands)
#include "tst_presetcommands.moc"
