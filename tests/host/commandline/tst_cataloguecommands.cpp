#include "tests/host/commandline/commandlinetest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/*! The subcommands that show the catalogue. */
class TestCatalogueCommands : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void formatsAreListedInColumns();
    void formatsAreListedByTag();
    void presetsAreListedInColumns_data();
    void presetsAreListedInColumns();
    void aPresetIsShownWithItsChoices();
    void listsCanBePrintedAsJson_data();
    void listsCanBePrintedAsJson();
    void theFittingPresetIsPrinted_data();
    void theFittingPresetIsPrinted();
    void anUnknownFormatIsReplacedAndReported();
};

void TestCatalogueCommands::formatsAreListedInColumns()
{
    const CommandRun result = run("formats");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.out, QStringLiteral("Format  Tag    Presets\n"
                                        "MP4     video  2\n"
                                        "MKV     video  1\n"
                                        "MP3     audio  2\n"));
    QCOMPARE(result.err, QString());
}

void TestCatalogueCommands::formatsAreListedByTag()
{
    QCOMPARE(run("formats --tag audio").out, QStringLiteral("Format  Tag    Presets\n"
                                                            "MP3     audio  2\n"));
    const CommandRun none = run("formats --tag device");
    QCOMPARE(none.exitCode, 0);
    QCOMPARE(none.out, QStringLiteral("Format  Tag  Presets\n"));
}

void TestCatalogueCommands::presetsAreListedInColumns_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("table");
    const QString mp4 = QStringLiteral(
        "Id       Title           File  Video   Size    Fps     Video kbps   Audio   Channels  "
        "Hz      Audio kbps\n"
        "V_MP4_1  Same as source  mp4   source  source  source  auto         source  source    "
        "source  auto\n"
        "V_MP4_2  Tiny            mp4   h264    160x90  25      at most 500  aac     2         "
        "48000   96\n");
    QTest::newRow("video") << QStringLiteral("MP4") << mp4;
    QTest::newRow("in any case") << QStringLiteral("mp4") << mp4;
    QTest::newRow("audio") << QStringLiteral("MP3")
                           << QStringLiteral(
                                  "Id       Title   File  Audio  Channels  Hz     Audio "
                                  "kbps\n"
                                  "A_MP3_1  High    mp3   mp3    2         44100  320\n"
                                  "A_MP3_2  Middle  mp3   mp3    2         44100  128\n");
}

void TestCatalogueCommands::presetsAreListedInColumns()
{
    QFETCH(QString, format);
    QFETCH(QString, table);
    QCOMPARE(run({QStringLiteral("presets"), format}).out, table);
}

void TestCatalogueCommands::aPresetIsShownWithItsChoices()
{
    QCOMPARE(run("show V_MP4_2").out,
             QStringLiteral("Id       V_MP4_2\n"
                            "Title    Tiny\n"
                            "Format   MP4\n"
                            "Tag      video\n"
                            "File     mp4\n"
                            "Made by  the catalogue\n"
                            "\n"
                            "Setting     Value        Choices\n"
                            "Video       h264         0 (source), h264, mpeg4\n"
                            "Size        160x90       0 (source), 1280x720, 160x90\n"
                            "Fps         25           0 (source), 25, 29.97\n"
                            "Video kbps  at most 500  0 (auto), 500, 4000\n"
                            "Audio       aac          0 (source), aac, mp3\n"
                            "Channels    2            0 (source), 1, 2\n"
                            "Hz          48000        0 (source), 48000\n"
                            "Audio kbps  96           0 (auto), 96, 192\n"));
    QVERIFY(!run("show A_MP3_1").out.contains(QStringLiteral("Video")));
}

void TestCatalogueCommands::listsCanBePrintedAsJson_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("size");
    QTest::newRow("formats") << QStringLiteral("formats --json") << 3;
    QTest::newRow("presets") << QStringLiteral("presets MP4 --json") << 2;
    QTest::newRow("presets of all formats") << QStringLiteral("presets --json") << 5;
    QTest::newRow("recent") << QStringLiteral("recent --json") << 0;
    QTest::newRow("user") << QStringLiteral("user list --json") << 0;
}

void TestCatalogueCommands::listsCanBePrintedAsJson()
{
    QFETCH(QString, line);
    QFETCH(int, size);
    const CommandRun result = run(line.split(QLatin1Char(' ')));
    QCOMPARE(result.exitCode, 0);
    const QJsonDocument json = QJsonDocument::fromJson(result.out.toUtf8());
    QVERIFY2(json.isArray(), qPrintable(result.out));
    QCOMPARE(json.array().size(), size);
}

void TestCatalogueCommands::theFittingPresetIsPrinted_data()
{
    QTest::addColumn<QString>("wish");
    QTest::addColumn<QString>("id");
    QTest::newRow("size") << QStringLiteral("--type video --format MP4 --target 320x180")
                          << QStringLiteral("V_MP4_2");
    QTest::newRow("the source's size before all")
        << QStringLiteral("--type video --format MP4 --target 160x90 --prefer-source")
        << QStringLiteral("V_MP4_1");
    QTest::newRow("bitrate") << QStringLiteral("--type audio --format mp3 --target 150")
                             << QStringLiteral("A_MP3_2");
}

void TestCatalogueCommands::theFittingPresetIsPrinted()
{
    QFETCH(QString, wish);
    QFETCH(QString, id);
    const CommandRun result =
        run(QStringList{QStringLiteral("fit")} + wish.split(QLatin1Char(' ')));
    QCOMPARE(result.exitCode, 0);
    const QJsonObject preset = QJsonDocument::fromJson(result.out.toUtf8()).object();
    QCOMPARE(preset.value(QStringLiteral("id")).toString(), id);
    QCOMPARE(result.err, QString());
}

void TestCatalogueCommands::anUnknownFormatIsReplacedAndReported()
{
    const CommandRun result = run("fit --type audio --format bogus --target 320");
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.out.contains(QStringLiteral("A_MP3_1")));
    QCOMPARE(result.err,
             QStringLiteral("vexconvert: there is no format \"bogus\"; the default one for "
                            "audio is used instead\n"));
}

QTEST_GUILESS_MAIN(TestCatalogueCommands)
#include "tst_cataloguecommands.moc"
