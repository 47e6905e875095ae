#include "tests/host/commandline/commandlinetest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/*! The subcommand "search"; tests/host/find has what it finds. */
class TestSearchCommand : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void formatsComeBeforePresets();
    void aWordMayBeAnArgumentOfItsOwn();
    void filtersLeaveOutTheFormats();
    void nothingFoundIsSaid_data();
    void nothingFoundIsSaid();
    void onlyTheFirstTwentyAreListed();
    void jsonHasAllPresetsAndWhy();

private:
    QJsonArray json(const char *line) const
    {
        const QStringList arguments = words(line) << QStringLiteral("--json");
        return QJsonDocument::fromJson(run(arguments).out.toUtf8()).array();
    }
    void useTheBuiltInCatalogue() { m_environment.remove(QStringLiteral("VEX_EXPORT_CATALOGUE")); }
};

void TestSearchCommand::formatsComeBeforePresets()
{
    const CommandRun result = run("search mp");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.out, QStringLiteral("Format  Tag    Presets\n"
                                        "MP4     video  2\n"
                                        "MP3     audio  2\n"
                                        "\n"
                                        "Id       Title           Format  Tag    Found by\n"
                                        "V_MP4_1  Same as source  MP4     video  format\n"
                                        "V_MP4_2  Tiny            MP4     video  format\n"
                                        "A_MP3_1  High            MP3     audio  format\n"
                                        "A_MP3_2  Middle          MP3     audio  format\n"
                                        "V_MKV_1  Plain           MKV     video  codec mpeg4\n"));
    QCOMPARE(result.err, QString());
}

void TestSearchCommand::aWordMayBeAnArgumentOfItsOwn()
{
    const QString found = QStringLiteral("Id       Title  Format  Tag    Found by\n"
                                         "V_MP4_2  Tiny   MP4     video  title, codec h264\n");
    QCOMPARE(run("search tiny x264").out, found);
    QCOMPARE(run(QStringList{QStringLiteral("search"), QStringLiteral("tiny x264")}).out, found);
}

void TestSearchCommand::filtersLeaveOutTheFormats()
{
    QCOMPARE(run("search mp --kind audio").out,
             QStringLiteral("Id       Title   Format  Tag    Found by\n"
                            "A_MP3_1  High    MP3     audio  format, kind audio\n"
                            "A_MP3_2  Middle  MP3     audio  format, kind audio\n"));
    QCOMPARE(json("search mp --codec avc").size(), 1);
    QCOMPARE(json("search mp --size 90p").size(), 1);
    QCOMPARE(json("search mp --size 91p").size(), 0);
}

void TestSearchCommand::nothingFoundIsSaid_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("text");
    QTest::newRow("an unknown word")
        << QStringLiteral("search bogus")
        << QStringLiteral("No format or preset is known for \"bogus\"\n");
    QTest::newRow("one that is like another")
        << QStringLiteral("search mp4 tini")
        << QStringLiteral("No format or preset is known for \"tini\"; did you mean \"tiny\"?\n");
    QTest::newRow("known words that no preset has together")
        << QStringLiteral("search tiny mp3")
        << QStringLiteral("No preset has all that \"tiny mp3\" asks for; leave out a word or an "
                          "option.\n");
    QTest::newRow("as JSON") << QStringLiteral("search bogus --json") << QStringLiteral("[\n]\n");
}

void TestSearchCommand::nothingFoundIsSaid()
{
    QFETCH(QString, line);
    const CommandRun result = run(line.split(QLatin1Char(' ')));
    QCOMPARE(result.exitCode, 0);
    QTEST(result.out, "text");
}

void TestSearchCommand::onlyTheFirstTwentyAreListed()
{
    useTheBuiltInCatalogue();
    const int all = json("search fullhd").size();
    QVERIFY(all > 20);
    const QStringList lines = run("search fullhd").out.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 1 + 20 + 1 + 1);
    QCOMPARE(lines.at(21), QStringLiteral("... %1 more; --all lists them").arg(all - 20));
    QCOMPARE(run("search fullhd --all").out.count(QLatin1Char('\n')), 1 + all);
}

void TestSearchCommand::jsonHasAllPresetsAndWhy()
{
    useTheBuiltInCatalogue();
    const QJsonArray found = json("search iph x264 1080");
    QCOMPARE(found.size(), 1);
    const auto why = [](const char *word, const char *field, const char *text) {
        return QJsonObject{{QStringLiteral("word"), QString::fromLatin1(word)},
                           {QStringLiteral("field"), QString::fromLatin1(field)},
                           {QStringLiteral("text"), QString::fromLatin1(text)}};
    };
    const QJsonObject expected = {
        {QStringLiteral("id"), QStringLiteral("Device_APPLE_002")},
        {QStringLiteral("title"), QStringLiteral("iPhone HD 1080P")},
        {QStringLiteral("format"), QStringLiteral("Apple")},
        {QStringLiteral("tag"), QStringLiteral("device")},
        {QStringLiteral("why"),
         QJsonArray{why("iph", "title", "iPhone HD 1080P"), why("x264", "codec", "h264"),
                    why("1080", "size", "1920x1080")}},
        {QStringLiteral("problem"), QString()},
        {QStringLiteral("instead"), QString()}};
    QCOMPARE(found.at(0).toObject(), expected);
}

QTEST_GUILESS_MAIN(TestSearchCommand)
#include "tst_searchcommand.moc"
